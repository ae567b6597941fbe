#include "remote/HttpFetch.h"
