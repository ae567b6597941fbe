#include "platform/macos/MacosLocalNotifications.h"

#include "platform/macos/FoundationText.h"

#if __has_include(<UserNotifications/UserNotifications.h>)
#import <UserNotifications/UserNotifications.h>
#endif

namespace tavrik::macos {

namespace {

#if __has_include(<UserNotifications/UserNotifications.h>)

void deliver(NSString* title, NSString* text) {
    UNUserNotificationCenter* const centre = UNUserNotificationCenter.currentNotificationCenter;
    [centre requestAuthorizationWithOptions:UNAuthorizationOptionAlert
                          completionHandler:^(BOOL isGranted, NSError*) {
                            if (!isGranted)
                                return;
                            UNMutableNotificationContent* const content =
                                [[UNMutableNotificationContent alloc] init];
                            content.title = title;
                            content.body = text;
                            UNNotificationRequest* const request =
                                [UNNotificationRequest requestWithIdentifier:NSUUID.UUID.UUIDString
                                                                     content:content
                                                                     trigger:nil];
                            [centre addNotificationRequest:request withCompletionHandler:nil];
                          }];
}

#else

// Without the newer interface's headers there is the older one, which every system up to now still answers.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"

void deliver(NSString* title, NSString* text) {
    NSUserNotification* const message = [[NSUserNotification alloc] init];
    message.title = title;
    message.informativeText = text;
    [NSUserNotificationCenter.defaultUserNotificationCenter deliverNotification:message];
}

#pragma clang diagnostic pop

#endif

bool runsFromBundle() {
    NSBundle* const bundle = NSBundle.mainBundle;
    return bundle.bundleIdentifier && [bundle.bundlePath.pathExtension isEqualToString:@"app"];
}

} // namespace

void MacosLocalNotifications::show(const LocalNotification& notification) {
    @autoreleasepool {
        NSString* const title = toNSString(notification.title);
        NSString* const text = toNSString(notification.text);
        if (!title || !text || !runsFromBundle())
            return;
        @try {
            deliver(title, text);
        } @catch (NSException*) {
            // The centre raises one for a process that it cannot place. A message is not worth a crash.
        }
    }
}

} // namespace tavrik::macos
