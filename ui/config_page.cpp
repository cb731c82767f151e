// The page base has no code of its own; this file gives its header a place
// in the build, so that its meta-object is generated.
#include "ui/config_page.h"
