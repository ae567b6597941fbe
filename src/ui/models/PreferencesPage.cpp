#include "ui/models/PreferencesPage.h"

namespace tavrik {

PreferencesPage::PreferencesPage(const UiServices& with) : m_with(with) {}

} // namespace tavrik
