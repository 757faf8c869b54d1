#include "core/jobscript.h"
#include "test_support.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace quovara;
using quovara::testing::ScopedEnv;

TEST(JobScript, ListPreambleStartsWithClsAndHasNoLineEndAfterCommand) {
    const QByteArray bytes =
        JobScriptBytes(Preamble::List, {"\"/p/uharc.exe\"", " l -d2 -y+ -lg", "/t/uharc.log "});
    EXPECT_EQ(bytes, QByteArray("cls\r\n@echo off\r\n\"/p/uharc.exe\" l -d2 -y+ -lg/t/uharc.log "));
}

TEST(JobScript, JobPreambleSetsEngineOptions) {
    const QByteArray bytes = JobScriptBytes(Preamble::Job, {"\"C:\\P\\uharc.exe\" ", "a ", "-r+ "});
    EXPECT_EQ(bytes,
              QByteArray("@echo off\r\ncls\r\nset uharc_opt= -d2\r\n\"C:\\P\\uharc.exe\" a -r+ "));
}

TEST(JobScript, TestScriptEndsItsCommandLine) {
    const QByteArray bytes = JobScriptBytes(Preamble::Job, {"x"}, LastLine::LineEnd);
    EXPECT_EQ(bytes, QByteArray("@echo off\r\ncls\r\nset uharc_opt= -d2\r\nx\r\n"));
}

TEST(JobScript, PasswordWithQuoteIsWrittenUnescaped) {
    const QByteArray bytes = JobScriptBytes(Preamble::Job, {"-pw\"a\"b\" "});
    EXPECT_TRUE(bytes.endsWith("-pw\"a\"b\" "));
}

TEST(JobScript, TheSfxTextIsInTheAnsiCodePageOfTheEnginesLocale) {
    {
        ScopedEnv locale("LC_ALL", "en_US.UTF-8");
        EXPECT_EQ(ToAnsi(QString::fromUtf8("caf\u00e9 \u20ac5 \u201cquoted\u201d \u2013 ok")),
                  QByteArray("caf\xe9 \x80"
                             "5 \x93quoted\x94 \x96 ok"));
        EXPECT_EQ(ToAnsi(QString::fromUtf8("\u041f")), QByteArray("?"));
    }
    ScopedEnv locale("LC_ALL", "ru_RU.UTF-8");
    EXPECT_EQ(ToAnsi(QString::fromUtf8("\u041f\u0440\u0438 \u20ac")),
              QByteArray("\xcf\xf0\xe8 \x88"));
}

TEST(JobScript, WriteReplacesAnOlderScript) {
    QTemporaryDir dir;
    const QString path = dir.filePath("Apri.bat");
    ASSERT_TRUE(WriteJobScript(path, Preamble::Job, {"a much longer first command line"}));
    ASSERT_TRUE(WriteJobScript(path, Preamble::List, {"x"}));
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), QByteArray("cls\r\n@echo off\r\nx"));
}

TEST(JobScript, UnwritablePathFails) {
    EXPECT_FALSE(WriteJobScript("/nonexistent-folder/x/Apri.bat", Preamble::List, {"x"}));
}

