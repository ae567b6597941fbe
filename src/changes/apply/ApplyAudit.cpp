#include "changes/apply/ApplyAudit.h"

#include "changes/apply/StoreChangeWords.h"

#include <algorithm>
#include <iterator>

namespace tavrik {

namespace {

using Kind = StoreChange::Kind;

/// The application that a change belongs to; empty where it belongs to none.
std::string applicationOf(const StoreChange& change, const ApplyStores& stores) {
    switch (change.kind) {
    case Kind::folderTitle:
    case Kind::hiddenThemeIcon:
    case Kind::themeIcon:
    case Kind::theme:
        return {};
    case Kind::wrapper:
        for (const auto& [bundleID, state] : stores.staged) {
            if (state.wrapper.name() == change.subject)
                return bundleID;
        }
        return {};
    default:
        return change.subject;
    }
}

} // namespace

std::vector<Deviation> deviationsFrom(const ApplyPlan& plan, const ApplyStores& before,
                                      const ApplyStores& after, const std::set<std::string>& failedApps) {
    const std::vector<StoreChange> found = changesBetween(before, after);
    std::vector<StoreChange> missing;
    std::vector<StoreChange> unplanned;
    std::ranges::set_difference(plan.changes, found, std::back_inserter(missing));
    std::ranges::set_difference(found, plan.changes, std::back_inserter(unplanned));

    std::vector<Deviation> deviations;
    const auto report = [&](const std::vector<StoreChange>& changes, const char* what) {
        for (const StoreChange& change : changes) {
            const std::string bundleID = applicationOf(change, before);
            const bool isOpen = change.kind == Kind::title && plan.openTitles.contains(bundleID);
            if (!isOpen && !failedApps.contains(bundleID))
                deviations.push_back(
                    {bundleID, headingOf(change.kind) + ", " + inWords(change, change.subject) + what});
        }
    };
    report(missing, " (planned, and not so)");
    report(unplanned, " (not planned)");
    return deviations;
}

} // namespace tavrik
