import QtQuick 2.15
import xpose.UiProc 1.0
import xpose.UiprocImageShow 1.0
import xpose.UiproGetImageShareData 1.0
import xpose.UiproVideoDesktop 1.0
import xpose.UiprocMain_Desktop 1.0
import cs.UiprocPublic 1.0
import xpose.UiproGetAudioShareData 1.0
import xpose.UiprocNetwork 1.0
import xpose.UiproRecordDesktop 1.0
import xpose.UiproVersionDesktop 1.0
import xpose.UiproRtmpDesktop 1.0
import xpose.UiproBluetoothDesktop 1.0

// The one place that owns the native objects; views reach them through these properties.
Item {
    id: manage

    property alias uiprocGetImageShareData: uiprocGetImageShareData_Desktop
    property alias uiprocGetAudioShareData: uiprocGetAudioShareData_Desktop
    property alias uiproc: uiproType
    property alias uiproVideo: uiproVider_Desktop
    property alias uiproMain: uiproMain_Desktop
    property alias uiproPublic: uiproPublic_Desktop
    property alias uiproNetwork: uiproNetwork_Desktop
    property alias uiprocRecord: uiproRecord_Desktop
    property alias uiprocVersion: uiproVersion_Desktop
    property alias uiproRtmp: uiproRtmp_Desktop
    property alias uiproBluetooth: uiproBluetooth_Desktop

    UiproGetImageShareData_Desktop { id: uiprocGetImageShareData_Desktop }
    UiproGetAudioShareData_Desktop { id: uiprocGetAudioShareData_Desktop }
    UiProcType { id: uiproType }
    UiproVideo_Desktop { id: uiproVider_Desktop }
    UiproMain_Desktop { id: uiproMain_Desktop }
    UiprocPublic_Desktop { id: uiproPublic_Desktop }
    UiprocNetwork { id: uiproNetwork_Desktop }
    UiproRecord_Desktop { id: uiproRecord_Desktop }
    UiproVersion_Desktop { id: uiproVersion_Desktop }
    UiproRtmp_Desktop { id: uiproRtmp_Desktop }
    UiproBluetooth_Desktop { id: uiproBluetooth_Desktop }
}
