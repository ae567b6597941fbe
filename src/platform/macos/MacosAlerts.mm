#include "platform/macos/MacosAlerts.h"

#include "platform/MainQueue.h"
#include "platform/macos/FoundationText.h"

#include <QGuiApplication>

#import <AppKit/AppKit.h>

namespace tavrik::macos {

namespace {

bool showsWindows() {
    return qGuiApp != nullptr && QGuiApplication::platformName() == QLatin1String("cocoa");
}

NSString* orEmpty(const std::string& text) {
    NSString* const shown = toNSString(text);
    return shown ? shown : @"";
}

NSAlertStyle toNative(AlertStyle style) {
    switch (style) {
    case AlertStyle::informational:
        return NSAlertStyleInformational;
    case AlertStyle::critical:
        return NSAlertStyleCritical;
    case AlertStyle::warning:
        break;
    }
    return NSAlertStyleWarning;
}

NSAlert* toNative(const Alert& alert) {
    NSAlert* const native = [[NSAlert alloc] init];
    native.messageText = orEmpty(alert.title);
    native.informativeText = orEmpty(alert.text);
    native.alertStyle = toNative(alert.style);
    for (const std::string& button : alert.buttons)
        [native addButtonWithTitle:orEmpty(button)];
    return native;
}

/// A sheet waits until the one before it on its window is gone, which a question in the middle of another never
/// would see.
NSWindow* windowForSheet() {
    NSWindow* const window = NSApp.keyWindow ? NSApp.keyWindow : NSApp.mainWindow;
    const bool isFree = window.isVisible && !window.isSheet && !window.attachedSheet && !NSApp.modalWindow;
    return isFree ? window : nil;
}

NSModalResponse run(NSAlert* alert) {
    NSWindow* const window = windowForSheet();
    if (!window)
        return [alert runModal];
    [alert beginSheetModalForWindow:window
                  completionHandler:^(NSModalResponse response) {
                    [NSApp stopModalWithCode:response];
                  }];
    return [NSApp runModalForWindow:alert.window];
}

std::size_t askNatively(const Alert& alert) {
    @autoreleasepool {
        const NSModalResponse response = run(toNative(alert));
        const NSModalResponse button = response - NSAlertFirstButtonReturn;
        if (button < 0 || button >= static_cast<NSModalResponse>(alert.buttons.size()))
            return alert.buttonWithoutAnswer();
        return static_cast<std::size_t>(button);
    }
}

} // namespace

std::size_t MacosAlerts::ask(const Alert& alert) {
    if (!showsWindows())
        return m_elsewhere.ask(alert);
    std::size_t answer = alert.buttonWithoutAnswer(); // stays where the program ends before it is asked
    MainQueue::sync([&] { answer = askNatively(alert); });
    return answer;
}

} // namespace tavrik::macos
