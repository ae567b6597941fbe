#include "cli/IconCommands.h"

#include "changes/IconRow.h"
#include "cli/AppLookup.h"
#include "cli/Companion.h"
#include "cli/Json.h"
#include "cli/Staged.h"
#include "cli/Table.h"
#include "cli/Words.h"
#include "icons/IconFiles.h"
#include "platform/HostFile.h"
#include "platform/PathRules.h"

#include <QCoreApplication>

#include <algorithm>
#include <charconv>
#include <future>
#include <memory>

namespace tavrik {

namespace {

/// Beyond this many pictures a line for each is more than anybody reads.
constexpr std::size_t kMostLines = 10;

/// Makes a picture of the host the application's next icon and stages it. Waits for the icon queue, whose
/// answer comes on the main thread.
Status takeIn(Companion& companion, const HostPath& picture, const ApplicationInfo& app) {
    Result<Bytes> content = readHostFile(picture);
    if (!content)
        return content.error();
    Managers& managers = companion.managers();
    auto answered = std::make_shared<std::promise<Status>>();
    auto answer = answered->get_future();
    managers.apps.processPicture(
        std::move(*content), picture.name(), app.bundleID, app.name, QCoreApplication::instance(),
        [&, answered = std::move(answered)](const Result<MacPath>& icon) {
            if (!icon)
                answered->set_value(icon.error());
            else if (!managers.pendingChanges.addIcon(app.bundleID, *icon))
                answered->set_value(Error{picture.string() + " could not be staged; the lines above say why."});
            else
                answered->set_value(Done{});
        });
    return answer.get();
}

/// "3", "0 to 3".
std::string rangeText(std::size_t first, std::size_t end) {
    const std::string last = std::to_string(end - 1);
    return end - first == 1 ? last : std::to_string(first) + " to " + last;
}

void tellAdded(Companion& companion, const ApplicationInfo& app, const std::vector<HostPath>& added) {
    const std::size_t count = companion.onMain(
        [&] { return companion.managers().pendingChanges.iconRow(app.bundleID).displayPaths().size(); });
    const std::size_t first = count - std::min(count, added.size());
    if (added.size() <= kMostLines) {
        for (std::size_t i = 0; i < added.size(); ++i)
            companion.say(added[i].name() + " is icon " + std::to_string(first + i) + " of " + app.name + ".");
    } else {
        companion.say(counted(added.size(), "picture") + " are icons " + rangeText(first, count) + " of " +
                      app.name + ", in the order given.");
    }
    companion.say("The last one is chosen; nothing is applied yet. \"tavrikctl icon select " + app.bundleID +
                  " INDEX\" chooses another, \"tavrikctl status\" tells all that is staged, and "
                  "\"tavrikctl discard\" drops it.");
}

/// The name to speak of an application by; an error for one that neither Launchpad nor the row knows.
Result<std::string> nameFor(Companion& companion, const std::string& bundleID, const IconRow& row) {
    const auto app = findApp(companion.managers().apps.loadApplications(), bundleID);
    if (app)
        return app->name;
    // It may have been taken off the Mac, or the database be locked; its icons are there all the same.
    if (row != IconRow())
        return bundleID;
    return app.error();
}

/// Nothing for digits of a number that no row can have.
std::optional<std::size_t> numberIn(const std::string& digits) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() ? std::optional(number) : std::nullopt;
}

std::string noSuchIcon(const std::string& name, const std::string& bundleID, const std::string& index,
                       std::size_t count) {
    if (count == 0)
        return name + " has no icons to choose from yet. \"tavrikctl icon add " + bundleID +
               " IMAGE...\" adds some.";
    return name + " has " + counted(count, "icon") + " (" + rangeText(0, count) + ") and none with the index " +
           index + ". \"tavrikctl icon list " + bundleID + "\" shows them.";
}

} // namespace

