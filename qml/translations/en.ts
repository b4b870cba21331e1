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
    <name>AudioPage</name>
    <message>
        <source>44.1 kHz</source>
        <translation>44.1 kHz</translation>
    </message>
    <message>
        <source>48 kHz</source>
        <translation>48 kHz</translation>
    </message>
    <message>
        <source>rate ?</source>
        <translation>rate ?</translation>
    </message>
    <message>
        <source>rate %1</source>
        <translation>rate %1</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>Not known yet</translation>
    </message>
    <message>
        <source>No monitor</source>
        <translation>No monitor</translation>
    </message>
    <message>
        <source>Monitor connected</source>
        <translation>Monitor connected</translation>
    </message>
    <message>
        <source>Programme sound</source>
        <translation>Programme sound</translation>
    </message>
    <message>
        <source>PIP sound</source>
        <translation>PIP sound</translation>
    </message>
    <message>
        <source>Follows the picture</source>
        <translation>Follows the picture</translation>
    </message>
    <message>
        <source>On: the sound of the input on %1</source>
        <translation>On: the sound of the input on %1</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>PIP</translation>
    </message>
    <message>
        <source>programme</source>
        <translation>programme</translation>
    </message>
    <message>
        <source>Off: the source chosen below</source>
        <translation>Off: the source chosen below</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Following</source>
        <translation>Following</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selected</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Levels</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Outputs</translation>
    </message>
    <message>
        <source>HDMI output shows (asking the device…)</source>
        <translation>HDMI output shows (asking the device…)</translation>
    </message>
    <message>
        <source>HDMI output shows</source>
        <translation>HDMI output shows</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Multiview</source>
        <translation>Multiview</translation>
    </message>
    <message>
        <source>HDMI output</source>
        <translation>HDMI output</translation>
    </message>
    <message>
        <source>Second HDMI output</source>
        <translation>Second HDMI output</translation>
    </message>
    <message>
        <source>Ask the outputs again</source>
        <translation>Ask the outputs again</translation>
    </message>
</context>
<context>
    <name>BluetoothPage</name>
    <message>
        <source>The companion app asks to stop the stream. Stop streaming on every channel now?</source>
        <translation>The companion app asks to stop the stream. Stop streaming on every channel now?</translation>
    </message>
    <message>
        <source>Stop streaming</source>
        <translation>Stop streaming</translation>
    </message>
    <message>
        <source>No live session</source>
        <translation>No live session</translation>
    </message>
    <message>
        <source>Telling the companion service the stream starts…</source>
        <translation>Telling the companion service the stream starts…</translation>
    </message>
    <message>
        <source>Live session confirmed by the companion service</source>
        <translation>Live session confirmed by the companion service</translation>
    </message>
    <message>
        <source>Telling the companion service the stream ended…</source>
        <translation>Telling the companion service the stream ended…</translation>
    </message>
    <message>
        <source>The companion app sent a stream destination</source>
        <translation>The companion app sent a stream destination</translation>
    </message>
    <message>
        <source>Portrait picture</source>
        <translation>Portrait picture</translation>
    </message>
    <message>
        <source>Landscape picture</source>
        <translation>Landscape picture</translation>
    </message>
    <message>
        <source>Use this destination</source>
        <translation>Use this destination</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>Bluetooth on</source>
        <translation>Bluetooth on</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selected</translation>
    </message>
    <message>
        <source>Bluetooth off</source>
        <translation>Bluetooth off</translation>
    </message>
    <message>
        <source>Companion app on</source>
        <translation>Companion app on</translation>
    </message>
    <message>
        <source>Companion app off</source>
        <translation>Companion app off</translation>
    </message>
    <message>
        <source>Companion stream</source>
        <translation>Companion stream</translation>
    </message>
    <message>
        <source>No destination from the app yet</source>
        <translation>No destination from the app yet</translation>
    </message>
    <message>
        <source>Search devices</source>
        <translation>Search devices</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Searching…</translation>
    </message>
    <message>
        <source>Speakers, headsets</source>
        <translation>Speakers, headsets</translation>
    </message>
    <message>
        <source>Search phones</source>
        <translation>Search phones</translation>
    </message>
    <message>
        <source>Companion app</source>
        <translation>Companion app</translation>
    </message>
    <message>
        <source>Switch Bluetooth on to search.</source>
        <translation>Switch Bluetooth on to search.</translation>
    </message>
    <message>
        <source>The device did not answer for %1.</source>
        <translation>The device did not answer for %1.</translation>
    </message>
    <message>
        <source>Disconnecting %1; the list shows the result.</source>
        <translation>Disconnecting %1; the list shows the result.</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Connected to %1.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>Disconnected from %1.</translation>
    </message>
    <message>
        <source>Could not connect to %1.</source>
        <translation>Could not connect to %1.</translation>
    </message>
    <message>
        <source>Could not disconnect from %1.</source>
        <translation>Could not disconnect from %1.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Phones</translation>
    </message>
    <message>
        <source>none found</source>
        <translation>none found</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connected</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>not connected</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation>Waiting for the device…</translation>
    </message>
