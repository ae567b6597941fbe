#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>

/// PNG by Qt's own reader and writer.
namespace tavrik::qtpng {

inline QImage decode(ByteView data) {
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data.data()),
                                               static_cast<qsizetype>(data.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

inline Result<Bytes> encode(const QImage& picture) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    writer.setQuality(88);
    if (!writer.write(picture))
        return Error{writer.errorString().toStdString()};
    const QByteArray& data = buffer.data();
    return Bytes(data.begin(), data.end());
}

} // namespace tavrik::qtpng
