#pragma once

#include "icons/IconCache.h"
#include "platform/Png.h"
#include "support/SmallMac.h"

#include <gtest/gtest.h>

namespace tavrik::test {

/// A folder with icons of one colour each.
struct IconFolder {
    explicit IconFolder(FileManager& of) : files(of) { ignoreFailure(files.createFolder(path)); }

    MacPath icon(int index) const { return path / iconFileName(index); }

    static QImage picture(QColor colour, QSize size = {1024, 1024}) {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(colour);
        return image;
    }

    void put(const MacPath& file, const QImage& image) const {
        ignoreFailure(files.remove(file));
        ASSERT_TRUE(files.create(file, *png::encode(image)));
    }

    FileManager& files;
    const MacPath path{"/Users/practice/icons/com.example.atlas"};
};

/// The colour in the middle; invalid for a null picture.
inline QColor colourOf(const QImage& image) {
    return image.isNull() ? QColor() : image.pixelColor(image.width() / 2, image.height() / 2);
}

} // namespace tavrik::test
