<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>Archivos: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Tamaño original: %1 MB</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Tamaño comprimido: %1 MB</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Modo: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>el destino %1 no es una carpeta</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>no se puede asociar una unidad a %1: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>no queda libre ninguna letra de unidad en el prefijo del motor</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>este sistema no tiene Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>no se puede crear un conjunto de reglas de Landlock: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>no se puede confinar el trabajo a %1: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>Se detuvo la conversión.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>El listado del archivador no contiene ningún archivo.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>El nuevo archivador se escribió y se comprobó, pero %1; no se dejó nada atrás.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  y %n más</numerusform>
            <numerusform>  y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>El motor no extrajo estas entradas del listado:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Estas entradas se extrajeron con un tamaño o un CRC-32 distinto del que indica el listado:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>El motor extrajo archivos que no están en el listado:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (tamaño %2, CRC-32 %3; en el listado: tamaño %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>%1 no se puede leer (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 cambió después de comprobarse</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>%1 no se puede crear (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>la libarchive de este sistema no puede escribir %1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>%1 no se puede escribir (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>No se puede volver a leer el nuevo archivador (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>El nuevo archivador contiene %1 entradas, pero se escribieron %2.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>El nuevo archivador no se lee tal como se escribió: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>No se convirtió nada: no se proporcionó ninguna contraseña.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>El nuevo archivador no estará protegido con contraseña.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>No se convirtió nada: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>No se convirtió nada: estas entradas tienen nombres que saldrían de cualquier carpeta en la que se extrajeran, por lo que el archivador no se puede convertir completo:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>No se convirtió nada. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Estos archivadores no se convirtieron:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Tipos de archivo</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>Archivo de lista</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Archivos excluidos</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>Archivo que extraer</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>Por lista de archivos (ruta completa)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Excluir: (p. ej.: *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Quovara necesita una pantalla gráfica; DISPLAY o WAYLAND_DISPLAY no están definidas</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>El motor ha informado de un error:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>no se pueden establecer los permisos de %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 no se pudo iniciar: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Uso: quovara %1 FILE...
Copia los archivos del motor en la carpeta del programa de Quovara. Nombres esperados: %2 (en mayúsculas o minúsculas).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>No es un archivo del motor: %1
Nombres esperados: %2 (en mayúsculas o minúsculas).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>No existe el archivo: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>No se pudo copiar %1 en %2: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Se instaló %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>El motor funciona: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>El motor funciona a través de %1: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>Se ejecuta en el prefijo de wine %1 con la configuración regional %2: página de códigos %3 para su texto y los nombres que guarda, %4 para los nombres que lee.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Nota: Quovara usa ahora el motor de %1, que contiene su propio uharc.exe.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>No hay ningún uharc.exe en %1 y Quovara lo necesita. Instálalo con: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>No se encontró wine (define QUOVARA_WINE con el lanzador o pon wine en el PATH): Quovara lo usa para ejecutar el motor, que es un programa de Windows.
En Debian, instálalo con:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 no puede ejecutar el motor %2: falta su parte de 32 bits.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>En Debian, instálala con:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>El motor %1 no mostró su mensaje inicial.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>El motor %1 no mostró su mensaje inicial a través de %2.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>La configuración regional %1 no está instalada en este sistema, por lo que el motor no puede leer ni escribir nombres con sus letras. Añádela con
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(o &quot;sudo dpkg-reconfigure locales&quot;) e inicia Quovara de nuevo.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>página de códigos %1 (configuración regional %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Motor: ninguno en %1 (quovara --install-engine lo instala ahí)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Motor: UHARC, versión desconocida (programa de Windows, ejecutado con wine) en %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Motor: sustituto de demostración, versión desconocida (no es UHARC) en %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Motor: UHARC %1 (programa de Windows, ejecutado con wine) en %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Motor: sustituto de demostración %1 (no es UHARC) en %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Versiones del motor guardadas: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>no se puede escribir en la carpeta %1 (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>no se pudo mover a %1 (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>no se encontró ningún nombre libre para %1</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>No existe ese archivo.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>No es un archivador UHARC (.uha).</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>No se extrajo nada: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>No se extrajo nada: no se proporcionó ninguna contraseña.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>Los archivos se extrajeron, pero %1; no se dejó nada atrás.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Estos archivadores no se extrajeron:

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

Quovara explora, extrae, prueba y crea archivadores UHARC (.uha); cada
operación es una ejecución del motor UHARC uharc.exe, que se guarda en la
carpeta del programa.

Sin argumentos, la ventana principal se abre en la carpeta personal. Con la
ruta de un archivador (un nombre que termina en .uha), el archivador se abre
en ella.

Una palabra de petición abre una sola ventana, para PATH; Quovara termina
cuando esta se cierra:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>la ventana Extraer para el archivador PATH</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>la ventana Añadir para el archivo o la carpeta PATH</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>la ventana Crear SFX para el archivador PATH</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Los argumentos se unen con un solo espacio, y la palabra va seguida de dos
caracteres separadores antes de la ruta: dos espacios dentro de un argumento
(&quot;extract  /data/a.uha&quot;), o un espacio al final de la palabra y la ruta como
siguiente argumento (&quot;extract &quot; /data/a.uha).

Opciones:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>fin de las opciones: cada argumento posterior es una palabra de petición o una ruta, aunque empiece por &quot;-&quot; (una ruta también puede escribirse ./-name.uha)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
También se aceptan las opciones propias de Qt, como -platform NAME. Sin ninguna
de ellas, ni QT_QPA_PLATFORM, una ventana necesita DISPLAY o WAYLAND_DISPLAY.

Estado de salida: 0 si termina bien; 1 sin pantalla gráfica; 2 con una opción
desconocida o mal usada. --install-engine termina con 0 a 3, como indica
quovara(1).
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>el motor %1 no existe</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>el trabajo indica %1, que no es el motor de la carpeta del programa %2; no se inició</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>no se puede leer el archivo de lista %1: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>el archivo de lista %1 indica un archivo que el motor no admite. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>no se puede escribir la copia %1 del archivo de lista: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>el guion de trabajo %1 no lo escribió este programa</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>no se puede leer el guion de trabajo %1</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>el guion de trabajo %1 se modificó después de escribirse; no se ejecutó</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>el guion de trabajo %1 no indica ninguna orden</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>el trabajo pide escribir su salida en %1, que no es el archivo de salida de consola de la carpeta de trabajo</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 es un programa de Windows y no se encontró ningún lanzador (wine)</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>no se puede pasar la carpeta del archivador al motor: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>no se puede pasar el archivador al motor: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>no se puede confinar la extracción a su destino: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>no se puede crear el archivo de salida %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 no se pudo iniciar: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>El archivador</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>El nombre del archivador</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>La línea de órdenes</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>La carpeta de destino</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>El tamaño del diccionario</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>La exclusión</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>El tipo de archivo</translation>
    </message>
    <message>
        <source>item</source>
        <translation>El elemento</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>El archivo de lista</translation>
    </message>
    <message>
        <source>name</source>
        <translation>El nombre</translation>
    </message>
    <message>
        <source>password</source>
        <translation>La contraseña</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>La carpeta del programa</translation>
    </message>
    <message>
        <source>source</source>
        <translation>El origen</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>La carpeta temporal</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>La contraseña contiene letras fuera de ASCII. %1 No se ejecutó nada.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>%1
%2
contiene letras fuera de ASCII. %3 No se ejecutó nada.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(sus páginas de códigos %1 y %2 no las tienen)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(su página de códigos %1 no las tiene)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>inicia Quovara con &quot;--archive-locale LOCALE&quot; indicando una configuración regional cuyas páginas de códigos las tengan.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>inicia Quovara con &quot;--archive-locale %1&quot;, una configuración regional cuyas páginas de códigos las tienen.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>La contraseña contiene letras que el motor no admite con la configuración regional %1 %2. No se ejecutó nada. Para continuar, elige una contraseña con otras letras, o %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>%1
%2
contiene letras que el motor no admite con la configuración regional %3%4 %5. No se ejecutó nada. Para continuar, cambia el nombre usando otras letras, o %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>La carpeta
%1
contiene un salto de línea, que un guion de trabajo no puede incluir. No se ejecutó nada.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>La contraseña contiene un salto de línea, que una línea de trabajo no puede incluir. No se ejecutó nada.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>%1 contiene un salto de línea, que una línea de trabajo no puede incluir:
%2
No se ejecutó nada.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>hay un enlace simbólico donde debería estar el archivo</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>el archivo que está donde debería estar el archivo no es nuestro</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>No se puede escribir el guion de trabajo %1: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>no se puede enlazar %1 en %2: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>no hay ningún nombre simple libre en %1 para un enlace a %2</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Preparando el motor para su primer uso…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>No se pudo preparar el motor para su primer uso: %1.
(prefijo de wine %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>%1 no se pudo iniciar</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>tardó más de %n segundo</numerusform>
            <numerusform>tardó más de %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine terminó con el código %1 sin crearlo</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara no puede mostrar el archivador
%1
porque %2.
No se muestra nada de él.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>no puede crear la vista de carpeta %1</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>el listado del motor está incompleto</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>se detuvo la lectura</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Introducir contraseña</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>no puede sustituir la vista de carpeta anterior</translation>
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
        <translation>Almacenar</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ rápido</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ normal</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ máximo</translation>
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
        <translation>Algunos nombres del archivador
%1
no pueden existir tal cual en este sistema (un nombre de más de 255 bytes, o un archivo y una carpeta con el mismo nombre): 1 nombre se muestra acortado o numerado. Se extraen con sus nombres guardados.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Algunos nombres del archivador
%1
no pueden existir tal cual en este sistema (un nombre de más de 255 bytes, o un archivo y una carpeta con el mismo nombre): %n nombre se muestra acortado o numerado. Se extraen con sus nombres guardados.</numerusform>
            <numerusform>Algunos nombres del archivador
%1
no pueden existir tal cual en este sistema (un nombre de más de 255 bytes, o un archivo y una carpeta con el mismo nombre): %n nombres se muestran acortados o numerados. Se extraen con sus nombres guardados.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>no puede crear la vista de carpeta: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; no indica ninguna configuración regional (por ejemplo, ru_RU.UTF-8 o ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>Prueba &apos;quovara --help&apos; para obtener más información.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>la opción &apos;--extract-here&apos; necesita un archivador</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>muestra esta ayuda y termina</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>muestra la versión de Quovara y del motor que hay en la carpeta del programa, y termina</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>copia los archivos del motor (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) en la carpeta del programa, comprueba que el motor funciona y termina; no se abre ninguna ventana</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>extrae cada archivador junto a sí mismo, nunca dentro ni encima de nada que ya exista: un archivador con una sola carpeta de nivel superior o un solo archivo, tal cual; cualquier otro, en una carpeta nueva con su nombre (&quot;name (2)&quot; si ese ya existe); una ventana de progreso muestra cada uno, y el estado es 0 solo si se extrajeron todos los archivadores</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>convierte cada archivador a FORMAT (zip, 7z, tar.xz o tar.zst) junto a sí mismo, como name.FORMAT (&quot;name (2).FORMAT&quot; si ese ya existe, nunca encima de nada): cada archivo se extrae en una carpeta privada, se comprueba con el listado del archivador (tamaño y CRC-32) y se escribe, y el nuevo archivador se vuelve a leer; el nuevo archivador no tiene contraseña; una ventana de progreso muestra cada uno, y el estado es 0 solo si todos los archivadores se convirtieron y comprobaron</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>ejecuta el motor con la configuración regional LOCALE (por ejemplo, ru_RU.UTF-8 o ru) para mostrar, buscar y extraer los nombres de archivadores creados en un sistema de ese idioma; equivale a la variable QUOVARA_ARCHIVE_LOCALE</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>opción no reconocida &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>la opción &apos;%1&apos; no admite ningún argumento</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>la opción &apos;%1&apos; requiere un argumento</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>la opción &apos;--convert&apos; necesita un formato (%1) y un archivador</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>formato desconocido &apos;%1&apos; para &apos;--convert&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>la opción &apos;--convert&apos; necesita un archivador después del formato</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>no se puede acceder a ella (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>no se puede crear (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>es un enlace simbólico</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>pertenece a otro usuario</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>otros usuarios tienen acceso a ella (modo %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>no se puede crear</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara no puede usar su carpeta de trabajo
%1
porque %2.
No se escribe nada en ella y no se ejecuta ningún trabajo hasta que se corrija.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>No se pudo terminar el proceso</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>Progreso: %1 MB (comprimidos %2 MB) de %3 MB  Proporción: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Total: %1       Restante: %2       Transcurrido: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Completado: %1 % Restante: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>no se puede leer %1 (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>no se puede copiar %1 (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>no se puede escribir %1 (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>No se puede crear el SFX: falta el archivo de arranque %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>No se puede crear el SFX: falta el archivo del motor %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>No se puede crear el SFX: falta el archivador %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>No se puede crear el SFX: %1 no se puede escribir (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>No se puede crear el SFX: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>No se puede crear el SFX: %1 no se puede sustituir.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara está creando el SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Por favor, espera...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara está listo</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Selecciona una acción</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX creado</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>Se detuvo la extracción: no se extrajo ningún archivo.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>Se detuvo la extracción: se extrajo 1 archivo completo.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>Se detuvo la extracción: se extrajo %n archivo completo.</numerusform>
            <numerusform>Se detuvo la extracción: se extrajeron %n archivos completos.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

&quot;%1&quot; se estaba escribiendo y estaba incompleto: se ha eliminado.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

&quot;%1&quot; se estaba escribiendo y está incompleto, pero no se pudo eliminar (%2): elimínalo tú.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Había sustituido a un archivo tuyo con el mismo nombre; el motor ya había sobrescrito ese archivo, así que su contenido se ha perdido.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Si un archivo tuyo tenía ese nombre, el motor ya lo había sobrescrito, así que su contenido se ha perdido.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

No se encontró en el disco el archivo que se estaba escribiendo (&quot;%1&quot;).</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… y %n más</numerusform>
            <numerusform>
… y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>El archivador
%1
contiene 1 entrada cuyo nombre saldría de cualquier carpeta en la que se extraiga. Se muestra, pero nunca se extraerá:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>El archivador
%1
contiene %n entrada cuyo nombre saldría de cualquier carpeta en la que se extraiga. Se muestra, pero nunca se extraerá:

%2</numerusform>
            <numerusform>El archivador
%1
contiene %n entradas cuyos nombres saldrían de cualquier carpeta en la que se extraigan. Se muestran, pero nunca se extraerán:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>No se extrajo 1 entrada: su nombre la colocaría fuera de la carpeta de destino.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>No se extrajo %n entrada: su nombre la colocaría fuera de la carpeta de destino.

%1</numerusform>
            <numerusform>No se extrajeron %n entradas: sus nombres las colocarían fuera de la carpeta de destino.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>No se extrajo nada: todas las entradas del archivador tienen un nombre que las colocaría fuera de la carpeta de destino.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>No se extrajo nada: el archivador contiene %n entrada cuyo nombre la colocaría fuera de la carpeta de destino, demasiadas para omitirlas una a una.</numerusform>
            <numerusform>No se extrajo nada: el archivador contiene %n entradas cuyos nombres las colocarían fuera de la carpeta de destino, demasiadas para omitirlas una a una.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>El nombre de
%1
contiene &quot;\&quot; o &quot;:&quot;, que el motor guardaría como una carpeta o una unidad: al extraerlo, podría acabar fuera de la carpeta en la que se extrae. No se ejecutó nada; cámbiale el nombre primero.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>La entrada
%1
no se extrae: su nombre la colocaría fuera de la carpeta de destino.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>No se detectó Uharc 0.4; el programa se cerrará</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Guardar en</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>Convertir %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Guardar en:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Examinar…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Nuevo archivador: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Cada archivo se comprueba con el listado del archivador (tamaño y CRC-32) antes de conservar el nuevo archivador. Los atributos de oculto y de sistema no se conservan.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>La carpeta %1 no existe.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Escribe la ruta completa de una carpeta, desde &quot;/&quot;.</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>Convirtiendo %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Comprobando los archivos extraídos con el listado…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>Escribiendo el archivador %1…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Volviendo a leer el nuevo archivador…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>No se puede abrir %1: el programa que abre los archivos, xdg-open, no está instalado.

Viene en el paquete xdg-utils; instálalo (por ejemplo, con &quot;sudo apt install xdg-utils&quot;) e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Memoria o recursos del sistema agotados. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>No se encuentra el archivo. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>No se encuentra la carpeta. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>El formato del archivo no es válido. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>El sistema no tiene ninguna asociación para este tipo de archivo</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>Parámetros: &apos;%1&apos;</translation>
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
            <numerusform>%n bytes</numerusform>
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
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Atributos</translation>
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
        <translation>Archivos</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Se terminó de añadir a %1</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Falló la adición a %1</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Se detuvo la adición a %1</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Extracción de %1 terminada</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Falló la extracción de %1</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Se detuvo la extracción de %1</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Prueba de %1 terminada</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Falló la prueba de %1</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Se detuvo la prueba de %1</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>Creación del SFX de %1 terminada</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>Falló la creación del SFX de %1</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>Se detuvo la creación del SFX de %1</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Ruta del archivo</translation>
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
        <translation>Control TaskPaneBar.
Un panel de grupos de tareas plegables con enlaces, detalles y controles integrados, dibujado con los colores del escritorio.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Se ha producido un error.
La clave de elemento indicada no coincide con ningún elemento existente</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Buscando...</translation>
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
        <translation>Nombre del archivador</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Tamaño del diccionario</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Añadir %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Guardar el archivador en:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Incluir subcarpetas </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compresión</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Compresión multimedia</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Diccionario</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Solo estos archivos: (p. ej.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Crear y añadir archivo</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Crear y mover archivo</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>Debes indicar el nombre del archivador</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Guardar el archivo</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Archivador Uha (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>No se encuentra &quot;%1&quot;. Comprueba que la dirección esté bien escrita y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>No se encuentra &quot;%1&quot;: &quot;%2&quot; es un archivo, no una carpeta ni un archivador.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>El archivador &quot;%1&quot; no contiene ninguna carpeta &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>El archivador se convirtió y se comprobaron todas las entradas:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Tareas del archivador</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Resultados de la búsqueda</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — motor de demostración</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Abrir un archivador</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>Archivadores UHARC (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara está buscando</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>Atrás detiene la búsqueda</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>%1 aún no está disponible en esta versión.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara ya se está ejecutando</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>No se ha seleccionado ningún elemento</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>No se ha seleccionado ningún archivador .uha</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>No se puede crear un SFX con un archivador protegido con contraseña</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara está listo</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Selecciona una acción</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara está omitiendo</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Por favor, espera...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara está leyendo el archivador</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Pulsa Escape para detener</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara está leyendo el archivador: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>Leyendo %1 …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>Leyendo %1 … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 entrada</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n entrada</numerusform>
            <numerusform>%n entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Número de archivos:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Tamaño original:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Tamaño comprimido:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Método:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Proporción:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Proporción</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Buscar un archivo en el archivador</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Buscar un archivo en el archivador (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Buscar (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Extraer el elemento seleccionado</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Ejecutar el archivo seleccionado</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Iconos grandes</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Lista detallada</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Iconos pequeños</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>Atrás (Retroceso, Alt+Izquierda)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Añadir archivos a un archivador</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraer</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Extraer un archivador</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Crear un programa autoextraíble a partir del archivador</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Probar un archivador</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Cambiar la vista</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Buscar una versión más reciente</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>Acerca de Quovara. Teclas: Ctrl+O abre un archivador, F5 lo vuelve a leer, Ctrl+Q sale</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Operaciones con archivos y carpetas</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>&amp;Extraer…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Convertir…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>No se pudo iniciar el motor.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Escribe la carpeta en la que extraer o elígela en la lista de carpetas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>&quot;%1&quot; no es una ruta completa. Escribe una ruta que empiece por &quot;/&quot;, o por &quot;~/&quot; para una carpeta dentro de tu carpeta personal.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>No se puede crear la carpeta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>&quot;%1&quot; es un archivo, no una carpeta.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>La carpeta &quot;%1&quot; no existe. ¿Quieres crearla?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Comprueba el nombre de la carpeta y que haya espacio en el disco.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>No tienes permiso para crear carpetas en &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>&quot;%1&quot; es un archivo, no una carpeta. Escribe la carpeta en la que extraer.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>La carpeta &quot;%1&quot; no se puede mostrar en la lista de carpetas.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>No se pudo crear la carpeta nueva en %1</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraer</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>Extraer %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Extraer en:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crear carpeta nueva</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Extraer los archivos en la carpeta actual</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Extraer los archivos con la ruta completa</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Sobrescribir archivos</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Solo estos archivos:  (p. ej.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Carpeta nueva</translation>
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
        <translation>Motor UHARC</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Sitio web %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>Correo electrónico %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Página del motor %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Abre el sitio web en el navegador</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>Escribe un correo electrónico en el programa de correo</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Abre la página web en el navegador</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Quovara v 2.0</source>
        <translation>Quovara v 2.0</translation>
    </message>
    <message>
        <source>Quovara v 2.0 UHARC GUI</source>
        <translation>Quovara v 2.0, interfaz gráfica de UHARC</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a VERSIÓN BETA, archivador multimedia de alta compresión</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Sitio web: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>Correo electrónico: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>ES GRATUITO, NO PARA USO COMERCIAL</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>SOLO PARA PRUEBAS Y EVALUACIÓN, NO PARA USO COMERCIAL</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>¡VAMOS, NÁPOLES!</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Escrito por los desarrolladores de Quovara</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC es un programa independiente de su propio autor. Quovara no lo incluye.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>Para todos los que mantienen vivos los archivadores antiguos.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Añadiendo...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Extrayendo...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Probando...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>No se encontraron errores durante la prueba</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>El motor terminó sin escribir ninguna salida, así que no se puede seguir el trabajo.
Guion de trabajo: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>No se pudo iniciar el trabajo: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>El motor terminó de forma anómala (%2).
Archivador: %1
El trabajo no terminó; no confíes en su resultado.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>El motor pregunta:

%1

Sí: el archivador se sustituye por uno nuevo que contiene solo los archivos de este trabajo; se pierde todo lo que contiene ahora el archivador (el motor no puede añadir a un archivador existente).
No: el trabajo se detiene y el archivador queda como está.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>El archivador se dejó como estaba.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>El motor pregunta:

%1

Sí responde &quot;y&quot;, No responde &quot;n&quot;.</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>señal %1, %2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>señal %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>código de salida %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>código de salida %1; dijo: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>su salida %1 se eliminó o se truncó durante la ejecución</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>&amp;Ruta de extracción</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Ruta de extracción</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Programa de instalación</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>Ejecutar a&amp;ntes de la extracción</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>Ejecutar &amp;después de la extracción</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>Texto del SFX</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>Tít&amp;ulo de la ventana del SFX</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>Texto que se muestra en la ventana del &amp;SFX (máx. 156 caracteres) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Texto de la licencia</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>Título de la ventana de &amp;licencia</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>Texto que se muestra en la ventana de lic&amp;encia</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Crear</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texto</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>A&amp;vanzado</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>No se puede crear el SFX: %1 es uno de los archivos a partir de los que se crea.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>Crear SFX</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>Guardar el SFX</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Aplicación (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>El programa de instalación instalará NOMBRE DEL PROGRAMA en la siguiente carpeta. Para continuar, haz clic en Instalar. Si quieres seleccionar otra carpeta, haz clic en Examinar</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Más botones</translation>
    </message>
</context>
</TS>
