#pragma once

#include "platform/Mac.h"

#include <memory>

namespace tavrik::macos {

/// The ports over the Mac that the program runs on.
class MacosMac {
public:
    /// `alerts` asks the person where this process shows no windows; it must outlive this.
    explicit MacosMac(Alerts& alerts);
    ~MacosMac();
    MacosMac(const MacosMac&) = delete;
    MacosMac& operator=(const MacosMac&) = delete;

    Mac& mac();

private:
    struct Ports;
    std::unique_ptr<Ports> m_ports;
    std::unique_ptr<Mac> m_mac;
};

} // namespace tavrik::macos
