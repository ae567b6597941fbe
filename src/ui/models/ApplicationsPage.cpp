#include "ui/models/ApplicationsPage.h"

namespace tavrik {

ApplicationsPage::ApplicationsPage(const UiServices& with) : m_with(with) {}

} // namespace tavrik
