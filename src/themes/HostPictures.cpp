#include "themes/HostPictures.h"

#include "icons/ImageIntake.h"
#include "platform/HostFile.h"

#include <QDir>
#include <QString>

#include <algorithm>
#include <vector>

namespace tavrik {

bool isPictureName(std::string_view fileName) {
    static const std::vector<std::string_view> extensions = pictureExtensions();
    std::string extension = HostPath(fileName).extension();
    std::ranges::transform(extension, extension.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return std::ranges::find(extensions, extension) != extensions.end();
}

Result<PictureFolder> pictureFolderAt(const HostPath& folder) {
    const QDir directory(QString::fromStdString(folder.string()));
    if (!directory.exists())
        return Error{"There is no folder at " + folder.string() + "."};
    if (!directory.isReadable())
        return Error{folder.string() + " cannot be read: you have no right to."};
    PictureFolder pictures;
    for (const QString& entry : directory.entryList(QDir::Files, QDir::NoSort)) {
        if (std::string name = entry.toStdString(); isPictureName(name))
            pictures.names.push_back(std::move(name));
    }
    if (pictures.names.empty())
        return Error{"There are no pictures in " + folder.string() + "; folders in it are not looked into."};
    pictures.read = [folder](const std::string& name) { return readHostFile(folder / name); };
    return pictures;
}

} // namespace tavrik
