#include "themes/ThemeCoverage.h"
