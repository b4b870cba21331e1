<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutPage</name>
    <message>
        <source>Device software</source>
        <translation>Gerätesoftware</translation>
    </message>
    <message>
        <source>asking the device…</source>
        <translation>wird abgefragt…</translation>
    </message>
    <message>
        <source>Device system</source>
        <translation>Gerätesystem</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>no device ID</source>
        <translation>keine Geräte-ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>keine Adresse</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>Dieses Programm</translation>
    </message>
    <message>
        <source>%1, built %2</source>
        <translation>%1, erstellt %2</translation>
    </message>
    <message>
        <source>Open-source components</source>
        <translation>Open-Source-Komponenten</translation>
    </message>
    <message>
        <source>GNU LGPL version 3; Qt Virtual Keyboard: GNU GPL version 3</source>
        <translation>GNU LGPL Version 3; Qt Virtual Keyboard: GNU GPL Version 3</translation>
    </message>
</context>
<context>
    <name>ActionPanel</name>
    <message>
        <source>ON AIR</source>
        <translation>AUF SENDUNG</translation>
    </message>
    <message>
        <source>Stream off</source>
        <translation>Stream aus</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) live</source>
        <translation>
            <numerusform>%n Kanal live</numerusform>
            <numerusform>%n Kanäle live</numerusform>
        </translation>
    </message>
    <message>
        <source>No channel live</source>
        <translation>Kein Kanal live</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Aufnahme beenden</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Keine Aufnahme</translation>
    </message>
    <message>
        <source>Picture in picture</source>
        <translation>Bild im Bild</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>BiB</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>REC %1</source>
        <translation>AUFN. %1</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>InputRow</name>
    <message>
        <source>PROGRAMME</source>
        <translation>PROGRAMM</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>BiB</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Kein Signal</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>to PIP</source>
        <translation>ins BiB</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Every text changes at once. On-screen typing uses Latin letters in every language.</source>
        <translation>Alle Texte wechseln sofort. Die Bildschirmtastatur schreibt in jeder Sprache lateinische Buchstaben.</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>Aktiv</translation>
    </message>
</context>
<context>
    <name>LiveStore</name>
    <message>
        <source>HDMI 1</source>
        <translation>HDMI 1</translation>
    </message>
    <message>
        <source>HDMI 2</source>
        <translation>HDMI 2</translation>
    </message>
    <message>
        <source>USB camera 1</source>
        <translation>USB-Kamera 1</translation>
    </message>
    <message>
        <source>USB camera 2</source>
        <translation>USB-Kamera 2</translation>
    </message>
    <message>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Mic</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Kamera 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Kamera 2</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Kopfhörer</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Stop the recording now?</source>
        <translation>Die Aufnahme jetzt beenden?</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Aufnahme beenden</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Settings and pages</source>
        <translation>Einstellungen und Seiten</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Chinese, English, German</source>
        <translation>Chinesisch, Englisch, Deutsch</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Versions and licences</source>
        <translation>Versionen und Lizenzen</translation>
    </message>
</context>
<context>
    <name>PreviewPanel</name>
    <message>
        <source>ON AIR</source>
        <translation>AUF SENDUNG</translation>
    </message>
    <message>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <source>No preview from the media service</source>
        <translation>Keine Vorschau vom Mediendienst</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>CH%1</source>
        <translation>K%1</translation>
    </message>
    <message>
        <source>live</source>
        <translation>live</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>REC %1</source>
        <translation>AUFN. %1</translation>
    </message>
    <message>
        <source>REC off</source>
        <translation>AUFN. aus</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>USB-Datenträger</translation>
    </message>
    <message>
        <source>No USB disk</source>
        <translation>Kein USB-Datenträger</translation>
    </message>
    <message>
        <source>USB disk ?</source>
        <translation>USB-Datenträger ?</translation>
    </message>
    <message>
        <source>No address</source>
        <translation>Keine Adresse</translation>
    </message>
    <message>
        <source>Media service silent</source>
        <translation>Mediendienst antwortet nicht</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Live production</source>
        <translation>Live-Produktion</translation>
    </message>
</context>
</TS>
