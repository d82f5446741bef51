<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Tallyline</name>
    <message>
        <source>tallyhelp.hlp</source>
        <translation>tallyhelp_de.hlp</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open a data file</source>
        <translation>Eine Datendatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close all open files</source>
        <translation>Alle offenen Dateien schließen</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save readings as a data file</source>
        <translation>Messwerte als Datendatei speichern</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Data&amp;Summary</source>
        <translation>Daten-&amp;Zusammenfassung</translation>
    </message>
    <message>
        <source>Print the summary of a file</source>
        <translation>Die Zusammenfassung einer Datei drucken</translation>
    </message>
    <message>
        <source>Power Summary</source>
        <translation>Leistungs-Zusammenfassung</translation>
    </message>
    <message>
        <source>Print the summary of the power plot</source>
        <translation>Die Zusammenfassung der Leistungskurve drucken</translation>
    </message>
    <message>
        <source>Data&amp;Table</source>
        <translation>Daten&amp;tabelle</translation>
    </message>
    <message>
        <source>Print the readings of a file</source>
        <translation>Die Messwerte einer Datei drucken</translation>
    </message>
    <message>
        <source>Power Table</source>
        <translation>Leistungstabelle</translation>
    </message>
    <message>
        <source>Print the values of the power plot</source>
        <translation>Die Werte der Leistungskurve drucken</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Show a chart file (.chd)</source>
        <translation>Eine Diagrammdatei (.chd) zeigen</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Metering Data Report</source>
        <translation>Zählerdatenbericht</translation>
    </message>
    <message>
        <source>Write the hourly metering report</source>
        <translation>Den stündlichen Zählerdatenbericht schreiben</translation>
    </message>
    <message>
        <source>Data: Table</source>
        <translation>Daten: Tabelle</translation>
    </message>
    <message>
        <source>Write the readings shown for a spreadsheet</source>
        <translation>Die gezeigten Messwerte für eine Tabellenkalkulation schreiben</translation>
    </message>
    <message>
        <source>Data: 1 Rdg per Line</source>
        <translation>Daten: 1 Messwert je Zeile</translation>
    </message>
    <message>
        <source>Write the table with one interval a line</source>
        <translation>Die Tabelle mit einem Intervall je Zeile schreiben</translation>
    </message>
    <message>
        <source>Open this file again</source>
        <translation>Diese Datei wieder öffnen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>Load Survey</source>
        <translation>Lastaufnahme</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Peaks of a station and its feeders</source>
        <translation>Spitzen einer Station und ihrer Abgänge</translation>
    </message>
    <message>
        <source>E&amp;dit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source>Edit the notes of a file</source>
        <translation>Die Notizen einer Datei bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Force Zoomed Readings</source>
        <translation>&amp;Messwerte im Zoom setzen</translation>
    </message>
    <message>
        <source>Replace the readings of the displayed range by one value</source>
        <translation>Die Messwerte des gezeigten Bereichs durch einen Wert ersetzen</translation>
    </message>
    <message>
        <source>Data &amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Plot</source>
        <translation>&amp;Kurve</translation>
    </message>
    <message>
        <source>Plot all readings of the open files</source>
        <translation>Alle Messwerte der offenen Dateien zeichnen</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>Show the readings of a file</source>
        <translation>Die Messwerte einer Datei zeigen</translation>
    </message>
    <message>
        <source>&amp;Refresh Graph</source>
        <translation>Kurve neu &amp;zeichnen</translation>
    </message>
    <message>
        <source>Draw the displayed range again</source>
        <translation>Den gezeigten Bereich neu zeichnen</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>Zu&amp;sammenfassung</translation>
    </message>
    <message>
        <source>Show the summary of a file</source>
        <translation>Die Zusammenfassung einer Datei zeigen</translation>
    </message>
    <message>
        <source>Power View</source>
        <translation>Leistungsansicht</translation>
    </message>
    <message>
        <source>Power Plot</source>
        <translation>Leistungskurve</translation>
    </message>
    <message>
        <source>Plot kilowatts and work out the energy</source>
        <translation>Kilowatt zeichnen und die Energie berechnen</translation>
    </message>
    <message>
        <source>Show the values of the power plot</source>
        <translation>Die Werte der Leistungskurve zeigen</translation>
    </message>
    <message>
        <source>Show the summary of the power plot</source>
        <translation>Die Zusammenfassung der Leistungskurve zeigen</translation>
    </message>
    <message>
        <source>Load Stud&amp;y</source>
        <translation>&amp;Laststudie</translation>
    </message>
    <message>
        <source>Demand, duration, phases and capacity of the open files</source>
        <translation>Bedarf, Dauer, Phasen und Reserve der offenen Dateien</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>Narrow the displayed range to the marked span</source>
        <translation>Den gezeigten Bereich auf die markierte Spanne einengen</translation>
    </message>
    <message>
        <source>&amp;Instrument</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>&amp;DownLoad</source>
        <translation>&amp;Auslesen</translation>
    </message>
    <message>
        <source>Fetch the recording of an instrument</source>
        <translation>Die Aufzeichnung eines Geräts holen</translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation>&amp;Initialisieren</translation>
    </message>
    <message>
        <source>Set an instrument up for a new recording</source>
        <translation>Ein Gerät für eine neue Aufzeichnung einrichten</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Retten</translation>
    </message>
    <message>
        <source>Fetch a recording after a battery failure</source>
        <translation>Eine Aufzeichnung nach Batterieausfall holen</translation>
    </message>
    <message>
        <source>&amp;Status Check</source>
        <translation>&amp;Status prüfen</translation>
    </message>
    <message>
        <source>Ask an instrument how it is</source>
        <translation>Ein Gerät nach seinem Zustand fragen</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>Special Test</source>
        <translation>Sondertest</translation>
    </message>
    <message>
        <source>Show the program's state, for support</source>
        <translation>Den Zustand des Programms zeigen, für die Unterstützung</translation>
    </message>
    <message>
        <source>&amp;Default Dir</source>
        <translation>&amp;Standardordner</translation>
    </message>
    <message>
        <source>Choose where file dialogs start</source>
        <translation>Wählen, wo Dateidialoge beginnen</translation>
    </message>
    <message>
        <source>&amp;Com Port Selection</source>
        <translation>&amp;COM-Anschluss wählen</translation>
    </message>
    <message>
        <source>Choose the serial port</source>
        <translation>Den seriellen Anschluss wählen</translation>
    </message>
    <message>
        <source>&amp;Instrument Selection</source>
        <translation>&amp;Gerätetyp wählen</translation>
    </message>
    <message>
        <source>Choose the instrument type</source>
        <translation>Den Gerätetyp wählen</translation>
    </message>
    <message>
        <source>&amp;User Name</source>
        <translation>&amp;Benutzername</translation>
    </message>
    <message>
        <source>The name that reports carry</source>
        <translation>Der Name, den Berichte tragen</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>S&amp;kala</translation>
    </message>
    <message>
        <source>Set the lowest value of the y axis for one plot</source>
        <translation>Den kleinsten Wert der y-Achse für eine Kurve setzen</translation>
    </message>
    <message>
        <source>&amp;Annotate</source>
        <translation>&amp;Anmerken</translation>
    </message>
    <message>
        <source>Add &amp;Note</source>
        <translation>&amp;Notiz hinzufügen</translation>
    </message>
    <message>
        <source>Place a text on the chart</source>
        <translation>Einen Text auf das Diagramm setzen</translation>
    </message>
    <message>
        <source>&amp;Clear Notes</source>
        <translation>Notizen &amp;löschen</translation>
    </message>
    <message>
        <source>Take all texts off the chart</source>
        <translation>Alle Texte vom Diagramm nehmen</translation>
    </message>
    <message>
        <source>&amp;Power Factor</source>
        <translation>&amp;Leistungsfaktor</translation>
    </message>
    <message>
        <source>The power factor of power views</source>
        <translation>Der Leistungsfaktor der Leistungsansichten</translation>
    </message>
    <message>
        <source>&amp;One-page Plot</source>
        <translation>Kurve auf &amp;einer Seite</translation>
    </message>
    <message>
        <source>Plot everything for one printed page</source>
        <translation>Alles für eine gedruckte Seite zeichnen</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>The language of the computer</source>
        <translation>Die Sprache des Rechners</translation>
    </message>
    <message>
        <source>The window speaks the chosen language when Tallyline is started the next time.</source>
        <translation>Das Fenster spricht die gewählte Sprache, wenn Tallyline das nächste Mal gestartet wird.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open the help</source>
        <translation>Die Hilfe öffnen</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Über dieses Programm</translation>
    </message>
    <message>
        <source>No recording is open</source>
        <translation>Keine Aufzeichnung ist offen</translation>
    </message>
    <message>
        <source>Open a data file...</source>
        <translation>Eine Datendatei öffnen...</translation>
    </message>
    <message>
        <source>Or drop up to three files on this window.</source>
        <translation>Oder bis zu drei Dateien in dieses Fenster ziehen.</translation>
    </message>
    <message>
        <source>Download from an instrument</source>
        <translation>Ein Gerät auslesen</translation>
    </message>
    <message>
        <source>Fetches a recording over the serial cable.</source>
        <translation>Holt eine Aufzeichnung über das serielle Kabel.</translation>
    </message>
    <message>
        <source>Open a sample recording</source>
        <translation>Eine Beispielaufzeichnung öffnen</translation>
    </message>
    <message>
        <source>Four weeks of a feeder, to try things out.</source>
        <translation>Vier Wochen eines Abgangs, zum Ausprobieren.</translation>
    </message>
    <message>
        <source>Read the help</source>
        <translation>Die Hilfe lesen</translation>
    </message>
    <message>
        <source>F1 opens it; in an open menu, at the page of that menu.</source>
        <translation>F1 öffnet sie; in einem offenen Menü auf der Seite dieses Menüs.</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Dismiss this notice</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Time under the pointer</source>
        <translation>Zeit unter dem Zeiger</translation>
    </message>
    <message>
        <source>Value under the pointer</source>
        <translation>Wert unter dem Zeiger</translation>
    </message>
    <message>
        <source>What is shown is no longer current.</source>
        <translation>Was gezeigt wird, ist nicht mehr aktuell.</translation>
    </message>
    <message>
        <source>readings %1 to %2 of %3</source>
        <translation>Messwerte %1 bis %2 von %3</translation>
    </message>
    <message>
        <source>table of %1</source>
        <translation>Tabelle von %1</translation>
    </message>
    <message>
        <source>summary of %1</source>
        <translation>Zusammenfassung von %1</translation>
    </message>
    <message>
        <source>Displaying %1</source>
        <translation>Anzeige: %1</translation>
    </message>
    <message>
        <source>Displaying table of %1</source>
        <translation>Anzeige: Tabelle von %1</translation>
    </message>
    <message>
        <source>Displaying summary of %1</source>
        <translation>Anzeige: Zusammenfassung von %1</translation>
    </message>
    <message>
        <source>Displaying load study of %1</source>
        <translation>Anzeige: Laststudie von %1</translation>
    </message>
    <message>
        <source>power table</source>
        <translation>Leistungstabelle</translation>
    </message>
    <message>
        <source>power summary</source>
        <translation>Leistungs-Zusammenfassung</translation>
    </message>
    <message>
        <source>a reception that is not saved</source>
        <translation>ein Empfang, der nicht gespeichert ist</translation>
    </message>
    <message>
        <source>The default directory %1 is not there. File dialogs start in the current one; choose another under Options &gt; Default Dir.</source>
        <translation>Der Standardordner %1 ist nicht da. Dateidialoge beginnen im aktuellen; wählen Sie einen anderen unter Optionen &gt; Standardordner.</translation>
    </message>
    <message>
        <source>%1: %2 forced reading(s), not saved yet.</source>
        <translation>%1: %2 gesetzte(r) Messwert(e), noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1: %2 forced reading, not saved yet.</source>
        <translation>%1: %2 gesetzter Messwert, noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1: %2 forced readings, not saved yet.</source>
        <translation>%1: %2 gesetzte Messwerte, noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1: %2 reading(s) taken back, not saved yet.</source>
        <translation>%1: %2 Messwert(e) zurückgenommen, noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1: %2 reading taken back, not saved yet.</source>
        <translation>%1: %2 Messwert zurückgenommen, noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1: %2 readings taken back, not saved yet.</source>
        <translation>%1: %2 Messwerte zurückgenommen, noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Rückgängig (Strg+Z)</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Forced readings of these files were not saved:</source>
        <translation>Gesetzte Messwerte dieser Dateien wurden nicht gespeichert:</translation>
    </message>
    <message>
        <source>Close without saving them?</source>
        <translation>Schließen, ohne sie zu speichern?</translation>
    </message>
    <message>
        <source>Drag the note to its place; double-click to edit it; Delete removes it.</source>
        <translation>Ziehen Sie die Notiz an ihren Platz; Doppelklick bearbeitet sie, Entf entfernt sie.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Validate</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Give this reception up? It cannot be shown or saved then.</source>
        <translation>Diesen Empfang aufgeben? Er kann dann weder gezeigt noch gespeichert werden.</translation>
    </message>
    <message>
        <source>The notes of the file could not be read.</source>
        <translation>Die Notizen der Datei konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 item(s) of the file could not be read as numbers; each counts with its leading number, or 0</source>
        <translation>%1 Eintrag/Einträge der Datei sind keine Zahlen; jeder zählt mit der Zahl, mit der er beginnt, sonst 0</translation>
    </message>
    <message>
        <source>%1 item of the file could not be read as a number; it counts with its leading number, or 0</source>
        <translation>%1 Eintrag der Datei ist keine Zahl; er zählt mit der Zahl, mit der er beginnt, sonst 0</translation>
    </message>
    <message>
        <source>%1 items of the file could not be read as numbers; each counts with its leading number, or 0</source>
        <translation>%1 Einträge der Datei sind keine Zahlen; jeder zählt mit der Zahl, mit der er beginnt, sonst 0</translation>
    </message>
    <message>
        <source>%1 is open and holds %2 readings.
