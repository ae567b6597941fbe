pragma ComponentBehavior: Bound

import QtQuick
import Tavrik

// Icons as if they had been let fall on a table. Neighbours in the library lie differently.
Item {
    id: preview

    required property list<string> paths
    required property Images images
    property int arrangement: 0

    // Middle, in parts of the place; size in points; turn in degrees. The first one lies on top.
    readonly property var places: [
        { x: 0.50, y: 0.50, size: 74, turn: -3 },
        { x: 0.27, y: 0.50, size: 58, turn: -5 }, { x: 0.73, y: 0.49, size: 58, turn: 6 },
        { x: 0.66, y: 0.80, size: 46, turn: 10 }, { x: 0.34, y: 0.80, size: 46, turn: -9 },
        { x: 0.14, y: 0.74, size: 44, turn: 10 }, { x: 0.87, y: 0.74, size: 46, turn: -11 },
        { x: 0.33, y: 0.20, size: 42, turn: 9 }, { x: 0.68, y: 0.19, size: 42, turn: -8 },
        { x: 0.12, y: 0.30, size: 46, turn: -14 }, { x: 0.88, y: 0.27, size: 44, turn: 12 }
    ]
    readonly property bool isFlipped: arrangement % 2 === 1
    readonly property bool isTurned: arrangement % 4 > 1

    Repeater {
        model: Math.min(preview.paths.length, preview.places.length)

        IconImage {
            required property int index
            readonly property var place: preview.places[index]

            x: preview.width * (preview.isFlipped ? 1 - place.x : place.x) - size / 2
            y: preview.height * (preview.isTurned ? 1 - place.y : place.y) - size / 2
            z: -index
            size: place.size
            rotation: preview.isFlipped ? -place.turn : place.turn
            source: preview.images.ofFile(preview.paths[index] ?? "", preview.images.revision)
        }
    }
}
