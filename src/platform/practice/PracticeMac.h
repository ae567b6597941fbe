#pragma once

#include "platform/Mac.h"
#include "platform/Path.h"

#include <memory>

namespace tavrik::practice {

/// The ports over a practice Mac's volume, a folder of the host that has been furnished. Ports given here are
/// used in the place of the adapter's own and must outlive it.
struct Replacements {
    Clock* clock = nullptr;
    Tools* tools = nullptr;
    Alerts* alerts = nullptr;
    DistributedNotifications* notifications = nullptr;
};

class PracticeMac {
public:
    explicit PracticeMac(HostPath root, const Replacements& replacements = {});
    ~PracticeMac();
    PracticeMac(const PracticeMac&) = delete;
    PracticeMac& operator=(const PracticeMac&) = delete;

    Mac& mac();

    const HostPath& root() const { return m_root; }

private:
    struct Ports;
    HostPath m_root;
    std::unique_ptr<Ports> m_ports;
    std::unique_ptr<Mac> m_mac;
};

} // namespace tavrik::practice
