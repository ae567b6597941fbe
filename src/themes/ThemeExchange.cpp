#include "themes/ThemeExchange.h"
