#include "app/VersionGate.h"
