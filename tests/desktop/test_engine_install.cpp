// "quovara --install-engine": the installed program copies the engine files into the per-user
// program folder and checks that the launcher runs the engine. Run as a user would, without a
// display (the command must never need a window), with fake launchers written by the test.
#include "../core/test_support.h"

#include "core/engineinstall.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quovara;
using quovara::testing::readAll;
using quovara::testing::writeExecutable;
using quovara::testing::writeFile;

namespace {

struct Result {
    int exitCode = -1;
    QString out;
    QString err;
};

class EngineInstall : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir_.isValid());
        ASSERT_TRUE(QDir().mkpath(dir_.path() + "/downloads"));
        ASSERT_TRUE(QDir().mkpath(dir_.path() + "/empty-path"));
        // A Windows program starts with "MZ"; the launcher is a fake.
        writeFile(dir_.path() + "/downloads/UHARC.EXE", "MZ engine 0.6");
        writeFile(dir_.path() + "/downloads/uharc0.4.FNS", "MZ engine 0.4");
        writeFile(dir_.path() + "/downloads/Uharc0.6.fns", "MZ engine 0.6 stored");
    }

    QString dataHome() const { return dir_.path() + "/data"; }
    QString programFolder() const { return dataHome() + "/quovara"; }
    QString download(const QString& name) const { return dir_.path() + "/downloads/" + name; }

    // A launcher that writes down its arguments and whether its input is a terminal, then
    // prints `output`.
    QString fakeLauncher(const QByteArray& output, int exitCode = 0) {
        const QString path = dir_.path() + "/fake-wine";
        writeExecutable(path, "#!/bin/sh\n"
                              // Making the prefix, as wine's "wineboot -i" does (its
                              // registry files come later, when its server writes them).
                              "if [ \"$1\" = wineboot ]; then mkdir -p \"$WINEPREFIX\" && "
                              "echo \"$* $WINEARCH\" >> "
                              "\"$FAKE_LAUNCHER_LOG.boot\"; exit 0; fi\n"
                              "printf '%s\\n' \"$@\" > \"$FAKE_LAUNCHER_LOG\"\n"
                              "[ -t 0 ] && echo 'input is a terminal' >> \"$FAKE_LAUNCHER_LOG\"\n"
                              "printf '" +
                                  output + "'\nexit " + QByteArray::number(exitCode) + "\n");
        return path;
    }
    QString launcherLog() const { return dir_.path() + "/launcher.log"; }

    Result run(const QStringList& arguments, const QString& launcher) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        // No display of any kind: a window could not open.
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM",
                                 "QUOVARA_PROGRAM_DIR", "QUOVARA_WINE"})
            env.remove(name);
        env.insert("XDG_DATA_HOME", dataHome());
        env.insert("HOME", dir_.path());
        env.insert("FAKE_LAUNCHER_LOG", launcherLog());
        env.insert("QUOVARA_ENGINE_CHECK_TIMEOUT", checkTimeout_);
        env.remove("LC_CTYPE");
        env.insert("LC_ALL", locale_);
        // The messages in English, as the checks below read them, under any locale.
        env.insert("LANGUAGE", "en");
        // wine cannot be found on the PATH of these runs.
        env.insert("PATH", dir_.path() + "/empty-path:/usr/bin:/bin");
        if (!launcher.isEmpty())
            env.insert("QUOVARA_WINE", launcher);
        QProcess p;
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(QUOVARA_PROGRAM), QStringList{"--install-engine"} + arguments);
        EXPECT_TRUE(p.waitForFinished(60000));
        Result r;
        r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
        r.out = QString::fromUtf8(p.readAllStandardOutput());
        r.err = QString::fromUtf8(p.readAllStandardError());
        return r;
    }

    static int mode(const QString& path) {
        return int(QFileInfo(path).permissions() &
                   (QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                    QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther |
                    QFile::ExeOther));
    }
    static constexpr int kMode755 =
        int(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
            QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    static constexpr int kMode644 =
        int(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);

    QTemporaryDir dir_;
    QString checkTimeout_ = QStringLiteral("10"); // seconds
    QString locale_ = QStringLiteral("ru_RU.UTF-8");
};

} // namespace

