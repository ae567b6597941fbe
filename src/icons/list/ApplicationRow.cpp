#include "icons/list/ApplicationRow.h"

#include "changes/IconRow.h"

namespace tavrik {

IconRow ApplicationRow::icons() const {
    return {.permanentIconPaths = app.permanentIconPaths,
            .pendingAdditionPaths = app.pendingAdditionPaths,
            .hiddenPermanentIndices = app.hiddenPermanentIndices,
            .selectedIconIndex = app.selectedIconIndex};
}

std::vector<MacPath> ApplicationRow::displayPaths() const {
    return icons().displayPaths();
}

} // namespace tavrik
