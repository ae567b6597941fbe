#include "packaging/icon/AppIcon.h"
#include "platform/HostFile.h"

#include <iostream>

/// Writes the program's icon file: app-icon AppIcon.icns
int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "usage: app-icon FILE.icns\n";
        return 2;
    }
    const tavrik::Bytes icon = tavrik::appIcon();
    if (icon.empty()) {
        std::cerr << "app-icon: the icon could not be drawn\n";
        return 1;
    }
    if (const tavrik::Status written = tavrik::writeHostFile(tavrik::HostPath(words[1]), icon); !written) {
        std::cerr << "app-icon: " << written.error().description << '\n';
        return 1;
    }
    return 0;
}
