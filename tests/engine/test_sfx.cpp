#include "engine/sfx.h"

#include "printers.h"
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quovara;

namespace {

// Records what the assembly tells the window, in order.
class Recorder : public SfxFeedback {
public:
    QStringList events;
    void setState(const QString& t) override { events << "state:" + t; }
    void setHint(const QString& t) override { events << "hint:" + t; }
    void repaint() override { events << "repaint"; }
    void information(const QString& t) override { events << "information:" + t; }
    void critical(const QString& t) override { events << "critical:" + t; }
};

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    ASSERT_EQ(f.write(bytes), bytes.size());
}

QByteArray readFile(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    return f.readAll();
}

// Bytes that are not text: every value, in a pattern that does not repeat quickly.
QByteArray binary(qsizetype size, int seed) {
    QByteArray b(size, Qt::Uninitialized);
    quint32 x = 2463534242u + quint32(seed);
    for (qsizetype i = 0; i < size; ++i) {
        x ^= x << 13;
        x ^= x >> 17;
        x ^= x << 5;
        b[i] = char(x & 0xff);
    }
    return b;
}

class SfxBuild : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        program = dir.filePath("program");
        ASSERT_TRUE(QDir().mkpath(program));
        stub = binary(4096 + 17, 1);
        stub.replace(0, 2, "MZ");
        engine = binary(300000, 2);
        archive = binary(3 * 1048576 + 5, 3); // more than one copy chunk
        writeFile(program + "/SFX.exe", stub);
        writeFile(program + "/uharc.exe", engine);
        archivePath = dir.filePath("test.uha");
        writeFile(archivePath, archive);
        output = dir.filePath("out.exe");
    }

    QTemporaryDir dir;
    QString program, archivePath, output;
    QByteArray stub, engine, archive;
};

} // namespace

TEST(SfxInfoText, EmptyFieldsGiveSixSeparators) {
    const QByteArray info = SfxInfoText(SfxSettings());
    EXPECT_EQ(info, QByteArray("<|><|><|><|><|><|>"));
    EXPECT_EQ(info.size(), 18);
}

TEST(SfxInfoText, FieldsInOrderAsTypedInTheEightBitCodePage) {
    SfxSettings s;
    s.extractPath = "Desktop";
    s.runBefore = "a.exe";
    s.runAfter = "b.exe";
    s.sfxText = "line1\r\nline2";
    s.sfxTitle = QString::fromUtf8("Caf\u00e9");
    s.licenceText = "x<|>y";
    s.licenceTitle = "L";
    EXPECT_EQ(SfxInfoText(s),
              QByteArray("Desktop<|>a.exe<|>b.exe<|>line1\r\nline2<|>Caf\xe9<|>x<|>y<|>L"));
}

TEST_F(SfxBuild, LayoutOfTheOutput) {
    Recorder r;
    SfxSettings s;
    s.extractPath = "Programs";
    s.sfxText = "Setup will install PROGRAM NAME HERE into the following folder. To continue, "
                "click Install.If you would like to select a different folder, click Browse";
    ASSERT_TRUE(BuildSfx(output, archivePath, program, s, r));
    const QByteArray out = readFile(output);
    const QByteArray info = SfxInfoText(s);
    QByteArray expected = stub;
    expected += QByteArray("FileSFX\x05", 8);
    expected += archive;
    expected += QByteArray("UharcSFX\x05", 9);
    expected += engine;
    expected += QByteArray("InfoScript\x05", 11);
    expected += info;
    ASSERT_EQ(out.size(), expected.size());
    EXPECT_TRUE(out == expected);
    const qsizetype S = stub.size(), A = archive.size(), E = engine.size();
    EXPECT_EQ(out.left(S), stub);
    EXPECT_EQ(out.mid(S, 8), QByteArray("FileSFX\x05"));
    EXPECT_EQ(out.mid(S + 8 + A, 9), QByteArray("UharcSFX\x05"));
    EXPECT_EQ(out.mid(S + 17 + A + E, 11), QByteArray("InfoScript\x05"));
    EXPECT_EQ(out.mid(S + 28 + A + E), info);
    EXPECT_EQ(r.events, QStringList({"state:Quovara is creating the SFX", "hint:Please Wait ...",
                                     "repaint", "state:Quovara is ready", "hint:Select an action",
                                     "information:SFX Created"}));
    EXPECT_TRUE(QFile::permissions(output) & QFileDevice::ExeOwner);
    // Nothing but the output is left beside it.
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList({"out.exe", "test.uha"}));
}

TEST_F(SfxBuild, EmptyArchiveAndAnExistingOutputIsReplaced) {
    writeFile(output, QByteArray(10000000, 'x'));
    writeFile(archivePath, QByteArray());
    Recorder r;
    ASSERT_TRUE(BuildSfx(output, archivePath, program, SfxSettings(), r));
    EXPECT_EQ(readFile(output), stub + QByteArray("FileSFX\x05UharcSFX\x05") + engine +
                                    QByteArray("InfoScript\x05<|><|><|><|><|><|>"));
}

TEST_F(SfxBuild, EngineFoundWhateverTheCaseOfItsName) {
    ASSERT_TRUE(QFile::rename(program + "/uharc.exe", program + "/UHARC.EXE"));
    Recorder r;
    ASSERT_TRUE(BuildSfx(output, archivePath, program, SfxSettings(), r));
    EXPECT_TRUE(readFile(output).contains(engine));
}

TEST_F(SfxBuild, MissingStubIsNamedAndLeavesNoOutput) {
    ASSERT_TRUE(QFile::remove(program + "/SFX.exe"));
    Recorder r;
    EXPECT_FALSE(BuildSfx(output, archivePath, program, SfxSettings(), r));
    EXPECT_FALSE(QFile::exists(output));
    ASSERT_FALSE(r.events.isEmpty());
    EXPECT_EQ(r.events.last(),
              "critical:Cannot create the SFX: the stub file " + program + "/SFX.exe is missing.");
    EXPECT_TRUE(r.events.contains("state:Quovara is ready"));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"test.uha"}));
}

TEST_F(SfxBuild, MissingEngineIsNamedAndLeavesNoOutput) {
    ASSERT_TRUE(QFile::remove(program + "/uharc.exe"));
    Recorder r;
    EXPECT_FALSE(BuildSfx(output, archivePath, program, SfxSettings(), r));
    EXPECT_FALSE(QFile::exists(output));
    EXPECT_EQ(r.events.last(), "critical:Cannot create the SFX: the engine file " + program +
                                   "/Uharc.exe is missing.");
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"test.uha"}));
}

TEST_F(SfxBuild, MissingArchiveIsNamed) {
    ASSERT_TRUE(QFile::remove(archivePath));
    Recorder r;
    EXPECT_FALSE(BuildSfx(output, archivePath, program, SfxSettings(), r));
    EXPECT_FALSE(QFile::exists(output));
    EXPECT_EQ(r.events.last(),
              "critical:Cannot create the SFX: the archive " + archivePath + " is missing.");
}

TEST_F(SfxBuild, UnwritableFolderIsReported) {
    Recorder r;
    const QString bad = dir.filePath("no-such-folder/out.exe");
    EXPECT_FALSE(BuildSfx(bad, archivePath, program, SfxSettings(), r));
    EXPECT_FALSE(QFile::exists(bad));
    ASSERT_FALSE(r.events.isEmpty());
    EXPECT_TRUE(r.events.last().startsWith("critical:Cannot create the SFX: " + bad));
}
