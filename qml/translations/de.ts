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
        <translation>Aus</translation>
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
    <name>AudioPage</name>
    <message>
        <source>44.1 kHz</source>
        <translation>44,1 kHz</translation>
    </message>
    <message>
        <source>48 kHz</source>
        <translation>48 kHz</translation>
    </message>
    <message>
        <source>rate ?</source>
        <translation>Rate ?</translation>
    </message>
    <message>
        <source>rate %1</source>
        <translation>Rate %1</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>Noch unbekannt</translation>
    </message>
    <message>
        <source>No monitor</source>
        <translation>Kein Monitor</translation>
    </message>
    <message>
        <source>Monitor connected</source>
        <translation>Monitor angeschlossen</translation>
    </message>
    <message>
        <source>Programme sound</source>
        <translation>Programmton</translation>
    </message>
    <message>
        <source>PIP sound</source>
        <translation>BiB-Ton</translation>
    </message>
    <message>
        <source>Follows the picture</source>
        <translation>Folgt dem Bild</translation>
    </message>
    <message>
        <source>On: the sound of the input on %1</source>
        <translation>Ein: Ton des Eingangs auf %1</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>BiB</translation>
    </message>
    <message>
        <source>programme</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Off: the source chosen below</source>
        <translation>Aus: unten gewählte Quelle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Following</source>
        <translation>Folgt</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgänge</translation>
    </message>
    <message>
        <source>HDMI output shows (asking the device…)</source>
        <translation>HDMI-Ausgang zeigt (Gerät wird gefragt…)</translation>
    </message>
    <message>
        <source>HDMI output shows</source>
        <translation>HDMI-Ausgang zeigt</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Multiview</source>
        <translation>Multiview</translation>
    </message>
    <message>
        <source>HDMI output</source>
        <translation>HDMI-Ausgang</translation>
    </message>
    <message>
        <source>Second HDMI output</source>
        <translation>Zweiter HDMI-Ausgang</translation>
    </message>
    <message>
        <source>Ask the outputs again</source>
        <translation>Ausgänge neu abfragen</translation>
    </message>
