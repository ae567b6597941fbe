#include "icons/list/ApplicationRow.h"
