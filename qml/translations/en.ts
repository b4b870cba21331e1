<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>ActionPanel</name>
    <message>
        <source>ON AIR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stream off</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture in picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InputRow</name>
    <message>
        <source>PROGRAMME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PIP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to PIP</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LiveStore</name>
    <message>
        <source>HDMI 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HDMI 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB camera 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB camera 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MIC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LINE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NDI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EAR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HDMI1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HDMI2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CAM1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CAM2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Stop the recording now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewPanel</name>
    <message>
        <source>ON AIR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PGM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No preview from the media service</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>CH%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>live</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REC %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REC off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No USB disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB disk ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media service silent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Live production</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
