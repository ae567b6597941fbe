#include "themes/ThemeLibrary.h"
