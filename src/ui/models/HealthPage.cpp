#include "ui/models/HealthPage.h"

namespace tavrik {

HealthPage::HealthPage(const UiServices& with) : m_with(with) {}

} // namespace tavrik
