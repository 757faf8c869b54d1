// The command line as a user meets it in a terminal: --help, --version and unknown options
// answer on the console and end, without a display and without making the work folder; a
// start that needs a window and has no display says so in one line; request words and paths
// that start with "-" keep their meaning. The built program is run with DISPLAY,
// WAYLAND_DISPLAY and QT_QPA_PLATFORM unset, in temporary folders.
#include "../core/test_support.h"

#include "app/options.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quovara;
using quovara::testing::readAll;
using quovara::testing::writeExecutable;
using quovara::testing::writeFile;

namespace {

struct Result {
    bool finished = false;
    int exitCode = -1;
    QString out;
    QString err;
};

const QString kNoDisplay =
    QStringLiteral("Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set\n");

class CommandLine : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir_.isValid());
        for (const char* sub : {"tmp", "data", "run", "home", "work"})
            ASSERT_TRUE(QDir(dir_.path()).mkdir(sub));
        QFile::setPermissions(dir_.path() + "/run",
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString tempRoot() const { return dir_.path() + "/tmp"; }
    QString workFolder() const { return tempRoot() + "/Corvana"; }
    QString perUserFolder() const { return dir_.path() + "/data/quovara"; }
    QString workingFolder() const { return dir_.path() + "/work"; }

    // The environment of a terminal without any display.
    QProcessEnvironment environment() const {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name :
             {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QUOVARA_PROGRAM_DIR",
              "QUOVARA_WINE", "QT_QPA_GENERIC_PLUGINS", "LANGUAGE", "LC_ALL", "LC_MESSAGES"})
            env.remove(name);
        // The texts as written, whatever the language of the machine that runs the tests.
        env.insert("LANG", "C.UTF-8");
        env.insert("TMPDIR", tempRoot());
        env.insert("XDG_DATA_HOME", dir_.path() + "/data");
        env.insert("XDG_RUNTIME_DIR", dir_.path() + "/run");
        env.insert("HOME", dir_.path() + "/home");
        return env;
    }

    Result run(const QStringList& arguments,
               const QProcessEnvironment& env = QProcessEnvironment()) {
        QProcess p;
        p.setProcessEnvironment(env.isEmpty() ? environment() : env);
        p.setWorkingDirectory(workingFolder());
        p.start(QStringLiteral(QUOVARA_PROGRAM), arguments);
        Result r;
        r.finished = p.waitForFinished(60000);
        if (!r.finished) {
            p.kill();
            p.waitForFinished(5000);
        }
        r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
        r.out = QString::fromUtf8(p.readAllStandardOutput());
        r.err = QString::fromUtf8(p.readAllStandardError());
        return r;
    }

    // Nothing was made in the temporary folder (the work folder lives there) nor the per-user
    // program folder.
    void expectNoTrace() const {
        EXPECT_FALSE(QFileInfo::exists(workFolder()));
        EXPECT_TRUE(
            QDir(tempRoot()).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden));
        EXPECT_FALSE(QFileInfo::exists(perUserFolder()));
    }

    // A program folder holding the stand-in engine as uharc.exe.
    QString standInProgramFolder() {
        const QString folder = dir_.path() + "/program";
        EXPECT_TRUE(QDir().mkpath(folder));
        EXPECT_TRUE(QFile::copy(QStringLiteral(QUOVARA_STANDIN_06), folder + "/uharc.exe"));
        QFile(folder + "/uharc.exe")
            .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return folder;
    }

    // Runs the program on the offscreen platform (unless `arguments` choose one) with a probe
    // that reports the window that opened and closes it; answers the report's lines.
    QStringList runWithProbe(const QStringList& arguments, bool platformInEnvironment,
                             Result* result) {
        QProcessEnvironment env = environment();
        if (platformInEnvironment)
            env.insert("QT_QPA_PLATFORM", "offscreen");
        const QString report = dir_.path() + "/report.txt";
        QFile::remove(report);
        env.insert("QT_QPA_GENERIC_PLUGINS", "quovaraprobe");
        env.insert("QT_PLUGIN_PATH", QStringLiteral(QUOVARA_PROBE_PLUGIN_DIR));
        env.insert("QUOVARA_PROBE_REPORT", report);
        env.insert("QUOVARA_PROGRAM_DIR", programFolder_);
        *result = run(arguments, env);
        return QString::fromUtf8(readAll(report)).split('\n', Qt::SkipEmptyParts);
    }

    QTemporaryDir dir_;
    QString programFolder_;
};

