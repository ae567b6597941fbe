#include "cli/CommandLine.h"

#include "cli/ListCommands.h"
#include "cli/PracticeCommands.h"
#include "cli/WrapperCommands.h"

namespace tavrik {

namespace {

std::string mustBePng(const std::string& file) {
    return file.size() > 4 && file.ends_with(".png") ? std::string()
                                                     : "the picture is a PNG file: its name ends in .png";
}

} // namespace

template<typename T, typename... Arguments>
T& CommandLine::add(CLI::App& parent, const char* name, const char* description, CLI::App*& declared,
                    Arguments... arguments) {
    auto command = std::make_unique<T>(arguments...);
    T& added = *command;
    m_commands.push_back(std::move(command));
    declared = parent.add_subcommand(name, description);
    declared->callback([this, &added] { m_chosen = &added; });
    return added;
}

void CommandLine::addJson(CLI::App& command, bool& json) {
    command.add_flag_callback(
        "--json",
        [this, &json] {
            json = true;
            m_json = true;
        },
        "Print JSON; log lines go to standard error");
}

CommandLine::CommandLine()
    : m_parser("Restyles how applications look in Launchpad and the Dock. Without a Mac it works on the "
               "practice Mac.",
               "tavrikctl") {
    m_parser.require_subcommand(1);
    m_parser.set_version_flag("--version", "tavrikctl " TAVRIK_VERSION);
    CLI::App* command = nullptr;

    AppsCommand& apps =
        add<AppsCommand>(m_parser, "apps", "List the applications that Launchpad shows", command);
    addJson(*command, apps.json);

    DockCommand& dock = add<DockCommand>(m_parser, "dock", "List the Dock's application tiles", command);
    addJson(*command, dock.json);

    CLI::App& wrapper =
        *m_parser.add_subcommand("wrapper", "Give applications a look of their own, and take it back");
    wrapper.require_subcommand(1);
    using Kind = WrapperIconCommand::Kind;
    for (const auto& [name, description, kind] :
         {std::tuple{"create", "Restyle an application with a picture", Kind::create},
          std::tuple{"update", "Give a restyled application another picture", Kind::update}}) {
        WrapperIconCommand& icon = add<WrapperIconCommand>(wrapper, name, description, command, kind);
        command->add_option("BUNDLE-ID", icon.bundleID, "The application's bundle identifier")->required();
        command->add_option("IMAGE", icon.picture, "PNG, JPEG, TIFF, WebP, GIF, BMP, SVG, ICO or ICNS file")
            ->required();
    }
    WrapperRemoveCommand& remove =
        add<WrapperRemoveCommand>(wrapper, "remove", "Give an application its own look back", command);
    command->add_option("BUNDLE-ID", remove.bundleID, "The application's bundle identifier")->required();
    WrapperListCommand& list =
        add<WrapperListCommand>(wrapper, "list", "List the restyled applications", command);
    addJson(*command, list.json);

    PictureCommand& picture =
        add<PictureCommand>(m_parser, "picture", "Draw Launchpad and the Dock of the practice Mac", command);
    command->add_option("FILE", picture.file, "The PNG file to write")->required()->check(mustBePng);
    command->add_option("--scale", picture.scale, "Pixels per point")->check(CLI::IsMember({1, 2}));
    command->add_flag("--dark", picture.dark, "In the dark appearance");

    CLI::App& practice = *m_parser.add_subcommand("practice", "The practice Mac itself");
    practice.require_subcommand(1);
    add<PracticeWhereCommand>(practice, "where", "Print the folder of its volume", command);
    add<PracticeResetCommand>(practice, "reset", "Put it away and furnish a new one", command);
}

} // namespace tavrik
