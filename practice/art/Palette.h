#pragma once

#include <QBrush>
#include <QColor>

namespace tavrik::practice {

/// What a part of a glyph is, rather than its colour, so that one glyph suits every plate, and none.
enum class Tone {
    main,   ///< the body
    soft,   ///< a body further back
    detail, ///< drawn upon the body
    accent, ///< the one spot of another colour
    shade,  ///< a face of the body turned from the light; laid over it
    shine,  ///< a face turned to the light; laid over it
};

/// The colours of one glyph: white on a coloured plate, slate on a light one, the style's own gradient when
/// there is no plate.
class Palette {
public:
    static Palette onPlate(const QColor& top, const QColor& bottom);
    static Palette withoutPlate(const QColor& top, const QColor& bottom);

    /// For a canvas of 100 by 100 units, on which the gradients run from top to bottom.
    QBrush brush(Tone tone) const;

    /// The colour of the glyph's shadow.
    QColor shadow() const { return m_shadow; }

private:
    struct Run {
        QColor top;
        QColor bottom;
    };

    Run m_main;
    Run m_soft;
    Run m_detail;
    Run m_accent;
    Run m_shade;
    QColor m_shadow;
};

/// A colour between two: 0 is the first, 1 the second, alpha included.
QColor mixed(const QColor& first, const QColor& second, double share);

/// How bright a colour looks, 0 to 1.
double luminance(const QColor& colour);

} // namespace tavrik::practice
