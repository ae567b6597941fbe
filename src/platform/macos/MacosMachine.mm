#include "platform/macos/MacosMachine.h"

#include "platform/FileManager.h"
#include "platform/PropertyList.h"
#include "platform/macos/CFOwned.h"
#include "platform/macos/FoundationText.h"

#import <IOKit/IOKitLib.h>

namespace tavrik::macos {

namespace {

/// The same file under two names. A system that tells older programs another version does so under the second
/// alone.
const MacPath kVersionFiles[] = {MacPath("/System/Library/CoreServices/.SystemVersionPlatform.plist"),
                                 MacPath("/System/Library/CoreServices/SystemVersion.plist")};
constexpr std::size_t kLargestVersionFile = 1u << 20; // bytes

std::optional<SystemVersion> versionIn(const FileManager& files, const MacPath& file) {
    const auto content = files.read(file, kLargestVersionFile);
    if (!content)
        return std::nullopt;
    const auto list = plist::parse(*content);
    const auto* const text = list ? list->find<std::string>("ProductVersion") : nullptr;
    return text ? std::optional(systemVersionOf(*text)) : std::nullopt;
}

} // namespace

std::optional<std::string> MacosMachine::serialNumber() const {
    @autoreleasepool {
        constexpr mach_port_t kDefaultPort = MACH_PORT_NULL;
        const io_service_t platform =
            IOServiceGetMatchingService(kDefaultPort, IOServiceMatching("IOPlatformExpertDevice"));
        if (platform == IO_OBJECT_NULL)
            return std::nullopt;
        id const value = CFBridgingRelease(
            IORegistryEntryCreateCFProperty(platform, CFSTR("IOPlatformSerialNumber"), kCFAllocatorDefault, 0));
        IOObjectRelease(platform);
        const std::string number = [value isKindOfClass:NSString.class] ? toString(value) : std::string();
        return number.empty() ? std::nullopt : std::optional(number);
    }
}

SystemVersion MacosMachine::systemVersion() const {
    for (const MacPath& file : kVersionFiles) {
        if (const auto version = versionIn(m_files, file))
            return *version;
    }
    @autoreleasepool {
        const NSOperatingSystemVersion told = NSProcessInfo.processInfo.operatingSystemVersion;
        return {static_cast<int>(told.majorVersion), static_cast<int>(told.minorVersion),
                static_cast<int>(told.patchVersion)};
    }
}

} // namespace tavrik::macos
