<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>program</name>
    <message>
        <source>%1 task has no start: the plan is shown scheduled</source>
        <translation>%1 Vorgang hat keinen Anfang: der Plan wird berechnet gezeigt</translation>
    </message>
    <message>
        <source>%1 tasks have no start: the plan is shown scheduled</source>
        <translation>%1 Vorgänge haben keinen Anfang: der Plan wird berechnet gezeigt</translation>
    </message>
    <message>
        <source>%1 task starts before its predecessor finishes</source>
        <translation>%1 Vorgang beginnt vor dem Ende seines Vorgängers</translation>
    </message>
    <message>
        <source>%1 tasks start before a predecessor finishes</source>
        <translation>%1 Vorgänge beginnen vor dem Ende eines Vorgängers</translation>
    </message>
    <message>
        <source>'kwgantt schedule %1' moves them</source>
        <translation>'kwgantt schedule %1' verschiebt sie</translation>
    </message>
    <message>
        <source>%1: tasks wait for each other: %2</source>
        <translation>%1: Vorgänge warten aufeinander: %2</translation>
    </message>
    <message>
        <source>remove one of these links with 'kwgantt edit %1 unlink TASK TASK'; nothing was changed</source>
        <translation>entfernen Sie eine Verknüpfung mit 'kwgantt edit %1 unlink TASK TASK'; nichts wurde geändert</translation>
    </message>
    <message>
        <source>%1: changed meanwhile by another program; nothing was written</source>
        <translation>%1: inzwischen von einem anderen Programm geändert; nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>make the change again</source>
        <translation>machen Sie die Änderung noch einmal</translation>
    </message>
    <message>
        <source>%1: nothing can be scheduled in its working time; nothing was changed</source>
        <translation>%1: in dieser Arbeitszeit lässt sich nichts planen; nichts wurde geändert</translation>
    </message>
    <message>
        <source>'kwgantt edit %1 calendar days Mon-Fri' and 'calendar hours 08:00-17:00' give it one</source>
        <translation>'kwgantt edit %1 calendar days Mon-Fri' und 'calendar hours 08:00-17:00' geben ihm eine</translation>
    </message>
    <message>
        <source>%1: a workbook cannot be changed in place</source>
        <translation>%1: eine Arbeitsmappe kann nicht an Ort und Stelle geändert werden</translation>
    </message>
    <message>
        <source>-o PLAN.kwpx writes the plan as a package</source>
        <translation>-o PLAN.kwpx schreibt den Plan als Paket</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>no help on '%1'</source>
        <translation>keine Hilfe zu '%1'</translation>
    </message>
    <message>
        <source>'kwgantt help' lists all commands</source>
        <translation>'kwgantt help' nennt alle Befehle</translation>
    </message>
    <message>
        <source>did you mean '%1'?</source>
        <translation>meinten Sie '%1'?</translation>
    </message>
    <message>
        <source>shown unless told otherwise</source>
        <translation>wird ohne Angabe gezeigt</translation>
    </message>
    <message>
        <source>kwpx   reads and writes: the whole document as a package</source>
        <translation>kwpx   liest und schreibt: das ganze Dokument als Paket</translation>
    </message>
    <message>
        <source>csv    reads and writes: a row a task, titles in the first row, UTF-8</source>
        <translation>csv    liest und schreibt: je Vorgang eine Zeile, Titel in der ersten, UTF-8</translation>
    </message>
    <message>
        <source>xlsx   reads and writes: a workbook with a sheet each of tasks, resources and assignments</source>
        <translation>xlsx   liest und schreibt: Arbeitsmappe mit Blättern für Vorgänge, Ressourcen, Zuweisungen</translation>
    </message>
    <message>
        <source>xls    reads and writes: the same, at most 65,536 rows</source>
        <translation>xls    liest und schreibt: dasselbe, höchstens 65,536 Zeilen</translation>
    </message>
    <message>
        <source>mspdi  reads and writes: project XML (.xml), as other planners exchange it</source>
        <translation>mspdi  liest und schreibt: Projekt-XML (.xml), wie andere Planungsprogramme es tauschen</translation>
    </message>
    <message>
        <source>json   writes</source>
        <translation>json   schreibt</translation>
    </message>
    <message>
        <source>table  writes: text for people</source>
        <translation>table  schreibt: Text für Menschen</translation>
    </message>
    <message>
        <source>'kwgantt help formats' tells titles, dates and lengths</source>
        <translation>'kwgantt help formats' erklärt Titel, Termine und Dauern</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>Baseline finish</source>
        <translation>Ende im Basisplan</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>&gt;Start by</source>
        <translation>&gt;Anfang um</translation>
    </message>
    <message>
        <source>&gt;Finish by</source>
        <translation>&gt;Ende um</translation>
    </message>
    <message>
        <source>&gt;Cost by</source>
        <translation>&gt;Kosten um</translation>
    </message>
    <message>
        <source>no baseline: 'kwgantt baseline FILE set' remembers one</source>
        <translation>kein Basisplan: 'kwgantt baseline FILE set' hält einen fest</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 summary task</source>
        <translation>%1 Sammelvorgang</translation>
    </message>
    <message>
        <source>%1 summary tasks</source>
        <translation>%1 Sammelvorgänge</translation>
    </message>
    <message>
        <source>%1 level</source>
        <translation>%1 Ebene</translation>
    </message>
    <message>
        <source>%1 levels</source>
        <translation>%1 Ebenen</translation>
    </message>
    <message>
        <source>%1 milestone</source>
        <translation>%1 Meilenstein</translation>
    </message>
    <message>
        <source>%1 milestones</source>
        <translation>%1 Meilensteine</translation>
    </message>
    <message>
        <source>%1 task begun</source>
        <translation>%1 Vorgang begonnen</translation>
    </message>
    <message>
        <source>%1 tasks begun</source>
        <translation>%1 Vorgänge begonnen</translation>
    </message>
    <message>
        <source>%1 link</source>
        <translation>%1 Verknüpfung</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 Verknüpfungen</translation>
    </message>
    <message>
        <source>%1 refused</source>
        <translation>%1 abgelehnt</translation>
    </message>
    <message>
        <source>%1 task without a start: scheduling places it</source>
        <translation>%1 Vorgang ohne Anfang: die Berechnung setzt ihn</translation>
    </message>
    <message>
        <source>%1 tasks without a start: scheduling places them</source>
        <translation>%1 Vorgänge ohne Anfang: die Berechnung setzt sie</translation>
    </message>
    <message>
        <source>%1 task starts before its predecessor finishes: scheduling moves it</source>
        <translation>%1 Vorgang beginnt vor dem Ende seines Vorgängers: die Berechnung verschiebt ihn</translation>
    </message>
    <message>
        <source>%1 tasks start before a predecessor finishes: scheduling moves them</source>
        <translation>%1 Vorgänge beginnen vor dem Ende eines Vorgängers: die Berechnung verschiebt sie</translation>
    </message>
    <message>
        <source>%1 finding</source>
        <translation>%1 Befund</translation>
    </message>
    <message>
        <source>%1 findings</source>
        <translation>%1 Befunde</translation>
    </message>
    <message>
        <source>nothing to complain about</source>
        <translation>nichts zu beanstanden</translation>
    </message>
    <message>
        <source>there is no baseline to compare with</source>
        <translation>es gibt keinen Basisplan zum Vergleichen</translation>
    </message>
    <message>
        <source>%1 slips by %2 % of the baseline</source>
        <translation>%1 verspätet sich um %2 % des Basisplans</translation>
    </message>
    <message>
        <source>'%1' is no value for '%2'</source>
        <translation>'%1' ist kein Wert für '%2'</translation>
    </message>
    <message>
        <source>write it as 2026-02-28 or '2026-02-28 TASK'</source>
        <translation>schreiben Sie 2026-02-28 oder '2026-02-28 TASK'</translation>
    </message>
    <message>
        <source>the project</source>
        <translation>das Projekt</translation>
    </message>
    <message>
        <source>%1 finishes on %2, later than %3</source>
        <translation>%1 endet am %2, später als %3</translation>
    </message>
    <message>
        <source>the cost of %1 is more than %2</source>
        <translation>die Kosten von %1 sind höher als %2</translation>
    </message>
    <message>
        <source>cannot be read as a plan</source>
        <translation>ist nicht als Plan lesbar</translation>
    </message>
    <message>
        <source>%1 task</source>
        <translation>%1 Vorgang</translation>
    </message>
    <message>
        <source>%1 task too early</source>
        <translation>%1 Vorgang zu früh</translation>
    </message>
    <message>
        <source>%1 tasks too early</source>
        <translation>%1 Vorgänge zu früh</translation>
    </message>
    <message>
        <source>%1 of %2 files are sound</source>
        <translation>%1 von %2 Dateien sind in Ordnung</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>WBS</source>
        <translation>PSP</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Dur</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Slack</source>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>Start slack</source>
        <translation>Anf.-Puffer</translation>
    </message>
    <message>
        <source>Late start</source>
        <translation>Spät. Anf.</translation>
    </message>
    <message>
        <source>Late finish</source>
        <translation>Spät. Ende</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Kosten</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restkosten</translation>
    </message>
    <message>
        <source>Base start</source>
        <translation>Basis-Anf.</translation>
    </message>
    <message>
        <source>Base finish</source>
        <translation>Basis-Ende</translation>
    </message>
    <message>
        <source>Base cost</source>
        <translation>Basiskosten</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>%1: another program is writing it; nothing was changed</source>
        <translation>%1: ein anderes Programm schreibt gerade; nichts wurde geändert</translation>
    </message>
    <message>
        <source>try again</source>
        <translation>versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>%1: not written: %2</source>
        <translation>%1: nicht geschrieben: %2</translation>
    </message>
    <message>
        <source>%1 parts of it were not read and would be lost</source>
        <translation>%1 Teile davon wurden nicht gelesen und gingen verloren</translation>
    </message>
    <message>
        <source>a part of it was not read and would be lost</source>
        <translation>ein Teil davon wurde nicht gelesen und ginge verloren</translation>
    </message>
    <message>
        <source>-o OUT leaves the file alone, --force writes it all the same</source>
        <translation>-o OUT lässt die Datei in Ruhe, --force schreibt sie trotzdem</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: nicht lesbar: %2</translation>
    </message>
    <message>
        <source>%1: exists already and stays as it is</source>
        <translation>%1: gibt es schon und bleibt, wie es ist</translation>
    </message>
    <message>
        <source>--force replaces it</source>
        <translation>--force ersetzt sie</translation>
    </message>
    <message>
        <source>also written: %1</source>
        <translation>auch geschrieben: %1</translation>
    </message>
    <message>
        <source>where shall the changed plan go?</source>
        <translation>wohin soll der geänderte Plan?</translation>
    </message>
    <message>
        <source>-i writes %1 itself, -o OUT another file; --dry-run only shows it</source>
        <translation>-i schreibt %1 selbst, -o OUT eine andere Datei; --dry-run zeigt nur</translation>
    </message>
    <message>
        <source>%1: only a package or a CSV plan can be changed in place</source>
        <translation>%1: nur ein Paket oder ein CSV-Plan kann an Ort und Stelle geändert werden</translation>
    </message>
    <message>
        <source>-o PLAN.kwpx writes it as a package</source>
        <translation>-o PLAN.kwpx schreibt ihn als Paket</translation>
    </message>
    <message>
        <source>hint: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>%1: %2 more like these</source>
        <translation>%1: %2 weitere dieser Art</translation>
    </message>
    <message>
        <source>-v lists more of them</source>
        <translation>-v nennt mehr davon</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>Standardausgabe: %1</translation>
    </message>
    <message>
        <source>%1: cannot be written: it is a folder</source>
        <translation>%1: kann nicht geschrieben werden: es ist ein Ordner</translation>
    </message>
    <message>
        <source>give a file name to -o</source>
        <translation>geben Sie -o einen Dateinamen</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the folder must exist and have room; nothing was changed</source>
        <translation>den Ordner muss es geben, und er muss Platz haben; nichts wurde geändert</translation>
    </message>
    <message>
        <source>duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>cost</source>
        <translation>Kosten</translation>
    </message>
    <message>
        <source>resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>predecessors</source>
        <translation>Vorgänger</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>hyperlinks</source>
        <translation>Hyperlinks</translation>
    </message>
    <message>
        <source>baseline start</source>
        <translation>Basisplan-Anfang</translation>
    </message>
    <message>
        <source>baseline finish</source>
        <translation>Basisplan-Ende</translation>
    </message>
    <message>
        <source>baseline cost</source>
        <translation>Basisplan-Kosten</translation>
    </message>
    <message>
        <source>works</source>
        <translation>arbeitet</translation>
    </message>
    <message>
        <source>work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>unit width</source>
        <translation>Einheitsbreite</translation>
    </message>
    <message>
        <source>auto zoom</source>
        <translation>automatischer Zoom</translation>
    </message>
    <message>
        <source>auto progress</source>
        <translation>automatischer Fortschritt</translation>
    </message>
    <message>
        <source>theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>baseline cost of the plan</source>
        <translation>Basisplan-Kosten des Plans</translation>
    </message>
    <message>
        <source>start of the plan</source>
        <translation>Anfang des Plans</translation>
    </message>
    <message>
        <source>finish of the plan</source>
        <translation>Ende des Plans</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>added</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>weg</translation>
    </message>
    <message>
        <source>placed</source>
        <translation>verlegt</translation>
    </message>
    <message>
        <source>exception</source>
        <translation>Ausnahme</translation>
    </message>
    <message>
        <source>resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>order of the columns</source>
        <translation>Reihenfolge der Spalten</translation>
    </message>
    <message>
        <source>columns now shown: %1</source>
        <translation>jetzt gezeigte Spalten: %1</translation>
    </message>
    <message>
        <source>columns now hidden: %1</source>
        <translation>jetzt verborgene Spalten: %1</translation>
    </message>
    <message>
        <source>renamed</source>
        <translation>umbenannt</translation>
    </message>
    <message>
        <source>at the top</source>
        <translation>ganz oben</translation>
    </message>
    <message>
        <source>below "%1"</source>
        <translation>unter "%1"</translation>
    </message>
    <message>
        <source> (by the calendar)</source>
        <translation> (durch den Kalender)</translation>
    </message>
    <message>
        <source>slipped</source>
        <translation>verspätet</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>bewegt</translation>
    </message>
    <message>
        <source>finish %1</source>
        <translation>Ende %1</translation>
    </message>
    <message>
        <source>start %1</source>
        <translation>Anfang %1</translation>
    </message>
    <message>
        <source>(the plan)</source>
        <translation>(der Plan)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>no difference</source>
        <translation>kein Unterschied</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>%1 difference</source>
        <translation>%1 Unterschied</translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation>%1 Unterschiede</translation>
    </message>
    <message>
        <source>; </source>
        <translation>; </translation>
    </message>
    <message>
        <source>(unchanged)</source>
        <translation>(unverändert)</translation>
    </message>
    <message>
        <source>project finish</source>
        <translation>Projektende</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source>%1: line %2</source>
        <translation>%1: Zeile %2</translation>
    </message>
    <message>
        <source>check the name and the permissions</source>
        <translation>prüfen Sie Namen und Rechte</translation>
    </message>
    <message>
        <source>no edit is given</source>
        <translation>es ist keine Änderung angegeben</translation>
    </message>
    <message>
        <source>an edit and a script exclude each other</source>
        <translation>eine Änderung und ein Skript schließen sich aus</translation>
    </message>
    <message>
        <source>'kwgantt help edit' lists all edits</source>
        <translation>'kwgantt help edit' nennt alle Änderungen</translation>
    </message>
    <message>
        <source>'%1' takes back edits of the same script; what another call wrote is not kept</source>
        <translation>'%1' nimmt Änderungen desselben Skripts zurück; was ein anderer Aufruf schrieb, wird nicht behalten</translation>
    </message>
    <message>
        <source>-i --backup keeps the file before it as %1~</source>
        <translation>-i --backup behält die Datei davor als %1~</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>editing</source>
        <translation>ändern</translation>
    </message>
    <message>
        <source>%1 edit made</source>
        <translation>%1 Änderung gemacht</translation>
    </message>
    <message>
        <source>%1 edits made</source>
        <translation>%1 Änderungen gemacht</translation>
    </message>
    <message>
        <source>'%1' is not a date</source>
        <translation>'%1' ist kein Datum</translation>
    </message>
    <message>
        <source>write it as 2026-02-28 or 2026-02-28T17:00</source>
        <translation>schreiben Sie 2026-02-28 oder 2026-02-28T17:00</translation>
    </message>
    <message>
        <source>'%1' is not a duration</source>
        <translation>'%1' ist keine Dauer</translation>
    </message>
    <message>
        <source>write it as 3d, 12h, 30min, 1.5w or 2mon</source>
        <translation>schreiben Sie 3d, 12h, 30min, 1.5w oder 2mon</translation>
    </message>
    <message>
        <source>'%1' is not a percentage</source>
        <translation>'%1' ist kein Prozentsatz</translation>
    </message>
    <message>
        <source>'%1' is not a whole number</source>
        <translation>'%1' ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>'%1' is no row height</source>
        <translation>'%1' ist keine Zeilenhöhe</translation>
    </message>
    <message>
        <source>write a number of pixels</source>
        <translation>schreiben Sie eine Zahl von Pixeln</translation>
    </message>
    <message>
        <source>the quote %1 is never closed</source>
        <translation>das Anführungszeichen %1 wird nie geschlossen</translation>
    </message>
    <message>
        <source>write a quote inside double quotes as \"</source>
        <translation>schreiben Sie ein Anführungszeichen in doppelten Anführungszeichen als \"</translation>
    </message>
    <message>
        <source>no field '%1'</source>
        <translation>kein Feld '%1'</translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation>es gibt %1</translation>
    </message>
    <message>
        <source>'%1' needs a value</source>
        <translation>'%1' braucht einen Wert</translation>
    </message>
    <message>
        <source>write it as %1=VALUE</source>
        <translation>schreiben Sie %1=VALUE</translation>
    </message>
    <message>
        <source>'%1' is no date</source>
        <translation>'%1' ist kein Datum</translation>
    </message>
    <message>
        <source>write it as 2026-12-25 or 2026-12-24..2026-12-31</source>
        <translation>schreiben Sie 2026-12-25 oder 2026-12-24..2026-12-31</translation>
    </message>
    <message>
        <source>a date such as 2026-02-28</source>
        <translation>ein Termin wie 2026-02-28</translation>
    </message>
    <message>
        <source>a number from 1 to 10,000</source>
        <translation>eine Zahl von 1 bis 10,000</translation>
    </message>
    <message>
        <source>a number from 0 to 1,000</source>
        <translation>eine Zahl von 0 bis 1,000</translation>
    </message>
    <message>
        <source>an amount such as 12000.50</source>
        <translation>ein Betrag wie 12000.50</translation>
    </message>
    <message>
        <source>'%1' are no weekdays</source>
        <translation>'%1' sind keine Wochentage</translation>
    </message>
    <message>
        <source>write it as Mon-Fri or Mon-Thu,Sat</source>
        <translation>schreiben Sie Mon-Fri oder Mon-Thu,Sat</translation>
    </message>
    <message>
        <source>write it as 08:00-12:00,13:00-17:00</source>
        <translation>schreiben Sie 08:00-12:00,13:00-17:00</translation>
    </message>
    <message>
        <source>write it as 2026-02-28</source>
        <translation>schreiben Sie 2026-02-28</translation>
    </message>
    <message>
        <source>possible: %1</source>
        <translation>möglich: %1</translation>
    </message>
    <message>
        <source>'%1' is no value for a column</source>
        <translation>'%1' ist kein Wert für eine Spalte</translation>
    </message>
    <message>
        <source>write show, hide or a width in pixels</source>
        <translation>schreiben Sie show, hide oder eine Breite in Pixeln</translation>
    </message>
    <message>
        <source>'resource add %1' makes it</source>
        <translation>'resource add %1' legt sie an</translation>
    </message>
    <message>
        <source>write work or material</source>
        <translation>schreiben Sie work oder material</translation>
    </message>
    <message>
        <source>write it as 50/h, 400/d, 8000/m, or 2.5 for a material</source>
        <translation>schreiben Sie 50/h, 400/d, 8000/m oder 2.5 für ein Material</translation>
    </message>
    <message>
        <source>write it as 70/h</source>
        <translation>schreiben Sie 70/h</translation>
    </message>
    <message>
        <source>write it as 200%</source>
        <translation>schreiben Sie 200%</translation>
    </message>
    <message>
        <source>'resource set' changes it</source>
        <translation>'resource set' ändert sie</translation>
    </message>
    <message>
        <source>'%1' are no units</source>
        <translation>'%1' sind keine Einheiten</translation>
    </message>
    <message>
        <source>write 50% of the time, or a number of a material</source>
        <translation>schreiben Sie 50% der Zeit oder eine Menge eines Materials</translation>
    </message>
    <message>
        <source>'%1' means %2 % of '%3'</source>
        <translation>'%1' heißt %2 % von '%3'</translation>
    </message>
    <message>
        <source>did you mean %1%?</source>
        <translation>meinten Sie %1%?</translation>
    </message>
    <message>
        <source>assigned are: %1</source>
        <translation>zugewiesen sind: %1</translation>
    </message>
    <message>
        <source>%1 is hidden below a collapsed summary</source>
        <translation>%1 ist unter einem zugeklappten Sammelvorgang verborgen</translation>
    </message>
    <message>
        <source>'expand %1' shows it</source>
        <translation>'expand %1' zeigt ihn</translation>
    </message>
    <message>
        <source>'%1' is no count</source>
        <translation>'%1' ist keine Anzahl</translation>
    </message>
    <message>
        <source>write a whole number from 1</source>
        <translation>schreiben Sie eine ganze Zahl ab 1</translation>
    </message>
    <message>
        <source>'%1' is no direction</source>
        <translation>'%1' ist keine Richtung</translation>
    </message>
    <message>
        <source>write up or down</source>
        <translation>schreiben Sie up oder down</translation>
    </message>
    <message>
        <source>'%1' lies before the start of %2</source>
        <translation>'%1' liegt vor dem Anfang von %2</translation>
    </message>
    <message>
        <source>nothing to undo</source>
        <translation>nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>undo takes back the edits before it</source>
        <translation>undo nimmt die Änderungen davor zurück</translation>
    </message>
    <message>
        <source>nothing to redo</source>
        <translation>nichts zu wiederholen</translation>
    </message>
    <message>
        <source>redo follows undo, with no other edit between them</source>
        <translation>redo folgt auf undo, ohne andere Änderung dazwischen</translation>
    </message>
    <message>
        <source>a task at the end, beside the last one</source>
        <translation>ein Vorgang am Ende, neben dem letzten</translation>
    </message>
    <message>
        <source>a task above TASK</source>
        <translation>ein Vorgang über TASK</translation>
    </message>
    <message>
        <source>a task as the first one below TASK</source>
        <translation>ein Vorgang als erster unter TASK</translation>
    </message>
    <message>
        <source>a collapsed summary goes with what is below it, the tasks below another one move up</source>
        <translation>ein zugeklappter Sammelvorgang geht mit allem darunter, bei anderen rücken die Vorgänge darunter auf</translation>
    </message>
    <message>
        <source>below the task before it</source>
        <translation>unter den Vorgang davor</translation>
    </message>
    <message>
        <source>one level up; the tasks that follow it on its level go below it</source>
        <translation>eine Ebene höher; die ihm auf seiner Ebene folgen, kommen unter ihn</translation>
    </message>
    <message>
        <source>among the tasks of its summary</source>
        <translation>unter den Vorgängen seines Sammelvorgangs</translation>
    </message>
    <message>
        <source>shows what is below</source>
        <translation>zeigt, was darunter liegt</translation>
    </message>
    <message>
        <source>hides what is below</source>
        <translation>verbirgt, was darunter liegt</translation>
    </message>
    <message>
        <source>dates push what waits for the task; the fields are listed below</source>
        <translation>Termine schieben, was auf den Vorgang wartet; die Felder stehen unten</translation>
    </message>
    <message>
        <source>each one waits for the one before it</source>
        <translation>jeder wartet auf den vor ihm</translation>
    </message>
    <message>
        <source>the links from each to the next; of one task, all its links</source>
        <translation>die Verknüpfungen von jedem zum nächsten; bei einem Vorgang alle seine</translation>
    </message>
    <message>
        <source>UNITS: 50% of the time, or a number of a material</source>
        <translation>UNITS: 50% der Zeit oder eine Menge eines Materials</translation>
    </message>
    <message>
        <source>one resource, or all</source>
        <translation>eine Ressource oder alle</translation>
    </message>
    <message>
        <source>the assignments follow</source>
        <translation>die Zuweisungen folgen</translation>
    </message>
    <message>
        <source>with its assignments</source>
        <translation>mit ihren Zuweisungen</translation>
    </message>
    <message>
        <source>tasks keep their working time and move off the days off</source>
        <translation>Vorgänge behalten ihre Arbeitszeit und weichen den freien Tagen aus</translation>
    </message>
    <message>
        <source>days off</source>
        <translation>freie Tage</translation>
    </message>
    <message>
        <source>days that work, whatever the week says</source>
        <translation>Arbeitstage, was immer die Woche sagt</translation>
    </message>
    <message>
        <source>the holiday or workday that holds the date</source>
        <translation>der Feiertag oder Arbeitstag, in dem der Termin liegt</translation>
    </message>
    <message>
        <source>the options are listed below</source>
        <translation>die Optionen stehen unten</translation>
    </message>
    <message>
        <source>a column of the task table</source>
        <translation>eine Spalte der Vorgangstabelle</translation>
    </message>
    <message>
        <source>remembers dates and cost, of all tasks or of branches</source>
        <translation>hält Termine und Kosten fest, aller Vorgänge oder von Zweigen</translation>
    </message>
    <message>
        <source>moves every task behind its predecessors</source>
        <translation>verschiebt jeden Vorgang hinter seine Vorgänger</translation>
    </message>
    <message>
        <source>the tasks with all that is below them</source>
        <translation>die Vorgänge mit allem darunter</translation>
    </message>
    <message>
        <source>the same, and removes them</source>
        <translation>dasselbe, und entfernt sie</translation>
    </message>
    <message>
        <source>above TASK, or at the end, with new IDs and names</source>
        <translation>über TASK oder ans Ende, mit neuen IDs und Namen</translation>
    </message>
    <message>
        <source>the same as the last tasks below TASK; hidden when it is collapsed</source>
        <translation>dasselbe als letzte Vorgänge unter TASK; verborgen, wenn es zugeklappt ist</translation>
    </message>
    <message>
        <source>in a script: takes the last N edits above it back, of the 60 that are kept</source>
        <translation>im Skript: nimmt die letzten N Änderungen darüber zurück, von den 60, die behalten werden</translation>
    </message>
    <message>
        <source>in a script: makes them again</source>
        <translation>im Skript: macht sie noch einmal</translation>
    </message>
    <message>
        <source>'%1' needs more</source>
        <translation>'%1' braucht mehr</translation>
    </message>
    <message>
        <source>write it as %1</source>
        <translation>schreiben Sie %1</translation>
    </message>
    <message>
        <source>'%1' is one word too many for '%2'</source>
        <translation>'%1' ist für '%2' ein Wort zu viel</translation>
    </message>
    <message>
        <source>%1 is a summary now and loses its resource '%2'</source>
        <translation>%1 ist jetzt ein Sammelvorgang und verliert die Ressource '%2'</translation>
    </message>
    <message>
        <source>%1 loses its resource '%2'</source>
        <translation>%1 verliert die Ressource '%2'</translation>
    </message>
    <message>
        <source>%1 is a summary now and loses its baseline</source>
        <translation>%1 ist jetzt ein Sammelvorgang und verliert den Basisplan</translation>
    </message>
    <message>
        <source>%1 does not wait for %2 any more: they would wait for each other</source>
        <translation>%1 wartet nicht mehr auf %2: sie würden aufeinander warten</translation>
    </message>
    <message>
        <source>unknown edit '%1'</source>
        <translation>unbekannte Änderung '%1'</translation>
    </message>
    <message>
        <source>did you mean '%1'? 'kwgantt help edit' lists all edits</source>
        <translation>meinten Sie '%1'? 'kwgantt help edit' nennt alle Änderungen</translation>
    </message>
    <message>
        <source>Edits:</source>
        <translation>Änderungen:</translation>
    </message>
    <message>
        <source>Fields: %1</source>
        <translation>Felder: %1</translation>
    </message>
    <message>
        <source>Options: %1</source>
        <translation>Optionen: %1</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Quartal</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Workday</source>
        <translation>Arbeitstag</translation>
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
        <source>Tag</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Task Name</source>
        <translation>Vorgangsname</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Hyperlinks</source>
        <translation>Hyperlinks</translation>
    </message>
    <message>
        <source>Remaining Cost</source>
        <translation>Restkosten</translation>
    </message>
    <message>
        <source>Early Start</source>
        <translation>Frühester Anfang</translation>
    </message>
    <message>
        <source>Early Finish</source>
        <translation>Frühestes Ende</translation>
    </message>
    <message>
        <source>Late Start</source>
        <translation>Spätester Anfang</translation>
    </message>
    <message>
        <source>Late Finish</source>
        <translation>Spätestes Ende</translation>
    </message>
    <message>
        <source>Start Slack</source>
        <translation>Anfangspuffer</translation>
    </message>
    <message>
        <source>Finish Slack</source>
        <translation>Endpuffer</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Baseline Start</source>
        <translation>Basisplan-Anfang</translation>
    </message>
    <message>
        <source>Baseline Finish</source>
        <translation>Basisplan-Ende</translation>
    </message>
    <message>
        <source>Baseline Cost</source>
        <translation>Basisplan-Kosten</translation>
    </message>
    <message>
        <source>Predecessors</source>
        <translation>Vorgänger</translation>
    </message>
    <message>
        <source>Resource Name</source>
        <translation>Ressourcenname</translation>
    </message>
    <message>
        <source>Max Units</source>
        <translation>Max. Einheiten</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Satz</translation>
    </message>
    <message>
        <source>Overtime Rate</source>
        <translation>Überstundensatz</translation>
    </message>
    <message>
        <source>Cost per Use</source>
        <translation>Kosten pro Einsatz</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>spans</source>
        <translation>umspannt</translation>
    </message>
    <message>
        <source>starts when</source>
        <translation>beginnt, wenn</translation>
    </message>
    <message>
        <source>could start</source>
        <translation>könnte beginnen</translation>
    </message>
    <message>
        <source>takes</source>
        <translation>dauert</translation>
    </message>
    <message>
        <source>holds up</source>
        <translation>hält auf</translation>
    </message>
    <message>
        <source>%1% done</source>
        <translation>%1% fertig</translation>
    </message>
    <message>
        <source>%1 finishes (%2)</source>
        <translation>%1 endet (%2)</translation>
    </message>
    <message>
        <source>, which its summary %1 waits for</source>
        <translation>, worauf der Sammelvorgang %1 wartet</translation>
    </message>
    <message>
        <source>; next working moment is %1</source>
        <translation>; nächster Arbeitszeitpunkt ist %1</translation>
    </message>
    <message>
        <source>the project starts (%1)</source>
        <translation>das Projekt beginnt (%1)</translation>
    </message>
    <message>
        <source>its own date says: %1</source>
        <translation>der eigene Termin es sagt: %1</translation>
    </message>
    <message>
        <source>at any time: it waits for no other task</source>
        <translation>jederzeit: er wartet auf keinen anderen Vorgang</translation>
    </message>
    <message>
        <source>%1 earlier: %2 finishes on %3</source>
        <translation>%1 früher: %2 endet am %3</translation>
    </message>
    <message>
        <source>no earlier: %1 drives it</source>
        <translation>nicht früher: %1 bestimmt ihn</translation>
    </message>
    <message>
        <source>%1 drives it, too</source>
        <translation>%1 bestimmt ihn auch</translation>
    </message>
    <message>
        <source>%1 has %2 to spare</source>
        <translation>%1 hat %2 Luft</translation>
    </message>
    <message>
        <source>no time: it is a milestone</source>
        <translation>keine Zeit: es ist ein Meilenstein</translation>
    </message>
    <message>
        <source>%1 year</source>
        <translation>%1 Jahr</translation>
    </message>
    <message>
        <source>%1 quarter</source>
        <translation>%1 Quartal</translation>
    </message>
    <message>
        <source>%1 month</source>
        <translation>%1 Monat</translation>
    </message>
    <message>
        <source>%1 working week</source>
        <translation>%1 Arbeitswoche</translation>
    </message>
    <message>
        <source>%1 working day</source>
        <translation>%1 Arbeitstag</translation>
    </message>
    <message>
        <source>%1 working hour</source>
        <translation>%1 Arbeitsstunde</translation>
    </message>
    <message>
        <source>%1 working minute</source>
        <translation>%1 Arbeitsminute</translation>
    </message>
    <message>
        <source>%1 years</source>
        <translation>%1 Jahre</translation>
    </message>
    <message>
        <source>%1 quarters</source>
        <translation>%1 Quartale</translation>
    </message>
    <message>
        <source>%1 months</source>
        <translation>%1 Monate</translation>
    </message>
    <message>
        <source>%1 working weeks</source>
        <translation>%1 Arbeitswochen</translation>
    </message>
    <message>
        <source>%1 working days</source>
        <translation>%1 Arbeitstage</translation>
    </message>
    <message>
        <source>%1 working hours</source>
        <translation>%1 Arbeitsstunden</translation>
    </message>
    <message>
        <source>%1 working minutes</source>
        <translation>%1 Arbeitsminuten</translation>
    </message>
    <message>
        <source>; days off count as well</source>
        <translation>; freie Tage zählen mit</translation>
    </message>
    <message>
        <source>; %1 do not count</source>
        <translation>; %1 zählen nicht</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>weekend</source>
        <translation>Wochenende</translation>
    </message>
    <message>
        <source>nothing: it holds no task</source>
        <translation>nichts: er enthält keinen Vorgang</translation>
    </message>
    <message>
        <source>%1 task right below it</source>
        <translation>%1 Vorgang direkt darunter</translation>
    </message>
    <message>
        <source>%1 tasks right below it</source>
        <translation>%1 Vorgänge direkt darunter</translation>
    </message>
    <message>
        <source>%1; %2 is its first and its last</source>
        <translation>%1; %2 ist der erste und der letzte</translation>
    </message>
    <message>
        <source>%1; from %2 to %3</source>
        <translation>%1; von %2 bis %3</translation>
    </message>
    <message>
        <source>the plan's date is %1</source>
        <translation>der Termin des Plans ist %1</translation>
    </message>
    <message>
        <source>the plan's date is %1; %2 pushes it</source>
        <translation>der Termin des Plans ist %1; %2 schiebt ihn</translation>
    </message>
    <message>
        <source>yes: %1 below it is (slack %2)</source>
        <translation>ja: %1 darunter ist es (Puffer %2)</translation>
    </message>
    <message>
        <source>no: %1 has the least to spare of the tasks below it, %2</source>
        <translation>nein: am wenigsten Luft darunter hat %1, nämlich %2</translation>
    </message>
    <message>
        <source>yes: finishing later moves the project finish (slack %1)</source>
        <translation>ja: ein späteres Ende verschiebt das Projektende (Puffer %1)</translation>
    </message>
    <message>
        <source>no: it can finish up to %1 later (%2) without moving the project finish</source>
        <translation>nein: er kann bis zu %1 später enden (%2), ohne das Projektende zu verschieben</translation>
    </message>
    <message>
        <source>nothing: no task waits for it</source>
        <translation>nichts: kein Vorgang wartet auf ihn</translation>
    </message>
    <message>
        <source>; %1 more task waits for it</source>
        <translation>; %1 weiterer Vorgang wartet auf ihn</translation>
    </message>
    <message>
        <source>; %1 more tasks wait for it</source>
        <translation>; %1 weitere Vorgänge warten auf ihn</translation>
    </message>
    <message>
        <source>Titles of tasks:</source>
        <translation>Titel der Vorgänge:</translation>
    </message>
    <message>
        <source>Titles of resources:</source>
        <translation>Titel der Ressourcen:</translation>
    </message>
    <message>
        <source>Titles of assignments:</source>
        <translation>Titel der Zuweisungen:</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>the task has no ID</source>
        <translation>der Vorgang hat keine ID</translation>
    </message>
    <message>
        <source>ID %1 is that of row %2, too</source>
        <translation>ID %1 ist auch die von Zeile %2</translation>
    </message>
    <message>
        <source>its summary %1 does not exist</source>
        <translation>seinen Sammelvorgang %1 gibt es nicht</translation>
    </message>
    <message>
        <source>it stands above its summary %1</source>
        <translation>er steht über seinem Sammelvorgang %1</translation>
    </message>
    <message>
        <source>its summary %1 does not name it</source>
        <translation>sein Sammelvorgang %1 nennt ihn nicht</translation>
    </message>
    <message>
        <source>level %1 where the outline has %2</source>
        <translation>Ebene %1, wo die Gliederung %2 hat</translation>
    </message>
    <message>
        <source>it names %1 twice as its subtask</source>
        <translation>er nennt %1 zweimal als Untervorgang</translation>
    </message>
    <message>
        <source>its subtask %1 does not exist</source>
        <translation>seinen Untervorgang %1 gibt es nicht</translation>
    </message>
    <message>
        <source>its subtask %1 belongs to %2</source>
        <translation>sein Untervorgang %1 gehört zu %2</translation>
    </message>
    <message>
        <source>it is hidden by %1, which is no collapsed summary</source>
        <translation>er ist durch %1 verborgen, das kein zugeklappter Sammelvorgang ist</translation>
    </message>
    <message>
        <source>its predecessor %1 does not exist</source>
        <translation>seinen Vorgänger %1 gibt es nicht</translation>
    </message>
    <message>
        <source>its successor %1 does not exist</source>
        <translation>seinen Nachfolger %1 gibt es nicht</translation>
    </message>
    <message>
        <source>it is its own predecessor</source>
        <translation>er ist sein eigener Vorgänger</translation>
    </message>
    <message>
        <source>it is its own successor</source>
        <translation>er ist sein eigener Nachfolger</translation>
    </message>
    <message>
        <source>its predecessor %1 does not know of the link</source>
        <translation>sein Vorgänger %1 weiß nichts von der Verknüpfung</translation>
    </message>
    <message>
        <source>its successor %1 does not know of the link</source>
        <translation>sein Nachfolger %1 weiß nichts von der Verknüpfung</translation>
    </message>
    <message>
        <source>a summary with resources of its own</source>
        <translation>ein Sammelvorgang mit eigenen Ressourcen</translation>
    </message>
    <message>
        <source>its resource '%1' is not in the sheet</source>
        <translation>seine Ressource '%1' steht nicht im Blatt</translation>
    </message>
    <message>
        <source>tasks wait for each other: %1</source>
        <translation>Vorgänge warten aufeinander: %1</translation>
    </message>
    <message>
        <source>%1 row heights for %2 tasks</source>
        <translation>%1 Zeilenhöhen für %2 Vorgänge</translation>
    </message>
    <message>
        <source>its time zone %1 is not known on this machine: read in %2</source>
        <translation>seine Zeitzone %1 ist auf diesem Rechner unbekannt: in %2 gelesen</translation>
    </message>
    <message>
        <source>--tz ZONE names another one; the package tzdata brings them</source>
        <translation>--tz ZONE nennt eine andere; das Paket tzdata bringt sie mit</translation>
    </message>
    <message>
        <source>%1: in its own time zone, %2; --tz local shows it in that of this machine</source>
        <translation>%1: in der eigenen Zeitzone, %2; --tz local zeigt ihn in der dieses Rechners</translation>
    </message>
    <message>
        <source>its tasks do not begin and end on working hours in %1, but do in %2</source>
        <translation>seine Vorgänge beginnen und enden in %1 nicht zu Arbeitszeiten, aber in %2</translation>
    </message>
    <message>
        <source> and %1 more zones</source>
        <translation> und %1 weiteren Zonen</translation>
    </message>
    <message>
        <source>written in another zone? Try --tz %1</source>
        <translation>in einer anderen Zone geschrieben? Versuchen Sie --tz %1</translation>
    </message>
    <message>
        <source>%1: a package brings its own calendar and resources</source>
        <translation>%1: ein Paket bringt Kalender und Ressourcen mit</translation>
    </message>
    <message>
        <source>leave --calendar, --days, --hours, --holiday, --start, --resources and --assignments out</source>
        <translation>lassen Sie --calendar, --days, --hours, --holiday, --start, --resources und --assignments weg</translation>
    </message>
    <message>
        <source>%1: not a plan: %2</source>
        <translation>%1: kein Plan: %2</translation>
    </message>
    <message>
        <source>its XML cannot be read</source>
        <translation>das XML darin ist nicht lesbar</translation>
    </message>
    <message>
        <source>'kwgantt recover' lists autosave copies</source>
        <translation>'kwgantt recover' nennt Sicherungskopien</translation>
    </message>
    <message>
        <source>give a file name</source>
        <translation>geben Sie einen Dateinamen an</translation>
    </message>
    <message>
        <source>no texts in the language '%1'</source>
        <translation>keine Texte in der Sprache '%1'</translation>
    </message>
    <message>
        <source>no time zone '%1' on this machine</source>
        <translation>auf diesem Rechner gibt es keine Zeitzone '%1'</translation>
    </message>
    <message>
        <source>names look like Europe/Berlin; the package tzdata brings them</source>
        <translation>Namen sehen aus wie Europe/Berlin; das Paket tzdata bringt sie mit</translation>
    </message>
    <message>
        <source>write it as 2026-02-28 or 2026-02-28T08:00</source>
        <translation>schreiben Sie 2026-02-28 oder 2026-02-28T08:00</translation>
    </message>
    <message>
        <source>project finish %1 (unchanged)</source>
        <translation>Projektende %1 (unverändert)</translation>
    </message>
    <message>
        <source>project finish %1</source>
        <translation>Projektende %1</translation>
    </message>
    <message>
        <source>%1 task moved</source>
        <translation>%1 Vorgang verschoben</translation>
    </message>
    <message>
        <source>%1 tasks moved</source>
        <translation>%1 Vorgänge verschoben</translation>
    </message>
    <message>
        <source>its tasks moved</source>
        <translation>seine Vorgänge sind verschoben</translation>
    </message>
    <message>
        <source>by the edit</source>
        <translation>durch die Änderung</translation>
    </message>
    <message>
        <source>moved with its summary (%1)</source>
        <translation>mit dem Sammelvorgang verschoben (%1)</translation>
    </message>
    <message>
        <source>pushed by %1 "%2" (%3)</source>
        <translation>geschoben von %1 "%2" (%3)</translation>
    </message>
    <message>
        <source>Because</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>nothing moves: every task starts at or after the end of its predecessors</source>
        <translation>nichts bewegt sich: jeder Vorgang beginnt mit oder nach dem Ende seiner Vorgänger</translation>
    </message>
    <message>
        <source>%1 unchanged</source>
        <translation>%1 unverändert</translation>
    </message>
    <message>
        <source>a whole number from 20 to 10,000</source>
        <translation>eine ganze Zahl von 20 bis 10,000</translation>
    </message>
    <message>
        <source>a whole number from 1 to 1,000</source>
        <translation>eine ganze Zahl von 1 bis 1,000</translation>
    </message>
    <message>
        <source>a whole number from 1 to 10,000</source>
        <translation>eine ganze Zahl von 1 bis 10,000</translation>
    </message>
    <message>
        <source>percent, from 10 to 400</source>
        <translation>Prozent, von 10 bis 400</translation>
    </message>
    <message>
        <source>a number from 0, such as 5%</source>
        <translation>eine Zahl ab 0, wie 5%</translation>
    </message>
    <message>
        <source>'kwgantt help %1' lists its options</source>
        <translation>'kwgantt help %1' nennt die Optionen</translation>
    </message>
    <message>
        <source>unknown option '%1'</source>
        <translation>unbekannte Option '%1'</translation>
    </message>
    <message>
        <source>option '%1' needs a value: %2</source>
        <translation>Option '%1' braucht einen Wert: %2</translation>
    </message>
    <message>
        <source>option '%1' takes no value</source>
        <translation>Option '%1' nimmt keinen Wert</translation>
    </message>
    <message>
        <source>standard input cannot be written back</source>
        <translation>in die Standardeingabe kann nicht zurückgeschrieben werden</translation>
    </message>
    <message>
        <source>give a file name, or -o FILE</source>
        <translation>geben Sie einen Dateinamen an oder -o FILE</translation>
    </message>
    <message>
        <source>-i writes the plan itself; it goes with neither -o nor --csv, --json or --to</source>
        <translation>-i schreibt den Plan selbst; es geht weder mit -o noch mit --csv, --json oder --to</translation>
    </message>
    <message>
        <source>--backup keeps the file that -i writes</source>
        <translation>--backup behält die Datei, die -i überschreibt</translation>
    </message>
    <message>
        <source>add -i</source>
        <translation>fügen Sie -i hinzu</translation>
    </message>
    <message>
        <source>-i and --dry-run exclude each other</source>
        <translation>-i und --dry-run schließen sich aus</translation>
    </message>
    <message>
        <source>--portrait and --landscape exclude each other</source>
        <translation>--portrait und --landscape schließen sich aus</translation>
    </message>
    <message>
        <source>--fit and --zoom exclude each other</source>
        <translation>--fit und --zoom schließen sich aus</translation>
    </message>
    <message>
        <source>--before and --under exclude each other</source>
        <translation>--before und --under schließen sich aus</translation>
    </message>
    <message>
        <source>unknown command '%1'</source>
        <translation>unbekannter Befehl '%1'</translation>
    </message>
    <message>
        <source>did you mean '%1'? 'kwgantt help' lists all commands</source>
        <translation>meinten Sie '%1'? 'kwgantt help' nennt alle Befehle</translation>
    </message>
    <message>
        <source>'%1' does not go with '%2'</source>
        <translation>'%1' passt nicht zu '%2'</translation>
    </message>
    <message>
        <source>'%1' needs more: %2</source>
        <translation>'%1' braucht mehr: %2</translation>
    </message>
    <message>
        <source>standard output has no name that tells a format</source>
        <translation>die Standardausgabe hat keinen Namen, der ein Format nennt</translation>
    </message>
    <message>
        <source>--to csv, json, mspdi or table tells it</source>
        <translation>--to csv, json, mspdi oder table nennt es</translation>
    </message>
    <message>
        <source>'%1' names no format that can be written</source>
        <translation>'%1' nennt kein Format, das geschrieben werden kann</translation>
    </message>
    <message>
        <source>end it in .kwpx, .csv, .xlsx, .xls, .xml or .json</source>
        <translation>er muss auf .kwpx, .csv, .xlsx, .xls, .xml oder .json enden</translation>
    </message>
    <message>
        <source>%1: written with %2</source>
        <translation>%1: geschrieben, %2</translation>
    </message>
    <message>
        <source>baseline set</source>
        <translation>Basisplan gesetzt</translation>
    </message>
    <message>
        <source>baseline cleared</source>
        <translation>Basisplan gelöscht</translation>
    </message>
    <message>
        <source>'%1' is nothing to do with a baseline</source>
        <translation>'%1' lässt sich mit einem Basisplan nicht tun</translation>
    </message>
    <message>
        <source>write list, set or clear</source>
        <translation>schreiben Sie list, set oder clear</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopie</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gesichert</translation>
    </message>
    <message>
        <source>&gt;Tasks</source>
        <translation>&gt;Vorgänge</translation>
    </message>
    <message>
        <source>First task</source>
        <translation>Erster Vorgang</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>no autosave copies in %1</source>
        <translation>keine Sicherungskopien in %1</translation>
    </message>
    <message>
        <source>where shall the copy go?</source>
        <translation>wohin soll die Kopie?</translation>
    </message>
    <message>
        <source>-o FILE.kwpx names the file</source>
        <translation>-o FILE.kwpx nennt die Datei</translation>
    </message>
    <message>
        <source>no autosave copy '%1' in %2</source>
        <translation>keine Sicherungskopie '%1' in %2</translation>
    </message>
    <message>
        <source>'kwgantt recover' lists them</source>
        <translation>'kwgantt recover' nennt sie</translation>
    </message>
    <message>
        <source>copy branch</source>
        <translation>Zweig kopieren</translation>
    </message>
    <message>
        <source>%1 task copied</source>
        <translation>%1 Vorgang kopiert</translation>
    </message>
    <message>
        <source>%1 tasks copied</source>
        <translation>%1 Vorgänge kopiert</translation>
    </message>
    <message>
        <source>no completion for '%1'</source>
        <translation>keine Vervollständigung für '%1'</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>--calendar FILE names another calendar</source>
        <translation>--calendar FILE nennt einen anderen Kalender</translation>
    </message>
    <message>
        <source>no working hour in the day: nothing can be scheduled</source>
        <translation>keine Arbeitsstunde am Tag: nichts lässt sich planen</translation>
    </message>
    <message>
        <source>no working day in the week: nothing can be scheduled</source>
        <translation>kein Arbeitstag in der Woche: nichts lässt sich planen</translation>
    </message>
    <message>
        <source>--days, --hours and --calendar give the working time</source>
        <translation>--days, --hours und --calendar geben die Arbeitszeit an</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>lesen</translation>
    </message>
    <message>
        <source>building the tasks</source>
        <translation>Vorgänge anlegen</translation>
    </message>
    <message>
        <source>no working day from %1 on: nothing can be scheduled</source>
        <translation>kein Arbeitstag ab %1: nichts lässt sich planen</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>%1: cannot be written</source>
        <translation>%1: kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1: not written, for the file cannot say all of it: %2</source>
        <translation>%1: nicht geschrieben, denn die Datei kann nicht alles sagen: %2</translation>
    </message>
    <message>
        <source>scheduling</source>
        <translation>berechnen</translation>
    </message>
    <message>
        <source>late dates and slack</source>
        <translation>späteste Termine und Puffer</translation>
    </message>
    <message>
        <source>%1: %2 values of custom fields are passed over</source>
        <translation>%1: %2 Werte eigener Felder werden übergangen</translation>
    </message>
    <message>
        <source>no column '%1' can be drawn</source>
        <translation>keine Spalte '%1' kann gezeichnet werden</translation>
    </message>
    <message>
        <source>write it as 2026-02-01..2026-03-31</source>
        <translation>schreiben Sie 2026-02-01..2026-03-31</translation>
    </message>
    <message>
        <source>write it as 20mm or 20,15mm</source>
        <translation>schreiben Sie 20mm oder 20,15mm</translation>
    </message>
    <message>
        <source>write it as 3x2: three sheets across, two down</source>
        <translation>schreiben Sie 3x2: drei Blätter nebeneinander, zwei untereinander</translation>
    </message>
    <message>
        <source>%1 of %2 x %3 mm, %4 across and %5 down; the smallest text is %6 points high</source>
        <translation>%1 von %2 x %3 mm, %4 nebeneinander und %5 untereinander; der kleinste Text ist %6 Punkt hoch</translation>
    </message>
    <message>
        <source>%1 sheet</source>
        <translation>%1 Blatt</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 Blätter</translation>
    </message>
    <message>
        <source>drawing</source>
        <translation>zeichnen</translation>
    </message>
    <message>
        <source>where shall the picture go?</source>
        <translation>wohin soll das Bild?</translation>
    </message>
    <message>
        <source>'%1' names no picture</source>
        <translation>'%1' nennt kein Bild</translation>
    </message>
    <message>
        <source>-o OUT.pdf, OUT.png, OUT.svg or OUT.html; '-o -' with --to pdf|png|svg|html</source>
        <translation>-o OUT.pdf, OUT.png, OUT.svg oder OUT.html; '-o -' mit --to pdf|png|svg|html</translation>
    </message>
    <message>
        <source>unknown column '%1'; there are %2</source>
        <translation>unbekannte Spalte '%1'; es gibt %2</translation>
    </message>
    <message>
        <source>'%1' is no range; write it as 2026-01-05..2026-02-28</source>
        <translation>'%1' ist kein Zeitraum; schreiben Sie 2026-01-05..2026-02-28</translation>
    </message>
    <message>
        <source>the bars end early: a greater --width or a coarser --scale shows the rest</source>
        <translation>die Balken enden früher: mehr --width oder ein gröberes --scale zeigt den Rest</translation>
    </message>
    <message>
        <source>! critical: a delay moves the finish</source>
        <translation>! kritisch: eine Verzögerung verschiebt das Ende</translation>
    </message>
    <message>
        <source>critical only from %1 on: %2 begins at its own date, not when another task ends</source>
        <translation>kritisch erst ab %1: %2 beginnt an seinem eigenen Termin, nicht wenn ein anderer Vorgang endet</translation>
    </message>
    <message>
        <source>time zone %1</source>
        <translation>Zeitzone %1</translation>
    </message>
    <message>
        <source>length %1, all of it critical</source>
        <translation>Länge %1, ganz kritisch</translation>
    </message>
    <message>
        <source>length %1, critical %2</source>
        <translation>Länge %1, kritisch %2</translation>
    </message>
    <message>
        <source>cost %1</source>
        <translation>Kosten %1</translation>
    </message>
    <message>
        <source>%1 holiday</source>
        <translation>%1 Feiertag</translation>
    </message>
    <message>
        <source>%1 holidays</source>
        <translation>%1 Feiertage</translation>
    </message>
    <message>
        <source>%1 extra working day</source>
        <translation>%1 zusätzlicher Arbeitstag</translation>
    </message>
    <message>
        <source>%1 extra working days</source>
        <translation>%1 zusätzliche Arbeitstage</translation>
    </message>
    <message>
        <source>&gt;Max</source>
        <translation>&gt;Max</translation>
    </message>
    <message>
        <source>&gt;Rate</source>
        <translation>&gt;Satz</translation>
    </message>
    <message>
        <source>&gt;Per use</source>
        <translation>&gt;Je Einsatz</translation>
    </message>
    <message>
        <source>&gt;Work</source>
        <translation>&gt;Arbeit</translation>
    </message>
    <message>
        <source>&gt;Done</source>
        <translation>&gt;Fertig</translation>
    </message>
    <message>
        <source>&gt;Cost</source>
        <translation>&gt;Kosten</translation>
    </message>
    <message>
        <source>&gt;Spent</source>
        <translation>&gt;Bisher</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>! %1 has more than %2: %3</source>
        <translation>! %1 hat mehr als %2: %3</translation>
    </message>
    <message>
        <source>no resources</source>
        <translation>keine Ressourcen</translation>
    </message>
    <message>
        <source>no task '%1'</source>
        <translation>kein Vorgang '%1'</translation>
    </message>
    <message>
        <source>TASK is a row number from 1 to %1, #ID, or a name</source>
        <translation>TASK ist eine Zeilennummer von 1 bis %1, #ID oder ein Name</translation>
    </message>
    <message>
        <source>'%1' may be any of %2 tasks</source>
        <translation>'%1' kann einer von %2 Vorgängen sein</translation>
    </message>
    <message>
        <source>say which by its row number: %1</source>
        <translation>sagen Sie welcher, mit der Zeilennummer: %1</translation>
    </message>
    <message>
        <source>(%1 more task)</source>
        <translation>(%1 weiterer Vorgang)</translation>
    </message>
    <message>
        <source>(%1 more tasks)</source>
        <translation>(%1 weitere Vorgänge)</translation>
    </message>
    <message>
        <source>the task is its own predecessor</source>
        <translation>der Vorgang ist sein eigener Vorgänger</translation>
    </message>
    <message>
        <source>predecessor %1 stands twice</source>
        <translation>Vorgänger %1 steht doppelt</translation>
    </message>
    <message>
        <source>predecessor %1 lies below this summary, which ends with it</source>
        <translation>Vorgänger %1 liegt unter diesem Sammelvorgang, der mit ihm endet</translation>
    </message>
    <message>
        <source>predecessor %1 is the summary that holds this task</source>
        <translation>Vorgänger %1 ist der Sammelvorgang, zu dem dieser Vorgang gehört</translation>
    </message>
    <message>
        <source>tasks would wait for each other: %1</source>
        <translation>Vorgänge würden aufeinander warten: %1</translation>
    </message>
    <message>
        <source>predecessor %1 does not exist</source>
        <translation>den Vorgänger %1 gibt es nicht</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>%1: not a plan: no title of the task sheet is known</source>
        <translation>%1: kein Plan: kein Titel des Vorgangsblatts ist bekannt</translation>
    </message>
    <message>
        <source>the first row holds titles such as %1</source>
        <translation>die erste Zeile enthält Titel wie %1</translation>
    </message>
    <message>
        <source>an .xls workbook is written with texts alone</source>
        <translation>eine .xls-Arbeitsmappe wird nur mit Texten geschrieben</translation>
    </message>
    <message>
        <source>--sheets rich makes a difference to .xlsx</source>
        <translation>--sheets rich macht bei .xlsx einen Unterschied</translation>
    </message>
    <message>
        <source>the end of an object is missing</source>
        <translation>das Ende eines Objekts fehlt</translation>
    </message>
    <message>
        <source>a colon is missing behind a name</source>
        <translation>hinter einem Namen fehlt der Doppelpunkt</translation>
    </message>
    <message>
        <source>the end of a list is missing</source>
        <translation>das Ende einer Liste fehlt</translation>
    </message>
    <message>
        <source>a comma is missing between values</source>
        <translation>zwischen Werten fehlt ein Komma</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>the text ends in a number</source>
        <translation>der Text endet in einer Zahl</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>a backslash with nothing that it can mark</source>
        <translation>ein umgekehrter Schrägstrich vor einem Zeichen, das er nicht meinen kann</translation>
    </message>
    <message>
        <source>a text is no UTF-8</source>
        <translation>ein Text ist kein UTF-8</translation>
    </message>
    <message>
        <source>the closing quote of a text is missing</source>
        <translation>das schließende Anführungszeichen eines Textes fehlt</translation>
    </message>
    <message>
        <source>nothing stands behind a comma</source>
        <translation>hinter einem Komma steht nichts</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>zu tief verschachtelt</translation>
    </message>
    <message>
        <source>more text stands behind the end</source>
        <translation>hinter dem Ende steht noch Text</translation>
    </message>
    <message>
        <source>no JSON</source>
        <translation>kein JSON</translation>
    </message>
    <message>
        <source>no hours</source>
        <translation>keine Zeiten</translation>
    </message>
    <message>
        <source>calendar, %1</source>
        <translation>Kalender, %1</translation>
    </message>
    <message>
        <source>hours %1 are read as %2</source>
        <translation>die Zeiten %1 werden als %2 gelesen</translation>
    </message>
    <message>
        <source>every working day has the same hours</source>
        <translation>jeder Arbeitstag hat dieselben Zeiten</translation>
    </message>
    <message>
        <source>'%1' is not known: passed over</source>
        <translation>'%1' ist unbekannt: übergangen</translation>
    </message>
    <message>
        <source>known are %1</source>
        <translation>bekannt sind %1</translation>
    </message>
    <message>
        <source>more than %1 exceptions</source>
        <translation>mehr als %1 Ausnahmen</translation>
    </message>
    <message>
        <source>calendar, exception %1</source>
        <translation>Kalender, Ausnahme %1</translation>
    </message>
    <message>
        <source>exception %1: 'hours' are no text such as "08:00-12:00"</source>
        <translation>Ausnahme %1: 'hours' ist kein Text wie "08:00-12:00"</translation>
    </message>
    <message>
        <source>exception %1: %2</source>
        <translation>Ausnahme %1: %2</translation>
    </message>
    <message>
        <source>exception %1: '%2' to '%3' are not two dates in order</source>
        <translation>Ausnahme %1: '%2' bis '%3' sind keine zwei Termine in ihrer Reihenfolge</translation>
    </message>
    <message>
        <source>calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>the hours %1 count as %2 whole hours a day</source>
        <translation>die Zeiten %1 zählen als %2 ganze Stunden am Tag</translation>
    </message>
    <message>
        <source>use hours that begin and end on the hour for exact dates</source>
        <translation>für genaue Termine nehmen Sie Zeiten, die zur vollen Stunde beginnen und enden</translation>
    </message>
    <message>
        <source>a day of %1 minutes is counted as its hours say: %2 minutes</source>
        <translation>ein Tag von %1 Minuten zählt, wie seine Zeiten sagen: %2 Minuten</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>kein JSON-Objekt</translation>
    </message>
    <message>
        <source>not JSON at byte %1: %2</source>
        <translation>kein JSON bei Byte %1: %2</translation>
    </message>
    <message>
        <source>'days' is no list of weekdays such as {"Mon": true}</source>
        <translation>'days' ist keine Liste von Wochentagen wie {"Mon": true}</translation>
    </message>
    <message>
        <source>'exceptions' is no list of dates</source>
        <translation>'exceptions' ist keine Liste von Terminen</translation>
    </message>
    <message>
        <source>'%1' is not a weekday with its hours</source>
        <translation>'%1' ist kein Wochentag mit seinen Zeiten</translation>
    </message>
    <message>
        <source>'hours': %1</source>
        <translation>'hours': %1</translation>
    </message>
    <message>
        <source>'hours' are no text such as "08:00-12:00,13:00-17:00"</source>
        <translation>'hours' ist kein Text wie "08:00-12:00,13:00-17:00"</translation>
    </message>
    <message>
        <source>'start': '%1' is not a date</source>
        <translation>'start': '%1' ist kein Datum</translation>
    </message>
    <message>
        <source>'%1' is not from one time of day to another</source>
        <translation>'%1' geht nicht von einer Uhrzeit zu einer anderen</translation>
    </message>
    <message>
        <source>'%1' ends before it begins</source>
        <translation>'%1' endet, bevor es beginnt</translation>
    </message>
    <message>
        <source>'%1' is earlier than '%2' before it</source>
        <translation>'%1' liegt früher als '%2' davor</translation>
    </message>
    <message>
        <source>'%1' overlaps '%2'</source>
        <translation>'%1' überschneidet '%2'</translation>
    </message>
    <message>
        <source>no working day</source>
        <translation>kein Arbeitstag</translation>
    </message>
