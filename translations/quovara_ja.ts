<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>ファイル数: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>元のサイズ: %1 MB</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>圧縮後のサイズ: %1 MB</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>モード: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>展開先 %1 はフォルダーではありません</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>ドライブを %1 にリンクできません: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>エンジンのプレフィックスに空いているドライブ文字がありません</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>このシステムには Landlock がありません</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>Landlock のルールセットを作成できません: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>ジョブを %1 に制限できません: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>変換は中止されました。</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>アーカイブの一覧にファイルがありません。</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>新しいアーカイブは書き込まれ、確認されましたが、%1。何も残されていません。</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>エンジンは一覧にある次の項目を展開しませんでした:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>次の項目は一覧と異なるサイズまたは CRC-32 で展開されました:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>エンジンは一覧にないファイルを展開しました:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (サイズ %2、CRC-32 %3; 一覧: サイズ %4、CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>%1 を読み取れません (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 は確認後に変更されました</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>%1 を作成できません (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>このシステムの libarchive は %1 を書き込めません (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>%1 に書き込めません (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>新しいアーカイブを読み戻せません (%1)。</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>新しいアーカイブには %2 個書き込んだ項目のうち %1 個しかありません。</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>新しいアーカイブを読み戻した内容が書き込んだ内容と一致しません: %1。</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>何も変換されませんでした: パスワードが入力されませんでした。</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>新しいアーカイブはパスワードで保護されません。</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>何も変換されませんでした: %1。</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>何も変換されませんでした: 次の項目は名前が展開先のフォルダーの外を指すため、アーカイブ全体を変換できません:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>何も変換されませんでした。%1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>次のアーカイブは変換されませんでした:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>リスト ファイル</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>除外するファイル</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>展開するファイル</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>ファイル リストで指定 (フル パス)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>除外: (例: *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Quovara にはグラフィカル ディスプレイが必要です。DISPLAY も WAYLAND_DISPLAY も設定されていません</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>エンジンがエラーを報告しました:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>%1 のアクセス許可を設定できません</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 を起動できませんでした: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>使い方: quovara %1 FILE...
エンジンのファイルを Quovara のプログラム フォルダーにコピーします。
必要な名前: %2 (大文字と小文字は区別しません)。
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>エンジンのファイルではありません: %1
必要な名前: %2 (大文字と小文字は区別しません)。
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>ファイルがありません: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>%1 を %2 にコピーできませんでした: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>%1 をインストールしました
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>エンジンは動作します: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>エンジンは %1 を介して動作します: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>エンジンは wine プレフィックス %1 でロケール %2 の下で動作します: テキストと保存する名前にはコード ページ %3、読み取る名前には %4 を使います。
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>注意: Quovara は現在 %1 にあるエンジンを使っています。そこには独自の uharc.exe があります。
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>%1 に uharc.exe がありません。Quovara にはこれが必要です。次のコマンドでインストールしてください: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>wine が見つかりません (QUOVARA_WINE にランチャーを設定するか、wine を PATH に置いてください)。Quovara は Windows プログラムであるエンジンを wine で実行します。
Debian では次のコマンドでインストールできます:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 はエンジン %2 を実行できません: 32 ビット部分がありません。
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>Debian では次のコマンドでインストールできます:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>エンジン %1 がバナーを表示しませんでした。
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>エンジン %1 が %2 を介してバナーを表示しませんでした。
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>ロケール %1 がこのシステムにインストールされていないため、エンジンはその文字を使った名前を読み書きできません。次のコマンドで追加し
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(または &quot;sudo dpkg-reconfigure locales&quot;)、Quovara を起動し直してください。</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>コード ページ %1 (ロケール %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>エンジン: %1 にありません (quovara --install-engine で配置できます)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>エンジン: UHARC、バージョン不明 (Windows プログラム、wine で実行) - %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>エンジン: デモ用の代替品、バージョン不明 (UHARC ではありません) - %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>エンジン: UHARC %1 (Windows プログラム、wine で実行) - %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>エンジン: デモ用の代替品 %1 (UHARC ではありません) - %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>保存されているエンジンのバージョン: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>フォルダー %1 に書き込めません (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>%1 に移動できませんでした (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>%1 に使える空き名が見つかりませんでした</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>そのようなファイルはありません。</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>UHARC アーカイブ (.uha) ではありません。</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>何も展開されませんでした: %1。</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>何も展開されませんでした: パスワードが入力されませんでした。</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>ファイルは展開されましたが、%1。何も残されていません。</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>次のアーカイブは展開されませんでした:

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
        <translation>使い方: quovara [ARCHIVE.uha]
  または:  quovara &quot;WORD  PATH&quot;
  または:  quovara &quot;WORD &quot; PATH
  または:  quovara OPTION...

Quovara は UHARC アーカイブ (.uha) の閲覧、展開、テスト、作成を行います。
どの操作も、プログラム フォルダーにある UHARC エンジン uharc.exe の
実行です。

引数がなければ、メイン ウィンドウがホーム フォルダーで開きます。
アーカイブのパス (名前が .uha で終わるもの) を指定すると、
そのアーカイブがメイン ウィンドウで開きます。

要求語を指定すると PATH 用のウィンドウを 1 つだけ開き、
そのウィンドウを閉じると Quovara は終了します:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>アーカイブ PATH の展開ウィンドウ</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>ファイルまたはフォルダー PATH の追加ウィンドウ</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>アーカイブ PATH の SFX 作成ウィンドウ</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>引数は 1 つの空白で連結され、要求語とパスの間には区切り文字が 2 つ
必要です: 1 つの引数の中に空白 2 つ (&quot;extract  /data/a.uha&quot;)、
または要求語の末尾に空白 1 つを付け、パスを次の引数にします
(&quot;extract &quot; /data/a.uha)。

オプション:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>オプションの終わり: これ以降の引数は、&quot;-&quot; で 始まるものでもすべて要求語またはパスとして扱います (パスは ./-name.uha のようにも書けます)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
Qt 独自のオプション (-platform NAME など) も使えます。それも
QT_QPA_PLATFORM もない場合、ウィンドウには DISPLAY または
WAYLAND_DISPLAY が必要です。

終了ステータス: 0 は完了、1 はグラフィカル ディスプレイなし、
2 は不明なオプションまたはオプションの誤用。--install-engine は
quovara(1) に記載のとおり 0 から 3 で終了します。
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>エンジン %1 が存在しません</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>ジョブが指定している %1 はプログラム フォルダー %2 のエンジンではありません。ジョブは開始されませんでした</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>リスト ファイル %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>リスト ファイル %1 にエンジンが扱えないファイルが含まれています。%2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>リスト ファイルのコピー %1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>ジョブ スクリプト %1 はこのプログラムが書いたものではありません</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>ジョブ スクリプト %1 を読み取れません</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>ジョブ スクリプト %1 は書き込み後に変更されたため、実行されませんでした</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>ジョブ スクリプト %1 にコマンドがありません</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>ジョブの出力先 %1 は作業フォルダーのコンソール出力ファイルではありません</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 は Windows プログラムですが、ランチャー (wine) が見つかりませんでした</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>アーカイブのフォルダーをエンジンに渡せません: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>アーカイブをエンジンに渡せません: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>展開を展開先に制限できません: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>出力ファイル %1 を作成できません: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 を起動できませんでした: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>アーカイブ名</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>コマンド ライン</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>展開先フォルダー</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>辞書サイズ</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>item</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>リスト ファイル</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>プログラム フォルダー</translation>
    </message>
    <message>
        <source>source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>一時フォルダー</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>パスワードに ASCII 以外の文字が含まれています。%1 何も実行されませんでした。</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>%1
%2
に ASCII 以外の文字が含まれています。%3 何も実行されませんでした。</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(コード ページ %1 と %2 にはこれらの文字がありません)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(コード ページ %1 にはこれらの文字がありません)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>これらの文字を含むコード ページのロケールを &quot;--archive-locale LOCALE&quot; で指定して Quovara を起動してください。</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>これらの文字を含むコード ページのロケール &quot;--archive-locale %1&quot; を指定して Quovara を起動してください。</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>パスワードに、ロケール %1 %2 ではエンジンが扱えない文字が含まれています。何も実行されませんでした。続けるには、別の文字を使ったパスワードを選ぶか、%3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>%1
%2
に、ロケール %3%4 %5 ではエンジンが扱えない文字が含まれています。何も実行されませんでした。続けるには、別の文字を使った名前に変更するか、%6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>フォルダー
%1
には改行が含まれていますが、ジョブ スクリプトでは改行を扱えません。何も実行されませんでした。</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>パスワードに改行が含まれていますが、ジョブの行では改行を扱えません。何も実行されませんでした。</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>%1 に改行が含まれていますが、ジョブの行では改行を扱えません:
%2
何も実行されませんでした。</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>ファイルがあるべき場所にシンボリック リンクがあります</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>ファイルがあるべき場所にあるファイルは、このプログラムのものではありません</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>ジョブ スクリプト %1 に書き込めません: %2。</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>%1 を %2 にリンクできません: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>%1 に %2 へのリンク用の単純な名前の空きがありません</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>エンジンの初回使用の準備をしています…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>エンジンの初回使用の準備ができませんでした: %1。
(wine プレフィックス %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>%1 を起動できませんでした</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>%n 秒以上かかりました</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine はコード %1 で終了し、作成されませんでした</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara はアーカイブ
%1
を表示できません。理由: %2。
アーカイブの内容は何も表示されません。</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>フォルダー ビュー %1 を作成できません</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>エンジンの一覧が不完全です</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>読み取りが中止されました</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>パスワードの入力</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>以前のフォルダー ビューを置き換えられません</translation>
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
        <translation>無圧縮</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ 高速</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ 標準</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ 最高</translation>
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
        <translation>アーカイブ
%1
の一部の名前は、このシステムではそのまま使えません (255 バイトを超える名前、または同じ名前のファイルとフォルダー)。1 個の名前が短縮または番号付きで表示されています。展開時には保存されている名前が使われます。</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>アーカイブ
%1
の一部の名前は、このシステムではそのまま使えません (255 バイトを超える名前、または同じ名前のファイルとフォルダー)。%n 個の名前が短縮または番号付きで表示されています。展開時には保存されている名前が使われます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>フォルダー ビューを作成できません: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; はロケール名ではありません (例: ru_RU.UTF-8 や ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>詳しくは &apos;quovara --help&apos; を実行してください。</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>オプション &apos;--extract-here&apos; にはアーカイブが必要です</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>このヘルプを表示して終了します</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>Quovara とプログラム フォルダーにあ るエンジンのバージョンを表示して終了します</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>エンジンのファイル (uharc.exe、 Uharc0.4.fns、Uharc0.6.fns、SFX.exe) を プログラム フォルダーにコピーし、エンジンが動作す ることを確認して終了します。ウィンドウは開きません</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>各アーカイブをその隣に展開します。既存のものの中や 上には決して展開しません。最上位のフォルダー 1 つ またはファイル 1 つだけのアーカイブはそのまま、 それ以外はアーカイブ名の新しいフォルダーに展開しま す (その名前が使われていれば &quot;name (2)&quot;)。 進行状況ウィンドウに各アーカイブが表示され、すべ てのアーカイブが展開された場合にのみステータスは 0 になります</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>各アーカイブを FORMAT (zip、7z、tar.xz、tar.zst) に変換し、その隣に name.FORMAT として保存します (その名前が使われていれば &quot;name (2).FORMAT&quot;。既存 のものを上書きすることはありません)。すべてのファ イルは専用のフォルダーに展開され、アーカイブの一覧 (サイズと CRC-32) と照合されてから書き込まれ、新 しいアーカイブは読み戻して確認されます。新しいアー カイブにはパスワードは付きません。進行状況ウィンド ウに各アーカイブが表示され、すべてのアーカイブが変 換・確認された場合にのみステータスは 0 になります</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>LOCALE (例: ru_RU.UTF-8 や ru) の下でエンジンを実行し、その言語のシステムで 作られたアーカイブの名前を表示・検索・展開できるよ うにします。変数 QUOVARA_ARCHIVE_LOCALE と同じです</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>認識できないオプション &apos;%1&apos; です</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>オプション &apos;%1&apos; は引数を取りません</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>オプション &apos;%1&apos; には引数が必要です</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>オプション &apos;--convert&apos; には形式 (%1) とアーカイブが必要です</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>&apos;--convert&apos; の形式 &apos;%1&apos; は不明です (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>オプション &apos;--convert&apos; には形式の後にアーカイブが必要です</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>アクセスできません (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>作成できません (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>シンボリック リンクです</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>別のユーザーが所有しています</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>他のユーザーがアクセスできます (モード %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>作成できません</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara は作業フォルダー
%1
を使えません。理由: %2。
この問題が解決されるまで、そこには何も書き込まれず、ジョブも実行されません。</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>プロセスを終了できませんでした</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>進行状況: %1 MB (圧縮後 %2 MB) / %3 MB 圧縮率: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>合計: %1       残り: %2       経過: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>完了: %1 % 残り: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>%1 を読み取れません (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>%1 をコピーできません (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>%1 に書き込めません (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>SFX を作成できません: スタブ ファイル %1 がありません。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>SFX を作成できません: エンジンのファイル %1 がありません。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>SFX を作成できません: アーカイブ %1 がありません。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>SFX を作成できません: %1 に書き込めません (%2)。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>SFX を作成できません: %1。</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>SFX を作成できません: %1 を置き換えられません。</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara は SFX を作成しています</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>お待ちください...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara の準備ができました</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>操作を選択してください</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX を作成しました</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>展開は中止されました: 展開されたファイルはありません。</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>展開は中止されました: 1 個のファイルが完全に展開されました。</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>展開は中止されました: %n 個のファイルが完全に展開されました。</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

書き込み中だった &quot;%1&quot; は不完全だったため、削除しました。</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

書き込み中だった &quot;%1&quot; は不完全ですが、削除できませんでした (%2)。手動で削除してください。</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
このファイルは同じ名前のお使いのファイルを置き換えていました。エンジンがそのファイルを既に上書きしていたため、その内容は失われました。</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
お使いのファイルにその名前のものがあった場合、エンジンが既に上書きしているため、その内容は失われました。</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

書き込み中のファイル (&quot;%1&quot;) がディスク上に見つかりませんでした。</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>アーカイブ
%1
には、展開先のフォルダーの外に出てしまう名前の項目が 1 個含まれています。この項目は表示されますが、展開されることはありません:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>アーカイブ
%1
には、展開先のフォルダーの外に出てしまう名前の項目が %n 個含まれています。これらの項目は表示されますが、展開されることはありません:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 個の項目は展開されませんでした: 名前が展開先フォルダーの外を指しています。

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n 個の項目は展開されませんでした: 名前が展開先フォルダーの外を指しています。

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>何も展開されませんでした: アーカイブのすべての項目の名前が展開先フォルダーの外を指しています。

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>何も展開されませんでした: アーカイブには名前が展開先フォルダーの外を指す項目が %n 個あり、1 つずつ除外するには多すぎます。</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>次の名前
%1
には &quot;\&quot; または &quot;:&quot; が含まれており、エンジンはこれをフォルダーやドライブとして保存します。展開すると、展開先のフォルダーの外に置かれるおそれがあります。何も実行されませんでした。先に名前を変更してください。</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>項目
%1
は展開されません: 名前が展開先フォルダーの外を指しています。</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Uharc 0.4 が見つかりません。プログラムを終了します</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>%1 の変換</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>形式(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>保存先(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>参照(&amp;B)…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>新しいアーカイブ: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>新しいアーカイブを保存する前に、すべてのファイルをアーカイブの一覧 (サイズと CRC-32) と照合します。隠し属性とシステム属性は保持されません。</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>フォルダー %1 は存在しません。</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>フォルダーのフル パスを &quot;/&quot; から入力してください。</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>%1 を変換しています</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>展開したファイルを一覧と照合しています…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>%1 アーカイブを書き込んでいます…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>新しいアーカイブを読み戻しています…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>中止(&amp;S)</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>%1 を開けません: ファイルを開くプログラム xdg-open がインストールされていません。

これは xdg-utils パッケージに含まれています。インストールしてから (例: &quot;sudo apt install xdg-utils&quot;) もう一度お試しください。</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>メモリまたはシステム リソースが不足しています。 </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>ファイルが見つかりません。 </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>フォルダーが見つかりません。 </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>ファイル形式が無効です。 </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>この種類のファイルに関連付けられたプログラムがありません</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>パラメーター: &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>quovara::DetailsModel</name>
    <message>
        <source>1 byte</source>
        <translation>1 バイト</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n バイト</numerusform>
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
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 個の項目</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n 個の項目</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>更新日時</translation>
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
        <translation>ファイル</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>%1 への追加が完了しました</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>%1 への追加に失敗しました</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>%1 への追加が中止されました</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>%1 の展開が完了しました</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>%1 の展開に失敗しました</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>%1 の展開が中止されました</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>%1 のテストが完了しました</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>%1 のテストに失敗しました</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>%1 のテストが中止されました</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>%1 の SFX 作成が完了しました</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>%1 の SFX 作成に失敗しました</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>%1 の SFX 作成が中止されました</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>ファイルのパス</translation>
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
        <translation>TaskPaneBar コントロール。
リンク、詳細、埋め込みコントロールを持つ折りたたみ可能なタスク グループのペインで、デスクトップの配色で描画されます。</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>エラーが発生しました。
指定された項目キーが既存の項目と一致しません</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>検索しています..</translation>
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
        <translation>アーカイブ名</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方式</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>辞書サイズ</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 の追加</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>アーカイブの保存先:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>サブフォルダーを含める </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>マルチメディア圧縮</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>辞書</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>次のファイルのみ: (例: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>作成してファイルを追加</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>作成してファイルを移動</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>アーカイブの名前を指定してください</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>ファイルの保存</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>UHA ファイル (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>&quot;%1&quot; が見つかりません。アドレスのつづりを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>&quot;%1&quot; が見つかりません: &quot;%2&quot; はファイルであり、フォルダーやアーカイブではありません。</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>アーカイブ &quot;%1&quot; にはフォルダー &quot;%2&quot; がありません。</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>アーカイブは変換され、すべての項目が確認されました:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>アーカイブのタスク</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — デモ用エンジン</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>アーカイブを開く</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>UHARC アーカイブ (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara は検索しています</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>[戻る] で検索を中止します</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>%1 はこのバージョンではまだ使用できません。</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara は既に実行中です</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>項目が選択されていません</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>.uha アーカイブが選択されていません</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>パスワードで保護されたアーカイブから SFX は作成できません</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara の準備ができました</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>操作を選択してください</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara はスキップしています</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>お待ちください...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara はアーカイブを読み取っています</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Esc キーで中止します</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara はアーカイブを読み取っています: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>%1 を読み取っています…</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>%1 を読み取っています… %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 個の項目</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n 個の項目</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>ファイル数:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>元のサイズ:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>圧縮後のサイズ:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>方式:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>圧縮率:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>圧縮率</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>アーカイブ内のファイルを検索</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>アーカイブ内のファイルを検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>選択した項目を展開</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>選択したファイルを実行</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>大きいアイコン</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>小さいアイコン</translation>
    </message>
    <message>
        <source>List</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>戻る (Backspace、Alt+←)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>アーカイブにファイルを追加</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>アーカイブを展開</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>アーカイブから自己解凍プログラムを作成</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>テスト</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>アーカイブをテスト</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>表示方法を変更</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>新しいバージョンを確認</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>Quovara について。キー: Ctrl+O アーカイブを開く、F5 再読み込み、Ctrl+Q 終了</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>ファイルとフォルダーの操作</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>展開(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>変換(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>エンジンを起動できませんでした。

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>展開先のフォルダーを入力するか、フォルダーの一覧から選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>&quot;%1&quot; はフル パスではありません。&quot;/&quot; で始まるパス、またはホーム フォルダー内のフォルダーなら &quot;~/&quot; で始まるパスを入力してください。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>フォルダー &quot;%1&quot; を作成できません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>&quot;%1&quot; はファイルであり、フォルダーではありません。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>フォルダー &quot;%1&quot; は存在しません。作成しますか?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>フォルダーの名前と、ディスクに空き容量があることを確認してください。</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; にフォルダーを作成する権限がありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>&quot;%1&quot; はファイルであり、フォルダーではありません。展開先のフォルダーを入力してください。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>フォルダー &quot;%1&quot; をフォルダーの一覧に表示できません。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>%1 に新しいフォルダーを作成できませんでした</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>%1 の展開</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>展開先:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新しいフォルダーの作成</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>現在のフォルダーにファイルを展開</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>フル パスでファイルを展開</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>ファイルを上書きする</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>次のファイルのみ:  (例: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新しいフォルダー</translation>
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
        <translation>UHARC エンジン</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Web サイト %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>電子メール %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>エンジンのページ %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Web サイトをブラウザーで開きます</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>メール プログラムで電子メールを作成します</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Web ページをブラウザーで開きます</translation>
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
        <translation>Quovara v 2.0 UHARC GUI</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a ベータ版 高圧縮マルチメディア アーカイバー</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Web サイト: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>電子メール: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>無料です。商用利用はできません</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>テストおよび評価専用です。商用利用はできません</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>FORZA NAPOLI</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>作成: Quovara 開発者</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC は独自の作者による別のプログラムです。Quovara には含まれていません。</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>古いアーカイブを守り続けるすべての人へ。</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>追加しています...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>展開しています...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>テストしています...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>テストでエラーは見つかりませんでした</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>エンジンが何も出力せずに終了したため、ジョブの状況を追跡できません。
ジョブ スクリプト: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>ジョブを開始できませんでした: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>エンジンが異常終了しました (%2)。
アーカイブ: %1
ジョブは完了していません。結果を信頼しないでください。</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>エンジンからの確認:

%1

はい: アーカイブは、このジョブのファイルだけを含む新しいアーカイブに置き換えられます。現在アーカイブにあるものはすべて失われます (エンジンは既存のアーカイブに追加できません)。
いいえ: ジョブは中止され、アーカイブはそのまま残ります。</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>アーカイブは変更されていません。</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>エンジンからの確認:

%1

[はい] は &quot;y&quot;、[いいえ] は &quot;n&quot; と答えます。</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>シグナル %1、%2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>シグナル %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>終了コード %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>終了コード %1。エンジンの出力: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>実行中に出力 %1 が削除されたか、途中で切れました</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>展開先のパス(&amp;P)</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>展開先のパス</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>セットアップ プログラム</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>展開前に実行(&amp;B)</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>展開後に実行(&amp;A)</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>SFX のテキスト</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>SFX ウィンドウのタイトル(&amp;L)</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>SFX ウィンドウに表示するテキスト (最大 156 文字)(&amp;S) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>ライセンス テキスト</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>ライセンス ウィンドウのタイトル(&amp;I)</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>ライセンス ウィンドウに表示するテキスト(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>作成(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>全般(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>テキスト(&amp;T)</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>詳細設定(&amp;V)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>SFX を作成できません: %1 は SFX の作成元ファイルの 1 つです。</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>SFX の作成</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>SFX の保存</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>アプリケーション (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>セットアップは〈プログラム名〉を次のフォルダーにインストールします。続行するには [インストール] をクリックしてください。別のフォルダーを選択する場合は [参照] をクリックしてください。</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>その他のボタン</translation>
    </message>
</context>
</TS>
