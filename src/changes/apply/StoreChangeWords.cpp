#include "changes/apply/StoreChangeWords.h"

#include "platform/Path.h"
#include "platform/PathRules.h"

namespace tavrik {

namespace {

using Kind = StoreChange::Kind;

std::string bundleText(const std::string& path) {
    if (path.empty())
        return "nothing";
    return isWrapperPath(MacPath(path)) ? "its wrapper" : path;
}

std::string iconText(const std::string& path) {
    const MacPath icon(path);
    return icon.name() + (isPendingIconPath(icon) ? " (staged)" : "");
}

std::string iconNumberText(const std::string& number) {
    return number.empty() ? "its own" : "icon " + number;
}

std::string arrow(const std::string& from, const std::string& to) {
    return from + " -> " + to;
}

/// The name says nothing new where it is the title.
std::string titleText(const StoreChange& change, const std::string& name) {
    const bool isTold = name == change.from || name == change.to;
    return (isTold ? "" : name + ": ") + arrow(change.from, change.to);
}

/// Of something that is made, or that goes.
std::string thing(const StoreChange& change, const char* made, const char* gone) {
    return change.to.empty() ? change.from + gone : change.to + made;
}

} // namespace

std::string headingOf(Kind kind) {
    switch (kind) {
    case Kind::iconFile:
        return "Icons moved or deleted";
    case Kind::selectedIcon:
        return "Icons in use";
    case Kind::wrapper:
        return "Wrappers";
    case Kind::strayRow:
        return "Rows of wrappers that hold no place in Launchpad";
    case Kind::shown:
        return "Shown in Launchpad";
    case Kind::place:
        return "Places in Launchpad";
    case Kind::title:
        return "Titles in Launchpad";
    case Kind::folderTitle:
        return "Titles of folders";
    case Kind::tile:
        return "Tiles of the Dock";
    case Kind::tileLabel:
        return "Labels in the Dock";
    case Kind::hiddenThemeIcon:
        return "Hidden icons of themes";
    case Kind::themeIcon:
        return "Icons of themes";
    case Kind::theme:
        return "Themes";
    }
    return {};
}

std::string inWords(const StoreChange& change, const std::string& name) {
    switch (change.kind) {
    case Kind::iconFile:
        return name + ": " +
               (change.to.empty() ? iconText(change.from) + " is deleted"
                                  : arrow(iconText(change.from), iconText(change.to)));
    case Kind::selectedIcon:
        return name + ": " + arrow(iconNumberText(change.from), iconNumberText(change.to));
    case Kind::wrapper:
        return thing(change, " is made", " is removed");
    case Kind::strayRow:
        return name + (change.to.empty() ? ": one goes" : ": one is left");
    case Kind::shown:
    case Kind::tile:
        return name + ": " + arrow(bundleText(change.from), bundleText(change.to));
    case Kind::place:
        return name + ": " +
               arrow(change.from.empty() ? "nowhere" : change.from, change.to.empty() ? "nowhere" : change.to);
    case Kind::title:
    case Kind::tileLabel:
        return titleText(change, name);
    case Kind::folderTitle:
        return arrow(change.from, change.to);
    case Kind::hiddenThemeIcon:
    case Kind::themeIcon:
        return name + ": " +
               thing(change, "", change.kind == Kind::themeIcon ? " is deleted" : " is shown again");
    case Kind::theme:
        return name + " is deleted";
    }
    return {};
}

} // namespace tavrik
