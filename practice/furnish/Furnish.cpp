#include "practice/furnish/Furnish.h"

#include "practice/art/ProgramIcon.h"
#include "practice/furnish/BuildingSite.h"
#include "practice/furnish/BundleBuilder.h"
#include "practice/furnish/HostFiles.h"
#include "practice/furnish/IconBuilder.h"
#include "practice/furnish/InstalledPrograms.h"
#include "practice/furnish/MachineFiles.h"
#include "practice/furnish/ProgramBundle.h"
#include "practice/furnish/SampleApps.h"
#include "practice/furnish/SampleDock.h"
#include "practice/furnish/SampleLaunchpad.h"
#include "practice/furnish/TreeWriter.h"

#include <QStandardPaths>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace tavrik::practice {

namespace {

/// Says that a folder is a practice Mac. Programs that bring the volume's programs up to date take turns by it.
constexpr const char* kMarkerName = ".practice-mac";
constexpr const char* kMarkerText =
    "A practice Mac of Tavrik. The whole folder can be deleted: Tavrik makes a new "
    "one.\n";

enum class Standing { nothing, practiceMac, somethingElse };

bool isThere(const HostPath& path) {
    std::error_code failure;
    return std::filesystem::exists(std::filesystem::symlink_status(path.string(), failure));
}

Standing standingAt(const HostPath& root) {
    std::error_code failure;
    if (std::filesystem::is_regular_file((root / kMarkerName).string(), failure))
        return Standing::practiceMac;
    if (!isThere(root))
        return Standing::nothing;
    const bool isEmptyFolder = std::filesystem::is_directory(root.string(), failure) &&
                               std::filesystem::is_empty(root.string(), failure) && !failure;
    return isEmptyFolder ? Standing::nothing : Standing::somethingElse;
}

/// Where the folder really is, should its path lead through links: it will be renamed.
HostPath realPath(const HostPath& root) {
    std::error_code failure;
    const std::filesystem::path real =
        std::filesystem::weakly_canonical(std::filesystem::absolute(root.string(), failure), failure);
    return failure ? root : HostPath(real.string());
}

/// The old Mac's place while a new one takes its own.
HostPath putAwayPath(const HostPath& root) {
    return root.parent() / ("." + root.name() + ".put-away");
}

Status somethingElseError(const HostPath& root) {
    return Error{root.string() + " holds other files and is no practice Mac. Choose a new or an empty folder."};
}

void writeApplications(TreeWriter& tree, int largestIcon) {
    std::vector<IconPainter> painters{[](int size) { return drawProgramIcon(size, size); }};
    for (const SampleApp& app : sampleApps())
        painters.push_back([style = iconStyle(app)](int size) { return drawIcon(style, size); });
    const std::vector<Bytes> icons = buildIcons(painters, largestIcon);
    if (std::ranges::any_of(icons, &Bytes::empty))
        tree.note(Error{"Cannot draw the icons of the applications"});

    writeProgramBundle(tree, icons.front());
    std::size_t next = 1;
    for (const SampleApp& app : sampleApps()) {
        const Bytes& icon = icons[next++];
        writeSampleBundle(tree, app, icon);
        if (std::string_view(app.identifier) == kCopiedApp)
            writeBundleCopy(tree, app, icon, kStaleCopy);
    }
}

/// Builds a whole Mac in an empty folder.
Status build(const HostPath& folder, const Programs& programs, const FurnishOptions& options) {
    TreeWriter tree(folder);
    writeMachineFiles(tree);
    writeApplications(tree, options.largestIcon);
    writeSampleLaunchpad(tree);
    writeSampleDock(tree);
    tree.file(MacPath("/") / kMarkerName, bytesOf(kMarkerText));
    if (!tree.status())
        return tree.status();
    return installPrograms(folder, programs, folder / kMarkerName);
}

/// Ends what a killed program began. With the site claimed nobody else is at it.
Status tidyUp(const HostPath& root, const BuildingSite&) {
    const HostPath putAway = putAwayPath(root);
    if (!isThere(putAway))
        return Done{};
    if (standingAt(root) == Standing::nothing)
        return renameHost(putAway, root);
    return removeHostTree(putAway);
}

void tidyUpWhatIsLeft(const HostPath& root) {
    if (!isThere(BuildingSite::folderFor(root)) && !isThere(putAwayPath(root)))
        return;
    if (const std::optional<BuildingSite> site = BuildingSite::tryClaim(root))
        ignoreFailure(tidyUp(root, *site));
}

Status furnishNothing(const HostPath& root, const Programs& programs, const FurnishOptions& options) {
    Result<BuildingSite> site = BuildingSite::claim(root);
    if (!site)
        return site.error();
    if (Status tidy = tidyUp(root, *site); !tidy)
        return tidy;
    // Another program may have furnished it while this one waited.
    if (standingAt(root) == Standing::practiceMac)
        return installPrograms(root, programs, root / kMarkerName);
    if (Status built = build(site->folder(), programs, options); !built)
        return built;
    return site->moveTo(root);
}

} // namespace

Status furnish(const HostPath& path, const Programs& programs, const FurnishOptions& options) {
    const HostPath root = realPath(path);
    switch (standingAt(root)) {
    case Standing::nothing:
        return furnishNothing(root, programs, options);
    case Standing::practiceMac:
        tidyUpWhatIsLeft(root);
        return installPrograms(root, programs, root / kMarkerName);
    case Standing::somethingElse:
        break;
    }
    return somethingElseError(path);
}

Status furnishAnew(const HostPath& path, const Programs& programs, const FurnishOptions& options) {
    const HostPath root = realPath(path);
    const HostPath putAway = putAwayPath(root);
    if (standingAt(root) == Standing::somethingElse)
        return somethingElseError(path);
    Result<BuildingSite> site = BuildingSite::claim(root);
    if (!site)
        return site.error();
    if (Status tidy = tidyUp(root, *site); !tidy)
        return tidy;
    if (standingAt(root) != Standing::practiceMac)
        return Error{"There is no practice Mac in " + path.string() + "."};
    if (Status built = build(site->folder(), programs, options); !built)
        return built;

    if (Status away = renameHost(root, putAway); !away)
        return away;
    if (Status moved = site->moveTo(root); !moved) {
        ignoreFailure(renameHost(putAway, root));
        return moved;
    }
    // What cannot be removed now goes at the next call.
    ignoreFailure(removeHostTree(putAway));
    return Done{};
}

bool isPracticeMac(const HostPath& root) {
    return standingAt(root) == Standing::practiceMac;
}

HostPath defaultRoot() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return HostPath(data.toStdString()) / "Tavrik/PracticeMac";
}

} // namespace tavrik::practice
