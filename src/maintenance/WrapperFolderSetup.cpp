#include "maintenance/WrapperFolderSetup.h"
