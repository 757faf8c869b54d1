<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>Soubory: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Normální velikost: %1 MB</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Komprimovaná velikost: %1 MB</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Režim: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>cíl %1 není složka</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>nelze vytvořit složku %1</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>nelze připojit jednotku k %1: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>v prefixu enginu není volné žádné písmeno jednotky</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>tento systém nemá Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>nelze vytvořit sadu pravidel Landlock: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>úlohu nelze omezit na %1: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>Převod byl zastaven.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>Výpis archivu neobsahuje žádné soubory.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>Nový archiv byl zapsán a zkontrolován, ale %1; nic nezůstalo.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  a %n další</numerusform>
            <numerusform>  a %n další</numerusform>
            <numerusform>  a %n dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>Engine nerozbalil tyto položky výpisu:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Tyto položky byly rozbaleny s jinou velikostí nebo CRC-32, než uvádí výpis:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>Engine rozbalil soubory, které výpis neobsahuje:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (velikost %2, CRC-32 %3; ve výpisu: velikost %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>neznámá chyba</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>%1 nelze přečíst (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 se po kontrole změnil</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>%1 nelze vytvořit (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>Knihovna libarchive tohoto systému neumí zapsat %1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>%1 nelze zapsat (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>Nový archiv nelze zpětně přečíst (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>Nový archiv obsahuje %1 položek, ale zapsáno jich bylo %2.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>Nový archiv se nepřečte tak, jak byl zapsán: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>Nic nebylo převedeno: nebylo zadáno heslo.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>Nový archiv nebude chráněn heslem.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>Nic nebylo převedeno: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>Nic nebylo převedeno: tyto položky mají názvy, které by je vyvedly mimo jakoukoli složku, do které by byly rozbaleny, takže archiv nelze převést celý:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>Nic nebylo převedeno. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Tyto archivy nebyly převedeny:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Typy souborů</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>Soubor se seznamem</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Vyloučené soubory</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>Soubor k rozbalení</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Všechny soubory</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>Podle seznamu souborů (úplná cesta)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Vyloučit: (např. *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Quovara potřebuje grafické prostředí; proměnná DISPLAY ani WAYLAND_DISPLAY není nastavena</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>Archivační engine ohlásil chybu:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>nelze nastavit oprávnění %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 nelze spustit: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Použití: quovara %1 FILE...
Zkopíruje soubory enginu do složky programu Quovara. Očekávané názvy: %2 (na velikosti písmen nezáleží).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>Nejde o soubor enginu: %1
Očekávané názvy: %2 (na velikosti písmen nezáleží).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>Soubor neexistuje: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>%1 nelze zkopírovat do %2: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Nainstalováno: %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>Engine běží: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>Engine běží prostřednictvím %1: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>Běží v prefixu wine %1 s národním prostředím %2: kódová stránka %3 pro jeho text a názvy, které ukládá, %4 pro názvy, které čte.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Poznámka: Quovara nyní používá engine v %1, který obsahuje vlastní uharc.exe.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>V %1 není uharc.exe, který Quovara potřebuje. Nainstalujte jej příkazem: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>Program wine nebyl nalezen (nastavte QUOVARA_WINE na spouštěč nebo přidejte wine do PATH): Quovara pomocí něj spouští engine, který je programem pro Windows.
V Debianu jej nainstalujete příkazem:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 nemůže spustit engine %2: chybí jeho 32bitová část.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>V Debianu ji nainstalujete příkazem:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>Engine %1 nevypsal svou úvodní zprávu.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>Engine %1 nevypsal svou úvodní zprávu prostřednictvím %2.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>Národní prostředí %1 není v tomto systému nainstalováno, takže engine nemůže číst ani zapisovat názvy v jeho písmu. Přidejte jej příkazem
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(nebo &quot;sudo dpkg-reconfigure locales&quot;) a spusťte program Quovara znovu.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>kódová stránka %1 (národní prostředí %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Engine: žádný v %1 (umístí jej tam quovara --install-engine)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Engine: UHARC, verze neznámá (program pro Windows spouštěný přes wine) v %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Engine: ukázková náhrada, verze neznámá (není UHARC) v %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Engine: UHARC %1 (program pro Windows spouštěný přes wine) v %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Engine: ukázková náhrada %1 (není UHARC) v %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Uložené verze enginu: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>do složky %1 nelze zapisovat (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>nepodařilo se jej přesunout do %1 (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>pro %1 nebyl nalezen volný název</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Takový soubor neexistuje.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>Nejde o archiv UHARC (.uha).</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>Nic nebylo rozbaleno: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>Nic nebylo rozbaleno: nebylo zadáno heslo.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>Soubory byly rozbaleny, ale %1; nic nezůstalo.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Tyto archivy nebyly rozbaleny:

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
        <translation>Použití: quovara [ARCHIVE.uha]
  nebo:  quovara &quot;WORD  PATH&quot;
  nebo:  quovara &quot;WORD &quot; PATH
  nebo:  quovara OPTION...

Quovara prochází, rozbaluje, testuje a vytváří archivy UHARC (.uha); každá
operace je jedním spuštěním enginu UHARC uharc.exe, uloženého ve složce
programu.

Bez argumentů se hlavní okno otevře v domovské složce. S cestou k archivu
(názvem končícím na .uha) se v něm otevře daný archiv.

Slovo požadavku otevře jen jedno okno, pro PATH; Quovara skončí po jeho
zavření:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>okno Rozbalit pro archiv PATH</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>okno Přidat pro soubor nebo složku PATH</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>okno Vytvořit SFX pro archiv PATH</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Argumenty se spojují jednou mezerou a za slovem následují před cestou dva
oddělovací znaky: dvě mezery uvnitř jednoho argumentu
(&quot;extract  /data/a.uha&quot;) nebo mezera na konci slova a cesta jako
další argument (&quot;extract &quot; /data/a.uha).

Přepínače:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>konec přepínačů: každý další argument je slovo požadavku nebo cesta, i když začíná znakem &quot;-&quot; (cestu lze zapsat také jako ./-name.uha)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
Přijímány jsou i vlastní přepínače Qt, například -platform NAME. Bez nich
nebo bez QT_QPA_PLATFORM potřebuje okno proměnnou DISPLAY nebo WAYLAND_DISPLAY.

Návratový kód: 0 při úspěchu; 1 bez grafického prostředí; 2 pro neznámý nebo
chybně použitý přepínač. --install-engine končí kódem 0 až 3, jak uvádí
quovara(1).
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>engine %1 neexistuje</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>úloha uvádí %1, což není engine složky programu %2; nebyla spuštěna</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>soubor se seznamem %1 nelze přečíst: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>soubor se seznamem %1 uvádí soubor, který engine nemůže přijmout. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>kopii souboru se seznamem %1 nelze zapsat: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>skript úlohy %1 nebyl zapsán tímto programem</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>skript úlohy %1 nelze přečíst</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>skript úlohy %1 byl po zapsání změněn; nebyl spuštěn</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>skript úlohy %1 neuvádí žádný příkaz</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>úloha chce zapisovat svůj výstup do %1, což není soubor konzolového výstupu pracovní složky</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 je program pro Windows a nebyl nalezen žádný spouštěč (wine)</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>složku archivu nelze předat enginu: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>archiv nelze předat enginu: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>rozbalování nelze omezit na jeho cíl: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>výstupní soubor %1 nelze vytvořit: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 nelze spustit: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>archiv</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>název archivu</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>příkazový řádek</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>cílová složka</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>velikost slovníku</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>vyloučení</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>typ souboru</translation>
    </message>
    <message>
        <source>item</source>
        <translation>položka</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>soubor se seznamem</translation>
    </message>
    <message>
        <source>name</source>
        <translation>název</translation>
    </message>
    <message>
        <source>password</source>
        <translation>heslo</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>složka programu</translation>
    </message>
    <message>
        <source>source</source>
        <translation>zdroj</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>dočasná složka</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>Heslo obsahuje znaky mimo ASCII. %1 Nic nebylo spuštěno.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>Hodnota „%1“
%2
obsahuje znaky mimo ASCII. %3 Nic nebylo spuštěno.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(jeho kódové stránky %1 a %2 je nemají)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(jeho kódová stránka %1 je nemá)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>spusťte program Quovara s &quot;--archive-locale LOCALE&quot; a uveďte národní prostředí, jehož kódové stránky je mají.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>spusťte program Quovara s &quot;--archive-locale %1&quot;, národním prostředím, jehož kódové stránky je mají.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>Heslo obsahuje znaky, které engine v národním prostředí %1 %2 nemůže přijmout. Nic nebylo spuštěno. Chcete-li pokračovat, zvolte heslo s jinými znaky, nebo %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>Hodnota „%1“
%2
obsahuje znaky, které engine v národním prostředí %3%4 %5 nemůže přijmout. Nic nebylo spuštěno. Chcete-li pokračovat, přejmenujte ji s použitím jiných znaků, nebo %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>Složka
%1
obsahuje zalomení řádku, které skript úlohy nemůže obsahovat. Nic nebylo spuštěno.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>Heslo obsahuje zalomení řádku, které řádek úlohy nemůže obsahovat. Nic nebylo spuštěno.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>Hodnota „%1“ obsahuje zalomení řádku, které řádek úlohy nemůže obsahovat:
%2
Nic nebylo spuštěno.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>na místě souboru je symbolický odkaz</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>soubor na místě souboru nepatří tomuto programu</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>Skript úlohy %1 nelze zapsat: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>%1 nelze propojit do %2: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>v %1 není volný jednoduchý název pro odkaz na %2</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Příprava enginu na první použití…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>Engine nelze připravit na první použití: %1.
(prefix wine %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>složku %1 nelze vytvořit</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>%1 nelze spustit</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>trvalo to déle než %n sekundu</numerusform>
            <numerusform>trvalo to déle než %n sekundy</numerusform>
            <numerusform>trvalo to déle než %n sekund</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine skončil s kódem %1, aniž by jej vytvořil</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara nemůže zobrazit archiv
%1
protože %2.
Nic z něj se nezobrazí.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>nemůže vytvořit zobrazení složky %1</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>výpis enginu je neúplný</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>čtení bylo zastaveno</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Zadejte heslo</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>nemůže nahradit předchozí zobrazení složky</translation>
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
        <translation>Bez komprese</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ rychlá</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ normální</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ nejlepší</translation>
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
        <translation>Některé názvy archivu
%1
nemohou v tomto systému existovat tak, jak jsou (název delší než 255 bajtů nebo soubor a složka stejného názvu): 1 název je zobrazen zkrácený nebo očíslovaný. Rozbalují se pod svými uloženými názvy.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Některé názvy archivu
%1
nemohou v tomto systému existovat tak, jak jsou (název delší než 255 bajtů nebo soubor a složka stejného názvu): %n název je zobrazen zkrácený nebo očíslovaný. Rozbalují se pod svými uloženými názvy.</numerusform>
            <numerusform>Některé názvy archivu
%1
nemohou v tomto systému existovat tak, jak jsou (název delší než 255 bajtů nebo soubor a složka stejného názvu): %n názvy jsou zobrazeny zkrácené nebo očíslované. Rozbalují se pod svými uloženými názvy.</numerusform>
            <numerusform>Některé názvy archivu
%1
nemohou v tomto systému existovat tak, jak jsou (název delší než 255 bajtů nebo soubor a složka stejného názvu): %n názvů je zobrazeno zkrácených nebo očíslovaných. Rozbalují se pod svými uloženými názvy.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>nemůže vytvořit zobrazení složky: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; neurčuje žádné národní prostředí (například ru_RU.UTF-8 nebo ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>Více informací získáte příkazem &apos;quovara --help&apos;.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>přepínač &apos;--extract-here&apos; vyžaduje archiv</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>vypíše tuto nápovědu a skončí</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>vypíše verzi programu Quovara a enginu nalezeného ve složce programu a skončí</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>zkopíruje soubory enginu (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) do složky programu, ověří, že engine běží, a skončí; neotevře se žádné okno</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>rozbalí každý archiv vedle něj, nikdy ne do ničeho ani přes nic existujícího: archiv s jednou složkou nejvyšší úrovně nebo jedním souborem tak, jak je, jakýkoli jiný do nové složky pojmenované podle něj (&quot;name (2)&quot;, pokud je název obsazen); okno průběhu zobrazí každý z nich a návratový kód je 0, jen pokud byly rozbaleny všechny archivy</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>převede každý archiv do formátu FORMAT (zip, 7z, tar.xz nebo tar.zst) vedle něj jako name.FORMAT (&quot;name (2).FORMAT&quot;, pokud je název obsazen, nikdy přes nic existujícího): každý soubor se rozbalí do soukromé složky, zkontroluje proti výpisu archivu (velikost a CRC-32), zapíše a nový archiv se zpětně přečte; nový archiv nemá heslo; okno průběhu zobrazí každý z nich a návratový kód je 0, jen pokud byly všechny archivy převedeny a zkontrolovány</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>spustí engine v národním prostředí LOCALE (například ru_RU.UTF-8 nebo ru), aby zobrazoval, hledal a rozbaloval názvy archivů vytvořených v systému daného jazyka; totéž co proměnná QUOVARA_ARCHIVE_LOCALE</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>nerozpoznaný přepínač &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>přepínač &apos;%1&apos; nepřipouští argument</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>přepínač &apos;%1&apos; vyžaduje argument</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>přepínač &apos;--convert&apos; vyžaduje formát (%1) a archiv</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>neznámý formát &apos;%1&apos; pro &apos;--convert&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>přepínač &apos;--convert&apos; vyžaduje za formátem archiv</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>není dostupná (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>nelze ji vytvořit (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>je to symbolický odkaz</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>není to složka</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>patří jinému uživateli</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>mají k ní přístup jiní uživatelé (režim %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>nelze ji vytvořit</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara nemůže použít svou pracovní složku
%1
protože %2.
Nic se do ní nezapisuje a žádná úloha se nespustí, dokud to nebude napraveno.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>Proces nelze ukončit</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>Průběh: %1 MB (komprimováno %2 MB) z %3 MB Poměr: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Celkem: %1       Zbývá: %2       Uplynulo: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Dokončeno: %1 % Zbývá: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>nelze přečíst %1 (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>nelze zkopírovat %1 (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>nelze zapsat %1 (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>SFX nelze vytvořit: chybí soubor zavaděče %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>SFX nelze vytvořit: chybí soubor enginu %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>SFX nelze vytvořit: chybí archiv %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>SFX nelze vytvořit: %1 nelze zapsat (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>SFX nelze vytvořit: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>SFX nelze vytvořit: %1 nelze nahradit.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara vytváří SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Čekejte prosím...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara je připravena</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Vyberte akci</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX vytvořen</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>Rozbalování bylo zastaveno: nebyl rozbalen žádný soubor.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>Rozbalování bylo zastaveno: 1 soubor byl rozbalen celý.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>Rozbalování bylo zastaveno: %n soubor byl rozbalen celý.</numerusform>
            <numerusform>Rozbalování bylo zastaveno: %n soubory byly rozbaleny celé.</numerusform>
            <numerusform>Rozbalování bylo zastaveno: %n souborů bylo rozbaleno celých.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

„%1“ se právě zapisoval a byl neúplný: byl odstraněn.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

„%1“ se právě zapisoval a je neúplný, ale nepodařilo se jej odstranit (%2): smažte jej prosím.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Nahradil váš soubor stejného názvu; engine už tento soubor přepsal, takže jeho obsah je ztracen.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Pokud jste měli soubor tohoto názvu, engine jej už přepsal, takže jeho obsah je ztracen.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

Zapisovaný soubor („%1“) nebyl na disku nalezen.</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… a %n další</numerusform>
            <numerusform>
… a %n další</numerusform>
            <numerusform>
… a %n dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>Archiv
%1
obsahuje 1 položku, jejíž název by ji vyvedl mimo jakoukoli složku, do které se rozbalí. Je zobrazena, ale nikdy nebude rozbalena:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>Archiv
%1
obsahuje %n položku, jejíž název by ji vyvedl mimo jakoukoli složku, do které se rozbalí. Je zobrazena, ale nikdy nebude rozbalena:

%2</numerusform>
            <numerusform>Archiv
%1
obsahuje %n položky, jejichž názvy by je vyvedly mimo jakoukoli složku, do které se rozbalí. Jsou zobrazeny, ale nikdy nebudou rozbaleny:

%2</numerusform>
            <numerusform>Archiv
%1
obsahuje %n položek, jejichž názvy by je vyvedly mimo jakoukoli složku, do které se rozbalí. Jsou zobrazeny, ale nikdy nebudou rozbaleny:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 položka nebyla rozbalena: její název by ji umístil mimo cílovou složku.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n položka nebyla rozbalena: její název by ji umístil mimo cílovou složku.

%1</numerusform>
            <numerusform>%n položky nebyly rozbaleny: jejich názvy by je umístily mimo cílovou složku.

%1</numerusform>
            <numerusform>%n položek nebylo rozbaleno: jejich názvy by je umístily mimo cílovou složku.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>Nic nebylo rozbaleno: každá položka archivu má název, který by ji umístil mimo cílovou složku.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>Nic nebylo rozbaleno: archiv obsahuje %n položku, jejíž název by ji umístil mimo cílovou složku, příliš mnoho na vynechávání po jedné.</numerusform>
            <numerusform>Nic nebylo rozbaleno: archiv obsahuje %n položky, jejichž názvy by je umístily mimo cílovou složku, příliš mnoho na vynechávání po jedné.</numerusform>
            <numerusform>Nic nebylo rozbaleno: archiv obsahuje %n položek, jejichž názvy by je umístily mimo cílovou složku, příliš mnoho na vynechávání po jedné.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>Název
%1
obsahuje &quot;\&quot; nebo &quot;:&quot;, které by engine uložil jako složku nebo jednotku: po rozbalení by se mohl ocitnout mimo složku, do které se rozbaluje. Nic nebylo spuštěno; nejprve jej přejmenujte.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>Položka
%1
se nerozbalí: její název by ji umístil mimo cílovou složku.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Uharc 0.4 nebyl nalezen, program bude ukončen</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Uložit do</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>Převést %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formát:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Uložit do:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Procházet…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Nový archiv: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Každý soubor je před uložením nového archivu zkontrolován proti výpisu archivu (velikost a CRC-32). Atributy skrytý a systémový se nezachovají.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Složka %1 neexistuje.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Zadejte celou cestu ke složce, počínaje &quot;/&quot;.</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>Převádí se %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Kontrola rozbalených souborů proti výpisu…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>Zapisuje se archiv %1…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Zpětné čtení nového archivu…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Zastavit</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>%1 nelze otevřít: program pro otevírání souborů, xdg-open, není nainstalován.

Je součástí balíčku xdg-utils; nainstalujte jej (například příkazem &quot;sudo apt install xdg-utils&quot;) a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Nedostatek paměti nebo systémových prostředků. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>Soubor nelze najít. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>Složku nelze najít. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>Formát souboru není platný. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>Systém nemá pro tento typ souboru žádné přiřazení</translation>
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
            <numerusform>%n bajtů</numerusform>
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
        <translation>%1 bajtů</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 položka</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n položka</numerusform>
            <numerusform>%n položky</numerusform>
            <numerusform>%n položek</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Změněno</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Atributy</translation>
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
        <translation>Soubory</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Přidávání do %1 dokončeno</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Přidávání do %1 selhalo</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Přidávání do %1 zastaveno</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Rozbalení %1 dokončeno</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Rozbalení %1 selhalo</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Rozbalení %1 zastaveno</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Test %1 dokončen</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Test %1 selhal</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Test %1 zastaven</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>Vytvoření SFX z %1 dokončeno</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>Vytvoření SFX z %1 selhalo</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>Vytvoření SFX z %1 zastaveno</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Cesta k souboru</translation>
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
        <translation>Ovládací prvek TaskPaneBar.
Panel sbalitelných skupin úloh s odkazy, podrobnostmi a vloženými ovládacími prvky, vykreslený v barvách pracovního prostředí.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Došlo k chybě!
Zadaný klíč položky neodpovídá žádné z existujících položek</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Hledání...</translation>
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
        <translation>Název archivu</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metoda</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Velikost slovníku</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Přidat %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Uložit archiv do:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Procházet</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Včetně podsložek </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprese</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Komprese multimédií</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Slovník</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Pouze tyto soubory: (např. *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Vytvořit a přidat soubor</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Vytvořit a přesunout soubor</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Výchozí</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>Musíte zadat název archivu</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Uložit soubor</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Soubor Uha (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>„%1“ nelze najít. Zkontrolujte pravopis adresy a zkuste to znovu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>„%1“ nelze najít: „%2“ je soubor, ne složka ani archiv.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>Archiv „%1“ neobsahuje složku „%2“.</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>Archiv byl převeden a každá položka zkontrolována:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Příkazy</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Úlohy archivu</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Výsledky hledání</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — ukázkový engine</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Otevřít archiv</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>Archivy UHARC (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara hledá</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>Tlačítko Zpět zastaví hledání</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>%1 zatím v této verzi není k dispozici.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara již běží</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>Není vybrána žádná položka</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>Není vybrán žádný archiv .uha</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>Z archivu chráněného heslem nelze vytvořit SFX</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara je připravena</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Vyberte akci</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara přeskakuje</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Čekejte prosím...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara čte archiv</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Klávesou Escape zastavíte</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara čte archiv: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>Čtení %1 …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>Čtení %1 … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 položka</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n položka</numerusform>
            <numerusform>%n položky</numerusform>
            <numerusform>%n položek</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Počet souborů:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Normální velikost:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Komprimovaná velikost:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Metoda:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Poměr:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Poměr</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Hledat soubor v archivu</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Hledat soubor v archivu (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Hledat (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Rozbalit vybranou položku</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Spustit vybraný soubor</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Velké ikony</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Malé ikony</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Seznam</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>Zpět (Backspace, Alt+←)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Přidat soubory do archivu</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Rozbalit</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Rozbalit archiv</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Vytvořit z archivu samorozbalovací program</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Ověřit</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Otestovat archiv</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Zobrazení</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Změnit zobrazení</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizovat</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Vyhledat novější verzi</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>O programu Quovara. Klávesy: Ctrl+O otevře archiv, F5 jej znovu načte, Ctrl+Q ukončí program</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Operace se soubory a složkami</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Položka</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otevřít</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>&amp;Rozbalit…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Převést…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Zobrazení</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>Engine nelze spustit.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Zadejte složku, do které se má rozbalit, nebo ji vyberte v seznamu složek.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>„%1“ není úplná cesta. Zadejte cestu začínající &quot;/&quot; nebo &quot;~/&quot; pro složku ve vaší domovské složce.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>Složku „%1“ nelze vytvořit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>„%1“ je soubor, ne složka.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>Složka „%1“ neexistuje. Vytvořit ji?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Zkontrolujte název složky a zda je na disku dost místa.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>V „%1“ nemáte oprávnění vytvářet složky.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>„%1“ je soubor, ne složka. Zadejte složku, do které se má rozbalit.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>Složku „%1“ nelze zobrazit v seznamu složek.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Složky</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>V %1 nelze vytvořit novou složku</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Rozbalit</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>Rozbalit %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Rozbalit do:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Vytvořit novou složku</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Rozbalit soubory do aktuální složky</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Možnost</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Rozbalit soubory s úplnou cestou</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Přepsat soubory</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Pouze tyto soubory:  (např. *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nová složka</translation>
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
        <translation>Engine UHARC</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Webové stránky %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>E-mail %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Stránka enginu %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Otevře webové stránky v prohlížeči</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>Napíše e-mail v poštovním programu</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Otevře webovou stránku v prohlížeči</translation>
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
        <translation>Quovara v 2.0 – grafické rozhraní pro UHARC</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a BETA VERZE – archivátor s vysokou kompresí i pro multimédia</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Webové stránky: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>E-mail: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>JE ZDARMA, NE PRO KOMERČNÍ POUŽITÍ</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>POUZE PRO TESTOVÁNÍ A HODNOCENÍ, NE PRO KOMERČNÍ POUŽITÍ</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>DO TOHO, NEAPOL</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Napsali vývojáři programu Quovara</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC je samostatný program vlastního autora. Quovara jej neobsahuje.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>Všem, kdo udržují staré archivy naživu.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Přidávání...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Rozbalování...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Testování...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>Při testu nebyly nalezeny žádné chyby</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>Engine skončil, aniž by cokoli vypsal, takže úlohu nelze sledovat.
Skript úlohy: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>Úlohu nelze spustit: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>Engine skončil neočekávaně (%2).
Archiv: %1
Úloha nebyla dokončena; na její výsledek se nespoléhejte.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>Engine se ptá:

%1

Ano: archiv bude nahrazen novým, který obsahuje pouze soubory této úlohy; vše, co archiv nyní obsahuje, bude ztraceno (engine neumí přidávat do existujícího archivu).
Ne: úloha se zastaví a archiv zůstane beze změny.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>Archiv zůstal beze změny.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>Engine se ptá:

%1

Ano odpoví &quot;y&quot;, Ne odpoví &quot;n&quot;.</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>signál %1, %2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>signál %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>návratový kód %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>návratový kód %1; hlášení: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>jeho výstup %1 byl během běhu odstraněn nebo zkrácen</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Stránky</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>&amp;Cesta pro rozbalení</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Cesta pro rozbalení</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Instalační program</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>Spustit &amp;před rozbalením</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>Spustit po rozb&amp;alení</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>Text SFX</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>&amp;Titulek okna SFX</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>Text zobrazený v okně &amp;SFX (max. délka 156) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Text licence</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>Titulek okna &amp;licence</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>Text &amp;zobrazený v okně licence</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Vytvořit</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Obecné</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>T&amp;ext</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>Pok&amp;ročilé</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>SFX nelze vytvořit: %1 je jedním ze souborů, ze kterých se vytváří.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>Vytvořit SFX</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>Uložit SFX</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Aplikace (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>Instalační program nainstaluje NÁZEV PROGRAMU do následující složky. Pokračujte kliknutím na Instalovat. Chcete-li vybrat jinou složku, klikněte na Procházet</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Další tlačítka</translation>
    </message>
</context>
</TS>
