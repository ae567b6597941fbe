#include "ui/screens/Scene.h"

namespace tavrik {

std::vector<Scene> allScenes() {
    std::vector<Scene> scenes;
    for (const auto& some : {windowScenes(), applicationsScenes(), themesScenes(), fontsScenes(),
                             previewScenes(), applyScenes(), settingsScenes(), updatesScenes()})
        scenes.insert(scenes.end(), some.begin(), some.end());
    return scenes;
}

} // namespace tavrik
