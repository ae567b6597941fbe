import QtQuick
import Tavrik

Item {
    required property WindowModel model
    required property bool isSystemList
}
