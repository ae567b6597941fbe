#pragma once

#include <QString>

#include <functional>
#include <vector>

class QQuickWindow;

namespace tavrik {

class Program;

/// A view worth a picture: what brings it up, and the window that shows it. Scenes follow each other in one
/// run of the program, so each leaves it as the next one may find it.
struct Scene {
    QString name; ///< of the picture's file
    std::function<QQuickWindow*(Program&)> show;
};

/// In the order in which they may follow each other.
std::vector<Scene> allScenes();

std::vector<Scene> windowScenes();
std::vector<Scene> applicationsScenes();
std::vector<Scene> themesScenes();
std::vector<Scene> fontsScenes();
std::vector<Scene> previewScenes();
std::vector<Scene> applyScenes();
std::vector<Scene> settingsScenes();
std::vector<Scene> updatesScenes(); ///< of a program that was opened with the keys of `SampleServer`

} // namespace tavrik
