#include "RunningCompanion.h"

#include "platform/ChildProcess.h"
#include "platform/practice/Layout.h"

#include <QImage>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <thread>

extern char** environ;

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
        runChild(HostPath(TAVRIKCTL), arguments, {.time = std::chrono::seconds(100), .outputBytes = 32u << 20});
    if (!result) {
        ADD_FAILURE() << result.error().description;
        return {.exitStatus = -1, .output = {}, .errors = {}};
    }
    return *result;
}

QJsonArray RunningCompanion::json(const std::vector<std::string>& arguments) const {
    const QJsonDocument answer = document(arguments);
    EXPECT_TRUE(answer.isArray());
    return answer.array();
}

QJsonObject RunningCompanion::object(const std::vector<std::string>& arguments) const {
    const QJsonDocument answer = document(arguments);
    EXPECT_TRUE(answer.isObject());
    return answer.object();
}

QJsonDocument RunningCompanion::document(const std::vector<std::string>& arguments) const {
    const ToolResult result = run(arguments);
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    QJsonParseError error;
    auto answer = QJsonDocument::fromJson(QByteArray::fromStdString(result.output), &error);
    EXPECT_FALSE(answer.isNull()) << error.errorString().toStdString() << "\n" << result.output;
    return answer;
}

bool RunningCompanion::runAndKill(const std::vector<std::string>& arguments,
                                  std::chrono::microseconds after) const {
    std::string program = TAVRIKCTL;
    std::vector<std::string> texts = arguments;
    std::vector<char*> pointers{program.data()};
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    for (const int output : {STDOUT_FILENO, STDERR_FILENO})
        ::posix_spawn_file_actions_addopen(&actions, output, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int failed = ::posix_spawn(&child, TAVRIKCTL, &actions, nullptr, pointers.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (failed != 0) {
        ADD_FAILURE() << std::strerror(failed);
        return false;
    }
    std::this_thread::sleep_for(after);
    ::kill(child, SIGKILL);
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFSIGNALED(status);
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

HostPath RunningCompanion::picture(const std::string& name, const QColor& colour) const {
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(colour);
    const HostPath file = m_folder.path() / name;
    EXPECT_TRUE(image.save(QString::fromStdString(file.string()))) << file.string();
    return file;
}

HostPath RunningCompanion::hostPath(const QJsonValue& macPath) const {
    return root() / macPath.toString().toStdString();
}

std::string RunningCompanion::readByPython(const MacPath& propertyList) const {
    constexpr const char* kScript = "import json, plistlib, sys\n"
                                    "print(json.dumps(plistlib.load(open(sys.argv[1], 'rb')), default=str))";
    const HostPath file = root() / propertyList.string();
    const auto result = runChild(HostPath("/usr/bin/python3"), {"-c", kScript, file.string()}, {});
    return result ? result->output + result->errors : result.error().description;
}

std::string RunningCompanion::plainApp() const {
    return appWhere([](const QJsonObject& app) {
        return !app[QLatin1String("isIOSApp")].toBool() && !app[QLatin1String("isUnsupportedApp")].toBool();
    });
}

std::string RunningCompanion::appWhere(const std::function<bool(const QJsonObject&)>& test) const {
    for (const auto& app : json({"apps", "--json"})) {
        if (test(app.toObject()))
            return app.toObject()[QLatin1String("bundleID")].toString().toStdString();
    }
    ADD_FAILURE() << "there is no such application";
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
