<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Dimensione originale: %1 MB</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Dimensione compressa: %1 MB</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Modalità: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>la destinazione %1 non è una cartella</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>impossibile creare la cartella %1</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>impossibile collegare un&apos;unità a %1: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>nessuna lettera di unità del prefisso del motore è libera</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>questo sistema non dispone di Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>impossibile creare un insieme di regole Landlock: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>impossibile confinare l&apos;operazione in %1: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>La conversione è stata interrotta.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>L&apos;elenco dell&apos;archivio non contiene alcun file.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>Il nuovo archivio è stato scritto e verificato, ma %1; non è stato lasciato nulla.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  e altri %n</numerusform>
            <numerusform>  e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>Il motore non ha estratto queste voci dell&apos;elenco:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Queste voci sono state estratte con una dimensione o un CRC-32 diversi da quelli indicati dall&apos;elenco:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>Il motore ha estratto file che non sono nell&apos;elenco:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (dimensione %2, CRC-32 %3; nell&apos;elenco: dimensione %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>errore sconosciuto</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>%1 non può essere letto (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 è cambiato dopo essere stato verificato</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>%1 non può essere creato (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>la libarchive di questo sistema non è in grado di scrivere %1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>%1 non può essere scritto (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>Impossibile rileggere il nuovo archivio (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>Il nuovo archivio contiene %1 voci, ma ne sono state scritte %2.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>Il nuovo archivio, riletto, non corrisponde a quanto scritto: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>Non è stato convertito nulla: non è stata fornita alcuna password.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>Il nuovo archivio non sarà protetto da password.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>Non è stato convertito nulla: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>Non è stato convertito nulla: queste voci hanno nomi che uscirebbero da qualsiasi cartella in cui venissero estratte, quindi l&apos;archivio non può essere convertito per intero:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>Non è stato convertito nulla. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Questi archivi non sono stati convertiti:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Tipi di file</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>File di elenco</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>File esclusi</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>File da estrarre</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>Da elenco di file (percorso completo)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Escludi: (es.: *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Quovara richiede un display grafico; DISPLAY o WAYLAND_DISPLAY non sono impostate</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>Il motore ha segnalato un errore:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>impossibile impostare i permessi di %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>impossibile avviare %1: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Uso: quovara %1 FILE...
Copia i file del motore nella cartella del programma di Quovara. Nomi attesi: %2 (maiuscole o minuscole indifferenti).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>Non è un file del motore: %1
Nomi attesi: %2 (maiuscole o minuscole indifferenti).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>File inesistente: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>Impossibile copiare %1 in %2: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Installato %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>Il motore funziona: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>Il motore funziona tramite %1: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>Viene eseguito nel prefisso wine %1 con la localizzazione %2: code page %3 per i suoi testi e i nomi che memorizza, %4 per i nomi che legge.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Nota: Quovara ora usa il motore in %1, che contiene un proprio uharc.exe.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>Non c&apos;è alcun uharc.exe in %1, ma Quovara ne ha bisogno. Installalo con: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>wine non è stato trovato (imposta QUOVARA_WINE sul launcher o aggiungi wine al PATH): Quovara lo usa per eseguire il motore, che è un programma Windows.
Su Debian, installalo con:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 non può eseguire il motore %2: manca la sua parte a 32 bit.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>Su Debian, installala con:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>Il motore %1 non ha mostrato il suo messaggio iniziale.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>Il motore %1 non ha mostrato il suo messaggio iniziale tramite %2.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>La localizzazione %1 non è installata su questo sistema, quindi il motore non può leggere né scrivere nomi con le sue lettere. Aggiungila con
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(o &quot;sudo dpkg-reconfigure locales&quot;) e riavvia Quovara.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>code page %1 (localizzazione %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Motore: nessuno in %1 (quovara --install-engine lo installa lì)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Motore: UHARC, versione sconosciuta (programma Windows, eseguito tramite wine) in %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Motore: sostituto dimostrativo, versione sconosciuta (non UHARC) in %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Motore: UHARC %1 (programma Windows, eseguito tramite wine) in %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Motore: sostituto dimostrativo %1 (non UHARC) in %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Versioni del motore memorizzate: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>impossibile scrivere nella cartella %1 (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>non è stato possibile spostarlo in %1 (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>non è stato trovato alcun nome libero per %1</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>Non è un archivio UHARC (.uha).</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>Non è stato estratto nulla: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>Non è stato estratto nulla: non è stata fornita alcuna password.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>I file sono stati estratti, ma %1; non è stato lasciato nulla.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Questi archivi non sono stati estratti:

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
        <translation>Uso: quovara [ARCHIVE.uha]
  o: quovara &quot;WORD  PATH&quot;
  o: quovara &quot;WORD &quot; PATH
  o: quovara OPTION...

Quovara sfoglia, estrae, verifica e crea archivi UHARC (.uha); ogni
operazione è un&apos;esecuzione del motore UHARC uharc.exe, che si trova nella
cartella del programma.

Senza argomenti, la finestra principale si apre sulla cartella home. Con il
percorso di un archivio (un nome che termina in .uha), vi si apre l&apos;archivio.

Una parola di richiesta apre una sola finestra, per PATH; Quovara termina
quando questa viene chiusa:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>la finestra Estrai per l&apos;archivio PATH</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>la finestra Aggiungi per il file o la cartella PATH</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>la finestra Crea SFX per l&apos;archivio PATH</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Gli argomenti vengono uniti con un solo spazio, e la parola è seguita da due
caratteri separatori prima del percorso: due spazi all&apos;interno di un argomento
(&quot;extract  /data/a.uha&quot;), oppure uno spazio alla fine della parola e il
percorso come argomento successivo (&quot;extract &quot; /data/a.uha).

Opzioni:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>fine delle opzioni: ogni argomento successivo è una parola di richiesta o un percorso, anche se inizia con &quot;-&quot; (un percorso si può scrivere anche ./-name.uha)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
Sono accettate anche le opzioni proprie di Qt, come -platform NAME. Senza di
esse, o senza QT_QPA_PLATFORM, una finestra richiede DISPLAY o WAYLAND_DISPLAY.

Stato di uscita: 0 se completato; 1 senza display grafico; 2 per un&apos;opzione
sconosciuta o usata male. --install-engine termina con un valore da 0 a 3,
come indicato in quovara(1).
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>il motore %1 non esiste</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>l&apos;operazione indica %1, che non è il motore della cartella del programma %2; non è stata avviata</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>impossibile leggere il file di elenco %1: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>il file di elenco %1 indica un file che il motore non può accettare. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>impossibile scrivere la copia %1 del file di elenco: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>lo script dell&apos;operazione %1 non è stato scritto da questo programma</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>impossibile leggere lo script dell&apos;operazione %1</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>lo script dell&apos;operazione %1 è stato modificato dopo essere stato scritto; non è stato eseguito</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>lo script dell&apos;operazione %1 non indica alcun comando</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>l&apos;operazione chiede di scrivere il suo output in %1, che non è il file di output della console della cartella di lavoro</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 è un programma Windows e non è stato trovato alcun launcher (wine)</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>impossibile passare al motore la cartella dell&apos;archivio: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>impossibile passare l&apos;archivio al motore: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>impossibile confinare l&apos;estrazione nella sua destinazione: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>impossibile creare il file di output %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>impossibile avviare %1: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>L&apos;archivio</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>Il nome dell&apos;archivio</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>La riga di comando</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>La cartella di destinazione</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>La dimensione del dizionario</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>L&apos;esclusione</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>Il tipo di file</translation>
    </message>
    <message>
        <source>item</source>
        <translation>L&apos;elemento</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>Il file di elenco</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Il nome</translation>
    </message>
    <message>
        <source>password</source>
        <translation>La password</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>La cartella del programma</translation>
    </message>
    <message>
        <source>source</source>
        <translation>L&apos;origine</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>La cartella temporanea</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>La password contiene lettere non ASCII. %1 Non è stato eseguito nulla.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>%1
%2
contiene lettere non ASCII. %3 Non è stato eseguito nulla.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(le sue code page %1 e %2 non le contengono)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(la sua code page %1 non le contiene)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>avvia Quovara con &quot;--archive-locale LOCALE&quot; indicando una localizzazione le cui code page le contengano.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>avvia Quovara con &quot;--archive-locale %1&quot;, una localizzazione le cui code page le contengono.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>La password contiene lettere che il motore non può accettare con la localizzazione %1 %2. Non è stato eseguito nulla. Per continuare, scegli una password con altre lettere, oppure %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>%1
%2
contiene lettere che il motore non può accettare con la localizzazione %3%4 %5. Non è stato eseguito nulla. Per continuare, rinominalo con altre lettere, oppure %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>La cartella
%1
contiene un a capo, che uno script di operazione non può contenere. Non è stato eseguito nulla.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>La password contiene un a capo, che una riga di operazione non può contenere. Non è stato eseguito nulla.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>%1 contiene un a capo, che una riga di operazione non può contenere:
%2
Non è stato eseguito nulla.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>al posto del file c&apos;è un collegamento simbolico</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>il file che si trova al posto del file non è nostro</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>Impossibile scrivere lo script dell&apos;operazione %1: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>impossibile collegare %1 in %2: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>nessun nome semplice è libero in %1 per un collegamento a %2</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Preparazione del motore per il primo utilizzo…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>Non è stato possibile preparare il motore per il primo utilizzo: %1.
(prefisso wine %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>impossibile creare la cartella %1</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>impossibile avviare %1</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>ha richiesto più di %n secondo</numerusform>
            <numerusform>ha richiesto più di %n secondi</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine è terminato con il codice %1 senza crearlo</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara non può mostrare l&apos;archivio
%1
perché %2.
Non ne viene mostrato nulla.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>non può creare la vista della cartella %1</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>l&apos;elenco del motore è incompleto</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>la lettura è stata interrotta</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Inserisci la password</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>non può sostituire la vista della cartella precedente</translation>
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
        <translation>Nessuna compressione</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ veloce</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ normale</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ massima</translation>
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
        <translation>Alcuni nomi dell&apos;archivio
%1
non possono esistere così come sono su questo sistema (un nome più lungo di 255 byte, oppure un file e una cartella con lo stesso nome): 1 nome viene mostrato abbreviato o numerato. Vengono estratti con i nomi memorizzati.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Alcuni nomi dell&apos;archivio
%1
non possono esistere così come sono su questo sistema (un nome più lungo di 255 byte, oppure un file e una cartella con lo stesso nome): %n nome viene mostrato abbreviato o numerato. Vengono estratti con i nomi memorizzati.</numerusform>
            <numerusform>Alcuni nomi dell&apos;archivio
%1
non possono esistere così come sono su questo sistema (un nome più lungo di 255 byte, oppure un file e una cartella con lo stesso nome): %n nomi vengono mostrati abbreviati o numerati. Vengono estratti con i nomi memorizzati.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>non può creare la vista della cartella: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; non indica alcuna localizzazione (per esempio ru_RU.UTF-8, o ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>Prova &apos;quovara --help&apos; per ulteriori informazioni.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>l&apos;opzione &apos;--extract-here&apos; richiede un archivio</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>mostra questo aiuto ed esce</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>mostra la versione di Quovara e del motore presente nella cartella del programma, ed esce</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>copia i file del motore (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) nella cartella del programma, verifica che il motore funzioni ed esce; non si apre alcuna finestra</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>estrae ogni archivio accanto a sé, mai dentro o sopra qualcosa che esiste già: un archivio con una sola cartella principale o un solo file così com&apos;è, qualsiasi altro in una nuova cartella con il suo nome (&quot;name (2)&quot; se quel nome è già usato); una finestra di avanzamento mostra ciascuno, e lo stato è 0 solo se tutti gli archivi sono stati estratti</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>converte ogni archivio in FORMAT (zip, 7z, tar.xz o tar.zst) accanto a sé, come name.FORMAT (&quot;name (2).FORMAT&quot; se quel nome è già usato, mai sopra qualcosa): ogni file viene estratto in una cartella privata, confrontato con l&apos;elenco dell&apos;archivio (dimensione e CRC-32) e scritto, e il nuovo archivio viene riletto; il nuovo archivio non ha password; una finestra di avanzamento mostra ciascuno, e lo stato è 0 solo se tutti gli archivi sono stati convertiti e verificati</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>esegue il motore con la localizzazione LOCALE (per esempio ru_RU.UTF-8, o ru) per mostrare, cercare ed estrarre i nomi degli archivi creati su un sistema in quella lingua; equivale alla variabile QUOVARA_ARCHIVE_LOCALE</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>opzione non riconosciuta &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>l&apos;opzione &apos;%1&apos; non accetta argomenti</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>l&apos;opzione &apos;%1&apos; richiede un argomento</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>l&apos;opzione &apos;--convert&apos; richiede un formato (%1) e un archivio</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>formato sconosciuto &apos;%1&apos; per &apos;--convert&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>l&apos;opzione &apos;--convert&apos; richiede un archivio dopo il formato</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>non è raggiungibile (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>non può essere creata (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>è un collegamento simbolico</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>appartiene a un altro utente</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>altri utenti vi hanno accesso (modalità %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>non può essere creata</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara non può usare la sua cartella di lavoro
%1
perché %2.
Non vi viene scritto nulla e nessuna operazione viene eseguita finché il problema non è risolto.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>Impossibile terminare il processo</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>Avanzamento: %1 MB (compressi %2 MB) di %3 MB  Rapporto: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Totale: %1       Rimanente: %2       Trascorso: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Completato: %1 % Rimanente: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>impossibile leggere %1 (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>impossibile copiare %1 (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>impossibile scrivere %1 (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>Impossibile creare l&apos;SFX: manca il file di avvio %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>Impossibile creare l&apos;SFX: manca il file del motore %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>Impossibile creare l&apos;SFX: manca l&apos;archivio %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>Impossibile creare l&apos;SFX: %1 non può essere scritto (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>Impossibile creare l&apos;SFX: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>Impossibile creare l&apos;SFX: %1 non può essere sostituito.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara sta creando l&apos;SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Attendere...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara è pronto</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Seleziona un&apos;azione</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX creato</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>L&apos;estrazione è stata interrotta: non è stato estratto alcun file.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>L&apos;estrazione è stata interrotta: 1 file è stato estratto per intero.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>L&apos;estrazione è stata interrotta: %n file è stato estratto per intero.</numerusform>
            <numerusform>L&apos;estrazione è stata interrotta: %n file sono stati estratti per intero.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

&quot;%1&quot; era in scrittura ed era incompleto: è stato rimosso.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

&quot;%1&quot; era in scrittura ed è incompleto, ma non è stato possibile rimuoverlo (%2): eliminalo manualmente.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Aveva sostituito un tuo file con lo stesso nome; il motore aveva già sovrascritto quel file, quindi il suo contenuto è perso.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Se un tuo file aveva quel nome, il motore lo aveva già sovrascritto, quindi il suo contenuto è perso.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

Il file in scrittura (&quot;%1&quot;) non è stato trovato sul disco.</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… e altri %n</numerusform>
            <numerusform>
… e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>L&apos;archivio
%1
contiene 1 voce il cui nome uscirebbe da qualsiasi cartella in cui venga estratta. Viene mostrata, ma non verrà mai estratta:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>L&apos;archivio
%1
contiene %n voce il cui nome uscirebbe da qualsiasi cartella in cui venga estratta. Viene mostrata, ma non verrà mai estratta:

%2</numerusform>
            <numerusform>L&apos;archivio
%1
contiene %n voci i cui nomi uscirebbero da qualsiasi cartella in cui vengano estratte. Vengono mostrate, ma non verranno mai estratte:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 voce non è stata estratta: il suo nome la collocherebbe fuori dalla cartella di destinazione.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n voce non è stata estratta: il suo nome la collocherebbe fuori dalla cartella di destinazione.

%1</numerusform>
            <numerusform>%n voci non sono state estratte: i loro nomi le collocherebbero fuori dalla cartella di destinazione.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>Non è stato estratto nulla: ogni voce dell&apos;archivio ha un nome che la collocherebbe fuori dalla cartella di destinazione.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>Non è stato estratto nulla: l&apos;archivio contiene %n voce il cui nome la collocherebbe fuori dalla cartella di destinazione, troppe per escluderle una per una.</numerusform>
            <numerusform>Non è stato estratto nulla: l&apos;archivio contiene %n voci i cui nomi le collocherebbero fuori dalla cartella di destinazione, troppe per escluderle una per una.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>Il nome di
%1
contiene &quot;\&quot; o &quot;:&quot;, che il motore memorizzerebbe come una cartella o un&apos;unità: una volta estratto, potrebbe finire fuori dalla cartella in cui viene estratto. Non è stato eseguito nulla; rinominalo prima.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>La voce
%1
non viene estratta: il suo nome la collocherebbe fuori dalla cartella di destinazione.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Uharc 0.4 non rilevato, il programma verrà chiuso</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Salva in</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>Converti %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Salva in:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>Sf&amp;oglia…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Nuovo archivio: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Ogni file viene confrontato con l&apos;elenco dell&apos;archivio (dimensione e CRC-32) prima di conservare il nuovo archivio. Gli attributi nascosto e di sistema non vengono conservati.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>La cartella %1 non esiste.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Digita il percorso completo di una cartella, a partire da &quot;/&quot;.</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>Conversione di %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Confronto dei file estratti con l&apos;elenco…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>Scrittura dell&apos;archivio %1…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Rilettura del nuovo archivio…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Interrompi</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>Impossibile aprire %1: il programma che apre i file, xdg-open, non è installato.

È fornito dal pacchetto xdg-utils; installalo (per esempio con &quot;sudo apt install xdg-utils&quot;) e riprova.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Memoria o risorse del sistema esaurite. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>Impossibile trovare il file. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>Impossibile trovare la cartella. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>Il formato del file non è valido. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>Il sistema in uso non presenta alcuna associazione per questo tipo di file</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>Parametri: &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>quovara::DetailsModel</name>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n byte</numerusform>
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
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementi</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attributi</translation>
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
        <translation>File</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Aggiunta a %1 completata</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Aggiunta a %1 non riuscita</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Aggiunta a %1 interrotta</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Estrazione di %1 completata</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Estrazione di %1 non riuscita</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Estrazione di %1 interrotta</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Verifica di %1 completata</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Verifica di %1 non riuscita</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Verifica di %1 interrotta</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>Creazione dell&apos;SFX di %1 completata</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>Creazione dell&apos;SFX di %1 non riuscita</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>Creazione dell&apos;SFX di %1 interrotta</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Percorso file</translation>
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
        <translation>Controllo TaskPaneBar.
Un pannello di gruppi di attività comprimibili con collegamenti, dettagli e controlli incorporati, disegnato con i colori del desktop.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Si è verificato un errore.
La chiave dell&apos;elemento indicata non corrisponde ad alcun elemento esistente</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Ricerca...</translation>
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
        <translation>Nome dell&apos;archivio</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Dimensione del dizionario</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Aggiungi %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Salva l&apos;archivio in:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Sfoglia</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Includi sottocartelle </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compressione</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Compressione multimediale</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Dizionario</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Solo questi file: (es.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Crea e aggiungi file</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Crea e sposta file</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>Devi specificare il nome dell&apos;archivio</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Salva il file</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>File Uha (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>Impossibile trovare &quot;%1&quot;. Controlla che l&apos;indirizzo sia scritto correttamente e riprova.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>Impossibile trovare &quot;%1&quot;: &quot;%2&quot; è un file, non una cartella o un archivio.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>L&apos;archivio &quot;%1&quot; non contiene alcuna cartella &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>L&apos;archivio è stato convertito e ogni voce è stata verificata:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandi</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Attività dell&apos;archivio</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Risultati della ricerca</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — motore dimostrativo</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Apri un archivio</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>Archivi UHARC (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara sta cercando</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>Indietro interrompe la ricerca</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>%1 non è ancora disponibile in questa versione.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara è già in esecuzione</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>Nessun elemento selezionato</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>Nessun archivio .uha selezionato</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>Non è possibile creare un SFX da un archivio protetto da password</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara è pronto</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Seleziona un&apos;azione</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara sta saltando</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Attendere...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara sta leggendo l&apos;archivio</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Premi Esc per interrompere</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara sta leggendo l&apos;archivio: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>Lettura di %1 …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>Lettura di %1 … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 voce</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n voce</numerusform>
            <numerusform>%n voci</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Numero di file:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Dimensione originale:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Dimensione compressa:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Metodo:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Rapporto:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Cerca file nell&apos;archivio</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Cerca file nell&apos;archivio (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Cerca (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Estrai l&apos;elemento selezionato</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Esegui il file selezionato</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Icone grandi</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Icone piccole</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>Indietro (Backspace, Alt+Sinistra)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Aggiungi file a un archivio</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Estrai</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Estrai un archivio</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Crea un programma autoestraente dall&apos;archivio</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Verifica un archivio</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualizza</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Cambia la visualizzazione</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Cerca una versione più recente</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>Informazioni su Quovara. Tasti: Ctrl+O apre un archivio, F5 lo rilegge, Ctrl+Q esce</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Operazioni su file e cartelle</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Voce</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>&amp;Estrai…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Converti…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>Non è stato possibile avviare il motore.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Digita la cartella in cui estrarre o sceglila nell&apos;elenco delle cartelle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>&quot;%1&quot; non è un percorso completo. Digita un percorso che inizi con &quot;/&quot;, o con &quot;~/&quot; per una cartella nella tua cartella home.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>Impossibile creare la cartella &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>&quot;%1&quot; è un file, non una cartella.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>La cartella &quot;%1&quot; non esiste. Crearla?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Controlla il nome della cartella e che sul disco ci sia spazio.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>Non hai i permessi per creare cartelle in &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>&quot;%1&quot; è un file, non una cartella. Digita la cartella in cui estrarre.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>La cartella &quot;%1&quot; non può essere mostrata nell&apos;elenco delle cartelle.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>Non è stato possibile creare la nuova cartella in %1</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Estrai</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>Estrai %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Estrai in:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crea nuova cartella</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Estrai i file nella cartella corrente</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opzione</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Estrai i file con il percorso completo</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Sovrascrivi i file</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Solo questi file:  (es.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nuova cartella</translation>
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
        <translation>Motore UHARC</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Sito web %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>E-mail %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Pagina del motore %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Apre il sito web nel browser</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>Scrive un&apos;e-mail nel programma di posta</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Apre la pagina web nel browser</translation>
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
        <translation>Quovara v 2.0, interfaccia grafica per UHARC</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a VERSIONE BETA, archiviatore multimediale ad alta compressione</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Sito web: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>E-mail: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>È GRATUITO, NON PER USO COMMERCIALE</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>SOLO PER PROVA E VALUTAZIONE, NON PER USO COMMERCIALE</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>FORZA NAPOLI</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Scritto dagli sviluppatori di Quovara</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC è un programma separato del suo autore. Quovara non lo include.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>Per tutti coloro che mantengono in vita i vecchi archivi.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Aggiunta...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Estrazione...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Verifica...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>Nessun errore rilevato durante la verifica</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>Il motore è terminato senza scrivere alcun output, quindi non è possibile seguire l&apos;operazione.
Script dell&apos;operazione: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>Non è stato possibile avviare l&apos;operazione: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>Il motore è terminato in modo anomalo (%2).
Archivio: %1
L&apos;operazione non è stata completata; non fare affidamento sul suo risultato.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>Il motore chiede:

%1

Sì: l&apos;archivio viene sostituito da uno nuovo che contiene solo i file di questa operazione; tutto ciò che l&apos;archivio contiene ora va perso (il motore non può aggiungere a un archivio esistente).
No: l&apos;operazione si interrompe e l&apos;archivio resta com&apos;è.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>L&apos;archivio è stato lasciato com&apos;era.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>Il motore chiede:

%1

Sì risponde &quot;y&quot;, No risponde &quot;n&quot;.</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>segnale %1, %2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>segnale %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>codice di uscita %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>codice di uscita %1; ha detto: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>il suo output %1 è stato rimosso o troncato durante l&apos;esecuzione</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>&amp;Percorso di estrazione</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Percorso di estrazione</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Programma di installazione</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>Esegui p&amp;rima dell&apos;estrazione</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>Esegui &amp;dopo l&apos;estrazione</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>Testo dell&apos;SFX</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>Tito&amp;lo della finestra dell&apos;SFX</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>Testo da mostrare nella finestra dell&apos;&amp;SFX (max 156 caratteri) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Testo della licenza</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>Titolo della finestra della l&amp;icenza</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>Testo da mostrare nella fi&amp;nestra della licenza</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Crea</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Generale</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Testo</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>A&amp;vanzate</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>Impossibile creare l&apos;SFX: %1 è uno dei file da cui viene creato.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>Crea SFX</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>Salva l&apos;SFX</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Applicazione (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>Il programma di installazione installerà NOME DEL PROGRAMMA nella cartella seguente. Per continuare, fai clic su Installa. Se vuoi selezionare una cartella diversa, fai clic su Sfoglia</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Altri pulsanti</translation>
    </message>
</context>
</TS>
