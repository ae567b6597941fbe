#pragma once

#include "platform/Path.h"
#include "platform/PosixFileManager.h"
#include "platform/Tools.h"
#include "support/FileTree.h"
#include "support/TemporaryFolder.h"

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace tavrik::test {

/// The real program on a practice Mac of its own, furnished by the first call.
class RunningCompanion {
public:
    RunningCompanion();
    ~RunningCompanion();

    ToolResult run(const std::vector<std::string>& arguments) const;

    /// The same for a command that answers with JSON alone on standard output.
    QJsonArray json(const std::vector<std::string>& arguments) const;
    QJsonObject object(const std::vector<std::string>& arguments) const;

    /// Runs it and ends it with SIGKILL when the time has come, unless it was quicker. True when it was killed.
    bool runAndKill(const std::vector<std::string>& arguments, std::chrono::microseconds after) const;

    /// The volume's folder.
    HostPath root() const;

    /// A file of this test's own outside the volume.
    HostPath file(const std::string& name, ByteView content) const;

    /// The same for a picture of one colour, in the format of the name's ending.
    HostPath picture(const std::string& name, const QColor& colour) const;

    /// Where the host keeps a file of the volume.
    HostPath hostPath(const QJsonValue& macPath) const;

    /// The identifier of an application that can be restyled.
    std::string plainApp() const;

    /// The identifier of the first application for which the test holds.
    std::string appWhere(const std::function<bool(const QJsonObject&)>& test) const;

    /// What Python's own reader makes of a property list of the volume: JSON, or its complaint.
    std::string readByPython(const MacPath& propertyList) const;

    /// What a person could lose: both stores, the user's library, the wrapper folder and every application.
    FileTree valuables() const;

    /// Processes of the volume that are alive.
    int livingProcesses() const;

private:
    QJsonDocument document(const std::vector<std::string>& arguments) const;

    TemporaryFolder m_folder;
    std::string m_earlierDataHome;
};

} // namespace tavrik::test
