#include "platform/macos/MacosWorkspace.h"

#include "platform/macos/FoundationText.h"
#include "platform/macos/PictureConversion.h"

#import <AppKit/AppKit.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <functional>

namespace tavrik::macos {

namespace {

constexpr int kLargestSide = 1024;          // pixels
constexpr const char* kIconFile = "Icon\r"; // in a folder with an icon of its own

int sideOf(NSImage* icon) {
    NSInteger side = 0;
    for (NSImageRep* representation in icon.representations)
        side = std::max({side, representation.pixelsWide, representation.pixelsHigh});
    // Drawings have no size of their own.
    return side <= 0 ? kLargestSide : static_cast<int>(std::min<NSInteger>(side, kLargestSide));
}

QImage toQImage(NSImage* icon) {
    const int side = sideOf(icon);
    return drawn(QSize(side, side), [&](CGContextRef context) {
        [NSGraphicsContext saveGraphicsState];
        NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context flipped:NO];
        [icon drawInRect:NSMakeRect(0, 0, side, side)
                fromRect:NSZeroRect
               operation:NSCompositingOperationCopy
                fraction:1];
        [NSGraphicsContext restoreGraphicsState];
    });
}

NSImage* toNSImage(const QImage& picture) {
    const CFOwned<CGImageRef> image = toCGImage(picture);
    return image ? [[NSImage alloc] initWithCGImage:image.get() size:NSZeroSize] : nil;
}

bool exists(const MacPath& path) {
    struct stat status{};
    return ::lstat(path.string().c_str(), &status) == 0;
}

/// Whether the Finder's information on a file or folder says that it has an icon of its own.
bool hasCustomIcon(const MacPath& path) {
    constexpr std::size_t kHighFlags = 8; // of two bytes, the higher one first
    constexpr std::uint8_t kCustomIcon = 0x04;
    std::array<std::uint8_t, 32> information{};
    const ssize_t length =
        ::getxattr(path.string().c_str(), XATTR_FINDERINFO_NAME, information.data(), information.size(), 0, 0);
    return length == static_cast<ssize_t>(information.size()) && (information[kHighFlags] & kCustomIcon) != 0;
}

/// What the system knows of a program stays as it was while the main run loop does not run, as in the
/// companion; so the process itself is asked for.
bool isAlive(NSRunningApplication* application) {
    const pid_t process = application.processIdentifier;
    return process > 0 && (::kill(process, 0) == 0 || errno == EPERM);
}

/// Whether every running instance could be asked, or has ended meanwhile.
bool askInstances(const std::string& bundleID, const std::function<BOOL(NSRunningApplication*)>& ask) {
    @autoreleasepool {
        bool wereAsked = true;
        NSString* const identifier = toNSString(bundleID);
        if (!identifier)
            return wereAsked;
        for (NSRunningApplication* application in
             [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier])
            wereAsked = (ask(application) || !isAlive(application)) && wereAsked;
        return wereAsked;
    }
}

} // namespace

QImage MacosWorkspace::icon(const MacPath& path) const {
    @autoreleasepool {
        NSString* const text = toNSString(path.string());
        return toQImage([NSWorkspace.sharedWorkspace iconForFile:text ? text : @"/"]);
    }
}

bool MacosWorkspace::setIcon(const MacPath& path, const QImage& icon) {
    const std::scoped_lock lock(m_changes);
    @autoreleasepool {
        NSString* const text = toNSString(path.string());
        NSImage* const image = toNSImage(icon);
        return text && image && exists(path) &&
               [NSWorkspace.sharedWorkspace setIcon:image forFile:text options:0] && hasCustomIcon(path);
    }
}

bool MacosWorkspace::clearIcon(const MacPath& path) {
    const std::scoped_lock lock(m_changes);
    @autoreleasepool {
        NSString* const text = toNSString(path.string());
        if (text && (hasCustomIcon(path) || exists(path / kIconFile)))
            [NSWorkspace.sharedWorkspace setIcon:nil forFile:text options:0];
        return !hasCustomIcon(path);
    }
}

std::vector<RunningApplication> MacosWorkspace::runningApplications() const {
    @autoreleasepool {
        std::vector<RunningApplication> running;
        for (NSRunningApplication* application in NSWorkspace.sharedWorkspace.runningApplications) {
            if (application.bundleIdentifier && isAlive(application))
                running.push_back(
                    {toString(application.bundleIdentifier), toString(application.localizedName)});
        }
        return running;
    }
}

bool MacosWorkspace::askToQuit(const std::string& bundleID) {
    return askInstances(bundleID, [](NSRunningApplication* application) { return [application terminate]; });
}

bool MacosWorkspace::forceTerminate(const std::string& bundleID) {
    return askInstances(bundleID,
                        [](NSRunningApplication* application) { return [application forceTerminate]; });
}

} // namespace tavrik::macos
