#include "practice/furnish/MachineFiles.h"

#include "platform/practice/Layout.h"
#include "practice/furnish/BundleBuilder.h"
#include "practice/furnish/SampleApps.h"

#include <utility>

namespace tavrik::practice {

namespace {

constexpr const char* kSerialNumber = "TVQ7K42MX9\n";

constexpr const char* kPublicFolders[] = {
    "/Applications/Utilities",
    "/Library",
    "/System/Applications/Utilities",
    "/Users/Shared",
    "/Volumes",
    "/private/etc",
    "/private/tmp",
    "/private/var/db",
    "/opt",
    "/bin",
    "/usr/bin",
};

constexpr const char* kHomeFolders[] = {
    "Applications",   "Desktop",      "Documents",
    "Downloads",      "Library",      "Library/Application Support",
    "Library/Caches", "Library/Logs", "Library/Preferences",
    "Movies",         "Music",        "Pictures",
    "Public",
};

void writeFolders(TreeWriter& tree) {
    for (const char* folder : kPublicFolders)
        tree.folder(MacPath(folder));
    for (const auto& [link, target] :
         {std::pair{"/var", "private/var"}, {"/tmp", "private/tmp"}, {"/etc", "private/etc"}})
        tree.link(MacPath(link), target);
    tree.folder(kHome, 0750);
    for (const char* folder : kHomeFolders)
        tree.folder(kHome / folder, 0700);
    // The user's own corner of the temporary area: "T" for temporary files, "C" for caches, "0" for the rest.
    const MacPath corner = MacPath("/private" + std::string(kTemporaryFolder)).parent();
    for (const char* part : {"0", "C", "T"})
        tree.folder(corner / part, 0700);
}

void writeSystemVersion(TreeWriter& tree) {
    tree.propertyList(kSystemVersionFile,
                      plist::Dictionary{{"BuildID", "6E0C3E0A-52F7-11EF-9C5A-3B1D0E9E6C11"},
                                        {"ProductBuildVersion", "23G93"},
                                        {"ProductCopyright", "1983-2024"},
                                        {"ProductName", "macOS"},
                                        {"ProductUserVisibleVersion", "14.6.1"},
                                        {"ProductVersion", "14.6.1"},
                                        {"iOSSupportVersion", "17.6"}},
                      plist::Format::xml);
}

void writeDockBundle(TreeWriter& tree) {
    const MacPath bundle = kDockProgram.parent().parent().parent();
    BundleDescription dock;
    dock.name = dock.executable = kDockProgram.name();
    dock.identifier = "com.apple.dock";
    dock.version = "1.8";
    writeBundleInfo(tree, bundle, dock);
    tree.folder(kDockProgram.parent());
}

void writeState(TreeWriter& tree) {
    tree.folder(kProcessFolder, 0700);
    plist::Array running;
    for (const char* identifier : sampleRunningApps())
        running.push_back(plist::Dictionary{{"bundleID", identifier}, {"name", sampleApp(identifier).name}});
    tree.propertyList(kRunningApplications, running, plist::Format::xml);
    tree.file(kSerialNumberFile, bytesOf(kSerialNumber));
}

} // namespace

void writeMachineFiles(TreeWriter& tree) {
    writeFolders(tree);
    writeSystemVersion(tree);
    writeDockBundle(tree);
    writeState(tree);
}

} // namespace tavrik::practice
