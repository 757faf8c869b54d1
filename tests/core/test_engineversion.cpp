// What the program folder says about its engine, read without running it.
#include "test_support.h"

#include "core/engineversion.h"

#include <gtest/gtest.h>

using namespace quovara;
using quovara::testing::writeFile;

namespace {

class EngineVersion : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dir_.isValid()); }
    QString folder() const { return dir_.path(); }
    void put(const QString& name, const QByteArray& content) {
        writeFile(folder() + "/" + name, content);
    }
    QTemporaryDir dir_;
};

// A Windows program starts with "MZ"; a native one (the stand-in) does not.
const QByteArray kWindows = "MZ\x90\0 the engine";
const QByteArray kNative = "\x7f"
                           "ELF the stand-in";

} // namespace

TEST_F(EngineVersion, NoEngineFile) {
    const InstalledEngine e = FindInstalledEngine(folder());
    EXPECT_TRUE(e.engine.isEmpty());
    EXPECT_EQ(InstalledEngineText(e),
              "Engine: none in " + folder() + " (quovara --install-engine puts it there)\n");
}

TEST_F(EngineVersion, AMissingFolderIsNotMade) {
    const QString missing = folder() + "/not-there";
    EXPECT_EQ(InstalledEngineText(FindInstalledEngine(missing)),
              "Engine: none in " + missing + " (quovara --install-engine puts it there)\n");
    EXPECT_FALSE(QFileInfo::exists(missing));
}

TEST_F(EngineVersion, AnEmptyEngineCountsAsMissing) {
    put("uharc.exe", "");
    put("Uharc0.4.fns", kWindows);
    const InstalledEngine e = FindInstalledEngine(folder());
    EXPECT_TRUE(e.engine.isEmpty());
    EXPECT_TRUE(InstalledEngineText(e).startsWith("Engine: none in "));
}

TEST_F(EngineVersion, AWindowsEngineWithTheOlderVersionStoredIs06) {
    put("UHARC.EXE", kWindows);
    put("uharc0.4.FNS", kWindows);
    const InstalledEngine e = FindInstalledEngine(folder());
    EXPECT_EQ(e.engine, folder() + "/UHARC.EXE");
    EXPECT_TRUE(e.windowsProgram);
    EXPECT_EQ(e.version, "0.6");
    EXPECT_EQ(e.storedVersions, QStringList{"0.4"});
    EXPECT_EQ(InstalledEngineText(e), "Engine: UHARC 0.6 (Windows program, run through wine) in " +
                                          folder() + "\nStored engine versions: 0.4\n");
}

TEST_F(EngineVersion, TheStandInAsShippedInTheDemonstrationFolderIs04) {
    // "uharc.exe" is 0.4 and the stored copy of 0.6 waits beside it.
    put("uharc.exe", kNative);
    put("Uharc0.6.fns", kNative);
    const InstalledEngine e = FindInstalledEngine(folder());
    EXPECT_FALSE(e.windowsProgram);
    EXPECT_EQ(e.version, "0.4");
    EXPECT_EQ(InstalledEngineText(e), "Engine: demonstration stand-in 0.4 (not UHARC) in " +
                                          folder() + "\nStored engine versions: 0.6\n");
}

TEST_F(EngineVersion, AnEngineAloneHasNoKnownVersion) {
    put("uharc.exe", kWindows);
    const InstalledEngine e = FindInstalledEngine(folder());
    EXPECT_TRUE(e.version.isEmpty());
    EXPECT_EQ(InstalledEngineText(e),
              "Engine: UHARC, version not known (Windows program, run through wine) in " +
                  folder() + "\n");
}

TEST_F(EngineVersion, BothVersionsStoredTellNothingAboutTheActiveOne) {
    put("uharc.exe", kNative);
    put("Uharc0.4.fns", kNative);
    put("Uharc0.6.fns", kNative);
    const InstalledEngine e = FindInstalledEngine(folder());
    EXPECT_TRUE(e.version.isEmpty());
    EXPECT_EQ(InstalledEngineText(e),
              "Engine: demonstration stand-in, version not known (not UHARC) in " + folder() +
                  "\nStored engine versions: 0.4, 0.6\n");
}

TEST_F(EngineVersion, AnEmptyStoredCopyDoesNotCount) {
    put("uharc.exe", kWindows);
    put("Uharc0.4.fns", "");
    put("Uharc0.6.fns", kWindows);
    const InstalledEngine e = FindInstalledEngine(folder());
    EXPECT_EQ(e.storedVersions, QStringList{"0.6"});
    EXPECT_EQ(e.version, "0.4");
}
