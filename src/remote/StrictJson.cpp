#include "remote/StrictJson.h"
