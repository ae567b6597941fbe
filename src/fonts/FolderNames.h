#pragma once

#include "model/SettingsRecords.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a Launchpad folder is really called, whatever style its title is written in. Pure; any thread.
namespace tavrik {

class FontReplacer;

/// A style that a title may be written in; nothing is plain text.
using TitleStyle = std::optional<FontState>;

struct FolderName {
    std::string base; ///< in plain text, with its capitals
    /// Fields of the folder's backup that are to be set; it must be on disk before the title loses its
    /// capitals.
    std::optional<FolderBackup> save;
    std::vector<std::string> lines; ///< for the log
};

/// The name before the folder is written in the style `wanted`. `plain` is its title in plain text, `current`
/// the style that the title shows.
FolderName nameForStyle(const std::string& plain, const std::optional<FolderBackup>& backup,
                        const TitleStyle& current, const FontState& wanted);

/// The name that the folder gets back.
FolderName nameForReset(const std::string& plain, const std::optional<FolderBackup>& backup,
                        const TitleStyle& current);

/// The style that a title shows, of the styles that it may show, oldest first and never none. There are several
/// while a change of style is unfinished: it was killed before or after the titles, or could not write them. A
/// change saves the backup before it writes the title, so a title that is the backup's name in a style shows
/// that one, the newest first; any other is from before the changes.
const TitleStyle& styleShownBy(const std::string& title, const std::optional<FolderBackup>& backup,
                               const std::vector<TitleStyle>& candidates, const FontReplacer& replacer);

} // namespace tavrik
