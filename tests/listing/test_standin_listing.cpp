// Listing archives made by the stand-in engine, end to end: the list script is written and
// run, the engine writes its log, and the mirror tree and totals are read back.
#include "../core/recording_prompter.h"
#include "../core/test_support.h"
#include "core/places.h"
#include "engine/listing.h"

#include <QDirIterator>
#include <QProcess>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

const QString kSix = QStringLiteral(QUOVARA_STANDIN_06);
const QString kFour = QStringLiteral(QUOVARA_STANDIN_04);
const QString kCantRead =
    QStringLiteral("Can't read from archive file / Unexpected end of file (maybe corrupt)");

class StandinListing : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
        QFile::copy(kSix, places_.programFolder() + "/uharc.exe");
        QFile::copy(kFour, places_.programFolder() + "/Uharc0.4.fns");
        src_ = places_.path() + "/src";
        QDir().mkpath(src_ + "/a/b");
        writeFile(src_ + "/root.txt", "root file");
        writeFile(src_ + "/a/d.txt", QByteArray(5000, 'd'));
        writeFile(src_ + "/a/b/c.txt", QByteArray(100000, 'c'));
    }

    // Makes an archive of everything in src with the given engine and switches.
    QString makeArchive(const QString& engine, const QString& name, QStringList switches) {
        const QString archive = places_.path() + "/" + name;
        QProcess p;
        p.setWorkingDirectory(src_);
        p.start(engine, QStringList{"a"} + switches + QStringList{"-r+", "-y+", archive, "*"});
        EXPECT_TRUE(p.waitForFinished(30000));
        EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString();
        return archive;
    }

    QStringList scratchFiles() const {
        QStringList out;
        QDirIterator it(ScratchFolder(), QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            out << QDir(ScratchFolder()).relativeFilePath(it.next());
        out.sort();
        return out;
    }

    QByteArray engineFile(const char* name) const {
        return readAll(places_.programFolder() + "/" + name);
    }

    ScopedPlaces places_;
    QString src_;
    RecordingPrompter prompter_;
    EngineSwitchState switch_;
};

} // namespace

TEST_F(StandinListing, NestedFoldersAndARootFile) {
    const QString archive = makeArchive(kSix, "plain.uha", {"-m3"});
    ArchiveLister lister(prompter_, switch_);
    ASSERT_TRUE(lister.OpenSelectedArchive(archive));
    EXPECT_EQ(lister.listing().status, ListStatus::Opened);
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    EXPECT_EQ(scratchFiles(), QStringList({"a/b/c.txt", "a/d.txt", "root.txt"}));
    const auto totals = lister.Info();
    ASSERT_TRUE(totals.has_value());
    EXPECT_EQ(totals->filesLabel(), "Files: 3");
    EXPECT_EQ(totals->normalSizeLabel(), "Normal size: 0.1 MB"); // 105009 bytes
    EXPECT_EQ(totals->modeLabel(), "Mode: ALZ Best");
    EXPECT_GE(totals->ratio, 0);
    EXPECT_LT(totals->ratio, 100);
}

TEST_F(StandinListing, ProtectedArchiveAnsweredWrongThenRight) {
    const QString archive = makeArchive(kSix, "protected.uha", {"-pwsecret"});
    ArchiveLister lister(prompter_, switch_);
    prompter_.answers = {"wrong"};
    ASSERT_TRUE(lister.OpenSelectedArchive(archive));
    // The engine refuses the wrong password with its own error: the listing fails.
    EXPECT_EQ(lister.listing().status, ListStatus::Failed);
    EXPECT_EQ(prompter_.shown, QStringList({"prompt: Insert Password", "critical: " + kCantRead}));
    EXPECT_EQ(lister.listing().password, "");

    prompter_.shown.clear();
    prompter_.answers = {"secret"};
    ASSERT_TRUE(lister.OpenSelectedArchive(archive));
    EXPECT_EQ(lister.listing().status, ListStatus::Opened);
    EXPECT_EQ(prompter_.shown, QStringList({"prompt: Insert Password"}));
    EXPECT_EQ(lister.listing().password, "secret");
    EXPECT_EQ(scratchFiles(), QStringList({"a/b/c.txt", "a/d.txt", "root.txt"}));
    EXPECT_EQ(lister.Info()->filesLabel(), "Files: 3");
}