namespace {

QByteArray fileBytes(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// An archive job as the dialogs write it, with `archive` and `password` as values.
CommandPieces addPieces(const QString& archive, const QString& password = QString()) {
    CommandPieces pieces{Fragment("\"") + Fragment::Value("/p/uharc.exe", "program folder") + "\" ",
                         "a "};
    if (!password.isEmpty())
        pieces << "-pw\"" + Fragment::Value(password, "password") + "\" ";
    pieces << "\"" + Fragment::Value(archive, "archive") + "\"";
    return pieces;
}

} // namespace

TEST(JobScript, NamesInEveryScriptAreWrittenAsUtf8ByteForByte) {
    QTemporaryDir dir;
    const QString path = dir.filePath("Archivia.bat");
    const QString archive = QString::fromUtf8("/home/Łukasz/Привет Αθήνα 日本語 📦 it's.uha");
    const QString password = QString::fromUtf8("zażółć-пароль-パス");
    ASSERT_TRUE(WriteJobScript(path, Preamble::Job, addPieces(archive, password)));
    EXPECT_EQ(fileBytes(path),
              QByteArray("@echo off\r\ncls\r\nset uharc_opt= -d2\r\n\"/p/uharc.exe\" a -pw\"") +
                  password.toUtf8() + "\" \"" + archive.toUtf8() + "\"");
    // The job that runs is made of the same values, unchanged.
    const auto written = WrittenJobScript(path);
    ASSERT_TRUE(written.has_value());
    EXPECT_EQ(written->job.arguments,
              QStringList({"/p/uharc.exe", "a", "-pw" + password, archive}));
}

TEST(JobScript, ALineBreakInAnyValueIsRefusedAndNothingIsWritten) {
    QTemporaryDir dir;
    const QString path = dir.filePath("Apri.bat");
    QString error;
    EXPECT_FALSE(WriteJobScript(path, Preamble::List, addPieces("/tmp/x\nrun.sh"),
                                LastLine::NoLineEnd, &error));
    EXPECT_EQ(error, "The archive holds a line break, which a job line cannot carry:\n"
                     "/tmp/x\\nrun.sh\nNothing was run.");
    EXPECT_FALSE(QFile::exists(path));

    EXPECT_FALSE(WriteJobScript(path, Preamble::List, addPieces("/tmp/a.uha", "secret\r\n"),
                                LastLine::NoLineEnd, &error));
    // The password itself is never shown.
    EXPECT_EQ(error, "The password holds a line break, which a job line cannot carry. Nothing "
                     "was run.");
    EXPECT_FALSE(
        WriteJobScript(path, Preamble::List,
                       {"\"/p/uharc.exe\" a \"" +
                        Fragment::Value(QString("/tmp/a") + QChar(0) + "b", "source") + "\""},
                       LastLine::NoLineEnd, &error));
    EXPECT_EQ(error, "The source holds a line break, which a job line cannot carry:\n"
                     "/tmp/a\\0b\nNothing was run.");
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_FALSE(WrittenJobScript(path).has_value());
}

TEST(JobScript, AWindowsEngineRefusesANameOutsideItsCodePages) {
    EngineTextCodecs english = WindowsEngineCodecs("C.UTF-8");
    EXPECT_EQ(CommandPiecesProblem(addPieces(QString::fromUtf8("/d/café ñ ü.uha")), english),
              QString());
    EXPECT_EQ(CommandPiecesProblem(addPieces(QString::fromUtf8("/d/Łódź.uha")), english),
              QString::fromUtf8("The archive name\nŁódź.uha\nholds letters that the engine "
                                "cannot take under the locale C.UTF-8: \"Ł\" (LATIN CAPITAL "
                                "LETTER L WITH STROKE), \"ź\" (LATIN SMALL LETTER Z WITH ACUTE) "
                                "(its code pages 1252 and 437 lack them). Nothing was run. To go "
                                "on, rename it with other letters, or start Quovara with "
                                "\"--archive-locale pl_PL.UTF-8\", a locale whose code pages "
                                "have them."));
    // Only the name: the folder an archive is added in is handed to the engine as a drive.
    EXPECT_EQ(
        CommandPiecesProblem(addPieces(QString::fromUtf8("/home/Łukasz/Документы/a.uha")), english),
        QString());
    EXPECT_TRUE(CommandPiecesProblem(addPieces("/d/a.uha", QString::fromUtf8("пароль")), english)
                    .startsWith("The password holds letters that the engine cannot take"));
    // Under a Polish locale the same archive name is taken.
    EngineTextCodecs polish = WindowsEngineCodecs("pl_PL.UTF-8");
    polish.locale = "C.UTF-8";
    EXPECT_EQ(CommandPiecesProblem(addPieces(QString::fromUtf8("/d/Łódź.uha")), polish), QString());
    // A Linux engine takes every name.
    EXPECT_EQ(
        CommandPiecesProblem(addPieces(QString::fromUtf8("/d/Łódź 📦.uha")), EngineTextCodecs()),
        QString());
}

TEST(JobScript, AnArchiveOrADestinationAnywhereIsTakenUnderAnyLocale) {
    // The job runner hands the engine a link to the archive and the destination as a drive, so
    // only the names inside the archive meet the engine's code pages.
    const EngineTextCodecs english = WindowsEngineCodecs("C.UTF-8");
    const QString archive = QString::fromUtf8("/home/Łukasz/Документы.uha");
    const CommandPieces list{"\"/p/uharc.exe\"", " l -d2 -y+ -lg", "/t/uharc.log ",
                             "\"" + Fragment::Value(archive, "archive") + "\""};
    EXPECT_EQ(CommandPiecesProblem(list, english), QString());
    const CommandPieces extract{
        "\"/p/uharc.exe\" ", "e ",
        "-t\"" + Fragment::Value(QString::fromUtf8("/home/Łukasz/展開表"), "destination folder") +
            "\"",
        " -o- ", "\"" + Fragment::Value(archive, "archive") + "\""};
    EXPECT_EQ(CommandPiecesProblem(extract, english), QString());
    // A name the engine reads is still checked.
    CommandPieces single = extract;
    single << " \"" + Fragment::Value(QString::fromUtf8("Документ.txt"), "item") + "\"";
    EXPECT_TRUE(CommandPiecesProblem(single, english)
                    .startsWith(QString::fromUtf8("The item\nДокумент.txt\nholds letters")));
}

TEST(JobScript, ALinkPlantedAsTheScriptIsNotWrittenThrough) {
    QTemporaryDir dir;
    const QString victim = dir.filePath("victim.txt");
    {
        QFile f(victim);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("keep me");
    }
    const QString path = dir.filePath("Apri.bat");
    ASSERT_TRUE(QFile::link(victim, path));
    QString error;
    EXPECT_FALSE(WriteJobScript(path, Preamble::List, {"x"}, LastLine::NoLineEnd, &error));
    EXPECT_TRUE(error.startsWith("The job script " + path + " cannot be written:"))
        << error.toStdString();
    EXPECT_EQ(fileBytes(victim), QByteArray("keep me"));
    EXPECT_FALSE(WrittenJobScript(path).has_value());
}

TEST(JobScript, AFolderOthersCanWriteIsRefused) {
    QTemporaryDir dir;
    const QString folder = dir.filePath("shared");
    ASSERT_TRUE(QDir().mkdir(folder));
    QFile::setPermissions(folder, QFileDevice::Permissions(0x7777));
    const QString path = folder + "/Apri.bat";
    QString error;
    EXPECT_FALSE(WriteJobScript(path, Preamble::List, {"x"}, LastLine::NoLineEnd, &error));
    EXPECT_EQ(error, "Quovara cannot use its work folder\n" + folder +
                         "\nbecause other users have access to it (mode 0777).\nNothing is "
                         "written there, and no job runs until this is put right.");
    EXPECT_FALSE(QFile::exists(path));
}

TEST(JobScript, AFolderOfAnotherUserIsRefused) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "giving a folder to another user needs root";
    QTemporaryDir dir;
    const QString folder = dir.filePath("theirs");
    ASSERT_TRUE(QDir().mkdir(folder));
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0700), 0);
    ASSERT_EQ(::chown(QFile::encodeName(folder).constData(), 65534, 65534), 0);
    QString error;
    EXPECT_FALSE(
        WriteJobScript(folder + "/Apri.bat", Preamble::List, {"x"}, LastLine::NoLineEnd, &error));
    EXPECT_EQ(error, "Quovara cannot use its work folder\n" + folder +
                         "\nbecause it belongs to another user.\nNothing is written there, and "
                         "no job runs until this is put right.");
    EXPECT_FALSE(QFile::exists(folder + "/Apri.bat"));
}

TEST(JobScript, AScriptIsCreatedReadableOnlyByItsUser) {
    QTemporaryDir dir;
    const QString path = dir.filePath("Apri.bat");
    ASSERT_TRUE(WriteJobScript(path, Preamble::List, {"x"}));
    struct stat st;
    ASSERT_EQ(::lstat(QFile::encodeName(path).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0600u);
}