</context>
<context>
    <name>BoardStore</name>
    <message>
        <source>London</source>
        <translation>London</translation>
    </message>
    <message>
        <source>Berlin</source>
        <translation>Berlin</translation>
    </message>
    <message>
        <source>Cairo</source>
        <translation>Cairo</translation>
    </message>
    <message>
        <source>Moscow</source>
        <translation>Moscow</translation>
    </message>
    <message>
        <source>Tehran</source>
        <translation>Tehran</translation>
    </message>
    <message>
        <source>Dubai</source>
        <translation>Dubai</translation>
    </message>
    <message>
        <source>Kabul</source>
        <translation>Kabul</translation>
    </message>
    <message>
        <source>Karachi</source>
        <translation>Karachi</translation>
    </message>
    <message>
        <source>New Delhi</source>
        <translation>New Delhi</translation>
    </message>
    <message>
        <source>Kathmandu</source>
        <translation>Kathmandu</translation>
    </message>
    <message>
        <source>Dhaka</source>
        <translation>Dhaka</translation>
    </message>
    <message>
        <source>Yangon</source>
        <translation>Yangon</translation>
    </message>
    <message>
        <source>Bangkok</source>
        <translation>Bangkok</translation>
    </message>
    <message>
        <source>Beijing</source>
        <translation>Beijing</translation>
    </message>
    <message>
        <source>Tokyo</source>
        <translation>Tokyo</translation>
    </message>
    <message>
        <source>Adelaide</source>
        <translation>Adelaide</translation>
    </message>
    <message>
        <source>Sydney</source>
        <translation>Sydney</translation>
    </message>
    <message>
        <source>Nouméa</source>
        <translation>Nouméa</translation>
    </message>
    <message>
        <source>Auckland</source>
        <translation>Auckland</translation>
    </message>
    <message>
        <source>Nuku&apos;alofa</source>
        <translation>Nuku&apos;alofa</translation>
    </message>
    <message>
        <source>Kiritimati</source>
        <translation>Kiritimati</translation>
    </message>
    <message>
        <source>Azores</source>
        <translation>Azores</translation>
    </message>
    <message>
        <source>South Georgia</source>
        <translation>South Georgia</translation>
    </message>
    <message>
        <source>São Paulo</source>
        <translation>São Paulo</translation>
    </message>
    <message>
        <source>St. John&apos;s</source>
        <translation>St. John&apos;s</translation>
    </message>
    <message>
        <source>Halifax</source>
        <translation>Halifax</translation>
    </message>
    <message>
        <source>New York</source>
        <translation>New York</translation>
    </message>
    <message>
        <source>Chicago</source>
        <translation>Chicago</translation>
    </message>
    <message>
        <source>Denver</source>
        <translation>Denver</translation>
    </message>
    <message>
        <source>Los Angeles</source>
        <translation>Los Angeles</translation>
    </message>
    <message>
        <source>Anchorage</source>
        <translation>Anchorage</translation>
    </message>
    <message>
        <source>Honolulu</source>
        <translation>Honolulu</translation>
    </message>
    <message>
        <source>Pago Pago</source>
        <translation>Pago Pago</translation>
    </message>
    <message>
        <source>Baker Island</source>
        <translation>Baker Island</translation>
    </message>