</context>
<context>
    <name>BluetoothPage</name>
    <message>
        <source>The companion app asks to stop the stream. Stop streaming on every channel now?</source>
        <translation>Die Begleit-App bittet, den Stream zu beenden. Jetzt auf allen Kanälen beenden?</translation>
    </message>
    <message>
        <source>Stop streaming</source>
        <translation>Stream stoppen</translation>
    </message>
    <message>
        <source>No live session</source>
        <translation>Keine Live-Sitzung</translation>
    </message>
    <message>
        <source>Telling the companion service the stream starts…</source>
        <translation>Begleitdienst wird über den Start informiert…</translation>
    </message>
    <message>
        <source>Live session confirmed by the companion service</source>
        <translation>Live-Sitzung vom Begleitdienst bestätigt</translation>
    </message>
    <message>
        <source>Telling the companion service the stream ended…</source>
        <translation>Begleitdienst wird über das Ende informiert…</translation>
    </message>
    <message>
        <source>The companion app sent a stream destination</source>
        <translation>Die Begleit-App hat ein Streamziel gesendet</translation>
    </message>
    <message>
        <source>Portrait picture</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape picture</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Use this destination</source>
        <translation>Dieses Ziel verwenden</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Bluetooth on</source>
        <translation>Bluetooth an</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Bluetooth off</source>
        <translation>Bluetooth aus</translation>
    </message>
    <message>
        <source>Companion app on</source>
        <translation>Begleit-App an</translation>
    </message>
    <message>
        <source>Companion app off</source>
        <translation>Begleit-App aus</translation>
    </message>
    <message>
        <source>Companion stream</source>
        <translation>Begleit-Stream</translation>
    </message>
    <message>
        <source>No destination from the app yet</source>
        <translation>Noch kein Ziel von der App</translation>
    </message>
    <message>
        <source>Search devices</source>
        <translation>Geräte suchen</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft…</translation>
    </message>
    <message>
        <source>Speakers, headsets</source>
        <translation>Lautsprecher, Headsets</translation>
    </message>
    <message>
        <source>Search phones</source>
        <translation>Telefone suchen</translation>
    </message>
    <message>
        <source>Companion app</source>
        <translation>Begleit-App</translation>
    </message>
    <message>
        <source>Switch Bluetooth on to search.</source>
        <translation>Zum Suchen Bluetooth einschalten.</translation>
    </message>
    <message>
        <source>The device did not answer for %1.</source>
        <translation>Keine Antwort des Geräts zu %1.</translation>
    </message>
    <message>
        <source>Disconnecting %1; the list shows the result.</source>
        <translation>%1 wird getrennt; die Liste zeigt das Ergebnis.</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Mit %1 verbunden.</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>Von %1 getrennt.</translation>
    </message>
    <message>
        <source>Could not connect to %1.</source>
        <translation>Verbindung mit %1 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Could not disconnect from %1.</source>
        <translation>Trennen von %1 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Telefone</translation>
    </message>
    <message>
        <source>none found</source>
        <translation>keine gefunden</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation>Warte auf Gerät…</translation>
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
        <translation>Kairo</translation>
    </message>
    <message>
        <source>Moscow</source>
        <translation>Moskau</translation>
    </message>
    <message>
        <source>Tehran</source>
        <translation>Teheran</translation>
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
        <translation>Karatschi</translation>
    </message>
    <message>
        <source>New Delhi</source>
        <translation>Neu-Delhi</translation>
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
        <translation>Rangun</translation>
    </message>
    <message>
        <source>Bangkok</source>
        <translation>Bangkok</translation>
    </message>
    <message>
        <source>Beijing</source>
        <translation>Peking</translation>
    </message>
    <message>
        <source>Tokyo</source>
        <translation>Tokio</translation>
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
        <translation>Nukuʻalofa</translation>
    </message>
    <message>
        <source>Kiritimati</source>
        <translation>Kiritimati</translation>
    </message>
    <message>
        <source>Azores</source>
        <translation>Azoren</translation>
    </message>
    <message>
        <source>South Georgia</source>
        <translation>Südgeorgien</translation>
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
        <translation>Bakerinsel</translation>
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
        <translation>Startet …</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Nicht bestätigt</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Stoppt …</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
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
    <name>DateTimePage</name>
    <message>
        <source>Device clock</source>
        <translation>Geräteuhr</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>Set date and time</source>
        <translation>Datum und Uhrzeit setzen</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Use this time zone</source>
        <translation>Diese Zeitzone verwenden</translation>
    </message>
    <message>
        <source>The clock moves by the difference</source>
        <translation>Die Uhr wird um die Differenz verstellt</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Screen orientation</source>
        <translation>Bildschirmausrichtung</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>In use now</source>
        <translation>Derzeit aktiv</translation>
    </message>
    <message>
        <source>Saved. The new orientation is used at the next start.</source>
        <translation>Gespeichert. Die neue Ausrichtung gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>A change of orientation is used at the next start.</source>
        <translation>Eine geänderte Ausrichtung gilt ab dem nächsten Start.</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>No start time</source>
        <translation>Keine Startzeit</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Begonnen</translation>
    </message>
    <message>
        <source>in %1 d %2 h</source>
        <translation>in %1 T %2 Std.</translation>
    </message>
    <message>
        <source>in %1 h %2 min</source>
        <translation>in %1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>in %1 min</source>
        <translation>in %1 Min.</translation>
    </message>
    <message>
        <source>New event</source>
        <translation>Neues Event</translation>
    </message>
    <message>
        <source>Name, e.g. Sunday service</source>
        <translation>Name, z. B. Gottesdienst</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Create event</source>
        <translation>Event anlegen</translation>
    </message>
    <message>
        <source>Events, latest first</source>
        <translation>Events, späteste zuerst</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>Gewählt</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the event “%1” with its addresses and settings?</source>
        <translation>Event „%1“ mit seinen Adressen und Einstellungen löschen?</translation>
    </message>
    <message>
        <source>Delete event</source>
        <translation>Event löschen</translation>
    </message>
    <message>
        <source>No events yet: create one below.</source>
        <translation>Noch keine Events: unten eines anlegen.</translation>
    </message>
