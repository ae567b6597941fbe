#pragma once

#include <set>
#include <string>

namespace tavrik {

class UserDefaults;

/// Which icons of a theme the user has hidden: file names (bundle identifier + ".png") under the user default
/// "HiddenThemeIcons." followed by the theme's id. Any thread; two changes of one theme must take turns.
class HiddenThemeIcons {
public:
    explicit HiddenThemeIcons(UserDefaults& defaults);

    std::set<std::string> hidden(const std::string& themeID) const;

    /// Both are fine when nothing changes. False, with a log line, when it could not be saved.
    bool hide(const std::string& themeID, const std::string& iconFileName);
    bool unhide(const std::string& themeID, const std::string& iconFileName);

    /// For a theme that is gone.
    bool forget(const std::string& themeID);

    /// Whether a theme's icon is offered for an application.
    bool isOffered(const std::string& themeID, const std::string& bundleID) const;

private:
    UserDefaults& m_defaults;
};

} // namespace tavrik