TEST_F(EngineInstall, CopiesTheFilesUnderTheirNamesAndRunsTheEngineOnATerminal) {
    const QString launcher = fakeLauncher("UHARC 0.6b ----- high compression multimedia "
                                          "archiver ----- BETA version\\r\\n");
    const Result r =
        run({download("UHARC.EXE"), download("uharc0.4.FNS"), download("Uharc0.6.fns")}, launcher);
    EXPECT_EQ(r.exitCode, 0) << r.out.toStdString() << r.err.toStdString();
    EXPECT_EQ(QDir(programFolder()).entryList(QDir::Files, QDir::Name),
              QStringList({"Uharc0.4.fns", "Uharc0.6.fns", "uharc.exe"}));
    EXPECT_EQ(readAll(programFolder() + "/uharc.exe"), "MZ engine 0.6");
    EXPECT_EQ(readAll(programFolder() + "/Uharc0.4.fns"), "MZ engine 0.4");
    EXPECT_EQ(mode(programFolder() + "/uharc.exe"), kMode755);
    EXPECT_EQ(mode(programFolder() + "/Uharc0.4.fns"), kMode644);
    EXPECT_EQ(mode(programFolder() + "/Uharc0.6.fns"), kMode644);
    EXPECT_TRUE(r.out.contains("Installed " + programFolder() + "/uharc.exe"))
        << r.out.toStdString();
    EXPECT_TRUE(r.out.contains("The engine runs through " + launcher +
                               ": UHARC 0.6b ----- high compression multimedia archiver"))
        << r.out.toStdString();
    // The launcher was given the engine as the Windows program sees it, with a terminal.
    const QString windowsPath = "Z:" + QString(programFolder() + "/uharc.exe").replace('/', '\\');
    EXPECT_EQ(QString::fromUtf8(readAll(launcherLog())), windowsPath + "\ninput is a terminal\n");
    // The engine's own prefix was made first, 32-bit, and the code pages in use are told.
    const QString prefix = dataHome() + "/quovara/wine";
    EXPECT_EQ(QString::fromUtf8(readAll(launcherLog() + ".boot")), "wineboot -i win32\n");
    EXPECT_TRUE(r.out.contains(QString::fromUtf8("Preparing the engine for its first use… (") +
                               prefix + ")\n"))
        << r.out.toStdString();
    EXPECT_TRUE(r.out.contains("It runs in the wine prefix " + prefix +
                               " under the locale ru_RU.UTF-8: code page 866 for its text and "
                               "the names it stores, 1251 for the names it reads.\n"))
        << r.out.toStdString();
    // Installed again, the prefix is there already.
    const Result again = run({download("UHARC.EXE")}, launcher);
    EXPECT_FALSE(again.out.contains("Preparing")) << again.out.toStdString();
    EXPECT_EQ(QString::fromUtf8(readAll(launcherLog() + ".boot")), "wineboot -i win32\n");
}

TEST_F(EngineInstall, ReplacesAnEngineFileSpelledAnotherWay) {
    ASSERT_TRUE(QDir().mkpath(programFolder()));
    writeFile(programFolder() + "/UHARC.EXE", "MZ an older engine");
    writeFile(programFolder() + "/uharc0.4.FNS", "MZ an older 0.4");
    const Result r =
        run({download("UHARC.EXE"), download("uharc0.4.FNS")}, fakeLauncher("UHARC 0.6b\\r\\n"));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(QDir(programFolder()).entryList(QDir::Files, QDir::Name),
              QStringList({"Uharc0.4.fns", "uharc.exe"}));
    EXPECT_EQ(readAll(programFolder() + "/uharc.exe"), "MZ engine 0.6");
}

TEST_F(EngineInstall, AnUnknownNameCopiesNothingAndSaysWhichNamesAreExpected) {
    writeFile(download("setup.exe"), "MZ something else");
    const Result r = run({download("UHARC.EXE"), download("setup.exe")}, fakeLauncher("UHARC"));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains("Not an engine file: " + download("setup.exe")))
        << r.err.toStdString();
    EXPECT_TRUE(r.err.contains("Expected names: uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe"))
        << r.err.toStdString();
    EXPECT_FALSE(QFileInfo::exists(programFolder() + "/uharc.exe"));
}

TEST_F(EngineInstall, AMissingFileOrNoFileIsAnError) {
    Result r = run({download("uharc.exe.missing/uharc.exe")}, QString());
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains("No such file")) << r.err.toStdString();
    r = run({}, QString());
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains("Usage: quovara --install-engine FILE...")) << r.err.toStdString();
}

