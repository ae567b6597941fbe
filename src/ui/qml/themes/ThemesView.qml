import QtQuick
import Tavrik

Item {
    required property WindowModel model
}
