#include "ui/models/PreviewModel.h"

namespace tavrik {

PreviewModel::PreviewModel(const UiServices& with) : m_with(with) {}

} // namespace tavrik
