#pragma once

#include <string>

namespace tavrik {

struct HealthLook;

enum class RestyledAnew {
    no,      ///< its own look is not wholly back; the log says why
    ownLook, ///< it is, and nothing is staged: no icon is known
    staged,  ///< it is, and the icon that it had is chosen again for the next apply
};

/// For an application whose wrapper, rows or links are not as they should be: gives it its own look back, as
/// far as something is left to give back, and stages the icon that is applied to it, so that the next apply
/// builds everything anew. What is staged for it already stays as it is. Icons are not touched.
///
/// Background thread; seconds. The Dock is not restarted. A kill leaves what a killed removal leaves; the icon
/// is then in its row and must be chosen again by hand.
RestyledAnew restyleAnew(const HealthLook& look, const std::string& bundleID);

} // namespace tavrik
