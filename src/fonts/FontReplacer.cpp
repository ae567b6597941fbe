#include "fonts/FontReplacer.h"
