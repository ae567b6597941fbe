#include "icons/list/FilterSettingsManager.h"
