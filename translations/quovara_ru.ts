<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>Файлов: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Исходный размер: %1 МБ</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Сжатый размер: %1 МБ</translation>
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
        <translation>место назначения %1 не является папкой</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>не удаётся создать папку %1</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>не удаётся связать диск с %1: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>в префиксе движка нет свободной буквы диска</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>в этой системе нет Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>не удаётся создать набор правил Landlock: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>не удаётся ограничить задание папкой %1: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>Преобразование остановлено.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>В списке содержимого архива нет файлов.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>Новый архив записан и проверен, но %1; всё созданное удалено.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  и ещё %n</numerusform>
            <numerusform>  и ещё %n</numerusform>
            <numerusform>  и ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>Движок не извлёк следующие элементы списка:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Эти элементы извлечены с другим размером или CRC-32, чем указано в списке:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>Движок извлёк файлы, которых нет в списке:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (размер %2, CRC-32 %3; в списке: размер %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>неизвестная ошибка</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>не удаётся прочитать %1 (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 изменился после проверки</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>не удаётся создать %1 (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>libarchive этой системы не может записать %1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>не удаётся записать %1 (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>Не удаётся прочитать новый архив (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>Элементов в новом архиве: %1, а записано: %2.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>Новый архив читается не так, как был записан: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>Ничего не преобразовано: пароль не введён.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>Новый архив не будет защищён паролем.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>Ничего не преобразовано: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>Ничего не преобразовано: имена этих элементов вывели бы их за пределы любой папки, в которую их извлекают, поэтому архив нельзя преобразовать целиком:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>Ничего не преобразовано. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Эти архивы не преобразованы:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Типы файлов</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>Файл списка</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Исключённые файлы</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>Файл для извлечения</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Все файлы</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>По списку файлов (полный путь)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Исключить: (напр.: *.dll *.exe)</translation>
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
        <translation>Для Quovara требуется графический дисплей; переменная DISPLAY или WAYLAND_DISPLAY не задана</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>Движок сообщил об ошибке:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>не удаётся задать права доступа к %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>не удалось запустить %1: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Использование: quovara %1 FILE...
Копирует файлы движка в папку программы Quovara. Ожидаемые имена: %2 (в любом регистре).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>Это не файл движка: %1
Ожидаемые имена: %2 (в любом регистре).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>Нет такого файла: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>Не удалось скопировать %1 в %2: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Установлен %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>Движок работает: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>Движок работает через %1: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>Он работает в префиксе wine %1 с локалью %2: кодовая страница %3 для его текста и сохраняемых им имён, %4 для читаемых имён.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Примечание: теперь Quovara использует движок в %1, где есть собственный uharc.exe.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>В %1 нет uharc.exe, а он нужен Quovara. Установите его командой: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>wine не найден (укажите программу запуска в QUOVARA_WINE или добавьте wine в PATH): с его помощью Quovara запускает движок — программу для Windows.
В Debian его можно установить командой:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 не может запустить движок %2: отсутствует его 32-битная часть.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>В Debian её можно установить командой:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>Движок %1 не вывел свой баннер.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>Движок %1 не вывел свой баннер при запуске через %2.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>Локаль %1 не установлена в этой системе, поэтому движок не может читать и записывать имена с её буквами. Добавьте её командой
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(или &quot;sudo dpkg-reconfigure locales&quot;) и снова запустите Quovara.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>кодовая страница %1 (локаль %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Движок: нет в %1 (его устанавливает туда quovara --install-engine)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Движок: UHARC, версия неизвестна (программа для Windows, запускается через wine) в %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Движок: демонстрационная замена, версия неизвестна (не UHARC) в %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Движок: UHARC %1 (программа для Windows, запускается через wine) в %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Движок: демонстрационная замена %1 (не UHARC) в %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Сохранённые версии движка: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>в папку %1 нельзя записывать (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>не удалось переместить в %1 (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>не найдено свободное имя для %1</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Такого файла нет.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>Это не архив UHARC (.uha).</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>Ничего не извлечено: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>Ничего не извлечено: пароль не введён.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>Файлы извлечены, но %1; всё извлечённое удалено.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Эти архивы не извлечены:

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
        <translation>Использование: quovara [ARCHIVE.uha]
         или:  quovara &quot;WORD  PATH&quot;
         или:  quovara &quot;WORD &quot; PATH
         или:  quovara OPTION...

Quovara просматривает, извлекает, проверяет и создаёт архивы UHARC (.uha);
каждая операция — это запуск движка UHARC uharc.exe, который хранится
в папке программы.

Без аргументов главное окно открывается в домашней папке. Если указан путь
к архиву (имя, оканчивающееся на .uha), в нём открывается этот архив.

Слово запроса открывает только одно окно, для PATH; Quovara завершает
работу, когда оно закрывается:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>окно «Извлечь» для архива PATH</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>окно «Добавить» для файла или папки PATH</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>окно «Создать SFX» для архива PATH</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Аргументы объединяются через одиночные пробелы, а между словом и путём
должны стоять два разделителя: два пробела внутри одного аргумента
(&quot;extract  /data/a.uha&quot;) или пробел в конце слова и путь следующим
аргументом (&quot;extract &quot; /data/a.uha).

Параметры:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>конец параметров: каждый аргумент после него — слово запроса или путь, даже если он начинается с &quot;-&quot; (путь можно также записать как ./-name.uha)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
Также принимаются собственные параметры Qt, например -platform NAME. Без
такого параметра или QT_QPA_PLATFORM окну нужен DISPLAY или WAYLAND_DISPLAY.

Код завершения: 0 при успехе; 1 без графического дисплея; 2 при неизвестном
или неверно использованном параметре. --install-engine завершается с кодом
от 0 до 3, как описано в quovara(1).
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>движок %1 не существует</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>задание указывает %1, а это не движок папки программы %2; оно не запущено</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>не удаётся прочитать файл списка %1: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>файл списка %1 указывает файл, который движок не может принять. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>не удаётся записать копию файла списка %1: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>сценарий задания %1 записан не этой программой</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>не удаётся прочитать сценарий задания %1</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>сценарий задания %1 был изменён после записи; он не запущен</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>в сценарии задания %1 нет команды</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>задание требует записать вывод в %1, а это не файл консольного вывода рабочей папки</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 — программа для Windows, а программа запуска (wine) не найдена</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>папку архива нельзя передать движку: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>архив нельзя передать движку: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>извлечение нельзя ограничить папкой назначения: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>не удаётся создать файл вывода %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>не удалось запустить %1: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>архив</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>имя архива</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>командная строка</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>папка назначения</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>размер словаря</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>исключение</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>тип файла</translation>
    </message>
    <message>
        <source>item</source>
        <translation>объект</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>файл списка</translation>
    </message>
    <message>
        <source>name</source>
        <translation>имя</translation>
    </message>
    <message>
        <source>password</source>
        <translation>пароль</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>папка программы</translation>
    </message>
    <message>
        <source>source</source>
        <translation>источник</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>временная папка</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>Пароль содержит буквы вне ASCII. %1 Ничего не запущено.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>Значение «%1»
%2
содержит буквы вне ASCII. %3 Ничего не запущено.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(в её кодовых страницах %1 и %2 их нет)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(в её кодовой странице %1 их нет)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>запустите Quovara с параметром &quot;--archive-locale LOCALE&quot;, указав локаль, в кодовых страницах которой они есть.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>запустите Quovara с параметром &quot;--archive-locale %1&quot; — это локаль, в кодовых страницах которой они есть.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>Пароль содержит буквы, которые движок не может принять с локалью %1 %2. Ничего не запущено. Чтобы продолжить, выберите пароль с другими буквами или %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>Значение «%1»
%2
содержит буквы, которые движок не может принять с локалью %3%4 %5. Ничего не запущено. Чтобы продолжить, переименуйте его, используя другие буквы, или %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>Папка
%1
содержит перевод строки, который нельзя передать в сценарии задания. Ничего не запущено.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>Пароль содержит перевод строки, который нельзя передать в строке задания. Ничего не запущено.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>Значение «%1» содержит перевод строки, который нельзя передать в строке задания:
%2
Ничего не запущено.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>на месте файла находится символическая ссылка</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>файл, находящийся на месте нужного, не принадлежит программе</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>Не удаётся записать сценарий задания %1: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>не удаётся создать ссылку на %1 в %2: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>в %1 нет свободного простого имени для ссылки на %2</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Подготовка движка к первому использованию…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>Не удалось подготовить движок к первому использованию: %1.
(префикс wine %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>не удаётся создать папку %1</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>не удалось запустить %1</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>это заняло более %n секунды</numerusform>
            <numerusform>это заняло более %n секунд</numerusform>
            <numerusform>это заняло более %n секунд</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine завершился с кодом %1, не создав его</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara не может показать архив
%1,
потому что %2.
Содержимое архива не показано.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>не удаётся создать представление папки %1</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>список содержимого от движка неполон</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>чтение было остановлено</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Введите пароль</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>не удаётся заменить предыдущее представление папки</translation>
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
        <translation>Без сжатия</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ быстрый</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ обычный</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ наилучший</translation>
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
        <translation>Некоторые имена в архиве
%1
не могут существовать в этой системе в исходном виде (имя длиннее 255 байт или файл и папка с одинаковым именем): 1 имя показано сокращённым или пронумерованным. Оно извлекается под сохранённым именем.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Некоторые имена в архиве
%1
не могут существовать в этой системе в исходном виде (имя длиннее 255 байт или файл и папка с одинаковым именем): %n имя показано сокращённым или пронумерованным. Они извлекаются под сохранёнными именами.</numerusform>
            <numerusform>Некоторые имена в архиве
%1
не могут существовать в этой системе в исходном виде (имя длиннее 255 байт или файл и папка с одинаковым именем): %n имени показаны сокращёнными или пронумерованными. Они извлекаются под сохранёнными именами.</numerusform>
            <numerusform>Некоторые имена в архиве
%1
не могут существовать в этой системе в исходном виде (имя длиннее 255 байт или файл и папка с одинаковым именем): %n имён показаны сокращёнными или пронумерованными. Они извлекаются под сохранёнными именами.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>не удаётся создать представление папки: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; не является именем локали (например, ru_RU.UTF-8 или ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>По команде &apos;quovara --help&apos; можно получить дополнительную информацию.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>для параметра &apos;--extract-here&apos; нужен архив</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>показать эту справку и выйти</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>показать версию Quovara и движка из папки программы и выйти</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>скопировать файлы движка (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) в папку программы, проверить, что движок работает, и выйти; окно не открывается</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>извлечь каждый архив рядом с ним, никогда не внутрь и не поверх существующего: архив с одной папкой верхнего уровня или одним файлом — как есть, любой другой — в новую папку, названную по архиву (&quot;name (2)&quot;, если имя занято); окно хода выполнения показывает каждый архив, и код завершения равен 0, только если извлечены все архивы</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>преобразовать каждый архив в FORMAT (zip, 7z, tar.xz или tar.zst) рядом с ним, как name.FORMAT (&quot;name (2).FORMAT&quot;, если имя занято, никогда поверх существующего): каждый файл извлекается в отдельную папку, сверяется со списком содержимого архива (размер и CRC-32) и записывается, а новый архив считывается для проверки; новый архив не защищён паролем; окно хода выполнения показывает каждый архив, и код завершения равен 0, только если все архивы преобразованы и проверены</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>запускать движок с локалью LOCALE (например, ru_RU.UTF-8 или ru), чтобы показывать, искать и извлекать имена в архивах, созданных в системе на этом языке; то же, что переменная QUOVARA_ARCHIVE_LOCALE</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>нераспознанный параметр &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>параметр &apos;%1&apos; не допускает аргументов</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>параметру &apos;%1&apos; требуется аргумент</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>для параметра &apos;--convert&apos; нужны формат (%1) и архив</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>неизвестный формат &apos;%1&apos; для &apos;--convert&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>для параметра &apos;--convert&apos; нужен архив после формата</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>она недоступна (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>её не удаётся создать (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>это символическая ссылка</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>это не папка</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>она принадлежит другому пользователю</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>к ней есть доступ у других пользователей (режим %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>её не удаётся создать</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara не может использовать свою рабочую папку
%1,
потому что %2.
Туда ничего не записывается, и задания не запускаются, пока это не будет исправлено.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>Не удалось завершить процесс</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>Выполнено: %1 МБ (сжато  %2 МБ) из %3 МБ Степень сжатия: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Всего: %1       Осталось: %2       Прошло: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Выполнено: %1 % Осталось: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>не удаётся прочитать %1 (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>не удаётся скопировать %1 (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>не удаётся записать %1 (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>Не удаётся создать SFX: файл заглушки %1 отсутствует.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>Не удаётся создать SFX: файл движка %1 отсутствует.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>Не удаётся создать SFX: архив %1 отсутствует.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>Не удаётся создать SFX: запись в %1 невозможна (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>Не удаётся создать SFX: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>Не удаётся создать SFX: %1 невозможно заменить.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara создаёт SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Пожалуйста, подождите...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara готова</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Выберите действие</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX создан</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>Извлечение остановлено: ни один файл не извлечён.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>Извлечение остановлено: 1 файл извлечён полностью.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>Извлечение остановлено: %n файл извлечён полностью.</numerusform>
            <numerusform>Извлечение остановлено: %n файла извлечено полностью.</numerusform>
            <numerusform>Извлечение остановлено: %n файлов извлечено полностью.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

Файл «%1» записывался и был неполным: он удалён.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

Файл «%1» записывался и остался неполным, но удалить его не удалось (%2): удалите его вручную.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Он заменил ваш файл с тем же именем; движок уже перезаписал тот файл, поэтому его содержимое потеряно.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Если у вас был файл с таким именем, движок уже перезаписал его, поэтому его содержимое потеряно.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

Записываемый файл («%1») не найден на диске.</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… и ещё %n</numerusform>
            <numerusform>
… и ещё %n</numerusform>
            <numerusform>
… и ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>Архив
%1
содержит 1 элемент, имя которого выводит его за пределы любой папки, в которую его извлекают. Он показан, но никогда не будет извлечён:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>Архив
%1
содержит %n элемент, имя которого выводит его за пределы любой папки, в которую его извлекают. Такие элементы показаны, но никогда не будут извлечены:

%2</numerusform>
            <numerusform>Архив
%1
содержит %n элемента, имена которых выводят их за пределы любой папки, в которую их извлекают. Они показаны, но никогда не будут извлечены:

%2</numerusform>
            <numerusform>Архив
%1
содержит %n элементов, имена которых выводят их за пределы любой папки, в которую их извлекают. Они показаны, но никогда не будут извлечены:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 элемент не извлечён: его имя поместило бы его за пределы папки назначения.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n элемент не извлечён: его имя поместило бы его за пределы папки назначения.

%1</numerusform>
            <numerusform>%n элемента не извлечены: их имена поместили бы их за пределы папки назначения.

%1</numerusform>
            <numerusform>%n элементов не извлечены: их имена поместили бы их за пределы папки назначения.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>Ничего не извлечено: имя каждого элемента архива поместило бы его за пределы папки назначения.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>Ничего не извлечено: в архиве %n элемент, чьё имя поместило бы его за пределы папки назначения, — слишком много, чтобы пропускать их по одному.</numerusform>
            <numerusform>Ничего не извлечено: в архиве %n элемента, имена которых поместили бы их за пределы папки назначения, — слишком много, чтобы пропускать их по одному.</numerusform>
            <numerusform>Ничего не извлечено: в архиве %n элементов, имена которых поместили бы их за пределы папки назначения, — слишком много, чтобы пропускать их по одному.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>Имя
%1
содержит &quot;\&quot; или &quot;:&quot;, что движок сохранил бы как папку или диск: при извлечении оно может оказаться за пределами папки, в которую извлекается. Ничего не запущено; сначала переименуйте его.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>Элемент
%1
не извлечён: его имя поместило бы его за пределы папки назначения.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Uharc 0.4 не обнаружен, программа будет закрыта</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Сохранить в</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>Преобразовать %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Формат:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Сохранить в:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Обзор…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Новый архив: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Перед сохранением нового архива каждый файл сверяется со списком содержимого архива (размер и CRC-32). Атрибуты «скрытый» и «системный» не сохраняются.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Папка %1 не существует.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Введите полный путь к папке, начиная с &quot;/&quot;.</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>Преобразование %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Сверка извлечённых файлов со списком содержимого…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>Запись архива %1…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Проверочное чтение нового архива…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Остановить</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>%1 не удаётся открыть: программа для открытия файлов, xdg-open, не установлена.

Она входит в пакет xdg-utils; установите его (например, командой &quot;sudo apt install xdg-utils&quot;) и повторите попытку.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Недостаточно памяти или системных ресурсов. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>Не удаётся найти файл. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>Не удаётся найти папку. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>Недопустимый формат файла. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>В системе нет сопоставления для этого типа файлов</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>Параметры: &apos;%1&apos;</translation>
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
            <numerusform>%n байта</numerusform>
            <numerusform>%n байт</numerusform>
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
        <translation>%1 ЭБ</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <comment>the exact size, its digits grouped</comment>
        <translation>%1 байт</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 объект</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n объект</numerusform>
            <numerusform>%n объекта</numerusform>
            <numerusform>%n объектов</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Изменён</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Атрибуты</translation>
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
        <translation>Файлы</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Добавление в %1 завершено</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Ошибка добавления в %1</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Добавление в %1 остановлено</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Извлечение %1 завершено</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Ошибка извлечения %1</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Извлечение %1 остановлено</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Проверка %1 завершена</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Ошибка проверки %1</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Проверка %1 остановлена</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>Создание SFX из %1 завершено</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>Ошибка создания SFX из %1</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>Создание SFX из %1 остановлено</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Путь к файлу</translation>
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
        <translation>Элемент управления TaskPaneBar.
Панель сворачиваемых групп задач со ссылками, сведениями и встроенными элементами управления, нарисованная в цветах рабочего стола.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Произошла ошибка!
Указанный ключ элемента не соответствует существующим элементам</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Поиск..</translation>
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
        <translation>Имя архива</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Метод</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Размер словаря</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Добавить %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Сохранить архив в:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Включая вложенные папки </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Сжатие</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Мультимедийное сжатие</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Словарь</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Только эти файлы: (напр.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Создать и добавить файл</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Создать и переместить файл</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>Необходимо указать имя архива</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Сохранить файл</translation>
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
        <translation>Не удаётся найти «%1». Проверьте правильность адреса и повторите попытку.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>Не удаётся найти «%1»: «%2» — это файл, а не папка или архив.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>В архиве «%1» нет папки «%2».</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>Архив преобразован, каждый элемент проверен:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Команды</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Задачи архива</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Результаты поиска</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — демонстрационный движок</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Открыть архив</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>Архивы UHARC (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara выполняет поиск</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>Кнопка «Назад» останавливает поиск</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>Пока недоступно в этой версии: %1.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara уже запущена</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>Ничего не выбрано</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>Не выбран архив .uha</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>Нельзя создать SFX из архива, защищённого паролем</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara готова</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Выберите действие</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara пропускает</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Пожалуйста, подождите...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara читает архив</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Нажмите Escape, чтобы остановить</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara читает архив: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>Чтение %1 …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>Чтение %1 … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 элемент</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n элемент</numerusform>
            <numerusform>%n элемента</numerusform>
            <numerusform>%n элементов</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Количество файлов:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Исходный размер:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Сжатый размер:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Метод:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Степень сжатия:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Степень сжатия</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Поиск файла в архиве</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Поиск файла в архиве (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Поиск (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Извлечь выбранный объект</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Запустить выбранный файл</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Крупные значки</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Мелкие значки</translation>
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
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Добавить файлы в архив</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Извлечь</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Извлечь архив</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Создать из архива самораспаковывающийся файл</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Проверить архив</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Изменить вид</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Проверить наличие новой версии</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>О Quovara. Клавиши: Ctrl+O — открыть архив, F5 — перечитать его, Ctrl+Q — выйти</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Операции с файлами и папками</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Элемент</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>&amp;Извлечь…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Преобразовать…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>Не удалось запустить движок.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Введите папку для извлечения или выберите её в списке папок.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>«%1» — не полный путь. Введите путь, начинающийся с &quot;/&quot;, или с &quot;~/&quot; для папки внутри вашей домашней папки.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>Не удаётся создать папку «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>«%1» — это файл, а не папка.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>Папка «%1» не существует. Создать её?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Проверьте имя папки и наличие свободного места на диске.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>У вас нет прав на создание папок в «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>«%1» — это файл, а не папка. Введите папку для извлечения.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>Папку «%1» не удаётся показать в списке папок.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>Не удалось создать новую папку в %1</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Извлечь</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>Извлечь %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Извлечь в:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Создать папку</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Извлечь файлы в текущую папку</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Извлечь файлы с полными путями</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Перезаписывать файлы</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Только эти файлы:  (напр.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Новая папка</translation>
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
        <translation>Движок UHARC</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Веб-сайт %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>Эл. почта %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Страница движка %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Открывает веб-сайт в браузере</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>Создаёт письмо в почтовой программе</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Открывает веб-страницу в браузере</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Quovara v 2.0</source>
        <translation>Quovara v 2.0</translation>
    </message>
    <message>
        <source>Quovara v 2.0 UHARC GUI</source>
        <translation>Quovara v 2.0 — графический интерфейс для UHARC</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a, бета-версия: мультимедийный архиватор с высокой степенью сжатия</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Веб-сайт: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>Эл. почта: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>БЕСПЛАТНО, НЕ ДЛЯ КОММЕРЧЕСКОГО ИСПОЛЬЗОВАНИЯ</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>ТОЛЬКО ДЛЯ ТЕСТИРОВАНИЯ И ОЗНАКОМЛЕНИЯ, НЕ ДЛЯ КОММЕРЧЕСКОГО ИСПОЛЬЗОВАНИЯ</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>ВПЕРЁД, НАПОЛИ</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Авторы: разработчики Quovara</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC — отдельная программа другого автора. Quovara её не включает.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>Всем, кто бережёт старые архивы.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Добавление...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Извлечение...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Проверка...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>При проверке ошибок не обнаружено</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>Движок завершился, ничего не выведя, поэтому следить за заданием невозможно.
Сценарий задания: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>Не удалось запустить задание: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>Движок завершился аварийно (%2).
Архив: %1
Задание не завершено; не полагайтесь на его результат.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>Движок спрашивает:

%1

Да: архив заменяется новым, содержащим только файлы этого задания; всё, что сейчас есть в архиве, будет потеряно (движок не умеет добавлять в существующий архив).
Нет: задание останавливается, архив остаётся без изменений.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>Архив оставлен без изменений.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>Движок спрашивает:

%1

«Да» отвечает &quot;y&quot;, «Нет» отвечает &quot;n&quot;.</translation>
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
        <translation>код завершения %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>код завершения %1; сообщение: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>его вывод %1 был удалён или обрезан во время работы</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>&amp;Путь для извлечения</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Путь для извлечения</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Программа установки</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>Запустить &amp;до извлечения</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>Запустить после &amp;извлечения</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>Текст SFX</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>&amp;Заголовок окна SFX</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>Текст в окне &amp;SFX (не более 156 символов) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Текст лицензии</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>Заголовок окна ли&amp;цензии</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>&amp;Текст в окне лицензии</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Создать</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Общие</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>Те&amp;кст</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>Допо&amp;лнительно</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>Не удаётся создать SFX: %1 — один из файлов, из которых он создаётся.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>Создать SFX</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>Сохранить SFX</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Приложение (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>Программа установки установит НАЗВАНИЕ ПРОГРАММЫ в следующую папку. Чтобы продолжить, нажмите «Установить». Чтобы выбрать другую папку, нажмите «Обзор»</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Другие кнопки</translation>
    </message>
</context>
</TS>
