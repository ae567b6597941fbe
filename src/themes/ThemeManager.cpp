#include "themes/ThemeManager.h"
