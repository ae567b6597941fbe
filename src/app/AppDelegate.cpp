#include "app/AppDelegate.h"