</context>
<context>
    <name>ChannelState</name>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Starting…</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Not confirmed</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Stopping…</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>Selected</source>
        <translation>Selected</translation>
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
    <name>DateTimePage</name>
    <message>
        <source>Device clock</source>
        <translation>Device clock</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>Set date and time</source>
        <translation>Set date and time</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Time zone</translation>
    </message>
    <message>
        <source>Use this time zone</source>
        <translation>Use this time zone</translation>
    </message>
    <message>
        <source>The clock moves by the difference</source>
        <translation>The clock moves by the difference</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Screen orientation</source>
        <translation>Screen orientation</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>In use now</source>
        <translation>In use now</translation>
    </message>
    <message>
        <source>Saved. The new orientation is used at the next start.</source>
        <translation>Saved. The new orientation is used at the next start.</translation>
    </message>
    <message>
        <source>A change of orientation is used at the next start.</source>
        <translation>A change of orientation is used at the next start.</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>No start time</source>
        <translation>No start time</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Started</translation>
    </message>
    <message>
        <source>in %1 d %2 h</source>
        <translation>in %1 d %2 h</translation>
    </message>
    <message>
        <source>in %1 h %2 min</source>
        <translation>in %1 h %2 min</translation>
    </message>
    <message>
        <source>in %1 min</source>
        <translation>in %1 min</translation>
    </message>
    <message>
        <source>New event</source>
        <translation>New event</translation>
    </message>
    <message>
        <source>Name, e.g. Sunday service</source>
        <translation>Name, e.g. Sunday service</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Create event</source>
        <translation>Create event</translation>
    </message>
    <message>
        <source>Events, latest first</source>
        <translation>Events, latest first</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>In use</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Use</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete the event “%1” with its addresses and settings?</source>
        <translation>Delete the event “%1” with its addresses and settings?</translation>
    </message>
    <message>
        <source>Delete event</source>
        <translation>Delete event</translation>
    </message>
    <message>
        <source>No events yet: create one below.</source>
        <translation>No events yet: create one below.</translation>
    </message>
</context>
<context>
    <name>FanPage</name>
    <message>
        <source>CPU temperature</source>
        <translation>CPU temperature</translation>
    </message>
    <message>
        <source>reading…</source>
        <translation>reading…</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>Fan speed</source>
        <translation>Fan speed</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Fixed speed</source>
        <translation>Fixed speed</translation>
    </message>
    <message>
        <source>Automatic: %1 % up to %2 °C, rising evenly to 100 % at %3 °C and above.</source>
        <translation>Automatic: %1 % up to %2 °C, rising evenly to 100 % at %3 °C and above.</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selected</translation>
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
    <name>InputsPage</name>
    <message>
        <source>Ask the inputs again</source>
        <translation>Ask the inputs again</translation>
    </message>
    <message>
        <source>Asking the device…</source>
        <translation>Asking the device…</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>No signal</translation>
    </message>
    <message>
        <source>Setting %1…</source>
        <translation>Setting %1…</translation>
    </message>
    <message>
        <source>Chosen here: %1</source>
        <translation>Chosen here: %1</translation>
    </message>
    <message>
        <source>Chosen by the device</source>
        <translation>Chosen by the device</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Now: %1</translation>
    </message>
    <message>
        <source>No current format</source>
        <translation>No current format</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Running</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Chosen</translation>
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
    <name>MenuPage</name>
    <message>
        <source>Switcher</source>
        <translation>Switcher</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
