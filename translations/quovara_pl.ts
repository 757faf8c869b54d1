<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>Pliki: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Rozmiar normalny: %1 MB</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Rozmiar spakowany: %1 MB</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Tryb: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>miejsce docelowe %1 nie jest katalogiem</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>nie można utworzyć katalogu %1</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>nie można powiązać napędu z %1: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>żadna litera napędu w prefiksie silnika nie jest wolna</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>ten system nie obsługuje mechanizmu Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>nie można utworzyć zestawu reguł Landlock: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>nie można ograniczyć zadania do %1: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>Konwersja została zatrzymana.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>Lista zawartości archiwum nie zawiera żadnych plików.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>Nowe archiwum zostało zapisane i sprawdzone, ale %1; niczego nie pozostawiono.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  i jeszcze %n</numerusform>
            <numerusform>  i jeszcze %n</numerusform>
            <numerusform>  i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>Silnik nie rozpakował tych pozycji z listy zawartości:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Te pozycje zostały rozpakowane z innym rozmiarem lub sumą CRC-32, niż podaje lista zawartości:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>Silnik rozpakował pliki, których nie ma na liście zawartości:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (rozmiar %2, CRC-32 %3; na liście: rozmiar %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>nieznany błąd</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>nie można odczytać %1 (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>plik %1 zmienił się po sprawdzeniu</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>nie można utworzyć %1 (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>Biblioteka libarchive w tym systemie nie obsługuje zapisu formatu %1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>nie można zapisać %1 (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>Nie można ponownie odczytać nowego archiwum (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>Liczba pozycji w nowym archiwum: %1, a zapisano ich: %2.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>Odczytane nowe archiwum różni się od zapisanego: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>Niczego nie przekonwertowano: nie podano hasła.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>Nowe archiwum nie będzie chronione hasłem.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>Niczego nie przekonwertowano: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>Niczego nie przekonwertowano: te pozycje mają nazwy, które wyprowadziłyby je poza każdy katalog, do którego zostałyby rozpakowane, więc archiwum nie może zostać przekonwertowane w całości:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>Niczego nie przekonwertowano. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Te archiwa nie zostały przekonwertowane:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Typy plików</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>Plik listy</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Wykluczone pliki</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>Plik do rozpakowania</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Wszystkie pliki</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>Według listy plików (pełne ścieżki)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Wyklucz: (np. *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Quovara wymaga środowiska graficznego; nie ustawiono zmiennej DISPLAY ani WAYLAND_DISPLAY</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>Silnik zgłosił błąd:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>nie można ustawić uprawnień %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>nie można uruchomić %1: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Użycie: quovara %1 FILE...
Kopiuje pliki silnika do katalogu programu Quovara. Oczekiwane nazwy: %2 (wielkość liter bez znaczenia).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>To nie jest plik silnika: %1
Oczekiwane nazwy: %2 (wielkość liter bez znaczenia).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>Nie ma takiego pliku: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>Nie można skopiować %1 do %2: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Zainstalowano %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>Silnik działa: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>Silnik działa poprzez %1: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>Działa w prefiksie wine %1 z ustawieniami regionalnymi %2: strona kodowa %3 dla tekstów i zapisywanych nazw, %4 dla odczytywanych nazw.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Uwaga: Quovara używa teraz silnika w %1, który zawiera własny plik uharc.exe.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>Brak pliku uharc.exe w %1, a Quovara go potrzebuje. Można go zainstalować poleceniem: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>Nie znaleziono wine (należy ustawić QUOVARA_WINE na program uruchamiający lub dodać wine do PATH): Quovara uruchamia za jego pomocą silnik, który jest programem dla Windows.
W Debianie można go zainstalować poleceniem:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 nie może uruchomić silnika %2: brakuje jego części 32-bitowej.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>W Debianie można ją zainstalować poleceniem:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>Silnik %1 nie wyświetlił swojego komunikatu powitalnego.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>Silnik %1 uruchomiony przez %2 nie wyświetlił swojego komunikatu powitalnego.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>Ustawienia regionalne %1 nie są zainstalowane w tym systemie, więc silnik nie może odczytywać ani zapisywać nazw zawierających ich litery. Można je dodać poleceniem
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(lub &quot;sudo dpkg-reconfigure locales&quot;), a następnie ponownie uruchomić program Quovara.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>strona kodowa %1 (ustawienia regionalne %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Silnik: brak w %1 (umieszcza go tam quovara --install-engine)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Silnik: UHARC, wersja nieznana (program dla Windows uruchamiany przez wine) w %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Silnik: zastępczy silnik demonstracyjny, wersja nieznana (nie UHARC) w %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Silnik: UHARC %1 (program dla Windows uruchamiany przez wine) w %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Silnik: zastępczy silnik demonstracyjny %1 (nie UHARC) w %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Zapisane wersje silnika: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>nie można zapisywać w katalogu %1 (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>nie udało się przenieść wyniku do %1 (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>nie znaleziono wolnej nazwy dla %1</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Nie ma takiego pliku.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>To nie jest archiwum UHARC (.uha).</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>Niczego nie rozpakowano: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>Niczego nie rozpakowano: nie podano hasła.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>Pliki zostały rozpakowane, ale %1; niczego nie pozostawiono.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Te archiwa nie zostały rozpakowane:

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
        <translation>Użycie: quovara [ARCHIVE.uha]
  lub:  quovara &quot;WORD  PATH&quot;
  lub:  quovara &quot;WORD &quot; PATH
  lub:  quovara OPTION...

Quovara przegląda, rozpakowuje, testuje i tworzy archiwa UHARC (.uha); każda
operacja to uruchomienie silnika UHARC, uharc.exe, trzymanego w katalogu
programu.

Bez argumentów główne okno otwiera się w katalogu domowym. Po podaniu ścieżki
archiwum (nazwy kończącej się na .uha) zostaje ono otwarte w tym oknie.

Słowo polecenia otwiera tylko jedno okno, dla PATH; Quovara kończy działanie
po jego zamknięciu:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>okno Rozpakuj dla archiwum PATH</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>okno Dodaj dla pliku lub katalogu PATH</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>okno Utwórz SFX dla archiwum PATH</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Argumenty są łączone pojedynczymi spacjami, a między słowem a ścieżką muszą
stać dwa znaki separatora: dwie spacje wewnątrz jednego argumentu
(&quot;extract  /data/a.uha&quot;) albo spacja na końcu słowa i ścieżka jako
następny argument (&quot;extract &quot; /data/a.uha).

Opcje:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>koniec opcji: każdy następny argument jest słowem polecenia lub ścieżką, nawet jeśli zaczyna się od &quot;-&quot; (ścieżkę można też zapisać jako ./-name.uha)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
Przyjmowane są też opcje samego Qt, takie jak -platform NAME. Bez takiej opcji
lub zmiennej QT_QPA_PLATFORM okno wymaga zmiennej DISPLAY lub WAYLAND_DISPLAY.

Kod wyjścia: 0 po wykonaniu; 1 bez środowiska graficznego; 2 dla nieznanej
lub błędnie użytej opcji. --install-engine kończy się kodem od 0 do 3, jak
opisuje quovara(1).
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>silnik %1 nie istnieje</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>zadanie wskazuje %1, który nie jest silnikiem z katalogu programu %2; nie zostało uruchomione</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>nie można odczytać pliku listy %1: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>plik listy %1 wskazuje plik, którego silnik nie może przyjąć. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>nie można zapisać kopii pliku listy %1: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>skrypt zadania %1 nie został zapisany przez ten program</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>nie można odczytać skryptu zadania %1</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>skrypt zadania %1 został zmieniony po zapisaniu; nie został uruchomiony</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>skrypt zadania %1 nie wskazuje żadnego polecenia</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>zadanie chce zapisać swoje wyjście do %1, który nie jest plikiem wyjścia konsoli w katalogu roboczym</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 jest programem dla Windows, a nie znaleziono programu uruchamiającego (wine)</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>nie można przekazać silnikowi katalogu archiwum: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>nie można przekazać silnikowi archiwum: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>nie można ograniczyć rozpakowywania do miejsca docelowego: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>nie można utworzyć pliku wyjściowego %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>nie można uruchomić %1: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>archiwum</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>nazwa archiwum</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>wiersz poleceń</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>katalog docelowy</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>rozmiar słownika</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>wykluczenie</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>typ pliku</translation>
    </message>
    <message>
        <source>item</source>
        <translation>element</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>plik listy</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nazwa</translation>
    </message>
    <message>
        <source>password</source>
        <translation>hasło</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>katalog programu</translation>
    </message>
    <message>
        <source>source</source>
        <translation>źródło</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>katalog tymczasowy</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>Hasło zawiera litery spoza ASCII. %1 Niczego nie uruchomiono.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>Wartość „%1”:
%2
zawiera litery spoza ASCII. %3 Niczego nie uruchomiono.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(brak ich w jego stronach kodowych %1 i %2)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(brak ich w jego stronie kodowej %1)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>uruchomić program Quovara z opcją &quot;--archive-locale LOCALE&quot;, wskazując ustawienia regionalne, których strony kodowe je zawierają.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>uruchomić program Quovara z opcją &quot;--archive-locale %1&quot; – są to ustawienia regionalne, których strony kodowe je zawierają.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>Hasło zawiera litery, których silnik nie może przyjąć przy ustawieniach regionalnych %1 %2. Niczego nie uruchomiono. Aby kontynuować, należy wybrać hasło z innymi literami lub %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>Wartość „%1”:
%2
zawiera litery, których silnik nie może przyjąć przy ustawieniach regionalnych %3%4 %5. Niczego nie uruchomiono. Aby kontynuować, należy zmienić nazwę na taką z innymi literami lub %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>Katalog
%1
zawiera znak końca wiersza, którego nie może zawierać skrypt zadania. Niczego nie uruchomiono.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>Hasło zawiera znak końca wiersza, którego nie może zawierać wiersz zadania. Niczego nie uruchomiono.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>Wartość „%1” zawiera znak końca wiersza, którego nie może zawierać wiersz zadania:
%2
Niczego nie uruchomiono.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>w miejscu pliku znajduje się dowiązanie symboliczne</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>plik znajdujący się w miejscu pliku nie pochodzi od tego programu</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>Nie można zapisać skryptu zadania %1: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>nie można dowiązać %1 w %2: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>w %1 nie ma wolnej prostej nazwy dla dowiązania do %2</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Przygotowywanie silnika do pierwszego użycia…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>Nie można przygotować silnika do pierwszego użycia: %1.
(prefiks wine %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>nie można utworzyć katalogu %1</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>nie można uruchomić %1</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>trwało to dłużej niż %n sekundę</numerusform>
            <numerusform>trwało to dłużej niż %n sekundy</numerusform>
            <numerusform>trwało to dłużej niż %n sekund</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine zakończył działanie z kodem %1, nie tworząc prefiksu</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara nie może wyświetlić archiwum
%1
ponieważ %2.
Żadna część archiwum nie jest wyświetlana.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>nie może utworzyć widoku katalogu %1</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>lista zawartości zwrócona przez silnik jest niepełna</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>odczyt został zatrzymany</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Wprowadź hasło</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>nie może zastąpić poprzedniego widoku katalogu</translation>
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
        <translation>Bez kompresji</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ szybka</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ normalna</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ najlepsza</translation>
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
        <translation>Niektóre nazwy w archiwum
%1
nie mogą istnieć w tym systemie w obecnej postaci (nazwa dłuższa niż 255 bajtów albo plik i katalog o tej samej nazwie): 1 nazwa jest wyświetlana w postaci skróconej lub numerowanej. Pliki są rozpakowywane pod zapisanymi nazwami.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Niektóre nazwy w archiwum
%1
nie mogą istnieć w tym systemie w obecnej postaci (nazwa dłuższa niż 255 bajtów albo plik i katalog o tej samej nazwie): %n nazwa jest wyświetlana w postaci skróconej lub numerowanej. Pliki są rozpakowywane pod zapisanymi nazwami.</numerusform>
            <numerusform>Niektóre nazwy w archiwum
%1
nie mogą istnieć w tym systemie w obecnej postaci (nazwa dłuższa niż 255 bajtów albo plik i katalog o tej samej nazwie): %n nazwy są wyświetlane w postaci skróconej lub numerowanej. Pliki są rozpakowywane pod zapisanymi nazwami.</numerusform>
            <numerusform>Niektóre nazwy w archiwum
%1
nie mogą istnieć w tym systemie w obecnej postaci (nazwa dłuższa niż 255 bajtów albo plik i katalog o tej samej nazwie): %n nazw jest wyświetlanych w postaci skróconej lub numerowanej. Pliki są rozpakowywane pod zapisanymi nazwami.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>nie może utworzyć widoku katalogu: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; nie wskazuje żadnych ustawień regionalnych (na przykład ru_RU.UTF-8 lub ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>Polecenie &apos;quovara --help&apos; wyświetli więcej informacji.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>opcja &apos;--extract-here&apos; wymaga archiwum</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>wyświetla tę pomoc i kończy działanie</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>wyświetla wersję programu Quovara i silnika znalezionego w katalogu programu, po czym kończy działanie</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>kopiuje pliki silnika (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) do katalogu programu, sprawdza, czy silnik działa, i kończy działanie; nie otwiera żadnego okna</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>rozpakowuje każde archiwum obok niego samego, nigdy do ani na nic, co już istnieje: archiwum z jednym katalogiem najwyższego poziomu lub jednym plikiem bez zmian, każde inne do nowego katalogu nazwanego jak archiwum (&quot;name (2)&quot;, gdy ta nazwa jest zajęta); okno postępu pokazuje każde z nich, a kod wyjścia wynosi 0 tylko wtedy, gdy wszystkie archiwa zostały rozpakowane</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>konwertuje każde archiwum do formatu FORMAT (zip, 7z, tar.xz lub tar.zst) obok niego samego, jako name.FORMAT (&quot;name (2).FORMAT&quot;, gdy ta nazwa jest zajęta, nigdy nie zastępując niczego): każdy plik jest rozpakowywany do prywatnego katalogu, sprawdzany z listą zawartości archiwum (rozmiar i CRC-32) i zapisywany, a nowe archiwum jest ponownie odczytywane; nowe archiwum nie ma hasła; okno postępu pokazuje każde z nich, a kod wyjścia wynosi 0 tylko wtedy, gdy wszystkie archiwa zostały przekonwertowane i sprawdzone</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>uruchamia silnik z ustawieniami regionalnymi LOCALE (na przykład ru_RU.UTF-8 lub ru), aby wyświetlać, wyszukiwać i rozpakowywać nazwy z archiwów utworzonych w systemie w tym języku; działa tak samo jak zmienna QUOVARA_ARCHIVE_LOCALE</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>nierozpoznana opcja &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>opcja &apos;%1&apos; nie przyjmuje argumentu</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>opcja &apos;%1&apos; wymaga argumentu</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>opcja &apos;--convert&apos; wymaga formatu (%1) i archiwum</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>nieznany format &apos;%1&apos; dla &apos;--convert&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>opcja &apos;--convert&apos; wymaga archiwum po formacie</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>nie można uzyskać do niego dostępu (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>nie można go utworzyć (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>jest dowiązaniem symbolicznym</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>nie jest katalogiem</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>należy do innego użytkownika</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>inni użytkownicy mają do niego dostęp (tryb %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>nie można go utworzyć</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara nie może użyć swojego katalogu roboczego
%1
ponieważ %2.
Nic nie jest tam zapisywane i żadne zadanie nie zostanie uruchomione, dopóki problem nie zostanie rozwiązany.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>Nie można zakończyć procesu</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>Postęp: %1 MB (spakowano %2 MB) z %3 MB Współczynnik: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Razem: %1       Pozostało: %2       Upłynęło: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Ukończono: %1 % Pozostało: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>nie można odczytać %1 (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>nie można skopiować %1 (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>nie można zapisać %1 (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>Nie można utworzyć SFX: brak pliku modułu startowego %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>Nie można utworzyć SFX: brak pliku silnika %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>Nie można utworzyć SFX: brak archiwum %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>Nie można utworzyć SFX: nie można zapisać %1 (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>Nie można utworzyć SFX: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>Nie można utworzyć SFX: nie można zastąpić %1.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara tworzy SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Proszę czekać...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara jest gotowa</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Wybierz działanie</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>Utworzono SFX</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>Rozpakowywanie zostało zatrzymane: nie rozpakowano żadnego pliku.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>Rozpakowywanie zostało zatrzymane: 1 plik został rozpakowany w całości.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>Rozpakowywanie zostało zatrzymane: %n plik został rozpakowany w całości.</numerusform>
            <numerusform>Rozpakowywanie zostało zatrzymane: %n pliki zostały rozpakowane w całości.</numerusform>
            <numerusform>Rozpakowywanie zostało zatrzymane: %n plików zostało rozpakowanych w całości.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

Plik „%1” był w trakcie zapisu i był niekompletny: został usunięty.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

Plik „%1” był w trakcie zapisu i jest niekompletny, ale nie udało się go usunąć (%2): należy usunąć go ręcznie.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Zastąpił on istniejący plik o tej samej nazwie; silnik zdążył już nadpisać ten plik, więc jego zawartość została utracona.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Jeśli istniał plik o tej nazwie, silnik zdążył już go nadpisać, więc jego zawartość została utracona.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

Zapisywanego pliku („%1”) nie znaleziono na dysku.</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… i jeszcze %n</numerusform>
            <numerusform>
… i jeszcze %n</numerusform>
            <numerusform>
… i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>Archiwum
%1
zawiera 1 pozycję, której nazwa wyprowadziłaby ją poza każdy katalog, do którego zostanie rozpakowana. Jest ona wyświetlana, ale nigdy nie zostanie rozpakowana:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>Archiwum
%1
zawiera %n pozycję, której nazwa wyprowadziłaby ją poza każdy katalog, do którego zostanie rozpakowana. Jest ona wyświetlana, ale nigdy nie zostanie rozpakowana:

%2</numerusform>
            <numerusform>Archiwum
%1
zawiera %n pozycje, których nazwy wyprowadziłyby je poza każdy katalog, do którego zostaną rozpakowane. Są one wyświetlane, ale nigdy nie zostaną rozpakowane:

%2</numerusform>
            <numerusform>Archiwum
%1
zawiera %n pozycji, których nazwy wyprowadziłyby je poza każdy katalog, do którego zostaną rozpakowane. Są one wyświetlane, ale nigdy nie zostaną rozpakowane:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 pozycja nie została rozpakowana: jej nazwa umieściłaby ją poza katalogiem docelowym.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n pozycja nie została rozpakowana: jej nazwa umieściłaby ją poza katalogiem docelowym.

%1</numerusform>
            <numerusform>%n pozycje nie zostały rozpakowane: ich nazwy umieściłyby je poza katalogiem docelowym.

%1</numerusform>
            <numerusform>%n pozycji nie zostało rozpakowanych: ich nazwy umieściłyby je poza katalogiem docelowym.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>Niczego nie rozpakowano: każda pozycja archiwum ma nazwę, która umieściłaby ją poza katalogiem docelowym.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>Niczego nie rozpakowano: archiwum zawiera %n pozycję, której nazwa umieściłaby ją poza katalogiem docelowym – zbyt wiele, by pomijać je pojedynczo.</numerusform>
            <numerusform>Niczego nie rozpakowano: archiwum zawiera %n pozycje, których nazwy umieściłyby je poza katalogiem docelowym – zbyt wiele, by pomijać je pojedynczo.</numerusform>
            <numerusform>Niczego nie rozpakowano: archiwum zawiera %n pozycji, których nazwy umieściłyby je poza katalogiem docelowym – zbyt wiele, by pomijać je pojedynczo.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>Nazwa
%1
zawiera &quot;\&quot; lub &quot;:&quot;, które silnik zapisałby jako katalog lub napęd: po rozpakowaniu plik mógłby trafić poza katalog, do którego jest rozpakowywany. Niczego nie uruchomiono; najpierw należy zmienić nazwę.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>Pozycja
%1
nie zostanie rozpakowana: jej nazwa umieściłaby ją poza katalogiem docelowym.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Nie wykryto Uharc 0.4, program zostanie zakończony</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Zapisz w</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>Konwertuj %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Zapisz w:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Przeglądaj…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Nowe archiwum: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Każdy plik jest sprawdzany z listą zawartości archiwum (rozmiar i CRC-32), zanim nowe archiwum zostanie zachowane. Atrybuty „ukryty” i „systemowy” nie są zachowywane.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Katalog %1 nie istnieje.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Należy wpisać pełną ścieżkę katalogu, zaczynając od &quot;/&quot;.</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>Konwertowanie %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Sprawdzanie rozpakowanych plików z listą zawartości…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>Zapisywanie archiwum %1…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Ponowne odczytywanie nowego archiwum…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Zatrzymaj</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>Nie można otworzyć %1: program otwierający pliki, xdg-open, nie jest zainstalowany.

Jest on dostępny w pakiecie xdg-utils; należy go zainstalować (na przykład poleceniem &quot;sudo apt install xdg-utils&quot;) i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Brak pamięci lub zasobów systemowych. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>Nie można odnaleźć pliku. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>Nie można odnaleźć katalogu. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>Nieprawidłowy format pliku. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>W systemie nie ma skojarzenia dla tego typu pliku</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>Parametry: &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>quovara::DetailsModel</name>
    <message>
        <source>1 byte</source>
        <translation>1 bajt</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n bajt</numerusform>
            <numerusform>%n bajty</numerusform>
            <numerusform>%n bajtów</numerusform>
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
        <translation>%1 bajtów</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 element</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n element</numerusform>
            <numerusform>%n elementy</numerusform>
            <numerusform>%n elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Zmodyfikowano</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Atrybuty</translation>
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
        <translation>Pliki</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Dodawanie do %1 zakończone</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Dodawanie do %1 nie powiodło się</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Dodawanie do %1 zatrzymane</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Rozpakowywanie %1 zakończone</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Rozpakowywanie %1 nie powiodło się</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Rozpakowywanie %1 zatrzymane</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Test %1 zakończony</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Test %1 nie powiódł się</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Test %1 zatrzymany</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>Tworzenie SFX z %1 zakończone</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>Tworzenie SFX z %1 nie powiodło się</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>Tworzenie SFX z %1 zatrzymane</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Ścieżka pliku</translation>
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
        <translation>Kontrolka TaskPaneBar.
Panel zwijanych grup zadań z odnośnikami, szczegółami i osadzonymi kontrolkami, rysowany w kolorach pulpitu.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Wystąpił błąd!
Podany klucz elementu nie pasuje do żadnego z istniejących elementów</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Wyszukiwanie...</translation>
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
        <translation>Nazwa archiwum</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metoda</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Rozmiar słownika</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Dodaj %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Zapisz archiwum w:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Przeglądaj</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Uwzględnij podkatalogi </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Kompresja</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Kompresja multimediów</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Słownik</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Tylko te pliki: (np. *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Utwórz i dodaj plik</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Utwórz i przenieś plik</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Domyślny</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>Należy podać nazwę archiwum</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Zapisz plik</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Plik Uha (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>Nie można odnaleźć „%1”. Należy sprawdzić pisownię adresu i spróbować ponownie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>Nie można odnaleźć „%1”: „%2” jest plikiem, a nie katalogiem ani archiwum.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>Archiwum „%1” nie zawiera katalogu „%2”.</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>Archiwum zostało przekonwertowane, a każda pozycja sprawdzona:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Polecenia</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Zadania archiwum</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Wyniki wyszukiwania</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — silnik demonstracyjny</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Otwórz archiwum</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>Archiwa UHARC (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara wyszukuje</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>Przycisk Wstecz zatrzymuje wyszukiwanie</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>Funkcja %1 nie jest jeszcze dostępna w tej wersji.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara jest już uruchomiona</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>Nie zaznaczono żadnego elementu</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>Nie zaznaczono archiwum .uha</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>Nie można utworzyć SFX z archiwum chronionego hasłem</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara jest gotowa</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Wybierz działanie</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara pomija</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Proszę czekać...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara odczytuje archiwum</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Naciśnij Escape, aby zatrzymać</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara odczytuje archiwum: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>Odczytywanie %1 …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>Odczytywanie %1 … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 pozycja</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n pozycja</numerusform>
            <numerusform>%n pozycje</numerusform>
            <numerusform>%n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Liczba plików:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Rozmiar normalny:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Rozmiar po kompresji:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Metoda:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Współczynnik:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Współczynnik</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Szukaj pliku w archiwum</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Szukaj pliku w archiwum (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Szukaj (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Rozpakuj zaznaczony element</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Uruchom zaznaczony plik</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Duże ikony</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Widok szczegółowy</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Małe ikony</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>Wstecz (Backspace, Alt+←)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Dodaj pliki do archiwum</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Rozpakuj</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Rozpakuj archiwum</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Utwórz z archiwum program samorozpakowujący</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Sprawdź</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Testuj archiwum</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Widok</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Zmień widok</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizuj</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Sprawdź dostępność nowszej wersji</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>O programie Quovara. Skróty: Ctrl+O otwiera archiwum, F5 odczytuje je ponownie, Ctrl+Q kończy działanie</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Operacje na plikach i katalogach</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otwórz</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>&amp;Rozpakuj…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Konwertuj…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>Nie można uruchomić silnika.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Wpisz katalog, do którego mają zostać rozpakowane pliki, lub wybierz go z listy katalogów.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>„%1” nie jest pełną ścieżką. Należy wpisać ścieżkę zaczynającą się od &quot;/&quot; lub od &quot;~/&quot; dla katalogu w katalogu domowym.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>Nie można utworzyć katalogu „%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>„%1” jest plikiem, a nie katalogiem.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>Katalog „%1” nie istnieje. Utworzyć go?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Należy sprawdzić nazwę katalogu i to, czy na dysku jest wolne miejsce.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>Brak uprawnień do tworzenia katalogów w „%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>„%1” jest plikiem, a nie katalogiem. Wpisz katalog, do którego mają zostać rozpakowane pliki.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>Nie można wyświetlić katalogu „%1” na liście katalogów.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Katalogi</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>Nie można utworzyć nowego katalogu w %1</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Rozpakuj</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>Rozpakuj %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Rozpakuj do:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Utwórz nowy katalog</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Rozpakuj pliki do bieżącego katalogu</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opcja</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Rozpakuj pliki z pełnymi ścieżkami</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Zastępuj pliki</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Tylko te pliki:  (np. *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nowy katalog</translation>
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
        <translation>Silnik UHARC</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Strona internetowa %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>E-mail %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Strona silnika %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Otwiera stronę internetową w przeglądarce</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>Tworzy wiadomość e-mail w programie pocztowym</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Otwiera stronę internetową w przeglądarce</translation>
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
        <translation>Quovara v 2.0 – graficzny interfejs UHARC</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a WERSJA BETA – archiwizator o wysokim stopniu kompresji, także multimediów</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Strona internetowa: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>E-mail: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>PROGRAM DARMOWY, NIE DO UŻYTKU KOMERCYJNEGO</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>WYŁĄCZNIE DO TESTÓW I OCENY, NIE DO UŻYTKU KOMERCYJNEGO</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>NAPRZÓD, NAPOLI</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Autorzy: twórcy programu Quovara</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC to osobny program innego autora. Quovara go nie zawiera.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>Dla wszystkich, którzy dbają o stare archiwa.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Dodawanie...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Rozpakowywanie...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Testowanie...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>Podczas testu nie znaleziono błędów</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>Silnik zakończył działanie bez wypisania żadnych danych, więc nie można śledzić zadania.
Skrypt zadania: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>Nie można uruchomić zadania: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>Silnik zakończył działanie nieprawidłowo (%2).
Archiwum: %1
Zadanie nie zostało ukończone; nie należy polegać na jego wyniku.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>Silnik pyta:

%1

Tak: archiwum zostanie zastąpione nowym, zawierającym tylko pliki z tego zadania; cała obecna zawartość archiwum zostanie utracona (silnik nie potrafi dodawać plików do istniejącego archiwum).
Nie: zadanie zostanie zatrzymane, a archiwum pozostanie bez zmian.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>Archiwum pozostało bez zmian.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>Silnik pyta:

%1

Tak odpowiada &quot;y&quot;, Nie odpowiada &quot;n&quot;.</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>sygnał %1, %2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>sygnał %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>kod wyjścia %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>kod wyjścia %1; komunikat: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>jego dane wyjściowe %1 zostały usunięte lub obcięte w trakcie działania</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>&amp;Ścieżka rozpakowania</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Ścieżka rozpakowania</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Program instalacyjny</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>Uruchom &amp;przed rozpakowaniem</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>Uruchom po rozpakowani&amp;u</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>Tekst SFX</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>&amp;Tytuł okna SFX</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>Tekst &amp;wyświetlany w oknie SFX (maks. długość 156) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Tekst licencji</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>Tytuł okna &amp;licencji</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>Tekst wyświetlany w oknie li&amp;cencji</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>Utwó&amp;rz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Ogólne</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>T&amp;ekst</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>Z&amp;aawansowane</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>Nie można utworzyć SFX: %1 jest jednym z plików, z których jest tworzony.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>Utwórz SFX</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>Zapisz SFX</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Aplikacja (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>Instalator zainstaluje NAZWA PROGRAMU w następującym katalogu. Aby kontynuować, kliknij Instaluj. Aby wybrać inny katalog, kliknij Przeglądaj</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Więcej przycisków</translation>
    </message>
</context>
</TS>
