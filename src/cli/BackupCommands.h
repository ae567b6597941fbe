#pragma once

#include "cli/Command.h"
#include "platform/Result.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tavrik {

struct BackupListItem;

/// "backup create": takes a snapshot now.
class BackupCreateCommand : public Command {
public:
    ExitCode run(Companion& companion) override;
};

/// "backup list": the backups, the newest first.
class BackupListCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    bool json = false;
};

/// "backup show": what a backup holds, and what has changed since. Looks only.
class BackupShowCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string name;
    bool json = false;
};

/// "backup verify": whether a backup, or each of them, could be put back. Looks only.
class BackupVerifyCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string name;
    bool isNamed = false; ///< else all

private:
    Result<std::vector<BackupListItem>> chosen(Companion& companion) const;
};

/// "backup restore": puts a backup in the place of what is there, which goes into a backup of its own.
class BackupRestoreCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::string name;
};

/// "backup keep": how many dated backups the next snapshots leave. Deletes nothing by itself.
class BackupKeepCommand : public Command {
public:
    ExitCode run(Companion& companion) override;

    std::int64_t count = 0; ///< from 1
};

} // namespace tavrik
