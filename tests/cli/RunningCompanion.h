#pragma once

#include "platform/PosixFileManager.h"
#include "platform/Tools.h"
#include "support/FileTree.h"
#include "support/TemporaryFolder.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

namespace tavrik::test {

inline const std::string kAtlas = "org.example.atlas"; ///< can be restyled
inline const std::string kIOSApp = "com.example.pocket-tides";
inline const MacPath kSupport("/Users/practice/Library/Application Support/com.tavrik.Tavrik");
inline const MacPath kRecoveryFile = kSupport / "PendingChanges/pendingChanges.plist";

using Arguments = std::vector<std::string>;

/// The real program on a practice Mac of its own, whose applications have small icons.
class RunningCompanion : public testing::Test {
protected:
    RunningCompanion();

    /// Expects that exit status.
    ToolResult run(const Arguments& arguments, int exitStatus = 0) const;

    /// The answer with "--json", which is JSON alone.
    QJsonDocument json(Arguments arguments) const;

    /// A file of this test's own outside the volume.
    std::string file(const std::string& name, ByteView content) const;

    /// The same for a picture of one colour, in the format of the name's ending.
    std::string picture(const std::string& name, const QColor& colour) const;

    QImage pictureAt(const QJsonValue& macPath) const;

    const TemporaryFolder own;
    const HostPath root = own.path() / "Tavrik/PracticeMac";
    PosixFileManager volume{root};
};

} // namespace tavrik::test
