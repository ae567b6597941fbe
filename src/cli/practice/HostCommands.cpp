#include "cli/HostCommands.h"

#include "cli/CommandLine.h"
#include "cli/practice/PracticeCommands.h"

namespace tavrik {

namespace {

std::string mustBePng(const std::string& file) {
    return file.size() > 4 && file.ends_with(".png") ? std::string()
                                                     : "the picture is a PNG file: its name ends in .png";
}

void declarePicture(CommandLine& line) {
    CLI::App* command = nullptr;
    PictureCommand& picture = line.add<PictureCommand>(
        line.parser(), "picture", "Draw Launchpad and the Dock of the practice Mac", command);
    command->add_option("FILE", picture.file, "The PNG file to write")->required()->check(mustBePng);
    command->add_option("--scale", picture.scale, "Pixels per point")->check(CLI::IsMember({1, 2}));
    command->add_flag("--dark", picture.dark, "In the dark appearance");
}

} // namespace

void declareHostCommands(CommandLine& line) {
    line.parser().description(line.parser().get_description() + " This one works on the practice Mac.");
    declarePicture(line);

    CLI::App* command = nullptr;
    CLI::App& practice = *line.parser().add_subcommand("practice", "The practice Mac itself");
    practice.require_subcommand(1);
    line.add<PracticeWhereCommand>(practice, "where", "Print the folder of its volume", command);
    command->parse_complete_callback([&line] { line.answerPrograms(); });
    line.add<PracticeResetCommand>(practice, "reset", "Put it away and furnish a new one", command);
}

} // namespace tavrik
