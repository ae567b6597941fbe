#include "icons/list/ListFilter.h"
