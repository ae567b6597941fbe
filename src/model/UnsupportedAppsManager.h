#pragma once

#include <set>
#include <string>
#include <string_view>

namespace tavrik {

/// The applications that are listed but never restyled. The list is fixed.
class UnsupportedAppsManager {
public:
    const std::set<std::string, std::less<>>& unsupportedBundleIDs() const { return m_unsupportedBundleIDs; }

    bool contains(std::string_view bundleID) const { return m_unsupportedBundleIDs.contains(bundleID); }

private:
    std::set<std::string, std::less<>> m_unsupportedBundleIDs{
        "com.apple.clock",
        "com.apple.iCal",
        "com.apple.appleseed.FeedbackAssistant",
        "com.apple.dt.Xcode",
        "com.apple.GenerativePlaygroundApp",
    };
};

} // namespace tavrik
