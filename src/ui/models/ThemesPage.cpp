#include "ui/models/ThemesPage.h"

namespace tavrik {

ThemesPage::ThemesPage(const UiServices& with) : m_with(with) {}

} // namespace tavrik
