// Gives the page base its own source, so that its meta-object is generated
// and linked once for every page.
#include "ui/config_page.h"
