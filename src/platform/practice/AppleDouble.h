#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <cstddef>
#include <string_view>

/// AppleDouble: where the Mac keeps the Finder info, the extended attributes and the resource fork of "name" on
/// a volume that has no room for them, the companion file "._name" beside it. Pure; any thread.
namespace tavrik::practice {

inline constexpr std::size_t kFinderInfoSize = 32; ///< bytes

struct AppleDouble {
    Bytes finderInfo = Bytes(kFinderInfoSize); ///< all zeros: none
    Bytes attributes;                          ///< the block of extended attributes, as it stands
    Bytes resourceFork;                        ///< empty: none

    /// Whether there is nothing in it that a file would be needed for.
    bool isEmpty() const;

    bool operator==(const AppleDouble&) const = default;
};

/// An error when it is no AppleDouble file or cut short. Parts of other kinds, which the Mac writes none of,
/// are left out, and so are extended attributes in another place than the Mac's own.
Result<AppleDouble> decodeAppleDouble(ByteView file);

/// The file as the Mac writes it: in the place of a missing fork stands the one that says that it is blank.
Bytes encodeAppleDouble(const AppleDouble& content);

inline constexpr std::string_view kCompanionPrefix = "._";

/// "/Applications/._Atlas.app" of "/Applications/Atlas.app"; empty for the root and for what is a companion
/// itself.
MacPath companionOf(const MacPath& path);

} // namespace tavrik::practice
