import QtQuick 2.15
import QtQuick.Window 2.15
import "Public"
import "CSQML"

Window {
    id: window
    // The device's panel runs full screen; a desktop gets a window of the panel's size.
    readonly property bool onDevice: Qt.platform.pluginName === "eglfs" || Qt.platform.pluginName === "linuxfb"
    width: 1920
    height: 1080
    visibility: onDevice ? Window.FullScreen : Window.Windowed
    visible: true
    color: Style.background
    title: qsTr("Live production")

    UiprocManage { id: manage }
    LiveStore { id: live; manage: manage }

    MainView {
        id: mainView
        objectName: "mainView"
        anchors.fill: parent
        store: live
    }

    Component.onCompleted: {
        manage.uiproc.writeLog("qml start")
        manage.uiproc.readInitConfig()
        var settings = manage.uiproc.getIniData()
        mainView.portrait = settings.lcdRotation !== undefined && settings.lcdRotation !== 0
        if (mainView.portrait && !onDevice) {
            // A rotated panel: the desktop window takes the panel's portrait shape.
            window.width = 1080
            window.height = 1920
        }
        live.loadSettings(settings)
        manage.uiproc.writeLog("qml start share image")
        manage.uiprocGetImageShareData.getShareImageData()
        manage.uiproc.writeLog("qml start share audio")
        manage.uiprocGetAudioShareData.getShareAudioData()
        manage.uiproVideo.bizConnect()
        manage.uiproc.writeLog("qml start GetInputSignalFormat")
        manage.uiproc.connectGetInputSignalFormat()
        manage.uiproc.initFinished()
        live.start()
    }
}
