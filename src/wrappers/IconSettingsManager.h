#pragma once

#include <string>

namespace tavrik {

struct Mac;

/// Which icons are cut to the standard outline before they are written: `squircleSettings`, per application a
/// table from icon index to a Boolean, kept in the user defaults. Any thread.
class IconSettingsManager {
public:
    explicit IconSettingsManager(Mac& mac);

    /// False when nothing is recorded.
    bool squircleSetting(const std::string& bundleID, int iconIndex) const;
    void setSquircleSetting(const std::string& bundleID, int iconIndex, bool isSquircle);

private:
    Mac& m_mac;
};

} // namespace tavrik
