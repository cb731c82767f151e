// The pages' base class has signals and slots of its own: this source file
// makes moc read its header.
#include "ui/config_page.h"
