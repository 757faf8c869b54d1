// Tests of the stand-in engine: every command and switch, passwords, names in every
// script, damaged archives, and the temporary archive of an add.
#include "test_standin_support.h"

using namespace standin_test;

namespace {

TEST_F(StandinTest, RoundTripIsByteExactForEveryMethod) {
    makeSampleTree(dir.path());
    std::map<std::string, std::string> packedBy;
    for (const char* m : {"-m0", "-m1", "-m2", "-m3", "-mx", "-mz"}) {
        SCOPED_TRACE(m);
        const QString arc = QString("arc") + m + ".uha";
        EngineRun a = run6({"a", m, "-r+", "-y+", "-d2", arc, "folder\\*"}, dir.path());
        ASSERT_EQ(a.exitCode, 0) << a.out.toStdString();
        const QString out = QString("out") + m;
        EngineRun x = run6({"x", "-o+", "-t" + out, "-y+", arc}, dir.path());
        ASSERT_EQ(x.exitCode, 0) << x.out.toStdString();
        for (const auto& [name, size] : kSampleFiles) {
            QByteArray got = readFile(path(out + "/" + name));
            EXPECT_EQ(got.size(), size) << name.toStdString();
            EXPECT_EQ(got, contentFor(name, size)) << name.toStdString();
        }
        EngineRun l = run6({"l", "-y+", "-lglist.txt", arc}, dir.path());
        ASSERT_EQ(l.exitCode, 0);
        auto lines = crlfLines(readFile(path("list.txt")));
        QFile::remove(path("list.txt"));
        ASSERT_GE(lines.size(), 4u);
        packedBy[m] = lines[lines.size() - 3];
    }
    EXPECT_NE(packedBy["-m0"].find("110354 packed (ALZ:0-mode), ratio: 100.0%"), std::string::npos)
        << packedBy["-m0"];
    EXPECT_NE(packedBy["-m3"].find(" packed (ALZ:3-mode), ratio: "), std::string::npos);
    EXPECT_NE(packedBy["-mx"].find(" packed (PPM-mode), ratio: "), std::string::npos);
    EXPECT_NE(packedBy["-mz"].find(" packed (LZP-mode), ratio: "), std::string::npos);
    EXPECT_NE(packedBy["-m1"].substr(0, 40), packedBy["-m0"].substr(0, 40));
    EXPECT_NE(packedBy["-mz"].substr(0, 40), packedBy["-m3"].substr(0, 40));
}

TEST_F(StandinTest, AbsoluteSourcesDropTheRootFromStoredNames) {
    writeFile(path("Src/a.txt"), "a");
    writeFile(path("Src/sub/b.txt"), "bb");
    writeFile(path("Src/c.dat"), "ccc");
    EngineRun a = run6({"a", "-r+", "-y+", "t.uha", dir.path() + "/Src/*.txt"}, dir.path());
    ASSERT_EQ(a.exitCode, 0) << a.out.toStdString();
    run6({"l", "-lgl.txt", "t.uha"}, dir.path());
    std::string prefix = QString(dir.path()).mid(1).replace('/', '\\').toStdString() + "\\Src\\";
    auto names = listedNames(readFile(path("l.txt")));
    EXPECT_EQ(names, (std::vector<std::string>{prefix + "a.txt", prefix + "sub\\b.txt"}));
}

TEST_F(StandinTest, RecursionOnAndOff) {
    makeSampleTree(dir.path());
    ASSERT_EQ(run6({"a", "-r-", "-y+", "flat.uha", "folder/*.*"}, dir.path()).exitCode, 0);
    ASSERT_EQ(run6({"a", "-r+", "-y+", "deep.uha", "folder/*.*"}, dir.path()).exitCode, 0);
    run6({"l", "-lgflat.txt", "flat.uha"}, dir.path());
    run6({"l", "-lgdeep.txt", "deep.uha"}, dir.path());
    auto flat = listedNames(readFile(path("flat.txt")));
    auto deep = listedNames(readFile(path("deep.txt")));
    EXPECT_EQ(flat.size(), 5u);
    EXPECT_EQ(deep.size(), 8u);
    for (const auto& n : flat)
        EXPECT_EQ(n.find("sub"), std::string::npos) << n;
    EXPECT_NE(std::find(deep.begin(), deep.end(), "folder\\sub\\deeper\\deep.txt"), deep.end());
}

TEST_F(StandinTest, PasswordRightWrongAndMissing) {
    const QByteArray secret = textOfSize(5000);
    writeFile(path("src/secret.txt"), secret);
    ASSERT_EQ(run6({"a", "-m0", "-pwa b", "-y+", "p.uha", "src/secret.txt"}, dir.path()).exitCode,
              0);
    EXPECT_FALSE(readFile(path("p.uha")).contains(secret.left(200)));

    for (const char* cmd : {"l", "t", "x"}) {
        EngineRun none = run6({cmd, "-y+", "p.uha"}, dir.path());
        EXPECT_EQ(none.exitCode, 255);
        EXPECT_TRUE(hasLine(none.out, kPasswordMsg)) << none.out.toStdString();
        EXPECT_TRUE(hasLine(none.out, "Process aborted."));
        EngineRun wrong = run6({cmd, "-y+", "-pwwrong", "p.uha"}, dir.path());
        EXPECT_EQ(wrong.exitCode, 255);
        EXPECT_TRUE(hasLine(wrong.out, kCorruptMsg)) << wrong.out.toStdString();
    }
    EngineRun right = run6({"e", "-y+", "-pwa b", "-tout", "p.uha"}, dir.path());
    EXPECT_EQ(right.exitCode, 0) << right.out.toStdString();
    EXPECT_EQ(readFile(path("out/secret.txt")), secret);
    EXPECT_FALSE(QFile::exists(path("out/src/secret.txt")));
}

TEST_F(StandinTest, PasswordRequiredLogHasTheEngineLayout) {
    writeFile(path("f.txt"), "x");
    ASSERT_EQ(run6({"a", "-pwpw", "test_pw.uha", "f.txt"}, dir.path()).exitCode, 0);
    EngineRun l = run6({"l", "-d2", "-y+", "-lgLOG.txt", "test_pw.uha"}, dir.path());
    EXPECT_EQ(l.exitCode, 255);
    expectSameLayout(sampleFile("list-password-required.log"), readFile(path("LOG.txt")),
                     OutputKind::Log);
}

TEST_F(StandinTest, MissingArchiveLogHasTheEngineLayout) {
    EngineRun l = run6({"l", "-d2", "-y+", "-lgLOG.txt", "nosuch.uha"}, dir.path());
    EXPECT_EQ(l.exitCode, 255);
    EXPECT_TRUE(hasLine(l.out, "ERROR: Can't open archive file"));
    expectSameLayout(sampleFile("list-missing-archive.log"), readFile(path("LOG.txt")),
                     OutputKind::Log);
    for (const char* cmd : {"t", "e", "x"}) {
        EngineRun r = run6({cmd, "-y+", "nosuch.uha"}, dir.path());
        EXPECT_EQ(r.exitCode, 255);
        EXPECT_TRUE(hasLine(r.out, "ERROR: Can't open archive file"));
    }
}

TEST_F(StandinTest, LogIsAppendedAndNamesTheEnvironment) {
    std::map<QString, QString> env{{"UHARC_OPT", " -d2"}};
    run("0.6", {"l", "-lgLOG.txt", "nosuch.uha"}, dir.path(), env);
    run("0.6", {"l", "-lgLOG.txt", "nosuch.uha"}, dir.path(), env);
    QByteArray log = readFile(path("LOG.txt"));
    EXPECT_EQ(log.count("=== QUOVARA STAND-IN ENGINE 0.6 LOG "), 2);
    EXPECT_EQ(log.count("Environment: \" -d2\"\r\n"), 2);
    EXPECT_EQ(log.count("ERROR: Can't open archive file\r\nProcess aborted.\r\n" +
                        QByteArray(79, '=') + "\r\n\r\n"),
              2);
}

TEST_F(StandinTest, IncludeExcludeAndListFile) {
    makeSampleTree(dir.path());
    ASSERT_EQ(run6({"a", "-r+", "-y+", "s.uha", "folder\\*", "!*.bin"}, dir.path()).exitCode, 0);
    run6({"l", "-lgl.txt", "s.uha"}, dir.path());
    auto names = listedNames(readFile(path("l.txt")));
    EXPECT_EQ(names.size(), 6u);
    for (const auto& n : names)
        EXPECT_EQ(n.find(".bin"), std::string::npos) << n;

    ASSERT_EQ(run6({"a", "-r+", "-y+", "all.uha", "folder/*"}, dir.path()).exitCode, 0);
    EngineRun inc = run6({"x", "-y+", "-tinc", "all.uha", "*.TXT", "!deep*"}, dir.path());
    ASSERT_EQ(inc.exitCode, 0) << inc.out.toStdString();
    EXPECT_TRUE(QFile::exists(path("inc/folder/readme.txt")));
    EXPECT_TRUE(QFile::exists(path("inc/folder/sub/notes.txt")));
    EXPECT_FALSE(QFile::exists(path("inc/folder/sub/deeper/deep.txt")));
    EXPECT_FALSE(QFile::exists(path("inc/folder/random.bin")));

    writeFile(path("names.lst"), "folder\\random.bin\r\n\r\nfolder\\sub\\data.bin\r\n");
    EngineRun lst = run6({"x", "-y+", "-tlst", "all.uha", "@" + path("names.lst")}, dir.path());
    ASSERT_EQ(lst.exitCode, 0) << lst.out.toStdString();
    QStringList got = QDir(path("lst/folder")).entryList(QDir::Files);
    EXPECT_EQ(got, QStringList{"random.bin"});
    EXPECT_TRUE(QFile::exists(path("lst/folder/sub/data.bin")));
    EXPECT_TRUE(hasLine(lst.out, "Extracting 2 files (40000 bytes)"));

    writeFile(path("add.lst"), "folder/pattern.dat\n");
    ASSERT_EQ(run6({"a", "-y+", "one.uha", "@add.lst"}, dir.path()).exitCode, 0);
    run6({"l", "-lgone.txt", "one.uha"}, dir.path());
    EXPECT_EQ(listedNames(readFile(path("one.txt"))),
              std::vector<std::string>{"folder\\pattern.dat"});
}

TEST_F(StandinTest, MoveDeletesTheStoredSources) {
    makeSampleTree(dir.path());
    EngineRun m = run6({"m", "-r-", "-y+", "mv.uha", "folder/*.txt"}, dir.path());
    ASSERT_EQ(m.exitCode, 0) << m.out.toStdString();
    EXPECT_FALSE(QFile::exists(path("folder/readme.txt")));
    EXPECT_FALSE(QFile::exists(path("folder/read me with spaces.txt")));
    EXPECT_TRUE(QFile::exists(path("folder/random.bin")));
    EXPECT_TRUE(QFile::exists(path("folder/sub/notes.txt")));
    ASSERT_EQ(run6({"x", "-y+", "-tback", "mv.uha"}, dir.path()).exitCode, 0);
    EXPECT_EQ(readFile(path("back/folder/readme.txt")), textOfSize(13989));
}

TEST_F(StandinTest, AddingWithYesReplacesAnExistingArchiveWithoutAsking) {
    writeFile(path("d/a.txt"), "first");
    writeFile(path("d/b.txt"), "bee");
    ASSERT_EQ(run6({"a", "-y+", "k.uha", "d/a.txt", "d/b.txt"}, dir.path()).exitCode, 0);
    writeFile(path("d/a.txt"), "second version");
    writeFile(path("d/c.txt"), "sea");
    EngineRun a = run6({"a", "-y+", "-d2", "k.uha", "d/a.txt", "d/c.txt"}, dir.path());
    ASSERT_EQ(a.exitCode, 0) << a.out.toStdString();
    EXPECT_FALSE(a.out.contains("already exists"));
    EXPECT_TRUE(hasLine(a.out, "Creating archive \"k.uha\"."));
    run6({"l", "-lgk.txt", "k.uha"}, dir.path());
    EXPECT_EQ(listedNames(readFile(path("k.txt"))),
              (std::vector<std::string>{"d\\a.txt", "d\\c.txt"}));
    ASSERT_EQ(run6({"x", "-y+", "-tk", "k.uha"}, dir.path()).exitCode, 0);
    EXPECT_EQ(readFile(path("k/d/a.txt")), "second version");
    EXPECT_EQ(readFile(path("k/d/c.txt")), "sea");
    EXPECT_FALSE(QFile::exists(path("k/d/b.txt")));

    // -y+ from uharc_opt answers as well.
    EngineRun env = run("0.6", {"a", "k.uha", "d/b.txt"}, dir.path(), {{"UHARC_OPT", " -y+"}});
    ASSERT_EQ(env.exitCode, 0) << env.out.toStdString();
    EXPECT_FALSE(env.out.contains("already exists"));
    run6({"l", "-lgk2.txt", "k.uha"}, dir.path());
    EXPECT_EQ(listedNames(readFile(path("k2.txt"))), std::vector<std::string>{"d\\b.txt"});
}

TEST_F(StandinTest, ListingOfOneFileSaysOneFile) {
    // The capture's archive Z:\tmp\ucap\one.uha ("Z:" is a folder here) with src\one.txt.
    writeFile(path("Z:/tmp/ucap/src/one.txt"), "one!\r\n");
    const QString arc = "Z:\\tmp\\ucap\\one.uha";
    ASSERT_EQ(run6({"a", "-y+", arc, "Z:\\tmp\\ucap\\src\\one.txt"}, dir.path()).exitCode, 0);
    EngineRun l = run6({"l", "-d2", "-y+", "-lgZ:\\tmp\\ucap\\one.log", arc}, dir.path());
    ASSERT_EQ(l.exitCode, 0) << l.out.toStdString();
    const QByteArray log = readFile(path("Z:/tmp/ucap/one.log"));
    const QByteArray sample = sampleFile("list-one-file.log");
    expectSameLayout(sample, log, OutputKind::Log);
    auto mine = crlfLines(log), engine = crlfLines(sample);
    ASSERT_GE(mine.size(), 5u);
    ASSERT_EQ(mine.size(), engine.size());
    const std::string totals = "1 file" + std::string(33, ' ') + "6";
    EXPECT_EQ(engine[engine.size() - 4], totals);
    EXPECT_EQ(mine[mine.size() - 4], totals);
    EXPECT_TRUE(l.out.contains(QByteArray::fromStdString("\r\n" + totals + "\r\n")));
    EXPECT_EQ(listedNames(log), std::vector<std::string>{"tmp\\ucap\\src\\one.txt"});

    // Two files and none stay plural.
    writeFile(path("Z:/tmp/ucap/src/two.txt"), "two!");
    ASSERT_EQ(run6({"a", "-y+", arc, "Z:\\tmp\\ucap\\src\\*.txt"}, dir.path()).exitCode, 0);
    EngineRun two = run6({"l", "-y+", arc}, dir.path());
    EXPECT_TRUE(hasLine(two.out, "2 files" + std::string(31, ' ') + "10")) << two.out.toStdString();
    EngineRun none = run6({"l", "-y+", arc, "nothing.*"}, dir.path());
    EXPECT_TRUE(hasLine(none.out, "0 files" + std::string(32, ' ') + "0"))
        << none.out.toStdString();
}

// Names beyond ASCII, a blank and an apostrophe, in the order the listing gives them (by
// character code of the lower-case file name).
const std::vector<std::string> kIntlNames = {"a b.txt",    "it's.txt",   "Łódź.txt", "Αθήνα.txt",
                                             "Привет.txt", "日本語.txt", "📦.txt"};

QString fromUtf8(const std::string& s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

// Characters (code points) of a UTF-8 text.
std::size_t charsOf(const std::string& s) {
    return static_cast<std::size_t>(fromUtf8(s).toUcs4().size());
}

std::string padded(const std::string& s, std::size_t width) {
    std::size_t n = charsOf(s);
    return n >= width ? s : s + std::string(width - n, ' ');
}

std::string rightAt(const std::string& s, std::size_t width) {
    return s.size() >= width ? s : std::string(width - s.size(), ' ') + s;
}

std::set<std::string> filesIn(const QString& folder) {
    std::set<std::string> names;
    for (const QString& n : QDir(folder).entryList(QDir::Files))
        names.insert(n.toStdString());
    return names;
}

TEST_F(StandinTest, Utf8NamesAreStoredListedAndExtractedAsGiven) {
    std::set<std::string> all;
    std::uint64_t total = 0;
    for (const auto& n : kIntlNames) {
        writeFile(path("intl/" + fromUtf8(n)), QByteArray::fromStdString("text of " + n));
        all.insert(n);
        total += 8 + n.size();
    }
    ASSERT_EQ(filesIn(path("intl")), all);

    // Add the folder, stored (-m0) so that the result lines are known to the byte.
    EngineRun a = run6({"a", "-m0", "-y+", "-d2", "u.uha", "intl"}, dir.path());
    ASSERT_EQ(a.exitCode, 0) << a.out.toStdString();
    EXPECT_TRUE(hasLine(a.out, padded("Adding 7 files (" + std::to_string(total) + " bytes)", 49) +
                                   "       size     packed   ratio"));
    for (const auto& n : kIntlNames) {
        const std::string size = std::to_string(8 + n.size());
        EXPECT_TRUE(hasLine(a.out, padded("Adding intl\\" + n, 49) + rightAt(size, 11) +
                                       rightAt(size, 11) + "  100.0%"))
            << n;
    }
    // Every add line is 79 characters wide, "Total:" at the same column as for ASCII names.
    for (const auto& r : records(a.out)) {
        if (r.text.rfind("Adding intl\\", 0) != 0)
            continue;
        EXPECT_EQ(charsOf(r.text), 79u) << r.text;
        if (r.end == "\r") {
            EXPECT_EQ(fromUtf8(r.text).toUcs4().mid(39, 6), QString("Total:").toUcs4()) << r.text;
        }
    }

    // The listing log names every file once, in the listing order, with its detail line.
    ASSERT_EQ(run6({"l", "-d2", "-y+", "-lglist.log", "u.uha"}, dir.path()).exitCode, 0);
    const QByteArray log = readFile(path("list.log"));
    std::vector<std::string> expected;
    for (const auto& n : kIntlNames)
        expected.push_back("intl\\" + n);
    EXPECT_EQ(listedNames(log), expected);
    auto lines = crlfLines(log);
    for (std::size_t i = 0; i < kIntlNames.size(); ++i) {
        const std::string& detail = lines[9 + 2 * i + 1];
        EXPECT_EQ(detail.substr(0, 40), rightAt(std::to_string(8 + kIntlNames[i].size()), 40));
        EXPECT_EQ(detail.size(), 79u);
    }
    EXPECT_EQ(lines[lines.size() - 4], padded("7 files", 20) + rightAt(std::to_string(total), 20));

    // Selection by name: case-insensitive beyond ASCII, "?" is one character.
    QFile::remove(path("sel.log"));
    run6({"l", "-lgsel.log", "u.uha", "ПРИВЕТ.TXT", "łÓDŹ.txt", "?.txt"}, dir.path());
    EXPECT_EQ(listedNames(readFile(path("sel.log"))),
              (std::vector<std::string>{"intl\\Łódź.txt", "intl\\Привет.txt", "intl\\📦.txt"}));

    // Test: one result line per file, 79 characters.
    EngineRun t = run6({"t", "-d2", "-y+", "u.uha"}, dir.path());
    ASSERT_EQ(t.exitCode, 0) << t.out.toStdString();
    for (const auto& n : kIntlNames)
        EXPECT_TRUE(hasLine(t.out, padded("Testing intl\\" + n, 79))) << n;

    // Extract with paths, without paths, and one item.
    EngineRun x = run6({"x", "-d2", "-y+", "-tout", "u.uha"}, dir.path());
    ASSERT_EQ(x.exitCode, 0) << x.out.toStdString();
    EXPECT_EQ(filesIn(path("out/intl")), all);
    for (const auto& n : kIntlNames) {
        EXPECT_EQ(readFile(path("out/intl/" + fromUtf8(n))),
                  QByteArray::fromStdString("text of " + n));
        EXPECT_TRUE(hasLine(x.out, padded("Extracting out\\intl\\" + n, 79))) << n;
    }
    EngineRun e = run6({"e", "-y+", "-tflat", "u.uha"}, dir.path());
    ASSERT_EQ(e.exitCode, 0) << e.out.toStdString();
    EXPECT_EQ(filesIn(path("flat")), all);
    EXPECT_TRUE(QDir(path("flat")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
    EngineRun one = run6(
        {"e", "-o+", "-t" + path("single"), "-y+", path("u.uha"), "intl\\Αθήνα.txt"}, dir.path());
    ASSERT_EQ(one.exitCode, 0) << one.out.toStdString();
    EXPECT_EQ(filesIn(path("single")), std::set<std::string>{"Αθήνα.txt"});
    EXPECT_EQ(readFile(path("single/Αθήνα.txt")), QByteArray("text of Αθήνα.txt"));
}

TEST_F(StandinTest, Utf8NamesFromTheCommandLineAndListFilesAndShortenedByCharacters) {
    for (const auto& n : kIntlNames)
        writeFile(path("intl/" + fromUtf8(n)), QByteArray::fromStdString(n));
    // A list file saved with a byte order mark, and names on the command line.
    writeFile(path("names.lst"), "\xEF\xBB\xBFintl/Łódź.txt\r\nintl\\📦.txt\r\n");
    EngineRun a =
        run6({"a", "-y+", "n.uha", "@names.lst", "intl/it's.txt", "intl\\日本語.txt"}, dir.path());
    ASSERT_EQ(a.exitCode, 0) << a.out.toStdString();
    run6({"l", "-lgn.log", "n.uha"}, dir.path());
    EXPECT_EQ(listedNames(readFile(path("n.log"))),
              (std::vector<std::string>{"intl\\it's.txt", "intl\\Łódź.txt", "intl\\日本語.txt",
                                        "intl\\📦.txt"}));
    writeFile(path("x.lst"), "intl\\a b.txt\nintl\\日本語.txt\n");
    ASSERT_EQ(run6({"x", "-y+", "-tout", "n.uha", "@x.lst"}, dir.path()).exitCode, 0);
    EXPECT_EQ(filesIn(path("out/intl")), std::set<std::string>{"日本語.txt"});

    // A name longer than its field keeps its last characters behind "...", whole characters.
    const std::string folder = "Очень длинная папка";
    writeFile(path(fromUtf8(folder + "/Привет.txt")), "hello");
    EngineRun l =
        run6({"a", "-y+", "-d2", "long.uha", fromUtf8(folder + "/Привет.txt")}, dir.path());
    ASSERT_EQ(l.exitCode, 0) << l.out.toStdString();
    const QString shown = fromUtf8(folder + "\\Привет.txt");
    const std::string tail22 = "..." + shown.right(19).toStdString();
    EXPECT_TRUE(
        hasLine(l.out, padded("Adding " + tail22, 39) + "Total:  0%          0          0    0.0%"))
        << l.out.toStdString();
    EXPECT_TRUE(hasLine(l.out, padded("Adding " + shown.toStdString(), 49) +
                                   "          5          6  120.0%"))
        << l.out.toStdString();
}

TEST_F(StandinTest, OverwriteOffKeepsAndOnReplaces) {
    writeFile(path("d/a.txt"), "archived");
    ASSERT_EQ(run6({"a", "-y+", "o.uha", "d/a.txt"}, dir.path()).exitCode, 0);
    writeFile(path("out/d/a.txt"), "local");
    EngineRun keep = run6({"x", "-o-", "-y+", "-d2", "-tout", "o.uha"}, dir.path());
    EXPECT_EQ(keep.exitCode, 0);
    EXPECT_EQ(readFile(path("out/d/a.txt")), "local");
    EngineRun over = run6({"x", "-o+", "-y+", "-tout", "o.uha"}, dir.path());
    EXPECT_EQ(over.exitCode, 0);
    EXPECT_EQ(readFile(path("out/d/a.txt")), "archived");
}

TEST_F(StandinTest, FlatExtractDropsPathsAndNamedEntrySelectsOne) {
    makeSampleTree(dir.path());
    ASSERT_EQ(run6({"a", "-r+", "-y+", "f.uha", "folder\\*"}, dir.path()).exitCode, 0);
    EngineRun e = run6({"e", "-y+", "-tflat", "f.uha"}, dir.path());
    ASSERT_EQ(e.exitCode, 0);
    EXPECT_EQ(QDir(path("flat")).entryList(QDir::Files).size(), 8);
    EXPECT_EQ(readFile(path("flat/deep.txt")), textOfSize(341));
    EXPECT_TRUE(QDir(path("flat")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());

    // The single-item job: e -o+ -t"<dir>" -y+ "<archive>" "<stored name>"
    EngineRun one =
        run6({"e", "-o+", "-t" + path("single"), "-y+", path("f.uha"), "folder\\sub\\notes.txt"},
             dir.path());
    ASSERT_EQ(one.exitCode, 0) << one.out.toStdString();
    EXPECT_EQ(QDir(path("single")).entryList(QDir::Files), QStringList{"notes.txt"});
    EXPECT_EQ(readFile(path("single/notes.txt")), textOfSize(3433));

    EngineRun folder = run6({"x", "-y+", "-tsel", "f.uha", "folder\\sub\\*.*"}, dir.path());
    ASSERT_EQ(folder.exitCode, 0);
    EXPECT_TRUE(QFile::exists(path("sel/folder/sub/deeper/deep.txt")));
    EXPECT_FALSE(QFile::exists(path("sel/folder/readme.txt")));
}

TEST_F(StandinTest, EachVersionAsksForTheOtherOrRefuses) {
    writeFile(path("f.txt"), "x");
    ASSERT_EQ(run("0.4", {"a", "-y+", "old.uha", "f.txt"}, dir.path()).exitCode, 0);
    ASSERT_EQ(run6({"a", "-y+", "new.uha", "f.txt"}, dir.path()).exitCode, 0);

    for (const char* cmd : {"l", "t", "x"}) {
        EngineRun r = run6({cmd, "-y+", "-lgv.txt", "old.uha"}, dir.path());
        EXPECT_EQ(r.exitCode, 255);
        const std::string line =
            "ERROR: Archive was created by another version --> use UHARC version 0.4";
        EXPECT_TRUE(hasLine(r.out, line)) << r.out.toStdString();
        // Within the first twelve lines, where the progress reader looks for it.
        auto lines = crlfLines(r.out);
        auto at = std::find(lines.begin(), lines.end(), line) - lines.begin();
        EXPECT_LT(at, 12);
        QString msg = QString::fromStdString(line.substr(6));
        EXPECT_TRUE(QRegularExpression(
                        QRegularExpression::wildcardToRegularExpression("*--> use UHARC version*"))
                        .match(msg)
                        .hasMatch());
        EXPECT_EQ(msg.trimmed().right(3), "0.4");

        EngineRun r4 = run("0.4", {cmd, "-y+", "new.uha"}, dir.path());
        EXPECT_EQ(r4.exitCode, 255);
        EXPECT_TRUE(hasLine(r4.out, "ERROR: No UHARC 0.4 archive")) << r4.out.toStdString();
    }
    EXPECT_TRUE(readFile(path("v.txt")).contains("--> use UHARC version 0.4\r\nProcess aborted."));
    EngineRun ok4 = run("0.4", {"t", "-y+", "old.uha"}, dir.path());
    EXPECT_EQ(ok4.exitCode, 0) << ok4.out.toStdString();
}

TEST_F(StandinTest, GarbageTruncatedAndUnwritableArchives) {
    writeFile(path("garbage.uha"), "this is no archive at all");
    EngineRun g = run6({"l", "garbage.uha"}, dir.path());
    EXPECT_EQ(g.exitCode, 255);
    EXPECT_TRUE(hasLine(g.out, "ERROR: No UHARC 0.6 archive"));

    writeFile(path("empty.uha"), "");
    EXPECT_TRUE(hasLine(run6({"t", "empty.uha"}, dir.path()).out, kCorruptMsg));

    writeFile(path("f.txt"), textOfSize(4000));
    ASSERT_EQ(run6({"a", "-m0", "good.uha", "f.txt"}, dir.path()).exitCode, 0);
    QByteArray good = readFile(path("good.uha"));
    writeFile(path("cut.uha"), good.left(good.size() - 100));
    EngineRun c = run6({"t", "cut.uha"}, dir.path());
    EXPECT_EQ(c.exitCode, 255);
    EXPECT_TRUE(hasLine(c.out, kCorruptMsg));
    EXPECT_FALSE(readFile(path("good.uha")).startsWith("UHA"));

    EngineRun w = run6({"a", "-y+", path("no/such/folder/x.uha"), "f.txt"}, dir.path());
    EXPECT_EQ(w.exitCode, 255);
    EXPECT_TRUE(hasLine(w.out, "ERROR: Can't create archive file")) << w.out.toStdString();
}

TEST_F(StandinTest, InvalidSwitchAndCommand) {
    EngineRun s = run6({"l", "-q", "x.uha"}, dir.path());
    EXPECT_EQ(s.exitCode, 255);
    EXPECT_TRUE(hasLine(s.out, "ERROR: Invalid switch \"-q\""));
    EXPECT_TRUE(hasLine(s.out, "Process aborted."));
    EngineRun c = run6({"z", "x.uha"}, dir.path());
    EXPECT_EQ(c.exitCode, 255);
    EXPECT_TRUE(hasLine(c.out, "ERROR: Invalid command \"z\""));
    EngineRun d = run6({"a", "-md1000", "x.uha", "f"}, dir.path());
    EXPECT_TRUE(hasLine(d.out, "ERROR: Invalid dictionary size"));
    EngineRun env = run("0.6", {"l", "x.uha"}, dir.path(), {{"Uharc_Opt", " -d2 -zz"}});
    EXPECT_TRUE(hasLine(env.out, "ERROR: Invalid switch \"-zz\""));
}

TEST_F(StandinTest, DisplayModeComesFromUharcOpt) {
    makeSampleTree(dir.path());
    ASSERT_EQ(run6({"a", "-r+", "-y+", "d.uha", "folder\\*"}, dir.path()).exitCode, 0);
    EngineRun quiet = run6({"t", "-y+", "d.uha"}, dir.path());
    EXPECT_EQ(quiet.out.count("Total:"), 0);
    EngineRun opt = run("0.6", {"t", "-y+", "d.uha"}, dir.path(), {{"uharc_opt", " -d2"}});
    EXPECT_EQ(opt.out.count("Total:"), 8);
    EXPECT_EQ(records(opt.out).size(),
              records(run6({"t", "-y+", "-d2", "d.uha"}, dir.path()).out).size());
}

TEST_F(StandinTest, DamagedDataGivesCrcFailureInTestAndExtract) {
    writeFile(path("d/one.txt"), textOfSize(3000));
    writeFile(path("d/two.txt"), noiseOfSize(3000, 3));
    writeFile(path("d/three.txt"), textOfSize(100));
    ASSERT_EQ(run6({"a", "-m2", "-y+", "c.uha", "d/*"}, dir.path()).exitCode, 0);
    QByteArray arc = readFile(path("c.uha"));
    auto entries = rawEntries(arc);
    ASSERT_EQ(entries.size(), 3u);
    ASSERT_EQ(entries[1].name, "d\\three.txt");
    ASSERT_EQ(entries[0].name, "d\\one.txt");
    const auto& e = entries[0];
    for (int k = 0; k < 4; ++k)
        arc[e.dataPos + e.dataLen / 2 + k] =
            static_cast<char>(arc[e.dataPos + e.dataLen / 2 + k] ^ 0x5A);
    writeFile(path("c.uha"), arc);

    for (const char* cmd : {"t", "x"}) {
        EngineRun r = run6({cmd, "-y+", "-d2", "-tout", "c.uha"}, dir.path());
        EXPECT_EQ(r.exitCode, 255);
        EXPECT_TRUE(hasLine(r.out, "ERROR: CRC-failure (file \"d\\one.txt\")"))
            << r.out.toStdString();
        EXPECT_TRUE(r.out.endsWith("\r\n\r" + QByteArray(79, ' ') +
                                   "\rERROR: CRC-failure (file \"d\\one.txt\")\r\nProcess "
                                   "aborted.\r\n"));
    }
    EngineRun l = run6({"l", "c.uha"}, dir.path());
    EXPECT_EQ(l.exitCode, 0);
}

// As the real engine does: an entry is written where its stored name points, ".." included,
// and the job reports success. A drive stored in a name is dropped under a target, and a name
// that starts with a separator cannot be written there. Keeping such names from the engine is
// the program's work.
TEST_F(StandinTest, NamesAreFollowedWhereTheyPointAsTheEngineFollowsThem) {
    QByteArray arc = handMadeArchive({{"..\\..\\evil.txt", "e"},
                                      {"C:\\abs\\x.txt", "x"},
                                      {"a\\..\\..\\b\\up.txt", "u"},
                                      {"../slash.txt", "s"}});
    writeFile(path("work/h.uha"), arc);
    EngineRun x = run6({"x", "-y+", "-ttarget", "h.uha"}, path("work"));
    ASSERT_EQ(x.exitCode, 0) << x.out.toStdString();
    EXPECT_TRUE(x.out.contains("All files OK")) << x.out.toStdString();
    EXPECT_EQ(readFile(path("evil.txt")), "e");
    EXPECT_EQ(readFile(path("work/target/abs/x.txt")), "x");
    EXPECT_EQ(readFile(path("work/b/up.txt")), "u");
    EXPECT_EQ(readFile(path("work/slash.txt")), "s");
    // The flat command keeps the last part only.
    QDir().mkpath(path("work/in"));
    EngineRun e2 = run6({"e", "-y+", "../h.uha"}, path("work/in"));
    ASSERT_EQ(e2.exitCode, 0) << e2.out.toStdString();
    EXPECT_EQ(readFile(path("work/in/evil.txt")), "e");
    // A name that starts with a separator cannot be written under a target.
    writeFile(path("work/r.uha"), handMadeArchive({{"\\root.txt", "r"}}));
    EngineRun r = run6({"x", "-y+", "-ttarget", "r.uha"}, path("work"));
    EXPECT_EQ(r.exitCode, 255);
    EXPECT_TRUE(r.out.contains("ERROR: Can't write file")) << r.out.toStdString();
}

// Under the launcher, a target that is a drive's root ("Q:\") is followed as Windows follows
// it: the drive is the folder its link in the prefix names, and ".." stops at its root.
TEST_F(StandinTest, UnderTheLauncherDotDotStopsAtTheRootOfTheTargetsDrive) {
    writeFile(path("work/h.uha"), handMadeArchive({{"..\\..\\evil.txt", "e"},
                                                   {"a\\..\\..\\..\\b\\up.txt", "u"},
                                                   {"C:\\abs\\x.txt", "x"}}));
    QDir().mkpath(path("prefix/dosdevices"));
    QDir().mkpath(path("work/dest"));
    ASSERT_TRUE(QFile::link(path("work/dest"), path("prefix/dosdevices/q:")));
    QProcess p;
    QProcessEnvironment env = cleanEnvironment();
    env.insert("WINEPREFIX", path("prefix"));
    p.setProcessEnvironment(env);
    p.setWorkingDirectory(path("work"));
    p.start(STANDIN_ENGINE_06, {"x", "-y+", "-tQ:\\", "h.uha"});
    ASSERT_TRUE(p.waitForFinished(30000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString();
    EXPECT_EQ(readFile(path("work/dest/evil.txt")), "e");
    EXPECT_EQ(readFile(path("work/dest/b/up.txt")), "u");
    EXPECT_EQ(readFile(path("work/dest/abs/x.txt")), "x");
    EXPECT_FALSE(QFile::exists(path("evil.txt")));
    EXPECT_EQ(QDir(path("work")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList({"dest", "h.uha"}));
}

TEST_F(StandinTest, UnderTheLauncherOnlyABackslashSeparatesTheStoredParts) {
    // Measured with the real engine run from the folder that holds "Документы":
    // "Документы\*.*" stores "Документы\sub\b.txt", "Документы/*.*" stores
    // "Документы/sub\b.txt", and "Z:/tmp/one.txt" stores "/tmp/one.txt".
    writeFile(path(QString::fromUtf8("work/Документы/a.txt")), "a");
    writeFile(path(QString::fromUtf8("work/Документы/sub/b.txt")), "b");
    QDir().mkpath(path("prefix"));
    auto add = [this](const QString& archive, const QString& source) {
        QProcess p;
        QProcessEnvironment env = cleanEnvironment();
        env.insert("WINEPREFIX", path("prefix"));
        p.setProcessEnvironment(env);
        p.setWorkingDirectory(path("work"));
        p.start(STANDIN_ENGINE_06, {"a", "-r+", "-y+", archive, source});
        EXPECT_TRUE(p.waitForFinished(30000));
        EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString();
        // The engine appends to a log: one log per archive.
        run6({"l", "-lg" + archive + ".txt", "work/" + archive}, dir.path());
        return listedNames(readFile(path(archive + ".txt")));
    };
    EXPECT_EQ(add("back.uha", QString::fromUtf8("Документы\\*.*")),
              (std::vector<std::string>{"Документы\\a.txt", "Документы\\sub\\b.txt"}));
    EXPECT_EQ(add("slash.uha", QString::fromUtf8("Документы/*.*")),
              (std::vector<std::string>{"Документы/a.txt", "Документы/sub\\b.txt"}));
}

TEST_F(StandinTest, TemporaryArchiveExistsWhileAddingAndIsRenamedAtTheEnd) {
    for (int i = 0; i < 4; ++i)
        writeFile(path(QString("src/f%1.txt").arg(i)), textOfSize(1000 + i));
    QProcess p;
    QProcessEnvironment env = cleanEnvironment();
    env.insert("QUOVARA_STANDIN_DELAY_MS", "300");
    p.setProcessEnvironment(env);
    p.setWorkingDirectory(dir.path());
    QDir().mkpath(path("arc"));
    p.start(engine("0.6"), {"a", "-y+", "-d2", "arc/t.uha", "src/*"});
    ASSERT_TRUE(p.waitForStarted(10000));
    QByteArray seen;
    while (seen.count("Total:") < 2 && p.waitForReadyRead(10000))
        seen += p.readAllStandardOutput();
    ASSERT_GE(seen.count("Total:"), 2) << seen.toStdString();
    EXPECT_TRUE(QFile::exists(path("arc/UHA$0000.$$$")));
    EXPECT_FALSE(QFile::exists(path("arc/t.uha")));
    ASSERT_TRUE(p.waitForFinished(60000));
    EXPECT_EQ(p.exitCode(), 0);
    EXPECT_FALSE(QFile::exists(path("arc/UHA$0000.$$$")));
    EXPECT_TRUE(QFile::exists(path("arc/t.uha")));
}

TEST_F(StandinTest, KilledAddLeavesTheTemporaryArchiveOnly) {
    for (int i = 0; i < 4; ++i)
        writeFile(path(QString("src/f%1.txt").arg(i)), textOfSize(1000));
    QProcess p;
    QProcessEnvironment env = cleanEnvironment();
    env.insert("QUOVARA_STANDIN_DELAY_MS", "500");
    p.setProcessEnvironment(env);
    p.setWorkingDirectory(dir.path());
    p.start(engine("0.6"), {"a", "-y+", "-d2", "k.uha", "src/*"});
    ASSERT_TRUE(p.waitForStarted(10000));
    QByteArray seen;
    while (!seen.contains("Total:") && p.waitForReadyRead(10000))
        seen += p.readAllStandardOutput();
    p.kill();
    p.waitForFinished(10000);
    EXPECT_TRUE(QFile::exists(path("UHA$0000.$$$")));
    EXPECT_FALSE(QFile::exists(path("k.uha")));
}

TEST_F(StandinTest, PerFileDelayIsMeasurable) {
    for (int i = 0; i < 3; ++i)
        writeFile(path(QString("src/f%1.txt").arg(i)), "x");
    std::map<QString, QString> slow{{"QUOVARA_STANDIN_DELAY_MS", "250"}};
    EngineRun fast = run("0.6", {"a", "-y+", "fast.uha", "src/*"}, dir.path());
    EngineRun add = run("0.6", {"a", "-y+", "slow.uha", "src/*"}, dir.path(), slow);
    EngineRun test = run("0.6", {"t", "-y+", "slow.uha"}, dir.path(), slow);
    EngineRun ext = run("0.6", {"x", "-y+", "-tout", "slow.uha"}, dir.path(), slow);
    ASSERT_EQ(add.exitCode, 0);
    EXPECT_LT(fast.ms, add.ms);
    EXPECT_GE(add.ms, 750);
    EXPECT_GE(test.ms, 750);
    EXPECT_GE(ext.ms, 750);
}

} // namespace
