#pragma once

#include "platform/Machine.h"

namespace tavrik {
class FileManager;
}

namespace tavrik::practice {

/// Facts that a practice Mac keeps in two files. Read at each call; a version that cannot be read is 0.0.0.
class PracticeMachine : public Machine {
public:
    explicit PracticeMachine(const FileManager& files);

    std::optional<std::string> serialNumber() const override;
    SystemVersion systemVersion() const override;

private:
    const FileManager& m_files;
};

} // namespace tavrik::practice
