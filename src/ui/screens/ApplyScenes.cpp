#include "ui/Program.h"
#include "ui/screens/Scene.h"

namespace tavrik {

std::vector<Scene> applyScenes() {
    return {};
}

} // namespace tavrik
