// The page base is all in its header; this file gives moc the header to read.
#include "ui/config_page.h"