TEST_F(StandinListing, ArchiveOfTheOlderVersionSwitchesTheEngineAndALaterFailureUndoes) {
    const QByteArray six = engineFile("uharc.exe");
    const QByteArray four = engineFile("Uharc0.4.fns");
    const QString archive = makeArchive(kFour, "old.uha", {"-mx"});
    ArchiveLister lister(prompter_, switch_);
    ASSERT_TRUE(lister.OpenSelectedArchive(archive));
    EXPECT_EQ(lister.listing().status, ListStatus::Opened);
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    EXPECT_TRUE(switch_.engineSwitched);
    EXPECT_EQ(switch_.switchedVersion, "0.4");
    EXPECT_EQ(engineFile("uharc.exe"), four);
    EXPECT_EQ(engineFile("Uharc0.6.fns"), six);
    EXPECT_FALSE(QFile::exists(places_.programFolder() + "/Uharc0.4.fns"));
    EXPECT_EQ(lister.Info()->modeLabel(), "Mode: PPM");

    // Listing a missing archive fails with the engine's message and undoes the switch.
    ASSERT_TRUE(lister.OpenSelectedArchive(places_.path() + "/missing.uha"));
    EXPECT_EQ(lister.listing().status, ListStatus::Failed);
    EXPECT_EQ(prompter_.shown, QStringList({"critical: Can't open archive file"}));
    EXPECT_FALSE(switch_.engineSwitched);
    EXPECT_EQ(engineFile("uharc.exe"), six);
    EXPECT_EQ(engineFile("Uharc0.4.fns"), four);
    EXPECT_FALSE(QFile::exists(places_.programFolder() + "/Uharc0.6.fns"));
}

TEST_F(StandinListing, DamagedArchiveShowsTheEnginesMessageAndClearsThePassword) {
    const QString archive = makeArchive(kSix, "damaged.uha", {});
    QFile f(archive);
    ASSERT_TRUE(f.resize(f.size() / 2));
    ArchiveLister lister(prompter_, switch_);
    lister.listing().password = "left over";
    ASSERT_TRUE(lister.OpenSelectedArchive(archive));
    EXPECT_EQ(lister.listing().status, ListStatus::Failed);
    EXPECT_EQ(prompter_.shown, QStringList({"critical: " + kCantRead}));
    EXPECT_EQ(lister.listing().password, "");
    EXPECT_FALSE(lister.Info().has_value());
}

TEST_F(StandinListing, EveryArchiveOpenedStaysInTheMirrorTree) {
    const QString first = makeArchive(kSix, "first.uha", {});
    writeFile(src_ + "/extra.txt", "extra");
    const QString second = makeArchive(kSix, "second.uha", {});
    ArchiveLister lister(prompter_, switch_);
    ASSERT_TRUE(lister.OpenSelectedArchive(first));
    ASSERT_TRUE(lister.OpenSelectedArchive(second));
    EXPECT_EQ(scratchFiles(), QStringList({"a/b/c.txt", "a/d.txt", "extra.txt", "root.txt"}));
    EXPECT_EQ(lister.Info()->filesLabel(), "Files: 4");
}

TEST_F(StandinListing, WindowsEngineRunsThroughTheLauncherWithATerminal) {
    // The engine file is a Windows program ("MZ"); the launcher is a stand-in for wine that
    // records its arguments, refuses to run without a terminal on its standard input, turns
    // the Z:\ paths back into host paths and runs the stand-in engine.
    const QString archive = makeArchive(kSix, "through-wine.uha", {"-m1"});
    QFile::remove(places_.programFolder() + "/uharc.exe");
    writeFile(places_.programFolder() + "/uharc.exe", "MZ\x90\x00 a Windows program");
    const QString record = places_.path() + "/launcher.txt";
    const QString launcher = places_.path() + "/fake-wine";
    writeExecutable(launcher, "#!/bin/sh\n"
                              "printf '%s\\n' \"$@\" > '" +
                                  record.toLocal8Bit() +
                                  "'\n"
                                  "[ -t 0 ] || { echo 'no terminal' >> '" +
                                  record.toLocal8Bit() +
                                  "'; exit 3; }\n"
                                  "shift\n"
                                  "for a in \"$@\"; do\n"
                                  "  case \"$a\" in *Z:\\\\*) a=$(printf '%s' \"$a\" | sed "
                                  "'s#Z:\\\\#/#; s#\\\\#/#g');; esac\n"
                                  "  set -- \"$@\" \"$a\"; shift\n"
                                  "done\n"
                                  "exec '" +
                                  kSix.toLocal8Bit() + "' \"$@\"\n");
    qputenv("QUOVARA_WINE", launcher.toLocal8Bit());
    ArchiveLister lister(prompter_, switch_);
    const bool listed = lister.OpenSelectedArchive(archive);
    qunsetenv("QUOVARA_WINE");
    ASSERT_TRUE(listed);
    const QStringList args =
        QString::fromLocal8Bit(readAll(record)).split('\n', Qt::SkipEmptyParts);
    ASSERT_GE(args.size(), 6) << args.join('|').toStdString();
    EXPECT_EQ(args[0], places_.programFolder() + "/uharc.exe");
    EXPECT_EQ(args.mid(1, 3), QStringList({"l", "-d2", "-y+"}));
    EXPECT_EQ(args[4], "-lgZ:" + QString(WorkFile(names::ListLog)).replace('/', '\\'));
    EXPECT_EQ(args[5], "Z:" + QString(archive).replace('/', '\\'));
    EXPECT_FALSE(args.contains("no terminal"));
    EXPECT_EQ(lister.listing().status, ListStatus::Opened);
    EXPECT_EQ(scratchFiles(), QStringList({"a/b/c.txt", "a/d.txt", "root.txt"}));
    EXPECT_EQ(lister.Info()->modeLabel(), "Mode: ALZ Fast");
}