</context>
<context>
    <name>FanPage</name>
    <message>
        <source>CPU temperature</source>
        <translation>CPU-Temperatur</translation>
    </message>
    <message>
        <source>reading…</source>
        <translation>wird gelesen…</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>Fan speed</source>
        <translation>Lüfterdrehzahl</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Fixed speed</source>
        <translation>Feste Drehzahl</translation>
    </message>
    <message>
        <source>Automatic: %1 % up to %2 °C, rising evenly to 100 % at %3 °C and above.</source>
        <translation>Automatisch: %1 % bis %2 °C, dann gleichmäßig steigend bis 100 % ab %3 °C.</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
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
    <name>InputsPage</name>
    <message>
        <source>Ask the inputs again</source>
        <translation>Eingänge neu abfragen</translation>
    </message>
    <message>
        <source>Asking the device…</source>
        <translation>Gerät wird gefragt…</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Kein Signal</translation>
    </message>
    <message>
        <source>Setting %1…</source>
        <translation>%1 wird gesetzt…</translation>
    </message>
    <message>
        <source>Chosen here: %1</source>
        <translation>Hier gewählt: %1</translation>
    </message>
    <message>
        <source>Chosen by the device</source>
        <translation>Vom Gerät gewählt</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Jetzt: %1</translation>
    </message>
    <message>
        <source>No current format</source>
        <translation>Kein aktuelles Format</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Gewählt</translation>
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
    <name>MenuPage</name>
    <message>
        <source>Switcher</source>
        <translation>Bildmischer</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
</context>
<context>
    <name>NdiPage</name>
    <message>
        <source>Not known yet</source>
        <translation>Noch unbekannt</translation>
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
        <source>Send programme</source>
        <translation>Programm senden</translation>
    </message>
    <message>
        <source>Receive a source</source>
        <translation>Quelle empfangen</translation>
    </message>
    <message>
        <source>Sources on the network</source>
        <translation>Quellen im Netzwerk</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft…</translation>
    </message>
    <message>
        <source>No source found</source>
        <translation>Keine Quelle gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%n source(s) found</source>
        <translation>
            <numerusform>%n Quelle gefunden</numerusform>
            <numerusform>%n Quellen gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Gewählt</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Type a name first.</source>
        <translation>Bitte zuerst einen Namen eingeben.</translation>
    </message>
    <message>
        <source>A name can have at most 63 characters.</source>
        <translation>Ein Name hat höchstens 63 Zeichen.</translation>
    </message>
    <message>
        <source>Use Latin letters, digits, spaces and simple punctuation only.</source>
        <translation>Nur lateinische Buchstaben, Ziffern, Leerzeichen und einfache Satzzeichen.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>No group name</source>
        <translation>Kein Gruppenname</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>No channel name</source>
        <translation>Kein Kanalname</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>No device name</source>
        <translation>Kein Gerätename</translation>
    </message>
    <message>
        <source>Asking the device…</source>
        <translation>Gerät wird gefragt…</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
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
        <translation>TTL (Hops)</translation>
    </message>
    <message>
        <source>Multicast address</source>
        <translation>Multicast-Adresse</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Netzmaske</translation>
    </message>
    <message>
        <source>TTL must be a whole number from 1 to 255.</source>
        <translation>TTL muss eine ganze Zahl von 1 bis 255 sein.</translation>
    </message>
    <message>
        <source>The address must be four numbers from 0 to 255 with dots between.</source>
        <translation>Die Adresse besteht aus vier Zahlen von 0 bis 255 mit Punkten dazwischen.</translation>
    </message>
    <message>
        <source>Multicast needs a group address from 224.0.0.0 to 239.255.255.255.</source>
        <translation>Multicast braucht eine Gruppenadresse von 224.0.0.0 bis 239.255.255.255.</translation>
    </message>
    <message>
        <source>The netmask must look like 255.255.255.0.</source>
        <translation>Die Netzmaske muss wie 255.255.255.0 aussehen.</translation>
    </message>
    <message>
        <source>Apply connection</source>
        <translation>Verbindung anwenden</translation>
    </message>
    <message>
        <source>Device: %1, TTL %2, %3 / %4</source>
        <translation>Gerät: %1, TTL %2, %3 / %4</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>Datentyp</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Full NDI</source>
        <translation>Volles NDI</translation>
    </message>
    <message>
        <source>NDI HX</source>
        <translation>NDI HX</translation>
    </message>
    <message>
        <source>Compression (NDI HX only)</source>
        <translation>Kompression (nur NDI HX)</translation>
    </message>
    <message>
        <source>Sent now</source>
        <translation>Jetzt gesendet</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 Bilder/s</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>Audio sample rate</source>
        <translation>Audio-Abtastrate</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Choose a connection type.</source>
        <translation>Bitte einen Verbindungstyp wählen.</translation>
    </message>
