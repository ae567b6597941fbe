#include "fonts/FolderNames.h"

#include "fonts/CapitalisationFix.h"
#include "fonts/FontReplacer.h"
#include "fonts/PlainNames.h"

namespace tavrik {

namespace {

/// The names of a backup, of which one may stand in for the other.
struct KnownNames {
    std::string original;
    std::string lastGood;
};

std::optional<KnownNames> namesIn(const std::optional<FolderBackup>& backup) {
    if (!backup || (!backup->original && !backup->lastGood))
        return std::nullopt;
    return KnownNames{backup->original ? *backup->original : *backup->lastGood,
                      backup->lastGood ? *backup->lastGood : *backup->original};
}

FolderBackup backupOf(const std::string& original, const std::string& lastGood,
                      const std::optional<std::string>& lastGoodFont) {
    return {original, {}, lastGood, {}, lastGoodFont};
}

FolderBackup lastGoodOf(const std::string& name) {
    FolderBackup backup;
    backup.lastGood = name;
    return backup;
}

std::string renamed(const std::string& from, const std::string& to) {
    return "'" + from + "' -> '" + to + "'";
}

} // namespace

FolderName nameForStyle(const std::string& plain, const std::optional<FolderBackup>& backup,
                        const TitleStyle& current, const FontState& wanted) {
    const auto names = namesIn(backup);
    const auto font = wanted.isMultiCase ? std::optional(wanted.fontName) : std::nullopt;

    // Never seen before: the title is all there is to tell the name from.
    if (!names && current && !current->isMultiCase) {
        const std::string fixed = withFixedCapitals(plain);
        return {fixed,
                backupOf(fixed, fixed, font),
                {"  Creating backup from single-case font, attempting fix: " + renamed(plain, fixed)}};
    }
    if (!names) {
        const std::string origin =
            current ? "  Creating backup from multi-case font: '" : "  Creating initial backup for folder: '";
        return {plain, backupOf(plain, plain, font), {origin + plain + "'"}};
    }

    if (!isSameIgnoringCase(names->original, plain))
        return {plain, backupOf(plain, plain, font), {"  Folder renamed: " + renamed(names->original, plain)}};

    // The user corrected the capitals while a style that has them was shown.
    if (current && current->isMultiCase && backup->lastGoodFont == current->fontName &&
        plain != names->lastGood)
        return {plain,
                lastGoodOf(plain),
                {"  Updating lastGood from '" + names->lastGood + "' to '" + plain + "' (from " +
                 current->fontName + ")"}};

    FolderName name{names->lastGood, std::nullopt, {}};
    if (plain != names->lastGood)
        name.lines.push_back("  Ignoring corrupted capitalization '" + plain + "', using backup '" +
                             names->lastGood + "'");
    return name;
}

FolderName nameForReset(const std::string& plain, const std::optional<FolderBackup>& backup,
                        const TitleStyle& current) {
    const auto names = namesIn(backup);
    if (!names)
        return {plain,
                backupOf(plain, plain, std::nullopt),
                {"  Creating backup during reset for: '" + plain + "'"}};
    if (!isSameIgnoringCase(names->original, plain))
        return {plain,
                backupOf(plain, plain, std::nullopt),
                {"  Folder renamed during reset: " + renamed(names->original, plain)}};
    if (current && current->isMultiCase)
        return {plain, lastGoodOf(plain), {"  Saving final capitalization before reset: '" + plain + "'"}};
    return {names->lastGood, std::nullopt, {}};
}

const TitleStyle& styleShownBy(const std::string& title, const std::optional<FolderBackup>& backup,
                               const std::vector<TitleStyle>& candidates, const FontReplacer& replacer) {
    if (const auto names = namesIn(backup); names && candidates.size() > 1) {
        for (auto style = candidates.rbegin(); style != candidates.rend(); ++style)
            if (replacer.convert(names->lastGood, *style ? (*style)->fontName : std::string()) == title)
                return *style;
    }
    return candidates.front();
}

} // namespace tavrik