// The option names in the lines of a block: every "-x" or "--name" that starts a word.
QStringList optionNamesIn(const QStringList& lines) {
    static const QRegularExpression name(QStringLiteral("(?<![\\w-])(--?[A-Za-z][A-Za-z0-9-]*)"));
    QStringList names;
    for (const QString& line : lines) {
        auto it = name.globalMatch(line);
        while (it.hasNext()) {
            const QString n = it.next().captured(1);
            if (!names.contains(n))
                names << n;
        }
    }
    names.sort();
    return names;
}

QStringList sorted(QStringList list) {
    list.sort();
    return list;
}

} // namespace

TEST_F(CommandLine, HelpPrintsTheUsageAndEndsWithoutADisplay) {
    for (const QString& option : {QStringLiteral("--help"), QStringLiteral("-h")}) {
        SCOPED_TRACE(option.toStdString());
        const Result r = run({option});
        EXPECT_TRUE(r.finished);
        EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
        EXPECT_EQ(r.out, HelpText());
        EXPECT_EQ(r.err, QString());
        EXPECT_TRUE(r.out.startsWith("Usage: quovara [ARCHIVE.uha]\n"));
        EXPECT_TRUE(r.out.contains("  extract  PATH "));
        EXPECT_TRUE(r.out.contains("      --install-engine FILE...\n"));
        expectNoTrace();
    }
}

TEST_F(CommandLine, HelpSpeaksTheLanguageOfTheLocaleAndEnglishUnderC) {
    QProcessEnvironment env = environment();
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES"})
        env.remove(name);
    env.insert("LANG", "ru_RU.UTF-8");
    const Result ru = run({"--help"}, env);
    EXPECT_EQ(ru.exitCode, 0) << ru.err.toStdString();
    EXPECT_TRUE(ru.out.startsWith(QString::fromUtf8("Использование: quovara [ARCHIVE.uha]\n")))
        << ru.out.toStdString();
    EXPECT_TRUE(ru.out.contains(QString::fromUtf8("\nПараметры:\n")));
    EXPECT_TRUE(ru.out.contains("      --install-engine FILE...\n"));
    EXPECT_FALSE(ru.out.contains("Usage:"));
    for (const QString& line : ru.out.split('\n'))
        EXPECT_LE(line.size(), 79) << line.toStdString();
    // A misuse too.
    const Result wrong = run({"--extract-hre"}, env);
    EXPECT_EQ(wrong.exitCode, 2);
    EXPECT_TRUE(wrong.err.startsWith("quovara: ")) << wrong.err.toStdString();
    EXPECT_FALSE(wrong.err.contains("unrecognized option")) << wrong.err.toStdString();
    EXPECT_TRUE(wrong.err.contains("'--extract-hre'"));
    // LANGUAGE first, as desktop programs read it: German before the Russian locale.
    env.insert("LANGUAGE", "eo:de");
    const Result de = run({"--help"}, env);
    EXPECT_FALSE(de.out.contains("Usage:"));
    EXPECT_FALSE(de.out.contains(QString::fromUtf8("Параметры")));
    // Under the C locale LANGUAGE is not read: the texts as written.
    env.insert("LANG", "C");
    const Result c = run({"--help"}, env);
    EXPECT_EQ(c.out, HelpText());
}

TEST_F(CommandLine, HelpWinsWhereverItStandsBeforeTheEndOfOptions) {
    const Result r = run({"/data/a.uha", "--help"});
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.out, HelpText());
    expectNoTrace();
}

TEST_F(CommandLine, VersionWithoutAnEngineNamesThePerUserFolderAndMakesNothing) {
    const Result r = run({"--version"});
    EXPECT_TRUE(r.finished);
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, "Quovara " QUOVARA_PACKAGE_VERSION "\nEngine: none in " + perUserFolder() +
                         " (quovara --install-engine puts it there)\n");
    EXPECT_EQ(r.err, QString());
    expectNoTrace();
}

TEST_F(CommandLine, VersionNamesTheDemonstrationEngineAndItsVersion) {
    const QString folder = standInProgramFolder();
    // As the demonstration folder ships it: 0.4 active, 0.6 stored.
    ASSERT_TRUE(QFile::copy(folder + "/uharc.exe", folder + "/Uharc0.6.fns"));
    QProcessEnvironment env = environment();
    env.insert("QUOVARA_PROGRAM_DIR", folder);
    const Result r = run({"--version"}, env);
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, "Quovara " QUOVARA_PACKAGE_VERSION
                     "\nEngine: demonstration stand-in 0.4 (not UHARC) in " +
                         folder + "\nStored engine versions: 0.6\n");
    expectNoTrace();
}

