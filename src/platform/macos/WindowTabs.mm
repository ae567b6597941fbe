#include "platform/macos/WindowTabs.h"

#import <AppKit/AppKit.h>

namespace tavrik::macos {

void disableAutomaticTabbing() {
    NSWindow.allowsAutomaticWindowTabbing = NO;
}

} // namespace tavrik::macos
