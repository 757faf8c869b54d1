<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>Файлів: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Початковий розмір: %1 МБ</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Стиснутий розмір: %1 МБ</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Режим: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>місце призначення %1 не є текою</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>не вдалося створити теку %1</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>не вдалося пов’язати диск із %1: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>у префіксі рушія немає вільної літери диска</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>у цій системі немає Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>не вдалося створити набір правил Landlock: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>не вдалося обмежити завдання текою %1: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>Перетворення зупинено.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>У списку вмісту архіву немає файлів.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>Новий архів записано й перевірено, але %1; усе створене вилучено.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  і ще %n</numerusform>
            <numerusform>  і ще %n</numerusform>
            <numerusform>  і ще %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>Рушій не видобув такі елементи списку:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Ці елементи видобуто з іншим розміром або CRC-32, ніж зазначено у списку:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>Рушій видобув файли, яких немає у списку:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (розмір %2, CRC-32 %3; у списку: розмір %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>невідома помилка</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>не вдалося прочитати %1 (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 змінився після перевірки</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>не вдалося створити %1 (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>libarchive цієї системи не може записати %1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>не вдалося записати %1 (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>Не вдалося прочитати новий архів (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>Елементів у новому архіві: %1, а записано: %2.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>Новий архів читається не так, як його було записано: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>Нічого не перетворено: пароль не введено.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>Новий архів не буде захищено паролем.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>Нічого не перетворено: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>Нічого не перетворено: назви цих елементів вивели б їх за межі будь-якої теки, до якої їх видобувають, тому архів не можна перетворити повністю:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>Нічого не перетворено. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Ці архіви не перетворено:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Типи файлів</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>Файл списку</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Виключені файли</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>Файл для видобування</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Усі файли</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>За списком файлів (повний шлях)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Виключити: (напр.: *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Для Quovara потрібен графічний дисплей; змінну DISPLAY або WAYLAND_DISPLAY не задано</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>Рушій повідомив про помилку:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>не вдалося встановити права доступу до %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>не вдалося запустити %1: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Використання: quovara %1 FILE...
Копіює файли рушія до теки програми Quovara. Очікувані назви: %2 (у будь-якому регістрі).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>Це не файл рушія: %1
Очікувані назви: %2 (у будь-якому регістрі).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>Немає такого файла: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>Не вдалося скопіювати %1 до %2: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Встановлено %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>Рушій працює: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>Рушій працює через %1: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>Він працює в префіксі wine %1 з локаллю %2: кодова сторінка %3 для його тексту та назв, які він зберігає, %4 для назв, які він читає.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Примітка: тепер Quovara використовує рушій у %1, де є власний uharc.exe.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>У %1 немає uharc.exe, а він потрібен Quovara. Встановіть його командою: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>wine не знайдено (вкажіть програму запуску в QUOVARA_WINE або додайте wine до PATH): за його допомогою Quovara запускає рушій — програму для Windows.
У Debian його можна встановити командою:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 не може запустити рушій %2: бракує його 32-бітової частини.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>У Debian її можна встановити командою:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>Рушій %1 не вивів свій банер.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>Рушій %1 не вивів свій банер під час запуску через %2.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>Локаль %1 не встановлено в цій системі, тому рушій не може читати й записувати назви з її літерами. Додайте її командою
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(або &quot;sudo dpkg-reconfigure locales&quot;) і знову запустіть Quovara.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>кодова сторінка %1 (локаль %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Рушій: немає в %1 (його встановлює туди quovara --install-engine)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Рушій: UHARC, версія невідома (програма для Windows, запускається через wine) у %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Рушій: демонстраційна заміна, версія невідома (не UHARC) у %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Рушій: UHARC %1 (програма для Windows, запускається через wine) у %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Рушій: демонстраційна заміна %1 (не UHARC) у %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Збережені версії рушія: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>до теки %1 не можна записувати (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>не вдалося перемістити до %1 (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>не знайдено вільної назви для %1</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Такого файла немає.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>Це не архів UHARC (.uha).</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>Нічого не видобуто: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>Нічого не видобуто: пароль не введено.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>Файли видобуто, але %1; усе видобуте вилучено.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Ці архіви не видобуто:

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
        <translation>Використання: quovara [ARCHIVE.uha]
        або:  quovara &quot;WORD  PATH&quot;
        або:  quovara &quot;WORD &quot; PATH
        або:  quovara OPTION...

Quovara переглядає, видобуває, перевіряє та створює архіви UHARC (.uha);
кожна операція — це запуск рушія UHARC uharc.exe, який зберігається
в теці програми.

Без аргументів головне вікно відкривається в домашній теці. Якщо вказано
шлях до архіву (назва, що закінчується на .uha), у ньому відкривається
цей архів.

Слово запиту відкриває лише одне вікно, для PATH; Quovara завершує роботу,
коли воно закривається:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>вікно «Видобути» для архіву PATH</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>вікно «Додати» для файла або теки PATH</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>вікно «Створити SFX» для архіву PATH</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Аргументи об’єднуються через одинарні пропуски, а між словом і шляхом
мають стояти два роздільники: два пропуски всередині одного аргументу
(&quot;extract  /data/a.uha&quot;) або пропуск у кінці слова і шлях наступним
аргументом (&quot;extract &quot; /data/a.uha).

Параметри:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>кінець параметрів: кожен аргумент після нього — слово запиту або шлях, навіть якщо він починається з &quot;-&quot; (шлях можна також записати як ./-name.uha)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
Також приймаються власні параметри Qt, наприклад -platform NAME. Без
такого параметра або QT_QPA_PLATFORM вікну потрібен DISPLAY або
WAYLAND_DISPLAY.

Код завершення: 0 у разі успіху; 1 без графічного дисплея; 2 у разі
невідомого або неправильно використаного параметра. --install-engine
завершується з кодом від 0 до 3, як описано в quovara(1).
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>рушій %1 не існує</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>завдання вказує %1, а це не рушій теки програми %2; його не запущено</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>не вдалося прочитати файл списку %1: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>файл списку %1 вказує файл, який рушій не може прийняти. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>не вдалося записати копію файла списку %1: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>сценарій завдання %1 записано не цією програмою</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>не вдалося прочитати сценарій завдання %1</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>сценарій завдання %1 було змінено після запису; його не запущено</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>у сценарії завдання %1 немає команди</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>завдання вимагає записати вивід до %1, а це не файл консольного виводу робочої теки</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 — програма для Windows, а програму запуску (wine) не знайдено</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>теку архіву не можна передати рушію: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>архів не можна передати рушію: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>видобування не можна обмежити текою призначення: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>не вдалося створити файл виводу %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>не вдалося запустити %1: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>архів</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>назва архіву</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>командний рядок</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>тека призначення</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>розмір словника</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>виключення</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>тип файла</translation>
    </message>
    <message>
        <source>item</source>
        <translation>об’єкт</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>файл списку</translation>
    </message>
    <message>
        <source>name</source>
        <translation>назва</translation>
    </message>
    <message>
        <source>password</source>
        <translation>пароль</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>тека програми</translation>
    </message>
    <message>
        <source>source</source>
        <translation>джерело</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>тимчасова тека</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>Пароль містить літери поза ASCII. %1 Нічого не запущено.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>Значення «%1»
%2
містить літери поза ASCII. %3 Нічого не запущено.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(у її кодових сторінках %1 і %2 їх немає)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(у її кодовій сторінці %1 їх немає)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>запустіть Quovara з параметром &quot;--archive-locale LOCALE&quot;, вказавши локаль, у кодових сторінках якої вони є.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>запустіть Quovara з параметром &quot;--archive-locale %1&quot; — це локаль, у кодових сторінках якої вони є.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>Пароль містить літери, які рушій не може прийняти з локаллю %1 %2. Нічого не запущено. Щоб продовжити, виберіть пароль з іншими літерами або %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>Значення «%1»
%2
містить літери, які рушій не може прийняти з локаллю %3%4 %5. Нічого не запущено. Щоб продовжити, перейменуйте його, використавши інші літери, або %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>Тека
%1
містить розрив рядка, який не можна передати у сценарії завдання. Нічого не запущено.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>Пароль містить розрив рядка, який не можна передати в рядку завдання. Нічого не запущено.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>Значення «%1» містить розрив рядка, який не можна передати в рядку завдання:
%2
Нічого не запущено.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>на місці файла стоїть символічне посилання</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>файл, що стоїть на місці потрібного, не належить програмі</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>Не вдалося записати сценарій завдання %1: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>не вдалося створити посилання на %1 у %2: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>у %1 немає вільної простої назви для посилання на %2</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Підготовка рушія до першого використання…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>Не вдалося підготувати рушій до першого використання: %1.
(префікс wine %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>не вдалося створити теку %1</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>не вдалося запустити %1</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>це тривало понад %n секунду</numerusform>
            <numerusform>це тривало понад %n секунди</numerusform>
            <numerusform>це тривало понад %n секунд</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine завершився з кодом %1, не створивши його</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara не може показати архів
%1,
тому що %2.
Вміст архіву не показано.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>не вдалося створити подання теки %1</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>список вмісту від рушія неповний</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>читання було зупинено</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Введіть пароль</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>не вдалося замінити попереднє подання теки</translation>
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
        <translation>Без стиснення</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ швидкий</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ звичайний</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ найкращий</translation>
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
        <translation>Деякі назви в архіві
%1
не можуть існувати в цій системі у своєму вигляді (назва довша за 255 байтів або файл і тека з однаковою назвою): 1 назву показано скороченою або пронумерованою. Її видобувають під збереженою назвою.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Деякі назви в архіві
%1
не можуть існувати в цій системі у своєму вигляді (назва довша за 255 байтів або файл і тека з однаковою назвою): %n назву показано скороченою або пронумерованою. Їх видобувають під збереженими назвами.</numerusform>
            <numerusform>Деякі назви в архіві
%1
не можуть існувати в цій системі у своєму вигляді (назва довша за 255 байтів або файл і тека з однаковою назвою): %n назви показано скороченими або пронумерованими. Їх видобувають під збереженими назвами.</numerusform>
            <numerusform>Деякі назви в архіві
%1
не можуть існувати в цій системі у своєму вигляді (назва довша за 255 байтів або файл і тека з однаковою назвою): %n назв показано скороченими або пронумерованими. Їх видобувають під збереженими назвами.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>не вдалося створити подання теки: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; не є назвою локалі (наприклад, ru_RU.UTF-8 або ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>Докладніше про це можна дізнатися за допомогою команди &apos;quovara --help&apos;.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>для параметра &apos;--extract-here&apos; потрібен архів</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>показати цю довідку і завершити роботу</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>показати версію Quovara і рушія з теки програми та завершити роботу</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>скопіювати файли рушія (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) до теки програми, перевірити, що рушій працює, і завершити роботу; вікно не відкривається</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>видобути кожен архів поряд із ним, ніколи не всередину і не поверх наявного: архів з однією текою верхнього рівня або одним файлом — як є, будь-який інший — до нової теки, названої за архівом (&quot;name (2)&quot;, якщо назву зайнято); вікно поступу показує кожен архів, а код завершення дорівнює 0, лише якщо видобуто всі архіви</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>перетворити кожен архів на FORMAT (zip, 7z, tar.xz або tar.zst) поряд із ним, як name.FORMAT (&quot;name (2).FORMAT&quot;, якщо назву зайнято, ніколи поверх наявного): кожен файл видобувається до окремої теки, звіряється зі списком вмісту архіву (розмір і CRC-32) і записується, а новий архів зчитується для перевірки; новий архів не захищено паролем; вікно поступу показує кожен архів, а код завершення дорівнює 0, лише якщо всі архіви перетворено й перевірено</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>запускати рушій з локаллю LOCALE (наприклад, ru_RU.UTF-8 або ru), щоб показувати, шукати й видобувати назви в архівах, створених у системі цією мовою; те саме, що змінна QUOVARA_ARCHIVE_LOCALE</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>нерозпізнаний параметр &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>параметр &apos;%1&apos; не допускає аргументів</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>параметру &apos;%1&apos; потрібен аргумент</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>для параметра &apos;--convert&apos; потрібні формат (%1) і архів</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>невідомий формат &apos;%1&apos; для &apos;--convert&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>для параметра &apos;--convert&apos; потрібен архів після формату</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>вона недоступна (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>її не вдалося створити (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>це символічне посилання</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>це не тека</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>вона належить іншому користувачеві</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>до неї мають доступ інші користувачі (режим %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>її не вдалося створити</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara не може використовувати свою робочу теку
%1,
тому що %2.
Туди нічого не записується, і завдання не запускаються, доки це не буде виправлено.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>Не вдалося завершити процес</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>Виконано: %1 МБ (стиснуто  %2 МБ) з %3 МБ Ступінь стиснення: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Усього: %1       Залишилося: %2       Минуло: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Виконано: %1 % Залишилося: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>не вдалося прочитати %1 (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>не вдалося скопіювати %1 (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>не вдалося записати %1 (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>Не вдалося створити SFX: файла заглушки %1 немає.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>Не вдалося створити SFX: файла рушія %1 немає.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>Не вдалося створити SFX: архіву %1 немає.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>Не вдалося створити SFX: запис до %1 неможливий (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>Не вдалося створити SFX: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>Не вдалося створити SFX: %1 неможливо замінити.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara створює SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Будь ласка, зачекайте...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara готова</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Виберіть дію</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX створено</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>Видобування зупинено: жоден файл не видобуто.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>Видобування зупинено: 1 файл видобуто повністю.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>Видобування зупинено: %n файл видобуто повністю.</numerusform>
            <numerusform>Видобування зупинено: %n файли видобуто повністю.</numerusform>
            <numerusform>Видобування зупинено: %n файлів видобуто повністю.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

Файл «%1» записувався і був неповним: його вилучено.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

Файл «%1» записувався і залишився неповним, але вилучити його не вдалося (%2): вилучіть його вручну.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Він замінив ваш файл із такою самою назвою; рушій уже перезаписав той файл, тому його вміст втрачено.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Якщо у вас був файл із такою назвою, рушій уже перезаписав його, тому його вміст втрачено.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

Файл, що записувався («%1»), не знайдено на диску.</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… і ще %n</numerusform>
            <numerusform>
… і ще %n</numerusform>
            <numerusform>
… і ще %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>Архів
%1
містить 1 елемент, назва якого виводить його за межі будь-якої теки, до якої його видобувають. Його показано, але його ніколи не буде видобуто:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>Архів
%1
містить %n елемент, назва якого виводить його за межі будь-якої теки, до якої його видобувають. Такі елементи показано, але їх ніколи не буде видобуто:

%2</numerusform>
            <numerusform>Архів
%1
містить %n елементи, назви яких виводять їх за межі будь-якої теки, до якої їх видобувають. Їх показано, але їх ніколи не буде видобуто:

%2</numerusform>
            <numerusform>Архів
%1
містить %n елементів, назви яких виводять їх за межі будь-якої теки, до якої їх видобувають. Їх показано, але їх ніколи не буде видобуто:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 елемент не видобуто: його назва помістила б його за межі теки призначення.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n елемент не видобуто: його назва помістила б його за межі теки призначення.

%1</numerusform>
            <numerusform>%n елементи не видобуто: їхні назви помістили б їх за межі теки призначення.

%1</numerusform>
            <numerusform>%n елементів не видобуто: їхні назви помістили б їх за межі теки призначення.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>Нічого не видобуто: назва кожного елемента архіву помістила б його за межі теки призначення.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>Нічого не видобуто: в архіві %n елемент, назва якого помістила б його за межі теки призначення, — забагато, щоб пропускати їх по одному.</numerusform>
            <numerusform>Нічого не видобуто: в архіві %n елементи, назви яких помістили б їх за межі теки призначення, — забагато, щоб пропускати їх по одному.</numerusform>
            <numerusform>Нічого не видобуто: в архіві %n елементів, назви яких помістили б їх за межі теки призначення, — забагато, щоб пропускати їх по одному.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>Назва
%1
містить &quot;\&quot; або &quot;:&quot;, які рушій зберіг би як теку або диск: під час видобування файл може опинитися за межами теки, до якої його видобувають. Нічого не запущено; спершу перейменуйте його.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>Елемент
%1
не видобуто: його назва помістила б його за межі теки призначення.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Uharc 0.4 не виявлено, програму буде закрито</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Зберегти в</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>Перетворити %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Формат:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Зберегти в:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Огляд…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Новий архів: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Перш ніж зберегти новий архів, кожен файл звіряється зі списком вмісту архіву (розмір і CRC-32). Атрибути «прихований» і «системний» не зберігаються.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Теки %1 не існує.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Введіть повний шлях до теки, починаючи з &quot;/&quot;.</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>Поступ</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>Перетворення %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Звіряння видобутих файлів зі списком вмісту…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>Запис архіву %1…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Перевірне читання нового архіву…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Зупинити</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>%1 не вдалося відкрити: програму для відкриття файлів, xdg-open, не встановлено.

Вона входить до пакунка xdg-utils; встановіть його (наприклад, командою &quot;sudo apt install xdg-utils&quot;) і повторіть спробу.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Недостатньо пам’яті або системних ресурсів. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>Не вдалося знайти файл. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>Не вдалося знайти теку. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>Неприпустимий формат файла. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>У системі немає пов’язаної програми для цього типу файлів</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>Параметри: &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>quovara::DetailsModel</name>
    <message>
        <source>1 byte</source>
        <translation>1 байт</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n байт</numerusform>
            <numerusform>%n байти</numerusform>
            <numerusform>%n байтів</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 КБ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 ГБ</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 ТБ</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 ПБ</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 ЕБ</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <comment>the exact size, its digits grouped</comment>
        <translation>%1 байтів</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 об’єкт</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n об’єкт</numerusform>
            <numerusform>%n об’єкти</numerusform>
            <numerusform>%n об’єктів</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Змінено</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Атрибути</translation>
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
        <translation>Файли</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Додавання до %1 завершено</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Помилка додавання до %1</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Додавання до %1 зупинено</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Видобування %1 завершено</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Помилка видобування %1</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Видобування %1 зупинено</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Перевірку %1 завершено</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Помилка перевірки %1</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Перевірку %1 зупинено</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>Створення SFX з %1 завершено</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>Помилка створення SFX з %1</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>Створення SFX з %1 зупинено</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Назва файла</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Шлях до файла</translation>
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
        <translation>Елемент керування TaskPaneBar.
Панель згортних груп завдань із посиланнями, подробицями та вбудованими елементами керування, намальована в кольорах стільниці.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Сталася помилка!
Вказаний ключ елемента не відповідає наявним елементам</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Пошук..</translation>
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
        <translation>Назва архіву</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Метод</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Розмір словника</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Додати</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Додати %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Зберегти архів до:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Огляд</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Включно з вкладеними теками </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Стиснення</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Мультимедійне стиснення</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Словник</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Лише ці файли: (напр.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Створити і додати файл</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Створити і перемістити файл</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Типово</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>Потрібно вказати назву архіву</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Зберегти файл</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Файл Uha (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>Не вдалося знайти «%1». Перевірте правильність адреси і повторіть спробу.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>Не вдалося знайти «%1»: «%2» — це файл, а не тека чи архів.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>В архіві «%1» немає теки «%2».</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>Архів перетворено, кожен елемент перевірено:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Команди</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Завдання архіву</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Тека</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Результати пошуку</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — демонстраційний рушій</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Відкрити архів</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>Архіви UHARC (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara виконує пошук</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>Кнопка «Назад» зупиняє пошук</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>Поки що недоступно в цій версії: %1.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara вже запущено</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>Нічого не вибрано</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>Не вибрано архів .uha</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>Не можна створити SFX з архіву, захищеного паролем</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara готова</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Виберіть дію</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara пропускає</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Будь ласка, зачекайте...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara читає архів</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Натисніть Escape, щоб зупинити</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara читає архів: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>Читання %1 …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>Читання %1 … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 елемент</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n елемент</numerusform>
            <numerusform>%n елементи</numerusform>
            <numerusform>%n елементів</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Кількість файлів:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Початковий розмір:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Стиснутий розмір:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Метод:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Ступінь стиснення:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Ступінь стиснення</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Пошук файла в архіві</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Пошук файла в архіві (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Пошук</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Пошук (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Видобути вибраний об’єкт</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Запустити вибраний файл</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Великі піктограми</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Таблиця</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Малі піктограми</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>Назад (Backspace, Alt+←)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Додати</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Додати файли до архіву</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Видобути</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Видобути архів</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Створити з архіву саморозпакувальний файл</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Перевірити</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Перевірити архів</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Вигляд</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Змінити вигляд</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Перевірити наявність нової версії</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>Про Quovara. Клавіші: Ctrl+O — відкрити архів, F5 — перечитати його, Ctrl+Q — вийти</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробиці</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Дії з файлами і теками</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Елемент</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Відкрити</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>Ви&amp;добути…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Перетворити…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Ви&amp;гляд</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>Не вдалося запустити рушій.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Введіть теку для видобування або виберіть її у списку тек.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>«%1» — не повний шлях. Введіть шлях, що починається з &quot;/&quot;, або з &quot;~/&quot; для теки у вашій домашній теці.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>Не вдалося створити теку «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>«%1» — це файл, а не тека.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>Теки «%1» не існує. Створити її?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Перевірте назву теки і наявність вільного місця на диску.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>У вас немає прав на створення тек у «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>«%1» — це файл, а не тека. Введіть теку для видобування.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>Теку «%1» не вдалося показати у списку тек.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Теки</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>Не вдалося створити нову теку в %1</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Видобути</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>Видобути %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Видобути до:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Створити теку</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Видобути файли до поточної теки</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Видобути файли з повними шляхами</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Перезаписувати файли</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Лише ці файли:  (напр.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Нова тека</translation>
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
        <translation>Рушій UHARC</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Вебсайт %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>Ел. пошта %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Сторінка рушія %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Відкриває вебсайт у браузері</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>Створює лист у поштовій програмі</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Відкриває вебсторінку в браузері</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Quovara v 2.0</source>
        <translation>Quovara v 2.0</translation>
    </message>
    <message>
        <source>Quovara v 2.0 UHARC GUI</source>
        <translation>Quovara v 2.0 — графічний інтерфейс для UHARC</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a, бета-версія: мультимедійний архіватор з високим ступенем стиснення</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Вебсайт: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>Ел. пошта: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>БЕЗКОШТОВНО, НЕ ДЛЯ КОМЕРЦІЙНОГО ВИКОРИСТАННЯ</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>ЛИШЕ ДЛЯ ТЕСТУВАННЯ Й ОЗНАЙОМЛЕННЯ, НЕ ДЛЯ КОМЕРЦІЙНОГО ВИКОРИСТАННЯ</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>ВПЕРЕД, НАПОЛІ</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Автори: розробники Quovara</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC — окрема програма іншого автора. Quovara її не містить.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>Усім, хто береже старі архіви.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Додавання...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Видобування...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Перевірка...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Поступ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Час</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>Під час перевірки помилок не виявлено</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>Рушій завершив роботу, нічого не вивівши, тому стежити за завданням неможливо.
Сценарій завдання: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>Не вдалося запустити завдання: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>Рушій аварійно завершив роботу (%2).
Архів: %1
Завдання не завершено; не покладайтеся на його результат.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>Рушій запитує:

%1

Так: архів замінюється новим, що містить лише файли цього завдання; усе, що зараз є в архіві, буде втрачено (рушій не вміє додавати до наявного архіву).
Ні: завдання зупиняється, архів залишається без змін.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>Архів залишено без змін.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>Рушій запитує:

%1

«Так» відповідає &quot;y&quot;, «Ні» відповідає &quot;n&quot;.</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>сигнал %1, %2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>сигнал %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>код завершення %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>код завершення %1; повідомлення: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>його вивід %1 було вилучено або обрізано під час роботи</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Сторінки</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>&amp;Шлях для видобування</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Шлях для видобування</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Програма встановлення</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>Запустити &amp;до видобування</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>Запустити &amp;після видобування</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>Текст SFX</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>&amp;Заголовок вікна SFX</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>Текст у вікні &amp;SFX (не більше 156 символів) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Текст ліцензії</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>Заголовок вікна лі&amp;цензії</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>&amp;Текст у вікні ліцензії</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Створити</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Основні</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>Те&amp;кст</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>Додатко&amp;во</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>Не вдалося створити SFX: %1 — один із файлів, з яких його створено.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>Створити SFX</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>Зберегти SFX</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Програма (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>Програма встановлення встановить НАЗВА ПРОГРАМИ до такої теки. Щоб продовжити, натисніть «Встановити». Щоб вибрати іншу теку, натисніть «Огляд»</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Інші кнопки</translation>
    </message>
</context>
</TS>
