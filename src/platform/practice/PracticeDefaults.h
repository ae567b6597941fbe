#pragma once

#include "platform/UserDefaults.h"

#include <mutex>

namespace tavrik {
class FileManager;
}

namespace tavrik::practice {

/// User defaults in the program's preferences file, a binary property list. Read anew each time, so that the
/// window and the companion see each other's changes; two processes that set at the same moment keep one of the
/// two changes. Setting fails when the file is there but cannot be read, so that nothing in it is lost.
class PracticeDefaults : public UserDefaults {
public:
    explicit PracticeDefaults(FileManager& files);

    std::optional<plist::Value> value(std::string_view key) const override;
    Status set(std::string_view key, std::optional<plist::Value> value) override;
    Status removeAll() override;
    void flushDockDomain() override;

private:
    Result<plist::Dictionary> read() const;

    FileManager& m_files;
    mutable std::mutex m_mutex;
};

} // namespace tavrik::practice