TEST_F(EngineInstall, WithoutALauncherTheDebianPackagesAreNamed) {
    const Result r = run({download("UHARC.EXE")}, dir_.path() + "/no-such-wine");
    EXPECT_EQ(r.exitCode, 3);
    // The files are in place all the same.
    EXPECT_EQ(readAll(programFolder() + "/uharc.exe"), "MZ engine 0.6");
    EXPECT_TRUE(r.err.contains("wine was not found")) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(QString::fromLatin1(WineInstallCommand))) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains("sudo dpkg --add-architecture i386 && sudo apt update && sudo apt "
                               "install wine wine32"));
}

TEST_F(EngineInstall, ALauncherThatCannotBeStartedCountsAsNone) {
    const QString launcher = dir_.path() + "/broken-wine";
    writeExecutable(launcher, "#!/no/such/interpreter\n");
    const Result r = run({download("UHARC.EXE")}, launcher);
    EXPECT_EQ(r.exitCode, 3);
    EXPECT_TRUE(r.err.contains(launcher + " could not be started")) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(QString::fromLatin1(WineInstallCommand))) << r.err.toStdString();
}

TEST_F(EngineInstall, ALauncherWithoutIts32BitPartIsRecognised) {
    const Result r = run({download("UHARC.EXE")},
                         fakeLauncher("it looks like wine32 is missing, you should install it.\\n"
                                      "wine: could not load kernel32.dll, status c0000135\\n",
                                      1));
    EXPECT_EQ(r.exitCode, 3);
    EXPECT_TRUE(r.err.contains("its 32-bit part is missing")) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains("wine32 is missing")) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(QString::fromLatin1(WineInstallCommand))) << r.err.toStdString();
}

TEST_F(EngineInstall, AnEngineThatPrintsNoBannerFails) {
    const Result r = run({download("UHARC.EXE")}, fakeLauncher("something else entirely\\n"));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(r.err.contains("did not print its banner")) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains("something else entirely")) << r.err.toStdString();
}

TEST_F(EngineInstall, TheConsoleTitleIsNotTakenForTheBanner) {
    // What the real engine prints on its console under wine: the window title first.
    const Result r =
        run({download("UHARC.EXE")}, fakeLauncher("\\033]0;UHARC\\007\\r\\nUHARC 0.6b ----- high "
                                                  "compression multimedia archiver\\r\\n"));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.contains(": UHARC 0.6b ----- high compression multimedia archiver\n"))
        << r.out.toStdString();
}

TEST_F(EngineInstall, AnEngineThatNeverAnswersIsEndedAtTheTimeLimit) {
    const QString launcher = dir_.path() + "/silent-wine";
    writeExecutable(launcher, "#!/bin/sh\nexec sleep 600\n");
    checkTimeout_ = QStringLiteral("2");
    QElapsedTimer clock;
    clock.start();
    const Result r = run({download("UHARC.EXE")}, launcher);
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_GE(clock.elapsed(), 2000);
    EXPECT_LT(clock.elapsed(), 20000);
    EXPECT_TRUE(r.err.contains("did not print its banner")) << r.err.toStdString();
}

TEST_F(EngineInstall, OnlyStoredVersionsWithoutAnEngineAreNotEnough) {
    const Result r = run({download("Uharc0.6.fns")}, fakeLauncher("UHARC\\r\\n"));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(QFileInfo(programFolder() + "/Uharc0.6.fns").isFile());
    EXPECT_TRUE(r.err.contains("There is no uharc.exe in " + programFolder()))
        << r.err.toStdString();
}

TEST(EngineInstallNames, AnswerWithoutRegardToCase) {
    EXPECT_EQ(InstallableEngineFileName("UHARC.EXE"), "uharc.exe");
    EXPECT_EQ(InstallableEngineFileName("uharc0.4.FNS"), "Uharc0.4.fns");
    EXPECT_EQ(InstallableEngineFileName("UHARC0.6.FNS"), "Uharc0.6.fns");
    EXPECT_EQ(InstallableEngineFileName("sfx.EXE"), "SFX.exe");
    EXPECT_EQ(InstallableEngineFileName("uharc0.5.fns"), "");
    EXPECT_EQ(InstallableEngineFileName("uharc.exe.bak"), "");
}