</context>
<context>
    <name>NetworkPage</name>
    <message>
        <source>The address must be four numbers from 0 to 255 with dots between, e.g. 192.168.0.100.</source>
        <translation>Die Adresse besteht aus vier Zahlen von 0 bis 255 mit Punkten dazwischen, z. B. 192.168.0.100.</translation>
    </message>
    <message>
        <source>This address cannot belong to a device (network, broadcast, loopback or multicast address).</source>
        <translation>Diese Adresse kann kein Gerät haben (Netz-, Broadcast-, Loopback- oder Multicast-Adresse).</translation>
    </message>
    <message>
        <source>The netmask must look like 255.255.255.0.</source>
        <translation>Die Netzmaske muss wie 255.255.255.0 aussehen.</translation>
    </message>
    <message>
        <source>The gateway must be four numbers with dots between; 0.0.0.0 means none.</source>
        <translation>Das Gateway besteht aus vier Zahlen mit Punkten dazwischen; 0.0.0.0 heißt keines.</translation>
    </message>
    <message>
        <source>The gateway must be in the same network as the address.</source>
        <translation>Das Gateway muss im selben Netz wie die Adresse liegen.</translation>
    </message>
    <message>
        <source>The gateway cannot be the device&apos;s own address.</source>
        <translation>Das Gateway darf nicht die eigene Adresse des Geräts sein.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Wird übernommen…</translation>
    </message>
    <message>
        <source>Applied.</source>
        <translation>Übernommen.</translation>
    </message>
    <message>
        <source>Applied, but the name servers could not be written: names may not resolve.</source>
        <translation>Übernommen, aber die Nameserver konnten nicht geschrieben werden: Namen werden evtl. nicht aufgelöst.</translation>
    </message>
    <message>
        <source>Not applied: the device refused these values.</source>
        <translation>Nicht übernommen: Das Gerät hat diese Werte abgelehnt.</translation>
    </message>
    <message>
        <source>Automatic (DHCP)</source>
        <translation>Automatisch (DHCP)</translation>
    </message>
    <message>
        <source>Fixed address</source>
        <translation>Feste Adresse</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Netzmaske</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>Aktuelle Adresse</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>keine Adresse</translation>
    </message>
    <message>
        <source>via %1</source>
        <translation>über %1</translation>
    </message>
    <message>
        <source>Check connection</source>
        <translation>Verbindung prüfen</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird geprüft…</translation>
    </message>
    <message>
        <source>%1 answers (check %2)</source>
        <translation>%1 antwortet (Prüfung %2)</translation>
    </message>
    <message>
        <source>%1 does not answer (check %2)</source>
        <translation>%1 antwortet nicht (Prüfung %2)</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
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
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Address, DHCP, connection check</source>
        <translation>Adresse, DHCP, Verbindungsprüfung</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Brightness, orientation</source>
        <translation>Helligkeit, Ausrichtung</translation>
    </message>
    <message>
        <source>CPU temperature, fan speed</source>
        <translation>CPU-Temperatur, Lüfterdrehzahl</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum/Uhrzeit</translation>
    </message>
    <message>
        <source>Clock, time zone</source>
        <translation>Uhr, Zeitzone</translation>
    </message>
    <message>
        <source>Factory reset, switch off</source>
        <translation>Werkseinstellungen, Ausschalten</translation>
    </message>
    <message>
        <source>Cooling</source>
        <translation>Kühlung</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>USB disk, recordings, playback</source>
        <translation>USB-Datenträger, Aufnahmen, Wiedergabe</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>New software from a USB disk</source>
        <translation>Neue Software vom USB-Datenträger</translation>
    </message>
    <message>
        <source>Streaming</source>
        <translation>Streaming</translation>
    </message>
    <message>
        <source>Event, platforms, go live</source>
        <translation>Event, Plattformen, live gehen</translation>
    </message>
    <message>
        <source>Import, type, switch on</source>
        <translation>Importieren, eingeben, einschalten</translation>
    </message>
    <message>
        <source>Create, choose, delete</source>
        <translation>Anlegen, wählen, löschen</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Adressen</translation>
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
        <translation>Geräte, Begleit-App</translation>
    </message>
    <message>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <source>Send, receive, sources, names</source>
        <translation>Senden, Empfangen, Quellen, Namen</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom, presets</source>
        <translation>Schwenken, Neigen, Zoom, Positionen</translation>
    </message>
    <message>
        <source>Scopes</source>
        <translation>Messanzeigen</translation>
    </message>
    <message>
        <source>Scopes, safe frames</source>
        <translation>Messanzeigen, Sicherheitsrahmen</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingänge</translation>
    </message>
    <message>
        <source>Formats per input</source>
        <translation>Formate je Eingang</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>BiB</translation>
    </message>
    <message>
        <source>Picture in picture: layout, sources</source>
        <translation>Bild im Bild: Anordnung, Quellen</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Sound sources, levels, HDMI outputs</source>
        <translation>Tonquellen, Pegel, HDMI-Ausgänge</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
