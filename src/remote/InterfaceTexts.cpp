#include "remote/InterfaceTexts.h"