</context>
<context>
    <name>NdiPage</name>
    <message>
        <source>Not known yet</source>
        <translation>Not known yet</translation>
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
        <source>Send programme</source>
        <translation>Send programme</translation>
    </message>
    <message>
        <source>Receive a source</source>
        <translation>Receive a source</translation>
    </message>
    <message>
        <source>Sources on the network</source>
        <translation>Sources on the network</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Search again</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Searching…</translation>
    </message>
    <message>
        <source>No source found</source>
        <translation>No source found</translation>
    </message>
    <message numerus="yes">
        <source>%n source(s) found</source>
        <translation>
            <numerusform>%n source found</numerusform>
            <numerusform>%n sources found</numerusform>
        </translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Chosen</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Names</translation>
    </message>
    <message>
        <source>Type a name first.</source>
        <translation>Type a name first.</translation>
    </message>
    <message>
        <source>A name can have at most 63 characters.</source>
        <translation>A name can have at most 63 characters.</translation>
    </message>
    <message>
        <source>Use Latin letters, digits, spaces and simple punctuation only.</source>
        <translation>Use Latin letters, digits, spaces and simple punctuation only.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>No group name</source>
        <translation>No group name</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>No channel name</source>
        <translation>No channel name</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>No device name</source>
        <translation>No device name</translation>
    </message>
    <message>
        <source>Asking the device…</source>
        <translation>Asking the device…</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>UDP</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>Multi-TCP</source>
        <translation>Multi-TCP</translation>
    </message>
    <message>
        <source>Multicast</source>
        <translation>Multicast</translation>
    </message>
    <message>
        <source>TTL (hops)</source>
        <translation>TTL (hops)</translation>
    </message>
    <message>
        <source>Multicast address</source>
        <translation>Multicast address</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Netmask</translation>
    </message>
    <message>
        <source>TTL must be a whole number from 1 to 255.</source>
        <translation>TTL must be a whole number from 1 to 255.</translation>
    </message>
    <message>
        <source>The address must be four numbers from 0 to 255 with dots between.</source>
        <translation>The address must be four numbers from 0 to 255 with dots between.</translation>
    </message>
    <message>
        <source>Multicast needs a group address from 224.0.0.0 to 239.255.255.255.</source>
        <translation>Multicast needs a group address from 224.0.0.0 to 239.255.255.255.</translation>
    </message>
    <message>
        <source>The netmask must look like 255.255.255.0.</source>
        <translation>The netmask must look like 255.255.255.0.</translation>
    </message>
    <message>
        <source>Apply connection</source>
        <translation>Apply connection</translation>
    </message>
    <message>
        <source>Device: %1, TTL %2, %3 / %4</source>
        <translation>Device: %1, TTL %2, %3 / %4</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>Data type</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandwidth</translation>
    </message>
    <message>
        <source>Full NDI</source>
        <translation>Full NDI</translation>
    </message>
    <message>
        <source>NDI HX</source>
        <translation>NDI HX</translation>
    </message>
    <message>
        <source>Compression (NDI HX only)</source>
        <translation>Compression (NDI HX only)</translation>
    </message>
    <message>
        <source>Sent now</source>
        <translation>Sent now</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 frames/s</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bit rate</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>Audio sample rate</source>
        <translation>Audio sample rate</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Choose a connection type.</source>
        <translation>Choose a connection type.</translation>
    </message>
