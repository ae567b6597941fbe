#include "platform/StandardPicture.h"

#include <QColorSpace>

namespace tavrik {

bool isSRGB(const QImage& picture) {
    const QColorSpace space = picture.colorSpace();
    return !space.isValid() || space == QColorSpace(QColorSpace::SRgb);
}

QImage standardised(const QImage& picture) {
    QImage result = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (isSRGB(result))
        result.setColorSpace(QColorSpace::SRgb);
    else
        result.convertToColorSpace(QColorSpace::SRgb);
    return result;
}

} // namespace tavrik