</context>
<context>
    <name>PipPage</name>
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
        <source>Layout</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Picture 1 shows</source>
        <translation>Bild 1 zeigt</translation>
    </message>
    <message>
        <source>Picture 2 shows</source>
        <translation>Bild 2 zeigt</translation>
    </message>
    <message>
        <source>Picture 2 shows (only in the layout with two pictures)</source>
        <translation>Bild 2 zeigt (nur in der Anordnung mit zwei Bildern)</translation>
    </message>
    <message>
        <source>Picture 1 shows the programme input itself.</source>
        <translation>Bild 1 zeigt den Programmeingang selbst.</translation>
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
        <translation>Neu importieren</translation>
    </message>
    <message>
        <source>USB disk, companion app</source>
        <translation>USB-Datenträger, Begleit-App</translation>
    </message>
    <message>
        <source>No stream addresses yet. Put rtmp.ini (one address a line) on a USB disk, or type an address below.</source>
        <translation>Noch keine Stream-Adressen. rtmp.ini (eine Adresse pro Zeile) auf einen USB-Datenträger legen oder unten eine Adresse eingeben.</translation>
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
        <source>Streams to it</source>
        <translation>Wird gestreamt</translation>
    </message>
    <message>
        <source>Touch to switch on</source>
        <translation>Zum Einschalten tippen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Add an address</source>
        <translation>Adresse hinzufügen</translation>
    </message>
    <message>
        <source>Add and switch on</source>
        <translation>Hinzufügen und einschalten</translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) offered by the disk or the app left out: spaces, commas, characters outside Latin-1 or too long.</source>
        <translation>
            <numerusform>%n angebotene Adresse ausgelassen: Leerzeichen, Kommas, Zeichen außerhalb von Latin-1 oder zu lang.</numerusform>
            <numerusform>%n angebotene Adressen ausgelassen: Leerzeichen, Kommas, Zeichen außerhalb von Latin-1 oder zu lang.</numerusform>
        </translation>
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
    <name>PtzPage</name>
    <message>
        <source>Not supported by this camera</source>
        <translation>Von dieser Kamera nicht unterstützt</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Wird gefragt…</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
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
        <source>This camera is on air</source>
        <translation>Diese Kamera ist auf Sendung</translation>
    </message>
    <message>
        <source>Move (hold)</source>
        <translation>Bewegen (halten)</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Bewegt</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Steht</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom +</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom −</translation>
    </message>
    <message>
        <source>Auto focus</source>
        <translation>Autofokus</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>Noch unbekannt</translation>
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
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>Cancel storing</source>
        <translation>Speichern abbrechen</translation>
    </message>
    <message>
        <source>Store the position…</source>
        <translation>Position speichern…</translation>
    </message>
    <message>
        <source>Touch the preset to keep this position in</source>
        <translation>Voreinstellung antippen, um die Position dort zu speichern</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Position %1</translation>
    </message>
    <message>
        <source>Store here</source>
        <translation>Hier speichern</translation>
    </message>
    <message>
        <source>Camera is here</source>
        <translation>Kamera ist hier</translation>
    </message>
    <message>
        <source>Picture style</source>
        <translation>Bildstil</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Vivid</source>
        <translation>Lebhaft</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Weich</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>This camera offers no picture styles.</source>
        <translation>Diese Kamera bietet keine Bildstile.</translation>
    </message>
    <message>
        <source>Style %1</source>
        <translation>Stil %1</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Gewählt</translation>
    </message>
