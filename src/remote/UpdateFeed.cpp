#include "remote/UpdateFeed.h"
