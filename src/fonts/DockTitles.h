#pragma once

#include "platform/PropertyList.h"

#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

class DockManager;
class FontReplacer;
struct Mac;

/// The labels of the Dock's tiles, for one change of style. Waits deliberately between what the Dock must take
/// in one after the other; background thread only. Every failure is logged and goes no further.
///
/// The preferences are written over in place, as everywhere: a kill in the middle may cut them, and their
/// one-file backup, renewed before the first write, stands. Preferences that cannot be read are never written
/// over.
class DockTitles {
public:
    DockTitles(Mac& mac, DockManager& dock, const FontReplacer& replacer);

    /// At most three tries.
    void style(const std::string& fontName);
    void reset();

    /// Makes the preferences service and the Dock look at the file again.
    void sync();

private:
    /// What an operation says and wants.
    struct Task {
        std::string_view fontName; ///< none for plain text
        const char* tile;
        const char* unreadable;
        const char* retrying;
        const char* givenUp;
    };

    struct Relabelling;

    void tryRepeatedly(const Task& task);
    [[nodiscard]] bool rewrite(const Task& task);
    [[nodiscard]] bool writeVerified(plist::Value dock, std::string_view fontName);
    std::vector<Relabelling> relabellings(plist::Value& dock, std::string_view fontName) const;
    bool holds(plist::Value& found, const plist::Value& written, std::string_view fontName) const;
    void showToDock();

    Mac& m_mac;
    DockManager& m_dock;
    const FontReplacer& m_replacer;
    bool m_isBackedUp = false;
};

} // namespace tavrik
