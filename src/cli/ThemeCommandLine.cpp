#include "cli/CommandLine.h"
#include "cli/ThemeCommands.h"
#include "cli/ThemeFileCommands.h"
#include "cli/ThemeIconCommands.h"

namespace tavrik {

namespace {

void addTheme(CLI::App& command, std::string& theme) {
    command.add_option("THEME", theme, "The theme's name or id")->required();
}

} // namespace

void CommandLine::declareThemes() {
    CLI::App& theme = *m_parser.add_subcommand("theme", "Sets of icons for many applications");
    theme.require_subcommand(1);
    CLI::App* command = nullptr;
    ThemeListCommand& list = add<ThemeListCommand>(theme, "list", "List the themes", command);
    addJson(*command, list.json);

    ThemeShowCommand& show = add<ThemeShowCommand>(theme, "show", "List a theme's icons", command);
    addTheme(*command, show.theme);
    addJson(*command, show.json);

    ThemeCoverageCommand& coverage = add<ThemeCoverageCommand>(
        theme, "coverage", "Tell which applications a theme has an icon for, and which not", command);
    addTheme(*command, coverage.theme);
    addJson(*command, coverage.json);

    ThemeCreateCommand& create = add<ThemeCreateCommand>(theme, "create", "Make a theme", command);
    command->add_option("NAME", create.name, "At most 50 characters")->required();
    command->add_flag("--with-active-icons", create.withActiveIcons, "With copies of the icons in use");

    ThemeRenameCommand& rename = add<ThemeRenameCommand>(theme, "rename", "Give a theme another name", command);
    addTheme(*command, rename.theme);
    command->add_option("NAME", rename.newName, "The new name")->required();

    ThemeApplyCommand& apply =
        add<ThemeApplyCommand>(theme, "apply", "Choose a theme's icons for all applications, staged", command);
    addTheme(*command, apply.theme);

    ThemeDeleteCommand& remove = add<ThemeDeleteCommand>(theme, "delete", "Delete a theme, staged", command);
    addTheme(*command, remove.theme);

    declareThemeIcons(theme);
    declareThemeFiles(theme);
}

void CommandLine::declareThemeIcons(CLI::App& theme) {
    constexpr const char* kIdentifier = "The application's bundle identifier";
    CLI::App* command = nullptr;
    ThemeIconAddCommand& more =
        add<ThemeIconAddCommand>(theme, "add-icon", "Put a picture into a theme, for an application", command);
    addTheme(*command, more.theme);
    command->add_option("BUNDLE-ID", more.bundleID, kIdentifier)->required();
    command->add_option("IMAGE", more.picture, "A picture file")->required();

    using Kind = ThemeIconCommand::Kind;
    for (const auto& [name, description, kind] :
         {std::tuple{"remove-icon", "Delete an icon of a theme, staged", Kind::remove},
          std::tuple{"hide", "Keep an icon of a theme from being applied, staged", Kind::hide},
          std::tuple{"unhide", "Take that back", Kind::unhide}}) {
        ThemeIconCommand& icon = add<ThemeIconCommand>(theme, name, description, command, kind);
        addTheme(*command, icon.theme);
        command->add_option("BUNDLE-ID", icon.bundleID, kIdentifier)->required();
    }
}

void CommandLine::declareThemeFiles(CLI::App& theme) {
    CLI::App* command = nullptr;
    ThemeExportCommand& exported = add<ThemeExportCommand>(theme, "export", "Write a theme to a file", command);
    addTheme(*command, exported.theme);
    command->add_option("FILE", exported.file, "NAME.tavriktheme in this folder unless given");
    command->add_flag("--force", exported.force, "Replace a file that is there");

    ThemeImportCommand& imported =
        add<ThemeImportCommand>(theme, "import", "Take in a theme from a file", command);
    command->add_option("FILE", imported.file, "A theme file")->required();

    ThemeImportFolderCommand& folder = add<ThemeImportFolderCommand>(
        theme, "import-folder", "Make a theme of pictures that are named after applications", command);
    command->add_option("FOLDER", folder.folder, "A folder of pictures, an icon set's for one")->required();
    command->add_option("--name", folder.name, "The theme's name; the folder's unless given");
    command->add_flag("--accept-doubtful", folder.acceptsDoubtful, "Take guesses too");
    addJson(*command, folder.json);
}

} // namespace tavrik
