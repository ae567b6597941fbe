#include "changes/apply/ApplyServices.h"
#include "changes/apply/ApplySnapshot.h"
#include "changes/apply/ApplyStores.h"
#include "changes/apply/ExpectedTitles.h"
#include "changes/apply/StoreChange.h"
#include "changes/apply/StoreChangeWords.h"
#include "fonts/FontManager.h"
#include "maintenance/HealthChecks.h"
#include "maintenance/HealthLook.h"
#include "model/SettingsManager.h"

#include <algorithm>

namespace tavrik {

namespace {

using Kind = HealthFinding::Kind;
using Remedy = HealthFinding::Remedy;

/// Without a style in effect a title is as the system or a person wrote it. It is ours only when it is the
/// plain one in a style, and of a folder only when that was ever restyled.
bool isLeftInStyle(const StoreChange& change, const ApplyStores& stores, const FontReplacer& fonts) {
    if (change.kind == StoreChange::Kind::folderTitle &&
        std::ranges::none_of(stores.folderBackups, [&](const auto& backup) {
            return std::to_string(static_cast<std::int64_t>(backup.first)) == change.subject;
        }))
        return false;
    return std::ranges::any_of(fonts.allFontMaps(), [&](const FontReplacer::FontMap& font) {
        return fonts.convert(change.to, font.name) == change.from;
    });
}

void report(HealthLook& look, const StoreChange& change, const std::string& style) {
    const bool isLabel = change.kind == StoreChange::Kind::tileLabel;
    const bool isFolder = change.kind == StoreChange::Kind::folderTitle;
    const std::string what = isLabel ? "A label in the Dock" : isFolder ? "A folder's title" : "A title";
    look.findings.push_back(
        {isLabel ? Kind::label : Kind::title, Remedy::repair, change.subject,
         what + (style.empty() ? " is still in a styled alphabet: " : " is not in \"" + style + "\": ") +
             inWords(change, isFolder ? "" : look.nameOf(change.subject)) + ".",
         style.empty() ? "The repair makes all names plain." : "The repair writes all names in the style."});
}

} // namespace

void checkTitles(HealthLook& look) {
    if (!look.canCompare() || look.dockFault)
        return;
    const auto& with = look.with;
    const auto state = with.settings.getCurrentFontState();
    const std::string style = state ? state->fontName : std::string();
    if (!with.settings.getUnfinishedFontChange().empty()) {
        look.findings.push_back({Kind::unfinishedTitles, Remedy::repair, style,
                                 "A change of the names' style is under way, or was stopped half-way.",
                                 style.empty() ? "The repair makes all names plain."
                                               : "The repair writes all names in \"" + style + "\"."});
        return;
    }

    const auto stores = readApplyStores(with, {});
    if (!stores)
        return;
    const FontReplacer& fonts = with.fonts.fontReplacer();
    ApplyStores wanted = *stores;
    writeTitles(wanted, style, fonts);
    for (const StoreChange& change : changesBetween(*stores, wanted)) {
        if (!style.empty() || isLeftInStyle(change, *stores, fonts))
            report(look, change, style);
    }
}

} // namespace tavrik
