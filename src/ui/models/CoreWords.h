#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

/// What the parts below the window say, in the language of the window: whole sentences, several in a row, and
/// reasons within them. Names, paths and what the system says come back as they are, and so does what is in no
/// catalogue. Any thread.
QString inTheirLanguage(std::string_view words);
QStringList inTheirLanguage(const std::vector<std::string>& texts);

} // namespace tavrik
