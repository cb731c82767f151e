#include "cli/play_session.h"
