#include "platform/macos/MacosNotifications.h"

#include "platform/macos/FoundationText.h"

namespace tavrik::macos {

void MacosNotifications::post(const std::string& name) {
    @autoreleasepool {
        if (NSString* const text = toNSString(name)) {
            [NSDistributedNotificationCenter.defaultCenter postNotificationName:text
                                                                         object:nil
                                                                       userInfo:nil
                                                             deliverImmediately:YES];
        }
    }
}

} // namespace tavrik::macos
