#include "cli/CommandLine.h"

#include "cli/ApplyCommands.h"
#include "cli/BackupCommands.h"
#include "cli/DoctorCommand.h"
#include "cli/FontCommands.h"
#include "cli/IconCommands.h"
#include "cli/ListCommands.h"
#include "cli/RemoveEverythingCommand.h"
#include "cli/StagingCommands.h"
#include "cli/StartCommand.h"
#include "cli/WrapperCommands.h"

#include <algorithm>
#include <map>
#include <vector>

namespace tavrik {

namespace {

constexpr const char* kImageFiles = "PNG, JPEG, TIFF, WebP, GIF, BMP, SVG, ICO or ICNS file";

std::string mustBeIndex(const std::string& index) {
    const bool isNumber = !index.empty() && index.find_first_not_of("0123456789") == std::string::npos;
    return isNumber ? std::string() : "an index is a number, as \"icon list\" shows it";
}

std::string mustBeIndexOrNone(const std::string& index) {
    const std::string wrong = mustBeIndex(index);
    return wrong.empty() || index == IconIndexCommand::kNone
               ? std::string()
               : wrong + ", or none for the application's own icon";
}

std::string mustBeCount(const std::string& count) {
    constexpr std::size_t kMostDigits = 9;
    const bool isNumber = !count.empty() && count.size() <= kMostDigits &&
                          count.find_first_not_of("0123456789") == std::string::npos;
    return isNumber && count.find_first_not_of('0') != std::string::npos
               ? std::string()
               : "the number of backups to keep is 1 or more";
}

void addBackupName(CLI::App& command, std::string& name) {
    command.add_option("NAME", name, "As \"backup list\" shows it")->required();
}

/// The filters of the window's list.
void addFilter(CLI::App& command, AppsCommand& apps) {
    using Option = FilterOption;
    static const std::map<std::string, Option> kOptions{
        {"all", Option::allItems}, {"themed", Option::themedItems}, {"unthemed", Option::unthemedItems}};
    const std::vector<CLI::Option*> options{
        command
            .add_option("--filter", apps.filter.filterOption, "all, themed: with a custom icon, or unthemed")
            ->transform(CLI::CheckedTransformer(kOptions)),
        command.add_flag("--dock", apps.filter.showOnlyDockItems, "Only those in the Dock"),
        command.add_flag("--non-squircle", apps.filter.showOnlyNonSquircle,
                         "Only those whose own icon has another outline than the standard one"),
        command.add_flag("--unsupported", apps.filter.showUnsupportedApps,
                         "Also those that cannot be restyled"),
        command.add_option("--search", apps.filter.searchText,
                           "Only those with this text in name or identifier")};
    command.parse_complete_callback([&apps, options] {
        apps.isFiltered =
            std::ranges::any_of(options, [](const CLI::Option* option) { return option->count() > 0; });
    });
}

void addBundleID(CLI::App& command, std::string& bundleID) {
    command.add_option("BUNDLE-ID", bundleID, "The application's bundle identifier")->required();
}

} // namespace

void CommandLine::addJson(CLI::App& command, bool& json) {
    command.add_flag_callback(
        "--json",
        [this, &json] {
            json = true;
            m_answersPrograms = true;
        },
        "Print JSON; log lines go to standard error");
}

CommandLine::CommandLine()
    : m_parser("Restyles how applications look in Launchpad and the Dock.", "tavrikctl") {
    m_parser.require_subcommand(1);
    m_parser.add_option("--log", m_logFile, "Append the log lines to this file instead of printing them");
    m_parser.set_version_flag("--version", "tavrikctl " TAVRIK_VERSION);
    declareLists();
    declareIcons();
    declareFonts();
    declareStaging();
    declareApplying();
    declareThemes();
    declareWrappers();
    declareBackups();
    declareMaintenance();
}

void CommandLine::declareLists() {
    CLI::App* command = nullptr;
    AppsCommand& apps =
        add<AppsCommand>(m_parser, "apps",
                         "List the applications that Launchpad shows: all, or with any option but --json those "
                         "that the window's list would show, which leaves out what cannot be restyled",
                         command);
    addJson(*command, apps.json);
    addFilter(*command, apps);

    DockCommand& dock = add<DockCommand>(m_parser, "dock", "List the Dock's application tiles", command);
    addJson(*command, dock.json);
}

void CommandLine::declareIcons() {
    CLI::App* command = nullptr;
    CLI::App& icon = *m_parser.add_subcommand("icon", "Pictures of your own for applications, staged");
    icon.require_subcommand(1);
    IconAddCommand& more = add<IconAddCommand>(icon, "add", "Give an application more icons", command);
    addBundleID(*command, more.bundleID);
    command->add_option("IMAGE", more.pictures, kImageFiles)->required();

    IconListCommand& list = add<IconListCommand>(icon, "list", "List an application's icons", command);
    addBundleID(*command, list.bundleID);
    addJson(*command, list.json);

    using Kind = IconIndexCommand::Kind;
    IconIndexCommand& select =
        add<IconIndexCommand>(icon, "select", "Choose among an application's icons", command, Kind::select);
    addBundleID(*command, select.bundleID);
    command->add_option("INDEX", select.index, "As \"icon list\" shows it, or none for its own icon")
        ->required()
        ->check(mustBeIndexOrNone);

    IconIndexCommand& remove =
        add<IconIndexCommand>(icon, "remove", "Take an icon away", command, Kind::remove);
    addBundleID(*command, remove.bundleID);
    command->add_option("INDEX", remove.index, "As \"icon list\" shows it")->required()->check(mustBeIndex);
}

void CommandLine::declareFonts() {
    CLI::App* command = nullptr;
    CLI::App& font = *m_parser.add_subcommand("font", "Names in styled alphabets, staged");
    font.require_subcommand(1);
    FontListCommand& list = add<FontListCommand>(font, "list", "List the styles", command);
    command->add_option("--preview", list.preview, "The text to show them with");
    addJson(*command, list.json);

    FontSetCommand& set = add<FontSetCommand>(font, "set", "Write all names in a style", command);
    command->add_option("NAME", set.name, "A style's name, as \"font list\" shows it")->required();
    add<FontResetCommand>(font, "reset", "Write all names in plain text again", command);
    add<FontShowCommand>(font, "show", "Tell the style in effect, and the one that is staged", command);
}

void CommandLine::declareStaging() {
    CLI::App* command = nullptr;
    StatusCommand& status =
        add<StatusCommand>(m_parser, "status", "Tell what is staged and not applied", command);
    addJson(*command, status.json);
    add<DiscardCommand>(m_parser, "discard", "Drop all that is staged", command);
    add<RecoverCommand>(m_parser, "recover", "Mend what is staged after a crash, and tell it", command);
}

void CommandLine::declareApplying() {
    CLI::App* command = nullptr;
    PlanCommand& plan = add<PlanCommand>(m_parser, "plan", "Tell what an apply would change", command);
    addJson(*command, plan.json);
    ApplyCommand& apply =
        add<ApplyCommand>(m_parser, "apply", "Bring what is staged into Launchpad and the Dock", command);
    command->add_flag("--close-running-apps", apply.closeRunningApps,
                      "Close applications that must be closed without asking");
    add<RefreshCommand>(m_parser, "refresh", "Write what is applied again, and restart the Dock", command);
}

void CommandLine::declareWrappers() {
    CLI::App* command = nullptr;
    CLI::App& wrapper =
        *m_parser.add_subcommand("wrapper", "Give applications a look of their own, and take it back");
    wrapper.require_subcommand(1);
    using Kind = WrapperIconCommand::Kind;
    for (const auto& [name, description, kind] :
         {std::tuple{"create", "Restyle an application with a picture", Kind::create},
          std::tuple{"update", "Give a restyled application another picture", Kind::update}}) {
        WrapperIconCommand& icon = add<WrapperIconCommand>(wrapper, name, description, command, kind);
        addBundleID(*command, icon.bundleID);
        command->add_option("IMAGE", icon.picture, kImageFiles)->required();
    }
    WrapperRemoveCommand& remove =
        add<WrapperRemoveCommand>(wrapper, "remove", "Give an application its own look back", command);
    addBundleID(*command, remove.bundleID);
    WrapperListCommand& list =
        add<WrapperListCommand>(wrapper, "list", "List the restyled applications", command);
    addJson(*command, list.json);
}

void CommandLine::declareBackups() {
    CLI::App* command = nullptr;
    CLI::App& backup = *m_parser.add_subcommand("backup", "Snapshots of Launchpad and the Dock");
    backup.require_subcommand(1);
    add<BackupCreateCommand>(backup, "create", "Take a snapshot now", command);
    BackupListCommand& list = add<BackupListCommand>(backup, "list", "List the backups", command);
    addJson(*command, list.json);

    BackupShowCommand& show =
        add<BackupShowCommand>(backup, "show", "Tell what a backup holds, and what has changed since", command);
    addBackupName(*command, show.name);
    addJson(*command, show.json);

    BackupVerifyCommand& verify =
        add<BackupVerifyCommand>(backup, "verify", "Check that backups could be restored", command);
    CLI::Option* named = command->add_option("NAME", verify.name, "As \"backup list\" shows it; without, all");
    command->add_flag_callback("--all", [] {}, "Check all of them")->excludes(named);
    command->parse_complete_callback([&verify, named] { verify.isNamed = named->count() > 0; });

    BackupRestoreCommand& restore =
        add<BackupRestoreCommand>(backup, "restore", "Put Launchpad and the Dock back", command);
    addBackupName(*command, restore.name);
    BackupKeepCommand& keep = add<BackupKeepCommand>(
        backup, "keep", "Set how many dated backups are kept; the Original State always is", command);
    command->add_option("N", keep.count, "1 or more")->required()->check(mustBeCount);
}

void CommandLine::declareMaintenance() {
    CLI::App* command = nullptr;
    add<StartCommand>(m_parser, "start", "Run the checks of the program's start, with their questions",
                      command);

    auto& doctor = add<DoctorCommand>(m_parser, "doctor", "Say what is not as it should be", command);
    addJson(*command, doctor.json);
    command->add_flag("--repair", doctor.repair, "Mend what can be mended, and say what was done");

    auto& removal = add<RemoveEverythingCommand>(
        m_parser, "remove-everything", "Take all that was restyled back, and the wrappers away", command);
    command->add_flag("--yes", removal.yes, "Do not ask");
    command->add_flag("--delete-support-folder", removal.deleteSupportFolder,
                      "Also delete icons, themes, backups and settings, for good, without asking");
}

} // namespace tavrik
