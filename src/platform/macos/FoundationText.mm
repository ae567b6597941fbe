#include "platform/macos/FoundationText.h"

#include <cerrno>

namespace tavrik::macos {

namespace {

int posixCode(NSError* error) {
    for (NSError* reason = error; reason; reason = reason.userInfo[NSUnderlyingErrorKey]) {
        if ([reason.domain isEqualToString:NSPOSIXErrorDomain])
            return static_cast<int>(reason.code);
    }
    if (![error.domain isEqualToString:NSCocoaErrorDomain])
        return 0;
    switch (error.code) {
    case NSFileNoSuchFileError:
    case NSFileReadNoSuchFileError:
        return ENOENT;
    case NSFileReadNoPermissionError:
    case NSFileWriteNoPermissionError:
        return EACCES;
    default:
        return 0;
    }
}

} // namespace

NSString* toNSString(std::string_view text) {
    return [[NSString alloc] initWithBytes:text.data() length:text.size() encoding:NSUTF8StringEncoding];
}

std::string toString(NSString* text) {
    const char* const bytes = text.UTF8String;
    return bytes ? std::string(bytes) : std::string();
}

NSURL* toNSURL(const MacPath& path) {
    NSString* const text = path.empty() ? nil : toNSString(path.string());
    return text ? [NSURL fileURLWithPath:text] : nil;
}

Error toError(const MacPath& path, NSError* error) {
    return {path.string() + ": " +
                (error ? toString(error.localizedDescription) : std::string("no reason told")),
            posixCode(error)};
}

} // namespace tavrik::macos
