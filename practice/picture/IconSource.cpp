#include "practice/picture/IconSource.h"

#include "platform/Icns.h"
#include "platform/practice/BundleIcon.h"
#include "platform/practice/CustomIcon.h"
#include "practice/art/IconArtist.h"

#include <QPainter>

namespace tavrik::practice {

namespace {

constexpr int kLargestNeeded = 256; ///< pixels; nothing in a picture is larger

const IconStyle kFolderStyle{Outline::free, QColor(0x7C, 0xC4, 0xF8), QColor(0x3A, 0x93, 0xE6), "folder"};
const IconStyle kSheetStyle{Outline::free, QColor(0xFD, 0xFD, 0xFE), QColor(0xDD, 0xE1, 0xE8), "note"};
const IconStyle kTrashStyle{Outline::free, QColor(0xF2, 0xF4, 0xF7), QColor(0xA9, 0xB3, 0xC1), "trash"};
const IconStyle kQuestionStyle{Outline::squircle, QColor(0xC5, 0xCC, 0xD8), QColor(0x93, 0x9D, 0xAE),
                               "question"};

/// Scaled to fit a square of this size, in its middle.
QImage fitted(const QImage& picture, int size) {
    const QImage scaled = picture.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage square(size, size, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter(&square).drawImage((size - scaled.width()) / 2, (size - scaled.height()) / 2, scaled);
    return square;
}

} // namespace

IconSource::IconSource(const FileManager& files) : m_files(files) {}

QImage IconSource::application(const MacPath& path, int size) {
    if (path.empty())
        return drawIcon(kQuestionStyle, size);
    const QImage icon = own(path, size);
    return icon.isNull() ? drawGenericIcon(size) : icon;
}

QImage IconSource::folder(const MacPath& path, int size) {
    if (path.empty())
        return drawIcon(kQuestionStyle, size);
    const QImage icon = own(path, size);
    return icon.isNull() ? drawIcon(kFolderStyle, size) : icon;
}

QImage IconSource::document(const MacPath& path, int size) {
    if (path.empty())
        return drawIcon(kQuestionStyle, size);
    const QImage icon = own(path, size);
    return icon.isNull() ? drawIcon(kSheetStyle, size) : icon;
}

QImage IconSource::trash(int size) {
    return drawIcon(kTrashStyle, size);
}

QImage IconSource::own(const MacPath& path, int size) {
    auto known = m_originals.find(path);
    if (known == m_originals.end()) {
        QImage icon;
        if (const auto custom = readCustomIcon(m_files, path))
            icon = icns::largestImage(*custom);
        if (icon.isNull())
            icon = bundleIcon(m_files, path);
        if (!icon.isNull())
            icon = fitted(icon, kLargestNeeded);
        known = m_originals.emplace(path, icon).first;
    }
    const QImage& original = known->second;
    return original.isNull() || original.width() == size ? original : fitted(original, size);
}

} // namespace tavrik::practice
