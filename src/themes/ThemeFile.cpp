#include "themes/ThemeFile.h"
