#pragma once

#include <QTranslator>

namespace tavrik {

/// Puts the English texts of the interface, which are its own words, into the singular or the plural: "%n
/// change(s)" is "%n change" for one. A translation that is installed after it comes first.
class EnglishPlurals : public QTranslator {
public:
    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char* disambiguation, int n) const override;
};

} // namespace tavrik
