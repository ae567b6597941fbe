#include "platform/SqliteCopy.h"
