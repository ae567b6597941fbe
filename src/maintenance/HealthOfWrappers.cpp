#include "changes/apply/ApplyServices.h"
#include "changes/apply/SelectedIcon.h"
#include "maintenance/HealthChecks.h"
#include "maintenance/HealthLook.h"
#include "maintenance/OrphanedWrappers.h"
#include "maintenance/WrapperLinks.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "wrappers/TavrikAppManager.h"

#include <algorithm>
#include <set>

namespace tavrik {

namespace {

using Kind = HealthFinding::Kind;
using Remedy = HealthFinding::Remedy;

constexpr const char* kAnew =
    "The repair gives the application its own look back and stages its icon again, if "
    "one is chosen. The next apply restyles it.";

class WrapperCheck {
public:
    explicit WrapperCheck(HealthLook& look) : m_look(look), m_files(look.with.mac.files) {
        const auto orphans = orphanedWrappers(look.with);
        m_orphans.insert(orphans.begin(), orphans.end());
    }

    void run() {
        for (const auto& [bundleID, record] : m_look.swaps) {
            m_known.insert(m_look.wrapperOf(bundleID));
            report(Kind::unfinishedSwap, Remedy::repair, bundleID,
                   "Restyling " + m_look.nameOf(bundleID) +
                       ", or giving it its own look back, is under way or was stopped half-way.",
                   kAnew);
        }
        for (const auto& [bundleID, mapping] : m_look.mappings) {
            if (m_look.swaps.contains(bundleID))
                continue;
            m_known.insert(m_look.wrapperOf(bundleID));
            checkMapped(bundleID, mapping);
        }
        const auto names = m_files.list(m_look.with.wrappers.tavrikAppsURL());
        for (const std::string& name : names ? *names : std::vector<std::string>()) {
            const MacPath wrapper = m_look.with.wrappers.tavrikAppsURL() / name;
            if (name.ends_with(".app") && !name.starts_with('.') && !m_known.contains(wrapper))
                checkUnknown(wrapper);
        }
    }

private:
    void report(Kind kind, Remedy remedy, const std::string& bundleID, const std::string& sentence,
                const std::string& advice) {
        m_look.findings.push_back({kind, remedy, bundleID, sentence, advice});
        m_look.covered.insert(bundleID);
    }

    void reportOrphan(const MacPath& wrapper, const std::string& bundleID) {
        m_look.findings.push_back(
            {Kind::wrapperOrphaned, Remedy::repair, wrapper.string(),
             wrapper.stem() + " was deleted, and its wrapper is left.",
             "The repair removes the wrapper. The icons that are kept for the application "
             "stay."});
        m_look.covered.insert(bundleID);
    }

    void checkMapped(const std::string& bundleID, const TavrikMapping& mapping) {
        const std::string name = m_look.nameOf(bundleID);
        const MacPath wrapper = m_look.wrapperOf(bundleID);
        const auto attributes = m_files.attributes(wrapper, Links::dontFollow);
        if (wrapper.empty() || !attributes)
            return report(Kind::wrapperMissing, Remedy::repair, bundleID,
                          name + " is restyled, but its wrapper is gone.", kAnew);
        if (attributes->type != FileType::folder)
            return report(Kind::wrapperLinks, Remedy::none, bundleID,
                          wrapper.string() + " is a link or a file where the wrapper of " + name + " belongs.",
                          "Move it away, and look again.");
        if (m_orphans.contains(wrapper) && m_look.originalOf(bundleID).empty())
            return reportOrphan(wrapper, bundleID);
        if (checkLinks(bundleID, name, wrapper) && checkRows(bundleID, name, mapping)) {
            checkIcon(bundleID, name, wrapper);
            checkDates(bundleID, name, mapping);
        }
    }

