#include "app/SharedCoordinators.h"