</context>
<context>
    <name>NetworkPage</name>
    <message>
        <source>The address must be four numbers from 0 to 255 with dots between, e.g. 192.168.0.100.</source>
        <translation>The address must be four numbers from 0 to 255 with dots between, e.g. 192.168.0.100.</translation>
    </message>
    <message>
        <source>This address cannot belong to a device (network, broadcast, loopback or multicast address).</source>
        <translation>This address cannot belong to a device (network, broadcast, loopback or multicast address).</translation>
    </message>
    <message>
        <source>The netmask must look like 255.255.255.0.</source>
        <translation>The netmask must look like 255.255.255.0.</translation>
    </message>
    <message>
        <source>The gateway must be four numbers with dots between; 0.0.0.0 means none.</source>
        <translation>The gateway must be four numbers with dots between; 0.0.0.0 means none.</translation>
    </message>
    <message>
        <source>The gateway must be in the same network as the address.</source>
        <translation>The gateway must be in the same network as the address.</translation>
    </message>
    <message>
        <source>The gateway cannot be the device&apos;s own address.</source>
        <translation>The gateway cannot be the device&apos;s own address.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Applying…</translation>
    </message>
    <message>
        <source>Applied.</source>
        <translation>Applied.</translation>
    </message>
    <message>
        <source>Applied, but the name servers could not be written: names may not resolve.</source>
        <translation>Applied, but the name servers could not be written: names may not resolve.</translation>
    </message>
    <message>
        <source>Not applied: the device refused these values.</source>
        <translation>Not applied: the device refused these values.</translation>
    </message>
    <message>
        <source>Automatic (DHCP)</source>
        <translation>Automatic (DHCP)</translation>
    </message>
    <message>
        <source>Fixed address</source>
        <translation>Fixed address</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Netmask</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>Current address</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>no address</translation>
    </message>
    <message>
        <source>via %1</source>
        <translation>via %1</translation>
    </message>
    <message>
        <source>Check connection</source>
        <translation>Check connection</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Checking…</translation>
    </message>
    <message>
        <source>%1 answers (check %2)</source>
        <translation>%1 answers (check %2)</translation>
    </message>
    <message>
        <source>%1 does not answer (check %2)</source>
        <translation>%1 does not answer (check %2)</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selected</translation>
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
    <message>
        <source>Network</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>Address, DHCP, connection check</source>
        <translation>Address, DHCP, connection check</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Brightness, orientation</source>
        <translation>Brightness, orientation</translation>
    </message>
    <message>
        <source>CPU temperature, fan speed</source>
        <translation>CPU temperature, fan speed</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>Clock, time zone</source>
        <translation>Clock, time zone</translation>
    </message>
    <message>
        <source>Factory reset, switch off</source>
        <translation>Factory reset, switch off</translation>
    </message>
    <message>
        <source>Cooling</source>
        <translation>Cooling</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>USB disk, recordings, playback</source>
        <translation>USB disk, recordings, playback</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>New software from a USB disk</source>
        <translation>New software from a USB disk</translation>
    </message>
    <message>
        <source>Streaming</source>
        <translation>Streaming</translation>
    </message>
    <message>
        <source>Event, platforms, go live</source>
        <translation>Event, platforms, go live</translation>
    </message>
    <message>
        <source>Import, type, switch on</source>
        <translation>Import, type, switch on</translation>
    </message>
    <message>
        <source>Create, choose, delete</source>
        <translation>Create, choose, delete</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Addresses</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Devices, companion app</source>
        <translation>Devices, companion app</translation>
    </message>
    <message>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <source>Send, receive, sources, names</source>
        <translation>Send, receive, sources, names</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom, presets</source>
        <translation>Pan, tilt, zoom, presets</translation>
    </message>
    <message>
        <source>Scopes</source>
        <translation>Scopes</translation>
    </message>
    <message>
        <source>Scopes, safe frames</source>
        <translation>Scopes, safe frames</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Inputs</translation>
    </message>
    <message>
        <source>Formats per input</source>
        <translation>Formats per input</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>PIP</translation>
    </message>
    <message>
        <source>Picture in picture: layout, sources</source>
        <translation>Picture in picture: layout, sources</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Sound sources, levels, HDMI outputs</source>
        <translation>Sound sources, levels, HDMI outputs</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Cameras</translation>
    </message>
</context>
<context>
    <name>PipPage</name>
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
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selected</translation>
    </message>
    <message>
        <source>Picture 1 shows</source>
        <translation>Picture 1 shows</translation>
    </message>
    <message>
        <source>Picture 2 shows</source>
        <translation>Picture 2 shows</translation>
    </message>
    <message>
        <source>Picture 2 shows (only in the layout with two pictures)</source>
        <translation>Picture 2 shows (only in the layout with two pictures)</translation>
    </message>
    <message>
        <source>Picture 1 shows the programme input itself.</source>
        <translation>Picture 1 shows the programme input itself.</translation>
    </message>
</context>
<context>
    <name>PlatformsPage</name>
    <message>
        <source>Event</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>Import again</source>
        <translation>Import again</translation>
    </message>
    <message>
        <source>USB disk, companion app</source>
        <translation>USB disk, companion app</translation>
    </message>
    <message>
        <source>No stream addresses yet. Put rtmp.ini (one address a line) on a USB disk, or type an address below.</source>
        <translation>No stream addresses yet. Put rtmp.ini (one address a line) on a USB disk, or type an address below.</translation>
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
        <source>Streams to it</source>
        <translation>Streams to it</translation>
    </message>
    <message>
        <source>Touch to switch on</source>
        <translation>Touch to switch on</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Add an address</source>
        <translation>Add an address</translation>
    </message>
    <message>
        <source>Add and switch on</source>
        <translation>Add and switch on</translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) offered by the disk or the app left out: spaces, commas, characters outside Latin-1 or too long.</source>
        <translation>
            <numerusform>%n address offered by the disk or the app left out: spaces, commas, characters outside Latin-1 or too long.</numerusform>
            <numerusform>%n addresses offered by the disk or the app left out: spaces, commas, characters outside Latin-1 or too long.</numerusform>
        </translation>
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
    <name>PtzPage</name>
    <message>
        <source>Not supported by this camera</source>
        <translation>Not supported by this camera</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Asking…</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
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
        <source>This camera is on air</source>
        <translation>This camera is on air</translation>
    </message>
    <message>
        <source>Move (hold)</source>
        <translation>Move (hold)</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Moving</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Still</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Auto focus</source>
        <translation>Auto focus</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>Not known yet</translation>
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
        <source>Presets</source>
        <translation>Presets</translation>
    </message>
    <message>
        <source>Cancel storing</source>
        <translation>Cancel storing</translation>
    </message>
    <message>
        <source>Store the position…</source>
        <translation>Store the position…</translation>
    </message>
    <message>
        <source>Touch the preset to keep this position in</source>
        <translation>Touch the preset to keep this position in</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Preset %1</translation>
    </message>
    <message>
        <source>Store here</source>
        <translation>Store here</translation>
    </message>
    <message>
        <source>Camera is here</source>
        <translation>Camera is here</translation>
    </message>
    <message>
        <source>Picture style</source>
        <translation>Picture style</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Vivid</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Soft</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Black and white</translation>
    </message>
    <message>
        <source>This camera offers no picture styles.</source>
        <translation>This camera offers no picture styles.</translation>
    </message>
    <message>
        <source>Style %1</source>
        <translation>Style %1</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Chosen</translation>
    </message>
