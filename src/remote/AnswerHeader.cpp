#include "remote/AnswerHeader.h"
