#pragma once

#include "platform/Date.h"
#include "platform/Path.h"
#include "practice/art/IconArtist.h"

#include <cstdint>
#include <span>

/// The applications of a new practice Mac, as one table: makers and identifiers are invented, but for the
/// platform's own identifiers.
namespace tavrik::practice {

enum class Place {
    applications,
    utilities,
    systemApplications,
    systemUtilities,
    homeApplications,
    elsewhere, ///< outside the standard folders
};

/// How a bundle says where its icon is.
enum class BundleIcon {
    named,              ///< without ".icns"
    namedWithExtension, ///< with ".icns"
    namedButMissing,    ///< names a file that is not there; the icon is in "Icon.icns"
    catalogueOnly,      ///< an asset catalogue and no icon file
    none,
};

/// What is particular about an application's row in Launchpad.
enum class RowKind {
    plain,
    hidden,           ///< bit 128
    noFlags,          ///< flags are NULL
    paddedIdentifier, ///< blanks around the identifier
};

struct SampleApp {
    const char* name; ///< of the bundle's file, and the title in Launchpad
    const char* identifier;
    Place place;
    int page;           ///< of Launchpad, from 1; 0 for the page that is never shown
    const char* folder; ///< of that page; "" for none. Folders and applications stand in the table's order
    const char* category;
    const char* version;
    Outline outline;
    std::uint32_t top; ///< 0xRRGGBB
    std::uint32_t bottom;
    const char* glyph;
    BundleIcon icon = BundleIcon::named;
    RowKind row = RowKind::plain;
    bool isIOSApp = false;
};

std::span<const SampleApp> sampleApps();

/// The folder that the system made, as its flags tell.
inline constexpr const char* kSystemFolderTitle = "Utilities";

MacPath bundlePath(const SampleApp& app);
IconStyle iconStyle(const SampleApp& app);
bool isPlatformApp(const SampleApp& app);

/// When the bundle was last changed, and when it was made. The platform's own all came with the system.
Date modifiedDate(const SampleApp& app);
Date createdDate(const SampleApp& app);

/// The tiles of the Dock, by identifier, in order.
std::span<const char* const> sampleDockApps();
/// The recent applications that the Dock shows.
std::span<const char* const> sampleRecentApps();
/// The applications that are running.
std::span<const char* const> sampleRunningApps();

/// By identifier, which must be in the table.
const SampleApp& sampleApp(const char* identifier);

} // namespace tavrik::practice
