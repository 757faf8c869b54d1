// The stand-in engine playing the code pages of a locale, as the real engine does under wine,
// and the stand-in launcher that plays wine for it.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QThread>

namespace {

QByteArray readBytes(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void putFile(const QString& path, const QByteArray& data) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    f.open(QIODevice::WriteOnly);
    f.write(data);
}

struct Ran {
    int exitCode = -1;
    QByteArray out;
};

Ran runProgram(const QString& program, const QStringList& args, const QString& dir,
               const QMap<QString, QString>& vars) {
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& key : env.keys())
        if (key.startsWith("QUOVARA_STANDIN_") || key.startsWith("LC_") || key == "LANG" ||
            key.compare("uharc_opt", Qt::CaseInsensitive) == 0)
            env.remove(key);
    for (auto it = vars.begin(); it != vars.end(); ++it)
        env.insert(it.key(), it.value());
    p.setProcessEnvironment(env);
    p.setWorkingDirectory(dir);
    p.setStandardInputFile(QProcess::nullDevice());
    p.start(program, args);
    Ran r;
    if (!p.waitForFinished(60000))
        return r;
    r.exitCode = p.exitCode();
    r.out = p.readAllStandardOutput();
    return r;
}

Ran engine(const QStringList& args, const QString& dir, const QString& pages) {
    return runProgram(STANDIN_ENGINE_06, args, dir, {{"QUOVARA_STANDIN_CODEPAGES", pages}});
}

// The entry lines of a listing log, as bytes.
QList<QByteArray> entryLines(const QByteArray& log) {
    const QList<QByteArray> lines = log.split('\n');
    QList<QByteArray> entries;
    int dashes = 0;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines[i].trimmed();
        if (line == QByteArray(79, '-')) {
            if (++dashes == 2)
                break;
            for (qsizetype j = i + 1; j < lines.size() && lines[j].trimmed() != QByteArray(79, '-');
                 j += 2)
                entries << lines[j].trimmed();
        }
    }
    return entries;
}

// A process that runs (a zombie waiting for a parent that does not reap it counts as ended).
bool running(qint64 pid) {
    const QByteArray stat = readBytes(QString("/proc/%1/stat").arg(pid));
    const qsizetype close = stat.lastIndexOf(')');
    return close > 0 && close + 2 < stat.size() && stat[close + 2] != 'Z';
}

const QString kRussian = QString::fromUtf8("Привет.txt");
const QString kFolder = QString::fromUtf8("Папка");
const QString kDocument = QString::fromUtf8("Документ.txt");

} // namespace

TEST(StandinCodePages, UnderCodePage866TheNamesAreStoredAndListedAsTheRealEngineDoes) {
    QTemporaryDir dir;
    putFile(dir.filePath(kRussian), "ru");
    putFile(dir.filePath(kFolder + "/plain.txt"), "abc");
    putFile(dir.filePath(kFolder + "/" + kDocument), "doc!!");
    ASSERT_EQ(
        engine({"a", "-r+", "-y+", "ru.uha", kRussian, kFolder + "\\*.*"}, dir.path(), "866,1251")
            .exitCode,
        0);
    ASSERT_EQ(engine({"l", "-d2", "-y+", "-lglist.log", "ru.uha"}, dir.path(), "866,1251").exitCode,
              0);
    // The same bytes as the real engine's listing under ru_RU.UTF-8 (entries by name).
    const QList<QByteArray> real =
        entryLines(readBytes(STANDIN_SAMPLES_DIR "/list-cp866-russian.log"));
    ASSERT_EQ(real.size(), 3);
    QList<QByteArray> mine = entryLines(readBytes(dir.filePath("list.log")));
    std::sort(mine.begin(), mine.end());
    QList<QByteArray> expected = real;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(mine, expected);
    // Listed under an English locale, the stored bytes stay as they are (and read as 437 they
    // are garbled, as on a real English desktop).
    ASSERT_EQ(engine({"l", "-d2", "-y+", "-lgen.log", "ru.uha"}, dir.path(), "437,1252").exitCode,
              0);
    QList<QByteArray> english = entryLines(readBytes(dir.filePath("en.log")));
    std::sort(english.begin(), english.end());
    EXPECT_EQ(english, expected);
    // Extracted under its own locale, the names come back whole.
    ASSERT_EQ(engine({"x", "-y+", "-o+", "-tout", "ru.uha"}, dir.path(), "866,1251").exitCode, 0);
    EXPECT_EQ(readBytes(dir.filePath("out/" + kFolder + "/" + kDocument)), "doc!!");
    EXPECT_EQ(readBytes(dir.filePath("out/" + kRussian)), "ru");
}

