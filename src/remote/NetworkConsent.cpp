#include "remote/NetworkConsent.h"
