#include "themes/IconMatcher.h"