</context>
<context>
    <name>RecordPage</name>
    <message>
        <source>No USB disk</source>
        <translation>Kein USB-Datenträger</translation>
    </message>
    <message>
        <source>The USB disk cannot be read</source>
        <translation>USB-Datenträger nicht lesbar</translation>
    </message>
    <message>
        <source>Less than 512 MB free on the USB disk</source>
        <translation>Weniger als 512 MB frei auf dem USB-Datenträger</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Bitte einen Namen eingeben.</translation>
    </message>
    <message>
        <source>A name has at most 64 characters.</source>
        <translation>Ein Name hat höchstens 64 Zeichen.</translation>
    </message>
    <message>
        <source>A recording with this name already exists.</source>
        <translation>Eine Aufnahme mit diesem Namen gibt es schon.</translation>
    </message>
    <message>
        <source>Could not rename the recording.</source>
        <translation>Umbenennen fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Stop the recording now?</source>
        <translation>Aufnahme jetzt beenden?</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Aufnahme beenden</translation>
    </message>
    <message>
        <source>Start recording</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Aufnahme läuft %1</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Keine Aufnahme</translation>
    </message>
    <message>
        <source>Not started: %1.</source>
        <translation>Nicht gestartet: %1.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Time left on the disk</source>
        <translation>Restzeit auf dem Datenträger</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>noch unbekannt</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s)</source>
        <translation>
            <numerusform>etwa %n Minute</numerusform>
            <numerusform>etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>about %1 h %2 min</source>
        <translation>etwa %1 h %2 min</translation>
    </message>
    <message>
        <source>Worked out at</source>
        <translation>Berechnet mit</translation>
    </message>
    <message>
        <source>%1 Mbit/s (1080p)</source>
        <translation>%1 Mbit/s (1080p)</translation>
    </message>
    <message numerus="yes">
        <source>Disk nearly full: less than %n minute(s) left</source>
        <translation>
            <numerusform>Datenträger fast voll: weniger als %n Minute übrig</numerusform>
            <numerusform>Datenträger fast voll: weniger als %n Minuten übrig</numerusform>
        </translation>
    </message>
    <message>
        <source>Recordings on the USB disk</source>
        <translation>Aufnahmen auf dem USB-Datenträger</translation>
    </message>
    <message>
        <source>Reading the disk…</source>
        <translation>Datenträger wird gelesen…</translation>
    </message>
    <message>
        <source>No recordings.</source>
        <translation>Keine Aufnahmen.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>New name (the file keeps its .mp4 ending)</source>
        <translation>Neuer Name (die Endung .mp4 bleibt)</translation>
    </message>
    <message>
        <source>Save name</source>
        <translation>Name speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Playback on the device&apos;s output</source>
        <translation>Wiedergabe am Geräteausgang</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Playback ended</source>
        <translation>Wiedergabe beendet</translation>
    </message>
    <message>
        <source>A name cannot contain %1 or start or end with a dot.</source>
        <translation>Ein Name darf %1 nicht enthalten und nicht mit einem Punkt beginnen oder enden.</translation>
    </message>
    <message>
        <source>The recording still being made cannot be renamed.</source>
        <translation>Die laufende Aufnahme kann nicht umbenannt werden.</translation>
    </message>
</context>
<context>
    <name>SafeFrameGuide</name>
    <message>
        <source>Action safe</source>
        <translation>Action-Bereich</translation>
    </message>
    <message>
        <source>Title safe</source>
        <translation>Titelbereich</translation>
    </message>