TEST(StandinCodePages, ANameTheAnsiCodePageLacksCannotBeRead) {
    QTemporaryDir dir;
    putFile(dir.filePath(kRussian), "ru");
    putFile(dir.filePath(QString::fromUtf8("€uro.txt")), "euro");
    // Under English code pages the Cyrillic name reaches the engine as "??????.txt", which as a
    // pattern finds the file, whose name the engine then cannot read.
    const Ran cyrillic = engine({"a", "-y+", "-d2", "en.uha", kRussian}, dir.path(), "437,1252");
    EXPECT_EQ(cyrillic.exitCode, 255);
    EXPECT_TRUE(cyrillic.out.contains("ERROR: Can't read file \"??????.txt\"\r\n"))
        << cyrillic.out.toStdString();
    // "€" is in code page 1252 but not in 437, in which the engine keeps names.
    const Ran euro = engine({"a", "-y+", "-d2", "en.uha", QString::fromUtf8("€uro.txt")},
                            dir.path(), "437,1252");
    EXPECT_EQ(euro.exitCode, 255);
    EXPECT_TRUE(euro.out.contains("ERROR: Can't read file \"?uro.txt\"\r\n"))
        << euro.out.toStdString();
    EXPECT_FALSE(QFile::exists(dir.filePath("en.uha")));
}

TEST(StandinCodePages, AListFileIsReadInTheOemCodePage) {
    QTemporaryDir dir;
    putFile(dir.filePath(kRussian), "ru");
    // The real engine took the list in code page 866 and found nothing in the one in 1251.
    putFile(dir.filePath("oem.lst"), QByteArray("\x8f\xe0\xa8\xa2\xa5\xe2.txt\r\n"));
    const Ran ok = engine({"a", "-y+", "-d2", "a.uha", "@oem.lst"}, dir.path(), "866,1251");
    EXPECT_EQ(ok.exitCode, 0) << ok.out.toStdString();
    EXPECT_TRUE(QFile::exists(dir.filePath("a.uha")));
}

TEST(StandinCodePages, JapaneseNamesWithTheByteOfABackslashStayWhole) {
    QTemporaryDir dir;
    const QString name = QString::fromUtf8("表ソ.txt");
    putFile(dir.filePath(name), "ja");
    ASSERT_EQ(engine({"a", "-y+", "ja.uha", name}, dir.path(), "932,932").exitCode, 0);
    ASSERT_EQ(engine({"l", "-y+", "-lgl.log", "ja.uha"}, dir.path(), "932,932").exitCode, 0);
    EXPECT_EQ(entryLines(readBytes(dir.filePath("l.log"))),
              QList<QByteArray>({QByteArray("\x95\x5c\x83\x5c.txt")}));
    ASSERT_EQ(engine({"e", "-y+", "-tout", "ja.uha"}, dir.path(), "932,932").exitCode, 0);
    EXPECT_EQ(readBytes(dir.filePath("out/" + name)), "ja");
}

TEST(StandinCodePages, ATargetEndingInALetterWithTheByteOfABackslashLosesItsSeparator) {
    // As the real engine under code page 932: "表" is 0x95 0x5C, and the engine takes 0x5C for a
    // separator. Given "-t予定表\\展開表", it joins each name to the target without a
    // separator (the files go beside the target, into "展開表docs") and makes a folder of the
    // part before each such letter ("予定", "展開").
    QTemporaryDir dir;
    putFile(dir.filePath("src/docs/a.txt"), "a");
    ASSERT_EQ(engine({"a", "-r+", "-y+", "j.uha", "src\\*.*"}, dir.path(), "932,932").exitCode, 0);
    QDir().mkpath(dir.filePath(QString::fromUtf8("予定表/展開表")));
    const QString target = QString::fromUtf8("予定表\\展開表");
    ASSERT_EQ(engine({"x", "-y+", "-t" + target, "j.uha"}, dir.path(), "932,932").exitCode, 0);
    EXPECT_EQ(readBytes(dir.filePath(QString::fromUtf8("予定表/展開表src/docs/a.txt"))), "a");
    EXPECT_TRUE(QDir(dir.filePath(QString::fromUtf8("予定表/展開表"))).isEmpty());
    EXPECT_TRUE(QFileInfo(dir.filePath(QString::fromUtf8("予定"))).isDir());
    EXPECT_TRUE(QFileInfo(dir.filePath(QString::fromUtf8("予定表/展開"))).isDir());
    // With a separator of its own after the letter, the target is taken as it is.
    const QString slashed = QString::fromUtf8("予定表\\展開表\\");
    ASSERT_EQ(engine({"x", "-y+", "-t" + slashed, "j.uha"}, dir.path(), "932,932").exitCode, 0);
    EXPECT_EQ(readBytes(dir.filePath(QString::fromUtf8("予定表/展開表/src/docs/a.txt"))), "a");
}