</context>
<context>
    <name>help</name>
    <message>
        <source>schedules project plans and shows them in the terminal</source>
        <translation>berechnet Projektpläne und zeigt sie im Terminal</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>a package (.kwpx), a workbook (.xlsx, .xls), project XML (.xml) or a CSV plan ('-' reads standard input): titles in the first row, in any order and case, such as ID, WBS, Level, Name, Start, Finish, Duration (3d 12h 30min 1.5w 2mon), Percent, Predecessors (joined by ;), Resources, Milestone, Notes. A calendar stands beside it as NAME.calendar.json or calendar.json, the resource sheet and the assignments as NAME.resources.csv and NAME.assignments.csv.</source>
        <translation>ein Paket (.kwpx), eine Arbeitsmappe (.xlsx, .xls), Projekt-XML (.xml) oder ein CSV-Plan ('-' liest die Standardeingabe): Titel in der ersten Zeile, in beliebiger Reihenfolge und Schreibung, wie ID, WBS, Level, Name, Start, Finish, Duration (3d 12h 30min 1.5w 2mon), Percent, Predecessors (mit ; getrennt), Resources, Milestone, Notes. Ein Kalender steht daneben als NAME.calendar.json oder calendar.json, Ressourcenblatt und Zuweisungen als NAME.resources.csv und NAME.assignments.csv.</translation>
    </message>
    <message>
        <source>the row number shown, #ID, or a name</source>
        <translation>die gezeigte Zeilennummer, #ID oder ein Name</translation>
    </message>
    <message>
        <source>Options of all commands</source>
        <translation>Optionen aller Befehle</translation>
    </message>
    <message>
        <source>writes the result into FILE; the format follows the name (.kwpx, .csv, .xlsx, .xls, .xml, .json); '-' is standard output</source>
        <translation>schreibt das Ergebnis in FILE; das Format folgt dem Namen (.kwpx, .csv, .xlsx, .xls, .xml, .json); '-' ist die Standardausgabe</translation>
    </message>
    <message>
        <source>replaces a file that is there, and writes over one of which something was not read</source>
        <translation>ersetzt eine vorhandene Datei und überschreibt eine, von der etwas nicht gelesen wurde</translation>
    </message>
    <message>
        <source>says nothing but errors</source>
        <translation>meldet nur Fehler</translation>
    </message>
    <message>
        <source>lists all findings, not only the first</source>
        <translation>nennt alle Befunde, nicht nur die ersten</translation>
    </message>
    <message>
        <source>shows on standard error how far work that lasts is</source>
        <translation>zeigt auf der Standardfehlerausgabe, wie weit längere Arbeit ist</translation>
    </message>
    <message>
        <source>colours repeat what the text says</source>
        <translation>Farben wiederholen, was der Text sagt</translation>
    </message>
    <message>
        <source>plain characters only</source>
        <translation>nur einfache Zeichen</translation>
    </message>
    <message>
        <source>the language of texts and titles</source>
        <translation>die Sprache der Texte und Titel</translation>
    </message>
    <message>
        <source>the time zone of dates, such as Europe/Berlin, or local for that of this machine; without it that of the package, else that of this machine</source>
        <translation>die Zeitzone der Termine, wie Europe/Berlin, oder local für die dieses Rechners; sonst die des Pakets, sonst die dieses Rechners</translation>
    </message>
    <message>
        <source>takes this moment for the present one, such as 2026-02-28T08:00</source>
        <translation>nimmt diesen Zeitpunkt als den jetzigen, wie 2026-02-28T08:00</translation>
    </message>
    <message>
        <source>adds a record of the run to FILE</source>
        <translation>hängt eine Aufzeichnung des Laufs an FILE an</translation>
    </message>
    <message>
        <source>the help on the command</source>
        <translation>die Hilfe zum Befehl</translation>
    </message>
    <message>
        <source>the program's version</source>
        <translation>die Version des Programms</translation>
    </message>
    <message>
        <source>Options of commands that read a plan</source>
        <translation>Optionen der Befehle, die einen Plan lesen</translation>
    </message>
    <message>
        <source>data for other programs</source>
        <translation>Daten für andere Programme</translation>
    </message>
    <message>
        <source>the format of what is printed</source>
        <translation>das Format der Ausgabe</translation>
    </message>
    <message>
        <source>the format of FILE: kwpx, csv, xlsx, xls or mspdi; its content decides otherwise</source>
        <translation>das Format von FILE: kwpx, csv, xlsx, xls oder mspdi; sonst entscheidet der Inhalt</translation>
    </message>
    <message>
        <source>the calendar of a plan that holds none</source>
        <translation>der Kalender eines Plans, der keinen enthält</translation>
    </message>
    <message>
        <source>the days that work, such as Mon-Fri</source>
        <translation>die Arbeitstage, wie Mon-Fri</translation>
    </message>
    <message>
        <source>the hours of a day, such as 08:00-12:00,13:00-17:00</source>
        <translation>die Zeiten eines Tags, wie 08:00-12:00,13:00-17:00</translation>
    </message>
    <message>
        <source>a date or dates off: 2026-12-24..2027-01-01</source>
        <translation>ein freier Tag oder mehrere: 2026-12-24..2027-01-01</translation>
    </message>
    <message>
        <source>where tasks without a start begin</source>
        <translation>wo Vorgänge ohne Anfang beginnen</translation>
    </message>
    <message>
        <source>the resource sheet of a CSV plan</source>
        <translation>das Ressourcenblatt eines CSV-Plans</translation>
    </message>
    <message>
        <source>the assignments of a CSV plan</source>
        <translation>die Zuweisungen eines CSV-Plans</translation>
    </message>
    <message>
        <source>the unit of slack (d: below half a tenth of a day counts as none)</source>
        <translation>die Einheit des Puffers (d: unter einem Zwanzigstel Tag zählt als keiner)</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Exitcodes</translation>
    </message>
    <message>
        <source>done, and the answer is no: there were findings, something would move, two plans differ, a demand is not met</source>
        <translation>fertig, und die Antwort ist nein: es gab Befunde, etwas würde sich bewegen, zwei Pläne unterscheiden sich, eine Forderung ist nicht erfüllt</translation>
    </message>
    <message>
        <source>wrong use</source>
        <translation>falscher Gebrauch</translation>
    </message>
    <message>
        <source>the input cannot be read</source>
        <translation>die Eingabe ist nicht lesbar</translation>
    </message>
    <message>
        <source>the output cannot be written, was changed meanwhile, or would lose what was not read</source>
        <translation>die Ausgabe ist nicht zu schreiben, wurde inzwischen geändert oder verlöre, was nicht gelesen wurde</translation>
    </message>
    <message>
        <source>the plan cannot be scheduled</source>
        <translation>der Plan lässt sich nicht berechnen</translation>
    </message>
    <message>
        <source>the machine lacks something</source>
        <translation>dem Rechner fehlt etwas</translation>
    </message>
    <message>
        <source>a bug</source>
        <translation>ein Programmfehler</translation>
    </message>
    <message>
        <source>how far the plan is from its baseline</source>
        <translation>wie weit der Plan von seinem Basisplan weg ist</translation>
    </message>
    <message>
        <source>The baseline remembers dates and costs, of all tasks or of TASK with what is below it.</source>
        <translation>Der Basisplan hält Termine und Kosten fest, von allen Vorgängen oder von TASK mit allem darunter.</translation>
    </message>
    <message>
        <source>writes FILE itself, a package or a CSV plan, as 'kwgantt help edit' says (set, clear)</source>
        <translation>schreibt FILE selbst, ein Paket oder einen CSV-Plan, wie 'kwgantt help edit' sagt (set, clear)</translation>
    </message>
    <message>
        <source>keeps the file as it was before as FILE~</source>
        <translation>behält die Datei, wie sie war, als FILE~</translation>
    </message>
    <message>
        <source>writes another file</source>
        <translation>schreibt eine andere Datei</translation>
    </message>
    <message>
        <source>shows the changed plan and writes nothing</source>
        <translation>zeigt den geänderten Plan und schreibt nichts</translation>
    </message>
    <message>
        <source>a workbook with values, widths, filters and outline groups</source>
        <translation>eine Arbeitsmappe mit Werten, Breiten, Filtern und Gliederungsgruppen</translation>
    </message>
    <message>
        <source>every field of every task, for other programs</source>
        <translation>jedes Feld jedes Vorgangs, für andere Programme</translation>
    </message>
    <message>
        <source>for other programs</source>
        <translation>für andere Programme</translation>
    </message>
    <message>
        <source>what 'show --columns' can show</source>
        <translation>was 'show --columns' zeigen kann</translation>
    </message>
    <message>
        <source>a script that completes commands, options, values and edits</source>
        <translation>ein Skript, das Befehle, Optionen, Werte und Änderungen vervollständigt</translation>
    </message>
    <message>
        <source>Packages install the scripts. By hand:</source>
        <translation>Pakete installieren die Skripte. Von Hand:</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>writes a plan in another format</source>
        <translation>schreibt einen Plan in einem anderen Format</translation>
    </message>
    <message>
        <source>The input's format is found from its content, the output's from its name: .kwpx, .csv, .xlsx, .xls, .xml or .json. Tasks without a start are placed as 'kwgantt schedule' does.</source>
        <translation>Das Format der Eingabe ergibt sich aus dem Inhalt, das der Ausgabe aus dem Namen: .kwpx, .csv, .xlsx, .xls, .xml oder .json. Vorgänge ohne Anfang werden gesetzt wie von 'kwgantt schedule'.</translation>
    </message>
    <message>
        <source>A CSV plan holds tasks alone: its calendar, resources and assignments are written beside it, where they are found again.</source>
        <translation>Ein CSV-Plan enthält nur Vorgänge: Kalender, Ressourcen und Zuweisungen werden daneben geschrieben, wo sie wiedergefunden werden.</translation>
    </message>
    <message>
        <source>A workbook has a sheet each of tasks, resources and assignments, its columns told by their titles; the calendar is written beside it, too. What a workbook's cells could not give is listed on standard error.</source>
        <translation>Eine Arbeitsmappe hat je ein Blatt für Vorgänge, Ressourcen und Zuweisungen, die Spalten nennt ihr Titel; der Kalender wird daneben geschrieben. Was die Zellen einer Mappe nicht hergaben, steht auf der Standardfehlerausgabe.</translation>
    </message>
    <message>
        <source>an .xlsx workbook in which every cell is a text (rich, the default: dates and numbers as values, widths, filters and outline groups)</source>
        <translation>eine .xlsx-Arbeitsmappe, in der jede Zelle ein Text ist (rich, die Vorgabe: Termine und Zahlen als Werte, Breiten, Filter und Gliederungsgruppen)</translation>
    </message>
    <message>
        <source>replaces OUT</source>
        <translation>ersetzt OUT</translation>
    </message>
    <message>
        <source>copies tasks from one plan into another</source>
        <translation>kopiert Vorgänge von einem Plan in einen anderen</translation>
    </message>
    <message>
        <source>Each TASK goes with all that is below it. The copies get new IDs and, where a name is taken, new names; links among them stay. Assignments stay behind: they belong to the other plan's resource sheet.</source>
        <translation>Jeder TASK geht mit allem darunter. Die Kopien bekommen neue IDs und, wo ein Name vergeben ist, neue Namen; Verknüpfungen unter ihnen bleiben. Zuweisungen bleiben zurück: sie gehören zum Ressourcenblatt des anderen Plans.</translation>
    </message>
    <message>
        <source>above this task of INTO</source>
        <translation>über diesem Vorgang von INTO</translation>
    </message>
    <message>
        <source>as the last tasks below this one, expanded or collapsed; without either, at the end</source>
        <translation>als letzte Vorgänge unter diesem, auf- oder zugeklappt; ohne beides am Ende</translation>
    </message>
    <message>
        <source>writes INTO itself, a package or a CSV plan, as 'kwgantt help edit' says</source>
        <translation>schreibt INTO selbst, ein Paket oder einen CSV-Plan, wie 'kwgantt help edit' sagt</translation>
    </message>
    <message>
        <source>what is different between two versions of a plan</source>
        <translation>was zwischen zwei Fassungen eines Plans anders ist</translation>
    </message>
    <message>
        <source>Tasks belong together by ID and name, then by a name that stands once, then by ID. Exit code 1 when anything is different; no difference means that the plans are alike in all that is saved but the widths of bars.</source>
        <translation>Vorgänge gehören nach ID und Name zusammen, dann nach einem Namen, der einmal steht, dann nach ID. Exitcode 1, wenn etwas anders ist; kein Unterschied heißt, dass die Pläne in allem Gespeicherten bis auf die Balkenbreiten gleich sind.</translation>
    </message>
    <message>
        <source>only these, joined by commas: tasks, outline, names, dates, progress, cost, resources, links, texts, baseline, calendar, sheet, table, options</source>
        <translation>nur diese, mit Kommas getrennt: tasks, outline, names, dates, progress, cost, resources, links, texts, baseline, calendar, sheet, table, options</translation>
    </message>
    <message>
        <source>only one of the plans has the task</source>
        <translation>nur einer der Pläne hat den Vorgang</translation>
    </message>
    <message>
        <source>another name, another summary</source>
        <translation>anderer Name, anderer Sammelvorgang</translation>
    </message>
    <message>
        <source>it finishes later; its dates changed otherwise</source>
        <translation>er endet später; seine Termine sind sonst anders</translation>
    </message>
    <message>
        <source>duration, done, cost, resources, notes, predecessors, priority, baseline, hyperlinks; and of the plan its working time, resource sheet, columns and options</source>
        <translation>Dauer, Fertigstellung, Kosten, Ressourcen, Notizen, Vorgänger, Priorität, Basisplan, Hyperlinks; und vom Plan Arbeitszeit, Ressourcenblatt, Spalten und Optionen</translation>
    </message>
    <message>
        <source>changes a plan</source>
        <translation>ändert einen Plan</translation>
    </message>
    <message>
        <source>writes FILE itself, a package or a CSV plan; of a CSV plan the separator, the line ends, the mark at the beginning, all other columns and every cell that still holds stay as they are. Writers wait for each other</source>
        <translation>schreibt FILE selbst, ein Paket oder einen CSV-Plan; bei einem CSV-Plan bleiben Trennzeichen, Zeilenenden, die Marke am Anfang, alle anderen Spalten und jede noch gültige Zelle, wie sie sind. Schreiber warten aufeinander</translation>
    </message>
    <message>
        <source>writes another file; the format follows the name (.kwpx, .csv, .xlsx, .xls, .xml, .json)</source>
        <translation>schreibt eine andere Datei; das Format folgt dem Namen (.kwpx, .csv, .xlsx, .xls, .xml, .json)</translation>
    </message>
    <message>
        <source>with -i, tells every task that moved and what moved it</source>
        <translation>nennt mit -i jeden Vorgang, der sich verschoben hat, und was ihn verschob</translation>
    </message>
    <message>
        <source>one edit a line ('-' reads standard input); a line that begins with # says nothing</source>
        <translation>eine Änderung je Zeile ('-' liest die Standardeingabe); eine Zeile, die mit # beginnt, sagt nichts</translation>
    </message>
    <message>
        <source>All options of 'kwgantt help show' go with it, too: they say how the plan is shown.</source>
        <translation>Alle Optionen von 'kwgantt help show' passen auch dazu: sie sagen, wie der Plan gezeigt wird.</translation>
    </message>
    <message>
        <source>All edits are made or none: when one fails, nothing is written and the message names its line. TASK is the row number shown, #ID, or a name. Words are separated by blanks; quotes hold one together, and between double quotes \n, \t, \" and \\ stand for a line break, a tab, a quote and a backslash.</source>
        <translation>Alle Änderungen werden gemacht oder keine: schlägt eine fehl, wird nichts geschrieben, und die Meldung nennt ihre Zeile. TASK ist die gezeigte Zeilennummer, #ID oder ein Name. Wörter trennt ein Leerzeichen; Anführungszeichen halten eines zusammen, und in doppelten stehen \n, \t, \" und \\ für Zeilenumbruch, Tabulator, Anführungszeichen und umgekehrten Schrägstrich.</translation>
    </message>
    <message>
        <source>why a task is when it is</source>
        <translation>warum ein Vorgang dann ist, wann er ist</translation>
    </message>
    <message>
        <source>Schedules the plan as 'kwgantt schedule' does and tells what drives the task's start, how long it takes and which days do not count, whether it is critical, and what it holds up. Nothing is written.</source>
        <translation>Berechnet den Plan wie 'kwgantt schedule' und sagt, was den Anfang des Vorgangs bestimmt, wie lange er dauert und welche Tage nicht zählen, ob er kritisch ist und was er aufhält. Nichts wird geschrieben.</translation>
    </message>
    <message>
        <source>the earliest dates that the links allow</source>
        <translation>die frühesten Termine, die die Verknüpfungen erlauben</translation>
    </message>
    <message>
        <source>what can be read and written</source>
        <translation>was gelesen und geschrieben werden kann</translation>
    </message>
    <message>
        <source>A format is found from the file's content when it is read, from its name when it is written.</source>
        <translation>Ein Format ergibt sich beim Lesen aus dem Inhalt der Datei, beim Schreiben aus dem Namen.</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Termine</translation>
    </message>
    <message>
        <source>also 2026-3-2, 2.3.2026, 2 Mar 2026, March 2, 2026; a time may follow (2026-03-02T08:00, 2026-03-02 17:00)</source>
        <translation>auch 2026-3-2, 2.3.2026, 2 Mar 2026, March 2, 2026; eine Uhrzeit kann folgen (2026-03-02T08:00, 2026-03-02 17:00)</translation>
    </message>
    <message>
        <source>has the day first where another date of the column can be nothing else, else the month</source>
        <translation>hat den Tag vorn, wo ein anderer Termin der Spalte nichts anderes sein kann, sonst den Monat</translation>
    </message>
    <message>
        <source>a start is the beginning of its day, a finish the end</source>
        <translation>ein Anfang ist der Beginn des Tags, ein Ende sein Schluss</translation>
    </message>
    <message>
        <source>in a workbook days since 1900 or 1904, as the workbook says</source>
        <translation>in einer Arbeitsmappe Tage seit 1900 oder 1904, wie die Mappe es sagt</translation>
    </message>
    <message>
        <source>lengths; also w, mon, q, y; a number alone counts days</source>
        <translation>Dauern; auch w, mon, q, y; eine Zahl allein zählt Tage</translation>
    </message>
    <message>
        <source>Predecessors of a CSV plan or a workbook are parted by semicolons: 7 is an ID where a CSV plan has these, else a row; #7 an ID, 1.2 an outline code, a name stands in quotes. Numbers of what is done are percent in a CSV plan.</source>
        <translation>Vorgänger eines CSV-Plans oder einer Arbeitsmappe trennt ein Semikolon: 7 ist eine ID, wo ein CSV-Plan solche hat, sonst eine Zeile; #7 eine ID, 1.2 ein Gliederungscode, ein Name steht in Anführungszeichen. Zahlen zur Fertigstellung sind in einem CSV-Plan Prozent.</translation>
    </message>
    <message>
        <source>A package and project XML have no titles. The first row of a CSV plan and of each sheet of a workbook has them, in any case, with blanks and signs anywhere, in any order; columns with other titles are told and not read.</source>
        <translation>Ein Paket und Projekt-XML haben keine Titel. Die erste Zeile eines CSV-Plans und jedes Blatts einer Arbeitsmappe hat sie, in beliebiger Schreibung und Reihenfolge, mit Leer- und anderen Zeichen überall; Spalten mit anderen Titeln werden genannt und nicht gelesen.</translation>
    </message>
    <message>
        <source>the commands, or one of them with its options</source>
        <translation>die Befehle oder einer davon mit seinen Optionen</translation>
    </message>
    <message>
        <source>writes the manual pages into FOLDER instead</source>
        <translation>schreibt stattdessen die Handbuchseiten nach FOLDER</translation>
    </message>
    <message>
        <source>reads and checks plans and sums them up</source>
        <translation>liest und prüft Pläne und fasst sie zusammen</translation>
    </message>
    <message>
        <source>What is wrong but can be lived with is told on standard error; a file that cannot be read as a plan gives exit code 3, one whose working time lets nothing be scheduled 5. Of a package it checks what must hold: IDs, outline, links, row heights, assignments. 'kwgantt check FILE...' does the same and gives exit code 1 when anything was found, or when a task starts before a predecessor finishes: exit code 0 and no finding mean that the plan is what the file says. Several files have a line each and a sum; the exit code is the greatest. With -q only what failed is told.</source>
        <translation>Was falsch ist, womit sich aber leben lässt, steht auf der Standardfehlerausgabe; eine Datei, die nicht als Plan lesbar ist, ergibt Exitcode 3, eine, in deren Arbeitszeit sich nichts planen lässt, 5. An einem Paket wird geprüft, was gelten muss: IDs, Gliederung, Verknüpfungen, Zeilenhöhen, Zuweisungen. 'kwgantt check FILE...' tut dasselbe und ergibt Exitcode 1, wenn etwas gefunden wurde oder ein Vorgang vor dem Ende eines Vorgängers beginnt: Exitcode 0 ohne Befund heißt, dass der Plan ist, was die Datei sagt. Mehrere Dateien haben je eine Zeile und eine Summe; der Exitcode ist der größte. Mit -q wird nur genannt, was nicht bestand.</translation>
    </message>
    <message>
        <source>exit code 1 when anything was found</source>
        <translation>Exitcode 1, wenn etwas gefunden wurde</translation>
    </message>
    <message>
        <source>the summary and all findings for other programs</source>
        <translation>die Zusammenfassung und alle Befunde für andere Programme</translation>
    </message>
    <message>
        <source>Demands, which the plan meets or gives exit code 1</source>
        <translation>Forderungen, die der Plan erfüllt, sonst Exitcode 1</translation>
    </message>
    <message>
        <source>the project, or TASK, finishes on that date at the latest</source>
        <translation>das Projekt oder TASK endet spätestens an diesem Termin</translation>
    </message>
    <message>
        <source>it costs no more</source>
        <translation>er kostet nicht mehr</translation>
    </message>
    <message>
        <source>no critical task finishes later than in the baseline by more than that much of the baseline's length</source>
        <translation>kein kritischer Vorgang endet um mehr als so viel der Basisplanlänge später als im Basisplan</translation>
    </message>
    <message>
        <source>an empty plan as .kwpx or .csv</source>
        <translation>ein leerer Plan als .kwpx oder .csv</translation>
    </message>
    <message>
        <source>a small plan with links and resources, from next Monday on</source>
        <translation>ein kleiner Plan mit Verknüpfungen und Ressourcen, ab nächstem Montag</translation>
    </message>
    <message>
        <source>lists the autosave copies</source>
        <translation>nennt die Sicherungskopien</translation>
    </message>
    <message>
        <source>COPY is a number of the list or a file name. The copy is read before it is written.</source>
        <translation>COPY ist eine Nummer der Liste oder ein Dateiname. Die Kopie wird gelesen, bevor sie geschrieben wird.</translation>
    </message>
    <message>
        <source>draws the chart</source>
        <translation>zeichnet das Diagramm</translation>
    </message>
    <message>
        <source>A PDF is cut into sheets as the print setup of a package says; a plan that brings none is fitted to sheets of A4 that can be read. An image and an SVG hold the whole plan in one; a page (.html) folds, zooms, finds and follows links in a browser. '-o -' with --to pdf|png|svg|html writes to standard output. Collapsed tasks stay hidden, dates are those of the file.</source>
        <translation>Ein PDF wird in Blätter geteilt, wie die Druckeinrichtung eines Pakets es sagt; ein Plan ohne eine wird auf lesbare A4-Blätter eingepasst. Ein Bild und ein SVG enthalten den ganzen Plan in einem; eine Seite (.html) klappt, zoomt, sucht und folgt Verknüpfungen im Browser. '-o -' mit --to pdf|png|svg|html schreibt auf die Standardausgabe. Zugeklappte Vorgänge bleiben verborgen, die Termine sind die der Datei.</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>Blätter</translation>
    </message>
    <message>
        <source>A4, A3, LETTER or a size such as 297x210mm</source>
        <translation>A4, A3, LETTER oder eine Größe wie 297x210mm</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>hochkant</translation>
    </message>
    <message>
        <source>across</source>
        <translation>quer</translation>
    </message>
    <message>
        <source>all of them (20mm), or two of them (20mm,15mm)</source>
        <translation>alle (20mm) oder zwei davon (20mm,15mm)</translation>
    </message>
    <message>
        <source>as many sheets across and down</source>
        <translation>so viele Blätter nebeneinander und untereinander</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>how many sheets and how small the text; nothing is written</source>
        <translation>wie viele Blätter und wie klein der Text; nichts wird geschrieben</translation>
    </message>
    <message>
        <source>marks for folding a large sheet</source>
        <translation>Marken zum Falten eines großen Blatts</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>above the chart</source>
        <translation>über dem Diagramm</translation>
    </message>
    <message>
        <source>at the top of each sheet, with &amp;[Page] &amp;[Pages] &amp;[Date] &amp;[File] &amp;[Title]</source>
        <translation>oben auf jedem Blatt, mit &amp;[Page] &amp;[Pages] &amp;[Date] &amp;[File] &amp;[Title]</translation>
    </message>
    <message>
        <source>at the bottom of each sheet, with the same</source>
        <translation>unten auf jedem Blatt, mit denselben</translation>
    </message>
    <message>
        <source>the font of all texts</source>
        <translation>die Schrift aller Texte</translation>
    </message>
    <message>
        <source>how dates are written</source>
        <translation>wie Termine geschrieben werden</translation>
    </message>
    <message>
        <source>what stands beside the bars</source>
        <translation>was neben den Balken steht</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>the colours</source>
        <translation>die Farben</translation>
    </message>
    <message>
        <source>pixels of an image for one of the chart</source>
        <translation>Pixel eines Bilds für einen des Diagramms</translation>
    </message>
    <message>
        <source>leaves out today, baseline, slack, critical, links, legend, repeat or background (the shades behind the bars), joined by commas</source>
        <translation>lässt today, baseline, slack, critical, links, legend, repeat oder background (die Schattierung hinter den Balken) weg, mit Kommas getrennt</translation>
    </message>
    <message>
        <source>What is drawn</source>
        <translation>Was gezeichnet wird</translation>
    </message>
    <message>
        <source>columns by their keys, joined by commas; 'kwgantt columns' lists them</source>
        <translation>Spalten nach ihren Schlüsseln, mit Kommas getrennt; 'kwgantt columns' nennt sie</translation>
    </message>
    <message>
        <source>only this task with all that is below it</source>
        <translation>nur dieser Vorgang mit allem darunter</translation>
    </message>
    <message>
        <source>only critical tasks and their summaries</source>
        <translation>nur kritische Vorgänge und ihre Sammelvorgänge</translation>
    </message>
    <message>
        <source>only tasks down to this outline level</source>
        <translation>nur Vorgänge bis zu dieser Gliederungsebene</translation>
    </message>
    <message>
        <source>only these dates</source>
        <translation>nur diese Termine</translation>
    </message>
    <message>
        <source>the tasks' dates and one unit around</source>
        <translation>die Termine der Vorgänge und eine Einheit darum</translation>
    </message>
    <message>
        <source>auto, hour, day, week, month, quarter or year</source>
        <translation>auto, hour, day, week, month, quarter oder year</translation>
    </message>
    <message>
        <source>pixels of a unit</source>
        <translation>Pixel einer Einheit</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH sets the date that is written into the file and the line of today, --now that line alone.</source>
        <translation>SOURCE_DATE_EPOCH setzt das Datum in der Datei und die Linie von heute, --now nur diese Linie.</translation>
    </message>
    <message>
        <source>A task keeps its start when it can: it is only moved later, to the end of the predecessor that finishes last, never earlier. A task without a start begins at the project's start. Prints the plan; what moved is summed up on standard error. Tasks that wait for each other in a ring of links give exit code 5.</source>
        <translation>Ein Vorgang behält seinen Anfang, wenn er kann: er wird nur später gelegt, auf das Ende des zuletzt endenden Vorgängers, nie früher. Ein Vorgang ohne Anfang beginnt am Projektanfang. Gibt den Plan aus; was sich bewegt hat, steht auf der Standardfehlerausgabe. Vorgänge, die im Kreis aufeinander warten, ergeben Exitcode 5.</translation>
    </message>
    <message>
        <source>every task begins at the project's start, whatever the file says, and is moved from there: the earliest dates that the links allow</source>
        <translation>jeder Vorgang beginnt am Projektanfang, was immer die Datei sagt, und wird von dort verschoben: die frühesten Termine, die die Verknüpfungen erlauben</translation>
    </message>
    <message>
        <source>what would move, and because of what; nothing is written</source>
        <translation>was sich bewegen würde, und weswegen; nichts wird geschrieben</translation>
    </message>
    <message>
        <source>the same, and exit code 1 when anything would move or was found</source>
        <translation>dasselbe, und Exitcode 1, wenn sich etwas bewegen würde oder gefunden wurde</translation>
    </message>
    <message>
        <source>writes the new dates into FILE, a package or a CSV plan, and leaves everything else as it is: of a CSV plan the separator, the line ends, the mark at the beginning and all other columns</source>
        <translation>schreibt die neuen Termine in FILE, ein Paket oder einen CSV-Plan, und lässt alles andere, wie es ist: bei einem CSV-Plan das Trennzeichen, die Zeilenenden, die Marke am Anfang und alle anderen Spalten</translation>
    </message>
    <message>
        <source>writes the scheduled plan; the format follows the name (.kwpx, .csv, .xlsx, .xls, .xml, .json)</source>
        <translation>schreibt den berechneten Plan; das Format folgt dem Namen (.kwpx, .csv, .xlsx, .xls, .xml, .json)</translation>
    </message>
    <message>
        <source>the unit of slack</source>
        <translation>die Einheit des Puffers</translation>
    </message>
    <message>
        <source>All options of 'kwgantt help show' go with it, too.</source>
        <translation>Alle Optionen von 'kwgantt help show' passen auch dazu.</translation>
    </message>
    <message>
        <source>the plan as a table with bars</source>
        <translation>der Plan als Tabelle mit Balken</translation>
    </message>
    <message>
        <source>The dates are those of the file; a plan with tasks that have no start is shown scheduled.</source>
        <translation>Die Termine sind die der Datei; ein Plan mit Vorgängen ohne Anfang wird berechnet gezeigt.</translation>
    </message>
    <message>
        <source>columns of the terminal (found out otherwise, 100 in a pipe)</source>
        <translation>Spalten des Terminals (sonst herausgefunden, 100 in einer Pipe)</translation>
    </message>
    <message>
        <source>only these dates on the bars</source>
        <translation>nur diese Termine bei den Balken</translation>
    </message>
    <message>
        <source>collapsed tasks, too</source>
        <translation>auch zugeklappte Vorgänge</translation>
    </message>
    <message>
        <source>the resource sheet instead: work, cost, and the days on which somebody has too much to do (--resources=FILE reads the sheet of a CSV plan from FILE)</source>
        <translation>stattdessen das Ressourcenblatt: Arbeit, Kosten und die Tage, an denen jemand zu viel zu tun hat (--resources=FILE liest das Blatt eines CSV-Plans aus FILE)</translation>
    </message>
    <message>
        <source>the table alone</source>
        <translation>nur die Tabelle</translation>
    </message>
    <message>
        <source>the table alone, without title, legend and cut names, for other programs</source>
        <translation>nur die Tabelle, ohne Titel, Legende und gekürzte Namen, für andere Programme</translation>
    </message>
