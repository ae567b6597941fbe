import QtQuick
import Tavrik

// Before an apply: what would change, in a person's words, and what stands in the way.
Sheet {
    id: sheet

    required property WindowModel model
    readonly property ApplyModel apply: model.apply
    property bool showsDetails: false

    objectName: "apply-sheet"
    name: qsTr("Apply Changes")
    visible: apply.stage === ApplyModel.Plan || apply.stage === ApplyModel.Result
    contentWidth: 520
    contentHeight: (page.item as Item)?.implicitHeight ?? 0
    onClosed: {
        showsDetails = false
        apply.close()
    }

    Loader {
        id: page

        width: parent.width
        focus: true
        sourceComponent: sheet.apply.stage === ApplyModel.Plan ? plan : sheet.apply.stage === ApplyModel.Result ? result : null
    }
    Component {
        id: plan

        PlanPage {
            width: page.width
            apply: sheet.apply
            showsDetails: sheet.showsDetails
            onDetailsAsked: sheet.showsDetails = !sheet.showsDetails
            onCancelled: sheet.close()
        }
    }
    Component {
        id: result

        ResultPage {
            width: page.width
            apply: sheet.apply
            onDone: sheet.close()
        }
    }
}
