#include "ui/models/PreviewChanges.h"

#include "changes/apply/ApplyPlan.h"
#include "changes/apply/ApplyServices.h"
#include "changes/apply/SelectedIcon.h"
#include "fonts/FontManager.h"
#include "platform/PathRules.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace tavrik {

namespace {

/// The file of the icon that is chosen for an application; nothing for its own.
std::optional<MacPath> chosenIcon(const ApplyTask& task) {
    if (!task.wantsIcon())
        return std::nullopt;
    const auto index = static_cast<std::size_t>(*task.change.selectedIndex);
    return index < task.change.iconPaths.size() ? std::optional(task.change.iconPaths[index]) : task.themeIcon;
}

} // namespace

Result<PreviewChanges> PreviewChanges::read(const ApplyServices& with, const StagedChanges& staged) {
    if (staged.empty())
        return PreviewChanges();
    const ApplySnapshot snapshot = takeSnapshot(with, staged);
    const auto stores = readApplyStores(with, snapshot);
    if (!stores)
        return stores.error();
    return PreviewChanges(with, snapshot, planOf(snapshot, *stores, with.fonts.fontReplacer()));
}

PreviewChanges::PreviewChanges(const ApplyServices& with, const ApplySnapshot& snapshot,
                               const ApplyPlan& plan) {
    for (const StoreChange& change : plan.changes)
        m_changes.emplace(std::tuple(change.kind, change.subject, change.from), change.to);
    for (const ApplyTask& task : snapshot.tasks) {
        const std::string& bundleID = task.app.bundleID;
        const auto chosen = chosenIcon(task);
        const bool isUpdated = std::ranges::find(plan.updated, bundleID) != plan.updated.end();
        // A wrapper that keeps its icon gets the same picture under another number.
        if (chosen && !(isUpdated && chosen == selectedIconFile(with, bundleID)))
            m_icons.emplace(bundleID, *chosen);
    }
}

PreviewFace PreviewChanges::appAfter(const std::string& bundleID, const PreviewFace& now) const {
    return {after(StoreChange::Kind::title, bundleID, now.title),
            iconAfter(StoreChange::Kind::shown, bundleID, now.icon)};
}

PreviewFace PreviewChanges::tileAfter(const std::string& bundleID, const PreviewFace& now) const {
    return {after(StoreChange::Kind::tileLabel, bundleID, now.title),
            iconAfter(StoreChange::Kind::tile, bundleID, now.icon)};
}

std::string PreviewChanges::folderTitleAfter(const std::string& row, const std::string& now) const {
    return after(StoreChange::Kind::folderTitle, row, now);
}

std::string PreviewChanges::after(StoreChange::Kind kind, const std::string& subject,
                                  const std::string& now) const {
    const auto change = m_changes.find({kind, subject, now});
    return change == m_changes.end() ? now : change->second;
}

PreviewIcon PreviewChanges::iconAfter(StoreChange::Kind kind, const std::string& bundleID,
                                      const PreviewIcon& now) const {
    const MacPath path(after(kind, bundleID, now.path.string()));
    const auto icon = m_icons.find(bundleID);
    if (icon != m_icons.end() && isWrapperPath(path))
        return {PreviewIcon::Kind::file, icon->second};
    return {path.empty() ? PreviewIcon::Kind::none : PreviewIcon::Kind::shown, path};
}

} // namespace tavrik
