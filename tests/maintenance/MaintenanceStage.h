#pragma once

#include "changes/apply/ApplyStage.h"
#include "maintenance/StartupMaintenance.h"

namespace tavrik::test {

inline const MacPath kWrappers = wrapperFolder(practice::kHome);

/// The program on a Mac where applications come and go, and its checks.
class MaintenanceStage : public ApplyStage {
protected:
    /// What is found here is not the beginning any more.
    void TearDown() override {}

    StartupMaintenance maintenance() {
        return {program->applyServices,
                {.refreshLists = [this] { ++refreshed; }, .browseBackups = [this] { ++browsed; }}};
    }

    /// The program anew, with the checks of its start.
    void startWithChecks() {
        start();
        alerts.asked.clear();
        log.clear();
        maintenance().run();
    }

    std::vector<std::string> titlesAsked() const {
        std::vector<std::string> titles;
        for (const Alert& alert : alerts.asked)
            titles.push_back(alert.title);
        return titles;
    }

    void restyle(const std::map<std::string, int>& icons) {
        for (const auto& [bundleID, number] : icons)
            add(bundleID, number);
        expectApplied();
    }

    void execute(const std::string& sql) {
        auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        ASSERT_TRUE(database && database->execute(sql.c_str())) << database->lastError();
    }

    void removeApp(const char* name) { ASSERT_TRUE(own.files.remove(MacPath("/Applications") / name)); }

    int refreshed = 0;
    int browsed = 0;
};

} // namespace tavrik::test
