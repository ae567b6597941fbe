#include "remote/SignedAnswer.h"