</context>
<context>
    <name>RecordPage</name>
    <message>
        <source>No USB disk</source>
        <translation>No USB disk</translation>
    </message>
    <message>
        <source>The USB disk cannot be read</source>
        <translation>The USB disk cannot be read</translation>
    </message>
    <message>
        <source>Less than 512 MB free on the USB disk</source>
        <translation>Less than 512 MB free on the USB disk</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Type a name.</translation>
    </message>
    <message>
        <source>A name has at most 64 characters.</source>
        <translation>A name has at most 64 characters.</translation>
    </message>
    <message>
        <source>A recording with this name already exists.</source>
        <translation>A recording with this name already exists.</translation>
    </message>
    <message>
        <source>Could not rename the recording.</source>
        <translation>Could not rename the recording.</translation>
    </message>
    <message>
        <source>Stop the recording now?</source>
        <translation>Stop the recording now?</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Stop recording</translation>
    </message>
    <message>
        <source>Start recording</source>
        <translation>Start recording</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Recording %1</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Not recording</translation>
    </message>
    <message>
        <source>Not started: %1.</source>
        <translation>Not started: %1.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Time left on the disk</source>
        <translation>Time left on the disk</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>not known yet</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s)</source>
        <translation>
            <numerusform>about %n minute</numerusform>
            <numerusform>about %n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>about %1 h %2 min</source>
        <translation>about %1 h %2 min</translation>
    </message>
    <message>
        <source>Worked out at</source>
        <translation>Worked out at</translation>
    </message>
    <message>
        <source>%1 Mbit/s (1080p)</source>
        <translation>%1 Mbit/s (1080p)</translation>
    </message>
    <message numerus="yes">
        <source>Disk nearly full: less than %n minute(s) left</source>
        <translation>
            <numerusform>Disk nearly full: less than %n minute left</numerusform>
            <numerusform>Disk nearly full: less than %n minutes left</numerusform>
        </translation>
    </message>
    <message>
        <source>Recordings on the USB disk</source>
        <translation>Recordings on the USB disk</translation>
    </message>
    <message>
        <source>Reading the disk…</source>
        <translation>Reading the disk…</translation>
    </message>
    <message>
        <source>No recordings.</source>
        <translation>No recordings.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>New name (the file keeps its .mp4 ending)</source>
        <translation>New name (the file keeps its .mp4 ending)</translation>
    </message>
    <message>
        <source>Save name</source>
        <translation>Save name</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Playback on the device&apos;s output</source>
        <translation>Playback on the device&apos;s output</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Playing</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Playback ended</source>
        <translation>Playback ended</translation>
    </message>
    <message>
        <source>A name cannot contain %1 or start or end with a dot.</source>
        <translation>A name cannot contain %1 or start or end with a dot.</translation>
    </message>
    <message>
        <source>The recording still being made cannot be renamed.</source>
        <translation>The recording still being made cannot be renamed.</translation>
    </message>
