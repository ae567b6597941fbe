#include "ui/Program.h"
#include "ui/screens/Scene.h"

namespace tavrik {

std::vector<Scene> previewScenes() {
    return {};
}

} // namespace tavrik
