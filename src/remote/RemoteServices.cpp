#include "remote/RemoteServices.h"
