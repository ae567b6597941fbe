import QtQuick
import Tavrik

// A title as the Mac shows it, which may be written in a styled alphabet.
Label {
    font.family: StyledText.familyFor(text)
}
