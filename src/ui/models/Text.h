#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QStringList toQStrings(const std::vector<std::string>& texts) {
    QStringList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts)
        list.append(toQString(text));
    return list;
}

} // namespace tavrik
