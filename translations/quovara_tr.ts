<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>Dosyalar: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Normal boyut: %1 MB</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Sıkıştırılmış boyut: %1 MB</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Mod: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>%1 hedefi bir klasör değil</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>%1 klasörü oluşturulamıyor</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>%1 için bir sürücü bağlanamıyor: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>motorun önekinde boş sürücü harfi yok</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>bu sistemde Landlock yok</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>Landlock kural kümesi oluşturulamıyor: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>iş, %1 ile sınırlandırılamıyor: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>Dönüştürme durduruldu.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>Arşivin listesinde hiç dosya yok.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>Yeni arşiv yazıldı ve denetlendi, ancak %1; geride hiçbir şey bırakılmadı.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  ve %n tane daha</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>Motor, listedeki şu girdileri çıkartmadı:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Şu girdiler, listede belirtilenden farklı bir boyut veya CRC-32 ile çıkartıldı:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>Motor, listede olmayan dosyalar çıkarttı:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (boyut %2, CRC-32 %3; listede: boyut %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>bilinmeyen hata</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>%1 okunamıyor (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 denetlendikten sonra değişti</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>%1 oluşturulamıyor (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>Bu sistemin libarchive kitaplığı %1 yazamıyor (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>%1 yazılamıyor (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>Yeni arşiv geri okunamıyor (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>Yeni arşivde %1 girdi var, oysa %2 girdi yazıldı.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>Yeni arşiv, yazıldığı gibi geri okunmuyor: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>Hiçbir şey dönüştürülmedi: parola girilmedi.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>Yeni arşiv parolayla korunmayacak.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>Hiçbir şey dönüştürülmedi: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>Hiçbir şey dönüştürülmedi: şu girdilerin adları, çıkartıldıkları her klasörün dışına çıkar; bu yüzden arşiv bütünüyle dönüştürülemiyor:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>Hiçbir şey dönüştürülmedi. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Şu arşivler dönüştürülmedi:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Dosya türleri</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>Liste dosyası</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Hariç tutulan dosyalar</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>Çıkartılacak dosya</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Tüm dosyalar</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>Dosya listesine göre (tam yol)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Hariç tut: (örn. *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>Quovara bir grafik ekran gerektirir; DISPLAY veya WAYLAND_DISPLAY ayarlanmamış</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>Motor bir hata bildirdi:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>%1 izinleri ayarlanamıyor</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 başlatılamadı: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Kullanım: quovara %1 FILE...
Motor dosyalarını Quovara&apos;nın program klasörüne kopyalar. Beklenen adlar: %2 (büyük/küçük harf fark etmez).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>Motor dosyası değil: %1
Beklenen adlar: %2 (büyük/küçük harf fark etmez).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>Böyle bir dosya yok: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>%1, %2 konumuna kopyalanamadı: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Kuruldu: %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>Motor çalışıyor: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>Motor %1 üzerinden çalışıyor: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>%1 wine önekinde, %2 yerel ayarıyla çalışıyor: metinleri ve sakladığı adlar için %3 kod sayfası, okuduğu adlar için %4.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Not: Quovara artık %1 içindeki motoru kullanıyor; orada kendine ait bir uharc.exe var.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>%1 içinde uharc.exe yok: Quovara buna ihtiyaç duyar. Şununla kurun: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>wine bulunamadı (QUOVARA_WINE değişkenini başlatıcıya ayarlayın veya wine&apos;ı PATH&apos;e ekleyin): Quovara, bir Windows programı olan motoru onunla çalıştırır.
Debian&apos;da şununla kurun:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1, %2 motorunu çalıştıramıyor: 32 bit bileşeni eksik.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>Debian&apos;da şununla kurun:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>%1 motoru başlık bilgisini yazdırmadı.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>%1 motoru, %2 üzerinden başlık bilgisini yazdırmadı.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>%1 yerel ayarı bu sistemde kurulu değil, bu yüzden motor bu dilin harfleriyle ad okuyamaz ve yazamaz. Şununla ekleyin:
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(veya &quot;sudo dpkg-reconfigure locales&quot;) ve Quovara&apos;yı yeniden başlatın.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>%1 kod sayfası (%2 yerel ayarı)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Motor: %1 içinde yok (quovara --install-engine onu oraya koyar)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Motor: UHARC, sürümü bilinmiyor (Windows programı, wine ile çalışır), konum: %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Motor: gösterim amaçlı yedek, sürümü bilinmiyor (UHARC değil), konum: %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Motor: UHARC %1 (Windows programı, wine ile çalışır), konum: %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Motor: gösterim amaçlı yedek %1 (UHARC değil), konum: %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Kayıtlı motor sürümleri: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>%1 klasörüne yazılamıyor (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>%1 konumuna taşınamadı (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>%1 için boş bir ad bulunamadı</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Böyle bir dosya yok.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>Bu bir UHARC arşivi (.uha) değil.</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>Hiçbir şey çıkartılmadı: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>Hiçbir şey çıkartılmadı: parola girilmedi.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>Dosyalar çıkartıldı, ancak %1; geride hiçbir şey bırakılmadı.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Şu arşivler çıkartılmadı:

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
        <translation>Kullanım: quovara [ARCHIVE.uha]
   veya:  quovara &quot;WORD  PATH&quot;
   veya:  quovara &quot;WORD &quot; PATH
   veya:  quovara OPTION...

Quovara, UHARC arşivlerine (.uha) göz atar, onları çıkartır, sınar ve
oluşturur; her işlem, program klasöründe tutulan UHARC motoru uharc.exe
ile yapılan bir çalıştırmadır.

Bağımsız değişken olmadan ana pencere ev klasöründe açılır. Bir arşivin
yolu (.uha ile biten bir ad) verildiğinde arşiv bu pencerede açılır.

Bir istek sözcüğü yalnızca PATH için tek bir pencere açar; bu pencere
kapandığında Quovara sonlanır:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>PATH arşivi için Çıkart penceresi</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>PATH dosyası veya klasörü için Ekle penceresi</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>PATH arşivi için SFX Oluştur penceresi</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Bağımsız değişkenler tek boşluklarla birleştirilir ve sözcüğü, yoldan önce
iki ayırıcı karakter izler: tek bir bağımsız değişken içinde iki boşluk
(&quot;extract  /data/a.uha&quot;) ya da sözcüğün sonunda bir boşluk ve sonraki
bağımsız değişken olarak yol (&quot;extract &quot; /data/a.uha).

Seçenekler:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>seçeneklerin sonu: ondan sonraki her bağımsız değişken, &quot;-&quot; ile başlasa bile bir istek sözcüğü veya yoldur (bir yol ./-name.uha biçiminde de yazılabilir)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
Qt&apos;nin kendi seçenekleri de (örneğin -platform NAME) kabul edilir. Bunlardan
biri veya QT_QPA_PLATFORM olmadan bir pencere DISPLAY ya da WAYLAND_DISPLAY
gerektirir.

Çıkış durumu: tamamlandığında 0; grafik ekran yoksa 1; bilinmeyen veya
yanlış kullanılan bir seçenek için 2. --install-engine, quovara(1)
belgesinde anlatıldığı gibi 0 ile 3 arasında bir değerle sonlanır.
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>%1 motoru mevcut değil</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>iş %1 programını belirtiyor, ancak bu, %2 program klasörünün motoru değil; iş başlatılmadı</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>%1 liste dosyası okunamıyor: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>%1 liste dosyası, motorun kabul edemeyeceği bir dosya belirtiyor. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>liste dosyasının %1 kopyası yazılamıyor: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>%1 iş betiği bu program tarafından yazılmadı</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>%1 iş betiği okunamıyor</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>%1 iş betiği yazıldıktan sonra değiştirildi; çalıştırılmadı</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>%1 iş betiği hiçbir komut belirtmiyor</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>iş, çıktısını %1 konumuna yazmak istiyor, ancak bu, çalışma klasörünün konsol çıktı dosyası değil</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 bir Windows programı ve hiçbir başlatıcı (wine) bulunamadı</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>arşivin klasörü motora verilemiyor: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>arşiv motora verilemiyor: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>çıkartma işlemi hedefiyle sınırlandırılamıyor: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>%1 çıktı dosyası oluşturulamıyor: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 başlatılamadı: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>Arşiv</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>Arşiv adı</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>Komut satırı</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>Hedef klasör</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>Sözlük boyutu</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>Hariç tutma</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>Dosya türü</translation>
    </message>
    <message>
        <source>item</source>
        <translation>Öge</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>Liste dosyası</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>Program klasörü</translation>
    </message>
    <message>
        <source>source</source>
        <translation>Kaynak</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>Geçici klasör</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>Parola ASCII dışında harfler içeriyor. %1 Hiçbir şey çalıştırılmadı.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>%1
%2
ASCII dışında harfler içeriyor. %3 Hiçbir şey çalıştırılmadı.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(%1 ve %2 kod sayfalarında bu harfler yok)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(%1 kod sayfasında bu harfler yok)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>Quovara&apos;yı, kod sayfalarında bu harfler bulunan bir yerel ayarı belirterek &quot;--archive-locale LOCALE&quot; ile başlatın.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>Quovara&apos;yı, kod sayfalarında bu harfler bulunan &quot;--archive-locale %1&quot; yerel ayarıyla başlatın.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>Parola, motorun %1 yerel ayarında %2 kabul edemediği harfler içeriyor. Hiçbir şey çalıştırılmadı. Devam etmek için başka harflerden oluşan bir parola seçin veya %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>%1
%2
motorun %3%4 yerel ayarında %5 kabul edemediği harfler içeriyor. Hiçbir şey çalıştırılmadı. Devam etmek için başka harfler kullanarak yeniden adlandırın veya %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>Klasör
%1
bir satır sonu içeriyor; iş betiği bunu taşıyamaz. Hiçbir şey çalıştırılmadı.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>Parola bir satır sonu içeriyor; iş satırı bunu taşıyamaz. Hiçbir şey çalıştırılmadı.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>%1 bir satır sonu içeriyor; iş satırı bunu taşıyamaz:
%2
Hiçbir şey çalıştırılmadı.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>dosyanın olması gereken yerde sembolik bir bağlantı var</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>dosyanın olması gereken yerdeki dosya bize ait değil</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>%1 iş betiği yazılamıyor: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>%1, %2 içine bağlanamıyor: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>%1 içinde %2 bağlantısı için boş bir düz ad yok</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Motor ilk kullanım için hazırlanıyor…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>Motor ilk kullanım için hazırlanamadı: %1.
(wine öneki %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>%1 klasörü oluşturulamıyor</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>%1 başlatılamadı</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>%n saniyeden uzun sürdü</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>wine, bunu yapamadan %1 koduyla sonlandı</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>Quovara şu arşivi gösteremiyor:
%1
Neden: %2.
Arşivden hiçbir şey gösterilmiyor.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>%1 klasör görünümü oluşturulamıyor</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>motorun listesi eksik</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>okuma durduruldu</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Parola Girin</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>önceki klasör görünümü değiştirilemiyor</translation>
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
        <translation>Depola</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ Hızlı</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ Normal</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ En İyi</translation>
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
        <translation>Arşiv
%1
içindeki bazı adlar bu sistemde olduğu gibi kalamıyor (255 bayttan uzun bir ad ya da aynı adlı bir dosya ve klasör): 1 ad kısaltılmış veya numaralandırılmış olarak gösteriliyor. Çıkartılırken kayıtlı adlar kullanılır.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Arşiv
%1
içindeki bazı adlar bu sistemde olduğu gibi kalamıyor (255 bayttan uzun bir ad ya da aynı adlı bir dosya ve klasör): %n ad kısaltılmış veya numaralandırılmış olarak gösteriliyor. Çıkartılırken kayıtlı adlar kullanılır.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>klasör görünümü oluşturulamıyor: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; bir yerel ayar belirtmiyor (örneğin ru_RU.UTF-8 veya ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>Daha fazla bilgi için &apos;quovara --help&apos; komutunu deneyin.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>&apos;--extract-here&apos; seçeneği bir arşiv gerektirir</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>bu yardımı yazdır ve çık</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>Quovara&apos;nın ve program klasöründe bulunan motorun sürümünü yazdır ve çık</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>motor dosyalarını (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) program klasörüne kopyala, motorun çalıştığını denetle ve çık; hiçbir pencere açılmaz</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>her arşivi kendi yanına çıkart, asla var olan bir şeyin içine veya üzerine değil: tek bir üst düzey klasör veya tek bir dosya içeren arşiv olduğu gibi, diğerleri adını taşıyan yeni bir klasöre (&quot;ad (2)&quot; alınmışsa); her biri için bir ilerleme penceresi gösterilir ve durum yalnızca tüm arşivler çıkartıldığında 0 olur</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>her arşivi kendi yanında FORMAT (zip, 7z, tar.xz veya tar.zst) biçimine ad.FORMAT olarak dönüştür (alınmışsa &quot;ad (2).FORMAT&quot;, asla bir şeyin üzerine yazmadan): her dosya özel bir klasöre çıkartılır, arşivin listesine göre denetlenir (boyut ve CRC-32), yazılır ve yeni arşiv geri okunur; yeni arşivin parolası yoktur; her biri için bir ilerleme penceresi gösterilir ve durum yalnızca tüm arşivler dönüştürülüp denetlendiğinde 0 olur</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>o dildeki bir sistemde oluşturulmuş arşivlerin adlarını göstermek, aramak ve çıkartmak için motoru LOCALE yerel ayarıyla (örneğin ru_RU.UTF-8 veya ru) çalıştır; QUOVARA_ARCHIVE_LOCALE değişkeniyle aynıdır</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>tanınmayan seçenek &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>&apos;%1&apos; seçeneği bağımsız değişken almaz</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>&apos;%1&apos; seçeneği bir bağımsız değişken gerektirir</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>&apos;--convert&apos; seçeneği bir biçim (%1) ve bir arşiv gerektirir</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>&apos;--convert&apos; için bilinmeyen biçim &apos;%1&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>&apos;--convert&apos; seçeneği biçimden sonra bir arşiv gerektirir</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>klasöre erişilemiyor (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>klasör oluşturulamıyor (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>klasör sembolik bir bağlantı</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>bu bir klasör değil</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>klasör başka bir kullanıcıya ait</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>klasöre diğer kullanıcılar erişebiliyor (kip %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>klasör oluşturulamıyor</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>Quovara çalışma klasörünü kullanamıyor:
%1
Neden: %2.
Oraya hiçbir şey yazılmaz ve bu düzeltilene kadar hiçbir iş çalışmaz.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>İşlem sonlandırılamadı</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>İlerleme: %1 MB (Sıkıştırılmış %2 MB) / %3 MB Oran: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Toplam: %1       Kalan: %2       Geçen: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Tamamlanan: %1 % Kalan: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>%1 okunamıyor (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>%1 kopyalanamıyor (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>%1 yazılamıyor (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>SFX oluşturulamıyor: %1 saplama dosyası eksik.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>SFX oluşturulamıyor: %1 motor dosyası eksik.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>SFX oluşturulamıyor: %1 arşivi eksik.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>SFX oluşturulamıyor: %1 yazılamıyor (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>SFX oluşturulamıyor: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>SFX oluşturulamıyor: %1 değiştirilemiyor.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>Quovara SFX oluşturuyor</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Lütfen Bekleyin ...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara hazır</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Bir işlem seçin</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX Oluşturuldu</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>Çıkartma durduruldu: hiçbir dosya çıkartılmadı.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>Çıkartma durduruldu: 1 dosya eksiksiz çıkartıldı.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>Çıkartma durduruldu: %n dosya eksiksiz çıkartıldı.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

&quot;%1&quot; yazılıyordu ve eksikti: kaldırıldı.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

&quot;%1&quot; yazılıyordu ve eksik, ancak kaldırılamadı (%2): lütfen silin.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Aynı adlı bir dosyanızın yerini almıştı; motor o dosyanın üzerine zaten yazmıştı, bu yüzden içeriği kayboldu.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Bu adda bir dosyanız varsa motor onun üzerine zaten yazmıştı, bu yüzden içeriği kayboldu.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

Yazılmakta olan dosya (&quot;%1&quot;) diskte bulunamadı.</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… ve %n tane daha</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>Arşiv
%1
adı, çıkartıldığı her klasörün dışına çıkacak 1 girdi içeriyor. Bu girdi gösteriliyor, ancak asla çıkartılmayacak:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>Arşiv
%1
adı, çıkartıldığı her klasörün dışına çıkacak %n girdi içeriyor. Bu girdi gösteriliyor, ancak asla çıkartılmayacak:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 girdi çıkartılmadı: adı onu hedef klasörün dışına yerleştirirdi.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n girdi çıkartılmadı: adı onu hedef klasörün dışına yerleştirirdi.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>Hiçbir şey çıkartılmadı: arşivin her girdisinin adı onu hedef klasörün dışına yerleştirirdi.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>Hiçbir şey çıkartılmadı: arşiv, adı onu hedef klasörün dışına yerleştirecek %n girdi içeriyor; bunlar tek tek dışarıda bırakılamayacak kadar çok.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>Şunun adı
%1
&quot;\&quot; veya &quot;:&quot; içeriyor; motor bunu bir klasör veya sürücü olarak saklar: çıkartıldığında, çıkartıldığı klasörün dışına düşebilir. Hiçbir şey çalıştırılmadı; önce yeniden adlandırın.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>Girdi
%1
çıkartılmıyor: adı onu hedef klasörün dışına yerleştirirdi.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Uharc 0.4 algılanmadı, program sonlandırılacak</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Kaydetme yeri</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>Dönüştür: %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Biçim:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Kaydetme yeri:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Gözat…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Yeni arşiv: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Yeni arşiv saklanmadan önce her dosya arşivin listesine göre denetlenir (boyut ve CRC-32). Gizli ve sistem öznitelikleri korunmaz.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>%1 klasörü mevcut değil.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Bir klasörün tam yolunu &quot;/&quot; ile başlayarak yazın.</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>Dönüştürülüyor: %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Çıkartılan dosyalar listeye göre denetleniyor…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>%1 arşivi yazılıyor…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Yeni arşiv geri okunuyor…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Durdur</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>%1 açılamıyor: dosyaları açan program, xdg-open, kurulu değil.

Bu program xdg-utils paketiyle gelir; paketi kurun (örneğin &quot;sudo apt install xdg-utils&quot; ile) ve yeniden deneyin.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Bellek veya sistem kaynakları tükendi. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>Dosya bulunamıyor. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>Klasör bulunamıyor. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>Dosya biçimi geçerli değil. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>Kullanılan sistemde bu dosya türü için hiçbir ilişkilendirme yok</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>Parametreler: &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>quovara::DetailsModel</name>
    <message>
        <source>1 byte</source>
        <translation>1 bayt</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n bayt</numerusform>
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
        <translation>%1 bayt</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 öge</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n öge</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Değiştirilme</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Öznitelikler</translation>
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
        <translation>Dosyalar</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Ekleme tamamlandı: %1</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Ekleme başarısız oldu: %1</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Ekleme durduruldu: %1</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Çıkartma tamamlandı: %1</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Çıkartma başarısız oldu: %1</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Çıkartma durduruldu: %1</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Sınama tamamlandı: %1</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Sınama başarısız oldu: %1</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Sınama durduruldu: %1</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>SFX oluşturma tamamlandı: %1</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>SFX oluşturma başarısız oldu: %1</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>SFX oluşturma durduruldu: %1</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Dosya Adı</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Dosya Yolu</translation>
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
        <translation>TaskPaneBar Denetimi.
Masaüstünün renkleriyle çizilen; bağlantılar, ayrıntılar ve barındırılan denetimler içeren, daraltılabilir görev gruplarından oluşan bir bölme.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Bir hata oluştu!
Belirtilen öge anahtarı mevcut ögelerle eşleşmiyor</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Aranıyor..</translation>
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
        <translation>Arşiv adı</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Yöntem</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Sözlük boyutu</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Ekle: %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Arşivi Şuraya Kaydet:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Gözat</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Alt klasörleri dahil et </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Sıkıştırma</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Çoklu ortam sıkıştırması</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Sözlük</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Yalnızca Şu Dosyalar: (örn. *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Oluştur ve Dosya Ekle</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Oluştur ve Dosyayı Taşı</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Varsayılan</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>Arşivin adını belirtmelisiniz</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Dosyayı kaydet</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>UHA Dosyası (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>&quot;%1&quot; bulunamıyor. Adresin yazımını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>&quot;%1&quot; bulunamıyor: &quot;%2&quot; bir dosya; klasör veya arşiv değil.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; arşivinde &quot;%2&quot; klasörü yok.</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>Arşiv dönüştürüldü ve her girdi denetlendi:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Komutlar</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Arşiv görevleri</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Arama sonuçları</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — gösterim motoru</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Bir arşiv aç</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>UHARC arşivleri (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>Quovara arıyor</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>Geri, aramayı durdurur</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>%1 bu sürümde henüz kullanılamıyor.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>Quovara zaten çalışıyor</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>Hiçbir öge seçilmedi</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>Hiçbir .uha arşivi seçilmedi</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>Parolayla korunan bir arşivden SFX oluşturamazsınız</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>Quovara hazır</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Bir işlem seçin</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>Quovara atlıyor</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Lütfen bekleyin ...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>Quovara arşivi okuyor</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Durdurmak için Escape tuşuna basın</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>Quovara arşivi okuyor: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>%1 okunuyor …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>%1 okunuyor … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 girdi</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n girdi</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Dosya Sayısı:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Normal boyut:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Sıkıştırılmış boyut:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Yöntem:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Oran:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Oran</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Arşivde dosya ara</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Arşivde dosya ara (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Ara (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Seçili ögeyi çıkart</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Seçili dosyayı çalıştır</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Büyük Simgeler</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapor</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Küçük Simgeler</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>Geri (Backspace, Alt+Sol)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Bir arşive dosya ekle</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Çıkart</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Bir arşivi çıkart</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Arşivden kendiliğinden açılan bir program oluştur</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Doğrula</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Bir arşivi sına</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Görünümü değiştir</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Güncelle</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Daha yeni bir sürüm ara</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>Quovara hakkında. Tuşlar: Ctrl+O arşiv açar, F5 yeniden okur, Ctrl+Q çıkar</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Dosya ve Klasör İşlemleri</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Girdi</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Aç</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>Çı&amp;kart…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Dönüştür…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>Motor başlatılamadı.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Çıkartılacak klasörü yazın veya klasörler listesinden seçin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>&quot;%1&quot; tam bir yol değil. &quot;/&quot; ile veya ev klasörünüzdeki bir klasör için &quot;~/&quot; ile başlayan bir yol yazın.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>&quot;%1&quot; klasörü oluşturulamıyor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>&quot;%1&quot; bir dosya, klasör değil.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>&quot;%1&quot; klasörü mevcut değil. Oluşturulsun mu?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Klasörün adını ve diskte yer olup olmadığını denetleyin.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; içinde klasör oluşturma izniniz yok.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>&quot;%1&quot; bir dosya, klasör değil. Çıkartılacak klasörü yazın.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>&quot;%1&quot; klasörü, klasörler listesinde gösterilemiyor.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>Yeni klasör %1 içinde oluşturulamadı</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Çıkart</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>Çıkart: %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Şuraya Çıkart:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Yeni Klasör Oluştur</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Dosyaları geçerli klasöre çıkart</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Seçenek</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Dosyaları tam yoluyla çıkart</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Dosyaların üzerine yaz</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Yalnızca Şu Dosyalar:  (örn. *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Yeni Klasör</translation>
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
        <translation>UHARC motoru</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Web sitesi %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>E-posta %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Motor sayfası %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Web sitesini tarayıcıda açar</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>E-posta programında bir e-posta yazar</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Web sayfasını tarayıcıda açar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Quovara v 2.0</source>
        <translation>Quovara v 2.0</translation>
    </message>
    <message>
        <source>Quovara v 2.0 UHARC GUI</source>
        <translation>Quovara v 2.0 UHARC Grafik Arayüzü</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a BETA SÜRÜMÜ Yüksek Sıkıştırmalı Çoklu Ortam Arşivleyicisi</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Web Sitesi: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>E-posta: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>ÜCRETSİZDİR, TİCARİ KULLANIM İÇİN DEĞİLDİR</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>YALNIZCA TEST VE DEĞERLENDİRME İÇİNDİR, TİCARİ KULLANIM İÇİN DEĞİLDİR</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>HAYDİ NAPOLI</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Quovara geliştiricileri tarafından yazılmıştır</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>UHARC, kendi yazarına ait ayrı bir programdır. Quovara onu içermez.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>Eski arşivleri yaşatan herkese.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Ekleniyor ...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Çıkartılıyor ...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Sınanıyor ...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>Sınama işleminde hata bulunamadı</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>Motor hiçbir çıktı yazmadan sonlandı, bu yüzden iş izlenemiyor.
İş betiği: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>İş başlatılamadı: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>Motor olağan dışı biçimde sonlandı (%2).
Arşiv: %1
İş tamamlanmadı; sonucuna güvenmeyin.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>Motor soruyor:

%1

Evet: arşiv, yalnızca bu işin dosyalarını içeren yeni bir arşivle değiştirilir; arşivin şu anda içerdiği her şey kaybolur (motor var olan bir arşive ekleme yapamaz).
Hayır: iş durur ve arşiv olduğu gibi kalır.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>Arşiv olduğu gibi bırakıldı.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>Motor soruyor:

%1

Evet &quot;y&quot;, Hayır &quot;n&quot; yanıtını verir.</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>sinyal %1, %2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>sinyal %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>çıkış kodu %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>çıkış kodu %1; çıktısı: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>%1 çıktısı, çalışırken kaldırıldı veya kısaltıldı</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Sayfalar</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>Çıkartma &amp;Yolu</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Çıkartma Yolu</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Kurulum Programı</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>Çıkartmadan Ö&amp;nce Çalıştır</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>Çıkartmadan &amp;Sonra Çalıştır</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>SFX Metni</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>SFX penceresinin &amp;başlığı</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>SFX penceresinde gösterilecek &amp;metin (en fazla 156 karakter) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Lisans Metni</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>&amp;Lisans penceresinin başlığı</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>Lisans &amp;penceresinde gösterilecek metin</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Oluştur</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Genel</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>Me&amp;tin</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>Gel&amp;işmiş</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>SFX oluşturulamıyor: %1, SFX&apos;in oluşturulduğu dosyalardan biri.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>SFX Oluştur</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>SFX&apos;i kaydet</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Uygulama (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>Kurulum, PROGRAM ADI BURAYA programını aşağıdaki klasöre kuracak. Devam etmek için Kur&apos;a tıklayın. Farklı bir klasör seçmek isterseniz Gözat&apos;a tıklayın</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Diğer düğmeler</translation>
    </message>
</context>
</TS>
