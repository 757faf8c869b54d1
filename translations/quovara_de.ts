<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Originalgröße: %1 MB</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Gepackte Größe: %1 MB</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Modus: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>das Ziel %1 ist kein Ordner</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>der Ordner %1 kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>ein Laufwerk kann nicht mit %1 verknüpft werden: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>im Präfix der Engine ist kein Laufwerksbuchstabe frei</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>dieses System hat kein Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>ein Landlock-Regelsatz kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>der Auftrag kann nicht auf %1 beschränkt werden: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>Die Konvertierung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>Die Liste des Archivs enthält keine Dateien.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>Das neue Archiv wurde geschrieben und geprüft, aber %1; es wurde nichts zurückgelassen.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  und %n weiterer</numerusform>
            <numerusform>  und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>Die Engine hat diese Einträge der Liste nicht entpackt:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Diese Einträge wurden mit einer anderen Größe oder CRC-32 entpackt, als die Liste angibt:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>Die Engine hat Dateien entpackt, die nicht in der Liste stehen:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (Größe %2, CRC-32 %3; laut Liste: Größe %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>%1 kann nicht gelesen werden (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 wurde nach der Prüfung verändert</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>%1 kann nicht erstellt werden (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>Die libarchive dieses Systems kann %1 nicht schreiben (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>%1 kann nicht geschrieben werden (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>Das neue Archiv kann nicht zurückgelesen werden (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>Das neue Archiv enthält %1 Einträge, geschrieben wurden aber %2.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>Das neue Archiv stimmt beim Zurücklesen nicht mit dem Geschriebenen überein: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>Es wurde nichts konvertiert: Es wurde kein Passwort angegeben.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>Das neue Archiv wird nicht durch ein Passwort geschützt.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>Es wurde nichts konvertiert: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>Es wurde nichts konvertiert: Diese Einträge haben Namen, die jeden Ordner verlassen würden, in den sie entpackt werden; daher kann das Archiv nicht vollständig konvertiert werden:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>Es wurde nichts konvertiert. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Diese Archive wurden nicht konvertiert:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Dateitypen</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>Listendatei</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ausgeschlossene Dateien</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>Zu entpackende Datei</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>Nach Dateiliste (vollständiger Pfad)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Ausschließen: (z. B. *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Quovara benötigt eine grafische Anzeige; DISPLAY oder WAYLAND_DISPLAY ist nicht gesetzt</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>Die Engine hat einen Fehler gemeldet:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>die Berechtigungen von %1 können nicht gesetzt werden</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Aufruf: quovara %1 FILE...
Kopiert die Engine-Dateien in den Programmordner von Quovara. Erwartete Namen: %2 (Groß-/Kleinschreibung beliebig).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>Keine Engine-Datei: %1
Erwartete Namen: %2 (Groß-/Kleinschreibung beliebig).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>Datei nicht gefunden: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>%1 konnte nicht nach %2 kopiert werden: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Installiert: %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>Die Engine läuft: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>Die Engine läuft über %1: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>Sie läuft im wine-Präfix %1 unter dem Gebietsschema %2: Codepage %3 für ihre Texte und die gespeicherten Namen, %4 für die gelesenen Namen.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Hinweis: Quovara verwendet jetzt die Engine in %1, die eine eigene uharc.exe enthält.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>In %1 gibt es keine uharc.exe, Quovara benötigt sie aber. Installieren Sie sie mit: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>wine wurde nicht gefunden (setzen Sie QUOVARA_WINE auf das Startprogramm oder legen Sie wine in den PATH): Quovara führt damit die Engine aus, ein Windows-Programm.
Unter Debian installieren Sie es mit:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 kann die Engine %2 nicht ausführen: Der 32-Bit-Teil fehlt.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>Installation unter Debian:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>Die Engine %1 hat ihr Banner nicht ausgegeben.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>Die Engine %1 hat über %2 ihr Banner nicht ausgegeben.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>Das Gebietsschema %1 ist auf diesem System nicht installiert, daher kann die Engine keine Namen in dessen Schriftzeichen lesen oder schreiben. Fügen Sie es hinzu mit
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(oder „sudo dpkg-reconfigure locales“) und starten Sie Quovara erneut.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>Codepage %1 (Gebietsschema %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Engine: keine in %1 (quovara --install-engine legt sie dort ab)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Engine: UHARC, Version unbekannt (Windows-Programm, über wine ausgeführt) in %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Engine: Demonstrations-Ersatz, Version unbekannt (nicht UHARC) in %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Engine: UHARC %1 (Windows-Programm, über wine ausgeführt) in %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Engine: Demonstrations-Ersatz %1 (nicht UHARC) in %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Gespeicherte Engine-Versionen: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>in den Ordner %1 kann nicht geschrieben werden (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>es konnte nicht nach %1 verschoben werden (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>für %1 wurde kein freier Name gefunden</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei existiert nicht.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>Dies ist kein UHARC-Archiv (.uha).</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>Es wurde nichts entpackt: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>Es wurde nichts entpackt: Es wurde kein Passwort angegeben.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>Die Dateien wurden entpackt, aber %1; es wurde nichts zurückgelassen.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Diese Archive wurden nicht entpackt:

%1</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Usage: quovara [ARCHIVE.uha]
  or:  quovara &quot;WORD  PATH&quot;
  or:  quovara &quot;WORD &quot; PATH
  or:  quovara OPTION...

Quovara browses, extracts, tests and creates UHARC archives (.uha); every
operation is a run of the UHARC engine uharc.exe, kept in the program folder.

Without arguments the main window opens on the home folder. With the path of
an archive (a name ending in .uha), the archive is opened in it.

A request word opens one window only, for PATH; Quovara ends when it closes:
</source>
        <translation>Aufruf: quovara [ARCHIVE.uha]
  oder: quovara &quot;WORD  PATH&quot;
  oder: quovara &quot;WORD &quot; PATH
  oder: quovara OPTION...

Quovara zeigt UHARC-Archive (.uha) an, entpackt, testet und erstellt sie; jeder
Vorgang ist ein Lauf der UHARC-Engine uharc.exe, die im Programmordner liegt.

Ohne Argumente öffnet sich das Hauptfenster im persönlichen Ordner. Mit dem
Pfad eines Archivs (ein Name, der auf .uha endet) wird das Archiv darin
geöffnet.

Ein Anfragewort öffnet nur ein Fenster, für PATH; Quovara endet, wenn es
geschlossen wird:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>das Fenster „Entpacken“ für das Archiv PATH</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>das Fenster „Hinzufügen“ für die Datei oder den Ordner PATH</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>das Fenster „SFX erstellen“ für das Archiv PATH</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Die Argumente werden mit einzelnen Leerzeichen verbunden, und auf das Wort
folgen vor dem Pfad zwei Trennzeichen: zwei Leerzeichen innerhalb eines
Arguments (&quot;extract  /data/a.uha&quot;) oder ein Leerzeichen am Ende des Worts und
der Pfad als nächstes Argument (&quot;extract &quot; /data/a.uha).

Optionen:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>Ende der Optionen: Jedes weitere Argument ist ein Anfragewort oder ein Pfad, auch wenn es mit &quot;-&quot; beginnt (ein Pfad kann auch als ./-name.uha geschrieben werden)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
Die eigenen Optionen von Qt, etwa -platform NAME, werden ebenfalls angenommen.
Ohne eine solche Option oder QT_QPA_PLATFORM benötigt ein Fenster DISPLAY oder
WAYLAND_DISPLAY.

Exit-Status: 0 bei Erfolg; 1 ohne grafische Anzeige; 2 bei einer unbekannten
oder falsch verwendeten Option. --install-engine endet mit 0 bis 3, wie in
quovara(1) beschrieben.
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>die Engine %1 existiert nicht</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>der Auftrag nennt %1, das nicht die Engine des Programmordners %2 ist; er wurde nicht gestartet</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>die Listendatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>die Listendatei %1 nennt eine Datei, die die Engine nicht verarbeiten kann. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>die Kopie %1 der Listendatei kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>das Auftragsskript %1 wurde nicht von diesem Programm geschrieben</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>das Auftragsskript %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>das Auftragsskript %1 wurde nach dem Schreiben verändert; es wurde nicht ausgeführt</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>das Auftragsskript %1 nennt keinen Befehl</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>der Auftrag will seine Ausgabe nach %1 schreiben, das nicht die Konsolen-Ausgabedatei des Arbeitsordners ist</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 ist ein Windows-Programm, und es wurde kein Startprogramm (wine) gefunden</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>der Ordner des Archivs kann der Engine nicht übergeben werden: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>das Archiv kann der Engine nicht übergeben werden: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>das Entpacken kann nicht auf sein Ziel beschränkt werden: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>die Ausgabedatei %1 kann nicht erstellt werden: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 konnte nicht gestartet werden: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>Archivname</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>Wörterbuchgröße</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>Ausschluss</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>item</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>Listendatei</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>Programmordner</translation>
    </message>
    <message>
        <source>source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>Temporärer Ordner</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>Das Passwort enthält Zeichen außerhalb von ASCII. %1 Es wurde nichts ausgeführt.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>Die Angabe „%1“
%2
enthält Zeichen außerhalb von ASCII. %3 Es wurde nichts ausgeführt.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(die Codepages %1 und %2 enthalten sie nicht)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(die Codepage %1 enthält sie nicht)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>starten Sie Quovara mit &quot;--archive-locale LOCALE&quot; und nennen Sie ein Gebietsschema, dessen Codepages sie enthalten.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>starten Sie Quovara mit &quot;--archive-locale %1&quot;, einem Gebietsschema, dessen Codepages sie enthalten.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>Das Passwort enthält Zeichen, die die Engine unter dem Gebietsschema %1 %2 nicht verarbeiten kann. Es wurde nichts ausgeführt. Um fortzufahren, wählen Sie ein Passwort mit anderen Zeichen, oder %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>Die Angabe „%1“
%2
enthält Zeichen, die die Engine unter dem Gebietsschema %3%4 %5 nicht verarbeiten kann. Es wurde nichts ausgeführt. Um fortzufahren, benennen Sie es mit anderen Zeichen um, oder %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>Der Ordner
%1
enthält einen Zeilenumbruch, den ein Auftragsskript nicht aufnehmen kann. Es wurde nichts ausgeführt.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>Das Passwort enthält einen Zeilenumbruch, den eine Auftragszeile nicht aufnehmen kann. Es wurde nichts ausgeführt.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>Die Angabe „%1“ enthält einen Zeilenumbruch, den eine Auftragszeile nicht aufnehmen kann:
%2
Es wurde nichts ausgeführt.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>an der Stelle der Datei steht eine symbolische Verknüpfung</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>die Datei an der Stelle der Datei stammt nicht von Quovara</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>Das Auftragsskript %1 kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>%1 kann nicht in %2 verknüpft werden: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>in %1 ist kein einfacher Name für eine Verknüpfung zu %2 frei</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Die Engine wird für die erste Verwendung vorbereitet…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>Die Engine konnte nicht für die erste Verwendung vorbereitet werden: %1.
(wine-Präfix %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>der Ordner %1 kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>%1 konnte nicht gestartet werden</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>es dauerte länger als %n Sekunde</numerusform>
            <numerusform>es dauerte länger als %n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine wurde mit Code %1 beendet, ohne es zu erstellen</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara kann das Archiv
%1
nicht anzeigen: %2.
Nichts davon wird angezeigt.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>die Ordneransicht %1 kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>die Liste der Engine ist unvollständig</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>das Lesen wurde abgebrochen</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Passwort eingeben</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>die vorherige Ordneransicht kann nicht ersetzt werden</translation>
    </message>
</context>
<context>
    <name>MessagePrompter</name>
    <message>
        <source>Quovara</source>
        <translation>Quovara</translation>
    </message>
</context>
<context>
    <name>Methods</name>
    <message>
        <source>Store</source>
        <translation>Nur speichern</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ Schnell</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ Normal</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ Maximal</translation>
    </message>
    <message>
        <source>PPM</source>
        <translation>PPM</translation>
    </message>
    <message>
        <source>LZP</source>
        <translation>LZP</translation>
    </message>
</context>
<context>
    <name>MirrorAliases</name>
    <message>
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): 1 name is shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>Einige Namen des Archivs
%1
können auf diesem System nicht so bestehen, wie sie sind (ein Name länger als 255 Byte oder eine Datei und ein Ordner mit demselben Namen): 1 Name wird gekürzt oder nummeriert angezeigt. Entpackt wird unter den gespeicherten Namen.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Einige Namen des Archivs
%1
können auf diesem System nicht so bestehen, wie sie sind (ein Name länger als 255 Byte oder eine Datei und ein Ordner mit demselben Namen): %n Name wird gekürzt oder nummeriert angezeigt. Entpackt wird unter den gespeicherten Namen.</numerusform>
            <numerusform>Einige Namen des Archivs
%1
können auf diesem System nicht so bestehen, wie sie sind (ein Name länger als 255 Byte oder eine Datei und ein Ordner mit demselben Namen): %n Namen werden gekürzt oder nummeriert angezeigt. Entpackt wird unter den gespeicherten Namen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>die Ordneransicht kann nicht erstellt werden: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; bezeichnet kein Gebietsschema (zum Beispiel ru_RU.UTF-8 oder ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>Weitere Informationen erhalten Sie mit &apos;quovara --help&apos;.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>Option &apos;--extract-here&apos; benötigt ein Archiv</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>diese Hilfe ausgeben und beenden</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>die Version von Quovara und der im Programmordner gefundenen Engine ausgeben und beenden</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>die Engine-Dateien (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) in den Programmordner kopieren, prüfen, ob die Engine läuft, und beenden; es öffnet sich kein Fenster</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>jedes Archiv neben sich selbst entpacken, nie in oder über etwas Vorhandenes: ein Archiv mit nur einem obersten Ordner oder nur einer Datei so, wie es ist, jedes andere in einen neuen, nach ihm benannten Ordner (&quot;name (2)&quot;, wenn dieser Name vergeben ist); ein Fortschrittsfenster zeigt jedes an, und der Status ist nur dann 0, wenn jedes Archiv entpackt wurde</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>jedes Archiv neben sich selbst in FORMAT (zip, 7z, tar.xz oder tar.zst) konvertieren, als name.FORMAT (&quot;name (2).FORMAT&quot;, wenn dieser Name vergeben ist, nie über etwas Vorhandenes): Jede Datei wird in einen privaten Ordner entpackt, mit der Liste des Archivs verglichen (Größe und CRC-32) und geschrieben, und das neue Archiv wird zurückgelesen; das neue Archiv hat kein Passwort; ein Fortschrittsfenster zeigt jedes an, und der Status ist nur dann 0, wenn jedes Archiv konvertiert und geprüft wurde</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>die Engine unter LOCALE ausführen (zum Beispiel ru_RU.UTF-8 oder ru), um die Namen von Archiven, die auf einem System dieser Sprache erstellt wurden, anzuzeigen, zu suchen und zu entpacken; dasselbe wie die Variable QUOVARA_ARCHIVE_LOCALE</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>unbekannte Option &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>Option &apos;%1&apos; erlaubt kein Argument</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>Option &apos;%1&apos; erfordert ein Argument</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>Option &apos;--convert&apos; benötigt ein Format (%1) und ein Archiv</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>unbekanntes Format &apos;%1&apos; für &apos;--convert&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>Option &apos;--convert&apos; benötigt nach dem Format ein Archiv</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>er ist nicht erreichbar (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>er kann nicht erstellt werden (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>er ist eine symbolische Verknüpfung</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>er ist kein Ordner</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>er gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>andere Benutzer haben Zugriff darauf (Modus %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>er kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara kann seinen Arbeitsordner
%1
nicht verwenden: %2.
Dort wird nichts geschrieben, und kein Auftrag wird ausgeführt, bis dies behoben ist.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>Der Prozess konnte nicht beendet werden</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>Fortschritt: %1 MB (gepackt %2 MB) von %3 MB Verhältnis: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Gesamt: %1       Verbleibend: %2       Vergangen: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Abgeschlossen: %1 % Verbleibend: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>%1 kann nicht gelesen werden (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>%1 kann nicht kopiert werden (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>%1 kann nicht geschrieben werden (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>Das SFX kann nicht erstellt werden: Die Stub-Datei %1 fehlt.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>Das SFX kann nicht erstellt werden: Die Engine-Datei %1 fehlt.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>Das SFX kann nicht erstellt werden: Das Archiv %1 fehlt.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>Das SFX kann nicht erstellt werden: %1 kann nicht geschrieben werden (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>Das SFX kann nicht erstellt werden: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>Das SFX kann nicht erstellt werden: %1 kann nicht ersetzt werden.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara erstellt das SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Bitte warten ...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara ist bereit</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Wählen Sie eine Aktion</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX erstellt</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>Das Entpacken wurde abgebrochen: Es wurde keine Datei entpackt.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>Das Entpacken wurde abgebrochen: 1 Datei wurde vollständig entpackt.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>Das Entpacken wurde abgebrochen: %n Datei wurde vollständig entpackt.</numerusform>
            <numerusform>Das Entpacken wurde abgebrochen: %n Dateien wurden vollständig entpackt.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

„%1“ wurde gerade geschrieben und war unvollständig: Die Datei wurde entfernt.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

„%1“ wurde gerade geschrieben und ist unvollständig, konnte aber nicht entfernt werden (%2): Bitte löschen Sie die Datei.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Sie hatte eine Ihrer Dateien mit demselben Namen ersetzt; die Engine hatte diese Datei bereits überschrieben, daher ist ihr Inhalt verloren.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Falls eine Ihrer Dateien diesen Namen hatte, hat die Engine sie bereits überschrieben, daher ist ihr Inhalt verloren.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

Die gerade geschriebene Datei („%1“) wurde auf dem Datenträger nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… und %n weiterer</numerusform>
            <numerusform>
… und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>Das Archiv
%1
enthält 1 Eintrag, dessen Name aus jedem Ordner herausführen würde, in den er entpackt wird. Er wird angezeigt, aber nie entpackt:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>Das Archiv
%1
enthält %n Eintrag, dessen Name aus jedem Ordner herausführen würde, in den er entpackt wird. Er wird angezeigt, aber nie entpackt:

%2</numerusform>
            <numerusform>Das Archiv
%1
enthält %n Einträge, deren Namen aus jedem Ordner herausführen würden, in den sie entpackt werden. Sie werden angezeigt, aber nie entpackt:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 Eintrag wurde nicht entpackt: Sein Name würde ihn außerhalb des Zielordners ablegen.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n Eintrag wurde nicht entpackt: Sein Name würde ihn außerhalb des Zielordners ablegen.

%1</numerusform>
            <numerusform>%n Einträge wurden nicht entpackt: Ihre Namen würden sie außerhalb des Zielordners ablegen.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>Es wurde nichts entpackt: Jeder Eintrag des Archivs hat einen Namen, der ihn außerhalb des Zielordners ablegen würde.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>Es wurde nichts entpackt: Das Archiv enthält %n Eintrag, dessen Name ihn außerhalb des Zielordners ablegen würde – zu viele, um sie einzeln auszulassen.</numerusform>
            <numerusform>Es wurde nichts entpackt: Das Archiv enthält %n Einträge, deren Namen sie außerhalb des Zielordners ablegen würden – zu viele, um sie einzeln auszulassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>Der Name von
%1
enthält „\“ oder „:“, was die Engine als Ordner oder Laufwerk speichern würde: Beim Entpacken könnte die Datei außerhalb des Zielordners landen. Es wurde nichts ausgeführt; benennen Sie sie zuerst um.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>Der Eintrag
%1
wird nicht entpackt: Sein Name würde ihn außerhalb des Zielordners ablegen.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Uharc 0.4 wurde nicht gefunden, das Programm wird beendet</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>%1 konvertieren</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Speichern in:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Neues Archiv: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Jede Datei wird mit der Liste des Archivs verglichen (Größe und CRC-32), bevor das neue Archiv behalten wird. Die Attribute „versteckt“ und „System“ werden nicht übernommen.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Der Ordner %1 existiert nicht.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Geben Sie den vollständigen Pfad eines Ordners ein, beginnend mit „/“.</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>%1 wird konvertiert</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Die entpackten Dateien werden mit der Liste verglichen…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>Das %1-Archiv wird geschrieben…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Das neue Archiv wird zurückgelesen…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>%1 kann nicht geöffnet werden: Das Programm zum Öffnen von Dateien, xdg-open, ist nicht installiert.

Es ist im Paket xdg-utils enthalten; installieren Sie es (zum Beispiel mit „sudo apt install xdg-utils“) und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Nicht genügend Speicher oder Systemressourcen. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>Die Datei wurde nicht gefunden. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>Der Ordner wurde nicht gefunden. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>Das Dateiformat ist ungültig. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>Diesem Dateityp ist auf diesem System kein Programm zugeordnet</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>Parameter: &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>quovara::DetailsModel</name>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 EB</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <comment>the exact size, its digits grouped</comment>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 Element</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Element</numerusform>
            <numerusform>%n Elemente</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>CRC-32</source>
        <translation>CRC-32</translation>
    </message>
</context>
<context>
    <name>quovara::FileBrowser</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Hinzufügen zu %1 abgeschlossen</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Hinzufügen zu %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Hinzufügen zu %1 abgebrochen</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Entpacken von %1 abgeschlossen</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Entpacken von %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Entpacken von %1 abgebrochen</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Test von %1 abgeschlossen</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Test von %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Test von %1 abgebrochen</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>Erstellen des SFX von %1 abgeschlossen</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>Erstellen des SFX von %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>Erstellen des SFX von %1 abgebrochen</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Dateipfad</translation>
    </message>
</context>
<context>
    <name>quovara::TaskPaneBar</name>
    <message>
        <source>TaskPaneBar</source>
        <translation>TaskPaneBar</translation>
    </message>
    <message>
        <source>TaskPaneBar Control.
A pane of collapsible task groups with links, details and hosted controls, drawn in the desktop&apos;s colours.</source>
        <translation>TaskPaneBar-Steuerelement.
Ein Bereich aus einklappbaren Aufgabengruppen mit Links, Details und eingebetteten Steuerelementen, gezeichnet in den Farben der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Ein Fehler ist aufgetreten!
Der angegebene Elementschlüssel passt zu keinem vorhandenen Element</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Suchen..</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>quovara::frmAggiungi</name>
    <message>
        <source>Archive name</source>
        <translation>Archivname</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Wörterbuchgröße</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Archiv speichern unter:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Unterordner einbeziehen </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Kompression</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Multimedia-Kompression</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Wörterbuch</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Nur diese Dateien: (z. B. *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Erstellen und Datei hinzufügen</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Erstellen und Datei verschieben</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
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
        <source>You have to specify the name of the archive</source>
        <translation>Bitte geben Sie den Namen des Archivs an</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>UHA-Datei (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>„%1“ wurde nicht gefunden. Prüfen Sie die Schreibweise der Adresse und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>„%1“ wurde nicht gefunden: „%2“ ist eine Datei, kein Ordner und kein Archiv.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>Das Archiv „%1“ enthält keinen Ordner „%2“.</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>Das Archiv wurde konvertiert und jeder Eintrag geprüft:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Archivaufgaben</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — Demonstrations-Engine</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Archiv öffnen</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>UHARC-Archive (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara sucht</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>„Zurück“ beendet die Suche</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>%1 ist in dieser Version noch nicht verfügbar.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara läuft bereits</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>Kein Element ausgewählt</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>Kein .uha-Archiv ausgewählt</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>Aus einem passwortgeschützten Archiv kann kein SFX erstellt werden</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara ist bereit</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Wählen Sie eine Aktion</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara überspringt</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Bitte warten ...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara liest das Archiv</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Drücken Sie Esc zum Abbrechen</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara liest das Archiv: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>%1 wird gelesen …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>%1 wird gelesen … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 Eintrag</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Anzahl Dateien:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Originalgröße:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Gepackte Größe:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Methode:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Verhältnis:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Datei im Archiv suchen</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Datei im Archiv suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Ausgewähltes Element entpacken</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Ausgewählte Datei ausführen</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Große Symbole</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Kleine Symbole</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>Zurück (Rücktaste, Alt+Links)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Dateien zu einem Archiv hinzufügen</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Entpacken</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Ein Archiv entpacken</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Ein selbstentpackendes Programm aus dem Archiv erstellen</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Ein Archiv testen</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Ansicht ändern</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Nach einer neueren Version suchen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>Über Quovara. Tasten: Strg+O Archiv öffnen, F5 erneut lesen, Strg+Q beenden</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Datei- und Ordneraufgaben</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>&amp;Entpacken…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Konvertieren…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>Die Engine konnte nicht gestartet werden.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Geben Sie den Ordner ein, in den entpackt werden soll, oder wählen Sie ihn in der Ordnerliste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>„%1“ ist kein vollständiger Pfad. Geben Sie einen Pfad ein, der mit „/“ beginnt, oder mit „~/“ für einen Ordner in Ihrem persönlichen Ordner.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>Der Ordner „%1“ kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>„%1“ ist eine Datei, kein Ordner.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>Der Ordner „%1“ existiert nicht. Soll er erstellt werden?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Prüfen Sie den Namen des Ordners und ob auf dem Datenträger genug Platz ist.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>Sie dürfen in „%1“ keine Ordner erstellen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>„%1“ ist eine Datei, kein Ordner. Geben Sie den Ordner ein, in den entpackt werden soll.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>Der Ordner „%1“ kann in der Ordnerliste nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>Der neue Ordner konnte in %1 nicht erstellt werden</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Entpacken</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>%1 entpacken</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Entpacken nach:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuen Ordner erstellen</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Dateien in den aktuellen Ordner entpacken</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Dateien mit vollständigem Pfad entpacken</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Dateien überschreiben</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Nur diese Dateien:  (z. B. *.dll,*.exe)</translation>
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
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
</context>
<context>
    <name>quovara::frmInfo</name>
    <message>
        <source>Quovara</source>
        <translation>Quovara</translation>
    </message>
    <message>
        <source>UHARC engine</source>
        <translation>UHARC-Engine</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Website %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>E-Mail %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Engine-Seite %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Öffnet die Website im Browser</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>Schreibt eine E-Mail im E-Mail-Programm</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Öffnet die Webseite im Browser</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quovara v 2.0</source>
        <translation>Quovara v 2.0</translation>
    </message>
    <message>
        <source>Quovara v 2.0 UHARC GUI</source>
        <translation>Quovara v 2.0 – grafische Oberfläche für UHARC</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a BETA-VERSION – Multimedia-Archivierer mit hoher Kompression</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Website: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>E-Mail: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>KOSTENLOS, NICHT FÜR DEN KOMMERZIELLEN GEBRAUCH</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>NUR ZUM TESTEN UND ZUR BEWERTUNG, NICHT FÜR DEN KOMMERZIELLEN GEBRAUCH</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>FORZA NAPOLI</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Geschrieben von den Quovara-Entwicklern</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC ist ein eigenständiges Programm eines anderen Autors. Quovara enthält es nicht.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>Für alle, die alte Archive am Leben erhalten.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Hinzufügen ...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Entpacken ...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Testen ...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>Beim Testen wurden keine Fehler gefunden</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>Die Engine wurde beendet, ohne eine Ausgabe zu schreiben, daher kann der Auftrag nicht verfolgt werden.
Auftragsskript: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>Der Auftrag konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>Die Engine wurde unerwartet beendet (%2).
Archiv: %1
Der Auftrag wurde nicht abgeschlossen; verlassen Sie sich nicht auf sein Ergebnis.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>Die Engine fragt:

%1

Ja: Das Archiv wird durch ein neues ersetzt, das nur die Dateien dieses Auftrags enthält; alles, was das Archiv jetzt enthält, geht verloren (die Engine kann einem vorhandenen Archiv nichts hinzufügen).
Nein: Der Auftrag wird beendet und das Archiv bleibt unverändert.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>Das Archiv wurde unverändert gelassen.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>Die Engine fragt:

%1

„Ja“ antwortet „y“, „Nein“ antwortet „n“.</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>Signal %1, %2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>Signal %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>Exit-Code %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>Exit-Code %1; Meldung: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>die Ausgabe %1 wurde während der Ausführung entfernt oder gekürzt</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>&amp;Zielpfad</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Zielpfad</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Setup-Programm</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>&amp;Vor dem Entpacken ausführen</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>&amp;Nach dem Entpacken ausführen</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>Text des SFX</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>Tite&amp;l des SFX-Fensters</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>Im &amp;SFX-Fenster angezeigter Text (max. Länge 156) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Lizenztext</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>Titel des L&amp;izenzfensters</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>Im Lizenz&amp;fenster angezeigter Text</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Erstellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Allgemein</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>E&amp;rweitert</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>Das SFX kann nicht erstellt werden: %1 ist eine der Dateien, aus denen es erstellt wird.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>SFX erstellen</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>SFX speichern</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Anwendung (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>Setup installiert PROGRAMMNAME in den folgenden Ordner. Klicken Sie zum Fortfahren auf „Installieren“. Wenn Sie einen anderen Ordner wählen möchten, klicken Sie auf „Durchsuchen“.</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Weitere Schaltflächen</translation>
    </message>
</context>
</TS>
