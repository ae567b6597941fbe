#pragma once

#include "cli/Command.h"

#include <string>
#include <vector>

namespace tavrik {

struct IconRow;

/// "icon add": pictures become an application's next icons, staged, in the order given; the last is chosen.
/// Those that are refused are told one by one and leave nothing behind.
class IconAddCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string bundleID;
    std::vector<std::string> pictures; ///< files of the host
};

/// "icon list": an application's icons as its row would show them now.
class IconListCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string bundleID;
    bool json = false;

private:
    void print(const Companion& companion, const std::string& name, const IconRow& row) const;
};

/// "icon select" and "icon remove": one icon of the row.
class IconIndexCommand : public Command {
public:
    enum class Kind { select, remove };

    /// The index of the application's own icon.
    static constexpr const char* kNone = "none";

    explicit IconIndexCommand(Kind kind) : m_kind(kind) {}

    ExitCode run(Companion& companion) override;

    std::string bundleID;
    std::string index; ///< digits; to select, also `kNone`

private:
    Kind m_kind;
};

} // namespace tavrik
