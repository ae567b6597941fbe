#include "remote/RequestSigning.h"
