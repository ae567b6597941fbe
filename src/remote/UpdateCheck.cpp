#include "remote/UpdateCheck.h"
