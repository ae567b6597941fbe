#pragma once

#include <QTranslator>

namespace tavrik {

/// A language that nobody speaks: each text of the interface keeps its words, gets accents, and is some 40 %
/// longer. What stays plain cannot be translated; what is cut off would be in other languages.
class PseudoLocale : public QTranslator {
public:
    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char* disambiguation, int n) const override;
};

} // namespace tavrik
