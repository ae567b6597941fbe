#include "icons/list/CatalogueReader.h"
