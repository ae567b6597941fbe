#pragma once

#include "platform/Machine.h"

namespace tavrik {
class FileManager;
}

namespace tavrik::macos {

/// Asks the registry of devices and the system's own files. Blocks for a moment.
class MacosMachine : public Machine {
public:
    explicit MacosMachine(const FileManager& files) : m_files(files) {}

    std::optional<std::string> serialNumber() const override;
    SystemVersion systemVersion() const override;

private:
    const FileManager& m_files;
};

} // namespace tavrik::macos
