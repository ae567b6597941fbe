#include "ui/models/FontsPage.h"

namespace tavrik {

FontsPage::FontsPage(const UiServices& with) : m_with(with) {}

} // namespace tavrik