    bool checkLinks(const std::string& bundleID, const std::string& name, const MacPath& wrapper) {
        const std::string its = "The wrapper of " + name;
        switch (linksOf(m_files, wrapper, bundleID)) {
        case WrapperLinks::sound:
            return true;
        case WrapperLinks::nowhere:
            report(Kind::wrapperLinks, Remedy::repair, bundleID,
                   its + " leads to where the application is no longer: it was moved to " +
                       m_look.originalOf(bundleID).string() + ".",
                   kAnew);
            break;
        case WrapperLinks::elsewhere:
            report(Kind::wrapperLinks, Remedy::repair, bundleID, its + " leads to another application.", kAnew);
            break;
        case WrapperLinks::incomplete:
            report(Kind::wrapperLinks, Remedy::repair, bundleID,
                   its + " does not lead to all that is in the application's bundle.", kAnew);
            break;
        case WrapperLinks::foreign:
            report(Kind::wrapperLinks, Remedy::none, bundleID,
                   its + " holds files of its own, which no wrapper does: an update may have been put there.",
                   "Move " + wrapper.string() + " to where it belongs, and look again.");
            break;
        }
        return false;
    }

    bool checkRows(const std::string& bundleID, const std::string& name, const TavrikMapping& mapping) {
        const auto* original = m_look.rowOf(bundleID, mapping.originalRowID);
        const auto* wrapper = m_look.rowOf(bundleID, mapping.tavrikRowID);
        const bool isSwapped = original && wrapper && original != wrapper && !isWrapperPath(original->best()) &&
                               isWrapperPath(wrapper->best());
        if (!isSwapped)
            report(Kind::rows, Remedy::repair, bundleID,
                   "Launchpad no longer holds " + name + " and its wrapper as they were exchanged.", kAnew);
        return isSwapped;
    }

    void checkIcon(const std::string& bundleID, const std::string& name, const MacPath& wrapper) {
        if (m_files.exists(wrapper / "Icon\r"))
            return;
        const bool isKept = selectedIconFile(m_look.with, bundleID).has_value();
        m_look.findings.push_back(
            {Kind::wrapperIcon, isKept ? Remedy::repair : Remedy::none, bundleID,
             "The wrapper of " + name + " has lost its icon.",
             isKept ? "The repair writes it again." : "It is not kept. Choose one for it again, and apply."});
    }

    void checkDates(const std::string& bundleID, const std::string& name, const TavrikMapping& mapping) {
        const MacPath application = m_look.originalOf(bundleID);
        for (const MacPath& path : {application, application / "Contents/Info.plist"}) {
            const auto attributes = m_files.attributes(path);
            if (!attributes || std::max(attributes->created, attributes->modified) <= mapping.createdDate)
                continue;
            m_look.findings.push_back({Kind::applicationUpdated, Remedy::notNeeded, bundleID,
                                       name + " was updated or installed anew since it was restyled.",
                                       "Nothing needs to be done: its wrapper leads to what is there now."});
            return;
        }
    }

    void checkUnknown(const MacPath& wrapper) {
        const auto attributes = m_files.attributes(wrapper, Links::dontFollow);
        const std::string bundleID = bundleIdentifierOf(m_files, wrapper);
        const auto add = [&](Remedy remedy, const std::string& what, const std::string& advice) {
            m_look.findings.push_back(
                {Kind::wrapperUnknown, remedy, wrapper.string(), wrapper.string() + what, advice});
            if (!m_look.mappings.contains(bundleID))
                m_look.covered.insert(bundleID);
        };
        if (m_orphans.contains(wrapper))
            return reportOrphan(wrapper, bundleID);
        if (!attributes || attributes->type != FileType::folder ||
            linksOf(m_files, wrapper, bundleID) == WrapperLinks::foreign)
            return add(Remedy::none, " is no wrapper: it holds files of its own, or is a link.",
                       "Move it to where it belongs.");
        add(Remedy::repair, " belongs to no application that is restyled, or is half-made.",
            "The repair removes it, and stages the application's icon again, if one is chosen.");
    }

    HealthLook& m_look;
    const FileManager& m_files;
    std::set<MacPath> m_orphans;
    std::set<MacPath> m_known;
};

} // namespace

void checkWrappers(HealthLook& look) {
    if (look.canCompare())
        WrapperCheck(look).run();
}

} // namespace tavrik
