#pragma once

#include "practice/picture/Picture.h"

#include <QColor>
#include <QFont>

namespace tavrik::practice {

/// Colours and fonts of one appearance. Font sizes are pixels of a picture of scale 1.
struct Look {
    explicit Look(Appearance appearance);

    /// The font for a title that may be written in a styled alphabet: the family that has the whole alphabet
    /// goes first, so that its letters do not come from several.
    static QFont fontFor(const QString& title, QFont font);

    QColor title;
    QColor caption;
    QColor faint;       ///< lines and dots that only hint
    QColor panel;       ///< translucent, of an opened folder and the Dock
    QColor panelBorder; ///< the light edge of a panel
    QColor folderTile;  ///< translucent, of a closed folder
    QColor shadow;

    QFont titleFont;   ///< below icons
    QFont labelFont;   ///< of the Dock's tiles
    QFont headingFont; ///< of pages, folders and the Dock
    QFont captionFont;
};

} // namespace tavrik::practice
