import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// The interface language, switched at once; each choice is written in its
// own language so anyone can find theirs.
Column {
    id: page
    property var store
    spacing: Style.gap

    Text {
        width: parent.width
        text: qsTr("Every text changes at once. On-screen typing uses Latin letters in every language.")
        wrapMode: Text.WordWrap
        color: Style.textDim
        font.pixelSize: Style.fontSmall
    }
    Repeater {
        // Names are not translated: each stays in its own language.
        model: [{ code: 0, name: "中文", detail: "Chinese" }, { code: 1, name: "English", detail: "English" },
                { code: 2, name: "Deutsch", detail: "German" }]
        TouchButton {
            objectName: "language" + modelData.code
            width: page.width
            height: Style.touch * 1.2
            label: modelData.name
            detail: page.store && page.store.language === modelData.code ? qsTr("In use") : ""
            checked: page.store ? page.store.language === modelData.code : false
            onClicked: if (page.store) page.store.setLanguage(modelData.code)
        }
    }
}
