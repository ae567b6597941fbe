#include "cli/WrapperCommands.h"

#include "cli/AppLookup.h"
#include "cli/Companion.h"
#include "icons/ImageIntake.h"
#include "platform/HostFile.h"

namespace tavrik {

namespace {

/// A database that is locked now would cost a creation its wrapper and a removal its place in Launchpad.
constexpr const char* kLocked =
    "The Launchpad database is locked by another program, so nothing was changed. Close that "
    "program, or try again in a moment.";

} // namespace

ExitCode WrapperIconCommand::run(Companion& companion) {
    // The picture comes first: it needs no Mac, and a wrong one must not cost a second.
    const HostPath file(picture);
    const Result<Bytes> content = readHostFile(file);
    if (!content)
        return companion.fail(content.error().description);
    const Result<QImage> read = readPicture(*content, file.name());
    if (!read)
        return companion.fail(read.error().description);
    const std::optional<QImage> square = IconManager::squareIcon(*read);
    if (!square)
        return companion.fail(file.string() +
                              " could not be brought to icon size; there may be too little memory.");

    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    const auto found = companion.findRestylable(bundleID);
    const auto* app = std::get_if<ApplicationInfo>(&found);
    if (!app)
        return std::get<ExitCode>(found);
    Managers& managers = companion.managers();

    if (!managers.launchpadDatabase.isWritable())
        return companion.refuse(kLocked);

    const bool isMapped = managers.wrappers.hasWrapper(bundleID);
    if (m_kind == Kind::update && !isMapped)
        companion.say(app->name + " has no wrapper yet, so one is made.");

    companion.host().startSession();
    const bool done = m_kind == Kind::update ? managers.wrappers.updateWrapperIcon(*app, *square)
                                             : managers.wrappers.createWrapper(*app, *square);
    if (!done) {
        return companion.fail(
            app->name + " was not restyled; the lines above say at which step it failed. Its own bundle was "
                        "not touched, and what had been built was taken away again.");
    }
    companion.say(app->name + (isMapped ? " shows the new picture." : " is restyled.") +
                  " \"tavrikctl picture FILE.png\" draws it; \"tavrikctl wrapper remove " + bundleID +
                  "\" undoes it.");
    return ExitCode::done;
}

ExitCode WrapperRemoveCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    Managers& managers = companion.managers();
    const Result<ApplicationInfo> app = findApp(managers.apps.loadApplications(), bundleID);
    if (!app)
        return companion.fail(app.error().description);
    if (!managers.settings.getMapping(bundleID) && !managers.wrappers.isUnfinished(bundleID))
        return companion.refuse(app->name + " has no wrapper, so there is nothing to remove.");
    if (!managers.launchpadDatabase.isWritable())
        return companion.refuse(kLocked);

    companion.host().startSession();
    if (!managers.wrappers.removeWrapper(*app, RestartDock::yes)) {
        return companion.fail("Not every step of giving " + app->name +
                              " its own look back went well; the lines above say which.");
    }
    companion.say(app->name + " has its own look back.");
    return ExitCode::done;
}

} // namespace tavrik
