#pragma once

#include <string>

namespace tavrik {

/// Something that is not as it should be.
struct HealthFinding {
    enum class Kind {
        launchpadDatabase,  ///< missing, damaged, or of an unknown form
        dockPreferences,    ///< missing or unreadable
        settings,           ///< unreadable
        stagedChanges,      ///< the file of what is staged cannot be read
        triggerKey,         ///< the database's triggers are switched off
        wrapperMissing,     ///< swapped in, and gone from the disk
        wrapperLinks,       ///< lead nowhere, or not to the application: it was moved, or its bundle changed
        wrapperIcon,        ///< lost its custom icon
        wrapperUnknown,     ///< a bundle in the wrapper folder that belongs to no swap
        wrapperOrphaned,    ///< its original is gone
        rows,               ///< original and wrapper do not stand as they were swapped
        tile,               ///< leads to a wrapper that is gone, or past one that is there
        label,              ///< of a tile: not in the style in effect
        title,              ///< of an application or a folder: likewise
        unfinishedSwap,     ///< a creation or removal was stopped half-way
        unfinishedTitles,   ///< a change of style was
        unfinishedApply,    ///< an apply was
        unfinishedRestore,  ///< a restore was; the files of before stand beside the live ones
        leftover,           ///< a temporary or plain copy, or a half-made file
        orphanedIcons,      ///< of applications that are not installed
        selectedIcon,       ///< a number of no icon
        applicationUpdated, ///< updated or installed anew since it was wrapped; the wrapper follows it
        nullFlags,          ///< a row that Launchpad's own statement skips, so that it is not listed
        backup,             ///< cannot be opened
        layout,             ///< unlike the last backup
        folderRights,       ///< of the support folder: others may read it, or it is a link
    };

    enum class Remedy {
        notNeeded, ///< nothing is wrong, but it is worth knowing
        none,      ///< nothing can be done from here: the advice says what the person can do
        repair,    ///< the repair mends it
    };

    Kind kind{};
    Remedy remedy = Remedy::none;
    std::string subject;  ///< a bundle identifier, a path, a row: what a repair needs to find it again
    std::string sentence; ///< what is wrong, for the person who reads it
    std::string advice;   ///< what the repair would do, or what the person can do, in a sentence

    bool operator==(const HealthFinding&) const = default;
};

/// In a word, as above.
std::string nameOf(HealthFinding::Kind kind);
std::string nameOf(HealthFinding::Remedy remedy);

/// Whether they tell of the same thing, at two moments.
bool isSame(const HealthFinding& one, const HealthFinding& other);

/// What the findings of its kind stand below: "Restyled applications".
std::string headingOf(const HealthFinding& finding);

} // namespace tavrik
