#include "icons/IconShapeAnalysis.h"
