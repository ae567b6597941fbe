#include "themes/ThemePreviewSettingsManager.h"
