#include "remote/RemoteKind.h"
