#include "themes/ThemeError.h"
