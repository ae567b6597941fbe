#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "platform/practice/PropertyListFile.h"
#include "practice/dock/Dock.h"

#include <cstdint>

namespace tavrik::practice {

namespace {

constexpr double kLongestDelay = 86'400;

void readDelay(const plist::Value& settings, std::string_view key, double& delay) {
    double found = -1;
    if (const auto* real = settings.find<double>(key))
        found = *real;
    else if (const auto* whole = settings.find<std::int64_t>(key))
        found = static_cast<double>(*whole);
    if (found >= 0 && found <= kLongestDelay)
        delay = found;
}

} // namespace

DockBehaviour readDockBehaviour(const HostPath& root) {
    DockBehaviour behaviour;
    const auto settings = readPropertyList(PracticeFileManager(root), kBehaviour);
    if (!settings || !*settings)
        return behaviour;
    readDelay(**settings, "restartDelay", behaviour.restartDelay);
    readDelay(**settings, "indexDelay", behaviour.indexDelay);
    if (const auto* indexes = (*settings)->find<bool>("indexes"))
        behaviour.indexes = *indexes;
    return behaviour;
}

bool writeDockBehaviour(const HostPath& root, const DockBehaviour& behaviour) {
    PracticeFileManager files(root);
    const plist::Dictionary settings{{"restartDelay", behaviour.restartDelay},
                                     {"indexDelay", behaviour.indexDelay},
                                     {"indexes", behaviour.indexes}};
    return files.createFolder(kStateFolder) && writePropertyList(files, kBehaviour, settings);
}

} // namespace tavrik::practice