</context>
<context>
    <name>library</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>it is no ZIP file</source>
        <translation>es ist keine ZIP-Datei</translation>
    </message>
    <message>
        <source>its parts contradict each other</source>
        <translation>seine Teile widersprechen sich</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>es endet zu früh</translation>
    </message>
    <message>
        <source>the bytes do not have their checksum (CRC)</source>
        <translation>die Bytes passen nicht zu ihrer Prüfsumme (CRC)</translation>
    </message>
    <message>
        <source>the packed bytes are damaged</source>
        <translation>die gepackten Bytes sind beschädigt</translation>
    </message>
    <message>
        <source>the way it is packed is not known</source>
        <translation>so Gepacktes ist hier nicht bekannt</translation>
    </message>
    <message>
        <source>it is encrypted</source>
        <translation>es ist verschlüsselt</translation>
    </message>
    <message>
        <source>it is one of several parts</source>
        <translation>es ist nur einer von mehreren Teilen</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Arbeitsspeicher reicht nicht</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>es lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>es ist nicht lesbar</translation>
    </message>
    <message>
        <source>it cannot be written</source>
        <translation>sie kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>no file can be made in the folder</source>
        <translation>im Ordner lässt sich keine Datei anlegen</translation>
    </message>
    <message>
        <source>the new file cannot take its place</source>
        <translation>die neue Datei kann nicht an ihre Stelle treten</translation>
    </message>
    <message>
        <source>the archive is cut off at byte %1: the list of its entries is missing</source>
        <translation>das Archiv ist bei Byte %1 abgeschnitten: die Liste seiner Einträge fehlt</translation>
    </message>
    <message>
        <source>no archive: %1</source>
        <translation>kein Archiv: %1</translation>
    </message>
    <message>
        <source>there are too many entries</source>
        <translation>es sind zu viele Einträge</translation>
    </message>
    <message>
        <source>an entry cannot be read</source>
        <translation>ein Eintrag ist nicht lesbar</translation>
    </message>
    <message>
        <source>the entry is encrypted</source>
        <translation>der Eintrag ist verschlüsselt</translation>
    </message>
    <message>
        <source>the entry is packed in an unknown way</source>
        <translation>der Eintrag ist auf unbekannte Art gepackt</translation>
    </message>
    <message>
        <source>the entry is neither a plain file nor a plain folder</source>
        <translation>der Eintrag ist weder Datei noch Ordner</translation>
    </message>
    <message>
        <source>a name holds a control character</source>
        <translation>ein Name enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>the name cannot be used on this machine</source>
        <translation>der Name ist auf diesem Rechner nicht verwendbar</translation>
    </message>
    <message>
        <source>something stands there already</source>
        <translation>dort steht schon etwas</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>sein Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>the entry does not have the size it declares</source>
        <translation>der Eintrag hat nicht die angegebene Größe</translation>
    </message>
    <message>
        <source>neither a plain file nor a plain folder</source>
        <translation>weder Datei noch Ordner</translation>
    </message>
    <message>
        <source>a folder cannot be read: %1</source>
        <translation>ein Ordner lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>there is nothing to pack</source>
        <translation>es gibt nichts zu packen</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>the archive lies in the folder that it packs</source>
        <translation>das Archiv liegt in dem Ordner, den es packt</translation>
    </message>
    <message>
        <source>there is no such archive</source>
        <translation>dieses Archiv gibt es nicht</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>zu groß</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>to do</source>
        <translation>zu tun</translation>
    </message>
    <message>
        <source>critical</source>
        <translation>kritisch</translation>
    </message>
    <message>
        <source>slack</source>
        <translation>Puffer</translation>
    </message>
    <message>
        <source>baseline</source>
        <translation>Basisplan</translation>
    </message>
    <message>
        <source>summary</source>
        <translation>Sammelvorgang</translation>
    </message>
    <message>
        <source>milestone</source>
        <translation>Meilenstein</translation>
    </message>
    <message>
        <source>link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>day off</source>
        <translation>freier Tag</translation>
    </message>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>%1 of %2 (%3)</source>
        <translation>%1 von %2 (%3)</translation>
    </message>
    <message>
        <source>no task has the ID %1</source>
        <translation>kein Vorgang hat die ID %1</translation>
    </message>
    <message>
        <source>no task is named</source>
        <translation>es ist kein Vorgang genannt</translation>
    </message>
    <message>
        <source>name at least one</source>
        <translation>nennen Sie mindestens einen</translation>
    </message>
    <message>
        <source>%1 has no task before it on its level</source>
        <translation>%1 hat auf seiner Ebene keinen Vorgang vor sich</translation>
    </message>
    <message>
        <source>%1 has no task after it on its level</source>
        <translation>%1 hat auf seiner Ebene keinen Vorgang hinter sich</translation>
    </message>
    <message>
        <source>a task moves among the tasks of its summary</source>
        <translation>ein Vorgang wandert unter den Vorgängen seines Sammelvorgangs</translation>
    </message>
    <message>
        <source>%1 is at the top level already</source>
        <translation>%1 steht schon auf der obersten Ebene</translation>
    </message>
    <message>
        <source>only a task below a summary can move one level up</source>
        <translation>nur ein Vorgang unter einem Sammelvorgang kann eine Ebene höher rücken</translation>
    </message>
    <message>
        <source>%1 is no summary</source>
        <translation>%1 ist kein Sammelvorgang</translation>
    </message>
    <message>
        <source>only a task with tasks below it can be collapsed</source>
        <translation>nur ein Vorgang mit Untervorgängen lässt sich zuklappen</translation>
    </message>
    <message>
        <source>%1 is a summary: that comes from the tasks below it</source>
        <translation>%1 ist ein Sammelvorgang: das folgt aus den Vorgängen darunter</translation>
    </message>
    <message>
        <source>set it on those</source>
        <translation>setzen Sie es dort</translation>
    </message>
    <message>
        <source>%1 cannot start so late</source>
        <translation>%1 kann nicht so spät anfangen</translation>
    </message>
    <message>
        <source>dates reach up to the year 2105</source>
        <translation>Termine reichen bis zum Jahr 2105</translation>
    </message>
    <message>
        <source>the finish lies before the start of %1</source>
        <translation>das Ende liegt vor dem Anfang von %1</translation>
    </message>
    <message>
        <source>set start first; it takes the finish along</source>
        <translation>setzen Sie erst den Anfang; er nimmt das Ende mit</translation>
    </message>
    <message>
        <source>%1 has no start</source>
        <translation>%1 hat keinen Anfang</translation>
    </message>
    <message>
        <source>set its start first</source>
        <translation>setzen Sie erst seinen Anfang</translation>
    </message>
    <message>
        <source>that is no length for %1</source>
        <translation>das ist keine Dauer für %1</translation>
    </message>
    <message>
        <source>write a number from 0 to a hundred years</source>
        <translation>schreiben Sie eine Zahl von 0 bis hundert Jahre</translation>
    </message>
    <message>
        <source>that is no unit of time</source>
        <translation>das ist keine Zeiteinheit</translation>
    </message>
    <message>
        <source>from years to minutes</source>
        <translation>von Jahren bis Minuten</translation>
    </message>
    <message>
        <source>that is not a percentage</source>
        <translation>das ist kein Prozentsatz</translation>
    </message>
    <message>
        <source>write a number from 0 to 100</source>
        <translation>schreiben Sie eine Zahl von 0 bis 100</translation>
    </message>
    <message>
        <source>'%1' is no amount</source>
        <translation>'%1' ist kein Betrag</translation>
    </message>
    <message>
        <source>write a number</source>
        <translation>schreiben Sie eine Zahl</translation>
    </message>
    <message>
        <source>that is no row height</source>
        <translation>das ist keine Zeilenhöhe</translation>
    </message>
    <message>
        <source>write a number of pixels up to 10000</source>
        <translation>schreiben Sie eine Zahl von Pixeln bis 10000</translation>
    </message>
    <message>
        <source>%1: the task is its own predecessor</source>
        <translation>%1: der Vorgang ist sein eigener Vorgänger</translation>
    </message>
    <message>
        <source>%1: predecessor %2 stands twice</source>
        <translation>%1: Vorgänger %2 steht doppelt</translation>
    </message>
    <message>
        <source>%1: predecessor %2 lies below this summary, which ends with it</source>
        <translation>%1: Vorgänger %2 liegt unter diesem Sammelvorgang, der mit ihm endet</translation>
    </message>
    <message>
        <source>link the tasks below the summary</source>
        <translation>verknüpfen Sie die Vorgänge unter dem Sammelvorgang</translation>
    </message>
    <message>
        <source>%1: predecessor %2 is the summary that holds this task</source>
        <translation>%1: Vorgänger %2 ist der Sammelvorgang, zu dem dieser Vorgang gehört</translation>
    </message>
    <message>
        <source>%1: tasks would wait for each other: %2</source>
        <translation>%1: Vorgänge würden aufeinander warten: %2</translation>
    </message>
    <message>
        <source>remove one of these links</source>
        <translation>entfernen Sie eine dieser Verknüpfungen</translation>
    </message>
    <message>
        <source>%1 does not wait for %2</source>
        <translation>%1 wartet nicht auf %2</translation>
    </message>
    <message>
        <source>no resource '%1'</source>
        <translation>keine Ressource '%1'</translation>
    </message>
    <message>
        <source>a resource needs a name</source>
        <translation>eine Ressource braucht einen Namen</translation>
    </message>
    <message>
        <source>there is a resource '%1' already</source>
        <translation>es gibt schon eine Ressource '%1'</translation>
    </message>
    <message>
        <source>%1 is a summary</source>
        <translation>%1 ist ein Sammelvorgang</translation>
    </message>
    <message>
        <source>assign resources to the tasks below it</source>
        <translation>weisen Sie die Ressourcen den Vorgängen darunter zu</translation>
    </message>
    <message>
        <source>'%1' is not assigned to %2</source>
        <translation>'%1' ist %2 nicht zugewiesen</translation>
    </message>
    <message>
        <source>these are no units</source>
        <translation>das sind keine Einheiten</translation>
    </message>
    <message>
        <source>50% of the time, or a number of a material</source>
        <translation>50% der Zeit oder eine Menge eines Materials</translation>
    </message>
    <message>
        <source>that is no unit of a rate</source>
        <translation>das ist keine Einheit eines Satzes</translation>
    </message>
    <message>
        <source>from minutes to months</source>
        <translation>von Minuten bis Monaten</translation>
    </message>
    <message>
        <source>no working time is left</source>
        <translation>es bleibt keine Arbeitszeit übrig</translation>
    </message>
    <message>
        <source>at least one weekday and one hour must work</source>
        <translation>mindestens ein Wochentag und eine Stunde müssen Arbeitszeit sein</translation>
    </message>
    <message>
        <source>these are no working hours</source>
        <translation>das ist keine Arbeitszeit</translation>
    </message>
    <message>
        <source>intervals in order that do not overlap, each ending after it begins</source>
        <translation>Spannen der Reihe nach, die sich nicht überschneiden und nach ihrem Beginn enden</translation>
    </message>
    <message>
        <source>these are not two dates in order</source>
        <translation>das sind keine zwei Termine in ihrer Reihenfolge</translation>
    </message>
    <message>
        <source>no holiday or workday holds %1</source>
        <translation>kein Feiertag oder Arbeitstag enthält %1</translation>
    </message>
    <message>
        <source>no column '%1'</source>
        <translation>keine Spalte '%1'</translation>
    </message>
    <message>
        <source>that is no width of a column</source>
        <translation>das ist keine Spaltenbreite</translation>
    </message>
    <message>
        <source>nothing to paste</source>
        <translation>nichts einzufügen</translation>
    </message>
    <message>
        <source>copy or cut tasks first</source>
        <translation>kopieren Sie erst Vorgänge oder schneiden Sie sie aus</translation>
    </message>
    <message>
        <source>the tasks cannot be copied</source>
        <translation>die Vorgänge können nicht kopiert werden</translation>
    </message>
    <message>
        <source>cancelled: the plan is as it was</source>
        <translation>abgebrochen: der Plan ist, wie er war</translation>
    </message>
    <message>
        <source>holds no workbook</source>
        <translation>enthält keine Arbeitsmappe</translation>
    </message>
    <message>
        <source>the stream of the workbook is damaged</source>
        <translation>der Datenstrom der Arbeitsmappe ist beschädigt</translation>
    </message>
    <message>
        <source>the sheet "%1" lies where another does</source>
        <translation>das Blatt "%1" liegt dort, wo ein anderes liegt</translation>
    </message>
    <message>
        <source>nothing imported</source>
        <translation>nichts importiert</translation>
    </message>
    <message>
        <source>assignments</source>
        <translation>Zuweisungen</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>a file that stood there was kept</source>
        <translation>eine Datei, die dort stand, blieb erhalten</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is longer than %1 MB</source>
        <translation>sie ist länger als %1 MB</translation>
    </message>
    <message>
        <source>task %1 "%2"</source>
        <translation>Vorgang %1 "%2"</translation>
    </message>
    <message>
        <source>the file's costs of %1 are %2 here</source>
        <translation>die Kosten der Datei von %1 sind hier %2</translation>
    </message>
    <message>
        <source>fixed costs, overtime and rates that change are not counted</source>
        <translation>feste Kosten, Überstunden und veränderliche Sätze zählen nicht mit</translation>
    </message>
    <message>
        <source>there are %1 columns, of which the first %2 are written</source>
        <translation>es gibt %1 Spalten, von denen die ersten %2 geschrieben werden</translation>
    </message>
    <message>
        <source>%1, row %2, column %3</source>
        <translation>%1, Zeile %2, Spalte %3</translation>
    </message>
    <message>
        <source>a text of %1 characters is cut to %2</source>
        <translation>ein Text von %1 Zeichen wird auf %2 gekürzt</translation>
    </message>
    <message>
        <source>the sheet '%1' holds %2 rows, and there are more</source>
        <translation>das Blatt '%1' fasst %2 Zeilen, und es sind mehr</translation>
    </message>
    <message>
        <source>an XLSX workbook has room for them</source>
        <translation>eine XLSX-Arbeitsmappe hat Platz dafür</translation>
    </message>
    <message>
        <source>%1 tasks belong to no summary and are not written</source>
        <translation>%1 Vorgänge gehören zu keinem Sammelvorgang und werden nicht geschrieben</translation>
    </message>
    <message>
        <source>%1 tasks share a name: a workbook cannot tell their assignments apart</source>
        <translation>%1 Vorgänge haben denselben Namen: eine Arbeitsmappe kann ihre Zuweisungen nicht unterscheiden</translation>
    </message>
    <message>
        <source>give them different names</source>
        <translation>geben Sie ihnen verschiedene Namen</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>nicht gelesen</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>der Ordner lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>a cell holds %1 characters, and there are more</source>
        <translation>eine Zelle fasst %1 Zeichen, und es sind mehr</translation>
    </message>
    <message>
        <source>a sheet holds %1 rows, and there are more</source>
        <translation>ein Blatt fasst %1 Zeilen, und es sind mehr</translation>
    </message>
    <message>
        <source>there are more than %1 columns</source>
        <translation>es gibt mehr als %1 Spalten</translation>
    </message>
    <message>
        <source>no temporary folder</source>
        <translation>kein temporärer Ordner</translation>
    </message>
    <message>
        <source>give them different names, or write readable sheets</source>
        <translation>geben Sie ihnen verschiedene Namen, oder schreiben Sie lesbare Blätter</translation>
    </message>
    <message>
        <source>there is no temporary folder to unpack it into</source>
        <translation>es gibt keinen temporären Ordner zum Entpacken</translation>
    </message>
    <message>
        <source>the workbook has no worksheet</source>
        <translation>die Arbeitsmappe hat kein Arbeitsblatt</translation>
    </message>
    <message>
        <source>is no plain file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>is larger than 2 GB</source>
        <translation>ist größer als 2 GB</translation>
    </message>
    <message>
        <source>is no compound file</source>
        <translation>ist keine Verbunddatei</translation>
    </message>
    <message>
        <source>the chain of its directory is damaged</source>
        <translation>die Kette des Verzeichnisses ist beschädigt</translation>
    </message>
    <message>
        <source>its directory has no root</source>
        <translation>das Verzeichnis hat keine Wurzel</translation>
    </message>
    <message>
        <source>its sector table lies outside of the file</source>
        <translation>die Sektortabelle liegt außerhalb der Datei</translation>
    </message>
    <message>
        <source>is no workbook of the 97 to 2003 format</source>
        <translation>ist keine Arbeitsmappe im Format 97 bis 2003</translation>
    </message>
    <message>
        <source>is a workbook of version 95 or before</source>
        <translation>ist eine Arbeitsmappe der Version 95 oder früher</translation>
    </message>
    <message>
        <source>is encrypted</source>
        <translation>ist verschlüsselt</translation>
    </message>
    <message>
        <source>the name of sheet %1 is cut</source>
        <translation>der Name von Blatt %1 ist abgeschnitten</translation>
    </message>
    <message>
        <source>its table of texts is cut</source>
        <translation>die Texttabelle ist abgeschnitten</translation>
    </message>
    <message>
        <source>its stream ends early</source>
        <translation>der Datenstrom endet zu früh</translation>
    </message>
    <message>
        <source>the sheet "%1" does not begin where the workbook says</source>
        <translation>das Blatt "%1" beginnt nicht dort, wo die Arbeitsmappe es sagt</translation>
    </message>
    <message>
        <source>the sheet "%2" is damaged at byte %1</source>
        <translation>das Blatt "%2" ist bei Byte %1 beschädigt</translation>
    </message>
    <message>
        <source>the sheet "%1" ends early</source>
        <translation>das Blatt "%1" endet zu früh</translation>
    </message>
    <message>
        <source>more than %1 columns</source>
        <translation>mehr als %1 Spalten</translation>
    </message>
    <message>
        <source>more than %1 cells in the file</source>
        <translation>mehr als %1 Zellen in der Datei</translation>
    </message>
    <message>
        <source>a cell longer than %1 bytes</source>
        <translation>eine Zelle länger als %1 Bytes</translation>
    </message>
    <message>
        <source>a quote may be missing its partner</source>
        <translation>einem Anführungszeichen fehlt wohl das zweite</translation>
    </message>
    <message>
        <source>the quote opened here is never closed</source>
        <translation>das hier geöffnete Anführungszeichen wird nie geschlossen</translation>
    </message>
    <message>
        <source>write a quote inside a quoted cell twice</source>
        <translation>schreiben Sie ein Anführungszeichen in einer Zelle in Anführungszeichen doppelt</translation>
    </message>
    <message>
        <source>text after a closing quote</source>
        <translation>Text nach einem schließenden Anführungszeichen</translation>
    </message>
    <message>
        <source>not a CSV file but an archive or a workbook</source>
        <translation>keine CSV-Datei, sondern ein Archiv oder eine Arbeitsmappe</translation>
    </message>
    <message>
        <source>save the task sheet as CSV (UTF-8)</source>
        <translation>speichern Sie das Vorgangsblatt als CSV (UTF-8)</translation>
    </message>
    <message>
        <source>the text is UTF-16</source>
        <translation>der Text ist UTF-16</translation>
    </message>
    <message>
        <source>save the file as CSV (UTF-8)</source>
        <translation>speichern Sie die Datei als CSV (UTF-8)</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>länger als %1 Bytes</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>der Text ist nicht UTF-8</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>a second list of the same kind</source>
        <translation>eine zweite Liste derselben Art</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>weggelassen</translation>
    </message>
    <message>
        <source>a value that cannot be read</source>
        <translation>ein Wert, der nicht zu lesen ist</translation>
    </message>
    <message>
        <source>taken as not given</source>
        <translation>als nicht angegeben genommen</translation>
    </message>
    <message>
        <source>a percentage outside 0 to 100</source>
        <translation>ein Prozentsatz außerhalb von 0 bis 100</translation>
    </message>
    <message>
        <source>taken as the nearest one</source>
        <translation>als der nächste genommen</translation>
    </message>
    <message>
        <source>a UID that is taken</source>
        <translation>eine vergebene UID</translation>
    </message>
    <message>
        <source>another ID; links and assignments mean the first one</source>
        <translation>eine andere ID; Verknüpfungen und Zuweisungen meinen den ersten</translation>
    </message>
    <message>
        <source>the project's calendar is not in the file</source>
        <translation>der Kalender des Projekts steht nicht in der Datei</translation>
    </message>
    <message>
        <source>the usual working time instead</source>
        <translation>stattdessen die übliche Arbeitszeit</translation>
    </message>
    <message>
        <source>a weekday has other hours</source>
        <translation>ein Wochentag hat andere Zeiten</translation>
    </message>
    <message>
        <source>all working days have the commonest ones</source>
        <translation>alle Arbeitstage haben die häufigsten</translation>
    </message>
    <message>
        <source>a shift runs over midnight</source>
        <translation>eine Schicht geht über Mitternacht</translation>
    </message>
    <message>
        <source>its parts count on one day</source>
        <translation>ihre Teile zählen an einem Tag</translation>
    </message>
    <message>
        <source>a work week that differs for a time</source>
        <translation>eine zeitweise abweichende Arbeitswoche</translation>
    </message>
    <message>
        <source>a recurring exception has dates outside the plan</source>
        <translation>eine wiederkehrende Ausnahme hat Termine außerhalb des Plans</translation>
    </message>
    <message>
        <source>only those inside are taken</source>
        <translation>nur die im Plan werden übernommen</translation>
    </message>
    <message>
        <source>an exception without sound dates</source>
        <translation>eine Ausnahme ohne gültige Termine</translation>
    </message>
    <message>
        <source>too many exceptions</source>
        <translation>zu viele Ausnahmen</translation>
    </message>
    <message>
        <source>the project is scheduled from its finish</source>
        <translation>das Projekt wird von seinem Ende her geplant</translation>
    </message>
    <message>
        <source>the dates are kept, and count from the start</source>
        <translation>die Termine bleiben und zählen vom Anfang</translation>
    </message>
    <message>
        <source>no start or no finish</source>
        <translation>kein Anfang oder kein Ende</translation>
    </message>
    <message>
        <source>set from the project's start and the length</source>
        <translation>aus Projektanfang und Dauer gesetzt</translation>
    </message>
    <message>
        <source>the finish lies before the start</source>
        <translation>das Ende liegt vor dem Anfang</translation>
    </message>
    <message>
        <source>the start and the length are taken</source>
        <translation>Anfang und Dauer werden genommen</translation>
    </message>
    <message>
        <source>a date outside the working hours</source>
        <translation>ein Termin außerhalb der Arbeitszeit</translation>
    </message>
    <message>
        <source>taken as their next border</source>
        <translation>als deren nächste Grenze genommen</translation>
    </message>
    <message>
        <source>starts or finishes on a day off</source>
        <translation>beginnt oder endet an einem freien Tag</translation>
    </message>
    <message>
        <source>the dates are kept</source>
        <translation>die Termine bleiben</translation>
    </message>
    <message>
        <source>a working time of its own</source>
        <translation>eine eigene Arbeitszeit</translation>
    </message>
    <message>
        <source>left out; the dates are kept</source>
        <translation>weggelassen; die Termine bleiben</translation>
    </message>
    <message>
        <source>the level is below 1</source>
        <translation>die Ebene ist kleiner als 1</translation>
    </message>
    <message>
        <source>all levels count from 1</source>
        <translation>alle Ebenen zählen ab 1</translation>
    </message>
    <message>
        <source>an elapsed duration</source>
        <translation>eine fortlaufende Dauer</translation>
    </message>
    <message>
        <source>the work is interrupted, or its length is not that of its dates</source>
        <translation>die Arbeit ist unterbrochen, oder ihre Dauer ist nicht die der Termine</translation>
    </message>
    <message>
        <source>one bar; the dates are kept</source>
        <translation>ein Balken; die Termine bleiben</translation>
    </message>
    <message>
        <source>a milestone that lasts</source>
        <translation>ein Meilenstein, der dauert</translation>
    </message>
    <message>
        <source>a task</source>
        <translation>ein Vorgang</translation>
    </message>
    <message>
        <source>scheduled by hand</source>
        <translation>von Hand geplant</translation>
    </message>
    <message>
        <source>an ordinary task with its dates</source>
        <translation>ein gewöhnlicher Vorgang mit seinen Terminen</translation>
    </message>
    <message>
        <source>inactive</source>
        <translation>inaktiv</translation>
    </message>
    <message>
        <source>struck through, without links</source>
        <translation>durchgestrichen, ohne Verknüpfungen</translation>
    </message>
    <message>
        <source>a recurring task</source>
        <translation>ein wiederkehrender Vorgang</translation>
    </message>
    <message>
        <source>an ordinary summary</source>
        <translation>ein gewöhnlicher Sammelvorgang</translation>
    </message>
    <message>
        <source>the tasks of a subproject are in another file</source>
        <translation>die Vorgänge eines Teilprojekts stehen in einer anderen Datei</translation>
    </message>
    <message>
        <source>its row alone</source>
        <translation>nur seine Zeile</translation>
    </message>
    <message>
        <source>a constraint</source>
        <translation>eine Einschränkung</translation>
    </message>
    <message>
        <source>a deadline</source>
        <translation>ein Stichtag</translation>
    </message>
    <message>
        <source>a link with a lag</source>
        <translation>eine Verknüpfung mit Zeitabstand</translation>
    </message>
    <message>
        <source>a link without one; the dates are kept</source>
        <translation>eine Verknüpfung ohne ihn; die Termine bleiben</translation>
    </message>
    <message>
        <source>a link that is not plainly from finish to start</source>
        <translation>eine Verknüpfung, die nicht einfach Ende-Anfang ist</translation>
    </message>
    <message>
        <source>a link with another file</source>
        <translation>eine Verknüpfung mit einer anderen Datei</translation>
    </message>
    <message>
        <source>a predecessor that is not in the file</source>
        <translation>ein Vorgänger, der nicht in der Datei steht</translation>
    </message>
    <message>
        <source>a link that stands twice</source>
        <translation>eine Verknüpfung, die doppelt steht</translation>
    </message>
    <message>
        <source>taken once</source>
        <translation>einmal übernommen</translation>
    </message>
    <message>
        <source>further baselines</source>
        <translation>weitere Basispläne</translation>
    </message>
    <message>
        <source>a summary's dates are not those of its subtasks</source>
        <translation>die Termine eines Sammelvorgangs sind nicht die seiner Untervorgänge</translation>
    </message>
    <message>
        <source>taken from the subtasks</source>
        <translation>von den Untervorgängen genommen</translation>
    </message>
    <message>
        <source>a summary's progress is not that of its subtasks</source>
        <translation>der Fortschritt eines Sammelvorgangs ist nicht der seiner Untervorgänge</translation>
    </message>
    <message>
        <source>a cost resource</source>
        <translation>eine Kostenressource</translation>
    </message>
    <message>
        <source>a material</source>
        <translation>ein Material</translation>
    </message>
    <message>
        <source>a resource's name is taken or empty</source>
        <translation>der Name einer Ressource ist vergeben oder leer</translation>
    </message>
    <message>
        <source>named otherwise</source>
        <translation>anders benannt</translation>
    </message>
    <message>
        <source>a rate per year</source>
        <translation>ein Satz je Jahr</translation>
    </message>
    <message>
        <source>a twelfth of it per month</source>
        <translation>ein Zwölftel davon je Monat</translation>
    </message>
    <message>
        <source>further rates, or some that change with the date</source>
        <translation>weitere Sätze, oder solche, die sich mit dem Datum ändern</translation>
    </message>
    <message>
        <source>units that change with the date</source>
        <translation>Einheiten, die sich mit dem Datum ändern</translation>
    </message>
    <message>
        <source>an assignment on a summary</source>
        <translation>eine Zuweisung an einem Sammelvorgang</translation>
    </message>
    <message>
        <source>an assignment of a task or a resource that is not in the file</source>
        <translation>eine Zuweisung eines Vorgangs oder einer Ressource, die nicht in der Datei stehen</translation>
    </message>
    <message>
        <source>a resource is assigned to a task more than once</source>
        <translation>eine Ressource ist einem Vorgang mehrmals zugewiesen</translation>
    </message>
    <message>
        <source>joined</source>
        <translation>zusammengefasst</translation>
    </message>
    <message>
        <source>how work is spread over its task: day by day, by a contour, a delay or overtime</source>
        <translation>wie Arbeit über ihren Vorgang verteilt ist: Tag für Tag, nach Profil, Verzögerung oder Überstunden</translation>
    </message>
    <message>
        <source>left out; it is spread evenly</source>
        <translation>weggelassen; sie wird gleichmäßig verteilt</translation>
    </message>
    <message>
        <source>a length in calendar days (month, quarter, year)</source>
        <translation>eine Dauer in Kalendertagen (Monat, Quartal, Jahr)</translation>
    </message>
    <message>
        <source>written as working days</source>
        <translation>als Arbeitstage geschrieben</translation>
    </message>
    <message>
        <source>more than one hyperlink</source>
        <translation>mehr als ein Hyperlink</translation>
    </message>
    <message>
        <source>the first one is written</source>
        <translation>der erste wird geschrieben</translation>
    </message>
    <message>
        <source>rows of another height</source>
        <translation>Zeilen anderer Höhe</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>nicht geschrieben</translation>
    </message>
    <message>
        <source>a priority outside -500 to 500</source>
        <translation>eine Priorität außerhalb von -500 bis 500</translation>
    </message>
    <message>
        <source>written as the nearest one</source>
        <translation>als die nächste geschrieben</translation>
    </message>
    <message>
        <source>a percentage that is not whole</source>
        <translation>ein Prozentsatz, der nicht ganz ist</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>gerundet</translation>
    </message>
    <message>
        <source>a name that the format cannot hold</source>
        <translation>ein Name, den das Format nicht fasst</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>an ID above 2,097,150, or one that is there twice</source>
        <translation>eine ID über 2,097,150 oder eine doppelte</translation>
    </message>
    <message>
        <source>written with another UID</source>
        <translation>mit anderer UID geschrieben</translation>
    </message>
    <message>
        <source>no dates</source>
        <translation>keine Termine</translation>
    </message>
    <message>
        <source>written at the project's start</source>
        <translation>am Projektanfang geschrieben</translation>
    </message>
    <message>
        <source>hours that the format cannot hold</source>
        <translation>Zeiten, die das Format nicht fasst</translation>
    </message>
    <message>
        <source>written as they are measured</source>
        <translation>so geschrieben, wie sie gemessen werden</translation>
    </message>
    <message>
        <source>belongs to no summary of the plan</source>
        <translation>gehört zu keinem Sammelvorgang des Plans</translation>
    </message>
    <message>
        <source>written at its level</source>
        <translation>auf seiner Ebene geschrieben</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2-mal)</translation>
    </message>
    <message>
        <source>resource %1</source>
        <translation>Ressource %1</translation>
    </message>
    <message>
        <source>calendar %1</source>
        <translation>Kalender %1</translation>
    </message>
    <message>
        <source>assignment %1</source>
        <translation>Zuweisung %1</translation>
    </message>
    <message>
        <source>resource "%1"</source>
        <translation>Ressource "%1"</translation>
    </message>
    <message>
        <source>the XML ends early</source>
        <translation>das XML endet zu früh</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>it has more than %1 %2s</source>
        <translation>sie hat mehr als %1 %2</translation>
    </message>
    <message>
        <source>its calendars have more than %1 days</source>
        <translation>die Kalender haben mehr als %1 Tage</translation>
    </message>
    <message>
        <source>it has more than %1 links</source>
        <translation>sie hat mehr als %1 Verknüpfungen</translation>
    </message>
    <message>
        <source>it is no project XML: its root is no Project of that format</source>
        <translation>es ist kein Projekt-XML: die Wurzel ist kein Project dieses Formats</translation>
    </message>
    <message>
        <source>%1 numbers have more digits than their texts</source>
        <translation>%1 Zahlen haben mehr Stellen als ihre Texte</translation>
    </message>
    <message>
        <source>%1 is the ID of another task</source>
        <translation>%1 ist die ID eines anderen Vorgangs</translation>
    </message>
    <message>
        <source>%1 is the name of another task</source>
        <translation>%1 ist der Name eines anderen Vorgangs</translation>
    </message>
    <message>
        <source>named %1</source>
        <translation>heißt jetzt %1</translation>
    </message>
    <message>
        <source>taken as one day long</source>
        <translation>als ein Tag genommen</translation>
    </message>
    <message>
        <source>it has neither a number nor a start, as totals have</source>
        <translation>er hat weder Nummer noch Anfang, wie Summen</translation>
    </message>
    <message>
        <source>taken as a task</source>
        <translation>als Vorgang genommen</translation>
    </message>
    <message>
        <source>neither a length nor a finish</source>
        <translation>weder Dauer noch Ende</translation>
    </message>
    <message>
        <source>neither a length nor a start</source>
        <translation>weder Dauer noch Anfang</translation>
    </message>
    <message>
        <source>neither dates nor a length</source>
        <translation>weder Termine noch Dauer</translation>
    </message>
    <message>
        <source>it finishes before it starts</source>
        <translation>er endet, bevor er anfängt</translation>
    </message>
    <message>
        <source>the length counts</source>
        <translation>die Dauer zählt</translation>
    </message>
    <message>
        <source>the length is not that from start to finish</source>
        <translation>die Dauer ist nicht die von Anfang bis Ende</translation>
    </message>
    <message>
        <source>start and finish count</source>
        <translation>Anfang und Ende zählen</translation>
    </message>
    <message>
        <source>the finish is not where start and length lead</source>
        <translation>das Ende liegt nicht dort, wohin Anfang und Dauer führen</translation>
    </message>
    <message>
        <source>the length is 0, and there is time between start and finish</source>
        <translation>die Dauer ist 0, und zwischen Anfang und Ende liegt Zeit</translation>
    </message>
    <message>
        <source>a milestone with time between start and finish</source>
        <translation>ein Meilenstein mit Zeit zwischen Anfang und Ende</translation>
    </message>
    <message>
        <source>a milestone at its start</source>
        <translation>ein Meilenstein an seinem Anfang</translation>
    </message>
    <message>
        <source>it would wait for itself through %1</source>
        <translation>er würde über %1 auf sich selbst warten</translation>
    </message>
    <message>
        <source>it cannot wait for its own summary or subtask in %1</source>
        <translation>er kann nicht auf seinen Sammel- oder Untervorgang in %1 warten</translation>
    </message>
    <message>
        <source>no predecessor</source>
        <translation>kein Vorgänger</translation>
    </message>
    <message>
        <source>there is no resource %1</source>
        <translation>es gibt keine Ressource %1</translation>
    </message>
    <message>
        <source>there is no resource %1; did you mean '%2'?</source>
        <translation>es gibt keine Ressource %1; meinten Sie '%2'?</translation>
    </message>
    <message>
        <source>there is no task %1</source>
        <translation>es gibt keinen Vorgang %1</translation>
    </message>
    <message>
        <source>a summary takes no resources</source>
        <translation>ein Sammelvorgang nimmt keine Ressourcen</translation>
    </message>
    <message>
        <source>%1 is assigned to this task already</source>
        <translation>%1 ist diesem Vorgang schon zugewiesen</translation>
    </message>
    <message>
        <source>assignments name tasks by names that several have, %1 in all: %2</source>
        <translation>Zuweisungen nennen Vorgänge bei Namen, die mehrere haben, insgesamt %1: %2</translation>
    </message>
    <message>
        <source>the first task of the name has the assignments</source>
        <translation>der erste Vorgang des Namens hat die Zuweisungen</translation>
    </message>
    <message>
        <source>%1 hours of work are counted as %2</source>
        <translation>%1 Stunden Arbeit zählen als %2</translation>
    </message>
    <message>
        <source>work is the task's length times the units</source>
        <translation>Arbeit ist Dauer mal Einheiten</translation>
    </message>
    <message>
        <source>assigned without a rate</source>
        <translation>ohne Satz zugewiesen</translation>
    </message>
    <message>
        <source>not a plan: no title 'Duration'</source>
        <translation>kein Plan: kein Titel 'Duration'</translation>
    </message>
    <message>
        <source>not a plan: no title 'Name'</source>
        <translation>kein Plan: kein Titel 'Name'</translation>
    </message>
    <message>
        <source>the first row holds the titles: Name, Duration, Start, Predecessors, ...</source>
        <translation>die erste Zeile enthält die Titel: Name, Duration, Start, Predecessors, ...</translation>
    </message>
    <message>
        <source>kept as a text that costs nothing</source>
        <translation>als Text behalten, der nichts kostet</translation>
    </message>
    <message>
        <source>%1 stands twice</source>
        <translation>%1 steht doppelt</translation>
    </message>
    <message>
        <source>assigned once</source>
        <translation>einmal zugewiesen</translation>
    </message>
    <message>
        <source>'%1' has no units such as 50%</source>
        <translation>'%1' hat keine Einheiten wie 50%</translation>
    </message>
    <message>
        <source>assigned with 100%</source>
        <translation>mit 100% zugewiesen</translation>
    </message>
    <message>
        <source>'%1' has no sign of percent</source>
        <translation>'%1' hat kein Prozentzeichen</translation>
    </message>
    <message>
        <source>read as %1</source>
        <translation>gelesen als %1</translation>
    </message>
    <message>
        <source>the cells of its first row are empty</source>
        <translation>die Zellen der ersten Zeile sind leer</translation>
    </message>
    <message>
        <source>no title of its first row is known</source>
        <translation>kein Titel der ersten Zeile ist bekannt</translation>
    </message>
    <message>
        <source>it has no first row with titles</source>
        <translation>es fehlt die erste Zeile mit Titeln</translation>
    </message>
    <message>
        <source>task sheet</source>
        <translation>Vorgangsblatt</translation>
    </message>
    <message>
        <source>resource sheet</source>
        <translation>Ressourcenblatt</translation>
    </message>
    <message>
        <source>assignment sheet</source>
        <translation>Zuweisungsblatt</translation>
    </message>
    <message>
        <source>%1 is the name of another resource</source>
        <translation>%1 ist der Name einer anderen Ressource</translation>
    </message>
    <message>
        <source>%1 cannot be the ID</source>
        <translation>%1 kann nicht die ID sein</translation>
    </message>
    <message>
        <source>the next free ID</source>
        <translation>die nächste freie ID</translation>
    </message>
    <message>
        <source>%1 is no type of resource</source>
        <translation>%1 ist keine Ressourcenart</translation>
    </message>
    <message>
        <source>a work resource</source>
        <translation>eine Arbeitsressource</translation>
    </message>
    <message>
        <source>%1 is no rate</source>
        <translation>%1 ist kein Satz</translation>
    </message>
    <message>
        <source>%1 has no known unit of time</source>
        <translation>%1 hat keine bekannte Zeiteinheit</translation>
    </message>
    <message>
        <source>money for an hour</source>
        <translation>Geld je Stunde</translation>
    </message>
    <message>
        <source>%1 is no rate for a month or less</source>
        <translation>%1 ist kein Satz für einen Monat oder weniger</translation>
    </message>
    <message>
        <source>%1 is no amount</source>
        <translation>%1 ist kein Betrag</translation>
    </message>
    <message>
        <source>%1 is taken as a percentage</source>
        <translation>%1 wird als Prozentsatz genommen</translation>
    </message>
    <message>
        <source>%1 is the ID of no task</source>
        <translation>%1 ist die ID keines Vorgangs</translation>
    </message>
    <message>
        <source>it is a second %1</source>
        <translation>es ist ein zweites %1</translation>
    </message>
    <message>
        <source>no such column</source>
        <translation>keine solche Spalte</translation>
    </message>
    <message>
        <source>not read; did you mean %1?</source>
        <translation>nicht gelesen; meinten Sie %1?</translation>
    </message>
    <message>
        <source>column %1 has no title and %2 cells</source>
        <translation>Spalte %1 hat keinen Titel und %2 Zellen</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1, row %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>row %1, '%2'</source>
        <translation>Zeile %1, '%2'</translation>
    </message>
    <message>
        <source>%1, row %2, '%3'</source>
        <translation>%1, Zeile %2, '%3'</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>line %1, '%2'</source>
        <translation>Zeile %1, '%2'</translation>
    </message>
    <message>
        <source>%1, line %2, '%3'</source>
        <translation>%1, Zeile %2, '%3'</translation>
    </message>
    <message>
        <source>nothing was read</source>
        <translation>nichts gelesen</translation>
    </message>
    <message>
        <source>%1 has a comma that groups no digits</source>
        <translation>%1 hat ein Komma, das keine Ziffern gruppiert</translation>
    </message>
    <message>
        <source>level 1</source>
        <translation>Ebene 1</translation>
    </message>
    <message>
        <source>%1 is no ID</source>
        <translation>%1 ist keine ID</translation>
    </message>
    <message>
        <source>%1 is no level from 1 to 1000</source>
        <translation>%1 ist keine Ebene von 1 bis 1000</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 is no percentage</source>
        <translation>%1 ist kein Prozentsatz</translation>
    </message>
    <message>
        <source>%1 is no percentage from 0 to 100</source>
        <translation>%1 ist kein Prozentsatz von 0 bis 100</translation>
    </message>
    <message>
        <source>%1 is no length of time</source>
        <translation>%1 ist keine Zeitdauer</translation>
    </message>
    <message>
        <source>counted in days</source>
        <translation>in Tagen gezählt</translation>
    </message>
    <message>
        <source>there are too many links</source>
        <translation>es sind zu viele Hyperlinks</translation>
    </message>
    <message>
        <source>%1 has no closing quote</source>
        <translation>bei %1 fehlt das schließende Anführungszeichen</translation>
    </message>
    <message>
        <source>%1 is no task</source>
        <translation>%1 ist kein Vorgang</translation>
    </message>
    <message>
        <source>%1 is no link from finish to start without lag</source>
        <translation>%1 ist keine Ende-Anfang-Verknüpfung ohne Zeitabstand</translation>
    </message>
    <message>
        <source>%1 is an outline code, and no column has these</source>
        <translation>%1 ist ein Gliederungscode, und keine Spalte hat solche</translation>
    </message>
    <message>
        <source>there are too many predecessors</source>
        <translation>es sind zu viele Vorgänger</translation>
    </message>
    <message>
        <source>%1 names a predecessor twice</source>
        <translation>%1 nennt einen Vorgänger zweimal</translation>
    </message>
    <message>
        <source>%1 is no date from 1970 to 2105</source>
        <translation>%1 ist kein Datum von 1970 bis 2105</translation>
    </message>
    <message>
        <source>some of its dates have the day first, others the month</source>
        <translation>bei manchen Terminen steht der Tag vorn, bei anderen der Monat</translation>
    </message>
    <message>
        <source>nothing says whether day or month stand first in its dates</source>
        <translation>nichts sagt, ob in den Terminen Tag oder Monat vorn steht</translation>
    </message>
    <message>
        <source>the month first wherever that is a date</source>
        <translation>der Monat zuerst, wo das einen Termin ergibt</translation>
    </message>
    <message>
        <source>its numbers may be fractions</source>
        <translation>die Zahlen könnten Bruchteile sein</translation>
    </message>
    <message>
        <source>read as percentages</source>
        <translation>als Prozentsätze gelesen</translation>
    </message>
    <message>
        <source>level %1 follows level %2</source>
        <translation>Ebene %1 folgt auf Ebene %2</translation>
    </message>
    <message>
        <source>a task is one level below its summary</source>
        <translation>ein Vorgang liegt eine Ebene unter seinem Sammelvorgang</translation>
    </message>
    <message>
        <source>there is no task with the ID %1</source>
        <translation>es gibt keinen Vorgang mit der ID %1</translation>
    </message>
    <message>
        <source>there is no task in row %1</source>
        <translation>in Zeile %1 steht kein Vorgang</translation>
    </message>
    <message>
        <source>there are several tasks %1</source>
        <translation>es gibt mehrere Vorgänge %1</translation>
    </message>
    <message>
        <source>there are neither dates nor lengths</source>
        <translation>es gibt weder Termine noch Dauern</translation>
    </message>
    <message>
        <source>all tasks are one day long</source>
        <translation>alle Vorgänge dauern einen Tag</translation>
    </message>
    <message>
        <source>there is no such part</source>
        <translation>diesen Teil gibt es nicht</translation>
    </message>
    <message>
        <source>the part is too large</source>
        <translation>der Teil ist zu groß</translation>
    </message>
    <message>
        <source>%1 references in texts stand for no character</source>
        <translation>%1 Verweise in Texten stehen für kein Zeichen</translation>
    </message>
    <message>
        <source>control characters left out, unknown names as they are written</source>
        <translation>Steuerzeichen weggelassen, unbekannte Namen wie geschrieben</translation>
    </message>
    <message>
        <source>the places of %1 cells are not understood, the first is %2</source>
        <translation>die Orte von %1 Zellen sind nicht zu verstehen, der erste ist %2</translation>
    </message>
    <message>
        <source>the places of %1 cells name no row, the first is %2</source>
        <translation>die Orte von %1 Zellen nennen keine Zeile, der erste ist %2</translation>
    </message>
    <message>
        <source>taken as cells of the rows that hold them</source>
        <translation>als Zellen ihrer Zeilen genommen</translation>
    </message>
    <message>
        <source>%1 formulas have no value, the first in row %2</source>
        <translation>%1 Formeln haben keinen Wert, die erste in Zeile %2</translation>
    </message>
    <message>
        <source>left out: save the workbook with a program that calculates them</source>
        <translation>weggelassen: speichern Sie die Mappe mit einem Programm, das sie berechnet</translation>
    </message>
    <message>
        <source>cancelled: nothing was written</source>
        <translation>abgebrochen: nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>there is no plan to draw</source>
        <translation>es gibt keinen Plan zum Zeichnen</translation>
    </message>
    <message>
        <source>no font is installed: nothing can be drawn</source>
        <translation>keine Schrift ist installiert: nichts lässt sich zeichnen</translation>
    </message>
    <message>
        <source>the package fonts-dejavu-core brings some</source>
        <translation>das Paket fonts-dejavu-core bringt welche mit</translation>
    </message>
    <message>
        <source>the plan has no tasks: there is nothing to draw</source>
        <translation>der Plan hat keine Vorgänge: es gibt nichts zu zeichnen</translation>
    </message>
    <message>
        <source>no task is shown: there is nothing to draw</source>
        <translation>kein Vorgang wird gezeigt: es gibt nichts zu zeichnen</translation>
    </message>
    <message>
        <source>print setup</source>
        <translation>Druckeinrichtung</translation>
    </message>
    <message>
        <source>the picture would take %1 x %2 sheets</source>
        <translation>das Bild bräuchte %1 x %2 Blätter</translation>
    </message>
    <message>
        <source>fit it to fewer, take a coarser scale, or print a part of it</source>
        <translation>passen Sie es auf weniger ein, nehmen Sie einen gröberen Maßstab oder drucken Sie einen Teil</translation>
    </message>
    <message>
        <source>no font has all characters of %1 texts, the first of them '%2'</source>
        <translation>keine Schrift hat alle Zeichen von %1 Texten, der erste davon '%2'</translation>
    </message>
    <message>
        <source>for Chinese the package fonts-wqy-microhei brings one</source>
        <translation>für Chinesisch bringt das Paket fonts-wqy-microhei eine mit</translation>
    </message>
    <message>
        <source>there is nothing to paint on</source>
        <translation>es gibt nichts, worauf gezeichnet werden kann</translation>
    </message>
    <message>
        <source>the smallest text is %1 points high</source>
        <translation>der kleinste Text ist %1 Punkt hoch</translation>
    </message>
    <message>
        <source>on %1 x %2 sheets it is %3</source>
        <translation>auf %1 x %2 Blättern sind es %3</translation>
    </message>
    <message>
        <source>an image of %1 x %2 pixels is too large</source>
        <translation>ein Bild von %1 x %2 Pixeln ist zu groß</translation>
    </message>
    <message>
        <source>export a PDF, take a coarser scale, or draw a part of the plan</source>
        <translation>exportieren Sie ein PDF, nehmen Sie einen gröberen Maßstab oder zeichnen Sie einen Teil des Plans</translation>
    </message>
    <message>
        <source>there is no memory for the image</source>
        <translation>für das Bild fehlt der Speicher</translation>
    </message>
    <message>
        <source>a chart of %1 pixels is too wide</source>
        <translation>ein Diagramm von %1 Pixeln ist zu breit</translation>
    </message>
    <message>
        <source>Waits for %1</source>
        <translation>Wartet auf %1</translation>
    </message>
    <message>
        <source>Critical: a delay moves the finish</source>
        <translation>Kritisch: eine Verspätung verschiebt das Ende</translation>
    </message>
    <message>
        <source>Starts with the project</source>
        <translation>Beginnt mit dem Projekt</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>nichts gefunden</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Show more time (-)</source>
        <translation>Mehr Zeit zeigen (-)</translation>
    </message>
    <message>
        <source>Show less time (+)</source>
        <translation>Weniger Zeit zeigen (+)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show the whole plan (0)</source>
        <translation>Den ganzen Plan zeigen (0)</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Go to today (T)</source>
        <translation>Zu heute gehen (T)</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Zuklappen</translation>
    </message>
    <message>
        <source>Fold all summaries</source>
        <translation>Alle Sammelvorgänge zuklappen</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>Aufklappen</translation>
    </message>
    <message>
        <source>Unfold all summaries</source>
        <translation>Alle Sammelvorgänge aufklappen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>More or fewer columns (C)</source>
        <translation>Mehr oder weniger Spalten (C)</translation>
    </message>
    <message>
        <source>Keys (?)</source>
        <translation>Tasten (?)</translation>
    </message>
    <message>
        <source>%1 tasks</source>
        <translation>%1 Vorgänge</translation>
    </message>
    <message>
        <source>Choose a task with a click or the arrow keys.</source>
        <translation>Ein Klick oder die Pfeiltasten wählen einen Vorgang.</translation>
    </message>
    <message>
        <source>another task</source>
        <translation>ein anderer Vorgang</translation>
    </message>
    <message>
        <source>fold and unfold</source>
        <translation>zuklappen und aufklappen</translation>
    </message>
    <message>
        <source>go to the task's bar</source>
        <translation>zum Balken des Vorgangs gehen</translation>
    </message>
    <message>
        <source>go to what it waits for, to what waits for it</source>
        <translation>zu dem gehen, worauf er wartet; zu dem, was auf ihn wartet</translation>
    </message>
    <message>
        <source>go back</source>
        <translation>zurückgehen</translation>
    </message>
    <message>
        <source>find; Enter and Shift+Enter for the next and the one before</source>
        <translation>suchen; Enter und Umschalt+Enter für den nächsten und den vorigen</translation>
    </message>
    <message>
        <source>less time, more time, the whole plan</source>
        <translation>weniger Zeit, mehr Zeit, der ganze Plan</translation>
    </message>
    <message>
        <source>columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>paper of %1 cannot be printed on; A4 was taken</source>
        <translation>auf Papier von %1 lässt sich nicht drucken; A4 wurde genommen</translation>
    </message>
    <message>
        <source>at least 40 mm and at most 5 m each way</source>
        <translation>mindestens 40 mm und höchstens 5 m je Seite</translation>
    </message>
    <message>
        <source>the margins leave less than 20 mm of the paper; margins of 10 mm were taken</source>
        <translation>die Ränder lassen weniger als 20 mm vom Papier; Ränder von 10 mm wurden genommen</translation>
    </message>
    <message>
        <source>task %1</source>
        <translation>Vorgang %1</translation>
    </message>
    <message>
        <source>it is hidden below the task with ID %1, which does not exist: shown</source>
        <translation>er ist unter dem Vorgang mit ID %1 verborgen, den es nicht gibt: gezeigt</translation>
    </message>
    <message>
        <source>%1 elements are passed over</source>
        <translation>%1 Elemente werden übergangen</translation>
    </message>
    <message>
        <source>this is no name of a time zone: passed over</source>
        <translation>das ist kein Name einer Zeitzone: übergangen</translation>
    </message>
    <message>
        <source>this is no name on one line: passed over</source>
        <translation>das ist kein Name in einer Zeile: übergangen</translation>
    </message>
    <message>
        <source>this part of the package is passed over</source>
        <translation>dieser Teil des Pakets wird übergangen</translation>
    </message>
    <message>
        <source>the root element is not "Document"</source>
        <translation>das Wurzelelement ist nicht "Document"</translation>
    </message>
    <message>
        <source>%1 at place %2 is no number: 0 is taken</source>
        <translation>%1 an Stelle %2 ist keine Zahl: 0 wird genommen</translation>
    </message>
    <message>
        <source>%1 for day %2 is neither 1 nor 0: a day off is taken</source>
        <translation>%1 für Tag %2 ist weder 1 noch 0: ein freier Tag wird genommen</translation>
    </message>
    <message>
        <source>%1 flags for seven days: the others stay as they were</source>
        <translation>%1 Angaben für sieben Tage: die anderen bleiben, wie sie waren</translation>
    </message>
    <message>
        <source>%1 flags for seven days: the first seven are taken</source>
        <translation>%1 Angaben für sieben Tage: die ersten sieben werden genommen</translation>
    </message>
    <message>
        <source>%1 is neither 1 nor 0: no is taken</source>
        <translation>%1 ist weder 1 noch 0: nein wird genommen</translation>
    </message>
    <message>
        <source>%1 is no whole number: 0 is taken</source>
        <translation>%1 ist keine ganze Zahl: 0 wird genommen</translation>
    </message>
    <message>
        <source>%1 is no such number: passed over</source>
        <translation>%1 ist keine solche Zahl: übergangen</translation>
    </message>
    <message>
        <source>%1 is no whole number: passed over</source>
        <translation>%1 ist keine ganze Zahl: übergangen</translation>
    </message>
    <message>
        <source>%1 is no number from 0 to 4294967295: 0 is taken</source>
        <translation>%1 ist keine Zahl von 0 bis 4294967295: 0 wird genommen</translation>
    </message>
    <message>
        <source>%1 is no number from 0 to 2147483647: 0 is taken</source>
        <translation>%1 ist keine Zahl von 0 bis 2147483647: 0 wird genommen</translation>
    </message>
    <message>
        <source>%1 is no number: 0 is taken</source>
        <translation>%1 ist keine Zahl: 0 wird genommen</translation>
    </message>
    <message>
        <source>%1, in %2 places</source>
        <translation>%1, an %2 Stellen</translation>
    </message>
    <message>
        <source>the attribute %1 of '%2' is not known: passed over</source>
        <translation>das Attribut %1 von '%2' ist unbekannt: übergangen</translation>
    </message>
    <message>
        <source>text beside the elements of '%1' is passed over</source>
        <translation>Text neben den Elementen von '%1' wird übergangen</translation>
    </message>
    <message>
        <source>an element %1 is read as a '%2'</source>
        <translation>ein Element %1 wird als '%2' gelesen</translation>
    </message>
    <message>
        <source>the element %1 in '%2' is not known: passed over with the %3 elements in it</source>
        <translation>das Element %1 in '%2' ist unbekannt: mit den %3 Elementen darin übergangen</translation>
    </message>
    <message>
        <source>the element %1 in '%2' is not known: passed over</source>
        <translation>das Element %1 in '%2' ist unbekannt: übergangen</translation>
    </message>
    <message>
        <source>'%1' stands twice: intervals of both are taken, of other values the last</source>
        <translation>'%1' steht doppelt: Spannen werden von beiden genommen, von anderen Werten der letzte</translation>
    </message>
    <message>
        <source>'%1' stands twice: the first one is taken</source>
        <translation>'%1' steht doppelt: das erste wird genommen</translation>
    </message>
    <message>
        <source>'%1' stands twice: the last one is taken, and the %2 elements of the one before are not</source>
        <translation>'%1' steht doppelt: das letzte wird genommen, die %2 Elemente des vorigen nicht</translation>
    </message>
    <message>
        <source>'%1' stands twice: the last one is taken</source>
        <translation>'%1' steht doppelt: das letzte wird genommen</translation>
    </message>
    <message>
        <source>the file has none of the lists of a plan</source>
        <translation>die Datei hat keine der Listen eines Plans</translation>
    </message>
    <message>
        <source>there is no '%1': the plan has no working hours, and the usual options</source>
        <translation>es gibt kein '%1': der Plan hat keine Arbeitszeit und die üblichen Optionen</translation>
    </message>
    <message>
        <source>there is no '%1': the plan's resources stay as they were</source>
        <translation>es gibt kein '%1': die Ressourcen des Plans bleiben, wie sie waren</translation>
    </message>
    <message>
        <source>there is no '%1': the plan's columns stay as they were</source>
        <translation>es gibt kein '%1': die Spalten des Plans bleiben, wie sie waren</translation>
    </message>
    <message>
        <source>there is no '%1': the page stays as it was</source>
        <translation>es gibt kein '%1': die Seite bleibt, wie sie war</translation>
    </message>
    <message>
        <source>there are %1 tasks in the file and %2 row heights</source>
        <translation>die Datei hat %1 Vorgänge und %2 Zeilenhöhen</translation>
    </message>
    <message>
        <source>the version %1 is none: %2 is taken</source>
        <translation>die Version %1 ist keine: %2 wird genommen</translation>
    </message>
    <message>
        <source>the file has version %1, and what a version after %2 added is not known</source>
        <translation>die Datei hat Version %1, und was nach Version %2 dazukam, ist unbekannt</translation>
    </message>
    <message>
        <source>%1 starts and %2 finishes: intervals without one end at 12:00</source>
        <translation>%1 Anfänge und %2 Enden: Spannen ohne Ende enden um 12:00</translation>
    </message>
    <message>
        <source>%1 starts and %2 finishes: the surplus is passed over</source>
        <translation>%1 Anfänge und %2 Enden: die überzähligen werden übergangen</translation>
    </message>
    <message>
        <source>the interval %1 lies past midnight: it counts up to 24:00</source>
        <translation>die Spanne %1 reicht über Mitternacht: sie zählt bis 24:00</translation>
    </message>
    <message>
        <source>the interval %1 ends before it begins: it counts as nothing</source>
        <translation>die Spanne %1 endet vor ihrem Beginn: sie zählt nicht</translation>
    </message>
    <message>
        <source>the interval %1 has no length</source>
        <translation>die Spanne %1 hat keine Länge</translation>
    </message>
    <message>
        <source>the interval %1 overlaps one before it: the hours of both count</source>
        <translation>die Spanne %1 überschneidet eine frühere: die Stunden beider zählen</translation>
    </message>
    <message>
        <source>the interval %1 lies before one that stands ahead of it: breaks are counted in the order of the list</source>
        <translation>die Spanne %1 liegt vor einer, die vor ihr steht: Pausen zählen in der Reihenfolge der Liste</translation>
    </message>
    <message>
        <source>the interval %1 is not made of whole hours: the hours that it touches at its end do not count, those at its beginning do</source>
        <translation>die Spanne %1 besteht nicht aus ganzen Stunden: angebrochene Stunden am Ende zählen nicht, am Anfang schon</translation>
    </message>
    <message>
        <source>working time</source>
        <translation>Arbeitszeit</translation>
    </message>
    <message>
        <source>a day has no hours of work: nothing can be scheduled</source>
        <translation>ein Tag hat keine Arbeitsstunden: nichts lässt sich planen</translation>
    </message>
    <message>
        <source>a day counts as %1 hours of work from %2:00 to %3:00</source>
        <translation>ein Tag zählt als %1 Arbeitsstunden von %2:00 bis %3:00</translation>
    </message>
    <message>
        <source>no day of the week is a working day: nothing can be scheduled</source>
        <translation>kein Wochentag ist ein Arbeitstag: nichts lässt sich planen</translation>
    </message>
    <message>
        <source>exception %1</source>
        <translation>Ausnahme %1</translation>
    </message>
    <message>
        <source>there is no %1: today is taken</source>
        <translation>es gibt kein %1: heute wird genommen</translation>
    </message>
    <message>
        <source>there is no %1 (0): 1 January 1970 is taken</source>
        <translation>es gibt kein %1 (0): der 1. Januar 1970 wird genommen</translation>
    </message>
    <message>
        <source>it begins on %1 and ends on %2: it covers no date</source>
        <translation>sie beginnt am %1 und endet am %2: sie umfasst keinen Tag</translation>
    </message>
    <message>
        <source>nothing says that it is an exception: it makes no date a day off or a working day</source>
        <translation>nichts sagt, dass es eine Ausnahme ist: sie macht keinen Tag frei oder zum Arbeitstag</translation>
    </message>
    <message>
        <source>its hours %1 are not kept: a whole working day of %2 hours is counted</source>
        <translation>ihre Zeiten %1 bleiben nicht erhalten: ein ganzer Arbeitstag von %2 Stunden zählt</translation>
    </message>
    <message>
        <source>ID %1 is that of resource %2, too: resources are told apart by their names</source>
        <translation>ID %1 ist auch die von Ressource %2: Ressourcen unterscheidet ihr Name</translation>
    </message>
    <message>
        <source>%1 is the name of resource %2, too: tasks mean that one</source>
        <translation>%1 ist auch der Name von Ressource %2: Vorgänge meinen diese</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>sie hat keinen Namen</translation>
    </message>
    <message>
        <source>its units are negative</source>
        <translation>ihre Einheiten sind negativ</translation>
    </message>
    <message>
        <source>the unit of its rate is not known: it costs nothing</source>
        <translation>die Einheit ihres Satzes ist unbekannt: sie kostet nichts</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>there is no column of its kind: it stays empty</source>
        <translation>es gibt keine Spalte dieser Art: sie bleibt leer</translation>
    </message>
    <message>
        <source>%1 done is not within 0 to 1 (100 %): kept</source>
        <translation>%1 erledigt liegt nicht in 0 bis 1 (100 %): behalten</translation>
    </message>
    <message>
        <source>it has a finish and no start: kept, as if it began in 1970</source>
        <translation>er hat ein Ende und keinen Anfang: behalten, als begänne er 1970</translation>
    </message>
    <message>
        <source>it has a start and no finish: kept</source>
        <translation>er hat einen Anfang und kein Ende: behalten</translation>
    </message>
    <message>
        <source>it finishes before it starts: kept</source>
        <translation>er endet, bevor er anfängt: behalten</translation>
    </message>
    <message>
        <source>a milestone that takes time: kept, and shown without its length</source>
        <translation>ein Meilenstein, der Zeit braucht: behalten und ohne Dauer gezeigt</translation>
    </message>
    <message>
        <source>%1 is no unit of durations: kept, and counted in days</source>
        <translation>%1 ist keine Einheit von Dauern: behalten und in Tagen gezählt</translation>
    </message>
    <message>
        <source>it names the predecessor %1 twice: kept</source>
        <translation>er nennt den Vorgänger %1 zweimal: behalten</translation>
    </message>
    <message>
        <source>it names the successor %1 twice: kept</source>
        <translation>er nennt den Nachfolger %1 zweimal: behalten</translation>
    </message>
    <message>
        <source>there is nothing in it: saving leaves it out</source>
        <translation>es ist nichts darin: beim Speichern fällt es weg</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Dateiname zu lang</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>zu viele Ebenen symbolischer Links</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>kein Platz mehr auf dem Gerät</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>zugeteilter Speicherplatz erschöpft</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Datei zu groß</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Dateisystem nur lesbar</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Gerät oder Ressource belegt</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>writing was given up</source>
        <translation>das Schreiben wurde aufgegeben</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>the text ends inside an element</source>
        <translation>der Text endet in einem Element</translation>
    </message>
    <message>
        <source>there are too many elements and attributes</source>
        <translation>es sind zu viele Elemente und Attribute</translation>
    </message>
    <message>
        <source>a comment does not end</source>
        <translation>ein Kommentar endet nicht</translation>
    </message>
    <message>
        <source>a CDATA section does not end</source>
        <translation>ein CDATA-Abschnitt endet nicht</translation>
    </message>
    <message>
        <source>a document type declaration is not accepted</source>
        <translation>eine Dokumenttyp-Deklaration wird nicht angenommen</translation>
    </message>
    <message>
        <source>a processing instruction does not end</source>
        <translation>eine Verarbeitungsanweisung endet nicht</translation>
    </message>
    <message>
        <source>'&lt;' inside a tag</source>
        <translation>'&lt;' in einem Tag</translation>
    </message>
    <message>
        <source>an end tag without its element</source>
        <translation>ein End-Tag ohne sein Element</translation>
    </message>
    <message>
        <source>elements are nested too deep</source>
        <translation>die Elemente sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>an attribute value does not end</source>
        <translation>ein Attributwert endet nicht</translation>
    </message>
    <message>
        <source>a tag does not end</source>
        <translation>ein Tag endet nicht</translation>
    </message>
    <message>
        <source>byte %1: no sound UTF-8</source>
        <translation>Byte %1: kein gültiges UTF-8</translation>
    </message>
    <message>
        <source>no sound XML</source>
        <translation>kein gültiges XML</translation>
    </message>
    <message>
        <source>there is something beside the root element</source>
        <translation>neben dem Wurzelelement steht etwas</translation>
    </message>
    <message>
        <source>an attribute stands twice in the element %1</source>
        <translation>ein Attribut steht doppelt im Element %1</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>der Name ist leer</translation>
    </message>
    <message>
        <source>the name is absolute</source>
        <translation>der Name ist absolut</translation>
    </message>
    <message>
        <source>the name holds a backslash</source>
        <translation>der Name enthält einen umgekehrten Schrägstrich</translation>
    </message>
    <message>
        <source>the name holds a control character</source>
        <translation>der Name enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>the name is no sound UTF-8</source>
        <translation>der Name ist kein gültiges UTF-8</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>the name leaves its folder or goes round in it</source>
        <translation>der Name verlässt seinen Ordner oder läuft darin im Kreis</translation>
    </message>
    <message>
        <source>the entry is too large</source>
        <translation>der Eintrag ist zu groß</translation>
    </message>
    <message>
        <source>the entry unpacks to far more than it holds</source>
        <translation>der Eintrag entpackt sich zu weit mehr, als er enthält</translation>
    </message>
    <message>
        <source>a folder has content</source>
        <translation>ein Ordner hat Inhalt</translation>
    </message>
    <message>
        <source>the name stands there twice</source>
        <translation>der Name steht doppelt</translation>
    </message>
    <message>
        <source>there are too many folders</source>
        <translation>es sind zu viele Ordner</translation>
    </message>
    <message>
        <source>the archive unpacks to too much</source>
        <translation>das Archiv entpackt sich zu zu viel</translation>
    </message>
    <message>
        <source>the archive unpacks to far more than it holds</source>
        <translation>das Archiv entpackt sich zu weit mehr, als es enthält</translation>
    </message>
    <message>
        <source>%1: the name stands for a file and for a folder</source>
        <translation>%1: der Name steht für eine Datei und für einen Ordner</translation>
    </message>