</context>
<context>
    <name>ScopesPage</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>RGB parade</source>
        <translation>RGB-Parade</translation>
    </message>
    <message>
        <source>Vectorscope</source>
        <translation>Vektorskop</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Messanzeige</translation>
    </message>
    <message>
        <source>%1: where it shows</source>
        <translation>%1: Position</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Safe frames on the preview</source>
        <translation>Sicherheitsrahmen in der Vorschau</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>16:9 safe areas</source>
        <translation>16:9-Sicherheitsbereiche</translation>
    </message>
    <message>
        <source>Action and title safe</source>
        <translation>Action- und Titelbereich</translation>
    </message>
    <message>
        <source>4:3</source>
        <translation>4:3</translation>
    </message>
    <message>
        <source>Centre cut for 4:3</source>
        <translation>Mittelausschnitt 4:3</translation>
    </message>
    <message>
        <source>9:16</source>
        <translation>9:16</translation>
    </message>
    <message>
        <source>Vertical video guide</source>
        <translation>Hilfslinien Hochformat</translation>
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
    <message>
        <source>Stream off</source>
        <translation>Stream aus</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation>
            <numerusform>noch %n min</numerusform>
            <numerusform>noch %n min</numerusform>
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
        <translation>Wählen, anlegen</translation>
    </message>
    <message>
        <source>No platform switched on</source>
        <translation>Keine Plattform eingeschaltet</translation>
    </message>
    <message>
        <source>Platforms</source>
        <translation>Plattformen</translation>
    </message>
    <message>
        <source>Import, switch on</source>
        <translation>Importieren, einschalten</translation>
    </message>
    <message>
        <source>Encoder settings</source>
        <translation>Encoder-Einstellungen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>CH%1</source>
        <translation>K%1</translation>
    </message>
    <message>
        <source>Go live</source>
        <translation>Live gehen</translation>
    </message>
    <message numerus="yes">
        <source>%n platform(s)</source>
        <translation>
            <numerusform>%n Plattform</numerusform>
            <numerusform>%n Plattformen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Go live now to %n platform(s) of the event “%1”?</source>
        <translation>
            <numerusform>Jetzt live gehen auf %n Plattform von „%1“?</numerusform>
            <numerusform>Jetzt live gehen auf %n Plattformen von „%1“?</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop streaming</source>
        <translation>Stream stoppen</translation>
    </message>
    <message>
        <source>On air now</source>
        <translation>Jetzt live</translation>
    </message>
    <message>
        <source>Not live</source>
        <translation>Nicht live</translation>
    </message>
    <message>
        <source>Stop streaming on every channel now?</source>
        <translation>Jetzt auf allen Kanälen das Streaming stoppen?</translation>
    </message>
</context>
<context>
    <name>StreamStore</name>
    <message>
        <source>Device default</source>
        <translation>Gerätestandard</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>This address is listed already.</source>
        <translation>Diese Adresse ist schon in der Liste.</translation>
    </message>
    <message>
        <source>Type a stream address first.</source>
        <translation>Bitte zuerst eine Stream-Adresse eingeben.</translation>
    </message>
    <message>
        <source>This address is too long for the device (at most %1 characters).</source>
        <translation>Adresse zu lang für das Gerät (höchstens %1 Zeichen).</translation>
    </message>
    <message>
        <source>A stream address cannot hold spaces, commas or characters outside Latin-1.</source>
        <translation>Eine Stream-Adresse darf keine Leerzeichen, Kommas oder Zeichen außerhalb von Latin-1 enthalten.</translation>
    </message>
    <message>
        <source>Give the event a name.</source>
        <translation>Bitte dem Event einen Namen geben.</translation>
    </message>
    <message>
        <source>An event name has at most 64 characters.</source>
        <translation>Ein Event-Name hat höchstens 64 Zeichen.</translation>
    </message>
    <message>
        <source>The start time has passed. Choose a later one.</source>
        <translation>Die Startzeit ist vorbei. Bitte eine spätere wählen.</translation>
    </message>
    <message>
        <source>Events cannot be kept now.</source>
        <translation>Events können gerade nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>An event named “%1” exists already. Choose another name.</source>
        <translation>Ein Event „%1“ gibt es schon. Bitte einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>Event “%1” created.</source>
        <translation>Event „%1“ angelegt.</translation>
    </message>
    <message>
        <source>Streaming is not available now.</source>
        <translation>Streaming ist gerade nicht verfügbar.</translation>
    </message>
    <message>
        <source>No paltform is available,please select one paltform first</source>
        <translation>Keine Plattform eingeschaltet. Bitte zuerst eine Plattform wählen.</translation>
    </message>
    <message>
        <source>At most %1 platforms can be live at once; switch some off.</source>
        <translation>Höchstens %1 Plattformen gleichzeitig live; bitte einige ausschalten.</translation>
    </message>
    <message>
        <source>The addresses together are too long for the device (at most %1 characters).</source>
        <translation>Die Adressen sind zusammen zu lang für das Gerät (höchstens %1 Zeichen).</translation>
    </message>
    <message>
        <source>An event name cannot hold a slash or a backslash.</source>
        <translation>Ein Event-Name darf keinen Schrägstrich oder Backslash enthalten.</translation>
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
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Two pictures</source>
        <translation>Zwei Bilder</translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>Factory reset</source>
        <translation>Werkseinstellungen</translation>
    </message>
    <message>
        <source>Network, brightness, fan, orientation, time zone</source>
        <translation>Netzwerk, Helligkeit, Lüfter, Ausrichtung, Zeitzone</translation>
    </message>
    <message>
        <source>Reset the device to its factory settings? The address becomes 192.168.0.100 (fixed), brightness, fan, screen orientation and time zone return to their factory values.</source>
        <translation>Gerät auf Werkseinstellungen zurücksetzen? Die Adresse wird 192.168.0.100 (fest); Helligkeit, Lüfter, Ausrichtung und Zeitzone erhalten ihre Werkswerte.</translation>
    </message>
    <message>
        <source>The device answered the reset with status %1.</source>
        <translation>Das Gerät hat das Zurücksetzen mit Status %1 beantwortet.</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Streams and recordings stop</source>
        <translation>Streams und Aufnahmen enden</translation>
    </message>
    <message>
        <source>Switch the device off now? Streams and recordings stop.</source>
        <translation>Gerät jetzt ausschalten? Streams und Aufnahmen enden.</translation>
    </message>
