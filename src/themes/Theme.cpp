#include "themes/Theme.h"
