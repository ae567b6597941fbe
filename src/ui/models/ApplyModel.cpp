#include "ui/models/ApplyModel.h"

namespace tavrik {

ApplyModel::ApplyModel(const UiServices& with) : m_with(with) {}

} // namespace tavrik
