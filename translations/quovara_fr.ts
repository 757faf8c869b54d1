<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>Fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Taille d&apos;origine&#xa0;: %1 Mo</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Taille compressée&#xa0;: %1 Mo</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Mode&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>la destination %1 n&apos;est pas un dossier</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>impossible de lier un lecteur à %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>aucune lettre de lecteur du préfixe du moteur n&apos;est libre</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>ce système ne dispose pas de Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>impossible de créer un ensemble de règles Landlock&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>impossible de confiner la tâche à %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>La conversion a été interrompue.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>La liste de l&apos;archive ne contient aucun fichier.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>La nouvelle archive a été écrite et vérifiée, mais %1&#xa0;; rien n&apos;a été laissé sur le disque.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  et %n autre</numerusform>
            <numerusform>  et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>Le moteur n&apos;a pas extrait ces entrées de la liste&#xa0;:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Ces entrées ont été extraites avec une taille ou un CRC-32 différent de celui de la liste&#xa0;:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>Le moteur a extrait des fichiers absents de la liste&#xa0;:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (taille %2, CRC-32 %3&#xa0;; selon la liste&#xa0;: taille %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>impossible de lire %1 (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 a été modifié après sa vérification</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>impossible de créer %1 (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>La bibliothèque libarchive de ce système ne peut pas écrire %1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>impossible d&apos;écrire %1 (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>Impossible de relire la nouvelle archive (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>La nouvelle archive contient %1 entrées alors que %2 ont été écrites.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>La nouvelle archive relue ne correspond pas à ce qui a été écrit&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>Rien n&apos;a été converti&#xa0;: aucun mot de passe n&apos;a été saisi.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>La nouvelle archive ne sera pas protégée par un mot de passe.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>Rien n&apos;a été converti&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>Rien n&apos;a été converti&#xa0;: ces entrées ont des noms qui sortiraient de tout dossier dans lequel elles seraient extraites&#xa0;; l&apos;archive ne peut donc pas être convertie entièrement&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>Rien n&apos;a été converti. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Ces archives n&apos;ont pas été converties&#xa0;:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Types de fichiers</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>Fichier de liste</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Fichiers exclus</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>Fichier à extraire</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>Par liste de fichiers (chemin complet)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Exclure&#xa0;: (ex.&#xa0;: *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Quovara a besoin d&apos;un affichage graphique&#xa0;; DISPLAY ou WAYLAND_DISPLAY n&apos;est pas défini</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>Le moteur a signalé une erreur :

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>impossible de définir les permissions de %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 n&apos;a pas pu être démarré&#xa0;: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Usage&#xa0;: quovara %1 FILE...
Copie les fichiers du moteur dans le dossier du programme Quovara. Noms attendus&#xa0;: %2 (en majuscules ou en minuscules).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>Ce n&apos;est pas un fichier du moteur&#xa0;: %1
Noms attendus&#xa0;: %2 (en majuscules ou en minuscules).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>Fichier introuvable&#xa0;: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>Impossible de copier %1 vers %2&#xa0;: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Installé&#xa0;: %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>Le moteur fonctionne&#xa0;: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>Le moteur fonctionne via %1&#xa0;: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>Il s&apos;exécute dans le préfixe wine %1 avec les paramètres régionaux %2&#xa0;: page de code %3 pour ses textes et les noms qu&apos;il enregistre, %4 pour les noms qu&apos;il lit.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Remarque&#xa0;: Quovara utilise désormais le moteur situé dans %1, qui contient son propre uharc.exe.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>Il n&apos;y a pas de uharc.exe dans %1&#xa0;: Quovara en a besoin. Installez-le avec&#xa0;: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>wine est introuvable (définissez QUOVARA_WINE sur le lanceur, ou placez wine dans le PATH)&#xa0;: Quovara l&apos;utilise pour exécuter le moteur, un programme Windows.
Sous Debian, installez-le avec&#xa0;:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 ne peut pas exécuter le moteur %2&#xa0;: sa partie 32 bits est manquante.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>Installation sous Debian&#xa0;:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>Le moteur %1 n&apos;a pas affiché sa bannière.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>Le moteur %1 n&apos;a pas affiché sa bannière via %2.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>Les paramètres régionaux %1 ne sont pas installés sur ce système&#xa0;; le moteur ne peut donc ni lire ni écrire de noms dans leur alphabet. Ajoutez-les avec
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(ou «&#xa0;sudo dpkg-reconfigure locales&#xa0;») puis relancez Quovara.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>page de code %1 (paramètres régionaux %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Moteur&#xa0;: aucun dans %1 (quovara --install-engine l&apos;y place)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Moteur&#xa0;: UHARC, version inconnue (programme Windows, exécuté via wine) dans %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Moteur&#xa0;: substitut de démonstration, version inconnue (pas UHARC) dans %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Moteur&#xa0;: UHARC %1 (programme Windows, exécuté via wine) dans %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Moteur&#xa0;: substitut de démonstration %1 (pas UHARC) dans %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Versions du moteur enregistrées&#xa0;: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>impossible d&apos;écrire dans le dossier %1 (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>impossible de le déplacer vers %1 (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>aucun nom libre n&apos;a été trouvé pour %1</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1&#xa0;:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>Ce n&apos;est pas une archive UHARC (.uha).</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>Rien n&apos;a été extrait&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>Rien n&apos;a été extrait&#xa0;: aucun mot de passe n&apos;a été saisi.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>Les fichiers ont été extraits, mais %1&#xa0;; rien n&apos;a été laissé sur le disque.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Ces archives n&apos;ont pas été extraites&#xa0;:

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
        <translation>Usage&#xa0;: quovara [ARCHIVE.uha]
   ou&#xa0;: quovara &quot;WORD  PATH&quot;
   ou&#xa0;: quovara &quot;WORD &quot; PATH
   ou&#xa0;: quovara OPTION...

Quovara parcourt, extrait, teste et crée des archives UHARC (.uha)&#xa0;; chaque
opération est une exécution du moteur UHARC uharc.exe, conservé dans le dossier
du programme.

Sans argument, la fenêtre principale s&apos;ouvre sur le dossier personnel. Avec le
chemin d&apos;une archive (un nom se terminant par .uha), l&apos;archive y est ouverte.

Un mot de requête n&apos;ouvre qu&apos;une seule fenêtre, pour PATH&#xa0;; Quovara se termine
quand elle est fermée&#xa0;:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>la fenêtre «&#xa0;Extraire&#xa0;» pour l&apos;archive PATH</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>la fenêtre «&#xa0;Ajouter&#xa0;» pour le fichier ou le dossier PATH</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>la fenêtre «&#xa0;Créer un SFX&#xa0;» pour l&apos;archive PATH</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Les arguments sont joints par des espaces simples, et le mot est suivi de deux
caractères de séparation avant le chemin&#xa0;: deux espaces dans un même argument
(&quot;extract  /data/a.uha&quot;), ou un espace à la fin du mot et le chemin comme
argument suivant (&quot;extract &quot; /data/a.uha).

Options&#xa0;:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>fin des options&#xa0;: chaque argument qui suit est un mot de requête ou un chemin, même s&apos;il commence par &quot;-&quot; (un chemin peut aussi s&apos;écrire ./-name.uha)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
Les options propres à Qt, comme -platform NAME, sont aussi acceptées. Sans
l&apos;une d&apos;elles, ou sans QT_QPA_PLATFORM, une fenêtre a besoin de DISPLAY ou de
WAYLAND_DISPLAY.

Code de sortie&#xa0;: 0 en cas de succès&#xa0;; 1 sans affichage graphique&#xa0;; 2 pour une
option inconnue ou mal utilisée. --install-engine se termine avec 0 à 3, comme
l&apos;indique quovara(1).
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>le moteur %1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>la tâche désigne %1, qui n&apos;est pas le moteur du dossier du programme %2&#xa0;; elle n&apos;a pas été démarrée</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>impossible de lire le fichier de liste %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>le fichier de liste %1 désigne un fichier que le moteur ne peut pas traiter. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>impossible d&apos;écrire la copie %1 du fichier de liste&#xa0;: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>le script de tâche %1 n&apos;a pas été écrit par ce programme</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>impossible de lire le script de tâche %1</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>le script de tâche %1 a été modifié après son écriture&#xa0;; il n&apos;a pas été exécuté</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>le script de tâche %1 ne désigne aucune commande</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>la tâche demande d&apos;écrire sa sortie dans %1, qui n&apos;est pas le fichier de sortie console du dossier de travail</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 est un programme Windows et aucun lanceur (wine) n&apos;a été trouvé</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>impossible de transmettre le dossier de l&apos;archive au moteur&#xa0;: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>impossible de transmettre l&apos;archive au moteur&#xa0;: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>impossible de confiner l&apos;extraction à sa destination&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>impossible de créer le fichier de sortie %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 n&apos;a pas pu être démarré&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>archive</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>nom de l&apos;archive</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>ligne de commande</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>dossier de destination</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>taille du dictionnaire</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>exclusion</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>type de fichier</translation>
    </message>
    <message>
        <source>item</source>
        <translation>élément</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>fichier de liste</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>password</source>
        <translation>mot de passe</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>dossier du programme</translation>
    </message>
    <message>
        <source>source</source>
        <translation>source</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>dossier temporaire</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>Le mot de passe contient des caractères hors ASCII. %1 Rien n&apos;a été exécuté.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>L&apos;élément «&#xa0;%1&#xa0;»
%2
contient des caractères hors ASCII. %3 Rien n&apos;a été exécuté.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(les pages de code %1 et %2 ne les contiennent pas)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(la page de code %1 ne les contient pas)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>lancez Quovara avec &quot;--archive-locale LOCALE&quot; en indiquant des paramètres régionaux dont les pages de code les contiennent.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>lancez Quovara avec &quot;--archive-locale %1&quot;, des paramètres régionaux dont les pages de code les contiennent.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>Le mot de passe contient des caractères que le moteur ne peut pas traiter avec les paramètres régionaux %1 %2. Rien n&apos;a été exécuté. Pour continuer, choisissez un mot de passe avec d&apos;autres caractères, ou %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>L&apos;élément «&#xa0;%1&#xa0;»
%2
contient des caractères que le moteur ne peut pas traiter avec les paramètres régionaux %3%4 %5. Rien n&apos;a été exécuté. Pour continuer, renommez-le avec d&apos;autres caractères, ou %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>Le dossier
%1
contient un saut de ligne, qu&apos;un script de tâche ne peut pas contenir. Rien n&apos;a été exécuté.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>Le mot de passe contient un saut de ligne, qu&apos;une ligne de tâche ne peut pas contenir. Rien n&apos;a été exécuté.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>L&apos;élément «&#xa0;%1&#xa0;» contient un saut de ligne, qu&apos;une ligne de tâche ne peut pas contenir&#xa0;:
%2
Rien n&apos;a été exécuté.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>un lien symbolique se trouve à la place du fichier</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>le fichier qui se trouve à la place du fichier ne vient pas de Quovara</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>Impossible d&apos;écrire le script de tâche %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>impossible de lier %1 dans %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>aucun nom simple n&apos;est libre dans %1 pour un lien vers %2</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Préparation du moteur pour sa première utilisation…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>Le moteur n&apos;a pas pu être préparé pour sa première utilisation&#xa0;: %1.
(préfixe wine %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>%1 n&apos;a pas pu être démarré</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>cela a pris plus de %n seconde</numerusform>
            <numerusform>cela a pris plus de %n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine s&apos;est terminé avec le code %1 sans le créer</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara ne peut pas afficher l&apos;archive
%1
car %2.
Rien n&apos;en est affiché.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>il ne peut pas créer la vue de dossier %1</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>la liste du moteur est incomplète</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>la lecture a été interrompue</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Saisir le mot de passe</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>il ne peut pas remplacer la vue de dossier précédente</translation>
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
        <translation>Stockage</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ rapide</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ normal</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ maximal</translation>
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
        <translation>Certains noms de l&apos;archive
%1
ne peuvent pas exister tels quels sur ce système (nom de plus de 255 octets, ou fichier et dossier portant le même nom)&#xa0;: 1 nom est affiché raccourci ou numéroté. Les entrées sont extraites sous leur nom enregistré.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Certains noms de l&apos;archive
%1
ne peuvent pas exister tels quels sur ce système (nom de plus de 255 octets, ou fichier et dossier portant le même nom)&#xa0;: %n nom est affiché raccourci ou numéroté. Les entrées sont extraites sous leur nom enregistré.</numerusform>
            <numerusform>Certains noms de l&apos;archive
%1
ne peuvent pas exister tels quels sur ce système (nom de plus de 255 octets, ou fichier et dossier portant le même nom)&#xa0;: %n noms sont affichés raccourcis ou numérotés. Les entrées sont extraites sous leur nom enregistré.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>il ne peut pas créer la vue de dossier&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; ne désigne pas de paramètres régionaux (par exemple ru_RU.UTF-8 ou ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>Saisissez &apos;quovara --help&apos; pour plus d&apos;informations.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>l&apos;option &apos;--extract-here&apos; nécessite une archive</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>afficher cette aide et quitter</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>afficher la version de Quovara et du moteur trouvé dans le dossier du programme, et quitter</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>copier les fichiers du moteur (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) dans le dossier du programme, vérifier que le moteur fonctionne, et quitter&#xa0;; aucune fenêtre ne s&apos;ouvre</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>extraire chaque archive à côté d&apos;elle-même, jamais dans ou par-dessus quelque chose d&apos;existant&#xa0;: une archive d&apos;un seul dossier de premier niveau ou d&apos;un seul fichier telle quelle, toute autre dans un nouveau dossier portant son nom (&quot;name (2)&quot; si ce nom est pris)&#xa0;; une fenêtre de progression affiche chacune, et le code de sortie n&apos;est 0 que si chaque archive a été extraite</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>convertir chaque archive au FORMAT (zip, 7z, tar.xz ou tar.zst) à côté d&apos;elle-même, sous le nom name.FORMAT (&quot;name (2).FORMAT&quot; si ce nom est pris, jamais par-dessus quoi que ce soit)&#xa0;: chaque fichier est extrait dans un dossier privé, vérifié par rapport à la liste de l&apos;archive (taille et CRC-32) et écrit, puis la nouvelle archive est relue&#xa0;; la nouvelle archive n&apos;a pas de mot de passe&#xa0;; une fenêtre de progression affiche chacune, et le code de sortie n&apos;est 0 que si chaque archive a été convertie et vérifiée</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>exécuter le moteur avec LOCALE (par exemple ru_RU.UTF-8 ou ru) pour afficher, rechercher et extraire les noms des archives créées sur un système de cette langue&#xa0;; équivaut à la variable QUOVARA_ARCHIVE_LOCALE</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>option non reconnue &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>l&apos;option &apos;%1&apos; n&apos;accepte pas d&apos;argument</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>l&apos;option &apos;%1&apos; nécessite un argument</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>l&apos;option &apos;--convert&apos; nécessite un format (%1) et une archive</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>format inconnu &apos;%1&apos; pour &apos;--convert&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>l&apos;option &apos;--convert&apos; nécessite une archive après le format</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>il est inaccessible (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>il ne peut pas être créé (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>c&apos;est un lien symbolique</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>ce n&apos;est pas un dossier</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>il appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>d&apos;autres utilisateurs y ont accès (mode %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>il ne peut pas être créé</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara ne peut pas utiliser son dossier de travail
%1
car %2.
Rien n&apos;y est écrit, et aucune tâche ne s&apos;exécute tant que ce n&apos;est pas corrigé.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>Impossible de terminer le processus</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>Progression&#xa0;: %1 Mo (compressé %2 Mo) sur %3 Mo Taux&#xa0;: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Total&#xa0;: %1       Restant&#xa0;: %2       Écoulé&#xa0;: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Terminé&#xa0;: %1 % Restant&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>impossible de lire %1 (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>impossible de copier %1 (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>impossible d&apos;écrire %1 (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>Impossible de créer le SFX&#xa0;: le fichier d&apos;amorce %1 est manquant.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>Impossible de créer le SFX&#xa0;: le fichier du moteur %1 est manquant.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>Impossible de créer le SFX&#xa0;: l&apos;archive %1 est manquante.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>Impossible de créer le SFX&#xa0;: %1 ne peut pas être écrit (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>Impossible de créer le SFX&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>Impossible de créer le SFX&#xa0;: %1 ne peut pas être remplacé.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara crée le SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Veuillez patienter ...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara est prêt</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Sélectionnez une action</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX créé</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>L&apos;extraction a été interrompue&#xa0;: aucun fichier n&apos;a été extrait.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>L&apos;extraction a été interrompue&#xa0;: 1 fichier a été extrait entièrement.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>L&apos;extraction a été interrompue&#xa0;: %n fichier a été extrait entièrement.</numerusform>
            <numerusform>L&apos;extraction a été interrompue&#xa0;: %n fichiers ont été extraits entièrement.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

«&#xa0;%1&#xa0;» était en cours d&apos;écriture et était incomplet&#xa0;: il a été supprimé.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

«&#xa0;%1&#xa0;» était en cours d&apos;écriture et est incomplet, mais il n&apos;a pas pu être supprimé (%2)&#xa0;: veuillez le supprimer.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Il avait remplacé l&apos;un de vos fichiers portant le même nom&#xa0;; le moteur avait déjà écrasé ce fichier, son contenu est donc perdu.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Si l&apos;un de vos fichiers portait ce nom, le moteur l&apos;avait déjà écrasé, son contenu est donc perdu.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

Le fichier en cours d&apos;écriture («&#xa0;%1&#xa0;») n&apos;a pas été trouvé sur le disque.</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… et %n autre</numerusform>
            <numerusform>
… et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>L&apos;archive
%1
contient 1 entrée dont le nom sortirait de tout dossier dans lequel elle serait extraite. Elle est affichée, mais ne sera jamais extraite&#xa0;:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>L&apos;archive
%1
contient %n entrée dont le nom sortirait de tout dossier dans lequel elle serait extraite. Elle est affichée, mais ne sera jamais extraite&#xa0;:

%2</numerusform>
            <numerusform>L&apos;archive
%1
contient %n entrées dont les noms sortiraient de tout dossier dans lequel elles seraient extraites. Elles sont affichées, mais ne seront jamais extraites&#xa0;:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 entrée n&apos;a pas été extraite&#xa0;: son nom la placerait hors du dossier de destination.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n entrée n&apos;a pas été extraite&#xa0;: son nom la placerait hors du dossier de destination.

%1</numerusform>
            <numerusform>%n entrées n&apos;ont pas été extraites&#xa0;: leurs noms les placeraient hors du dossier de destination.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>Rien n&apos;a été extrait&#xa0;: chaque entrée de l&apos;archive a un nom qui la placerait hors du dossier de destination.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>Rien n&apos;a été extrait&#xa0;: l&apos;archive contient %n entrée dont le nom la placerait hors du dossier de destination, trop pour les ignorer une par une.</numerusform>
            <numerusform>Rien n&apos;a été extrait&#xa0;: l&apos;archive contient %n entrées dont les noms les placeraient hors du dossier de destination, trop pour les ignorer une par une.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>Le nom de
%1
contient «&#xa0;\&#xa0;» ou «&#xa0;:&#xa0;», que le moteur enregistrerait comme un dossier ou un lecteur&#xa0;: une fois extrait, il pourrait se retrouver hors du dossier de destination. Rien n&apos;a été exécuté&#xa0;; renommez-le d&apos;abord.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>L&apos;entrée
%1
n&apos;est pas extraite&#xa0;: son nom la placerait hors du dossier de destination.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Uharc 0.4 non détecté, le programme va se terminer</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>Convertir %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Enregistrer dans&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Nouvelle archive&#xa0;: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Chaque fichier est vérifié par rapport à la liste de l&apos;archive (taille et CRC-32) avant que la nouvelle archive ne soit conservée. Les attributs «&#xa0;caché&#xa0;» et «&#xa0;système&#xa0;» ne sont pas conservés.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Le dossier %1 n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Saisissez le chemin complet d&apos;un dossier, à partir de «&#xa0;/&#xa0;».</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>Conversion de %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Vérification des fichiers extraits par rapport à la liste…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>Écriture de l&apos;archive %1…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Relecture de la nouvelle archive…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>Impossible d&apos;ouvrir %1&#xa0;: le programme qui ouvre les fichiers, xdg-open, n&apos;est pas installé.

Il fait partie du paquet xdg-utils&#xa0;; installez-le (par exemple avec «&#xa0;sudo apt install xdg-utils&#xa0;») et réessayez.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Mémoire ou ressources système insuffisantes. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>Fichier introuvable. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>Dossier introuvable. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>Le format du fichier n&apos;est pas valide. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>Aucune application n&apos;est associée à ce type de fichier sur ce système</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>Paramètres&#xa0;: &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>quovara::DetailsModel</name>
    <message>
        <source>1 byte</source>
        <translation>1 octet</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n octet</numerusform>
            <numerusform>%n octets</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 To</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 Po</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 Eo</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <comment>the exact size, its digits grouped</comment>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 élément</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attributs</translation>
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
        <translation>Fichiers</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Ajout à %1 terminé</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Échec de l&apos;ajout à %1</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Ajout à %1 interrompu</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Extraction de %1 terminée</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Échec de l&apos;extraction de %1</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Extraction de %1 interrompue</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Test de %1 terminé</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Échec du test de %1</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Test de %1 interrompu</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>Création du SFX de %1 terminée</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>Échec de la création du SFX de %1</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>Création du SFX de %1 interrompue</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Chemin du fichier</translation>
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
        <translation>Contrôle TaskPaneBar.
Un panneau de groupes de tâches repliables avec liens, détails et contrôles intégrés, dessiné aux couleurs du bureau.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Une erreur s&apos;est produite&#xa0;!
La clé d&apos;élément indiquée ne correspond à aucun élément existant</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Recherche..</translation>
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
        <translation>Nom de l&apos;archive</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Taille du dictionnaire</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Ajouter %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Enregistrer l&apos;archive dans&#xa0;:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Inclure les sous-dossiers </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Compression multimédia</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Dictionnaire</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Seulement ces fichiers&#xa0;: (ex.&#xa0;: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Créer et ajouter le fichier</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Créer et déplacer le fichier</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>Veuillez indiquer le nom de l&apos;archive</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Fichier UHA (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>«&#xa0;%1&#xa0;» est introuvable. Vérifiez l&apos;orthographe de l&apos;adresse et réessayez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>«&#xa0;%1&#xa0;» est introuvable&#xa0;: «&#xa0;%2&#xa0;» est un fichier, pas un dossier ni une archive.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>L&apos;archive «&#xa0;%1&#xa0;» ne contient pas de dossier «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>L&apos;archive a été convertie et chaque entrée vérifiée&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Tâches d&apos;archive</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Résultats de la recherche</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — moteur de démonstration</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Ouvrir une archive</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>Archives UHARC (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara recherche</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>«&#xa0;Précédent&#xa0;» arrête la recherche</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>%1 n&apos;est pas encore disponible dans cette version.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara est déjà en cours d&apos;exécution</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>Aucun élément sélectionné</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>Aucune archive .uha sélectionnée</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>Impossible de créer un SFX à partir d&apos;une archive protégée par un mot de passe</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara est prêt</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Sélectionnez une action</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara ignore des éléments</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Veuillez patienter ...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara lit l&apos;archive</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Appuyez sur Échap pour arrêter</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara lit l&apos;archive&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>Lecture de %1 …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>Lecture de %1 … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 entrée</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n entrée</numerusform>
            <numerusform>%n entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Nombre de fichiers&#xa0;:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Taille d&apos;origine&#xa0;:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Taille compressée&#xa0;:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Méthode&#xa0;:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Taux&#xa0;:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Taux</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Rechercher un fichier dans l&apos;archive</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Rechercher un fichier dans l&apos;archive (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Rechercher (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Extraire l&apos;élément sélectionné</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Exécuter le fichier sélectionné</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Grandes icônes</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Petites icônes</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>Précédent (Retour arrière, Alt+Gauche)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Ajouter des fichiers à une archive</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraire</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Extraire une archive</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Créer un programme auto-extractible à partir de l&apos;archive</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Tester une archive</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Changer l&apos;affichage</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Rechercher une version plus récente</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>À propos de Quovara. Touches&#xa0;: Ctrl+O ouvrir une archive, F5 la relire, Ctrl+Q quitter</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Opérations sur les fichiers et dossiers</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>E&amp;xtraire…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Convertir…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>Le moteur n&apos;a pas pu être démarré.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Saisissez le dossier dans lequel extraire, ou choisissez-le dans la liste des dossiers.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un chemin complet. Saisissez un chemin qui commence par «&#xa0;/&#xa0;», ou par «&#xa0;~/&#xa0;» pour un dossier de votre dossier personnel.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>«&#xa0;%1&#xa0;» est un fichier, pas un dossier.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;existe pas. Voulez-vous le créer&#xa0;?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Vérifiez le nom du dossier et que le disque dispose de suffisamment d&apos;espace.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>Vous n&apos;êtes pas autorisé à créer des dossiers dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>«&#xa0;%1&#xa0;» est un fichier, pas un dossier. Saisissez le dossier dans lequel extraire.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» ne peut pas être affiché dans la liste des dossiers.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>Impossible de créer le nouveau dossier dans %1</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraire</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>Extraire %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Extraire vers&#xa0;:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Créer un nouveau dossier</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Extraire les fichiers dans le dossier actuel</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Extraire les fichiers avec le chemin complet</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Écraser les fichiers</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Seulement ces fichiers&#xa0;:  (ex.&#xa0;: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
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
        <translation>Moteur UHARC</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Site web %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>Courriel %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Page du moteur %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Ouvre le site web dans le navigateur</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>Rédige un courriel dans le logiciel de messagerie</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Ouvre la page web dans le navigateur</translation>
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
        <translation>Quovara v 2.0 – interface graphique pour UHARC</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a VERSION BÊTA – archiveur multimédia à haute compression</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Site web&#xa0;: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>Courriel&#xa0;: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>GRATUIT, PAS POUR UN USAGE COMMERCIAL</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>POUR TEST ET ÉVALUATION UNIQUEMENT, PAS POUR UN USAGE COMMERCIAL</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>FORZA NAPOLI</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Écrit par les développeurs de Quovara</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC est un programme distinct, de son propre auteur. Quovara ne l&apos;inclut pas.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>À tous ceux qui font vivre les vieilles archives.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Ajout ...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Extraction ...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Test ...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>Aucune erreur trouvée pendant le test</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>Le moteur s&apos;est terminé sans écrire de sortie&#xa0;; la tâche ne peut donc pas être suivie.
Script de tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>La tâche n&apos;a pas pu être démarrée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>Le moteur s&apos;est terminé anormalement (%2).
Archive&#xa0;: %1
La tâche n&apos;est pas terminée&#xa0;; ne vous fiez pas à son résultat.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>Le moteur demande&#xa0;:

%1

Oui&#xa0;: l&apos;archive est remplacée par une nouvelle qui ne contient que les fichiers de cette tâche&#xa0;; tout ce que l&apos;archive contient actuellement est perdu (le moteur ne peut pas ajouter à une archive existante).
Non&#xa0;: la tâche s&apos;arrête et l&apos;archive reste telle quelle.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>L&apos;archive a été laissée telle quelle.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>Le moteur demande&#xa0;:

%1

Oui répond «&#xa0;y&#xa0;», Non répond «&#xa0;n&#xa0;».</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>signal %1, %2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>signal %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>code de sortie %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>code de sortie %1&#xa0;; message&#xa0;: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>sa sortie %1 a été supprimée ou tronquée pendant l&apos;exécution</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>&amp;Dossier d&apos;extraction</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Dossier d&apos;extraction</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Programme d&apos;installation</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>Exécuter &amp;avant l&apos;extraction</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>Exécuter a&amp;près l&apos;extraction</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>Texte du SFX</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>Tit&amp;re de la fenêtre SFX</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>Texte à afficher dans la fenêtre &amp;SFX (longueur max. 156) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Texte de licence</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>Titre de la fenêtre de &amp;licence</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>Texte à afficher dans la fenêtre de lic&amp;ence</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Général</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>A&amp;vancé</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>Impossible de créer le SFX&#xa0;: %1 est l&apos;un des fichiers à partir desquels il est créé.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>Créer un SFX</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>Enregistrer le SFX</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Application (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>Le programme d&apos;installation va installer NOM DU PROGRAMME dans le dossier suivant. Pour continuer, cliquez sur Installer. Pour choisir un autre dossier, cliquez sur Parcourir.</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Plus de boutons</translation>
    </message>
</context>
</TS>