</context>
<context>
    <name>window</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>begins another plan</source>
        <translation>beginnt einen anderen Plan</translation>
    </message>
    <message>
        <source>New &amp;window</source>
        <translation>Neues &amp;Fenster</translation>
    </message>
    <message>
        <source>opens another window</source>
        <translation>öffnet ein weiteres Fenster</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>opens a package, a CSV file, a workbook or project XML</source>
        <translation>öffnet ein Paket, eine CSV-Datei, eine Arbeitsmappe oder Projekt-XML</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>saves the plan as a package</source>
        <translation>speichert den Plan als Paket</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>saves it under another name</source>
        <translation>speichert ihn unter anderem Namen</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>writes the plan as PDF, PNG, SVG, HTML, XLSX, XLS, project XML or CSV</source>
        <translation>schreibt den Plan als PDF, PNG, SVG, HTML, XLSX, XLS, Projekt-XML oder CSV</translation>
    </message>
    <message>
        <source>Page set-&amp;up…</source>
        <translation>Seite &amp;einrichten…</translation>
    </message>
    <message>
        <source>paper, margins, number of sheets</source>
        <translation>Papier, Ränder, Zahl der Blätter</translation>
    </message>
    <message>
        <source>&amp;Print preview…</source>
        <translation>&amp;Druckvorschau…</translation>
    </message>
    <message>
        <source>shows the sheets as they are printed</source>
        <translation>zeigt die Blätter, wie sie gedruckt werden</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>D&amp;rucken…</translation>
    </message>
    <message>
        <source>prints the sheets</source>
        <translation>druckt die Blätter</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>closes the window</source>
        <translation>schließt das Fenster</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>closes all windows</source>
        <translation>schließt alle Fenster</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>takes the last step back</source>
        <translation>nimmt den letzten Schritt zurück</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>makes it again</source>
        <translation>macht ihn noch einmal</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>cuts the chosen tasks with all below them</source>
        <translation>schneidet die gewählten Vorgänge mit allem darunter aus</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>copies the chosen tasks with all below them; spreadsheets get a table</source>
        <translation>kopiert die gewählten Vorgänge mit allem darunter; Tabellenprogramme bekommen eine Tabelle</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>pastes tasks above the chosen one; of lines of text each becomes a task</source>
        <translation>fügt Vorgänge über dem gewählten ein; aus Textzeilen wird je ein Vorgang</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>copies the chosen tasks behind themselves</source>
        <translation>kopiert die gewählten Vorgänge hinter sich selbst</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>removes the chosen tasks</source>
        <translation>entfernt die gewählten Vorgänge</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Alles au&amp;swählen</translation>
    </message>
    <message>
        <source>chooses all tasks</source>
        <translation>wählt alle Vorgänge</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen…</translation>
    </message>
    <message>
        <source>looks for a text in names, notes and resources</source>
        <translation>sucht einen Text in Namen, Notizen und Ressourcen</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>W&amp;eitersuchen</translation>
    </message>
    <message>
        <source>goes to the next place</source>
        <translation>geht zur nächsten Stelle</translation>
    </message>
    <message>
        <source>&amp;Replace…</source>
        <translation>&amp;Ersetzen…</translation>
    </message>
    <message>
        <source>puts another text in its place, in names and notes</source>
        <translation>setzt in Namen und Notizen einen anderen Text an seine Stelle</translation>
    </message>
    <message>
        <source>&amp;Go to row…</source>
        <translation>Zu &amp;Zeile gehen…</translation>
    </message>
    <message>
        <source>goes to a task by its number</source>
        <translation>geht zu einem Vorgang nach seiner Nummer</translation>
    </message>
    <message>
        <source>&amp;Edit cell</source>
        <translation>&amp;Zelle bearbeiten</translation>
    </message>
    <message>
        <source>edits the cell in its place</source>
        <translation>bearbeitet die Zelle an ihrem Platz</translation>
    </message>
    <message>
        <source>Insert &amp;above</source>
        <translation>D&amp;arüber einfügen</translation>
    </message>
    <message>
        <source>a new task above the chosen one</source>
        <translation>ein neuer Vorgang über dem gewählten</translation>
    </message>
    <message>
        <source>Insert &amp;below</source>
        <translation>Da&amp;runter einfügen</translation>
    </message>
    <message>
        <source>a new task below the chosen one, on its level</source>
        <translation>ein neuer Vorgang unter dem gewählten, auf seiner Ebene</translation>
    </message>
    <message>
        <source>Insert as &amp;child</source>
        <translation>Als &amp;Untervorgang einfügen</translation>
    </message>
    <message>
        <source>a new task inside the chosen one</source>
        <translation>ein neuer Vorgang innerhalb des gewählten</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>&amp;Tiefer stufen</translation>
    </message>
    <message>
        <source>makes the chosen tasks part of the one before them</source>
        <translation>macht die gewählten Vorgänge zu einem Teil des Vorgangs davor</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>&amp;Höher stufen</translation>
    </message>
    <message>
        <source>moves the chosen tasks one level up</source>
        <translation>rückt die gewählten Vorgänge eine Ebene höher</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>Nach u&amp;nten</translation>
    </message>
    <message>
        <source>&amp;Fold or unfold</source>
        <translation>Zu- oder au&amp;fklappen</translation>
    </message>
    <message>
        <source>hides or shows what is below a summary</source>
        <translation>verbirgt oder zeigt, was unter einem Sammelvorgang liegt</translation>
    </message>
    <message>
        <source>Fold all</source>
        <translation>Alles zuklappen</translation>
    </message>
    <message>
        <source>shows the top level alone</source>
        <translation>zeigt nur die oberste Ebene</translation>
    </message>
    <message>
        <source>Unfold all</source>
        <translation>Alles aufklappen</translation>
    </message>
    <message>
        <source>shows all tasks</source>
        <translation>zeigt alle Vorgänge</translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation>&amp;Verknüpfen</translation>
    </message>
    <message>
        <source>each chosen task waits for the one chosen before it</source>
        <translation>jeder gewählte Vorgang wartet auf den vor ihm gewählten</translation>
    </message>
    <message>
        <source>U&amp;nlink</source>
        <translation>Verknüpfung &amp;lösen</translation>
    </message>
    <message>
        <source>takes the links between the chosen tasks away; of one task, all its links</source>
        <translation>entfernt die Verknüpfungen zwischen den gewählten Vorgängen; bei einem alle seine</translation>
    </message>
    <message>
        <source>&amp;Milestone</source>
        <translation>&amp;Meilenstein</translation>
    </message>
    <message>
        <source>makes milestones of the chosen tasks, or tasks of milestones</source>
        <translation>macht aus den gewählten Vorgängen Meilensteine oder aus Meilensteinen Vorgänge</translation>
    </message>
    <message>
        <source>D&amp;one</source>
        <translation>&amp;Erledigt</translation>
    </message>
    <message>
        <source>sets the chosen tasks to 100 %</source>
        <translation>setzt die gewählten Vorgänge auf 100 %</translation>
    </message>
    <message>
        <source>Open &amp;hyperlink…</source>
        <translation>&amp;Hyperlink öffnen…</translation>
    </message>
    <message>
        <source>shows the page, or begins the mail, that the chosen task names</source>
        <translation>zeigt die Seite oder beginnt die E-Mail, die der gewählte Vorgang nennt</translation>
    </message>
    <message>
        <source>Working &amp;time…</source>
        <translation>Arbeits&amp;zeit…</translation>
    </message>
    <message>
        <source>working days, hours, holidays</source>
        <translation>Arbeitstage, Zeiten, Feiertage</translation>
    </message>
    <message>
        <source>&amp;Resources…</source>
        <translation>&amp;Ressourcen…</translation>
    </message>
    <message>
        <source>who and what works, and what it costs</source>
        <translation>wer und was arbeitet, und was es kostet</translation>
    </message>
    <message>
        <source>&amp;Columns…</source>
        <translation>&amp;Spalten…</translation>
    </message>
    <message>
        <source>which columns the table shows</source>
        <translation>welche Spalten die Tabelle zeigt</translation>
    </message>
    <message>
        <source>&amp;Schedule</source>
        <translation>&amp;Berechnen</translation>
    </message>
    <message>
        <source>moves every task behind those it waits for</source>
        <translation>verschiebt jeden Vorgang hinter die, auf die er wartet</translation>
    </message>
    <message>
        <source>Close &amp;gaps</source>
        <translation>&amp;Lücken schließen</translation>
    </message>
    <message>
        <source>starts linked tasks that have not begun as soon as those they wait for have ended</source>
        <translation>beginnt verknüpfte Vorgänge, die noch nicht begonnen haben, sobald die enden, auf die sie warten</translation>
    </message>
    <message>
        <source>Set &amp;baseline</source>
        <translation>Basisplan &amp;setzen</translation>
    </message>
    <message>
        <source>remembers dates and costs, to compare with later</source>
        <translation>hält Termine und Kosten fest, um später zu vergleichen</translation>
    </message>
    <message>
        <source>Clear baseline</source>
        <translation>Basisplan löschen</translation>
    </message>
    <message>
        <source>forgets them</source>
        <translation>vergisst sie</translation>
    </message>
    <message>
        <source>Compare &amp;with baseline</source>
        <translation>&amp;Mit dem Basisplan vergleichen</translation>
    </message>
    <message>
        <source>lists the tasks that are not where the baseline has them, and by how much</source>
        <translation>zeigt die Vorgänge, die nicht liegen, wo der Basisplan sie hat, und um wie viel</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>more pixels for a day</source>
        <translation>mehr Pixel für einen Tag</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>fewer pixels for a day</source>
        <translation>weniger Pixel für einen Tag</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>the whole plan on the screen</source>
        <translation>der ganze Plan auf dem Bildschirm</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Heute</translation>
    </message>
    <message>
        <source>goes to the line of today</source>
        <translation>geht zur Linie von heute</translation>
    </message>
    <message>
        <source>&amp;Critical path</source>
        <translation>&amp;Kritischer Weg</translation>
    </message>
    <message>
        <source>shows which delays move the finish</source>
        <translation>zeigt, welche Verzögerungen das Ende verschieben</translation>
    </message>
    <message>
        <source>&amp;Baseline</source>
        <translation>&amp;Basisplan</translation>
    </message>
    <message>
        <source>shows where tasks were planned to be</source>
        <translation>zeigt, wo die Vorgänge geplant waren</translation>
    </message>
    <message>
        <source>&amp;Slack</source>
        <translation>&amp;Puffer</translation>
    </message>
    <message>
        <source>shows how far tasks can slip</source>
        <translation>zeigt, wie weit Vorgänge rutschen können</translation>
    </message>
    <message>
        <source>&amp;Links</source>
        <translation>&amp;Verknüpfungen</translation>
    </message>
    <message>
        <source>shows what waits for what</source>
        <translation>zeigt, was worauf wartet</translation>
    </message>
    <message>
        <source>Sheet bo&amp;rders</source>
        <translation>B&amp;lattgrenzen</translation>
    </message>
    <message>
        <source>shows where the sheets of paper end</source>
        <translation>zeigt, wo die Papierblätter enden</translation>
    </message>
    <message>
        <source>L&amp;abels</source>
        <translation>Beschri&amp;ftungen</translation>
    </message>
    <message>
        <source>texts beside bars: resources, names, dates, none</source>
        <translation>Texte neben den Balken: Ressourcen, Namen, Termine, keine</translation>
    </message>
    <message>
        <source>&amp;Why is it when it is?</source>
        <translation>&amp;Warum dieser Termin?</translation>
    </message>
    <message>
        <source>a panel that explains the dates of the chosen task</source>
        <translation>ein Bereich, der die Termine des gewählten Vorgangs erklärt</translation>
    </message>
    <message>
        <source>F&amp;ilter</source>
        <translation>F&amp;ilter</translation>
    </message>
    <message>
        <source>lists the critical tasks, the late ones, those of a resource</source>
        <translation>listet die kritischen Vorgänge, die verspäteten, die einer Ressource</translation>
    </message>
    <message>
        <source>&amp;Hide other tasks</source>
        <translation>Andere Vorgänge aus&amp;blenden</translation>
    </message>
    <message>
        <source>shows the tasks of the filter alone, with the summaries above them</source>
        <translation>zeigt nur die Vorgänge des Filters, mit den Sammelvorgängen darüber</translation>
    </message>
    <message>
        <source>&amp;Go to what drives it</source>
        <translation>Zum &amp;Auslöser gehen</translation>
    </message>
    <message>
        <source>goes to the task that the chosen one waits for longest</source>
        <translation>geht zum Vorgang, auf den der gewählte am längsten wartet</translation>
    </message>
    <message>
        <source>&amp;Commands…</source>
        <translation>&amp;Befehle…</translation>
    </message>
    <message>
        <source>finds every command by its name</source>
        <translation>findet jeden Befehl nach seinem Namen</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>what each key does</source>
        <translation>was jede Taste tut</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>die Version</translation>
    </message>
    <message>
        <source>any text</source>
        <translation>beliebiger Text</translation>
    </message>
    <message>
        <source>replaces what stands in the cell</source>
        <translation>ersetzt, was in der Zelle steht</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>takes it and goes down; in the last row each name makes a task</source>
        <translation>übernimmt und geht nach unten; in der letzten Zeile macht jeder Name einen Vorgang</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Umschalt+Tab</translation>
    </message>
    <message>
        <source>takes it and goes to the next or previous cell</source>
        <translation>übernimmt und geht zur nächsten oder vorigen Zelle</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>leaves the cell, or a drag, as it was</source>
        <translation>lässt die Zelle oder ein Ziehen, wie es war</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Links, Rechts</translation>
    </message>
    <message>
        <source>on a summary's name: folds and unfolds it</source>
        <translation>auf dem Namen eines Sammelvorgangs: klappt ihn zu und auf</translation>
    </message>
    <message>
        <source>Ctrl+wheel</source>
        <translation>Strg+Mausrad</translation>
    </message>
    <message>
        <source>zooms around the pointer</source>
        <translation>zoomt um den Mauszeiger</translation>
    </message>
    <message>
        <source>Shift+wheel</source>
        <translation>Umschalt+Mausrad</translation>
    </message>
    <message>
        <source>scrolls sideways</source>
        <translation>rollt seitwärts</translation>
    </message>
    <message>
        <source>drag a bar sideways</source>
        <translation>Balken seitwärts ziehen</translation>
    </message>
    <message>
        <source>moves the task; Alt goes by minutes</source>
        <translation>verschiebt den Vorgang; mit Alt minutenweise</translation>
    </message>
    <message>
        <source>drag a bar's right end</source>
        <translation>rechtes Ende eines Balkens ziehen</translation>
    </message>
    <message>
        <source>changes its length</source>
        <translation>ändert die Dauer</translation>
    </message>
    <message>
        <source>drag the end of the done part</source>
        <translation>Ende des erledigten Teils ziehen</translation>
    </message>
    <message>
        <source>changes how much is done</source>
        <translation>ändert, wie viel erledigt ist</translation>
    </message>
    <message>
        <source>drag a bar up or down, or the circle behind it</source>
        <translation>Balken oder den Kreis dahinter auf- oder abwärts ziehen</translation>
    </message>
    <message>
        <source>draws a link to the task that is to wait</source>
        <translation>zieht eine Verknüpfung zu dem Vorgang, der warten soll</translation>
    </message>
    <message>
        <source>drag the dates sideways</source>
        <translation>Termine seitwärts ziehen</translation>
    </message>
    <message>
        <source>zooms</source>
        <translation>zoomt</translation>
    </message>
    <message>
        <source>drag with the middle button</source>
        <translation>mit der mittleren Taste ziehen</translation>
    </message>
    <message>
        <source>scrolls</source>
        <translation>rollt</translation>
    </message>
    <message>
        <source>drag the lower edge of a row's number</source>
        <translation>untere Kante einer Zeilennummer ziehen</translation>
    </message>
    <message>
        <source>changes its height</source>
        <translation>ändert die Höhe</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Task</source>
        <translation>&amp;Vorgang</translation>
    </message>
    <message>
        <source>&amp;Plan</source>
        <translation>&amp;Plan</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>In the table and on the chart</source>
        <translation>In der Tabelle und im Diagramm</translation>
    </message>
    <message>
        <source>kwgantt</source>
        <translation>kwgantt</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
    <message>
        <source>Working time</source>
        <translation>Arbeitszeit</translation>
    </message>
    <message>
        <source>Hours of a working day</source>
        <translation>Zeiten eines Arbeitstags</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>Ausnahmen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Working day</source>
        <translation>Arbeitstag</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Feiertag</translation>
    </message>
    <message>
        <source>The month as it comes out</source>
        <translation>Der Monat, wie er sich ergibt</translation>
    </message>
    <message>
        <source>Working days</source>
        <translation>Arbeitstage</translation>
    </message>
    <message>
        <source>Exceptions; the first one that names a date decides:</source>
        <translation>Ausnahmen; die erste, die ein Datum nennt, gilt:</translation>
    </message>
    <message>
        <source>off</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>'%1' are no hours</source>
        <translation>'%1' ist keine Zeitangabe</translation>
    </message>
    <message>
        <source>write them as 08:00-12:00, 13:00-17:00</source>
        <translation>schreiben Sie 08:00-12:00, 13:00-17:00</translation>
    </message>
    <message>
        <source>write dates as 2026-12-25, hours as 08:00-12:00</source>
        <translation>schreiben Sie Termine als 2026-12-25, Zeiten als 08:00-12:00</translation>
    </message>
    <message>
        <source>Change working time</source>
        <translation>Arbeitszeit ändern</translation>
    </message>
    <message>
        <source>Type what you want to do</source>
        <translation>Tippen Sie, was Sie tun möchten</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Commands that fit</source>
        <translation>Passende Befehle</translation>
    </message>
    <message>
        <source>No command has all of these words</source>
        <translation>Kein Befehl hat alle diese Wörter</translation>
    </message>
    <message>
        <source>&amp;Match case</source>
        <translation>&amp;Groß-/Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>&amp;Replace all</source>
        <translation>&amp;Alle ersetzen</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>&amp;Text in names, notes and resources:</source>
        <translation>&amp;Text in Namen, Notizen und Ressourcen:</translation>
    </message>
    <message>
        <source>Replace in &amp;names and notes by:</source>
        <translation>In &amp;Namen und Notizen ersetzen durch:</translation>
    </message>
    <message>
        <source>&amp;Find next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>&amp;Fit to</source>
        <translation>&amp;Einpassen auf</translation>
    </message>
    <message>
        <source>&amp;Scale to</source>
        <translation>&amp;Skalieren auf</translation>
    </message>
    <message>
        <source>Days off and lines behind the bars</source>
        <translation>Freie Tage und Linien hinter den Balken</translation>
    </message>
    <message>
        <source>Fold marks of summaries</source>
        <translation>Klappzeichen der Sammelvorgänge</translation>
    </message>
    <message>
        <source>Page set-up</source>
        <translation>Seite einrichten</translation>
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
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Sheets across</source>
        <translation>Blätter nebeneinander</translation>
    </message>
    <message>
        <source>Sheets down</source>
        <translation>Blätter untereinander</translation>
    </message>
    <message>
        <source>sheets across and</source>
        <translation>Blätter nebeneinander und</translation>
    </message>
    <message>
        <source>down</source>
        <translation>untereinander</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papier</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>&amp;Ausrichtung</translation>
    </message>
    <message>
        <source>Margins &amp;left and right</source>
        <translation>Ränder &amp;links und rechts</translation>
    </message>
    <message>
        <source>Margins &amp;above and below</source>
        <translation>Ränder &amp;oben und unten</translation>
    </message>
    <message>
        <source>One sheet, smallest text %1 pt%2</source>
        <translation>Ein Blatt, kleinster Text %1 pt%2</translation>
    </message>
    <message>
        <source>: hard to read</source>
        <translation>: schwer lesbar</translation>
    </message>
    <message>
        <source>%1 × %2 sheets, smallest text %3 pt%4</source>
        <translation>%1 × %2 Blätter, kleinster Text %3 pt%4</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Page &amp;set-up…</source>
        <translation>Seite &amp;einrichten…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Als PDF &amp;speichern…</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Overtime</source>
        <translation>Überstunden</translation>
    </message>
    <message>
        <source>Per use</source>
        <translation>Je Einsatz</translation>
    </message>
    <message>
        <source>Change resource</source>
        <translation>Ressource ändern</translation>
    </message>
    <message>
        <source>New resource</source>
        <translation>Neue Ressource</translation>
    </message>
    <message>
        <source>Add resource</source>
        <translation>Ressource hinzufügen</translation>
    </message>
    <message>
        <source>Remove resource</source>
        <translation>Ressource entfernen</translation>
    </message>
    <message>
        <source>One assignment went with it</source>
        <translation>Eine Zuweisung ging mit</translation>
    </message>
    <message>
        <source>%1 assignments went with it</source>
        <translation>%1 Zuweisungen gingen mit</translation>
    </message>
    <message>
        <source>Rename task</source>
        <translation>Vorgang umbenennen</translation>
    </message>
    <message>
        <source>Change start</source>
        <translation>Anfang ändern</translation>
    </message>
    <message>
        <source>Change finish</source>
        <translation>Ende ändern</translation>
    </message>
    <message>
        <source>Change duration</source>
        <translation>Dauer ändern</translation>
    </message>
    <message>
        <source>Change progress</source>
        <translation>Fortschritt ändern</translation>
    </message>
    <message>
        <source>Change priority</source>
        <translation>Priorität ändern</translation>
    </message>
    <message>
        <source>Assign resources</source>
        <translation>Ressourcen zuweisen</translation>
    </message>
    <message>
        <source>Change hyperlinks</source>
        <translation>Hyperlinks ändern</translation>
    </message>
    <message>
        <source>Change notes</source>
        <translation>Notizen ändern</translation>
    </message>
    <message>
        <source>Change baseline</source>
        <translation>Basisplan ändern</translation>
    </message>
    <message>
        <source>Change predecessors</source>
        <translation>Vorgänger ändern</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Vorgang hinzufügen</translation>
    </message>
    <message>
        <source>%1 is no plan: %2</source>
        <translation>%1 ist kein Plan: %2</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Next task</source>
        <translation>Nächster Vorgang</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>ein anderes Programm</translation>
    </message>
    <message>
        <source>%1 is no plain file</source>
        <translation>%1 ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the folder must exist and have room</source>
        <translation>den Ordner muss es geben, und er muss Platz haben</translation>
    </message>
    <message>
        <source>Late: should be done by now</source>
        <translation>Verspätet: sollte schon fertig sein</translation>
    </message>
    <message>
        <source>Behind the baseline</source>
        <translation>Hinter dem Basisplan</translation>
    </message>
    <message>
        <source>Milestones</source>
        <translation>Meilensteine</translation>
    </message>
    <message>
        <source>Nobody assigned</source>
        <translation>Niemand zugewiesen</translation>
    </message>
    <message>
        <source>Resource: %1</source>
        <translation>Ressource: %1</translation>
    </message>
    <message>
        <source>ends %1, planned %2</source>
        <translation>endet %1, geplant %2</translation>
    </message>
    <message>
        <source>%1% done, should have ended %2</source>
        <translation>%1 % erledigt, sollte %2 zu Ende sein</translation>
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
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
        <source>Plans projects in working time.</source>
        <translation>Plant Projekte in Arbeitszeit.</translation>
    </message>
    <message>
        <source>The time zone of the plan.</source>
        <translation>Die Zeitzone des Plans.</translation>
    </message>
    <message>
        <source>The language of the program.</source>
        <translation>Die Sprache des Programms.</translation>
    </message>
    <message>
        <source>Begins with an empty plan.</source>
        <translation>Beginnt mit einem leeren Plan.</translation>
    </message>
    <message>
        <source>Prints what each key does.</source>
        <translation>Nennt, was jede Taste tut.</translation>
    </message>
    <message>
        <source>Prints this.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Prints the version.</source>
        <translation>Nennt die Version.</translation>
    </message>
    <message>
        <source>The plan to open.</source>
        <translation>Der Plan, der geöffnet wird.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>kwgantt-desktop --help lists all options</source>
        <translation>kwgantt-desktop --help nennt alle Optionen</translation>
    </message>
    <message>
        <source>there is no screen here</source>
        <translation>hier gibt es keinen Bildschirm</translation>
    </message>
    <message>
        <source>kwgantt works without one: kwgantt help</source>
        <translation>kwgantt kommt ohne aus: kwgantt help</translation>
    </message>
    <message>
        <source>State of the plan</source>
        <translation>Stand des Plans</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>%1[*] – kwgantt</source>
        <translation>%1[*] – kwgantt</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>%1 &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>%1 &amp;wiederholen</translation>
    </message>
    <message>
        <source>1 task</source>
        <translation>1 Vorgang</translation>
    </message>
    <message>
        <source>ends %1</source>
        <translation>endet %1</translation>
    </message>
    <message>
        <source>%1 of them shown</source>
        <translation>%1 davon gezeigt</translation>
    </message>
    <message>
        <source>%1 chosen</source>
        <translation>%1 gewählt</translation>
    </message>
    <message>
        <source>also open in %1</source>
        <translation>auch offen in %1</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>there is nothing to paste</source>
        <translation>es gibt nichts einzufügen</translation>
    </message>
    <message>
        <source>copy tasks or lines of text first</source>
        <translation>kopieren Sie erst Vorgänge oder Textzeilen</translation>
    </message>
    <message>
        <source>Plans (*.kwpx *.csv *.xlsx *.xls *.xml);;All files (*)</source>
        <translation>Pläne (*.kwpx *.csv *.xlsx *.xls *.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Plan.kwpx</source>
        <translation>Plan.kwpx</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Packages (*.kwpx)</source>
        <translation>Pakete (*.kwpx)</translation>
    </message>
    <message>
        <source>%1 is no name of a package (.kwpx): Export writes other formats</source>
        <translation>%1 ist kein Name eines Pakets (.kwpx): andere Formate schreibt Exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;PNG (*.png);;SVG (*.svg);;Page for a browser (*.html);;Workbook (*.xlsx *.xls);;Project XML (*.xml);;CSV, with files beside it (*.csv)</source>
        <translation>PDF (*.pdf);;PNG (*.png);;SVG (*.svg);;Seite für den Browser (*.html);;Arbeitsmappe (*.xlsx *.xls);;Projekt-XML (*.xml);;CSV, mit Dateien daneben (*.csv)</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 ist geschrieben.</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Zeichnen…</translation>
    </message>
    <message>
        <source>Files beside %1 are replaced as well.</source>
        <translation>Dateien neben %1 werden ebenfalls ersetzt.</translation>
    </message>
    <message>
        <source>a file of that name has no format: use pdf, png, svg, html, xlsx, xls, xml or csv</source>
        <translation>eine Datei dieses Namens hat kein Format: nehmen Sie pdf, png, svg, html, xlsx, xls, xml oder csv</translation>
    </message>
    <message>
        <source>Beside it: %1.</source>
        <translation>Daneben: %1.</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>The sheet went to %1.</source>
        <translation>Das Blatt ging an %1.</translation>
    </message>
    <message>
        <source>The sheets went to %1.</source>
        <translation>Die Blätter gingen an %1.</translation>
    </message>
    <message>
        <source>cancelled: not everything is printed</source>
        <translation>abgebrochen: nicht alles ist gedruckt</translation>
    </message>
    <message>
        <source>%1 did not print</source>
        <translation>%1 hat nicht gedruckt</translation>
    </message>
    <message>
        <source>The working time has changed: no task moves</source>
        <translation>Die Arbeitszeit ist geändert: kein Vorgang verschoben</translation>
    </message>
    <message>
        <source>The working time has changed: one task moved</source>
        <translation>Die Arbeitszeit ist geändert: ein Vorgang verschoben</translation>
    </message>
    <message>
        <source>The working time has changed: %1 tasks moved</source>
        <translation>Die Arbeitszeit ist geändert: %1 Vorgänge verschoben</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>About kwgantt</source>
        <translation>Über kwgantt</translation>
    </message>
    <message>
        <source>kwgantt %1: plans projects in working time.</source>
        <translation>kwgantt %1: plant Projekte in Arbeitszeit.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet…</translation>
    </message>
    <message>
        <source>cancelled: the plan that was open stays</source>
        <translation>abgebrochen: der offene Plan bleibt</translation>
    </message>
    <message>
        <source>%1 tasks had no start and were scheduled.</source>
        <translation>%1 Vorgänge hatten keinen Anfang und wurden berechnet.</translation>
    </message>
    <message>
        <source>One task starts before a task that it waits for ends.</source>
        <translation>Ein Vorgang beginnt vor dem Ende eines Vorgangs, auf den er wartet.</translation>
    </message>
    <message>
        <source>%1 tasks start before a task that they wait for ends.</source>
        <translation>%1 Vorgänge beginnen vor dem Ende eines Vorgangs, auf den sie warten.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Berechnen</translation>
    </message>
    <message>
        <source>The plan is also open in %1: whoever saves last wins.</source>
        <translation>Der Plan ist auch in %1 offen: wer zuletzt speichert, gewinnt.</translation>
    </message>
    <message>
        <source>Three tasks to try things on: type over a name, drag a bar, draw from one bar to another. Ctrl+Shift+P finds every command.</source>
        <translation>Drei Vorgänge zum Ausprobieren: einen Namen überschreiben, einen Balken ziehen, von einem Balken zum anderen ziehen. Strg+Umschalt+P findet jeden Befehl.</translation>
    </message>
    <message>
        <source>%1 was open when the program ended without closing it.</source>
        <translation>%1 war offen, als das Programm endete, ohne es zu schließen.</translation>
    </message>
    <message>
        <source>There is a copy of %1, with what had not been saved. Open it? Discard takes it away, Cancel keeps it for the next start.</source>
        <translation>Es gibt eine Kopie von %1 mit dem, was nicht gespeichert war. Öffnen? Verwerfen löscht sie, Abbrechen behält sie bis zum nächsten Start.</translation>
    </message>
    <message>
        <source>The file itself was written since it was opened.</source>
        <translation>Die Datei selbst wurde geschrieben, seit sie geöffnet wurde.</translation>
    </message>
    <message>
        <source>cancelled: the copy is kept</source>
        <translation>abgebrochen: die Kopie wird behalten</translation>
    </message>
    <message>
        <source>This is the copy of a plan that was never saved.</source>
        <translation>Dies ist die Kopie eines Plans, der nie gespeichert wurde.</translation>
    </message>
    <message>
        <source>This is the copy. Its file was written by another program since.</source>
        <translation>Dies ist die Kopie. Die Datei hat inzwischen ein anderes Programm geschrieben.</translation>
    </message>
    <message>
        <source>This is the copy. Saving it replaces the plan's own file.</source>
        <translation>Das ist die Kopie. Speichern ersetzt die Datei des Plans.</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Änderungen an %1 speichern?</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened.</source>
        <translation>%1 wurde seit dem Öffnen von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Saving replaces what was written there.</source>
        <translation>Speichern ersetzt, was dort geschrieben wurde.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>Neu öffnen</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Meine behalten</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>It waits for no other task.</source>
        <translation>Er wartet auf keinen anderen Vorgang.</translation>
    </message>
    <message>
        <source>no task has %1 in it</source>
        <translation>kein Vorgang enthält %1</translation>
    </message>
    <message>
        <source>Go to row</source>
        <translation>Zu Zeile gehen</translation>
    </message>
    <message>
        <source>Number of the task:</source>
        <translation>Nummer des Vorgangs:</translation>
    </message>
    <message>
        <source>No texts beside bars</source>
        <translation>Keine Texte neben den Balken</translation>
    </message>
    <message>
        <source>Names beside bars</source>
        <translation>Namen neben den Balken</translation>
    </message>
    <message>
        <source>Resources beside bars</source>
        <translation>Ressourcen neben den Balken</translation>
    </message>
    <message>
        <source>Dates beside bars</source>
        <translation>Termine neben den Balken</translation>
    </message>
    <message>
        <source>the task has no hyperlink</source>
        <translation>der Vorgang hat keinen Hyperlink</translation>
    </message>
    <message>
        <source>the column of hyperlinks takes addresses</source>
        <translation>die Spalte der Hyperlinks nimmt Adressen</translation>
    </message>
    <message>
        <source>Open link</source>
        <translation>Hyperlink öffnen</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>%1 is not opened</source>
        <translation>%1 wird nicht geöffnet</translation>
    </message>
    <message>
        <source>only pages (http, https, ftp) and mail addresses are</source>
        <translation>nur Seiten (http, https, ftp) und E-Mail-Adressen</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>%1 ist geöffnet.</translation>
    </message>
    <message>
        <source>no program here opens %1</source>
        <translation>kein Programm hier öffnet %1</translation>
    </message>
    <message>
        <source>Insert task</source>
        <translation>Vorgang einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>%1 tasks are deleted, %2 of them were not shown</source>
        <translation>%1 Vorgänge sind gelöscht, %2 davon waren nicht zu sehen</translation>
    </message>
    <message>
        <source>The tasks below it stay, one level up; Cut takes them along</source>
        <translation>Die Vorgänge darunter bleiben, eine Ebene höher; Ausschneiden nimmt sie mit</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Indent</source>
        <translation>Tiefer stufen</translation>
    </message>
    <message>
        <source>Outdent</source>
        <translation>Höher stufen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Link tasks</source>
        <translation>Vorgänge verknüpfen</translation>
    </message>
    <message>
        <source>Unlink tasks</source>
        <translation>Verknüpfungen lösen</translation>
    </message>
    <message>
        <source>Make milestone</source>
        <translation>Zum Meilenstein machen</translation>
    </message>
    <message>
        <source>Make task</source>
        <translation>Zum Vorgang machen</translation>
    </message>
    <message>
        <source>no name and no note has %1 in it</source>
        <translation>kein Name und keine Notiz enthält %1</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replaced in one task.</source>
        <translation>In einem Vorgang ersetzt.</translation>
    </message>
    <message>
        <source>Replaced in %1 tasks.</source>
        <translation>In %1 Vorgängen ersetzt.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Nothing moves: no task starts before those it waits for have ended.</source>
        <translation>Nichts verschiebt sich: kein Vorgang beginnt, bevor die enden, auf die er wartet.</translation>
    </message>
    <message>
        <source>Close gaps</source>
        <translation>Lücken schließen</translation>
    </message>
    <message>
        <source>Nothing moves: every linked task starts as soon as it can, or has begun.</source>
        <translation>Nichts verschiebt sich: jeder verknüpfte Vorgang beginnt so früh wie möglich oder hat begonnen.</translation>
    </message>
    <message>
        <source>Set baseline</source>
        <translation>Basisplan setzen</translation>
    </message>
    <message>
        <source>The dates of all tasks are the baseline now.</source>
        <translation>Die Termine aller Vorgänge sind jetzt der Basisplan.</translation>
    </message>
    <message>
        <source>The dates of %1 tasks are their baseline now.</source>
        <translation>Die Termine von %1 Vorgängen sind jetzt ihr Basisplan.</translation>
    </message>
    <message>
        <source>%1 moves to %2</source>
        <translation>%1 rückt auf %2</translation>
    </message>
    <message>
        <source>, pushed by %1</source>
        <translation>, geschoben von %1</translation>
    </message>
    <message>
        <source> with its summary</source>
        <translation> mit dem Sammelvorgang</translation>
    </message>
    <message>
        <source>%1 more move</source>
        <translation>%1 weitere verschoben</translation>
    </message>
    <message>
        <source>The project ends %1 (before: %2)</source>
        <translation>Das Projekt endet %1 (vorher: %2)</translation>
    </message>
    <message>
        <source>%1 loses its resource %2</source>
        <translation>%1 verliert die Ressource %2</translation>
    </message>
    <message>
        <source>%1 does not wait for %2 any more</source>
        <translation>%1 wartet nicht mehr auf %2</translation>
    </message>
    <message>
        <source>Start by</source>
        <translation>Anfang um</translation>
    </message>
    <message>
        <source>Finish by</source>
        <translation>Ende um</translation>
    </message>
    <message>
        <source>Cost by</source>
        <translation>Kosten um</translation>
    </message>
    <message>
        <source>Compared with the baseline</source>
        <translation>Verglichen mit dem Basisplan</translation>
    </message>
    <message>
        <source>There is no baseline: Set baseline remembers one.</source>
        <translation>Es gibt keinen Basisplan: „Basisplan setzen“ merkt sich einen.</translation>
    </message>
    <message>
        <source>All tasks are where the baseline has them.</source>
        <translation>Alle Vorgänge liegen, wo der Basisplan sie hat.</translation>
    </message>
    <message>
        <source>One task is not where the baseline has it.</source>
        <translation>Ein Vorgang liegt nicht, wo der Basisplan ihn hat.</translation>
    </message>
    <message>
        <source>%1 tasks are not where the baseline has them.</source>
        <translation>%1 Vorgänge liegen nicht, wo der Basisplan sie hat.</translation>
    </message>
    <message>
        <source>Dates of the chart</source>
        <translation>Termine des Diagramms</translation>
    </message>
    <message>
        <source>Drag sideways, or turn the wheel, to zoom</source>
        <translation>Zum Zoomen seitwärts ziehen oder das Mausrad drehen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Hide the other tasks</source>
        <translation>Andere Vorgänge ausblenden</translation>
    </message>
    <message>
        <source>Which tasks</source>
        <translation>Welche Vorgänge</translation>
    </message>
    <message>
        <source>Tasks found</source>
        <translation>Gefundene Vorgänge</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… und %1 weitere</translation>
    </message>
    <message>
        <source>Findings (%1)</source>
        <translation>Befunde (%1)</translation>
    </message>
    <message>
        <source>Close the note</source>
        <translation>Meldung schließen</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Move task</source>
        <translation>Vorgang verschieben</translation>
    </message>
    <message>
        <source>Moved “%1” to %2</source>
        <translation>„%1“ nach %2 verschoben</translation>
    </message>
    <message>
        <source>“%1” lasts %2 now, %3</source>
        <translation>„%1“ dauert jetzt %2, %3</translation>
    </message>
    <message>
        <source>“%1” is %2% done</source>
        <translation>„%1“ ist zu %2% fertig</translation>
    </message>
    <message>
        <source>Draw to the task that is to wait for “%1”</source>
        <translation>Ziehen Sie zu dem Vorgang, der auf „%1“ warten soll</translation>
    </message>
    <message>
        <source>“%1” waits for “%2” now</source>
        <translation>„%1“ wartet jetzt auf „%2“</translation>
    </message>
    <message>
        <source>pushes %1 tasks: %2 and more</source>
        <translation>schiebt %1 Vorgänge: %2 und weitere</translation>
    </message>
    <message>
        <source>pushes %1</source>
        <translation>schiebt %1</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>critical: a delay moves the finish of the project</source>
        <translation>kritisch: eine Verzögerung verschiebt das Projektende</translation>
    </message>
    <message>
        <source>slack: %1</source>
        <translation>Puffer: %1</translation>
    </message>
    <message>
        <source>New task</source>
        <translation>Neuer Vorgang</translation>
    </message>
    <message>
        <source>Table of tasks</source>
        <translation>Vorgangstabelle</translation>
    </message>
    <message>
        <source>the numbers of the rows are counted, not typed</source>
        <translation>die Nummern der Zeilen werden gezählt, nicht getippt</translation>
    </message>
    <message>
        <source>names go into the column beside them; Alt+Up and Alt+Down move a task</source>
        <translation>Namen kommen in die Spalte daneben; Alt+Auf und Alt+Ab verschieben einen Vorgang</translation>
    </message>
    <message>
        <source>%1 is worked out from the other columns</source>
        <translation>%1 ergibt sich aus den anderen Spalten</translation>
    </message>
    <message>
        <source>Change row height</source>
        <translation>Zeilenhöhe ändern</translation>
    </message>
    <message>
        <source>Change column width</source>
        <translation>Spaltenbreite ändern</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>Spalte verschieben</translation>
    </message>
    <message>
        <source>Hide column</source>
        <translation>Spalte verbergen</translation>
    </message>
    <message>
        <source>Show column</source>
        <translation>Spalte zeigen</translation>
    </message>
    <message>
        <source>Type here for a new task</source>
        <translation>Hier einen neuen Vorgang eintippen</translation>
    </message>
    <message>
        <source>Why is it when it is?</source>
        <translation>Warum dieser Termin?</translation>
    </message>
    <message>
        <source>&lt;p&gt;Choose a task: here it says what it waits for, what waits for it, and whether a delay moves the end of the project.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Wählen Sie einen Vorgang: hier steht, worauf er wartet, was auf ihn wartet und ob eine Verzögerung das Projektende verschiebt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Titles of the columns</source>
        <translation>Titel der Spalten</translation>
    </message>
    <message>
        <source>Drag a border to change a width, a title to move its column; right-click for all columns</source>
        <translation>Ziehen Sie eine Grenze für die Breite, einen Titel für den Platz der Spalte; ein Rechtsklick zeigt alle Spalten</translation>
    </message>
</context>
</TS>