</context>
<context>
    <name>SafeFrameGuide</name>
    <message>
        <source>Action safe</source>
        <translation>Action safe</translation>
    </message>
    <message>
        <source>Title safe</source>
        <translation>Title safe</translation>
    </message>
</context>
<context>
    <name>ScopesPage</name>
    <message>
        <source>Histogram</source>
        <translation>Histogram</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Waveform</translation>
    </message>
    <message>
        <source>RGB parade</source>
        <translation>RGB parade</translation>
    </message>
    <message>
        <source>Vectorscope</source>
        <translation>Vectorscope</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Bottom right</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Scope</translation>
    </message>
    <message>
        <source>%1: where it shows</source>
        <translation>%1: where it shows</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selected</translation>
    </message>
    <message>
        <source>Safe frames on the preview</source>
        <translation>Safe frames on the preview</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>16:9 safe areas</source>
        <translation>16:9 safe areas</translation>
    </message>
    <message>
        <source>Action and title safe</source>
        <translation>Action and title safe</translation>
    </message>
    <message>
        <source>4:3</source>
        <translation>4:3</translation>
    </message>
    <message>
        <source>Centre cut for 4:3</source>
        <translation>Centre cut for 4:3</translation>
    </message>
    <message>
        <source>9:16</source>
        <translation>9:16</translation>
    </message>
    <message>
        <source>Vertical video guide</source>
        <translation>Vertical video guide</translation>
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
    <message>
        <source>Stream off</source>
        <translation>Stream off</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation>
            <numerusform>%n min left</numerusform>
            <numerusform>%n min left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StreamPage</name>
    <message>
        <source>Event</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>Choose, create</source>
        <translation>Choose, create</translation>
    </message>
    <message>
        <source>No platform switched on</source>
        <translation>No platform switched on</translation>
    </message>
    <message>
        <source>Platforms</source>
        <translation>Platforms</translation>
    </message>
    <message>
        <source>Import, switch on</source>
        <translation>Import, switch on</translation>
    </message>
    <message>
        <source>Encoder settings</source>
        <translation>Encoder settings</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>CH%1</source>
        <translation>CH%1</translation>
    </message>
    <message>
        <source>Go live</source>
        <translation>Go live</translation>
    </message>
    <message numerus="yes">
        <source>%n platform(s)</source>
        <translation>
            <numerusform>%n platform</numerusform>
            <numerusform>%n platforms</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Go live now to %n platform(s) of the event “%1”?</source>
        <translation>
            <numerusform>Go live now to %n platform of the event “%1”?</numerusform>
            <numerusform>Go live now to %n platforms of the event “%1”?</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop streaming</source>
        <translation>Stop streaming</translation>
    </message>
    <message>
        <source>On air now</source>
        <translation>On air now</translation>
    </message>
    <message>
        <source>Not live</source>
        <translation>Not live</translation>
    </message>
    <message>
        <source>Stop streaming on every channel now?</source>
        <translation>Stop streaming on every channel now?</translation>
    </message>
</context>
<context>
    <name>StreamStore</name>
    <message>
        <source>Device default</source>
        <translation>Device default</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <source>This address is listed already.</source>
        <translation>This address is listed already.</translation>
    </message>
    <message>
        <source>Type a stream address first.</source>
        <translation>Type a stream address first.</translation>
    </message>
    <message>
        <source>This address is too long for the device (at most %1 characters).</source>
        <translation>This address is too long for the device (at most %1 characters).</translation>
    </message>
    <message>
        <source>A stream address cannot hold spaces, commas or characters outside Latin-1.</source>
        <translation>A stream address cannot hold spaces, commas or characters outside Latin-1.</translation>
    </message>
    <message>
        <source>Give the event a name.</source>
        <translation>Give the event a name.</translation>
    </message>
    <message>
        <source>An event name has at most 64 characters.</source>
        <translation>An event name has at most 64 characters.</translation>
    </message>
    <message>
        <source>The start time has passed. Choose a later one.</source>
        <translation>The start time has passed. Choose a later one.</translation>
    </message>
    <message>
        <source>Events cannot be kept now.</source>
        <translation>Events cannot be kept now.</translation>
    </message>
    <message>
        <source>An event named “%1” exists already. Choose another name.</source>
        <translation>An event named “%1” exists already. Choose another name.</translation>
    </message>
    <message>
        <source>Event “%1” created.</source>
        <translation>Event “%1” created.</translation>
    </message>
    <message>
        <source>Streaming is not available now.</source>
        <translation>Streaming is not available now.</translation>
    </message>
    <message>
        <source>No paltform is available,please select one paltform first</source>
        <translation>No paltform is available,please select one paltform first</translation>
    </message>
    <message>
        <source>At most %1 platforms can be live at once; switch some off.</source>
        <translation>At most %1 platforms can be live at once; switch some off.</translation>
    </message>
    <message>
        <source>The addresses together are too long for the device (at most %1 characters).</source>
        <translation>The addresses together are too long for the device (at most %1 characters).</translation>
    </message>
    <message>
        <source>An event name cannot hold a slash or a backslash.</source>
        <translation>An event name cannot hold a slash or a backslash.</translation>
    </message>
