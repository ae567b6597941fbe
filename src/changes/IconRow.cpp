#include "changes/IconRow.h"

#include "icons/IconFiles.h"
#include "model/ApplicationInfo.h"

namespace tavrik {

std::vector<MacPath> IconRow::displayPaths() const {
    std::vector<MacPath> paths;
    for (const MacPath& icon : permanentIconPaths) {
        const auto number = iconIndex(icon.name());
        if (!number || !hiddenPermanentIndices.contains(*number))
            paths.push_back(icon);
    }
    paths.insert(paths.end(), pendingAdditionPaths.begin(), pendingAdditionPaths.end());
    return paths;
}

void setIconRow(ApplicationInfo& app, const IconRow& row) {
    app.permanentIconPaths = row.permanentIconPaths;
    app.pendingAdditionPaths = row.pendingAdditionPaths;
    app.hiddenPermanentIndices = row.hiddenPermanentIndices;
    app.selectedIconIndex = row.selectedIconIndex;
}

} // namespace tavrik
