#include "changes/apply/ExpectedTitles.h"

#include "fonts/FontReplacer.h"
#include "fonts/PlainNames.h"

namespace tavrik {

void writeTitles(ApplyStores& stores, const std::string& style, const FontReplacer& fonts) {
    for (auto& [row, app] : stores.apps) {
        if (app.title && app.isRetitled)
            app.title = fonts.convert(plainTitle(*app.title, app.shown, app.gone, fonts), style);
    }

    for (auto& [row, title] : stores.folders) {
        const auto found = stores.folderBackups.find(row);
        const auto backup = found == stores.folderBackups.end() ? std::nullopt : std::optional(found->second);
        const std::string plain = fonts.convertToNormal(title);
        const TitleStyle& current = styleShownBy(title, backup, stores.shownStyles, fonts);
        const FolderName name =
            style.empty() ? nameForReset(plain, backup, current)
                          : nameForStyle(plain, backup, current, {style, fonts.isMultiCaseFont(style), {}});
        title = fonts.convert(name.base, style);
    }

    for (ApplyStores::Tile& tile : stores.tiles) {
        if (tile.label && tile.url)
            tile.label = fonts.convert(plainLabel(*tile.label, *tile.url, fonts), style);
    }
}

} // namespace tavrik
