#include "remote/Endpoint.h"
