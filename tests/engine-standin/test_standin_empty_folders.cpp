// Tests of the stand-in's -ed+ (store empty folders): an add stores each folder with no
// entries at all, "x" makes it again, and no listing, total or console line names it.
#include "test_standin_support.h"

using namespace standin_test;

namespace {

class StandinEmptyFolderTest : public StandinTest {
protected:
    // src holds full/a.txt, emptyd (whose only entry is the empty folder inner) and the empty
    // folder lone.
    void SetUp() override {
        StandinTest::SetUp();
        writeFile(path("src/full/a.txt"), "abc");
        ASSERT_TRUE(QDir().mkpath(path("src/emptyd/inner")));
        ASSERT_TRUE(QDir().mkpath(path("src/lone")));
    }
    EngineRun add(const QStringList& more, const std::map<QString, QString>& env = {}) {
        return run("0.6", QStringList{"a", "-r+", "-y+", "-d2"} + more, dir.path(), env);
    }
    std::vector<std::string> storedNames(const QString& archive) const {
        std::vector<std::string> names;
        for (const auto& e : rawEntries(readFile(path(archive))))
            names.push_back(e.name);
        return names;
    }
    bool isEmptyFolder(const QString& rel) const {
        const QFileInfo info(path(rel));
        return info.isDir() &&
               QDir(path(rel))
                   .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden)
                   .isEmpty();
    }
    std::vector<std::string> foldersUnder(const QString& rel) const {
        std::vector<std::string> names;
        for (const QString& n : QDir(path(rel)).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            names.push_back(n.toStdString());
        return names;
    }
};

const std::string kOneFileTotals = "1 file" + std::string(33, ' ') + "3";

TEST_F(StandinEmptyFolderTest, StoredWithTheDirectoryAttributeButNeitherListedNorCounted) {
    EngineRun a = add({"-ed+", "t.uha", "src\\*"});
    ASSERT_EQ(a.exitCode, 0) << a.out.toStdString();
    EXPECT_TRUE(a.out.contains("\r\nAdding 1 file (3 bytes) ")) << a.out.toStdString();
    EXPECT_FALSE(a.out.contains("emptyd"));
    EXPECT_FALSE(a.out.contains("lone"));

    // Files first, then the leaves of the empty folders; a folder name has no separator at
    // its end, and the entry has the directory attribute, size 0 and no data.
    const QByteArray data = readFile(path("t.uha"));
    const auto entries = rawEntries(data);
    ASSERT_EQ(storedNames("t.uha"),
              (std::vector<std::string>{"src\\full\\a.txt", "src\\emptyd\\inner", "src\\lone"}));
    for (std::size_t i = 1; i < entries.size(); ++i) {
        SCOPED_TRACE(entries[i].name);
        const qsizetype attrPos = entries[i].dataPos - 8 - 1 - 4 - 1;
        EXPECT_EQ(le(data, attrPos, 1), 0x10u);
        EXPECT_EQ(le(data, attrPos - 16, 8), 0u); // size
        EXPECT_EQ(entries[i].dataLen, 0);
    }

    EngineRun l = run6({"l", "-y+", "-lgl.txt", "t.uha"}, dir.path());
    ASSERT_EQ(l.exitCode, 0) << l.out.toStdString();
    const QByteArray log = readFile(path("l.txt"));
    EXPECT_EQ(listedNames(log), std::vector<std::string>{"src\\full\\a.txt"});
    EXPECT_TRUE(hasLine(log, kOneFileTotals)) << log.toStdString();
    EXPECT_TRUE(hasLine(l.out, kOneFileTotals));
    EXPECT_FALSE(l.out.contains("emptyd"));

    // A name that takes only a folder lists nothing.
    EngineRun named = run6({"l", "-y+", "t.uha", "src\\lone"}, dir.path());
    EXPECT_TRUE(hasLine(named.out, "0 files" + std::string(32, ' ') + "0"))
        << named.out.toStdString();

    EngineRun t = run6({"t", "-y+", "-d2", "t.uha"}, dir.path());
    ASSERT_EQ(t.exitCode, 0) << t.out.toStdString();
    EXPECT_TRUE(hasLine(t.out, "Testing 1 file (3 bytes)")) << t.out.toStdString();
    EXPECT_FALSE(t.out.contains("emptyd"));
}

TEST_F(StandinEmptyFolderTest, ExtractWithPathsMakesTheEmptyFoldersNestedOnesToo) {
    ASSERT_EQ(add({"-ed+", "t.uha", "src\\*"}).exitCode, 0);
    EngineRun x = run6({"x", "-y+", "-d2", "-tout", "t.uha"}, dir.path());
    ASSERT_EQ(x.exitCode, 0) << x.out.toStdString();
    EXPECT_TRUE(hasLine(x.out, "Extracting 1 file (3 bytes)")) << x.out.toStdString();
    EXPECT_FALSE(x.out.contains("emptyd"));
    EXPECT_FALSE(x.out.contains("lone"));
    EXPECT_EQ(readFile(path("out/src/full/a.txt")), "abc");
    EXPECT_EQ(foldersUnder("out/src"), (std::vector<std::string>{"emptyd", "full", "lone"}));
    EXPECT_EQ(foldersUnder("out/src/emptyd"), std::vector<std::string>{"inner"});
    EXPECT_TRUE(isEmptyFolder("out/src/emptyd/inner"));
    EXPECT_TRUE(isEmptyFolder("out/src/lone"));

    // Names select folders as they select files: "src\full\*" leaves both out.
    EngineRun sel = run6({"x", "-y+", "-tsel", "t.uha", "src\\full\\*"}, dir.path());
    ASSERT_EQ(sel.exitCode, 0) << sel.out.toStdString();
    EXPECT_EQ(foldersUnder("sel/src"), std::vector<std::string>{"full"});
    EngineRun pick = run6({"x", "-y+", "-tpick", "t.uha", "*.txt", "*inner"}, dir.path());
    ASSERT_EQ(pick.exitCode, 0) << pick.out.toStdString();
    EXPECT_TRUE(hasLine(pick.out, "Extracting 1 file (3 bytes)"));
    EXPECT_TRUE(isEmptyFolder("pick/src/emptyd/inner"));
    EXPECT_FALSE(QFileInfo::exists(path("pick/src/lone")));
}

TEST_F(StandinEmptyFolderTest, WithoutTheSwitchOrWithEdMinusNoFolderIsStored) {
    ASSERT_EQ(add({"plain.uha", "src\\*"}).exitCode, 0);
    EXPECT_EQ(storedNames("plain.uha"), std::vector<std::string>{"src\\full\\a.txt"});
    ASSERT_EQ(add({"-ed+", "-ed-", "minus.uha", "src\\*"}).exitCode, 0);
    EXPECT_EQ(storedNames("minus.uha"), std::vector<std::string>{"src\\full\\a.txt"});
    // Without recursion the walk reaches no folder at all.
    ASSERT_EQ(
        run6({"a", "-r-", "-y+", "-ed+", "flat.uha", "src\\full\\a.txt", "src\\*"}, dir.path())
            .exitCode,
        0);
    EXPECT_EQ(storedNames("flat.uha"), std::vector<std::string>{"src\\full\\a.txt"});
    ASSERT_EQ(run6({"x", "-y+", "-tout", "plain.uha"}, dir.path()).exitCode, 0);
    EXPECT_EQ(foldersUnder("out/src"), std::vector<std::string>{"full"});

    // The switch from uharc_opt, and the command line overriding it.
    ASSERT_EQ(add({"env.uha", "src\\*"}, {{"UHARC_OPT", "-ed+"}}).exitCode, 0);
    EXPECT_EQ(storedNames("env.uha").size(), 3u);
    ASSERT_EQ(add({"-ed-", "envoff.uha", "src\\*"}, {{"uharc_opt", "-ed+"}}).exitCode, 0);
    EXPECT_EQ(storedNames("envoff.uha").size(), 1u);
    // A bare -ed turns it on, as a bare -r does.
    ASSERT_EQ(add({"-ed", "bare.uha", "src\\*"}).exitCode, 0);
    EXPECT_EQ(storedNames("bare.uha").size(), 3u);
}

TEST_F(StandinEmptyFolderTest, ExtractWithoutPathsPassesThemOver) {
    ASSERT_EQ(add({"-ed+", "t.uha", "src\\*"}).exitCode, 0);
    EngineRun e = run6({"e", "-y+", "-d2", "-tflat", "t.uha"}, dir.path());
    ASSERT_EQ(e.exitCode, 0) << e.out.toStdString();
    EXPECT_TRUE(hasLine(e.out, "Extracting 1 file (3 bytes)")) << e.out.toStdString();
    EXPECT_EQ(QDir(path("flat")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{"a.txt"});
}

TEST_F(StandinEmptyFolderTest, AnExclusionLeavesAFolderOut) {
    ASSERT_EQ(add({"-ed+", "t.uha", "src\\*", "!*inner"}).exitCode, 0);
    EXPECT_EQ(storedNames("t.uha"), (std::vector<std::string>{"src\\full\\a.txt", "src\\lone"}));
    ASSERT_EQ(run6({"x", "-y+", "-tout", "t.uha"}, dir.path()).exitCode, 0);
    EXPECT_EQ(foldersUnder("out/src"), (std::vector<std::string>{"full", "lone"}));

    // Left out on extraction: the folder above it is still made, as for a file left out.
    ASSERT_EQ(add({"-ed+", "all.uha", "src\\*"}).exitCode, 0);
    EngineRun x = run6({"x", "-y+", "-tout2", "all.uha", "!src\\lone"}, dir.path());
    ASSERT_EQ(x.exitCode, 0) << x.out.toStdString();
    EXPECT_TRUE(isEmptyFolder("out2/src/emptyd/inner"));
    EXPECT_EQ(foldersUnder("out2/src"), (std::vector<std::string>{"emptyd", "full"}));
    // A pattern that does not take a folder's name leaves it out of the add as well.
    ASSERT_EQ(add({"-ed+", "txt.uha", "src\\*.txt"}).exitCode, 0);
    EXPECT_EQ(storedNames("txt.uha"), std::vector<std::string>{"src\\full\\a.txt"});
}

TEST_F(StandinEmptyFolderTest, AReadOnlyFileIsListedReadOnlyAndExtractedSo) {
    ASSERT_TRUE(QFile::setPermissions(path("src/full/a.txt"),
                                      QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    ASSERT_EQ(add({"-ed+", "t.uha", "src\\*"}).exitCode, 0);
    EngineRun l = run6({"l", "-y+", "t.uha"}, dir.path());
    const auto lines = crlfLines(l.out);
    auto at = std::find(lines.begin(), lines.end(), "src\\full\\a.txt");
    ASSERT_NE(at, lines.end()) << l.out.toStdString();
    ASSERT_NE(at + 1, lines.end());
    EXPECT_NE((at + 1)->find(" R--A "), std::string::npos) << *(at + 1);
    ASSERT_EQ(run6({"x", "-y+", "-tout", "t.uha"}, dir.path()).exitCode, 0);
    // Mode 0444 (the "User" bits tell what this process may do, root writing anyway).
    const QFile::Permissions ownerGroupOther(0x7077);
    EXPECT_EQ(QFile::permissions(path("out/src/full/a.txt")) & ownerGroupOther,
              QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
}

} // namespace
