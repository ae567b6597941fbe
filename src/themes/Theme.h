#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Result.h"

#include <string>
#include <string_view>

namespace tavrik {

class Random;

/// A named set of icons, one for each application. Its record is the theme's "Info.plist".
struct Theme {
    std::string themeID; ///< 16 of a-z and 0-9; also the name of the theme's folder
    std::string name;    ///< as shown, trimmed
    Date createdDate;

    bool operator==(const Theme&) const = default;
};

inline constexpr std::size_t kLongestThemeName = 50;          ///< user-perceived characters
inline constexpr std::size_t kLargestThemeRecord = 64u << 10; ///< bytes; what is larger is none of ours

/// The name without the white space around it.
std::string trimmedThemeName(std::string_view name);

/// Whether a trimmed name may be a theme's: not empty, not too long, valid UTF-8, without control characters
/// and without / \ : * ? " < > |, and neither beginning nor ending with a full stop.
bool isValidThemeName(std::string_view trimmed);

/// Whether a text is 16 characters of the alphabet.
bool isThemeID(std::string_view text);

/// 16 characters, each drawn uniformly.
std::string drawThemeID(Random& random);

/// The record as a binary property list, and back. Reading takes XML too, trims the name, and refuses what is
/// no record or too large for one, an id that is none, and a name that is not valid.
Result<Bytes> encodeTheme(const Theme& theme);
Result<Theme> decodeTheme(ByteView record);

} // namespace tavrik
