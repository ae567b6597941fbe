#include "system/LaunchpadLayout.h"
