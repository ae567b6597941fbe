#include "platform/SystemPicture.h"

namespace tavrik {

std::optional<QSize> sizeOfSystemPicture(ByteView) {
    return std::nullopt;
}

QImage decodedBySystem(ByteView) {
    return {};
}

} // namespace tavrik
