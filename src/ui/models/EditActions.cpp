#include "ui/models/EditActions.h"

namespace tavrik {

EditActions::EditActions(const UiServices& with) : m_with(with) {}

} // namespace tavrik
