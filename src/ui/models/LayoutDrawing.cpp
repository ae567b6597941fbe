#include "ui/models/LayoutDrawing.h"

#include "ui/models/Text.h"

#include <QCoreApplication>

namespace tavrik {

namespace {

constexpr qsizetype kMostMembers = 4; ///< as many as can be told apart

class Drawer {
public:
    explicit Drawer(const std::map<std::string, MacPath>& apps) : m_apps(apps) {}

    QVariantMap item(const std::string& title, const std::string& bundleID) const {
        return {{QStringLiteral("title"), toQString(title.empty() ? bundleID : title)},
                {QStringLiteral("path"), path(bundleID)},
                {QStringLiteral("isFolder"), false},
                {QStringLiteral("members"), QStringList()}};
    }

    QVariantMap folder(const LaunchpadLayout::Folder& folder) const {
        QStringList members;
        for (const auto& page : folder.pages) {
            for (const LaunchpadLayout::Application& app : page) {
                if (!app.isHidden && members.size() < kMostMembers)
                    members.append(path(app.bundleID));
            }
        }
        return {{QStringLiteral("title"), toQString(folder.title)},
                {QStringLiteral("path"), QString()},
                {QStringLiteral("isFolder"), true},
                {QStringLiteral("members"), members}};
    }

private:
    QString path(const std::string& bundleID) const {
        const auto app = m_apps.find(bundleID);
        return app == m_apps.end() ? QString() : toQString(app->second.string());
    }

    const std::map<std::string, MacPath>& m_apps;
};

} // namespace

LayoutDrawing drawingOf(const LayoutSummary& layout, const std::map<std::string, MacPath>& apps) {
    const Drawer drawer(apps);
    LayoutDrawing drawing;
    for (const auto& page : layout.launchpad.pages) {
        QVariantList items;
        for (const LaunchpadLayout::Item& item : page) {
            if (const auto* const folder = std::get_if<LaunchpadLayout::Folder>(&item))
                items.append(drawer.folder(*folder));
            else if (const auto& app = std::get<LaunchpadLayout::Application>(item); !app.isHidden)
                items.append(drawer.item(app.title, app.bundleID));
        }
        drawing.pages.append(
            QVariantMap{{QStringLiteral("title"),
                         QCoreApplication::translate("LayoutDrawing", "Page %1").arg(drawing.pages.size() + 1)},
                        {QStringLiteral("items"), items}});
    }
    for (const LayoutSummary::Tile& tile : layout.dock)
        drawing.tiles.append(drawer.item(tile.label, tile.bundleID));
    return drawing;
}

} // namespace tavrik
