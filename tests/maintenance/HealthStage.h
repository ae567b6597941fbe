#pragma once

#include "changes/apply/ApplyStage.h"
#include "maintenance/HealthCheck.h"
#include "maintenance/HealthRepair.h"

#include <utility>

namespace tavrik::test {

using Kind = HealthFinding::Kind;
using Remedy = HealthFinding::Remedy;

/// Applications that are restyled, and what doctor says of them.
class HealthStage : public ApplyStage {
public:
    using ApplyStage::clock;
    using ApplyStage::mac;
    using ApplyStage::pending;
    using ApplyStage::picture;
    using ApplyStage::program;
    using ApplyStage::start;
    using ApplyStage::styled;
    using ApplyStage::volume;

    /// What was found, by kind and subject.
    using Found = std::vector<std::pair<std::string, std::string>>;

    /// The virtual time is later than the moment at which the files of the Mac are made.
    HealthStage() { clock.sleep(std::chrono::hours(24 * 365 * 100)); }

    /// A snapshot of a damaged Mac does not bring back what was lost.
    void TearDown() override {}

    std::vector<HealthFinding> check() { return checkHealth(program->applyServices); }

    static Found named(const std::vector<HealthFinding>& findings) {
        Found found;
        for (const HealthFinding& finding : findings)
            found.emplace_back(nameOf(finding.kind), finding.subject);
        return found;
    }

    Found found() { return named(check()); }

    void expectHealthy() { EXPECT_EQ(found(), Found()); }

    HealthRepair repair() {
        ignoreFailure(pending().recover());
        HealthRepair result = repairHealth(program->applyServices, check());
        settle();
        return result;
    }

    /// The Dock's time to come up again and to look around.
    void settle() { clock.sleep(std::chrono::seconds(30)); }

    void restartDock() {
        program->launchpad.restartDock();
        settle();
    }

    /// The Dock learns that these bundles are there, or are not there any more.
    void showToDock(const std::vector<MacPath>& bundles) {
        for (const MacPath& bundle : bundles)
            program->wrappers.registerWrapper(bundle);
        restartDock();
    }

    void restyle(const std::vector<std::string>& bundleIDs) {
        int number = 0;
        for (const std::string& bundleID : bundleIDs)
            add(bundleID, ++number);
        expectApplied();
        settle();
    }

    void execute(const std::string& sql) {
        auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        ASSERT_TRUE(database && database->execute(sql.c_str())) << sql;
    }

    void write(const MacPath& file, std::string_view content) {
        ASSERT_TRUE(mac.files.createFolder(file.parent()));
        ASSERT_TRUE(!mac.files.exists(file) || mac.files.remove(file));
        ASSERT_TRUE(mac.files.create(file, bytesOf(content)));
    }

    void remove(const MacPath& path) { ASSERT_TRUE(mac.files.remove(path)); }

    MacPath original(const std::string& bundleID) {
        return std::ranges::find(firstRows, bundleID, &LaunchpadItem::bundleID)->path;
    }

    MacPath wrapper(const std::string& bundleID) {
        return program->wrappers.tavrikAppsURL() / original(bundleID).name();
    }

    ApplicationInfo application(const std::string& bundleID) {
        const auto apps = program->apps.loadApplications();
        return *std::ranges::find(apps, bundleID, &ApplicationInfo::bundleID);
    }

    std::string row(RowID number) { return std::to_string(static_cast<std::int64_t>(number)); }

    TavrikMapping mapping(const std::string& bundleID) {
        return program->settings.getMapping(bundleID).value();
    }

    MacPath support(std::string_view path) { return program->settings.appSupportURL() / path; }
};

} // namespace tavrik::test
