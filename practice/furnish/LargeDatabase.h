#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

namespace tavrik::practice {

enum class TitleStyle {
    plain,  ///< "Atlas 000017"
    styled, ///< the same in a styled alphabet of four bytes a letter
};

/// Writes a Launchpad database of so many applications, for measuring: every row leads to one of the bundles of
/// a furnished volume and has an identifier of its own, and each page holds 35. Replaces the file.
Status writeLargeDatabase(const HostPath& root, const HostPath& file, int rows, TitleStyle style);

} // namespace tavrik::practice
