#include "icons/SquircleTest.h"
