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
    <name>main</name>
    <message>
        <source>Live production</source>
        <translation>Live-Produktion</translation>
    </message>
</context>
</TS>
