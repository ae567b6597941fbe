#include "remote/ProgramVersion.h"