</context>
<context>
    <name>UpgradePage</name>
    <message>
        <source>release</source>
        <translation>Release</translation>
    </message>
    <message>
        <source>test build</source>
        <translation>Testversion</translation>
    </message>
    <message>
        <source>Upgrade the software to version %1 (%2)? The device restarts. Do not switch it off or remove the USB disk.</source>
        <translation>Software auf Version %1 (%2) aktualisieren? Das Gerät startet neu. Nicht ausschalten, USB-Datenträger nicht entfernen.</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Updating the HDMI input firmware… Do not switch off.</source>
        <translation>HDMI-Eingangsfirmware wird aktualisiert… Nicht ausschalten.</translation>
    </message>
    <message>
        <source>Success! Upgrade Complete 
Current Version: </source>
        <translation>Update erfolgreich abgeschlossen!
Aktuelle Version: </translation>
    </message>
    <message>
        <source>Hdmi Upgrade failed</source>
        <translation>HDMI-Firmware-Update fehlgeschlagen</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Update läuft...</translation>
    </message>
    <message>
        <source>The device restarts by itself. Do not switch it off or remove the USB disk.</source>
        <translation>Das Gerät startet von selbst neu. Nicht ausschalten, USB-Datenträger nicht entfernen.</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>USB-Datenträger</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>No USB disk</source>
        <translation>Kein USB-Datenträger</translation>
    </message>
    <message>
        <source>The USB disk cannot be read</source>
        <translation>USB-Datenträger nicht lesbar</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>wird geprüft…</translation>
    </message>
    <message>
        <source>No upgrade images on the USB disk. They are named ZORVANE_RELEASE_&lt;version&gt;.img or ZORVANE_ALPHA_&lt;version&gt;.img and lie at the top of the disk.</source>
        <translation>Keine Update-Dateien auf dem USB-Datenträger. Sie heißen ZORVANE_RELEASE_&lt;Version&gt;.img oder ZORVANE_ALPHA_&lt;Version&gt;.img und liegen in der obersten Ebene.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Gewählt</translation>
    </message>
    <message>
        <source>Needs a USB disk</source>
        <translation>USB-Datenträger nötig</translation>
    </message>
    <message>
        <source>to version %1</source>
        <translation>auf Version %1</translation>
    </message>
    <message>
        <source>Choose a version first</source>
        <translation>Zuerst eine Version wählen</translation>
    </message>
    <message>
        <source>Stop recording and streaming first</source>
        <translation>Erst Aufnahme und Stream beenden</translation>
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
