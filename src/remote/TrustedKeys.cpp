#include "remote/TrustedKeys.h"
