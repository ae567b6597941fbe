#include "ui/models/MenuAction.h"

namespace tavrik {

void MenuAction::trigger() {
    if (isEnabled() && m_words.run)
        m_words.run();
}

} // namespace tavrik
