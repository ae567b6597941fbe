#include "RunningCompanion.h"

#include "platform/ChildProcess.h"
#include "practice/furnish/Furnish.h"

#include <cstdlib>

namespace tavrik::test {

RunningCompanion::RunningCompanion() {
    ::setenv("XDG_DATA_HOME", own.path().string().c_str(), 1);
    const HostPath programs = HostPath(TAVRIKCTL).parent();
    const Status furnished = practice::furnish(
        root, {.tool = programs / "practice-tool", .dock = programs / "practice-dock"}, {.largestIcon = 32});
    EXPECT_TRUE(furnished) << furnished.error().description;
}

ToolResult RunningCompanion::run(const Arguments& arguments, int exitStatus) const {
    const auto result =
        runChild(HostPath(TAVRIKCTL), arguments, {.time = std::chrono::seconds(100), .outputBytes = 32u << 20});
    const ToolResult told = result ? *result : ToolResult{-1, {}, result.error().description};
    EXPECT_EQ(told.exitStatus, exitStatus) << testing::PrintToString(arguments) << "\n"
                                           << told.output << told.errors;
    return told;
}

QJsonDocument RunningCompanion::json(Arguments arguments) const {
    arguments.emplace_back("--json");
    const std::string output = run(arguments).output;
    auto answer = QJsonDocument::fromJson(QByteArray::fromStdString(output));
    EXPECT_FALSE(answer.isNull()) << output;
    return answer;
}

std::string RunningCompanion::file(const std::string& name, ByteView content) const {
    EXPECT_TRUE(PosixFileManager(own.path()).create(MacPath("/" + name), content)) << name;
    return (own.path() / name).string();
}

std::string RunningCompanion::picture(const std::string& name, const QColor& colour) const {
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(colour);
    const std::string file = (own.path() / name).string();
    EXPECT_TRUE(image.save(QString::fromStdString(file))) << file;
    return file;
}

QImage RunningCompanion::pictureAt(const QJsonValue& macPath) const {
    return QImage(QString::fromStdString(root.string()) + macPath.toString());
}

} // namespace tavrik::test
