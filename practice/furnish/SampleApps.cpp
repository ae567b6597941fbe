#include "practice/furnish/SampleApps.h"

#include "platform/practice/Layout.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string_view>

namespace tavrik::practice {

namespace {

constexpr auto kSquircle = Outline::squircle;
constexpr auto kRound = Outline::round;
constexpr auto kSquare = Outline::square;
constexpr auto kFree = Outline::free;

constexpr auto kApps = Place::applications;
constexpr auto kUtilities = Place::utilities;
constexpr auto kSystem = Place::systemApplications;
constexpr auto kSystemUtilities = Place::systemUtilities;
constexpr auto kHomeApps = Place::homeApplications;

constexpr const char* kProductivity = "public.app-category.productivity";
constexpr const char* kUtility = "public.app-category.utilities";
constexpr const char* kGraphics = "public.app-category.graphics-design";
constexpr const char* kDeveloper = "public.app-category.developer-tools";
constexpr const char* kMusic = "public.app-category.music";
constexpr const char* kPhoto = "public.app-category.photography";
constexpr const char* kTravel = "public.app-category.travel";
constexpr const char* kGames = "public.app-category.board-games";
constexpr const char* kReference = "public.app-category.reference";
constexpr const char* kSocial = "public.app-category.social-networking";
constexpr const char* kHealth = "public.app-category.healthcare-fitness";
constexpr const char* kFood = "public.app-category.food-and-drink";
constexpr const char* kWeather = "public.app-category.weather";
constexpr const char* kEducation = "public.app-category.education";

constexpr Date kSystemInstalled{739'756'800}; // 2024-06-11
constexpr double kDay = 86'400;

// clang-format off
constexpr SampleApp kTable[] = {
    // The first page: mostly what comes with the system.
    {"Safari", "com.apple.Safari", kApps, 1, "", kProductivity, "17.6", kSquircle, 0x5AC8FA, 0x0A60FF, "compass"},
    {"Mail", "com.apple.mail", kSystem, 1, "", kProductivity, "16.0", kSquircle, 0x1D9BF6, 0x1565D8, "envelope"},
    {"Calendar", "com.apple.iCal", kSystem, 1, "", kProductivity, "14.0", kSquircle, 0xFF6B5E, 0xD92B2B, "calendar"},
    {"Notes", "com.apple.Notes", kSystem, 1, "", kProductivity, "4.11", kSquircle, 0xFFE27A, 0xF5B301, "note"},
    {"Reminders", "com.apple.reminders", kSystem, 1, "", kProductivity, "7.0", kSquircle, 0xF8F8FA, 0xC9CCD6, "checklist"},
    {"Maps", "com.apple.Maps", kSystem, 1, "", kTravel, "3.0", kSquircle, 0x8FE388, 0x2F9E57, "map-pin"},
    {"Photos", "com.apple.Photos", kSystem, 1, "", kPhoto, "9.0", kSquircle, 0xFF9FB2, 0x8A5CF6, "flower"},
    {"Music", "com.apple.Music", kSystem, 1, "", kMusic, "1.4.6", kSquircle, 0xFB5C74, 0xFA233B, "music"},
    {"Clock", "com.apple.clock", kSystem, 1, "", kUtility, "1.1", kRound, 0x3A3A3C, 0x0B0B0D, "clock"},
    {"Calculator", "com.apple.calculator", kSystem, 1, "", kUtility, "10.16", kSquircle, 0x6E6E73, 0x2C2C2E, "calculator", BundleIcon::namedWithExtension},
    {"Dictionary", "com.apple.Dictionary", kSystem, 1, "", kReference, "2.3.0", kSquircle, 0xC75146, 0x7B1E1E, "book", BundleIcon::named, RowKind::noFlags},
    {"Chess", "com.apple.Chess", kSystem, 1, "", kGames, "3.18", kFree, 0xB08D57, 0x5D4420, "chess-knight"},
    {"TextEdit", "com.apple.TextEdit", kSystem, 1, "", kProductivity, "1.19", kSquare, 0xFFFFFF, 0xD5DAE3, "newspaper"},
    {"Image Playground", "com.apple.GenerativePlaygroundApp", kSystem, 1, "", kGraphics, "1.0", kSquircle, 0xFF8AD1, 0x6A5BFF, "sparkle"},
    {"Terminal", "com.apple.Terminal", kSystemUtilities, 1, "Utilities", kUtility, "2.14", kSquircle, 0x48484A, 0x1C1C1E, "terminal"},
    {"Activity Monitor", "com.apple.ActivityMonitor", kSystemUtilities, 1, "Utilities", kUtility, "10.14", kSquircle, 0x3DDC84, 0x0E7C45, "chart"},
    {"Disk Utility", "com.apple.DiskUtility", kSystemUtilities, 1, "Utilities", kUtility, "22.6", kSquircle, 0xDADDE3, 0x8E949F, "drive"},
    {"Feedback Assistant", "com.apple.appleseed.FeedbackAssistant", kSystemUtilities, 1, "Utilities", kUtility, "5.4", kSquircle, 0xB07CFF, 0x6A32D1, "chat"},
    {"Tips", "com.apple.tips", kSystem, 1, "Utilities", kReference, "14.6", kSquircle, 0xFFD426, 0xFF9F0A, "question", BundleIcon::named, RowKind::hidden},
    {"System Settings", "com.apple.systempreferences", kSystem, 1, "", kUtility, "15.0", kSquircle, 0xB4B8C0, 0x6D727C, "gear"},
    {"Launchpad", "com.apple.launchpad.launcher", kSystem, 1, "", kUtility, "1.0", kSquircle, 0xA9B4C2, 0x5F6C7B, "rocket"},
    {"Mission Control", "com.apple.exposelauncher", kSystem, 1, "", kUtility, "1.2", kSquircle, 0x4B3FA8, 0x1C1650, "layers", BundleIcon::named, RowKind::hidden},
    {"Xcode", "com.apple.dt.Xcode", kApps, 1, "", kDeveloper, "15.4", kSquircle, 0x54C1FB, 0x1B6FE0, "wrench"},

    // The second page: everyday applications of other makers, and a folder.
    {"Atlas", "org.example.atlas", kApps, 2, "", kTravel, "4.2.1", kSquircle, 0x4CC9A7, 0x13685A, "globe"},
    {"Beacon", "com.example.lumen.beacon", kApps, 2, "", kSocial, "11.0", kSquircle, 0xFFC15A, 0xE2592B, "antenna", BundleIcon::namedWithExtension},
    {"Cinder", "org.example.cinder", kApps, 2, "", kMusic, "2.8", kRound, 0xF2545B, 0x6D1A36, "flame"},
    {"Ember Notes", "com.example.lumen.ember-notes", kApps, 2, "", kProductivity, "7.3.2", kSquircle, 0xFFAF87, 0xD1495B, "note"},
    {"Ferrule", "org.example.ferrule", kApps, 2, "Studio", kGraphics, "5.1", kSquircle, 0x7B61FF, 0x2E1A8C, "paint-brush"},
    {"Driftwood", "net.example.driftwood", kApps, 2, "Studio", kPhoto, "3.0.4", kFree, 0xC9A27A, 0x6B4A2B, "tree"},
    {"Umbra", "net.example.umbra", kApps, 2, "Studio", kPhoto, "1.9", kRound, 0x2B2D42, 0x0B0C14, "umbrella"},
    {"Palimpsest", "org.example.palimpsest", kApps, 2, "Studio", kGraphics, "0.9.7", kSquare, 0xF3E9D2, 0xC6A664, "palette", BundleIcon::namedButMissing},
    {"Gantry", "com.example.harbour.gantry", kApps, 2, "", kDeveloper, "2024.2", kSquircle, 0xF9C80E, 0xF86624, "network"},
    {"Inkwell", "org.example.inkwell", kApps, 2, "", kProductivity, "6.4", kSquircle, 0x3F6FB5, 0x142850, "pencil"},
    {"Juniper", "com.example.juniper", kApps, 2, "", kHealth, "1.12.3", kRound, 0x95D5B2, 0x2D6A4F, "leaf"},
    {"Kettle", "org.example.kettle", kApps, 2, "", kFood, "3.3", kSquircle, 0xFF8C69, 0xA63A2B, "cup", BundleIcon::named, RowKind::paddedIdentifier},
    {"Lantern", "net.example.lantern", kApps, 2, "", kUtility, "8.0", kFree, 0xFFE8A3, 0xF2A104, "sun"},
    {"Meridian", "com.example.meridian", kApps, 2, "", kWeather, "5.0.1", kSquircle, 0x89CFF0, 0x2A6FB0, "weather"},
    {"Nimbus Drive", "com.example.nimbus.drive", kApps, 2, "", kUtility, "21.7", kSquircle, 0xE8F1FA, 0x9DB8D6, "cloud"},
    {"Orrery", "org.example.orrery", kApps, 2, "", kEducation, "2.2", kRound, 0x3C1874, 0x10002B, "atom"},
    {"Quill & Co", "com.example.quill-and-co", kApps, 2, "", kProductivity, "1.0.9", kSquare, 0x264653, 0x0F1F26, "scales"},
    {"Rookery", "org.example.rookery", kApps, 2, "", kSocial, "9.5", kSquircle, 0x7FDBDA, 0x2B7A8C, "bird"},
    {"Tessera", "net.example.tessera", kApps, 2, "", kGames, "4.0", kSquare, 0xEF476F, 0x7A1C4B, "puzzle"},

    // The third page: the rest, with all that is odd.
    {"Sextant", "org.example.sextant", kApps, 3, "Under Way", kTravel, "1.4", kSquircle, 0xE9C46A, 0x8C6A1A, "map"},
    {"Pocket Tides", "com.example.pocket-tides", kApps, 3, "Under Way", kWeather, "3.1", kSquircle, 0x48CAE4, 0x023E8A, "sailboat", BundleIcon::catalogueOnly, RowKind::plain, true},
    {"Wayfarer", "net.example.wayfarer", kApps, 3, "Under Way", kTravel, "12.0.2", kRound, 0xF4A261, 0x9C4A1A, "mountain"},
    {"Halyard", "net.example.halyard", kUtilities, 3, "", kUtility, "2.6", kSquircle, 0xADB5BD, 0x495057, "anchor"},
    {"Plumb Line", "org.example.plumb-line", kUtilities, 3, "", kUtility, "1.3.1", kFree, 0xD4A373, 0x7F5539, "ruler"},
    {"Velarium", "org.example.velarium", kApps, 3, "", kGraphics, "2.0", kSquircle, 0xFFCAD4, 0xB5838D, "kite", BundleIcon::catalogueOnly},
    {"Wharf", "com.example.harbour.wharf", kApps, 3, "", kDeveloper, "4.31", kSquare, 0x0EA5E9, 0x075985, "database", BundleIcon::none},
    {"Yarrow", "com.example.yarrow", kApps, 3, "", kHealth, "1.1", kRound, 0xFFF3B0, 0xE09F3E, "heart"},
    {"Zugzwang", "org.example.zugzwang", kApps, 3, "", kGames, "6.0", kSquircle, 0x343A40, 0x0D0F12, "crown"},
    {"apricot", "net.example.apricot", kApps, 3, "", kFood, "0.4", kRound, 0xFFB703, 0xFB8500, "fork-knife"},
    {"Éclair Recipes", "com.example.eclair", kApps, 3, "", kFood, "2.1", kSquircle, 0xD6A28C, 0x6F3B2A, "bolt"},
    {"星図", "net.example.seizu", kApps, 3, "", kEducation, "1.2", kRound, 0x1D3557, 0x0A1128, "star"},
    {"Marginalia", "org.example.marginalia", kHomeApps, 3, "", kReference, "0.8", kSquircle, 0xCDB4DB, 0x7B5EA7, "bookmark"},
    {"Samphire", "net.example.samphire", kHomeApps, 3, "", kMusic, "3.7", kFree, 0x80ED99, 0x22577A, "guitar", BundleIcon::namedWithExtension},
    {"Breakwater", "com.example.harbour.breakwater", Place::elsewhere, 3, "", kDeveloper, "1.0", kSquircle, 0x90A4AE, 0x37474F, "shield"},
    {"Tidewater Helper", "net.example.tidewater.helper", kApps, 0, "", kUtility, "1.0", kSquircle, 0x76C7C0, 0x2E6F75, "drop", BundleIcon::named, RowKind::hidden},
};
// clang-format on

constexpr const char* kDockApps[] = {
    "com.apple.launchpad.launcher",
    "com.apple.Safari",
    "com.apple.mail",
    "com.apple.iCal",
    "org.example.atlas",
    "com.example.lumen.beacon",
    "com.example.lumen.ember-notes",
    "net.example.tessera",
    "com.example.harbour.gantry",
    "com.apple.Terminal",
};

constexpr const char* kRecentApps[] = {"net.example.lantern", "com.example.quill-and-co"};

constexpr const char* kRunningApps[] = {"com.apple.Safari", "org.example.atlas",
                                        "com.example.lumen.ember-notes"};

MacPath folderOf(Place place) {
    switch (place) {
    case Place::applications:
        return MacPath("/Applications");
    case Place::utilities:
        return MacPath("/Applications/Utilities");
    case Place::systemApplications:
        return MacPath("/System/Applications");
    case Place::systemUtilities:
        return MacPath("/System/Applications/Utilities");
    case Place::homeApplications:
        return kHome / "Applications";
    case Place::elsewhere:
        return MacPath("/opt/harbour");
    }
    return MacPath("/Applications");
}

QColor colour(std::uint32_t rgb) {
    return QColor::fromRgb(QRgb{0xFF000000u | rgb});
}

} // namespace

std::span<const SampleApp> sampleApps() {
    return kTable;
}

MacPath bundlePath(const SampleApp& app) {
    return folderOf(app.place) / (std::string(app.name) + ".app");
}

IconStyle iconStyle(const SampleApp& app) {
    return {app.outline, colour(app.top), colour(app.bottom), app.glyph};
}

bool isPlatformApp(const SampleApp& app) {
    return std::string_view(app.identifier).starts_with("com.apple.");
}

Date modifiedDate(const SampleApp& app) {
    if (isPlatformApp(app))
        return kSystemInstalled;
    const auto index = static_cast<double>(&app - kTable);
    return {kSystemInstalled.sinceReference - index * 9.4 * kDay + index * 4'111};
}

Date createdDate(const SampleApp& app) {
    return {modifiedDate(app).sinceReference - (isPlatformApp(app) ? 0 : 40 * kDay)};
}

std::span<const char* const> sampleDockApps() {
    return kDockApps;
}

std::span<const char* const> sampleRecentApps() {
    return kRecentApps;
}

std::span<const char* const> sampleRunningApps() {
    return kRunningApps;
}

const SampleApp& sampleApp(const char* identifier) {
    const auto found = std::ranges::find_if(
        kTable, [&](const SampleApp& app) { return std::string_view(app.identifier) == identifier; });
    if (found == std::end(kTable))
        std::abort();
    return *found;
}

} // namespace tavrik::practice