ExitCode IconAddCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    const auto found = companion.findRestylable(bundleID);
    const auto* app = std::get_if<ApplicationInfo>(&found);
    if (!app)
        return std::get<ExitCode>(found);
    if (const ExitCode taken = takeUpStaged(companion); taken != ExitCode::done)
        return taken;

    std::vector<HostPath> added;
    for (const std::string& file : pictures) {
        const HostPath picture(file);
        if (const Status taken = takeIn(companion, picture, *app))
            added.push_back(picture);
        else
            companion.complain(taken.error().description);
    }
    if (!added.empty()) {
        if (const ExitCode saved = confirmStaged(companion); saved != ExitCode::done)
            return saved;
        tellAdded(companion, *app, added);
    }
    if (added.size() == pictures.size())
        return ExitCode::done;
    companion.say(counted(pictures.size() - added.size(), "picture") + " of " +
                  std::to_string(pictures.size()) + " could not be taken; standard error says why.");
    return ExitCode::failed;
}

ExitCode IconListCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::looking); opened != ExitCode::done)
        return opened;
    const auto staged = lookAtStaged(companion);
    if (!staged)
        return companion.fail(staged.error().description);
    const IconRow row = companion.onMain(
        [&] { return companion.managers().pendingChanges.iconRow(bundleID, staged->changes); });
    const Result<std::string> name = nameFor(companion, bundleID, row);
    if (!name)
        return companion.fail(name.error().description);
    if (json)
        companion.say(jsonText(toJson(bundleID, row)));
    else
        print(companion, *name, row);
    return ExitCode::done;
}

void IconListCommand::print(const Companion& companion, const std::string& name, const IconRow& row) const {
    const auto icons = row.displayPaths();
    const auto chosen = static_cast<std::size_t>(row.selectedIconIndex); // -1 is beyond every place
    if (icons.empty()) {
        companion.say(name + " has no icons of yours. \"tavrikctl icon add " + bundleID +
                      " IMAGE...\" adds some.");
    } else {
        Table table({"Index", "State", "Choice", "File"});
        for (std::size_t i = 0; i < icons.size(); ++i) {
            table.add({std::to_string(i), isPendingIconPath(icons[i]) ? "pending" : "permanent",
                       i == chosen ? "chosen" : "", icons[i].string()});
        }
        companion.say(table.text());
    }
    if (row.selectedIconIndex < 0)
        companion.say(name + "'s own icon is chosen.");
    else if (chosen >= icons.size())
        companion.say("An icon of a theme is chosen.");
    for (const int index : row.hiddenPermanentIndices)
        companion.say(iconFileName(index) + " is deleted when the changes are applied.");
}

ExitCode IconIndexCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    if (const ExitCode taken = takeUpStaged(companion); taken != ExitCode::done)
        return taken;
    PendingChangesManager& pending = companion.managers().pendingChanges;
    const IconRow row = companion.onMain([&] { return pending.iconRow(bundleID); });
    const Result<std::string> name = nameFor(companion, bundleID, row);
    if (!name)
        return companion.fail(name.error().description);

    const auto icons = row.displayPaths();
    std::optional<int> chosen;
    if (index != kNone) {
        const auto number = numberIn(index);
        if (!number || *number >= icons.size())
            return companion.fail(noSuchIcon(*name, bundleID, index, icons.size()));
        chosen = static_cast<int>(*number);
    }
    const bool staged = companion.onMain([&] {
        return m_kind == Kind::remove ? pending.removeIcon(bundleID, *chosen)
                                      : pending.selectIcon(bundleID, chosen);
    });
    if (!staged)
        return companion.fail("This could not be staged; the lines above say why.");
    if (const ExitCode saved = confirmStaged(companion); saved != ExitCode::done)
        return saved;

    const MacPath icon = chosen ? icons[static_cast<std::size_t>(*chosen)] : MacPath();
    if (m_kind == Kind::select)
        companion.say(*name + " is to show " + (chosen ? icon.name() : "its own icon") + ".");
    else
        companion.say(icon.name() + (isPendingIconPath(icon) ? " was deleted; it was not applied."
                                                             : " is deleted when the changes are applied."));
    companion.say("\"tavrikctl status\" tells all that is staged.");
    return ExitCode::done;
}

} // namespace tavrik
