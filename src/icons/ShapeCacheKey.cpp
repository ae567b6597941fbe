#include "icons/ShapeCacheKey.h"