TEST(StandinLauncher, RunsTheEngineWithHostPathsAndTheCodePagesOfItsLocale) {
    QTemporaryDir dir;
    putFile(dir.filePath("prog/uharc.exe"), "MZ\nstandin=" STANDIN_ENGINE_06 "\n");
    putFile(dir.filePath("src/" + kRussian), "ru");
    const QString launcherArchive = "Z:" + QString(dir.filePath("ru.uha")).replace('/', '\\');
    const Ran add = runProgram(
        STANDIN_WINE, {dir.filePath("prog/uharc.exe"), "a", "-y+", launcherArchive, kRussian},
        dir.filePath("src"), {{"LANG", "ru_RU.UTF-8"}});
    ASSERT_EQ(add.exitCode, 0) << add.out.toStdString();
    // Console output in code page 866.
    EXPECT_TRUE(add.out.contains("\x8f\xe0\xa8\xa2\xa5\xe2.txt")) << add.out.toStdString();
    const Ran list =
        runProgram(STANDIN_WINE,
                   {dir.filePath("prog/uharc.exe"), "l", "-y+",
                    "-lgZ:" + QString(dir.filePath("l.log")).replace('/', '\\'), launcherArchive},
                   dir.path(), {{"LC_ALL", "ru_RU.UTF-8"}, {"LANG", "en_US.UTF-8"}});
    ASSERT_EQ(list.exitCode, 0);
    EXPECT_EQ(entryLines(readBytes(dir.filePath("l.log"))),
              QList<QByteArray>({QByteArray("\x8f\xe0\xa8\xa2\xa5\xe2.txt")}));
    // Anything but a stand-in Windows program is refused.
    putFile(dir.filePath("prog/other.exe"), "#!/bin/sh\n");
    EXPECT_EQ(runProgram(STANDIN_WINE, {dir.filePath("prog/other.exe")}, dir.path(), {}).exitCode,
              126);
}

TEST(StandinLauncher, WinebootMakesThePrefixAndTheServerEndsTheHelpersLeftBehind) {
    QTemporaryDir dir;
    const QString prefix = dir.filePath("prefix");
    const QMap<QString, QString> vars{{"WINEPREFIX", prefix},
                                      {"QUOVARA_STANDIN_WINE_HELPER_SECONDS", "60"}};
    ASSERT_EQ(runProgram(STANDIN_WINE, {"wineboot", "-i"}, dir.path(), vars).exitCode, 0);
    EXPECT_TRUE(QFileInfo(prefix + "/system.reg").isFile());
    putFile(dir.filePath("prog/uharc.exe"), "MZ\nstandin=" STANDIN_ENGINE_06 "\n");
    runProgram(STANDIN_WINE, {dir.filePath("prog/uharc.exe")}, dir.path(), vars);
    const qint64 helper = readBytes(prefix + "/helpers.pid").trimmed().toLongLong();
    ASSERT_GT(helper, 0);
    EXPECT_TRUE(running(helper));
    const QString server = dir.filePath("wineserver");
    ASSERT_TRUE(QFile::link(STANDIN_WINE, server));
    EXPECT_EQ(runProgram(server, {"-k"}, dir.path(), vars).exitCode, 0);
    for (int i = 0; i < 50 && running(helper); ++i)
        QThread::msleep(20);
    EXPECT_FALSE(running(helper));
}