TEST_F(CommandLine, VersionReadsAWindowsEngineWithoutStartingTheLauncher) {
    const QString folder = dir_.path() + "/program";
    writeFile(folder + "/UHARC.EXE", "MZ the engine 0.6");
    writeFile(folder + "/Uharc0.4.fns", "MZ the engine 0.4");
    const QString started = dir_.path() + "/launcher-started";
    writeExecutable(dir_.path() + "/fake-wine", "#!/bin/sh\ntouch '" + started.toUtf8() + "'\n");
    QProcessEnvironment env = environment();
    env.insert("QUOVARA_PROGRAM_DIR", folder);
    env.insert("QUOVARA_WINE", dir_.path() + "/fake-wine");
    const Result r = run({"--version"}, env);
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, "Quovara " QUOVARA_PACKAGE_VERSION
                     "\nEngine: UHARC 0.6 (Windows program, run through wine) in " +
                         folder + "\nStored engine versions: 0.4\n");
    EXPECT_FALSE(QFileInfo::exists(started));
    expectNoTrace();
}

TEST_F(CommandLine, AnUnknownOptionIsReportedWithAPointerToHelp) {
    for (const QStringList& arguments :
         {QStringList{"--extract-hre", "/data/a.uha"}, QStringList{"/data/a.uha", "--extract-hre"},
          QStringList{"--extract-hre"}}) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const Result r = run(arguments);
        EXPECT_TRUE(r.finished);
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_EQ(r.out, QString());
        EXPECT_EQ(r.err, "quovara: unrecognized option '--extract-hre'\n"
                         "Try 'quovara --help' for more information.\n");
        expectNoTrace();
    }
}

TEST_F(CommandLine, AnArchiveLocaleThatIsNotInstalledIsNamedWithTheWayToAddIt) {
    for (const QStringList& arguments : {QStringList{"--archive-locale", "xx_YY", "/data/a.uha"},
                                         QStringList{"--archive-locale=xx", "--version"}}) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const Result r = run(arguments);
        EXPECT_EQ(r.exitCode, 1);
        EXPECT_EQ(r.out, QString());
        EXPECT_EQ(r.err,
                  QString("The locale %1 is not installed on this system, so the engine cannot "
                          "read or write names in its letters. Add it with\n"
                          "sudo sed -i 's/^# *%1 /%1 /' /etc/locale.gen && sudo locale-gen\n"
                          "(or \"sudo dpkg-reconfigure locales\") and start Quovara again.\n")
                      .arg(arguments.join(" ").contains("xx_YY") ? "xx_YY.UTF-8" : "xx_XX.UTF-8"));
        expectNoTrace();
    }
    QProcessEnvironment env = environment();
    env.insert("QUOVARA_ARCHIVE_LOCALE", "xx_YY");
    EXPECT_EQ(run({"/data/a.uha"}, env).exitCode, 1);
    // A text that names no locale is a misuse.
    const Result r = run({"--archive-locale", "../x"});
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_EQ(r.err, "quovara: '../x' names no locale (for example ru_RU.UTF-8, or ru)\n"
                     "Try 'quovara --help' for more information.\n");
    // An installed one (the test set-up generates en_US.UTF-8) lets the rest go on.
    EXPECT_EQ(run({"--archive-locale", "en_US.UTF-8", "--version"}).exitCode, 0);
}

TEST_F(CommandLine, AnOptionThatTakesNoValueRefusesOne) {
    const Result r = run({"--version=1"});
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_EQ(r.err, "quovara: option '--version' doesn't allow an argument\n"
                     "Try 'quovara --help' for more information.\n");
    expectNoTrace();
}

TEST_F(CommandLine, AWindowWithoutADisplayIsRefusedInOneLine) {
    for (const QStringList& arguments :
         {QStringList{}, QStringList{"/data/a.uha"}, QStringList{"extract ", "/data/a.uha"},
          QStringList{"sfx  /data/a.uha"}, QStringList{"--", "-name.uha"},
          QStringList{"./-name.uha"}}) {
        SCOPED_TRACE(arguments.join('|').toStdString());
        const Result r = run(arguments);
        EXPECT_TRUE(r.finished);
        EXPECT_EQ(r.exitCode, 1);
        EXPECT_EQ(r.out, QString());
        EXPECT_EQ(r.err, kNoDisplay);
        expectNoTrace();
    }
}

