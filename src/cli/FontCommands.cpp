#include "cli/FontCommands.h"

#include "cli/Companion.h"
#include "cli/Json.h"
#include "cli/NearestNames.h"
#include "cli/Staged.h"
#include "cli/Table.h"

namespace tavrik {

namespace {

constexpr const char* kWhatNext =
    "Nothing is applied yet: \"tavrikctl status\" tells all that is staged, \"tavrikctl discard\" drops it.";

std::string unknownFont(const FontReplacer& fonts, const std::string& typed) {
    std::vector<NearName> names;
    for (const FontReplacer::FontMap& font : fonts.allFontMaps()) {
        // "bold fraktur" is near to "Mathematical Bold Fraktur" by all but its family.
        const std::size_t family = font.name.find(' ') + 1;
        names.push_back({std::min(nameDistance(typed, font.name),
                                  nameDistance(typed, std::string_view(font.name).substr(family))),
                         "\"" + font.name + "\""});
    }
    std::string hint = hintOf(std::move(names), typed);
    if (hint.empty())
        hint = " \"tavrikctl font list\" shows them all.";
    return "There is no style \"" + typed + "\"; names are taken exactly." + hint;
}

/// Stages and tells whether the next call will find it.
template<typename Stage>
ExitCode stage(Companion& companion, Stage&& work) {
    if (const ExitCode taken = takeUpStaged(companion); taken != ExitCode::done)
        return taken;
    companion.onMain([&] { work(companion.managers().pendingChanges); });
    return confirmStaged(companion);
}

} // namespace

ExitCode FontListCommand::run(Companion& companion) {
    const FontReplacer fonts; // needs no Mac
    if (json) {
        companion.say(jsonText(toJson(fonts, preview)));
        return ExitCode::done;
    }
    Table table({"Name", "Preview", "Capitals", "Digits"});
    for (const FontReplacer::FontMap& font : fonts.allFontMaps()) {
        table.add({font.name, fonts.convert(preview.empty() ? font.name : preview, font.name),
                   fonts.isMultiCaseFont(font.name) ? "kept" : "not kept", font.digits ? "styled" : "plain"});
    }
    companion.say(table.text());
    return ExitCode::done;
}

ExitCode FontSetCommand::run(Companion& companion) {
    if (const FontReplacer fonts; !fonts.hasFont(name))
        return companion.fail(unknownFont(fonts, name));
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    const ExitCode staged =
        stage(companion, [&](PendingChangesManager& pending) { pending.setPendingFont(name); });
    if (staged == ExitCode::done)
        companion.say("Names are to be written in " +
                      companion.managers().fonts.fontReplacer().convert(name, name) + ". " + kWhatNext);
    return staged;
}

ExitCode FontResetCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    const ExitCode staged =
        stage(companion, [](PendingChangesManager& pending) { pending.setPendingReset(true); });
    if (staged == ExitCode::done)
        companion.say(std::string("Names are to be plain text again. ") + kWhatNext);
    return staged;
}

ExitCode FontShowCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::looking); opened != ExitCode::done)
        return opened;
    const auto staged = lookAtStaged(companion);
    if (!staged)
        return companion.fail(staged.error().description);
    const FontReplacer& fonts = companion.managers().fonts.fontReplacer();
    if (const auto font = companion.managers().settings.getCurrentFontState())
        companion.say("In effect since " + isoText(font->appliedDate) + ": " + font->fontName + ", " +
                      fonts.convert(font->fontName, font->fontName) + ".");
    else
        companion.say("Names are in plain text.");
    if (staged->changes.pendingFont)
        companion.say("Staged: " + *staged->changes.pendingFont + ", " +
                      fonts.convert(*staged->changes.pendingFont, *staged->changes.pendingFont) + ".");
    if (staged->changes.pendingReset)
        companion.say("Staged: plain text again.");
    return ExitCode::done;
}

} // namespace tavrik
