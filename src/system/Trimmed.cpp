#include "system/Trimmed.h"

#include <QString>

namespace tavrik {

std::string trimmed(const std::string& text) {
    const auto isPlain = [](char c) { return c > ' ' && c < 0x7f; };
    if (!text.empty() && isPlain(text.front()) && isPlain(text.back()))
        return text;
    return QString::fromStdString(text).trimmed().toStdString();
}

} // namespace tavrik
