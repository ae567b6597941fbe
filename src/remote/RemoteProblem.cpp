#include "remote/RemoteProblem.h"