Replace it by %3?</source>
        <translation>%1 ist offen und hält %2 Messwerte.
Durch %3 ersetzen?</translation>
    </message>
    <message>
        <source>%1 of %2 readings (%3 to %4)</source>
        <translation>%1 von %2 Messwerten (%3 bis %4)</translation>
    </message>
    <message>
        <source>%1 readings</source>
        <translation>%1 Messwerte</translation>
    </message>
    <message>
        <source>Save %1 of %2 readings (%3 to %4)</source>
        <translation>%1 von %2 Messwerten speichern (%3 bis %4)</translation>
    </message>
    <message>
        <source>%1 holds %2 of %3 readings (%4 to %5) of %6.</source>
        <translation>%1 hält %2 von %3 Messwerten (%4 bis %5) von %6.</translation>
    </message>
    <message>
        <source>%1 ends without its end mark; it may have been cut; %2 readings, the oldest number may be incomplete</source>
        <translation>%1 endet ohne Endmarke; die Datei kann abgeschnitten sein; %2 Messwerte, die älteste Zahl kann unvollständig sein</translation>
    </message>
    <message>
        <source>%1: ends without its end mark; it may have been cut; %2 readings, the oldest number may be incomplete</source>
        <translation>%1: endet ohne Endmarke; die Datei kann abgeschnitten sein; %2 Messwerte, die älteste Zahl kann unvollständig sein</translation>
    </message>
    <message>
        <source>Saved in %1: instrument %2, %3 readings.</source>
        <translation>Gespeichert in %1: Gerät %2, %3 Messwerte.</translation>
    </message>
    <message>
        <source>Saved in %1: instrument %2, %3 reading.</source>
        <translation>Gespeichert in %1: Gerät %2, %3 Messwert.</translation>
    </message>
    <message>
        <source>Saved in %1.</source>
        <translation>Gespeichert in %1.</translation>
    </message>
    <message>
        <source>Power factor taken as %1.</source>
        <translation>Als Leistungsfaktor gilt %1.</translation>
    </message>
    <message>
        <source>Power factor taken as %1; the entry is not wholly a number.</source>
        <translation>Als Leistungsfaktor gilt %1; die Eingabe ist nicht ganz eine Zahl.</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; 0 counts as none.</source>
        <translation>Als Netzspannung gelten %1 Volt; 0 zählt als keine.</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; the entry must be volts, not KV</source>
        <translation>Als Netzspannung gelten %1 Volt; einzugeben sind Volt, nicht kV</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; the entry must be volts, not KV (%2 for %3 KV)</source>
        <translation>Als Netzspannung gelten %1 Volt; einzugeben sind Volt, nicht kV (%2 für %3 kV)</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; the entry is not wholly a number.</source>
        <translation>Als Netzspannung gelten %1 Volt; die Eingabe ist nicht ganz eine Zahl.</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>One-page plot</source>
        <translation>Kurve auf einer Seite</translation>
    </message>
    <message>
        <source>Text of the note</source>
        <translation>Text der Notiz</translation>
    </message>
    <message>
        <source>Enter keeps the text, Shift+Enter breaks the line, Escape leaves it as it was</source>
        <translation>Eingabe behält den Text, Umschalt+Eingabe bricht die Zeile um, Esc lässt ihn, wie er war</translation>
    </message>
    <message>
        <source>Enter note here</source>
        <translation>Enter note here</translation>
    </message>
    <message>
        <source>Open chart</source>
        <translation>Diagramm öffnen</translation>
    </message>
    <message>
        <source>Open a chart file</source>
        <translation>Eine Diagrammdatei öffnen</translation>
    </message>
    <message>
        <source>Save chart</source>
        <translation>Diagramm speichern</translation>
    </message>
    <message>
        <source>Save the chart as a chart file</source>
        <translation>Das Diagramm als Diagrammdatei speichern</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Save the chart as PNG, PDF or SVG</source>
        <translation>Das Diagramm als PNG, PDF oder SVG speichern</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the chart as a picture</source>
        <translation>Das Diagramm als Bild kopieren</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print the chart on one page</source>
        <translation>Das Diagramm auf eine Seite drucken</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Show how the chart will be printed</source>
        <translation>Zeigen, wie das Diagramm gedruckt wird</translation>
    </message>
    <message>
        <source>Add note</source>
        <translation>Notiz hinzufügen</translation>
    </message>
    <message>
        <source>Put a text on the chart</source>
        <translation>Einen Text auf das Diagramm setzen</translation>
    </message>
    <message>
        <source>Clear notes</source>
        <translation>Notizen löschen</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Das Bild vergrößern</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>Das Bild verkleinern</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Ganz</translation>
    </message>
    <message>
        <source>Show the whole plot</source>
        <translation>Die ganze Kurve zeigen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Gesuchter Text</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Vorherigen suchen</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Nächsten suchen</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Suchleiste schließen</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Forced readings</source>
        <translation>Gesetzte Messwerte</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>The pages could not be drawn</source>
        <translation>Die Seiten konnten nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; failed</source>
        <translation>Der Drucker „%1“ ist ausgefallen</translation>
    </message>
    <message>
        <source>There is no printer</source>
        <translation>Es gibt keinen Drucker</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has gone</source>
        <translation>Der Drucker „%1“ ist nicht mehr da</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Print this text</source>
        <translation>Diesen Text drucken</translation>
    </message>
    <message>
        <source>See the pages before they are printed</source>
        <translation>Die Seiten vor dem Druck sehen</translation>
    </message>
    <message>
        <source>Copy the selection, or everything</source>
        <translation>Die Auswahl kopieren, oder alles</translation>
    </message>
    <message>
        <source>Search this text (Ctrl+F)</source>
        <translation>Diesen Text durchsuchen (Strg+F)</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Leave the zoom and show every reading</source>
        <translation>Den Zoom verlassen und jeden Messwert zeigen</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Studie</translation>
    </message>
    <message>
        <source>The chart file cannot be read: it is too large</source>
        <translation>Die Diagrammdatei kann nicht gelesen werden: sie ist zu groß</translation>
    </message>
    <message>
        <source>The chart file cannot be read: it is damaged or no chart file</source>
        <translation>Die Diagrammdatei kann nicht gelesen werden: sie ist beschädigt oder keine Diagrammdatei</translation>
    </message>
    <message>
        <source>The chart file cannot be read: %1</source>
        <translation>Die Diagrammdatei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>It is no chart file of this program</source>
        <translation>Es ist keine Diagrammdatei dieses Programms</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program</source>
        <translation>Sie wurde von einer neueren Fassung dieses Programms geschrieben</translation>
    </message>
    <message>
        <source>A note stands outside the chart</source>
        <translation>Eine Notiz steht außerhalb des Diagramms</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>%1 is no object</source>
        <translation>%1 ist kein Objekt</translation>
    </message>
    <message>
        <source>%1 holds &quot;%2&quot;, which is unknown</source>
        <translation>%1 enthält „%2“, das unbekannt ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of at most %2</source>
        <translation>„%1“ ist keine Liste von höchstens %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no text of a usual length</source>
        <translation>„%1“ ist kein Text üblicher Länge</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>„%1“ liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds what is no number</source>
        <translation>„%1“ enthält, was keine Zahl ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a number out of range</source>
        <translation>„%1“ enthält eine Zahl außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds what is no pair</source>
        <translation>„%1“ enthält, was kein Paar ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; are not nine</source>
        <translation>„%1“ sind nicht neun</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds what is no label</source>
        <translation>„%1“ enthält, was keine Beschriftung ist</translation>
    </message>
    <message>
        <source>A picture is saved as .png, .pdf or .svg: %1</source>
        <translation>Ein Bild wird als .png, .pdf oder .svg gespeichert: %1</translation>
    </message>
    <message>
        <source>A picture is between %1 and %2 pixels wide and high, and needs memory for them</source>
        <translation>Ein Bild ist zwischen %1 und %2 Pixel breit und hoch und braucht Speicher dafür</translation>
    </message>
    <message>
        <source>About Tallyline</source>
        <translation>Über Tallyline</translation>
    </message>
    <message>
        <source>Reads, keeps and plots the recordings of portable
electrical load recorders.</source>
        <translation>Liest, bewahrt und zeichnet die Aufzeichnungen
tragbarer elektrischer Lastschreiber.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>GNU GPL 3 or later</source>
        <translation>GNU GPL 3 oder neuer</translation>
    </message>
    <message>
        <source>No Selection Made
Click on filename</source>
        <translation>Nichts ausgewählt
Klicken Sie auf einen Dateinamen</translation>
    </message>
    <message>
        <source>Select Data</source>
        <translation>Daten wählen</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Offene Dateien</translation>
    </message>
    <message>
        <source>Scroll the file paths</source>
        <translation>Die Dateipfade verschieben</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Show scroll data</source>
        <translation>Angaben zeigen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>%1 to %2 %3 readings, range %4</source>
        <translation>%1 bis %2 %3 Messwerte, Bereich %4</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Ort: %1</translation>
    </message>
    <message>
        <source>Circuit: %1</source>
        <translation>Stromkreis: %1</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Name: %1</translation>
    </message>
    <message>
        <source>Other: %1</source>
        <translation>Sonstiges: %1</translation>
    </message>
    <message>
        <source>Note Editor</source>
        <translation>Notizen bearbeiten</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>Circuit:</source>
        <translation>Stromkreis:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Other:</source>
        <translation>Sonstiges:</translation>
    </message>
    <message>
        <source>A comma ends a note when the file is opened again: what follows it moves into the next field.</source>
        <translation>Ein Komma beendet eine Notiz, wenn die Datei wieder geöffnet wird: was ihm folgt, rückt ins nächste Feld.</translation>
    </message>
    <message>
        <source>save</source>
        <translation>speichern</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>abbrechen</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Diesen Ordner nehmen</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File dialogs start in this folder:</source>
        <translation>Dateidialoge beginnen in diesem Ordner:</translation>
    </message>
    <message>
        <source>To force one or all of the readings in the current zoomed range to a particular value, enter the desired new value in the box below, select the number of readings to change and then press OK.</source>
        <translation>Um einen oder alle Messwerte des gezoomten Bereichs auf einen bestimmten Wert zu setzen, geben Sie unten den gewünschten neuen Wert ein, wählen die Anzahl der zu ändernden Messwerte und drücken dann OK.</translation>
    </message>
    <message>
        <source>All Readings (%1)</source>
        <translation>Alle Messwerte (%1)</translation>
    </message>
    <message>
        <source>Leftmost Reading</source>
        <translation>Messwert ganz links</translation>
    </message>
    <message>
        <source>Rightmost Reading</source>
        <translation>Messwert ganz rechts</translation>
    </message>
    <message>
        <source>Force Readings</source>
        <translation>Messwerte setzen</translation>
    </message>
    <message>
        <source>Desired value:</source>
        <translation>Gewünschter Wert:</translation>
    </message>
    <message>
        <source>No. of readings to change:</source>
        <translation>Anzahl zu ändernder Messwerte:</translation>
    </message>
    <message>
        <source>The help file is missing:</source>
        <translation>Die Hilfedatei fehlt:</translation>
    </message>
    <message>
        <source>The help file is damaged:</source>
        <translation>Die Hilfedatei ist beschädigt:</translation>
    </message>
    <message>
        <source>The help file cannot be opened:</source>
        <translation>Die Hilfedatei kann nicht geöffnet werden:</translation>
    </message>
    <message>
        <source>Tallyline Help</source>
        <translation>Tallyline-Hilfe</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>data files (*.dat)</source>
        <translation>Datendateien (*.dat)</translation>
    </message>
    <message>
        <source>Data Displayed</source>
        <translation>Gezeigte Daten</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Error - No file available. Need to open a file.</source>
        <translation>Fehler - Keine Datei vorhanden. Bitte eine Datei öffnen.</translation>
    </message>
    <message>
        <source>Error - No file available. Need to open a file</source>
        <translation>Fehler - Keine Datei vorhanden. Bitte eine Datei öffnen</translation>
    </message>
    <message>
        <source>File not found or disk error</source>
        <translation>Datei nicht gefunden oder Datenträgerfehler</translation>
    </message>
    <message>
        <source>Enter user name below</source>
        <translation>Benutzernamen unten eingeben</translation>
    </message>
    <message>
        <source>Enter line voltage for power calculation
input must be volts, not 'KV'</source>
        <translation>Netzspannung für die Leistungsberechnung eingeben
in Volt, nicht in „kV“</translation>
    </message>
    <message>
        <source>Enter Power Factor to be used
must be 1 or less</source>
        <translation>Leistungsfaktor eingeben
1 oder kleiner</translation>
    </message>
    <message>
        <source>Enter min value for Y Scale</source>
        <translation>Kleinsten Wert der y-Skala eingeben</translation>
    </message>
    <message>
        <source>print on one page</source>
        <translation>print on one page</translation>
    </message>
    <message>
        <source>ONE PAGE PLOT IS ENABLED
Click the Print Icon to print this report</source>
        <translation>KURVE AUF EINER SEITE IST EIN
Zum Drucken auf das Druckersymbol klicken</translation>
    </message>
    <message>
        <source>Enter Recorder ID
No More Than 14 Characters

Power Factor In Use %1; Use OPTIONS to Alter</source>
        <translation>Gerätekennung eingeben
Höchstens 14 Zeichen

Leistungsfaktor in Gebrauch: %1; unter OPTIONEN zu ändern</translation>
    </message>
    <message>
        <source>Software error in mnuItemNotes_Click:
