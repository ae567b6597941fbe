#include "cli/practice/PracticeCommands.h"

#include "app/practice/PracticeHost.h"
#include "cli/Companion.h"
#include "platform/HostFile.h"
#include "platform/Png.h"
#include "platform/practice/PracticeMac.h"
#include "practice/furnish/Furnish.h"
#include "practice/picture/Picture.h"

#include <cerrno>

namespace tavrik {

ExitCode PictureCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::looking); opened != ExitCode::done)
        return opened;
    const practice::PictureOptions options{
        .scale = static_cast<double>(scale),
        .appearance = dark ? practice::Appearance::dark : practice::Appearance::light,
    };
    const Result<QImage> drawn = practice::drawPicture(practice::defaultRoot(), options);
    if (!drawn)
        return companion.fail("The picture cannot be drawn: " + drawn.error().description);
    const Result<Bytes> coded = png::encode(*drawn);
    if (!coded)
        return companion.fail("The picture could not be coded: " + coded.error().description);
    if (Status written = writeHostFile(HostPath(file), *coded); !written)
        return companion.fail(written.error().description);
    return ExitCode::done;
}

ExitCode PracticeWhereCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::looking); opened != ExitCode::done)
        return opened;
    companion.say(practice::defaultRoot().string());
    return ExitCode::done;
}

ExitCode PracticeResetCommand::run(Companion& companion) {
    const HostPath root = practice::defaultRoot();
    std::optional<SupportFolderLock> lock; // the old Mac's, to the end
    if (practice::isPracticeMac(root)) {
        practice::PracticeMac old(root);
        auto taken = SupportFolderLock::take(old.mac(), supportFolder(old.mac().volume), Companion::kName);
        if (taken)
            lock.emplace(std::move(*taken));
        else if (taken.error().code == EWOULDBLOCK)
            return companion.refuse(taken.error().description);
    }
    if (Status reset = resetPracticeMac(root); !reset)
        return companion.fail(reset.error().description);
    companion.say("A new practice Mac stands in " + root.string() + ".");
    return ExitCode::done;
}

} // namespace tavrik
