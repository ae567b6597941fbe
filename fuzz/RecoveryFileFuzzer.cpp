#include "changes/RecoveryFile.h"
#include "changes/StagedChangesCoding.h"
#include "fonts/FontReplacer.h"
#include "icons/IconCache.h"
#include "icons/IconStore.h"
#include "model/SettingsManager.h"
#include "platform/Mac.h"
#include "platform/PathComponent.h"
#include "platform/practice/PracticeMac.h"

#include <algorithm>
#include <cstdlib>

using namespace tavrik;

namespace {

/// A Mac without a disk: decoding must not need one.
struct Diskless {
    practice::PracticeMac practice{HostPath("/dev/null/none")};
    SettingsManager settings{practice.mac()};
    IconCache cache{practice.mac().files};
    IconStore store{practice.mac().files, settings, cache};
    FontReplacer fonts;
};

void require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

/// Whatever is taken from a file names nothing outside the own folders, is written again as it was taken, and
/// is then beyond reproach.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Diskless mac;
    const auto root = RecoveryFile::parse(Bytes(data, data + size));
    if (!root)
        return 0;
    std::vector<std::string> remarks;
    const StagedChanges staged = decodeStagedChanges(*root, mac.store, mac.fonts, remarks);
    for (const auto& [bundleID, change] : staged.pendingChanges) {
        require(isSafePathComponent(bundleID));
        require(std::ranges::all_of(change.iconPaths,
                                    [&](const MacPath& path) { return mac.store.ownsPath(path, bundleID); }));
        require(!change.selectedIndex || *change.selectedIndex >= 0);
    }
    for (const ThemeIconHide& hide : staged.pendingThemeIconHides)
        require(isSafePathComponent(hide.themeID) && isSafePathComponent(hide.iconFileName));

    const auto encoded = encodeStagedChanges(staged, Date{1});
    require(bool(plist::serialize(encoded, plist::Format::xml)));
    remarks.clear();
    require(decodeStagedChanges(encoded, mac.store, mac.fonts, remarks) == staged);
    require(remarks.empty());
    return 0;
}
