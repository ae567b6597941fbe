#include "platform/SystemPicture.h"

namespace tavrik {

std::optional<QSize> sizeOfSystemPicture(ByteView) {
    return std::nullopt;
}

QImage decodedBySystem(ByteView) {
    return {};
}

std::span<const std::string_view> systemPictureExtensions() {
    return {};
}

} // namespace tavrik