A case that couldn't happen, happened.</source>
        <translation>Softwarefehler in mnuItemNotes_Click:
Ein unmöglicher Fall ist eingetreten.</translation>
    </message>
    <message>
        <source>Software error in ForceRdgs - 'ginx' is out of range</source>
        <translation>Softwarefehler in ForceRdgs - „ginx“ liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Error - New reading is outside the allowable range.
- Must be between 0 and %1</source>
        <translation>Fehler - Der neue Messwert liegt außerhalb des erlaubten Bereichs.
- Er muss zwischen 0 und %1 liegen</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Typ passt nicht</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Ein-/Ausgabefehler des Geräts</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad oder Datei</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Kein Speicher mehr</translation>
    </message>
    <message>
        <source>Invalid property value</source>
        <translation>Ungültiger Wert</translation>
    </message>
    <message>
        <source>Port already open</source>
        <translation>Anschluss schon offen</translation>
    </message>
    <message>
        <source>Invalid port number</source>
        <translation>Ungültige Anschlussnummer</translation>
    </message>
    <message>
        <source>Check its name and folder; it may have been moved or renamed.</source>
        <translation>Prüfen Sie Namen und Ordner; sie kann verschoben oder umbenannt worden sein.</translation>
    </message>
    <message>
        <source>Disk error: it could not be read or written to its end. Try again, or use another disk.</source>
        <translation>Datenträgerfehler: sie konnte nicht bis zum Ende gelesen oder geschrieben werden. Versuchen Sie es noch einmal oder mit einem anderen Datenträger.</translation>
    </message>
    <message>
        <source>Make room on the disk, or choose a folder on another one.</source>
        <translation>Schaffen Sie Platz auf dem Datenträger oder wählen Sie einen Ordner auf einem anderen.</translation>
    </message>
    <message>
        <source>You have no right to it. Ask for the right, or choose another folder.</source>
        <translation>Sie haben kein Recht darauf. Bitten Sie um das Recht oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>It is a folder or a device, or cannot be opened. Choose a file.</source>
        <translation>Es ist ein Ordner oder ein Gerät oder kann nicht geöffnet werden. Wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>Its folder is not there. Make it, or choose another one.</source>
        <translation>Der Ordner ist nicht da. Legen Sie ihn an oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Error number %1: %2</source>
        <translation>Fehler Nummer %1: %2</translation>
    </message>
    <message>
        <source>It has no header of an instrument.</source>
        <translation>Sie hat keinen Kopf eines Geräts.</translation>
    </message>
    <message>
        <source>The mode letter in its header is none of a to l.</source>
        <translation>Der Modusbuchstabe in ihrem Kopf ist keiner von a bis l.</translation>
    </message>
    <message>
        <source>The time in its header is no date and time.</source>
        <translation>Die Zeit in ihrem Kopf ist kein Datum mit Uhrzeit.</translation>
    </message>
    <message>
        <source>There are no readings behind its header.</source>
        <translation>Hinter ihrem Kopf stehen keine Messwerte.</translation>
    </message>
    <message>
        <source>One of its readings is larger than a recording can hold.</source>
        <translation>Einer ihrer Messwerte ist größer, als eine Aufzeichnung fassen kann.</translation>
    </message>
    <message>
        <source>Its readings run into each other and cannot be told apart.</source>
        <translation>Ihre Messwerte laufen ineinander und sind nicht zu trennen.</translation>
    </message>
    <message>
        <source>It is far longer than a recording and has no end mark.</source>
        <translation>Sie ist viel länger als eine Aufzeichnung und hat keine Endmarke.</translation>
    </message>
    <message>
        <source>The file was not changed. Try another copy of it, or download again.</source>
        <translation>Die Datei wurde nicht geändert. Versuchen Sie eine andere Kopie oder lesen Sie noch einmal aus.</translation>
    </message>
    <message>
        <source>Mode mixing not allowed</source>
        <translation>Verschiedene Modi sind nicht erlaubt</translation>
    </message>
    <message>
        <source>Not Voltage file</source>
        <translation>Keine Spannungsdatei</translation>
    </message>
    <message>
        <source>Three files are open already. Use Close first.</source>
        <translation>Drei Dateien sind schon offen. Bitte erst schließen.</translation>
    </message>
    <message>
        <source>It is of mode %1 (%2 min, %3), what is open of mode %4 (%5 min, %6). Open files of one mode together; use Close before files of another.</source>
        <translation>Sie hat den Modus %1 (%2 min, %3), die offenen den Modus %4 (%5 min, %6). Öffnen Sie Dateien eines Modus zusammen; vor denen eines anderen schließen.</translation>
    </message>
    <message>
        <source>It is a recording of current. Choose a file of a voltage recorder.</source>
        <translation>Es ist eine Stromaufzeichnung. Wählen Sie eine Datei eines Spannungsschreibers.</translation>
    </message>
    <message>
        <source>Error in processing file</source>
        <translation>Fehler beim Verarbeiten der Datei</translation>
    </message>
    <message>
        <source>Unknown File Error; Check</source>
        <translation>Unbekannter Dateifehler; bitte prüfen</translation>
    </message>
    <message>
        <source>The files are not all of one unit</source>
        <translation>Die Dateien haben nicht alle eine Einheit</translation>
    </message>
    <message>
        <source>The files have different intervals</source>
        <translation>Die Dateien haben verschiedene Intervalle</translation>
    </message>
    <message>
        <source>The files start no whole number of intervals apart</source>
        <translation>Die Dateien beginnen nicht um ganze Intervalle versetzt</translation>
    </message>
    <message>
        <source>The files have no reading in common</source>
        <translation>Die Dateien haben keinen Messwert gemeinsam</translation>
    </message>
    <message>
        <source>There is no complete reading</source>
        <translation>Es gibt keinen vollständigen Messwert</translation>
    </message>
    <message>
        <source>It holds %1, %2 %3.</source>
        <translation>Sie enthält %1, %2 %3.</translation>
    </message>
    <message>
        <source>amps</source>
        <translation>Ampere</translation>
    </message>
    <message>
        <source>volts</source>
        <translation>Volt</translation>
    </message>
    <message>
        <source>It runs from %1 to %2, the first from %3 to %4.</source>
        <translation>Sie läuft von %1 bis %2, die erste von %3 bis %4.</translation>
    </message>
    <message>
        <source>It starts at %1, the first at %2, and readings are %3 minutes apart.</source>
        <translation>Sie beginnt um %1, die erste um %2, und Messwerte liegen %3 Minuten auseinander.</translation>
    </message>
    <message>
        <source>The zoomed range holds no reading of this file. Nothing was done.</source>
        <translation>Der gezoomte Bereich enthält keinen Messwert dieser Datei. Nichts wurde getan.</translation>
    </message>
    <message>
        <source>The range is %1 to %2 of %3. Show all readings first, or choose another file.</source>
        <translation>Der Bereich ist %1 bis %2 von %3. Zeigen Sie erst alle Messwerte oder wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>Shorter: %1 (%2 of %3 readings)</source>
        <translation>Kürzer: %1 (%2 von %3 Messwerten)</translation>
    </message>
    <message>
        <source>Shorter: %1 (%2 of %3 readings).</source>
        <translation>Kürzer: %1 (%2 von %3 Messwerten).</translation>
    </message>
    <message>
        <source>Shorter: %1 (%2 of %3 readings), %4 (%5 of %6 readings)</source>
        <translation>Kürzer: %1 (%2 von %3 Messwerten), %4 (%5 von %6 Messwerten)</translation>
    </message>
    <message>
        <source>%1 starts %2 after %3;</source>
        <translation>%1 beginnt %2 nach %3;</translation>
    </message>
    <message>
        <source>%1 starts %2 before %3;</source>
        <translation>%1 beginnt %2 vor %3;</translation>
    </message>
    <message>
        <source>readings are combined by number, not by time</source>
        <translation>Messwerte werden nach der Nummer verbunden, nicht nach der Zeit</translation>
    </message>
    <message>
        <source>readings are combined by number, not by time.</source>
        <translation>Messwerte werden nach der Nummer verbunden, nicht nach der Zeit.</translation>
    </message>
    <message>
        <source>%1 starts %2 after %3; readings are combined by number, not by time</source>
        <translation>%1 beginnt %2 nach %3; Messwerte werden nach der Nummer verbunden, nicht nach der Zeit</translation>
    </message>
    <message>
        <source>%1 starts %2 before %3; readings are combined by number, not by time</source>
        <translation>%1 beginnt %2 vor %3; Messwerte werden nach der Nummer verbunden, nicht nach der Zeit</translation>
    </message>
    <message>
        <source>Different units: %1 is in %2, %3 in %4</source>
        <translation>Verschiedene Einheiten: %1 in %2, %3 in %4</translation>
    </message>
    <message>
        <source>Different units: %1 is in %2, %3 in %4.</source>
        <translation>Verschiedene Einheiten: %1 in %2, %3 in %4.</translation>
    </message>
    <message>
        <source>Power of %1 at %2 KV, power factor %3, %4 to %5: %6</source>
        <translation>Leistung von %1 bei %2 kV, Leistungsfaktor %3, %4 bis %5: %6</translation>
    </message>
    <message>
        <source>Files must all be amps for power to plot</source>
        <translation>Für die Leistungskurve müssen alle Dateien Ampere enthalten</translation>
    </message>
    <message>
        <source>Files must be average mode for power to plot</source>
        <translation>Für die Leistungskurve müssen die Dateien Mittelwerte enthalten</translation>
    </message>
    <message>
        <source>only 15 min, avg mode allowed</source>
        <translation>nur 15 min, Mittelwerte erlaubt</translation>
    </message>
    <message>
        <source>The export would replace an open data file. Nothing was written.</source>
        <translation>Der Export würde eine offene Datendatei ersetzen. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>%1 saved OK</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Software Error #2 in Export.bas. Line in gTable$ too short.</source>
        <translation>Softwarefehler Nr. 2 in Export.bas. Zeile in gTable$ zu kurz.</translation>
    </message>
    <message>
        <source>NOT A VALID MODE
INTERVAL MUST BE 15 MINUTES</source>
        <translation>KEIN GÜLTIGER MODUS
DAS INTERVALL MUSS 15 MINUTEN SEIN</translation>
    </message>
    <message>
        <source>The readings hold no whole hour after a midnight. No report was written.</source>
        <translation>Die Messwerte enthalten keine volle Stunde nach einer Mitternacht. Kein Bericht wurde geschrieben.</translation>
    </message>
    <message>
        <source>The power factor in use is above 1; use OPTIONS to alter it. No report was written.</source>
        <translation>Der Leistungsfaktor ist größer als 1; ändern Sie ihn unter OPTIONEN. Kein Bericht wurde geschrieben.</translation>
    </message>
    <message>
        <source>A Recorder ID can hold no double quotes and no control characters. No report was written.</source>
        <translation>Eine Gerätekennung kann keine Anführungszeichen und keine Steuerzeichen enthalten. Kein Bericht wurde geschrieben.</translation>
    </message>
    <message>
        <source>The journal of downloads cannot be written in %1: %2. A download that is not saved is lost when the program ends.</source>
        <translation>Das Journal der Auslesungen kann nicht in %1 geschrieben werden: %2. Eine nicht gespeicherte Auslesung ist verloren, wenn das Programm endet.</translation>
    </message>
    <message>
        <source>the folder cannot be brought to the disk</source>
        <translation>der Ordner kann nicht auf den Datenträger gebracht werden</translation>
    </message>
    <message>
        <source>simulated instrument</source>
        <translation>simuliertes Gerät</translation>
    </message>
    <message>
        <source>%1 is not there. Check that the adapter is plugged in.</source>
        <translation>%1 ist nicht da. Prüfen Sie, ob der Adapter steckt.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>There is no permission to use %1. Add yourself to group dialout and log in again.</source>
        <translation>Es fehlt das Recht auf %1. Tragen Sie sich in die Gruppe dialout ein und melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>%1 is not a serial line.</source>
        <translation>%1 ist keine serielle Leitung.</translation>
    </message>
    <message>
        <source>The serial line %1 takes no more characters. It was closed.</source>
        <translation>Die serielle Leitung %1 nimmt keine Zeichen mehr an. Sie wurde geschlossen.</translation>
    </message>
    <message>
        <source>The serial line %1 has gone. Was the adapter or its cable pulled out?</source>
        <translation>Die serielle Leitung %1 ist weg. Wurde der Adapter oder sein Kabel gezogen?</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged. The last good copy is used.</source>
        <translation>Die Einstellungsdatei %1 ist beschädigt. Die letzte gute Kopie wird benutzt.</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged. What could be read of it is used.</source>
        <translation>Die Einstellungsdatei %1 ist beschädigt. Was davon lesbar war, wird benutzt.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2.</source>
        <translation>Die Einstellungsdatei %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The settings cannot be saved in %1: %2. They hold until the program ends.</source>
        <translation>Die Einstellungen können nicht in %1 gespeichert werden: %2. Sie gelten, bis das Programm endet.</translation>
    </message>
    <message>
        <source>Home (%1)</source>
        <translation>Persönlicher Ordner (%1)</translation>
    </message>
    <message>
        <source>CAUTION

For Voltage Recorders press
the display switch until the
reading appears.

Then press OK</source>
        <translation>ACHTUNG

Bei Spannungsschreibern den
Anzeigeschalter drücken, bis der
Messwert erscheint.

Dann OK drücken</translation>
    </message>
    <message>
        <source>LOW INSTRUMENT BATTERY</source>
        <translation>GERÄTEBATTERIE SCHWACH</translation>
    </message>
    <message>
        <source>Communication port not valid.
