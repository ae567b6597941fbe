#include "icons/list/ApplicationsModel.h"
