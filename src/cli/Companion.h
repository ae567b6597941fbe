#pragma once

#include "app/MacHost.h"
#include "app/Managers.h"
#include "cli/Command.h"
#include "platform/Path.h"

#include <memory>
#include <optional>
#include <string_view>

namespace tavrik {

/// What the commands work with: the Mac, opened when the first command asks for it, the managers over it, and
/// the two outputs.
class Companion {
public:
    explicit Companion(HostPath practiceRoot);

    const HostPath& practiceRoot() const { return m_practiceRoot; }

    /// Opens the Mac and builds the managers. False, with a sentence printed, when that fails. To be called
    /// before the next two.
    [[nodiscard]] bool open();

    Managers& managers() { return *m_managers; }

    MacHost& host() { return *m_host; }

    /// A line on standard output: what the person asked for.
    void say(std::string_view line) const;

    /// A sentence on standard error, and the code to end with.
    ExitCode fail(std::string_view sentence) const;
    ExitCode refuse(std::string_view sentence) const;

private:
    HostPath m_practiceRoot;
    std::unique_ptr<MacHost> m_host;
    std::optional<Managers> m_managers;
};

} // namespace tavrik