</context>
<context>
    <name>SwitcherStore</name>
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
        <source>Top left</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Bottom right</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Side by side</translation>
    </message>
    <message>
        <source>Two pictures</source>
        <translation>Two pictures</translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>Factory reset</source>
        <translation>Factory reset</translation>
    </message>
    <message>
        <source>Network, brightness, fan, orientation, time zone</source>
        <translation>Network, brightness, fan, orientation, time zone</translation>
    </message>
    <message>
        <source>Reset the device to its factory settings? The address becomes 192.168.0.100 (fixed), brightness, fan, screen orientation and time zone return to their factory values.</source>
        <translation>Reset the device to its factory settings? The address becomes 192.168.0.100 (fixed), brightness, fan, screen orientation and time zone return to their factory values.</translation>
    </message>
    <message>
        <source>The device answered the reset with status %1.</source>
        <translation>The device answered the reset with status %1.</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>Switch off</translation>
    </message>
    <message>
        <source>Streams and recordings stop</source>
        <translation>Streams and recordings stop</translation>
    </message>
    <message>
        <source>Switch the device off now? Streams and recordings stop.</source>
        <translation>Switch the device off now? Streams and recordings stop.</translation>
    </message>
</context>
<context>
    <name>UpgradePage</name>
    <message>
        <source>release</source>
        <translation>release</translation>
    </message>
    <message>
        <source>test build</source>
        <translation>test build</translation>
    </message>
    <message>
        <source>Upgrade the software to version %1 (%2)? The device restarts. Do not switch it off or remove the USB disk.</source>
        <translation>Upgrade the software to version %1 (%2)? The device restarts. Do not switch it off or remove the USB disk.</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>Updating the HDMI input firmware… Do not switch off.</source>
        <translation>Updating the HDMI input firmware… Do not switch off.</translation>
    </message>
    <message>
        <source>Success! Upgrade Complete 
Current Version: </source>
        <translation>Success! Upgrade Complete 
Current Version: </translation>
    </message>
    <message>
        <source>Hdmi Upgrade failed</source>
        <translation>Hdmi Upgrade failed</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Upgrading...</translation>
    </message>
    <message>
        <source>The device restarts by itself. Do not switch it off or remove the USB disk.</source>
        <translation>The device restarts by itself. Do not switch it off or remove the USB disk.</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>USB disk</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>ready</translation>
    </message>
    <message>
        <source>No USB disk</source>
        <translation>No USB disk</translation>
    </message>
    <message>
        <source>The USB disk cannot be read</source>
        <translation>The USB disk cannot be read</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>checking…</translation>
    </message>
    <message>
        <source>No upgrade images on the USB disk. They are named ZORVANE_RELEASE_&lt;version&gt;.img or ZORVANE_ALPHA_&lt;version&gt;.img and lie at the top of the disk.</source>
        <translation>No upgrade images on the USB disk. They are named ZORVANE_RELEASE_&lt;version&gt;.img or ZORVANE_ALPHA_&lt;version&gt;.img and lie at the top of the disk.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Chosen</translation>
    </message>
    <message>
        <source>Needs a USB disk</source>
        <translation>Needs a USB disk</translation>
    </message>
    <message>
        <source>to version %1</source>
        <translation>to version %1</translation>
    </message>
    <message>
        <source>Choose a version first</source>
        <translation>Choose a version first</translation>
    </message>
    <message>
        <source>Stop recording and streaming first</source>
        <translation>Stop recording and streaming first</translation>
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
