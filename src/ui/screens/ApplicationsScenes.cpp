#include "ui/Program.h"
#include "ui/screens/Scene.h"

namespace tavrik {

std::vector<Scene> applicationsScenes() {
    return {{QStringLiteral("applications"), [](Program& program) {
                 program.model().setPlace(WindowModel::Place::UserApps);
                 return program.mainWindow();
             }}};
}

} // namespace tavrik
