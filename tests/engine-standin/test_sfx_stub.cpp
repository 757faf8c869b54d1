// The demonstration self-extractor: an SFX assembled by Quovara from an archive of the stand-in
// engine extracts itself on Linux, byte for byte.
#include "engine/sfx.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class NoFeedback : public quovara::SfxFeedback {
public:
    void setState(const QString&) override {}
    void setHint(const QString&) override {}
    void repaint() override {}
    void information(const QString& text) override { messages << text; }
    void critical(const QString& text) override { messages << "critical: " + text; }
    QStringList messages;
};

void write(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

QByteArray read(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(missing)");
}

} // namespace

TEST(DemonstrationSfx, AnSfxBuiltByQuovaraExtractsItselfIntoTheChosenFolder) {
    QTemporaryDir dir;
    const QString program = dir.filePath("program");
    QDir().mkpath(program);
    QFile::copy(STANDIN_SFX_STUB, program + "/SFX.exe");
    QFile::copy(STANDIN_ENGINE_06, program + "/uharc.exe");
    QDir().mkpath(dir.filePath("src/docs/deep"));
    write(dir.filePath("src/docs/a.txt"), "first file\n");
    QByteArray binary;
    for (int i = 0; i < 70000; ++i)
        binary += char(i * 7 % 251);
    write(dir.filePath("src/docs/deep/b.bin"), binary);
    QProcess add;
    add.setWorkingDirectory(dir.filePath("src"));
    add.start(STANDIN_ENGINE_06, {"a", "-r+", "-y+", "-d0", dir.filePath("demo.uha"), "docs/*"});
    ASSERT_TRUE(add.waitForFinished(30000));
    ASSERT_EQ(add.exitCode(), 0);

    quovara::SfxSettings settings;
    settings.sfxTitle = "Demo";
    settings.sfxText = "Extracts the demo files.";
    settings.runAfter = "notepad readme.txt";
    NoFeedback feedback;
    const QString sfx = dir.filePath("demo-sfx.exe");
    ASSERT_TRUE(quovara::BuildSfx(sfx, dir.filePath("demo.uha"), program, settings, feedback))
        << feedback.messages.join('|').toStdString();
    QFile::setPermissions(sfx, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    QProcess run;
    run.start(sfx, {dir.filePath("out"), "-y"});
    ASSERT_TRUE(run.waitForFinished(30000));
    const QString output = QString::fromLocal8Bit(run.readAllStandardOutput());
    EXPECT_EQ(run.exitCode(), 0) << output.toStdString();
    EXPECT_TRUE(output.contains("Quovara demonstration self-extractor")) << output.toStdString();
    EXPECT_TRUE(output.contains("Demo\nExtracts the demo files.")) << output.toStdString();
    EXPECT_TRUE(output.contains("not run by the demonstration stub): notepad readme.txt"));
    EXPECT_EQ(read(dir.filePath("out/docs/a.txt")), QByteArray("first file\n"));
    EXPECT_EQ(read(dir.filePath("out/docs/deep/b.bin")), binary);
}

TEST(DemonstrationSfx, TheBareStubSaysItHoldsNoArchive) {
    QProcess run;
    run.start(STANDIN_SFX_STUB, {});
    ASSERT_TRUE(run.waitForFinished(10000));
    EXPECT_EQ(run.exitCode(), 2);
    EXPECT_TRUE(run.readAllStandardOutput().contains("bare stub"));
}
