#pragma once

#include "icons/list/ApplicationRow.h"

#include <vector>

namespace tavrik {

enum class SortOrder { ascending, descending };

/// Sorts by the plain names as the user's language sorts them; rows of one name by their identifiers, in either
/// order. Pure; any thread.
void sortRows(std::vector<ApplicationRow>& rows, SortOrder order);

} // namespace tavrik
