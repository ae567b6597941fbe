#pragma once

#include "changes/apply/ApplySnapshot.h"
#include "changes/apply/ApplyStores.h"
#include "changes/apply/StoreChange.h"

#include <set>
#include <string>
#include <vector>

namespace tavrik {

class FontReplacer;

/// What happens to the wrapper of an application.
enum class WrapperWork { none, update, remove, create };

WrapperWork wrapperWork(const ApplyStores::AppState& state, bool wantsIcon);

/// What an apply will do, known before anything is touched.
struct ApplyPlan {
    /// Bundle identifiers, in the order of the work.
    std::vector<std::string> updated;
    std::vector<std::string> removed;
    std::vector<std::string> created;

    bool changesTitles = false;       ///< a styled alphabet, or plain text, is written into all titles
    bool restartsForCreation = false; ///< so that Launchpad indexes new wrappers
    bool restartsBetween = false;     ///< so that the titles are written onto what Launchpad knows
    bool restartsAtEnd = false;       ///< so that it shows

    std::vector<StoreChange> changes; ///< what is otherwise afterwards, sorted
    /// Applications whose new wrapper gets the title that Launchpad gives it, which is not known before.
    std::set<std::string> openTitles;

    int dockRestarts() const { return restartsForCreation + restartsBetween + restartsAtEnd; }

    bool changesWrappers() const { return !updated.empty() || !removed.empty() || !created.empty(); }
};

/// Pure.
ApplyPlan planOf(const ApplySnapshot& snapshot, const ApplyStores& stores, const FontReplacer& fonts);

} // namespace tavrik
