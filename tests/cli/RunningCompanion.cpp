#include "RunningCompanion.h"

#include "platform/ChildProcess.h"
#include "platform/practice/Layout.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>
#include <signal.h>

#include <cstdlib>

namespace tavrik::test {

RunningCompanion::RunningCompanion() {
    if (const char* earlier = std::getenv("XDG_DATA_HOME"))
        m_earlierDataHome = earlier;
    ::setenv("XDG_DATA_HOME", m_folder.path().string().c_str(), 1);
}

RunningCompanion::~RunningCompanion() {
    if (m_earlierDataHome.empty())
        ::unsetenv("XDG_DATA_HOME");
    else
        ::setenv("XDG_DATA_HOME", m_earlierDataHome.c_str(), 1);
}

ToolResult RunningCompanion::run(const std::vector<std::string>& arguments) const {
    const auto result =
        runChild(HostPath(TAVRIKCTL), arguments, {.time = std::chrono::seconds(100), .outputBytes = 8u << 20});
    if (!result) {
        ADD_FAILURE() << result.error().description;
        return {.exitStatus = -1, .output = {}, .errors = {}};
    }
    return *result;
}

QJsonArray RunningCompanion::json(const std::vector<std::string>& arguments) const {
    const ToolResult result = run(arguments);
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(result.output), &error);
    EXPECT_TRUE(document.isArray()) << error.errorString().toStdString() << "\n" << result.output;
    return document.array();
}

HostPath RunningCompanion::root() const {
    return m_folder.path() / "Tavrik/PracticeMac";
}

HostPath RunningCompanion::file(const std::string& name, ByteView content) const {
    PosixFileManager files(m_folder.path());
    const auto created = files.create(MacPath("/" + name), content);
    EXPECT_TRUE(created) << created.error().description;
    return m_folder.path() / name;
}

HostPath RunningCompanion::picture(const std::string& name, const QImage& image) const {
    const HostPath file = m_folder.path() / name;
    EXPECT_TRUE(image.save(QString::fromStdString(file.string()))) << file.string();
    return file;
}

std::string RunningCompanion::plainApp() const {
    for (const auto& entry : json({"apps", "--json"})) {
        const QJsonObject app = entry.toObject();
        if (!app[QLatin1String("isIOSApp")].toBool() && !app[QLatin1String("isUnsupportedApp")].toBool())
            return app[QLatin1String("bundleID")].toString().toStdString();
    }
    ADD_FAILURE() << "no application can be restyled";
    return {};
}

FileTree RunningCompanion::valuables() const {
    FileTree all;
    for (const char* place : {"Applications", "System/Applications", "Users", "private/var/folders", "opt"}) {
        for (auto& [path, entry] : treeOf(root() / place))
            all.emplace(std::string(place) + "/" + path, entry);
    }
    return all;
}

int RunningCompanion::livingProcesses() const {
    const PosixFileManager files(root());
    const auto names = files.list(practice::kProcessFolder);
    int living = 0;
    for (const std::string& name : names ? *names : std::vector<std::string>()) {
        const std::string pid = name.substr(name.rfind('.') + 1);
        if (::kill(static_cast<pid_t>(std::strtol(pid.c_str(), nullptr, 10)), 0) == 0)
            ++living;
    }
    return living;
}

} // namespace tavrik::test
