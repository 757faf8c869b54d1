<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>文件数: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>原始大小: %1 MB</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>压缩后大小: %1 MB</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>模式: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>目标 %1 不是文件夹</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>无法将驱动器链接到 %1: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>引擎前缀中没有空闲的驱动器号</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>此系统没有 Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>无法创建 Landlock 规则集: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>无法将任务限制在 %1: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>转换已停止。</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>归档文件的列表中没有文件。</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>新归档文件已写入并检查，但%1；未留下任何内容。</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  以及另外 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>引擎未解压列表中的以下条目:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>以下条目解压后的大小或 CRC-32 与列表不符:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>引擎解压了列表中没有的文件:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (大小 %2，CRC-32 %3；列表: 大小 %4，CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>无法读取 %1 (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 在检查后被更改</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>无法创建 %1 (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>此系统的 libarchive 无法写入 %1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>无法写入 %1 (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>无法读回新归档文件 (%1)。</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>新归档文件中只有 %1 个条目，而写入了 %2 个。</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>新归档文件读回的内容与写入的不一致: %1。</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>未转换任何内容: 未提供密码。</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>新归档文件将不受密码保护。</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>未转换任何内容: %1。</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>未转换任何内容: 以下条目的名称会使其离开解压到的任何文件夹，因此无法完整转换该归档文件:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>未转换任何内容。%1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>以下归档文件未被转换:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>列表文件</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>排除的文件</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>要解压的文件</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>按文件列表 (完整路径)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>排除: (例如: *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Quovara 需要图形显示环境；未设置 DISPLAY 或 WAYLAND_DISPLAY</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>引擎报告了一个错误：

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>无法设置 %1 的权限</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>无法启动 %1: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>用法: quovara %1 FILE...
将引擎文件复制到 Quovara 的程序文件夹。预期的名称: %2 (不区分大小写)。
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>不是引擎文件: %1
预期的名称: %2 (不区分大小写)。
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>没有该文件: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>无法将 %1 复制到 %2: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>已安装 %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>引擎可以运行: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>引擎通过 %1 运行: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>引擎在 wine 前缀 %1 中以区域设置 %2 运行: 其文本和存储的名称使用代码页 %3，读取的名称使用 %4。
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>注意: Quovara 现在使用 %1 中的引擎，该处有其自己的 uharc.exe。
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>%1 中没有 uharc.exe: Quovara 需要它。请用以下命令安装: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>未找到 wine (请将 QUOVARA_WINE 设为启动器，或将 wine 放在 PATH 中): Quovara 用它运行引擎，引擎是一个 Windows 程序。
在 Debian 上，请用以下命令安装:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 无法运行引擎 %2: 缺少其 32 位部分。
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>在 Debian 上，请用以下命令安装:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>引擎 %1 未输出其标题信息。
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>引擎 %1 通过 %2 运行时未输出其标题信息。
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>此系统未安装区域设置 %1，因此引擎无法读写使用该语言字母的名称。请用以下命令添加
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(或 &quot;sudo dpkg-reconfigure locales&quot;)，然后重新启动 Quovara。</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>代码页 %1 (区域设置 %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>引擎: %1 中没有 (quovara --install-engine 可将其放到该处)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>引擎: UHARC，版本未知 (Windows 程序，通过 wine 运行)，位于 %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>引擎: 演示用替代程序，版本未知 (不是 UHARC)，位于 %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>引擎: UHARC %1 (Windows 程序，通过 wine 运行)，位于 %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>引擎: 演示用替代程序 %1 (不是 UHARC)，位于 %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>已存储的引擎版本: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>无法写入文件夹 %1 (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>无法将其移动到 %1 (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>找不到可用于 %1 的空闲名称</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>没有该文件。</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>这不是 UHARC 归档文件 (.uha)。</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>未解压任何内容: %1。</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>未解压任何内容: 未提供密码。</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>文件已解压，但%1；未留下任何内容。</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>以下归档文件未被解压:

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
        <translation>用法: quovara [ARCHIVE.uha]
  或:  quovara &quot;WORD  PATH&quot;
  或:  quovara &quot;WORD &quot; PATH
  或:  quovara OPTION...

Quovara 可浏览、解压、测试和创建 UHARC 归档文件 (.uha)；每项操作
都是运行一次程序文件夹中的 UHARC 引擎 uharc.exe。

不带参数时，主窗口在主文件夹中打开。如果给出归档文件的路径
(以 .uha 结尾的名称)，则在主窗口中打开该归档文件。

请求词只为 PATH 打开一个窗口；该窗口关闭时 Quovara 随之退出:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>归档文件 PATH 的解压窗口</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>文件或文件夹 PATH 的添加窗口</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>归档文件 PATH 的制作 SFX 窗口</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>各参数以单个空格连接，请求词与路径之间须有两个分隔字符: 在同一个
参数内用两个空格 (&quot;extract  /data/a.uha&quot;)，或在请求词末尾加一个
空格并将路径作为下一个参数 (&quot;extract &quot; /data/a.uha)。

选项:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>选项结束: 其后的每个参数都是请求词或路径，即 使以 &quot;-&quot; 开头也是如此 (路径也可以写成 ./-name.uha)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
也接受 Qt 自身的选项，例如 -platform NAME。如果没有此类选项，
也没有 QT_QPA_PLATFORM，窗口需要 DISPLAY 或 WAYLAND_DISPLAY。

退出状态: 0 表示完成；1 表示没有图形显示环境；2 表示选项未知或
用法错误。--install-engine 以 0 到 3 结束，详见 quovara(1)。
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>引擎 %1 不存在</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>任务指定的 %1 不是程序文件夹 %2 中的引擎；任务未启动</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>无法读取列表文件 %1: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>列表文件 %1 包含引擎无法处理的文件。%2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>无法写入列表文件的副本 %1: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>任务脚本 %1 不是由本程序写入的</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>无法读取任务脚本 %1</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>任务脚本 %1 在写入后被更改；未运行</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>任务脚本 %1 未指定任何命令</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>任务要求将输出写入 %1，但它不是工作文件夹的控制台输出文件</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 是 Windows 程序，但未找到启动器 (wine)</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>无法将归档文件所在的文件夹交给引擎: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>无法将归档文件交给引擎: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>无法将解压限制在其目标位置: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>无法创建输出文件 %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>无法启动 %1: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>归档文件</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>归档文件名</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>命令行</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>目标文件夹</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>字典大小</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>排除项</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>item</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>列表文件</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>程序文件夹</translation>
    </message>
    <message>
        <source>source</source>
        <translation>源</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>临时文件夹</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>密码包含 ASCII 以外的字符。%1 未运行任何操作。</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>%1
%2
包含 ASCII 以外的字符。%3 未运行任何操作。</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(其代码页 %1 和 %2 不含这些字符)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(其代码页 %1 不含这些字符)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>请用 &quot;--archive-locale LOCALE&quot; 指定一个代码页包含这些字符的区域设置来启动 Quovara。</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>请用 &quot;--archive-locale %1&quot; 启动 Quovara，该区域设置的代码页包含这些字符。</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>密码包含引擎在区域设置 %1 %2 下无法处理的字符。未运行任何操作。要继续，请选择使用其他字符的密码，或者%3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>%1
%2
包含引擎在区域设置 %3%4 %5 下无法处理的字符。未运行任何操作。要继续，请用其他字符重命名，或者%6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>文件夹
%1
包含换行符，而任务脚本无法容纳换行符。未运行任何操作。</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>密码包含换行符，而任务行无法容纳换行符。未运行任何操作。</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>%1 包含换行符，而任务行无法容纳换行符:
%2
未运行任何操作。</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>文件应在的位置是一个符号链接</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>文件应在的位置上的文件不属于本程序</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>无法写入任务脚本 %1: %2。</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>无法将 %1 链接到 %2: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>%1 中没有可用于指向 %2 的链接的普通名称</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>正在为首次使用准备引擎…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>无法为首次使用准备引擎: %1。
(wine 前缀 %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>无法启动 %1</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>耗时超过 %n 秒</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine 以代码 %1 结束，未能完成创建</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara 无法显示归档文件
%1
原因: %2。
不显示其中的任何内容。</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>无法创建文件夹视图 %1</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>引擎的列表不完整</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>读取已停止</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>输入密码</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>无法替换之前的文件夹视图</translation>
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
        <translation>仅存储</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ 快速</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ 标准</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ 最佳</translation>
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
        <translation>归档文件
%1
中的一些名称无法在此系统上原样使用 (名称超过 255 字节，或文件与文件夹同名): 1 个名称以缩短或编号的形式显示。解压时使用其存储的名称。</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>归档文件
%1
中的一些名称无法在此系统上原样使用 (名称超过 255 字节，或文件与文件夹同名): %n 个名称以缩短或编号的形式显示。解压时使用其存储的名称。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>无法创建文件夹视图: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>“%1”不是区域设置名称 (例如 ru_RU.UTF-8 或 ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>请尝试执行 &apos;quovara --help&apos; 获取更多信息。</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>选项 &apos;--extract-here&apos; 需要一个归档文件</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>显示此帮助并退出</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>显示 Quovara 以及程序文件夹中引擎的版本，然后退出</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>将引擎文件 (uharc.exe、 Uharc0.4.fns、Uharc0.6.fns、SFX.exe) 复制到程序 文件夹，检查引擎能否运行，然后退出；不打开任何窗口</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>将每个归档文件解压到其旁边，绝不解压到或覆盖任何 已有内容: 只含一个顶层文件夹或一个文件的归档文件按 原样解压，其他的解压到以其命名的新文件夹中 (名 称已被占用时为 &quot;name (2)&quot;)；进度窗口显示 每个归档文件，只有当所有归档文件都解压后状态才为 0</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>将每个归档文件转换为 FORMAT (zip、7z、tar.xz 或 tar.zst)，以 name.FORMAT 保存在其旁边 (名称已被占用时为 &quot;name (2).FORMAT&quot;， 绝不覆盖任何内容): 每个文件先解压到私有文件夹，与 归档文件的列表 (大小和 CRC-32) 核对后写入，并读回 新归档文件；新归档文件没有密码；进度窗口显示每个归 档文件，只有当所有归档文件都转换并检查后状态才为 0</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>在 LOCALE (例如 ru_RU.UTF-8 或 ru) 下运 行引擎，以便显示、搜索和解压在该语言系统上制作的归 档文件中的名称；与变量 QUOVARA_ARCHIVE_LOCALE 相同</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>无法识别的选项 &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>选项 &apos;%1&apos; 不接受参数</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>选项 &apos;%1&apos; 需要一个参数</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>选项 &apos;--convert&apos; 需要一个格式 (%1) 和一个归档文件</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>&apos;--convert&apos; 的格式 &apos;%1&apos; 未知 (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>选项 &apos;--convert&apos; 在格式之后需要一个归档文件</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>无法访问 (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>无法创建 (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>它是一个符号链接</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>它不是文件夹</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>它属于其他用户</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>其他用户可以访问它 (模式 %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>无法创建</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara 无法使用其工作文件夹
%1
原因: %2。
在此问题解决之前，不会向其中写入任何内容，也不会运行任何任务。</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>无法终止进程</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>进度: %1 MB (压缩后 %2 MB)，共 %3 MB 压缩率: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>总计: %1       剩余: %2       已用: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>已完成: %1 % 剩余: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>无法读取 %1 (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>无法复制 %1 (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>无法写入 %1 (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>无法创建 SFX: 缺少存根文件 %1。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>无法创建 SFX: 缺少引擎文件 %1。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>无法创建 SFX: 缺少归档文件 %1。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>无法创建 SFX: 无法写入 %1 (%2)。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>无法创建 SFX: %1。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>无法创建 SFX: 无法替换 %1。</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara 正在创建 SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>请稍候...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara 已就绪</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>请选择一项操作</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX 已创建</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>解压已停止: 未解压任何文件。</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>解压已停止: 已完整解压 1 个文件。</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>解压已停止: 已完整解压 %n 个文件。</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

正在写入的“%1”不完整: 已将其删除。</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

正在写入的“%1”不完整，但无法删除 (%2): 请手动删除它。</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
它替换了您的一个同名文件；引擎已覆盖该文件，因此其内容已丢失。</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
如果您有一个同名文件，引擎已将其覆盖，因此其内容已丢失。</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

在磁盘上未找到正在写入的文件 (“%1”)。</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… 以及另外 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>归档文件
%1
包含 1 个条目，其名称会使其离开解压到的任何文件夹。该条目会显示，但永远不会被解压:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>归档文件
%1
包含 %n 个条目，其名称会使其离开解压到的任何文件夹。这些条目会显示，但永远不会被解压:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>有 1 个条目未被解压: 其名称会将其放到目标文件夹之外。

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>有 %n 个条目未被解压: 其名称会将其放到目标文件夹之外。

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>未解压任何内容: 归档文件的每个条目的名称都会将其放到目标文件夹之外。

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>未解压任何内容: 归档文件包含 %n 个名称会将其放到目标文件夹之外的条目，数量太多，无法逐一排除。</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>以下名称
%1
包含 &quot;\&quot; 或 &quot;:&quot;，引擎会将其存储为文件夹或驱动器: 解压时它可能落到解压目标文件夹之外。未运行任何操作；请先将其重命名。</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>条目
%1
未被解压: 其名称会将其放到目标文件夹之外。</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>未检测到 Uharc 0.4，程序将退出</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>保存到</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>转换 %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>格式(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>保存到(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>新归档文件: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>在保留新归档文件之前，会将每个文件与归档文件的列表 (大小和 CRC-32) 进行核对。隐藏和系统属性不会保留。</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>文件夹 %1 不存在。</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>请输入文件夹的完整路径，从“/”开始。</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>正在转换 %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>正在将解压出的文件与列表核对…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>正在写入 %1 归档文件…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>正在读回新归档文件…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>无法打开 %1: 未安装用于打开文件的程序 xdg-open。

它包含在 xdg-utils 软件包中；请安装该软件包 (例如使用 &quot;sudo apt install xdg-utils&quot;) 后重试。</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>内存或系统资源不足。 </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>找不到文件。 </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>找不到文件夹。 </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>文件格式无效。 </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>系统中没有与此类文件关联的程序</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>参数: &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>quovara::DetailsModel</name>
    <message>
        <source>1 byte</source>
        <translation>1 字节</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n 字节</numerusform>
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
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 个项目</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
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
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>添加到 %1 已完成</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>添加到 %1 失败</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>添加到 %1 已停止</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>解压 %1 已完成</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>解压 %1 失败</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>解压 %1 已停止</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>测试 %1 已完成</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>测试 %1 失败</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>测试 %1 已停止</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>制作 %1 的 SFX 已完成</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>制作 %1 的 SFX 失败</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>制作 %1 的 SFX 已停止</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>文件路径</translation>
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
        <translation>TaskPaneBar 控件。
由可折叠任务组构成的窗格，包含链接、详细信息和内嵌控件，以桌面配色绘制。</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>发生错误！
指定的项目键与现有项目不匹配</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>正在搜索..</translation>
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
        <translation>归档文件名</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>字典大小</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>添加 %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>归档文件保存到:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>包含子文件夹 </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>压缩</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>多媒体压缩</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>字典</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>仅以下文件: (例如: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>创建并添加文件</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>创建并移动文件</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>您必须指定归档文件的名称</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>UHA 文件 (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>找不到“%1”。请检查地址的拼写，然后重试。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>找不到“%1”: “%2”是文件，不是文件夹或归档文件。</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>归档文件“%1”中没有文件夹“%2”。</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>归档文件已转换，且每个条目都已检查:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>归档任务</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>搜索结果</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — 演示引擎</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>打开归档文件</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>UHARC 归档文件 (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara 正在搜索</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>“后退”可停止搜索</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>此版本尚不支持 %1。</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara 已在运行</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>未选择任何项目</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>未选择 .uha 归档文件</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>不能用受密码保护的归档文件创建 SFX</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara 已就绪</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>请选择一项操作</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara 正在跳过</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>请稍候...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara 正在读取归档文件</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>按 Esc 键停止</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara 正在读取归档文件: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>正在读取 %1 …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>正在读取 %1 … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 个条目</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n 个条目</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>文件数:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>原始大小:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>压缩后大小:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>方法:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>压缩率:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>压缩率</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>在归档文件中搜索文件</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>在归档文件中搜索文件 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>搜索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>解压所选项目</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>运行所选文件</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>大图标</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>小图标</translation>
    </message>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>后退 (Backspace、Alt+←)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>将文件添加到归档文件</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>解压</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>解压归档文件</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>用归档文件制作自解压程序</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>测试归档文件</translation>
    </message>
    <message>
        <source>View</source>
        <translation>查看</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>更改视图</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>查找新版本</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>关于 Quovara。快捷键: Ctrl+O 打开归档文件，F5 重新读取，Ctrl+Q 退出</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>文件和文件夹操作</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>解压(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>转换(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>无法启动引擎。

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>请输入要解压到的文件夹，或在文件夹列表中选择。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>“%1”不是完整路径。请输入以“/”开头的路径，或对主文件夹中的文件夹使用以“~/”开头的路径。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>“%1”是文件，不是文件夹。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>文件夹“%1”不存在。要创建吗？</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>请检查文件夹名称，并确认磁盘有足够空间。</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>您无权在“%1”中创建文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>“%1”是文件，不是文件夹。请输入要解压到的文件夹。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>无法在文件夹列表中显示文件夹“%1”。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>无法在 %1 中创建新文件夹</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>解压</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>解压 %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>解压到:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>将文件解压到当前文件夹</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>按完整路径解压文件</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>覆盖文件</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>仅以下文件:  (例如: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
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
        <translation>UHARC 引擎</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>网站 %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>电子邮件 %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>引擎页面 %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>在浏览器中打开网站</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>在邮件程序中撰写电子邮件</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>在浏览器中打开网页</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Quovara v 2.0</source>
        <translation>Quovara v 2.0</translation>
    </message>
    <message>
        <source>Quovara v 2.0 UHARC GUI</source>
        <translation>Quovara v 2.0 UHARC GUI</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a 测试版 高压缩率多媒体归档程序</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>网站: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>电子邮件: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>免费软件，不得用于商业用途</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>仅供测试和评估，不得用于商业用途</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>FORZA NAPOLI</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>由 Quovara 开发者编写</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC 是由其作者另行开发的独立程序。Quovara 不包含它。</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>献给所有让旧归档文件延续生命的人。</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>正在添加...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>正在解压...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>正在测试...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>测试过程中未发现错误</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>引擎未写入任何输出就结束了，因此无法跟踪该任务。
任务脚本: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>无法启动任务: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>引擎异常结束 (%2)。
归档文件: %1
任务未完成；请不要依赖其结果。</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>引擎询问:

%1

是: 归档文件将被替换为只包含此任务文件的新归档文件；归档文件中现有的所有内容都将丢失 (引擎无法向现有归档文件添加内容)。
否: 任务停止，归档文件保持原样。</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>归档文件保持原样。</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>引擎询问:

%1

“是”回答 &quot;y&quot;，“否”回答 &quot;n&quot;。</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>信号 %1，%2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>信号 %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>退出代码 %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>退出代码 %1；其输出: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>运行期间其输出 %1 被删除或截断</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>解压路径(&amp;P)</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>解压路径</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>安装程序</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>解压前运行(&amp;B)</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>解压后运行(&amp;A)</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>SFX 文本</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>SFX 窗口标题(&amp;L)</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>在 SFX 窗口中显示的文本 (最多 156 个字符)(&amp;S) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>许可协议文本</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>许可协议窗口标题(&amp;I)</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>在许可协议窗口中显示的文本(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>创建(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>常规(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>文本(&amp;T)</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>高级(&amp;V)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>无法创建 SFX: %1 是用于制作它的文件之一。</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>制作 SFX</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>保存 SFX</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>应用程序 (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>安装程序将把〈程序名称〉安装到以下文件夹。要继续，请单击“安装”。如果要选择其他文件夹，请单击“浏览”。</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>更多按钮</translation>
    </message>
</context>
</TS>
