#include "maintenance/Traces.h"

#include "changes/apply/ApplyServices.h"
#include "changes/apply/LaunchpadRows.h"
#include "fonts/FontManager.h"
#include "fonts/PlainNames.h"
#include "maintenance/WrapperFolderContents.h"
#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "system/DockManager.h"
#include "system/DockTiles.h"
#include "system/RowsPlacement.h"
#include "wrappers/TavrikAppManager.h"

#include <algorithm>
#include <map>

namespace tavrik {

namespace {

/// Looks for traces in one place after the other.
class Search {
public:
    explicit Search(const ApplyServices& with)
        : m_with(with),
          m_fonts(with.fonts.fontReplacer()),
          m_folder(with.wrappers.tavrikAppsURL()) {}

    Result<Traces> run() {
        const auto contents = readWrapperFolder(m_with.mac.files, m_folder);
        if (!contents)
            return contents.error();
        m_contents = *contents;
        const auto rows = readLaunchpadRows(m_with);
        if (!rows)
            return rows.error();
        std::optional<plist::Value> dock = m_with.dock.readDockPlist();
        if (!dock)
            return Error{"The Dock's preferences cannot be read: " + m_with.dock.dockPlistPath().string() +
                         "."};
        m_found.bundles = m_contents.wrappers;
        m_found.foreign = m_contents.foreign;
        m_found.hasFolder =
            m_contents.isThere && (m_contents.foreign.empty() || !m_contents.wrappers.empty() ||
                                   std::ranges::count(m_contents.notes, WrapperFolder::kWarning) > 0);
        lookAtSettings(*rows);
        lookAtRows(*rows);
        lookAtTiles(*dock);
        return std::move(m_found);
    }

private:
    void lookAtSettings(const std::vector<LaunchpadRow>& rows) {
        SettingsManager& settings = m_with.settings;
        for (const auto& [bundleID, mapping] : settings.getAllMappings())
            m_found.restyled.insert(bundleID);
        for (const auto& [bundleID, icon] : settings.getAllSelectedIcons())
            m_found.selectedIcons.insert(bundleID);
        if (const auto style = settings.getCurrentFontState())
            m_found.style = style->fontName;
        m_found.isStyleUnfinished = !settings.getUnfinishedFontChange().empty();

        std::map<RowID, const LaunchpadRow*> numbered;
        for (const LaunchpadRow& row : rows)
            numbered.emplace(row.number, &row);
        for (const auto& [bundleID, record] : settings.getAllSwapRecords()) {
            m_found.unfinished.insert(bundleID);
            const auto original = numbered.find(record.originalRowID);
            const auto wrapper = numbered.find(record.tavrikRowID);
            if (original == numbered.end() || wrapper == numbered.end() ||
                original->second->bundleID != bundleID || wrapper->second->bundleID != bundleID)
                continue;
            if (stateOf({original->second->placement, wrapper->second->placement}, record) ==
                RowsState::exchanged)
                m_found.displaced.insert(bundleID);
        }
    }

    void lookAtRows(const std::vector<LaunchpadRow>& rows) {
        for (const LaunchpadRow& row : rows) {
            const std::string title = row.title.value_or("");
            if (row.isApp && isOurs(row.lead()))
                m_found.wrapperRows.push_back(bundleName(row.lead()));
            else if (row.isApp && row.hasBookmark &&
                     isStyled(title, plainTitle(title, present(row.path), row.gone, m_fonts)))
                m_found.styledTitles.push_back(title);
        }
        // A person may call a folder whatever he likes, in look-alikes of letters too.
        const auto known = m_with.settings.getAllFolderBackups();
        const bool isStyling = m_found.style || m_found.isStyleUnfinished || !m_found.styledTitles.empty();
        for (const LaunchpadRow& row : rows) {
            const std::string title = row.title.value_or("");
            if (!row.isApp && (isStyling || known.contains(row.number)) &&
                isStyled(title, m_fonts.convertToNormal(title)))
                m_found.styledFolders.push_back(title);
        }
    }

    void lookAtTiles(plist::Value& dock) {
        for (const dock::Tile& tile : dock::applicationTiles(dock)) {
            const std::string label = tile.label() ? *tile.label() : std::string();
            const std::string url = tile.url() ? *tile.url() : std::string();
            const std::string plain = plainLabel(label, url, m_fonts);
            const Bytes* bookmark = tile.bookmark();
            const auto recorded = bookmark ? m_with.mac.bookmarks.recordedPath(*bookmark) : Error{};
            if (isOurs(dock::pathOf(url)) || (recorded && isOurs(*recorded)))
                m_found.wrapperTiles.push_back(plain);
            if (isStyled(label, plain))
                m_found.styledLabels.push_back(label);
        }
    }

    bool isOurs(const MacPath& path) const {
        return isWrapperPath(path) && !m_contents.isForeign(m_folder, path);
    }

    /// Whether the text is the plain one in letters of one style. A name in the user's language is another
    /// text, and none of ours.
    bool isStyled(const std::string& text, const std::string& plain) const {
        return text != plain && text != m_fonts.convertToNormal(text) &&
               std::ranges::any_of(m_fonts.allFontMaps(), [&](const FontReplacer::FontMap& style) {
                   return m_fonts.convert(plain, style.name) == text;
               });
    }

    static std::optional<MacPath> present(const MacPath& path) {
        return path.empty() ? std::nullopt : std::optional(path);
    }

    const ApplyServices& m_with;
    const FontReplacer& m_fonts;
    const MacPath m_folder;
    WrapperFolderContents m_contents;
    Traces m_found;
};

template<typename Names>
void tell(std::vector<std::string>& sentences, const Names& names, const std::string& before,
          const std::string& after) {
    for (const std::string& name : names)
        sentences.push_back(before + name + after);
}

} // namespace

Result<Traces> readTraces(const ApplyServices& with) {
    return Search(with).run();
}

std::vector<std::string> Traces::inWords() const {
    std::vector<std::string> sentences;
    tell(sentences, restyled, "", " has a wrapper, by the settings.");
    tell(sentences, displaced, "", " stands in the place of its wrapper.");
    tell(sentences, unfinished, "What was begun for ", " was stopped half-way.");
    tell(sentences, wrapperRows, "Launchpad still knows the wrapper of ", ".");
    tell(sentences, wrapperTiles, "The tile of ", " in the Dock leads to a wrapper.");
    tell(sentences, styledTitles, "An application in Launchpad is called ", ".");
    tell(sentences, styledFolders, "A folder in Launchpad is called ", ".");
    tell(sentences, styledLabels, "A tile in the Dock is called ", ".");
    if (style)
        sentences.push_back("The names are in " + *style + ", by the settings.");
    if (isStyleUnfinished)
        sentences.push_back("A change of the names was stopped half-way.");
    tell(sentences, bundles, "The wrapper ", " stands in the folder of the wrappers.");
    if (hasFolder)
        sentences.push_back("The folder of the wrappers is there.");
    tell(sentences, selectedIcons, "An icon of ", " is marked as in use.");
    return sentences;
}

bool Traces::hasStyle() const {
    return style || isStyleUnfinished || !styledTitles.empty() || !styledFolders.empty() ||
           !styledLabels.empty();
}

} // namespace tavrik
