import QtQuick
import Tavrik

Sheet {
    required property WindowModel model

    name: qsTr("Apply")
}
