#include "remote/FetchSchedule.h"
