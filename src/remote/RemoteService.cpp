#include "remote/RemoteService.h"
