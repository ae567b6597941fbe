#include "icons/list/RowOrder.h"
