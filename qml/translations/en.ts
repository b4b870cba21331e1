<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AboutPage</name>
    <message>
        <source>Device software</source>
        <translation>Device software</translation>
    </message>
    <message>
        <source>asking the device…</source>
        <translation>asking the device…</translation>
    </message>
    <message>
        <source>Device system</source>
        <translation>Device system</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>no device ID</source>
        <translation>no device ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>no address</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>This program</translation>
    </message>
    <message>
        <source>%1, built %2</source>
        <translation>%1, built %2</translation>
    </message>
    <message>
        <source>Open-source components</source>
        <translation>Open-source components</translation>
    </message>
    <message>
        <source>GNU LGPL version 3; Qt Virtual Keyboard: GNU GPL version 3</source>
        <translation>GNU LGPL version 3; Qt Virtual Keyboard: GNU GPL version 3</translation>
    </message>
</context>
<context>
    <name>ActionPanel</name>
    <message>
        <source>ON AIR</source>
        <translation>ON AIR</translation>
    </message>
    <message>
        <source>Stream off</source>
        <translation>Stream off</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) live</source>
        <translation>
            <numerusform>%n channel live</numerusform>
            <numerusform>%n channels live</numerusform>
        </translation>
    </message>
    <message>
        <source>No channel live</source>
        <translation>No channel live</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Stop recording</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Not recording</translation>
    </message>
    <message>
        <source>Picture in picture</source>
        <translation>Picture in picture</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>PIP</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>REC %1</source>
        <translation>REC %1</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>InputRow</name>
    <message>
        <source>PROGRAMME</source>
        <translation>PROGRAMME</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>PIP</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>No signal</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>to PIP</source>
        <translation>to PIP</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Every text changes at once. On-screen typing uses Latin letters in every language.</source>
        <translation>Every text changes at once. On-screen typing uses Latin letters in every language.</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>In use</translation>
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
        <translation>USB camera 1</translation>
    </message>
    <message>
        <source>USB camera 2</source>
        <translation>USB camera 2</translation>
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
        <translation>Mic</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Camera 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Camera 2</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Phones</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Stop the recording now?</source>
        <translation>Stop the recording now?</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Stop recording</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Settings and pages</source>
        <translation>Settings and pages</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Chinese, English, German</source>
        <translation>Chinese, English, German</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Versions and licences</source>
        <translation>Versions and licences</translation>
    </message>
</context>
<context>
    <name>PreviewPanel</name>
    <message>
        <source>ON AIR</source>
        <translation>ON AIR</translation>
    </message>
    <message>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <source>No preview from the media service</source>
        <translation>No preview from the media service</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>CH%1</source>
        <translation>CH%1</translation>
    </message>
    <message>
        <source>live</source>
        <translation>live</translation>
    </message>
    <message>
        <source>off</source>
        <translation>off</translation>
    </message>
    <message>
        <source>REC %1</source>
        <translation>REC %1</translation>
    </message>
    <message>
        <source>REC off</source>
        <translation>REC off</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>USB disk</translation>
    </message>
    <message>
        <source>No USB disk</source>
        <translation>No USB disk</translation>
    </message>
    <message>
        <source>USB disk ?</source>
        <translation>USB disk ?</translation>
    </message>
    <message>
        <source>No address</source>
        <translation>No address</translation>
    </message>
    <message>
        <source>Media service silent</source>
        <translation>Media service silent</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Live production</source>
        <translation>Live production</translation>
    </message>
</context>
</TS>
