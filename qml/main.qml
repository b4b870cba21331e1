import QtQuick 2.15
import QtQuick.Window 2.15
import "Public"

Window {
    id: window
    width: 1920
    height: 1080
    visible: true
    color: "#111214"
    title: qsTr("Live production")

    UiprocManage { id: manage }

    Component.onCompleted: {
        manage.uiproc.writeLog("qml start")
        manage.uiproc.readInitConfig()
        var settings = manage.uiproc.getIniData()
        manage.uiproc.writeLog("qml start share image")
        manage.uiprocGetImageShareData.getShareImageData()
        manage.uiproc.writeLog("qml start share audio")
        manage.uiprocGetAudioShareData.getShareAudioData()
        manage.uiproVideo.bizConnect()
        manage.uiproc.initFinished()
    }
}
