#include "model/AppIcon.h"

#include <mutex>
#include <utility>

namespace tavrik {

struct AppIcon::State {
    State(MacPath bundle, std::function<QImage(const MacPath&)> read)
        : path(std::move(bundle)),
          reader(std::move(read)) {}

    const MacPath path;
    std::function<QImage(const MacPath&)> reader;
    std::once_flag decoded;
    QImage image;
};

AppIcon::AppIcon(MacPath path, std::function<QImage(const MacPath&)> reader)
    : m_state(std::make_shared<State>(std::move(path), std::move(reader))) {}

const MacPath& AppIcon::path() const {
    static const MacPath none;
    return m_state ? m_state->path : none;
}

QImage AppIcon::image() const {
    if (!m_state)
        return QImage();
    std::call_once(m_state->decoded, [&] {
        m_state->image = m_state->reader(m_state->path);
        m_state->reader = nullptr;
    });
    return m_state->image;
}

} // namespace tavrik
