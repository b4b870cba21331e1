import QtQuick 2.15
import QtQuick.VirtualKeyboard 2.15
import QtQuick.VirtualKeyboard.Settings 2.15

// Qt Virtual Keyboard with the layouts this device offers: English and
// German letters (Latin text in every interface language: URLs, names and
// addresses are Latin) and the number pad that address and number fields
// ask for through their input hints.
InputPanel {
    id: panel
    property bool german: false    // the German layout first, else the English one
    visible: active
    function applyLocale() { VirtualKeyboardSettings.locale = german ? "de_DE" : "en_GB" }
    onGermanChanged: applyLocale()
    Component.onCompleted: {
        VirtualKeyboardSettings.activeLocales = ["en_GB", "de_DE"]
        applyLocale()
    }
}
