#include "ui/models/LeavingPage.h"

namespace tavrik {

LeavingPage::LeavingPage(const UiServices& with) : m_with(with) {}

} // namespace tavrik