Try selecting a different COM port</source>
        <translation>Anschluss ungültig.
Wählen Sie einen anderen COM-Anschluss</translation>
    </message>
    <message>
        <source>Check that the instrument is connected or try selecting some other
instrument type (using Options &gt; Instrument Selection).</source>
        <translation>Prüfen Sie, ob das Gerät angeschlossen ist, oder wählen Sie einen
anderen Gerätetyp (unter Optionen &gt; Gerätetyp wählen).</translation>
    </message>
    <message>
        <source>Insert the cable into the instrument.</source>
        <translation>Stecken Sie das Kabel in das Gerät.</translation>
    </message>
    <message>
        <source>Then Press 'OK'.</source>
        <translation>Dann drücken Sie „OK“.</translation>
    </message>
    <message>
        <source>Press 'OK'.</source>
        <translation>Drücken Sie „OK“.</translation>
    </message>
    <message>
        <source>Then insert the cable into the instrument.</source>
        <translation>Dann stecken Sie das Kabel in das Gerät.</translation>
    </message>
    <message>
        <source>(If the interface has a transfer switch,
make sure it's set to 'TRANSFER'.)</source>
        <translation>(Hat das Interface einen Umschalter,
muss er auf „TRANSFER“ stehen.)</translation>
    </message>
    <message>
        <source>Auto select: Initial port settings = %1</source>
        <translation>Automatik: Anfangseinstellung des Anschlusses = %1</translation>
    </message>
    <message>
        <source>Hit 'Cancel' or use ESC key to quit</source>
        <translation>Zum Beenden „Abbrechen“ oder Esc drücken</translation>
    </message>
    <message>
        <source>Waiting for the instrument to send its recording.</source>
        <translation>Warte, dass das Gerät seine Aufzeichnung sendet.</translation>
    </message>
    <message>
        <source>Now insert the cable into the instrument.</source>
        <translation>Jetzt das Kabel in das Gerät stecken.</translation>
    </message>
    <message>
        <source>The instrument is sending. Leave the cable in until the end.</source>
        <translation>Das Gerät sendet. Lassen Sie das Kabel bis zum Ende stecken.</translation>
    </message>
    <message>
        <source>RETURN THE SWITCH TO 'STANDBY'
OR REMOVE THE CABLE NOW</source>
        <translation>DEN SCHALTER JETZT AUF „STANDBY“ STELLEN
ODER DAS KABEL ABZIEHEN</translation>
    </message>
    <message>
        <source>%1 in use
Cancel or Escape to quit</source>
        <translation>%1 in Gebrauch
Abbrechen oder Esc zum Beenden</translation>
    </message>
    <message>
        <source>Cancel or Escape to quit
%1 in use</source>
        <translation>Abbrechen oder Esc zum Beenden
%1 in Gebrauch</translation>
    </message>
    <message>
        <source>Nothing has come since %1. Check that the cable sits firmly at both ends, that a transfer switch is set to TRANSFER, and that %2 and the type %3 are the right ones. Cancel or Escape ends the wait.</source>
        <translation>Seit %1 kam nichts. Prüfen Sie, ob das Kabel an beiden Enden fest sitzt, ein Umschalter auf TRANSFER steht und %2 und der Typ %3 die richtigen sind. Abbrechen oder Esc beendet das Warten.</translation>
    </message>
    <message>
        <source>Waiting for response from the unit.</source>
        <translation>Warte auf Antwort des Geräts.</translation>
    </message>
    <message>
        <source>Characters received so far:%1</source>
        <translation>Bisher empfangene Zeichen: %1</translation>
    </message>
    <message>
        <source>Waiting for data...</source>
        <translation>Warte auf Daten...</translation>
    </message>
    <message>
        <source>Terminated by waiting for data</source>
        <translation>Beim Warten auf Daten beendet</translation>
    </message>
    <message>
        <source>Treating unit as %1. Got a response. Downloading data...</source>
        <translation>Gerät gilt als %1. Antwort erhalten. Daten werden geholt...</translation>
    </message>
    <message>
        <source>Treating unit as %1. Waiting for response...</source>
        <translation>Gerät gilt als %1. Warte auf Antwort...</translation>
    </message>
    <message>
        <source>Now treating unit as %1. Waiting for response...</source>
        <translation>Gerät gilt jetzt als %1. Warte auf Antwort...</translation>
    </message>
    <message>
        <source>No response. Changing settings. (Takes about 5 seconds)...</source>
        <translation>Keine Antwort. Einstellung wird gewechselt. (Dauert etwa 5 Sekunden)...</translation>
    </message>
    <message>
        <source>Bad header. Changing settings. (Takes about 5 seconds)...</source>
        <translation>Falscher Kopf. Einstellung wird gewechselt. (Dauert etwa 5 Sekunden)...</translation>
    </message>
    <message>
        <source>No response.</source>
        <translation>Keine Antwort.</translation>
    </message>
    <message>
        <source>No response in %1 seconds</source>
        <translation>Keine Antwort in %1 Sekunden</translation>
    </message>
    <message>
        <source>No response in %1 seconds.</source>
        <translation>Keine Antwort in %1 Sekunden.</translation>
    </message>
    <message>
        <source>No response in %1 seconds at each of two different baud rates.</source>
        <translation>Keine Antwort in %1 Sekunden bei jeder von zwei Baudraten.</translation>
    </message>
    <message>
        <source>Check that the instrument is connected.
Otherwise remove the cable from the instrument, and then
try selecting some other instrument type
(using Options &gt; Instrument Selection).</source>
        <translation>Prüfen Sie, ob das Gerät angeschlossen ist.
Sonst ziehen Sie das Kabel vom Gerät ab und
wählen einen anderen Gerätetyp
(unter Optionen &gt; Gerätetyp wählen).</translation>
    </message>
    <message>
        <source>Response from instrument not valid.
Remove the cable from the instrument, and then
try selecting some other instrument type
(using Options &gt; Instrument Selection)</source>
        <translation>Antwort des Geräts ungültig.
Ziehen Sie das Kabel vom Gerät ab und
wählen Sie einen anderen Gerätetyp
(unter Optionen &gt; Gerätetyp wählen)</translation>
    </message>
    <message>
        <source>Ready to start download.</source>
        <translation>Bereit zum Auslesen.</translation>
    </message>
    <message>
        <source>Total No. of characters received = %1</source>
        <translation>Empfangene Zeichen insgesamt = %1</translation>
    </message>
    <message>
        <source>PROCESSING DATA; WAIT</source>
        <translation>DATEN WERDEN VERARBEITET; BITTE WARTEN</translation>
    </message>
    <message>
        <source>No. of characters processed = %1</source>
        <translation>Verarbeitete Zeichen = %1</translation>
    </message>
    <message>
        <source>PROCEED</source>
        <translation>WEITER</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>WARNUNG</translation>
    </message>
    <message>
        <source>Enter date and time of the field initialization
using format 'mm-dd-yy hh:mm'</source>
        <translation>Datum und Uhrzeit der Initialisierung im Feld eingeben
in der Form „mm-dd-yy hh:mm“</translation>
    </message>
    <message>
        <source>Instrument Information from download</source>
        <translation>Angaben des ausgelesenen Geräts</translation>
    </message>
    <message>
        <source>REMEMBER TO SAVE THIS DOWNLOAD TO A FILE</source>
        <translation>DENKEN SIE DARAN, DIESE AUSLESUNG ZU SPEICHERN</translation>
    </message>
    <message>
        <source>Instrument clock: the same as this computer's</source>
        <translation>Geräteuhr: wie die dieses Rechners</translation>
    </message>
    <message>
        <source>Instrument clock: %1 min ahead of this computer's</source>
        <translation>Geräteuhr: geht %1 min vor gegen diesen Rechner</translation>
    </message>
    <message>
        <source>Instrument clock: %1 min behind this computer's</source>
        <translation>Geräteuhr: geht %1 min nach gegen diesen Rechner</translation>
    </message>
    <message>
        <source>Instrument clock: %1 days ahead of this computer's</source>
        <translation>Geräteuhr: %1 Tage vor diesem Rechner</translation>
    </message>
    <message>
        <source>Instrument clock: %1 days behind this computer's</source>
        <translation>Geräteuhr: %1 Tage hinter diesem Rechner</translation>
    </message>
    <message>
        <source>Mode: unknown</source>
        <translation>Modus: unbekannt</translation>
    </message>
    <message>
        <source>Mode: Min/Max/Avg %1 min interval</source>
        <translation>Modus: Min/Max/Mittel, Intervall %1 min</translation>
    </message>
    <message>
        <source>Mode: Average %1 min interval</source>
        <translation>Modus: Mittelwert, Intervall %1 min</translation>
    </message>
    <message>
        <source>Readings: %1</source>
        <translation>Messwerte: %1</translation>
    </message>
    <message>
        <source>They span: %1 d %2 h %3 min</source>
        <translation>Sie umfassen: %1 d %2 h %3 min</translation>
    </message>
    <message>
        <source>The memory holds: %1 readings</source>
        <translation>Der Speicher fasst: %1 Messwerte</translation>
    </message>
    <message>
        <source>Type: %1 Ser. %2</source>
        <translation>Typ: %1 Nr. %2</translation>
    </message>
    <message>
        <source>Start Time %1</source>
        <translation>Beginn %1</translation>
    </message>
    <message>
        <source>Downloaded (stopped): %1</source>
        <translation>Ausgelesen (gestoppt): %1</translation>
    </message>
    <message>
        <source>Downloaded or stopped at: %1</source>
        <translation>Ausgelesen oder gestoppt: %1</translation>
    </message>
    <message>
        <source>InsertErrors(): Couldn't find 'T:' in gText$</source>
        <translation>InsertErrors(): „T:“ in gText$ nicht gefunden</translation>
    </message>
    <message>
        <source>(no instrument selected)</source>
        <translation>(kein Gerät gewählt)</translation>
    </message>
    <message>
        <source>PQX (the original model)</source>
        <translation>PQX (das ursprüngliche Modell)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>PQX-K4 Auto Select</source>
        <translation>PQX-K4 Automatik</translation>
    </message>
    <message>
        <source>PQX-K4-AutoDetect</source>
        <translation>PQX-K4-Automatik</translation>
    </message>
    <message>
        <source>The mode letter of the recording could not be read (the header ends before it).</source>
        <translation>Der Modusbuchstabe der Aufzeichnung war nicht lesbar (der Kopf endet davor).</translation>
    </message>
    <message>
        <source>The mode letter of the recording could not be read (%1).</source>
        <translation>Der Modusbuchstabe der Aufzeichnung war nicht lesbar (%1).</translation>
    </message>
    <message>
        <source>What the instrument sent is kept. Which interval and mode did it record with?</source>
        <translation>Was das Gerät sandte, ist aufgehoben. Mit welchem Intervall und Modus hat es aufgezeichnet?</translation>
    </message>
    <message>
        <source>The recording that was downloaded is in no file.</source>
        <translation>Die ausgelesene Aufzeichnung steht in keiner Datei.</translation>
    </message>
    <message>
        <source>Save it now?</source>
        <translation>Jetzt speichern?</translation>
    </message>
    <message>
        <source>Give the recording up? It cannot be got back then.</source>
        <translation>Die Aufzeichnung aufgeben? Sie ist dann nicht wiederzubekommen.</translation>
    </message>
    <message>
        <source>Invalid Port</source>
        <translation>Ungültiger Anschluss</translation>
    </message>
    <message>
        <source>%1: in use by another program</source>
        <translation>%1: von einem anderen Programm benutzt</translation>
    </message>
    <message>
        <source>%1: no permission: add yourself to group dialout and log in again</source>
        <translation>%1: kein Recht: tragen Sie sich in die Gruppe dialout ein und melden Sie sich neu an</translation>
    </message>
    <message>
        <source>%1: not there</source>
        <translation>%1: nicht da</translation>
    </message>
    <message>
        <source>%1: free</source>
        <translation>%1: frei</translation>
    </message>
    <message>
        <source>%1 character followed the end mark of the recording.
It may be cut short there: download it again before you initialize the instrument.</source>
        <translation>%1 Zeichen folgte der Endmarke der Aufzeichnung.
Sie kann dort abgeschnitten sein: lesen Sie sie noch einmal aus, bevor Sie das Gerät initialisieren.</translation>
    </message>
    <message>
        <source>%1 characters followed the end mark of the recording.
It may be cut short there: download it again before you initialize the instrument.</source>
        <translation>%1 Zeichen folgten der Endmarke der Aufzeichnung.
Sie kann dort abgeschnitten sein: lesen Sie sie noch einmal aus, bevor Sie das Gerät initialisieren.</translation>
    </message>
    <message>
        <source>Bad data. Try downloading again.</source>
        <translation>Schlechte Daten. Lesen Sie noch einmal aus.</translation>
    </message>
    <message>
        <source>No was taken: the download was not kept.</source>
        <translation>Nein wurde gewählt: die Auslesung wurde nicht behalten.</translation>
    </message>
    <message>
        <source>No date was given: the download was not kept.</source>
        <translation>Kein Datum wurde angegeben: die Auslesung wurde nicht behalten.</translation>
    </message>
    <message>
        <source>being received</source>
        <translation>wird empfangen</translation>
    </message>
    <message>
        <source>interrupted, not saved</source>
        <translation>unterbrochen, nicht gespeichert</translation>
    </message>
    <message>
        <source>received, not saved</source>
        <translation>empfangen, nicht gespeichert</translation>
    </message>
    <message>
        <source>accepted, not saved yet</source>
        <translation>angenommen, noch nicht gespeichert</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>dropped</source>
        <translation>verworfen</translation>
    </message>
    <message>
        <source>download</source>
        <translation>Auslesen</translation>
    </message>
    <message>
        <source>recover</source>
        <translation>Retten</translation>
    </message>
    <message>
        <source>%1 %2 on %3, %4 characters: %5</source>
        <translation>%1 %2 an %3, %4 Zeichen: %5</translation>
    </message>
    <message>
        <source>%1 download on %2, %3 characters: %4</source>
        <translation>%1 Auslesen an %2, %3 Zeichen: %4</translation>
    </message>
    <message>
        <source>%1 download on %2, %3 Ser. %4, %5 characters: %6</source>
        <translation>%1 Auslesen an %2, %3 Nr. %4, %5 Zeichen: %6</translation>
    </message>
    <message>
        <source>%1 recover on %2, %3 characters: %4</source>
        <translation>%1 Retten an %2, %3 Zeichen: %4</translation>
    </message>
    <message>
        <source>%1 recover on %2, %3 Ser. %4, %5 characters: %6</source>
        <translation>%1 Retten an %2, %3 Nr. %4, %5 Zeichen: %6</translation>
    </message>
    <message>
        <source>Flag settings per 'runspec.txt' file:</source>
        <translation>Schalter nach der Datei „runspec.txt“:</translation>
    </message>
    <message>
        <source>No valid run specs found in 'runspec.txt'.
- To avoid getting this message either fix file 'runspec.txt'
or delete it.</source>
        <translation>Keine gültigen Angaben in „runspec.txt“ gefunden.
- Berichtigen oder löschen Sie „runspec.txt“,
um diese Meldung zu vermeiden.</translation>
    </message>
    <message>
        <source>WAITING FOR RESPONSE FROM INSTRUMENT</source>
        <translation>WARTE AUF ANTWORT DES GERÄTS</translation>
    </message>
    <message>
        <source>READY</source>
        <translation>BEREIT</translation>
    </message>
    <message>
        <source>Status check complete. You may disconnect the instrument now.
Do you want to do another?</source>
        <translation>Statusprüfung beendet. Sie können das Gerät jetzt abziehen.
Möchten Sie noch eines prüfen?</translation>
    </message>
    <message>
        <source>Do you want to do another?</source>
        <translation>Möchten Sie noch eines?</translation>
    </message>
    <message>
        <source>By the 2nd timeout, the following incomplete header had been received:
Line1 = '%1'. Length=%2</source>
        <translation>Bis zur 2. Zeitüberschreitung kam dieser unvollständige Kopf an:
Zeile 1 = '%1'. Länge=%2</translation>
    </message>
    <message>
        <source>Invalid header fragment received: '%1'</source>
        <translation>Ungültiges Stück eines Kopfes empfangen: '%1'</translation>
    </message>
    <message>
        <source>After the 2nd timeout, the following erroneous Line1 characters had been received:%1</source>
        <translation>Nach der 2. Zeitüberschreitung waren diese falschen Zeichen der Zeile 1 angekommen: %1</translation>
    </message>
    <message>
        <source>In TLY.mnuItemStatusCheck_Click: Port found open. So I'll close it.</source>
        <translation>In TLY.mnuItemStatusCheck_Click: Anschluss offen gefunden. Er wird geschlossen.</translation>
    </message>
    <message>
        <source>Status Check OK but...</source>
        <translation>Statusprüfung in Ordnung, aber...</translation>
    </message>
    <message>
        <source>Type: %1 Serial Number %2</source>
        <translation>Typ: %1 Seriennummer %2</translation>
    </message>
    <message>
        <source>Mode setting: %1 Time On: %2 (%3) Condition: %4</source>
        <translation>Modus: %1 Ein seit: %2 (%3) Zustand: %4</translation>
    </message>
    <message>
        <source>Mode setting: Average %1 min Cont Time On: %2 (%3) Condition: %4</source>
        <translation>Modus: Mittelwert %1 min fortlaufend Ein seit: %2 (%3) Zustand: %4</translation>
    </message>
    <message>
        <source>Mode setting: Average %1 min Stop Time On: %2 (%3) Condition: %4</source>
        <translation>Modus: Mittelwert %1 min Stopp Ein seit: %2 (%3) Zustand: %4</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg %1 min Cont Time On: %2 (%3) Condition: %4</source>
        <translation>Modus: Min/Max/Mittel %1 min fortlaufend Ein seit: %2 (%3) Zustand: %4</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg %1 min Stop Time On: %2 (%3) Condition: %4</source>
        <translation>Modus: Min/Max/Mittel %1 min Stopp Ein seit: %2 (%3) Zustand: %4</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>HVN 40 and 80 have no mode letter; they record 15-minute averages in a continuous loop.</source>
        <translation>HVN 40 und 80 haben keinen Modusbuchstaben; sie zeichnen 15-Minuten-Mittelwerte fortlaufend auf.</translation>
    </message>
    <message>
        <source>Vbatt = %1 volts</source>
        <translation>Vbatt = %1 Volt</translation>
    </message>
    <message>
        <source>Auto-selected settings now being used are for the %1</source>
        <translation>Die automatisch gewählte Einstellung gilt für %1</translation>
    </message>
    <message>
        <source>Downloaded data has the following error(s):</source>
        <translation>Die ausgelesenen Daten haben diese(n) Fehler:</translation>
    </message>
    <message>
        <source>• %1 line(s) with an incorrect number of readings</source>
        <translation>• %1 Zeile(n) mit falscher Zahl von Messwerten</translation>
    </message>
    <message>
        <source>• %1 reading(s) over 999</source>
        <translation>• %1 Messwert(e) über 999</translation>
    </message>
    <message>
        <source>• %1 terminating ctrl/z characters found (should be exactly 1)</source>
        <translation>• %1 abschließende Strg/Z-Zeichen gefunden (genau 1 erwartet)</translation>
    </message>
    <message>
        <source>• %1 bad character(s)</source>
        <translation>• %1 falsche(s) Zeichen</translation>
    </message>
    <message>
        <source>(ASCII value of first bad character = %1)</source>
        <translation>(ASCII-Wert des ersten falschen Zeichens = %1)</translation>
    </message>
    <message>
        <source>Do you want to save this file anyway?
(If you click 'No' you can try another Download.)</source>
        <translation>Möchten Sie diese Datei trotzdem speichern?
(Mit „Nein“ können Sie noch einmal auslesen.)</translation>
    </message>
    <message>
        <source>Download had %1 '999' reading(s)
(which was/were converted to '000')</source>
        <translation>Die Auslesung enthielt %1 Messwert(e) „999“
(in „000“ umgewandelt)</translation>
    </message>
    <message>
        <source>Download had %1 '999' reading(s)
(which was/were left as is)</source>
        <translation>Die Auslesung enthielt %1 Messwert(e) „999“
(so belassen)</translation>
    </message>
    <message>
        <source>DownLoad</source>
        <translation>Auslesen</translation>
    </message>
    <message>
        <source>Instrument Properties</source>
        <translation>Geräteeigenschaften</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>Maximum Samples</source>
        <translation>Größte Zahl von Messwerten</translation>
    </message>
    <message>
        <source>%1 (Special Test)</source>
        <translation>%1 (Sondertest)</translation>
    </message>
    <message>
        <source>%1 (Original PQX)</source>
        <translation>%1 (ursprünglicher PQX)</translation>
    </message>
    <message>
        <source>%1 (512 kbit eeprom)</source>
        <translation>%1 (512 kbit EEPROM)</translation>
    </message>
    <message>
        <source>%1 (256 kbit eeprom)</source>
        <translation>%1 (256 kbit EEPROM)</translation>
    </message>
    <message>
        <source>%1 (128 kbit eeprom)</source>
        <translation>%1 (128 kbit EEPROM)</translation>
    </message>
    <message>
        <source>Instrument Selection</source>
        <translation>Gerätewahl</translation>
    </message>
    <message>
        <source>Must first select an instrument type:</source>
        <translation>Zuerst muss ein Gerätetyp gewählt werden:</translation>
    </message>
    <message>
        <source>Please select the instrument you're using and then Press OK.</source>
        <translation>Bitte wählen Sie Ihr Gerät und drücken Sie dann OK.</translation>
    </message>
    <message>
        <source>None of the above</source>
        <translation>Keines davon</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Com Port Selection</source>
        <translation>COM-Anschluss wählen</translation>
    </message>
    <message>
        <source>ComPort</source>
        <translation>COM-Anschluss</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerätepfad</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Zuordnen</translation>
    </message>
    <message>
        <source>Assign puts another device behind a port: an adapter, or the simulated instrument.</source>
        <translation>Zuordnen setzt etwas anderes hinter einen Anschluss: einen Adapter oder das simulierte Gerät.</translation>
    </message>
    <message>
        <source>Assign a device to %1</source>
        <translation>Etwas an %1 zuordnen</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>%1 (the usual one)</source>
        <translation>%1 (das übliche)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Debugging log:</source>
        <translation>Protokoll:</translation>
    </message>
    <message>
        <source>Debugging log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>What to check</source>
        <translation>Was zu prüfen ist</translation>
    </message>
    <message>
        <source>Status Check</source>
        <translation>Status prüfen</translation>
    </message>
    <message>
        <source>Warning! - This Function will clear
All previous Data from the instrument
Select 'OK' to continue, or 'CANCEL' to abort</source>
        <translation>Warnung! - Diese Funktion löscht
alle bisherigen Daten des Geräts
„OK“ fährt fort, „ABBRECHEN“ bricht ab</translation>
    </message>
    <message>
        <source>INITIALIZING...
- May take around 15 seconds

(You can cancel at any time)</source>
        <translation>INITIALISIERUNG...
- Kann etwa 15 Sekunden dauern

(Sie können jederzeit abbrechen)</translation>
    </message>
    <message>
        <source>Initializing erases the instrument. Initialize it anyway?</source>
        <translation>Das Initialisieren löscht das Gerät. Trotzdem initialisieren?</translation>
    </message>
    <message>
        <source>Instrument is initializing...</source>
        <translation>Das Gerät wird initialisiert...</translation>
    </message>
    <message>
        <source>Initialization is complete, but...</source>
        <translation>Die Initialisierung ist beendet, aber...</translation>
    </message>
    <message>
        <source>interrupted, NOT SAVED YET</source>
        <translation>unterbrochen, NOCH NICHT GESPEICHERT</translation>
    </message>
    <message>
        <source>NOT SAVED YET</source>
        <translation>NOCH NICHT GESPEICHERT</translation>
    </message>
    <message>
        <source>interrupted, NOT SAVED YET;</source>
        <translation>unterbrochen, NOCH NICHT GESPEICHERT;</translation>
    </message>
    <message>
        <source>NOT SAVED YET;</source>
        <translation>NOCH NICHT GESPEICHERT;</translation>
    </message>
    <message>
        <source>saved;</source>
        <translation>gespeichert;</translation>
    </message>
    <message>
        <source>refused;</source>
        <translation>abgelehnt;</translation>
    </message>
    <message>
        <source>dropped;</source>
        <translation>verworfen;</translation>
    </message>
    <message>
        <source>%1 more NOT SAVED YET</source>
        <translation>%1 weitere NOCH NICHT GESPEICHERT</translation>
    </message>
    <message>
        <source>without number (%1):</source>
        <translation>ohne Nummer (%1):</translation>
    </message>
    <message>
        <source>No downloads are known on this computer.</source>
        <translation>Auf diesem Rechner sind keine Auslesungen bekannt.</translation>
    </message>
    <message>
        <source>Last downloads:</source>
        <translation>Letzte Auslesungen:</translation>
    </message>
    <message>
        <source>A download of this instrument is not saved yet:</source>
        <translation>Eine Auslesung dieses Geräts ist noch nicht gespeichert:</translation>
    </message>
    <message>
        <source>HVN 40 or 80 only have 15 min average, continuoue mode</source>
        <translation>HVN 40 oder 80 kennen nur 15-min-Mittelwerte, fortlaufend</translation>
    </message>
    <message>
        <source>Initialization complete. New settings as read back from instrument:</source>
        <translation>Initialisierung beendet. Neue Einstellung, vom Gerät zurückgelesen:</translation>
    </message>
    <message>
        <source>Mode setting: Average Cont %1 min interval</source>
        <translation>Modus: Mittelwert, fortlaufend, Intervall %1 min</translation>
    </message>
    <message>
        <source>Mode setting: Average Stop %1 min interval</source>
        <translation>Modus: Mittelwert, Stopp, Intervall %1 min</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg Cont %1 min interval</source>
        <translation>Modus: Min/Max/Mittel, fortlaufend, Intervall %1 min</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg Stop %1 min interval</source>
        <translation>Modus: Min/Max/Mittel, Stopp, Intervall %1 min</translation>
    </message>
    <message>
        <source>Time %1</source>
        <translation>Zeit %1</translation>
    </message>
    <message>
        <source>CAUTION
DATA MAY NOT BE RECOVERED IF
INSTRUMENT HAD BEEN IN
CONTINUOUS MODE AND MEMORY FILLED</source>
        <translation>ACHTUNG
DATEN SIND NICHT ZU RETTEN, WENN
DAS GERÄT FORTLAUFEND AUFZEICHNETE
UND DER SPEICHER VOLL WURDE</translation>
    </message>
    <message>
        <source>OK TO REMOVE THE CABLE NOW</source>
        <translation>DAS KABEL KANN ABGEZOGEN WERDEN</translation>
    </message>
    <message>
        <source>The 'Recover' feature is not implemented for the case of the
instrument type being 'Auto Select'.</source>
        <translation>„Retten“ gibt es nicht für den
Gerätetyp „Automatik“.</translation>
    </message>
    <message>
        <source>Instead do a 'Status check' to see what instrument type the Tallyline
ends up treating is as. (It will most likely be %1 or %2.)</source>
        <translation>Prüfen Sie stattdessen den Status: er zeigt, als welchen Gerätetyp
Tallyline das Gerät behandelt. (Wahrscheinlich %1 oder %2.)</translation>
    </message>
    <message>
        <source>Then use Options &gt; Instrument Selection to specifically select
the type of instrument being used, and the 'Recover' feature will
then be available.</source>
        <translation>Wählen Sie dann unter Optionen &gt; Gerätetyp wählen genau diesen
Gerätetyp, und „Retten“ steht
zur Verfügung.</translation>
    </message>
    <message>
        <source>NOT A VALID INSTRUMENT
REMOVE THE CABLE NOW</source>
        <translation>KEIN GÜLTIGES GERÄT
DAS KABEL JETZT ABZIEHEN</translation>
    </message>
    <message>
        <source>Not Voltmeter</source>
        <translation>Kein Spannungsmesser</translation>
    </message>
    <message>
        <source>CONTINUOUS DATA; NOT RECOVERABLE
CANNOT DETERMINE STOPPED TIME</source>
        <translation>FORTLAUFENDE DATEN; NICHT ZU RETTEN
STOPPZEIT NICHT ZU BESTIMMEN</translation>
    </message>
    <message>
        <source>The recording was cut short before its end mark: the time at which it stopped cannot be worked out. Recover it again.</source>
        <translation>Die Aufzeichnung wurde vor ihrer Endmarke abgeschnitten: die Zeit, zu der sie stoppte, lässt sich nicht bestimmen. Retten Sie sie noch einmal.</translation>
    </message>
    <message>
        <source>Terminating the initialization</source>
        <translation>Die Initialisierung wird beendet</translation>
    </message>
    <message>
        <source>Initialize</source>
        <translation>Initialisieren</translation>
    </message>
    <message>
        <source>NO REPONSE</source>
        <translation>KEINE ANTWORT</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ABBRECHEN</translation>
    </message>
    <message>
        <source>Initialization Options</source>
        <translation>Initialisierung</translation>
    </message>
    <message>
        <source>Select Time</source>
        <translation>Intervall wählen</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 Minuten</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 Minuten</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <source>Average or Min/Max/Avg</source>
        <translation>Mittelwert oder Min/Max/Mittel</translation>
    </message>
    <message>
        <source>Min/Max/Avg</source>
        <translation>Min/Max/Mittel</translation>
    </message>
    <message>
        <source>Continuous or Stop</source>
        <translation>Fortlaufend oder Stopp</translation>
    </message>
    <message>
        <source>Continuous Loop</source>
        <translation>Fortlaufend</translation>
    </message>
    <message>
        <source>Stop when memory full</source>
        <translation>Stopp bei vollem Speicher</translation>
    </message>
    <message>
        <source>Last downloads</source>
        <translation>Letzte Auslesungen</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>failed battery recovery</source>
        <translation>Rettung nach Batterieausfall</translation>
    </message>
    <message>
        <source>Enter Station Name</source>
        <translation>Namen der Station eingeben</translation>
    </message>
    <message>
        <source>Station Name</source>
        <translation>Name der Station</translation>
    </message>
    <message>
        <source>Station Peak</source>
        <translation>Stationsspitze</translation>
    </message>
    <message>
        <source>EnterFeeder Name or use default</source>
        <translation>Namen des Abgangs eingeben oder Vorgabe nehmen</translation>
    </message>
    <message>
        <source>Red Phase</source>
        <translation>Rote Phase</translation>
    </message>
    <message>
        <source>WhitePhase</source>
        <translation>Weiße Phase</translation>
    </message>
    <message>
        <source>Blue Phase</source>
        <translation>Blaue Phase</translation>
    </message>
    <message>
        <source>File of the red phase</source>
        <translation>Datei der roten Phase</translation>
    </message>
    <message>
        <source>File of the white phase</source>
        <translation>Datei der weißen Phase</translation>
    </message>
    <message>
        <source>File of the blue phase</source>
        <translation>Datei der blauen Phase</translation>
    </message>
    <message>
        <source>Show Result</source>
        <translation>Ergebnis zeigen</translation>
    </message>
    <message>
        <source>Show Station Peak</source>
        <translation>Stationsspitze zeigen</translation>
    </message>
    <message>
        <source>PRINT ALL FEEDER RESULTS</source>
        <translation>ALLE ABGANGSERGEBNISSE DRUCKEN</translation>
    </message>
    <message>
        <source>Preview of all feeder results</source>
        <translation>Vorschau aller Abgangsergebnisse</translation>
    </message>
    <message>
        <source>PRINT STATION PEAK</source>
        <translation>STATIONSSPITZE DRUCKEN</translation>
    </message>
    <message>
        <source>Preview of the station peak</source>
        <translation>Vorschau der Stationsspitze</translation>
    </message>
    <message>
        <source>CLOSE WINDOW</source>
        <translation>FENSTER SCHLIESSEN</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>ERGEBNIS</translation>
    </message>
    <message>
        <source>NEXT FEEDER</source>
        <translation>NÄCHSTER ABGANG</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Feeder%1</source>
        <translation>Abgang%1</translation>
    </message>
    <message>
        <source>TARNWELL STATION FEEDER REPORT</source>
        <translation>TARNWELL STATION FEEDER REPORT</translation>
    </message>
    <message>
        <source>FEEDER AMPS DURING FEEDER PEAK (NON-COINCIDENTAL)</source>
        <translation>STRÖME DER ABGÄNGE BEI IHRER SPITZE (NICHT GLEICHZEITIG)</translation>
    </message>
    <message>
        <source>Feeder Phase Amps During Station Peak (Coincidental Peak)</source>
        <translation>Phasenströme der Abgänge bei der Stationsspitze (gleichzeitige Spitze)</translation>
    </message>
    <message>
        <source>STATION NAME: %1</source>
        <translation>NAME DER STATION: %1</translation>
    </message>
    <message>
        <source>STATION: %1</source>
        <translation>STATION: %1</translation>
    </message>
    <message>
        <source>Station: %1</source>
        <translation>Station: %1</translation>
    </message>
    <message>
        <source>Feeder %1</source>
        <translation>Abgang %1</translation>
    </message>
    <message>
        <source>Feeder Amperes During Feeder Peak (Non-Coincidental Peak)</source>
        <translation>Ströme des Abgangs bei seiner Spitze (nicht gleichzeitige Spitze)</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 is also taken for %4, %5 phase</source>
        <translation>%1, Phase %2: %3 ist auch für %4, Phase %5 genommen</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 item(s) that are no numbers; each counts with its leading number, or 0</source>
        <translation>%1, Phase %2: %3 hat %4 Eintrag/Einträge, die keine Zahlen sind; jeder zählt mit der Zahl, mit der er beginnt, sonst 0</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 starts at %4, %5 at %6</source>
        <translation>%1, Phase %2: %3 beginnt um %4, %5 um %6</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 readings, %5 %6; the shortest count is scanned</source>
        <translation>%1, Phase %2: %3 hat %4 Messwerte, %5 %6; die kleinste Zahl gilt</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rot</translation>
    </message>
    <message>
        <source>white</source>
        <translation>weiß</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blau</translation>
    </message>
    <message>
        <source>%1: Mode mixing not allowed. Choose a file of the mode of %2.</source>
        <translation>%1: Verschiedene Modi sind nicht erlaubt. Wählen Sie eine Datei mit dem Modus von %2.</translation>
    </message>
    <message>
        <source>Not a current file</source>
        <translation>Keine Stromdatei</translation>
    </message>
    <message>
        <source>It is a recording of voltage. Choose the recording of the phase's current.</source>
        <translation>Es ist eine Spannungsaufzeichnung. Wählen Sie die Aufzeichnung des Phasenstroms.</translation>
    </message>
    <message>
        <source>%1: a recording of voltage. Choose the recording of the phase's current.</source>
        <translation>%1: eine Spannungsaufzeichnung. Wählen Sie die Aufzeichnung des Phasenstroms.</translation>
    </message>
    <message>
        <source>Load study</source>
        <translation>Laststudie</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Zahlen kopieren</translation>
    </message>
    <message>
        <source>Copy all figures as text</source>
        <translation>Alle Zahlen als Text kopieren</translation>
    </message>
    <message>
        <source>Picture...</source>
        <translation>Bild...</translation>
    </message>
    <message>
        <source>Save the page as a PNG picture</source>
        <translation>Die Seite als PNG-Bild speichern</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Print the study</source>
        <translation>Die Studie drucken</translation>
    </message>
    <message>
        <source>Save the study as PDF</source>
        <translation>Die Studie als PDF speichern</translation>
    </message>
    <message>
        <source>Save figures and readings as a workbook</source>
        <translation>Zahlen und Messwerte als Arbeitsmappe speichern</translation>
    </message>
    <message>
        <source>Demand window in minutes</source>
        <translation>Bedarfsfenster in Minuten</translation>
    </message>
    <message>
        <source>&amp;Window, min</source>
        <translation>&amp;Fenster, min</translation>
    </message>
    <message>
        <source>&amp;High limit</source>
        <translation>&amp;Obere Grenze</translation>
    </message>
    <message>
        <source>Runs of readings above it are marked and listed</source>
        <translation>Strecken von Messwerten darüber werden markiert und aufgeführt</translation>
    </message>
    <message>
        <source>&amp;Low limit</source>
        <translation>&amp;Untere Grenze</translation>
    </message>
    <message>
        <source>Runs of readings below it are marked and listed</source>
        <translation>Strecken von Messwerten darunter werden markiert und aufgeführt</translation>
    </message>
    <message>
        <source>&amp;Rating, A</source>
        <translation>&amp;Bemessungsstrom, A</translation>
    </message>
    <message>
        <source>Rated current of the circuit: checks its capacity</source>
        <translation>Bemessungsstrom des Stromkreises: prüft seine Reserve</translation>
    </message>
    <message>
        <source>&amp;New load, A</source>
        <translation>&amp;Neue Last, A</translation>
    </message>
    <message>
        <source>Load to be connected</source>
        <translation>Last, die angeschlossen werden soll</translation>
    </message>
    <message>
        <source>&amp;Factor</source>
        <translation>Fa&amp;ktor</translation>
    </message>
    <message>
        <source>On the highest demand of 15 minutes; 1.25 when empty</source>
        <translation>Auf den höchsten Bedarf von 15 Minuten; leer 1.25</translation>
    </message>
    <message>
        <source>Line &amp;voltage, V</source>
        <translation>Netz&amp;spannung, V</translation>
    </message>
    <message>
        <source>Adds the power of the files as a channel</source>
        <translation>Fügt die Leistung der Dateien als Kanal hinzu</translation>
    </message>
    <message>
        <source>&amp;Power factor</source>
        <translation>&amp;Leistungsfaktor</translation>
    </message>
    <message>
        <source>1 when empty</source>
        <translation>leer 1</translation>
    </message>
    <message>
        <source>H&amp;olidays</source>
        <translation>F&amp;eiertage</translation>
    </message>
    <message>
        <source>Dates as YYYY-MM-DD that count as Sundays</source>
        <translation>Daten als JJJJ-MM-TT, die als Sonntage zählen</translation>
    </message>
    <message>
        <source>%1: '%2' is no plain number</source>
        <translation>%1: „%2“ ist keine einfache Zahl</translation>
    </message>
    <message>
        <source>%1: '%2' is not above 0</source>
        <translation>%1: „%2“ ist nicht über 0</translation>
    </message>
    <message>
        <source>%1: '%2' is below 0</source>
        <translation>%1: „%2“ ist unter 0</translation>
    </message>
    <message>
        <source>%1: '%2' needs a %3</source>
        <translation>%1: „%2“ braucht auch %3</translation>
    </message>
    <message>
        <source>%1: '%2' is none of 5, 10, 15, 20, 30 and 60 minutes</source>
        <translation>%1: „%2“ ist keine von 5, 10, 15, 20, 30 und 60 Minuten</translation>
    </message>
    <message>
        <source>%1: '%2' is not above the low limit</source>
        <translation>%1: „%2“ liegt nicht über der unteren Grenze</translation>
    </message>
    <message>
        <source>%1: '%2' is no date; write it as YYYY-MM-DD</source>
        <translation>%1: „%2“ ist kein Datum; schreiben Sie JJJJ-MM-TT</translation>
    </message>
    <message>
        <source>'%1' is no plain number</source>
        <translation>„%1“ ist keine einfache Zahl</translation>
    </message>
    <message>
        <source>'%1' is not above 0</source>
        <translation>„%1“ ist nicht über 0</translation>
    </message>
    <message>
        <source>'%1' is below 0</source>
        <translation>„%1“ ist unter 0</translation>
    </message>
    <message>
        <source>'%1' needs a rating</source>
        <translation>„%1“ braucht auch einen Bemessungsstrom</translation>
    </message>
    <message>
        <source>'%1' needs a voltage</source>
        <translation>„%1“ braucht auch eine Spannung</translation>
    </message>
    <message>
        <source>'%1' is none of 5, 10, 15, 20, 30 and 60 minutes</source>
        <translation>„%1“ ist keine von 5, 10, 15, 20, 30 und 60 Minuten</translation>
    </message>
    <message>
        <source>'%1' is not above the low limit</source>
        <translation>„%1“ liegt nicht über der unteren Grenze</translation>
    </message>
    <message>
        <source>'%1' is no date; write it as YYYY-MM-DD</source>
        <translation>„%1“ ist kein Datum; schreiben Sie JJJJ-MM-TT</translation>
    </message>
    <message>
        <source>A capacity check needs files of amps</source>
        <translation>Eine Prüfung der Reserve braucht Dateien mit Ampere</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Auswahlliste</translation>
    </message>
    <message>
        <source>There are no readings after its header.</source>
        <translation>Nach ihrem Kopf stehen keine Messwerte.</translation>
    </message>
    <message>
        <source>An axis is given as two numbers, the lower one first, such as 0 to 400.</source>
        <translation>Eine Achse wird mit zwei Zahlen angegeben, die kleinere zuerst, etwa 0 to 400.</translation>
    </message>
    <message>
        <source>The axis stays as it was.</source>
        <translation>Die Achse bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>A limit line begins with its value, such as 400 Rating.</source>
        <translation>Eine Grenzlinie beginnt mit ihrem Wert, etwa 400 Rating.</translation>
    </message>
    <message>
        <source>The limit lines stay as they were.</source>
        <translation>Die Grenzlinien bleiben, wie sie waren.</translation>
    </message>
    <message>
        <source>Minimum and maximum of the y axis, such as 0 to 400
Nothing lets the readings decide</source>
        <translation>Minimum und Maximum der y-Achse, etwa 0 to 400
Ohne Eingabe entscheiden die Messwerte</translation>
    </message>
    <message>
        <source>Limit lines, each a value and a name, such as 400 Rating; 320 Planning
Nothing takes them away</source>
        <translation>Grenzlinien, je ein Wert und ein Name, etwa 400 Rating; 320 Planning
Ohne Eingabe fallen sie weg</translation>
    </message>
    <message>
        <source>Axis fixed at %1 to %2 %3</source>
        <translation>Achse fest von %1 bis %2 %3</translation>
    </message>
    <message>
        <source>Readings are combined by time, %1 to %2</source>
        <translation>Messwerte werden nach der Zeit verbunden, %1 bis %2</translation>
    </message>
    <message>
        <source>Readings are combined by time, %1 to %2.</source>
        <translation>Messwerte werden nach der Zeit verbunden, %1 bis %2.</translation>
    </message>
    <message>
        <source>no reading</source>
        <translation>kein Messwert</translation>
    </message>
    <message>
        <source>%1: %2 items of the file could not be read</source>
        <translation>%1: %2 Einträge der Datei waren nicht lesbar</translation>
    </message>
    <message>
        <source>%1: %2 item of the file could not be read</source>
        <translation>%1: %2 Eintrag der Datei war nicht lesbar</translation>
    </message>
    <message>
        <source>%1 has %2 of %3 readings</source>
        <translation>%1 hat %2 von %3 Messwerten</translation>
    </message>
    <message>
        <source>%1 has no reading for the last %2; its current counts as 0 there</source>
        <translation>%1 hat für die letzten %2 keinen Messwert; sein Strom zählt dort als 0</translation>
    </message>
    <message>
        <source>%1 to %2 (%3, %4 readings)</source>
        <translation>%1 bis %2 (%3, %4 Messwerte)</translation>
    </message>
    <message>
        <source>%1 to %2 (%3, %4 reading)</source>
        <translation>%1 bis %2 (%3, %4 Messwert)</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Figures of the marked span</source>
        <translation>Zahlen der markierten Spanne</translation>
    </message>
    <message>
        <source>Figures of the span</source>
        <translation>Zahlen der Spanne</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Spanne</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Bemerkungen</translation>
    </message>
    <message>
        <source>&amp;Copy figures</source>
        <translation>Zahlen &amp;kopieren</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>It took the place of an earlier file.</source>
        <translation>Sie hat eine frühere Datei ersetzt.</translation>
    </message>
    <message>
        <source>Not a current file
It is a recording of voltage. Choose the recording of the phase's current.</source>
        <translation>Keine Stromdatei
Es ist eine Spannungsaufzeichnung. Wählen Sie die Aufzeichnung des Phasenstroms.</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 items that can be read as no number; each counts with its leading number, or 0</source>
        <translation>%1, Phase %2: %3 hat %4 Einträge, die als keine Zahl lesbar sind; jeder zählt mit der Zahl, mit der er beginnt, sonst 0</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 item that can be read as no number; each counts with its leading number, or 0</source>
        <translation>%1, Phase %2: %3 hat %4 Eintrag, der als keine Zahl lesbar ist; er zählt mit der Zahl, mit der er beginnt, sonst 0</translation>
    </message>
    <message>
        <source>%1 item of the file could not be read as numbers; each counts with its leading number, or 0</source>
        <translation>%1 Eintrag der Datei ist keine Zahl; er zählt mit der Zahl, mit der er beginnt, sonst 0</translation>
    </message>
    <message>
        <source>&amp;Align by Time</source>
        <translation>Nach Zeit &amp;ausrichten</translation>
    </message>
    <message>
        <source>Put files side by side by time instead of reading by reading</source>
        <translation>Dateien nach der Zeit statt Messwert für Messwert nebeneinanderlegen</translation>
    </message>
    <message>
        <source>Combine by number</source>
        <translation>Nach Nummer verbinden</translation>
    </message>
    <message>
        <source>Align by time</source>
        <translation>Nach Zeit ausrichten</translation>
    </message>
    <message>
        <source>&amp;Chart</source>
        <translation>Diag&amp;ramm</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Show the range that was shown before</source>
        <translation>Den zuvor gezeigten Bereich zeigen</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>Show the range again that was left by Back</source>
        <translation>Den mit Zurück verlassenen Bereich wieder zeigen</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>Previous &amp;Day</source>
        <translation>Vorheriger &amp;Tag</translation>
    </message>
    <message>
        <source>Show the day before</source>
        <translation>Den Tag davor zeigen</translation>
    </message>
    <message>
        <source>&amp;Next Day</source>
        <translation>&amp;Nächster Tag</translation>
    </message>
    <message>
        <source>Show the day after</source>
        <translation>Den Tag danach zeigen</translation>
    </message>
    <message>
        <source>Previous &amp;Week</source>
        <translation>Vorherige &amp;Woche</translation>
    </message>
    <message>
        <source>Show the week before, from Monday</source>
        <translation>Die Woche davor ab Montag zeigen</translation>
    </message>
    <message>
        <source>Next W&amp;eek</source>
        <translation>Nächste Wo&amp;che</translation>
    </message>
    <message>
        <source>Show the week after, from Monday</source>
        <translation>Die Woche danach ab Montag zeigen</translation>
    </message>
    <message>
        <source>Previous &amp;Month</source>
        <translation>Vorheriger &amp;Monat</translation>
    </message>
    <message>
        <source>Show the month before</source>
        <translation>Den Monat davor zeigen</translation>
    </message>
    <message>
        <source>Next M&amp;onth</source>
        <translation>Nächster M&amp;onat</translation>
    </message>
    <message>
        <source>Show the month after</source>
        <translation>Den Monat danach zeigen</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translation>Ansehe&amp;n</translation>
    </message>
    <message>
        <source>&amp;Enlarge</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Look closer; the range stays</source>
        <translation>Näher hinsehen; der Bereich bleibt</translation>
    </message>
    <message>
        <source>&amp;Reduce</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Look from farther away</source>
        <translation>Aus größerer Entfernung sehen</translation>
    </message>
    <message>
        <source>&amp;Whole Picture</source>
        <translation>Ganzes B&amp;ild</translation>
    </message>
    <message>
        <source>See the whole of the displayed range</source>
        <translation>Den ganzen gezeigten Bereich sehen</translation>
    </message>
    <message>
        <source>&amp;Box</source>
        <translation>&amp;Rahmen</translation>
    </message>
    <message>
        <source>Draw a box on the chart that is then looked at closely</source>
        <translation>Einen Rahmen auf das Diagramm ziehen, der dann näher gezeigt wird</translation>
    </message>
    <message>
        <source>Ear&amp;lier</source>
        <translation>&amp;Früher</translation>
    </message>
    <message>
        <source>Move the picture to the left</source>
        <translation>Das Bild nach links bewegen</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>S&amp;päter</translation>
    </message>
    <message>
        <source>Move the picture to the right</source>
        <translation>Das Bild nach rechts bewegen</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Linien</translation>
    </message>
    <message>
        <source>Line &amp;1</source>
        <translation>Linie &amp;1</translation>
    </message>
    <message>
        <source>Line &amp;2</source>
        <translation>Linie &amp;2</translation>
    </message>
    <message>
        <source>Line &amp;3</source>
        <translation>Linie &amp;3</translation>
    </message>
    <message>
        <source>Line &amp;1: %1</source>
        <translation>Linie &amp;1: %1</translation>
    </message>
    <message>
        <source>Line &amp;2: %1</source>
        <translation>Linie &amp;2: %1</translation>
    </message>
    <message>
        <source>Line &amp;3: %1</source>
        <translation>Linie &amp;3: %1</translation>
    </message>
    <message>
        <source>Line 1</source>
        <translation>Linie 1</translation>
    </message>
    <message>
        <source>Line 2</source>
        <translation>Linie 2</translation>
    </message>
    <message>
        <source>Line 3</source>
        <translation>Linie 3</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Linie %1: %2</translation>
    </message>
    <message>
        <source>Hide or show this line</source>
        <translation>Diese Linie verbergen oder zeigen</translation>
    </message>
    <message>
        <source>Span F&amp;igures</source>
        <translation>Zahlen der &amp;Spanne</translation>
    </message>
    <message>
        <source>Differences, extremes, mean and energy of the marked span</source>
        <translation>Unterschiede, Extreme, Mittel und Energie der markierten Spanne</translation>
    </message>
    <message>
        <source>Fi&amp;xed Axis...</source>
        <translation>F&amp;este Achse...</translation>
    </message>
    <message>
        <source>Set both ends of the y axis until they are set otherwise</source>
        <translation>Beide Enden der y-Achse setzen, bis sie anders gesetzt werden</translation>
    </message>
    <message>
        <source>Li&amp;mit Lines...</source>
        <translation>Grenzl&amp;inien...</translation>
    </message>
    <message>
        <source>Draw ratings across the plot</source>
        <translation>Bemessungswerte durch die Kurve ziehen</translation>
    </message>
    <message>
        <source>&amp;Picture...</source>
        <translation>&amp;Bild...</translation>
    </message>
    <message>
        <source>&amp;Save Chart...</source>
        <translation>Diagramm s&amp;peichern...</translation>
    </message>
    <message>
        <source>&amp;Copy Ctrl+C</source>
        <translation>&amp;Kopieren	Strg+C</translation>
    </message>
    <message>
        <source>Copy what is shown</source>
        <translation>Kopieren, was gezeigt wird</translation>
    </message>
    <message>
        <source>Pre&amp;view...</source>
        <translation>V&amp;orschau...</translation>
    </message>
    <message>
        <source>Show how the page will be printed</source>
        <translation>Zeigen, wie die Seite gedruckt wird</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>The readings of a file</source>
        <translation>Die Messwerte einer Datei</translation>
    </message>
    <message>
        <source>The facts of a file</source>
        <translation>Die Angaben zu einer Datei</translation>
    </message>
    <message>
        <source>Kilowatts of the open files</source>
        <translation>Kilowatt der offenen Dateien</translation>
    </message>
    <message>
        <source>There are no readings after this.</source>
        <translation>Danach gibt es keine Messwerte.</translation>
    </message>
    <message>
        <source>There are no readings before this.</source>
        <translation>Davor gibt es keine Messwerte.</translation>
    </message>
    <message>
        <source>The y axis can begin at a whole number from -32768 to 32767.</source>
        <translation>Die y-Achse kann bei einer ganzen Zahl von -32768 bis 32767 beginnen.</translation>
    </message>
    <message>
        <source>%1 of at most %2 characters, about %3 s left</source>
        <translation>%1 von höchstens %2 Zeichen, noch etwa %3 s</translation>
    </message>
    <message>
        <source>%1: %2, serial number %3, Vbatt = %4 volts</source>
        <translation>%1: %2, Seriennummer %3, Vbatt = %4 Volt</translation>
    </message>
    <message>
        <source>%1: %2, serial number %3, Vbatt = %4 volts, LOW BATTERY</source>
        <translation>%1: %2, Seriennummer %3, Vbatt = %4 Volt, BATTERIE SCHWACH</translation>
    </message>
    <message>
        <source>%1: %2, serial number %3</source>
        <translation>%1: %2, Seriennummer %3</translation>
    </message>
    <message>
        <source>%1: Resetting the interface. (Takes about 5 seconds)...</source>
        <translation>%1: Das Interface wird zurückgesetzt. (Dauert etwa 5 Sekunden)...</translation>
    </message>
    <message>
        <source>%1: Listening at %2 baud...</source>
        <translation>%1: Es wird mit %2 Baud gehorcht...</translation>
    </message>
    <message>
        <source>Leave the cable in the instrument, and a transfer switch at TRANSFER.
Nothing is sent to any port. A port takes about 10 seconds.</source>
        <translation>Lassen Sie das Kabel im Gerät und einen Umschalter auf TRANSFER.
An keinen Anschluss wird etwas gesandt. Ein Anschluss dauert etwa 10 Sekunden.</translation>
    </message>
    <message>
        <source>No instrument was heard. Check that its cable sits firmly at both ends and that a transfer switch is set to TRANSFER, and search again.</source>
        <translation>Kein Gerät war zu hören. Prüfen Sie, ob sein Kabel an beiden Enden fest sitzt und ein Umschalter auf TRANSFER steht, und suchen Sie noch einmal.</translation>
    </message>
    <message>
        <source>One instrument was heard.</source>
        <translation>Ein Gerät war zu hören.</translation>
    </message>
    <message>
        <source>%1 instruments were heard.</source>
        <translation>%1 Geräte waren zu hören.</translation>
    </message>
    <message>
        <source>No instrument was heard on an adapter. Listen on these ports too?</source>
        <translation>An keinem Adapter war ein Gerät zu hören. Auch an diesen Anschlüssen horchen?</translation>
    </message>
    <message>
        <source>Nothing is sent, but whatever is plugged in there sees its port being opened.</source>
        <translation>Nichts wird gesandt, aber was dort steckt, merkt, dass sein Anschluss geöffnet wird.</translation>
    </message>
    <message>
        <source>Find Instrument</source>
        <translation>Gerät suchen</translation>
    </message>
    <message>
        <source>&amp;Find Instrument</source>
        <translation>Gerät s&amp;uchen</translation>
    </message>
    <message>
        <source>Find instrument</source>
        <translation>Gerät suchen</translation>
    </message>
    <message>
        <source>Listen on all adapters for an instrument</source>
        <translation>An allen Adaptern nach einem Gerät horchen</translation>
    </message>
    <message>
        <source>Instruments that were heard</source>
        <translation>Geräte, die zu hören waren</translation>
    </message>
    <message>
        <source>The memory lasts %1, until %2; then the recording stops.</source>
        <translation>Der Speicher reicht %1, bis %2; dann stoppt die Aufzeichnung.</translation>
    </message>
    <message>
        <source>The memory lasts %1, until %2; then the oldest readings are overwritten.</source>
        <translation>Der Speicher reicht %1, bis %2; dann werden die ältesten Messwerte überschrieben.</translation>
    </message>
    <message>
        <source>The memory lasts %1 days and %2 hours, until %3; then the recording stops.</source>
        <translation>Der Speicher reicht %1 Tage und %2 Stunden, bis %3; dann stoppt die Aufzeichnung.</translation>
    </message>
    <message>
        <source>The memory lasts %1 days and %2 hours, until %3; then the oldest readings are overwritten.</source>
        <translation>Der Speicher reicht %1 Tage und %2 Stunden, bis %3; dann werden die ältesten Messwerte überschrieben.</translation>
    </message>
    <message>
        <source>How long the memory lasts</source>
        <translation>Wie lange der Speicher reicht</translation>
    </message>
    <message>
        <source>Listens on every free adapter, at both rates.</source>
        <translation>Horcht an jedem freien Adapter, mit beiden Geschwindigkeiten.</translation>
    </message>
    <message>
        <source>Try the simulated instrument</source>
        <translation>Das simulierte Gerät ausprobieren</translation>
    </message>
    <message>
        <source>Sets it up and downloads from it.</source>
        <translation>Richtet es ein und liest es aus.</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Letzte Dateien</translation>
    </message>
    <message>
        <source>Not saved yet (see the notices above):</source>
        <translation>Noch nicht gespeichert (siehe die Hinweise oben):</translation>
    </message>
    <message>
        <source>Arc&amp;hive...</source>
        <translation>A&amp;rchiv...</translation>
    </message>
    <message>
        <source>Search all recordings that were ever kept</source>
        <translation>Alle je aufbewahrten Aufzeichnungen durchsuchen</translation>
    </message>
    <message>
        <source>Search the archive</source>
        <translation>Das Archiv durchsuchen</translation>
    </message>
    <message>
        <source>Every recording that was kept, by circuit, serial number, note or date.</source>
        <translation>Jede aufbewahrte Aufzeichnung, nach Stromkreis, Seriennummer, Notiz oder Datum.</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>S&amp;topp</translation>
    </message>
    <message>
        <source>Progress of the adding</source>
        <translation>Fortschritt beim Aufnehmen</translation>
    </message>
    <message>
        <source>What was added so far stays; adding again goes on from there</source>
        <translation>Was bisher aufgenommen wurde, bleibt; ein weiteres Aufnehmen macht dort weiter</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Wird angehalten...</translation>
    </message>
    <message>
        <source>Opening the archive...</source>
        <translation>Das Archiv wird geöffnet...</translation>
    </message>
    <message>
        <source>%1 recording(s) written into %2</source>
        <translation>%1 Aufzeichnung(en) in %2 geschrieben</translation>
    </message>
    <message>
        <source>(the password comes from the password file)</source>
        <translation>(das Kennwort kommt aus der Kennwortdatei)</translation>
    </message>
    <message>
        <source>Place of the Archive</source>
        <translation>Ort des Archivs</translation>
    </message>
    <message>
        <source>Three recordings can be open at a time; %1 are chosen.</source>
        <translation>Drei Aufzeichnungen können zugleich offen sein; %1 sind gewählt.</translation>
    </message>
    <message>
        <source>Folder for the Data Files</source>
        <translation>Ordner für die Datendateien</translation>
    </message>
    <message>
        <source>%1 recording(s) are no longer in the archive.</source>
        <translation>%1 Aufzeichnung(en) sind nicht mehr im Archiv.</translation>
    </message>
    <message>
        <source>Add Data Files</source>
        <translation>Datendateien aufnehmen</translation>
    </message>
    <message>
        <source>Add a Folder</source>
        <translation>Einen Ordner aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Downloads and saves go in by themselves</source>
        <translation>Auslesungen und &amp;Gespeichertes kommen von selbst hinein</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>Archive - Tallyline</source>
        <translation>Archiv - Tallyline</translation>
    </message>
    <message>
        <source>&amp;Recordings</source>
        <translation>Auf&amp;zeichnungen</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Kalender</translation>
    </message>
    <message>
        <source>&amp;Growth</source>
        <translation>&amp;Wachstum</translation>
    </message>
    <message>
        <source>Add &amp;Files...</source>
        <translation>&amp;Dateien aufnehmen...</translation>
    </message>
    <message>
        <source>Keep data files and their notes in the archive</source>
        <translation>Datendateien und ihre Notizen im Archiv aufbewahren</translation>
    </message>
    <message>
        <source>Add F&amp;older...</source>
        <translation>&amp;Ordner aufnehmen...</translation>
    </message>
    <message>
        <source>Keep all data files of a folder and of the folders below it</source>
        <translation>Alle Datendateien eines Ordners und der Ordner darunter aufbewahren</translation>
    </message>
    <message>
        <source>Pla&amp;ce...</source>
        <translation>O&amp;rt...</translation>
    </message>
    <message>
        <source>Use another archive</source>
        <translation>Ein anderes Archiv benutzen</translation>
    </message>
    <message>
        <source>Open up to three recordings in the main window</source>
        <translation>Bis zu drei Aufzeichnungen im Hauptfenster öffnen</translation>
    </message>
    <message>
        <source>Open up to three recordings and study them</source>
        <translation>Bis zu drei Aufzeichnungen öffnen und studieren</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Write the data files and notes of the chosen recordings into a folder</source>
        <translation>Datendateien und Notizen der gewählten Aufzeichnungen in einen Ordner schreiben</translation>
    </message>
    <message>
        <source>&amp;Assign...</source>
        <translation>Z&amp;uordnen...</translation>
    </message>
    <message>
        <source>Correct station and circuit of the chosen recordings</source>
        <translation>Station und Stromkreis der gewählten Aufzeichnungen berichtigen</translation>
    </message>
    <message>
        <source>Print &amp;List...</source>
        <translation>&amp;Liste drucken...</translation>
    </message>
    <message>
        <source>Print the chosen recordings as a list, or all that are shown</source>
        <translation>Die gewählten Aufzeichnungen als Liste drucken, oder alle gezeigten</translation>
    </message>
    <message>
        <source>Recordings are still being added to the archive.
Stop? What was added so far stays; adding again goes on from there.</source>
        <translation>Es werden noch Aufzeichnungen ins Archiv aufgenommen.
Anhalten? Was bisher aufgenommen wurde, bleibt; ein weiteres Aufnehmen macht dort weiter.</translation>
    </message>
    <message>
        <source>%1 recording(s), %2 circuit(s)</source>
        <translation>%1 Aufzeichnung(en), %2 Stromkreis(e)</translation>
    </message>
    <message>
        <source>%1 recording(s), %2 circuit(s), %3 to %4</source>
        <translation>%1 Aufzeichnung(en), %2 Stromkreis(e), %3 bis %4</translation>
    </message>
    <message>
        <source>More than %1 recordings; the first %1 are shown. Narrow the search.</source>
        <translation>Mehr als %1 Aufzeichnungen; die ersten %1 werden gezeigt. Engen Sie die Suche ein.</translation>
    </message>
    <message>
        <source>%1 recording(s)</source>
        <translation>%1 Aufzeichnung(en)</translation>
    </message>
    <message>
        <source>No recording is found</source>
        <translation>Keine Aufzeichnung gefunden</translation>
    </message>
    <message>
        <source>The archive is empty. Add files, or a folder of recordings.</source>
        <translation>Das Archiv ist leer. Nehmen Sie Dateien auf oder einen Ordner mit Aufzeichnungen.</translation>
    </message>
    <message>
        <source>Make an Archive Here</source>
        <translation>Hier ein Archiv anlegen</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>Other Place...</source>
        <translation>Anderer Ort...</translation>
    </message>
    <message>
        <source>The archive cannot be used now.</source>
        <translation>Das Archiv ist jetzt nicht benutzbar.</translation>
    </message>
    <message>
        <source>%1 recording(s) get this station and circuit.
The files themselves are not altered; without an assignment the names are those of the notes.</source>
        <translation>%1 Aufzeichnung(en) erhalten diese Station und diesen Stromkreis.
Die Dateien selbst ändern sich nicht; ohne Zuordnung gelten die Namen der Notizen.</translation>
    </message>
    <message>
        <source>&amp;Station</source>
        <translation>&amp;Station</translation>
    </message>
    <message>
        <source>&amp;Circuit</source>
        <translation>S&amp;tromkreis</translation>
    </message>
    <message>
        <source>Calendar of coverage</source>
        <translation>Kalender der Abdeckung</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>Peak and mean by year</source>
        <translation>Spitze und Mittel je Jahr</translation>
    </message>
    <message>
        <source>Growth by year</source>
        <translation>Wachstum je Jahr</translation>
    </message>
    <message>
        <source>Choose a recording in the list: the growth of its circuit is shown here.</source>
        <translation>Wählen Sie eine Aufzeichnung in der Liste: hier erscheint das Wachstum ihres Stromkreises.</translation>
    </message>
    <message>
        <source>%1: %2 recording(s)</source>
        <translation>%1: %2 Aufzeichnung(en)</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>Search words</source>
        <translation>Suchwörter</translation>
    </message>
    <message>
        <source>Words of station, circuit, serial number, notes, file or folder</source>
        <translation>Wörter aus Station, Stromkreis, Seriennummer, Notizen, Datei oder Ordner</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Amperes and volts</source>
        <translation>Ampere und Volt</translation>
    </message>
    <message>
        <source>Amperes</source>
        <translation>Ampere</translation>
    </message>
    <message>
        <source>Volts</source>
        <translation>Volt</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Bis</translation>
    </message>
    <message>
        <source>A day, a month or a year: 2009-03-15, 2009-03 or 2009</source>
        <translation>Ein Tag, ein Monat oder ein Jahr: 2009-03-15, 2009-03 oder 2009</translation>
    </message>
    <message>
        <source>(from the archive)</source>
        <translation>(aus dem Archiv)</translation>
    </message>
    <message>
        <source>data files</source>
        <translation>Datendateien</translation>
    </message>
    <message>
        <source>chart files</source>
        <translation>Diagrammdateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG-Bild</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>The recovered data has the following error(s):</source>
        <translation>Die geretteten Daten haben diese(n) Fehler:</translation>
    </message>
    <message>
        <source>• %1 reading(s) that are no numbers</source>
        <translation>• %1 Messwert(e), die keine Zahlen sind</translation>
    </message>
    <message>
        <source>The time at which it stopped is worked out from the number of readings.
Recover it again before you initialize the instrument.</source>
        <translation>Die Stoppzeit wird aus der Zahl der Messwerte bestimmt.
Retten Sie noch einmal, bevor Sie das Gerät initialisieren.</translation>
    </message>
    <message>
        <source>Mode setting: FAIL; value is %1 ; invalid Time On: %2 (%3) Condition:</source>
        <translation>Modus: FEHLER; Wert ist %1 ; ungültig Ein seit: %2 (%3) Zustand:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Readings...</source>
        <translation>&amp;Messwerte...</translation>
    </message>
    <message>
        <source>Write readings, columns and range as you choose, for a spreadsheet</source>
        <translation>Messwerte, Spalten und Bereich nach Wahl für eine Tabellenkalkulation schreiben</translation>
    </message>
    <message>
        <source>Export Readings</source>
        <translation>Messwerte exportieren</translation>
    </message>
    <message>
        <source>Everything: %1 readings, %2 to %3</source>
        <translation>Alles: %1 Messwerte, %2 bis %3</translation>
    </message>
    <message>
        <source>Everything: %1 reading, %2 to %3</source>
        <translation>Alles: %1 Messwert, %2 bis %3</translation>
    </message>
    <message>
        <source>What is shown: %1 readings, %2 to %3</source>
        <translation>Was gezeigt ist: %1 Messwerte, %2 bis %3</translation>
    </message>
    <message>
        <source>What is shown: %1 reading, %2 to %3</source>
        <translation>Was gezeigt ist: %1 Messwert, %2 bis %3</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Te&amp;xt for any spreadsheet (CSV)</source>
        <translation>Te&amp;xt für jede Tabellenkalkulation (CSV)</translation>
    </message>
    <message>
        <source>&amp;Workbook with a chart (XLSX)</source>
        <translation>Arbeits&amp;mappe mit Diagramm (XLSX)</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Se&amp;parator</source>
        <translation>&amp;Trennzeichen</translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation>&amp;Dezimalzeichen</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Zeit</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Speichern unter...</translation>
    </message>
    <message>
        <source>%1 saved OK
It took the place of an earlier file.</source>
        <translation>%1 gespeichert
Sie ersetzt eine frühere Datei.</translation>
    </message>
    <message>
        <source>Workbook</source>
        <translation>Arbeitsmappe</translation>
    </message>
</context>
</TS>