TEST_F(CommandLine, TheX11PlatformWithoutADisplayIsRefusedToo) {
    QProcessEnvironment env = environment();
    env.insert("QT_QPA_PLATFORM", "xcb");
    Result r = run({"/data/a.uha"}, env);
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.err, kNoDisplay);
    r = run({"-platform", "xcb", "/data/a.uha"});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.err, kNoDisplay);
    expectNoTrace();
}

TEST_F(CommandLine, PathsThatStartWithADashKeepTheirMeaning) {
    programFolder_ = standInProgramFolder();
    writeFile(workingFolder() + "/-n.uha", "an archive");
    writeFile(workingFolder() + "/--n.uha", "an archive");
    writeFile(workingFolder() + "/-h", "a file to add");
    const QString dashed = workingFolder() + "/-n.uha";
    struct Case {
        QStringList arguments;
        bool platformInEnvironment;
        QString expected;
    };
    const Case cases[] = {
        // Qt's "-platform NAME" chooses the platform and is taken out of the request.
        {{"-platform", "offscreen", "extract ", "./-n.uha"}, false, "Extract " + dashed},
        {{"extract ", "-n.uha"}, true, "Extract " + dashed},
        {{"--", "extract ", "-n.uha"}, true, "Extract " + dashed},
        {{"extract ", "--", "--n.uha"}, true, "Extract " + workingFolder() + "/--n.uha"},
        {{"--", "extract  -n.uha"}, true, "Extract " + dashed},
        {{"add ", "--", "-h"}, true, "Add " + workingFolder() + "/-h"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.arguments.join('|').toStdString());
        Result r;
        const QStringList report = runWithProbe(c.arguments, c.platformInEnvironment, &r);
        EXPECT_TRUE(r.finished);
        EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
        const QString kind = c.expected.startsWith("Add") ? "frmAggiungi" : "frmEstrai";
        EXPECT_EQ(report, QStringList{"dialog\t" + kind + "\t" + c.expected})
            << r.err.toStdString();
    }
}

TEST_F(CommandLine, TheManualPageAndTheReadmeListTheOptionsOfHelp) {
    const QStringList expected = sorted(OptionNames());

    // --help, as the program prints it: the names that start the lines of its option list.
    const Result r = run({"--help"});
    ASSERT_EQ(r.exitCode, 0);
    const QStringList helpLines = r.out.split('\n');
    const qsizetype start = helpLines.indexOf("Options:");
    ASSERT_GE(start, 0) << r.out.toStdString();
    QStringList helpNames;
    for (qsizetype i = start + 1; i < helpLines.size() && !helpLines[i].isEmpty(); ++i) {
        const QString line = helpLines[i];
        if (line.startsWith("  -") || line.startsWith("      -"))
            helpNames << line.trimmed().section(QStringLiteral("  "), 0, 0);
    }
    EXPECT_EQ(optionNamesIn(helpNames), expected) << r.out.toStdString();

    // The manual page: the tags of its OPTIONS section (the line after each ".TP").
    const QStringList man =
        QString::fromUtf8(readAll(QStringLiteral(QUOVARA_SOURCE_DIR "/data/quovara.1")))
            .split('\n');
    const qsizetype options = man.indexOf(".SH OPTIONS");
    ASSERT_GE(options, 0);
    QStringList manTags;
    for (qsizetype i = options + 1; i < man.size() && !man[i].startsWith(".SH "); ++i)
        if (man[i] == ".TP" && i + 1 < man.size())
            manTags << QString(man[i + 1]).replace("\\-", "-");
    EXPECT_EQ(optionNamesIn(manTags), expected) << manTags.join('\n').toStdString();

    // The README: the first column of the table in its section on the command-line options.
    const QStringList readme =
        QString::fromUtf8(readAll(QStringLiteral(QUOVARA_SOURCE_DIR "/README.md"))).split('\n');
    const qsizetype section = readme.indexOf("## Command-line options");
    ASSERT_GE(section, 0);
    QStringList readmeCells;
    for (qsizetype i = section + 1; i < readme.size() && !readme[i].startsWith("## "); ++i)
        if (readme[i].startsWith('|'))
            readmeCells << readme[i].section('|', 1, 1);
    EXPECT_EQ(optionNamesIn(readmeCells), expected) << readmeCells.join('\n').toStdString();
}
