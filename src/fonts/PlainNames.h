#pragma once

#include "platform/Path.h"

#include <optional>
#include <string>
#include <string_view>

namespace tavrik {

class FontReplacer;

/// The shown name of a bundle: its file name without ".app".
std::string bundleName(const MacPath& bundle);

/// The plain name of a Dock tile. A wrapper's is its file name, which is the original application's; any
/// other's is its label in plain text. Where the label is written in a style without small letters its capitals
/// are gone: they are taken from the bundle's file name if that is the same name.
std::string plainLabel(const std::string& label, const std::string& url, const FontReplacer& replacer);

/// Whether the title is written in a style that gives a capital and its small letter one shape, so that
/// `plain`, which is the title in plain text, cannot tell them apart.
bool hasLostCapitals(std::string_view title, std::string_view plain, const FontReplacer& replacer);

/// The plain name of an application in Launchpad: its bundle's file name. Where the bundle is gone, which is
/// then where it was, its title in plain text, with the capitals of that file name if it is the same name.
std::string plainTitle(const std::string& title, const std::optional<MacPath>& bundle, const MacPath& gone,
                       const FontReplacer& replacer);

/// Whether two names differ in nothing but the case of their letters.
bool isSameIgnoringCase(std::string_view one, std::string_view other);

} // namespace tavrik
