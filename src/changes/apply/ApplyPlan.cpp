#include "changes/apply/ApplyPlan.h"

#include "changes/apply/ExpectedIcons.h"
#include "changes/apply/ExpectedTitles.h"
#include "fonts/FontReplacer.h"

#include <algorithm>

namespace tavrik {

namespace {

/// What the stores hold once everything is applied, filled in step by step in the order of the work.
class Forecast {
public:
    Forecast(const ApplySnapshot& snapshot, const ApplyStores& stores, const FontReplacer& fonts)
        : m_snapshot(snapshot),
          m_fonts(fonts),
          m_before(stores),
          m_after(stores) {}

    ApplyPlan plan() {
        changeThemes();
        for (const ApplyTask& task : m_snapshot.tasks)
            changeApp(task);
        const std::optional<std::string> style = styleToWrite();
        if (style)
            writeTitles(m_after, *style, m_fonts);
        m_plan.changesTitles = style.has_value();
        m_plan.restartsForCreation = !m_plan.created.empty();
        m_plan.restartsBetween = m_plan.changesWrappers() && style;
        m_plan.restartsAtEnd = m_plan.changesWrappers() || style;
        if (!style)
            m_plan.openTitles.insert(m_plan.created.begin(), m_plan.created.end());
        m_plan.changes = changesBetween(m_before, m_after);
        std::erase_if(m_plan.changes, [&](const StoreChange& change) {
            return change.kind == StoreChange::Kind::title && m_plan.openTitles.contains(change.subject);
        });
        return std::move(m_plan);
    }

private:
    void changeThemes() {
        for (const ThemeIconHide& hide : m_snapshot.changes.pendingThemeIconHides)
            m_after.themes[hide.themeID].hidden.insert(hide.iconFileName);
        for (const auto& [themeID, fileNames] : m_snapshot.changes.pendingThemeIconDeletions) {
            for (const std::string& fileName : fileNames)
                m_after.themes[themeID].iconFiles.erase(fileName);
        }
        for (const std::string& themeID : m_snapshot.changes.pendingThemeDeletions)
            m_after.themes.erase(themeID);
    }

    void changeApp(const ApplyTask& task) {
        const std::string& bundleID = task.app.bundleID;
        ApplyStores::AppState& state = m_after.staged[bundleID];
        const bool hasIcon = placeIcons(task, state);
        if (!task.isInstalled)
            return;
        switch (wrapperWork(state, hasIcon)) {
        case WrapperWork::none:
            return;
        case WrapperWork::update:
            m_plan.updated.push_back(bundleID);
            return;
        case WrapperWork::remove:
            m_plan.removed.push_back(bundleID);
            state.selectedIcon.reset();
            m_after.wrappers.erase(state.wrapper.name());
            takeBack(task);
            return;
        case WrapperWork::create:
            m_plan.created.push_back(bundleID);
            m_after.wrappers.insert(state.wrapper.name());
            putIn(task, state.wrapper);
            return;
        }
    }

    /// The row that stands for the application: of copies the one that the catalogue shows.
    ApplyStores::ShownApp* shownApp(const ApplicationInfo& app) {
        ApplyStores::ShownApp* first = nullptr;
        for (auto& [row, shown] : m_after.apps) {
            if (shown.bundleID != app.bundleID)
                continue;
            if (shown.original == app.path || shown.shown != shown.original)
                return &shown;
            first = first ? first : &shown;
        }
        return first;
    }

    ApplyStores::Tile* tile(const std::string& bundleID) {
        const auto found = std::ranges::find(m_after.tiles, bundleID, &ApplyStores::Tile::bundleID);
        return found == m_after.tiles.end() ? nullptr : &*found;
    }

    void putIn(const ApplyTask& task, const MacPath& wrapper) {
        if (ApplyStores::ShownApp* app = shownApp(task.app))
            app->shown = wrapper;
        if (ApplyStores::Tile* pinned = tile(task.app.bundleID))
            pinned->path = wrapper;
    }

    void takeBack(const ApplyTask& task) {
        ApplyStores::ShownApp* app = shownApp(task.app);
        if (app) {
            app->shown = app->original;
            app->title = app->originalTitle;
        }
        if (ApplyStores::Tile* pinned = tile(task.app.bundleID))
            pinned->path = app ? app->original : task.app.path;
        m_after.strayWrapperRows.erase(task.app.bundleID);
    }

    /// Empty for plain text.
    std::optional<std::string> styleToWrite() const {
        if (m_snapshot.changes.pendingReset)
            return std::string();
        if (m_snapshot.changes.pendingFont)
            return m_snapshot.changes.pendingFont;
        return m_plan.created.empty() ? std::nullopt : m_snapshot.activeFont;
    }

    const ApplySnapshot& m_snapshot;
    const FontReplacer& m_fonts;
    const ApplyStores& m_before;
    ApplyStores m_after;
    ApplyPlan m_plan;
};

} // namespace

WrapperWork wrapperWork(const ApplyStores::AppState& state, bool wantsIcon) {
    if (!wantsIcon)
        return state.isRestyled ? WrapperWork::remove : WrapperWork::none;
    return state.hasWrapper ? WrapperWork::update : WrapperWork::create;
}

ApplyPlan planOf(const ApplySnapshot& snapshot, const ApplyStores& stores, const FontReplacer& fonts) {
    return Forecast(snapshot, stores, fonts).plan();
}

} // namespace tavrik
