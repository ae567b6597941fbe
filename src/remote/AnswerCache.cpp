#include "remote/AnswerCache.h"
