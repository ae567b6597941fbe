#pragma once

#include "model/ApplicationInfo.h"
#include "platform/Bytes.h"
#include "platform/Result.h"
#include "themes/IconMatcher.h"
#include "themes/Theme.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tavrik {

class FontReplacer;
class ThemeManager;

/// The pictures of a folder that a person hands over. They are read one by one, when it is their turn.
struct PictureFolder {
    std::vector<std::string> names;
    std::function<Result<Bytes>(const std::string& name)> read; ///< called on several threads at a time
};

struct FolderImportOptions {
    std::string themeName;
    bool acceptsDoubtful = false;
};

/// What became of the pictures.
struct FolderImportReport {
    std::optional<Theme> theme; ///< none when no picture could be taken
    IconMatches matches;
    std::vector<IconMatch> taken;    ///< with the file that was chosen, by application
    std::vector<std::string> failed; ///< a sentence for each application whose pictures cannot be used
};

/// Makes a theme of a folder of pictures that are named after applications. Of several pictures that fit one
/// equally well the largest is taken; of equally large ones, beyond the size of an icon all are, a drawing;
/// then the first by name. The pictures are squared on all cores. An error when the theme cannot have that name
/// or cannot be written; there is none then. Blocks, for seconds with hundreds of pictures; off the main
/// thread.
Result<FolderImportReport> importFolder(const PictureFolder& folder, const std::vector<ApplicationInfo>& apps,
                                        const FolderImportOptions& options, const FontReplacer& fonts,
                                        ThemeManager& themes);

/// The same with matches that a person has looked at and let stand; `matches` of the answer is empty. Several
/// for one application compete as above.
Result<FolderImportReport> importMatches(const PictureFolder& folder, const std::vector<IconMatch>& chosen,
                                         const std::string& themeName, ThemeManager& themes);

} // namespace tavrik
