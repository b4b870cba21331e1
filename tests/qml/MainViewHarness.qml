import QtQuick 2.15
import QtQuick.Window 2.15
import "qrc:/CSQML"

// Opens the main screen alone with a fake store:
//   CS_MAIN_QML=tests/qml/MainViewHarness.qml build/CSFrontEnd
Window {
    width: 1920; height: 1080; visible: true
    FakeStore { id: fake; recording: true; recordStartMs: Date.now() - 3723000; pipOn: true }
    MainView { anchors.fill: parent; store: fake }
}
