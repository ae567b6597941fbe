#include "ui/models/BackupsPage.h"

namespace tavrik {

BackupsPage::BackupsPage(const UiServices& with) : m_with(with) {}

} // namespace tavrik
