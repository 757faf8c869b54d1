// Tests of the stand-in engine: behaviour of every command and switch, and its console and
// log layouts against output captured from the real engine (tests/data/engine-samples).
#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

namespace {

const std::string kPasswordMsg =
    "ERROR: Archive requires a password to access --> use switch -pw[password]";
const std::string kCorruptMsg =
    "ERROR: Can't read from archive file / Unexpected end of file (maybe corrupt)";

QString engine(const QString& version) {
    return QCoreApplication::applicationDirPath() + "/uharc-standin-" + version;
}

struct EngineRun {
    int exitCode = -1; // -2: ended by a signal
    int signal = 0;    // the signal that ended it
    QByteArray out;
    QByteArray err;
    qint64 ms = 0;
};

QProcessEnvironment cleanEnvironment() {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& key : env.keys())
        if (key.compare("uharc_opt", Qt::CaseInsensitive) == 0 ||
            key.startsWith("QUOVARA_STANDIN_"))
            env.remove(key);
    return env;
}

// Runs the engine to its end. Standard input holds `input` and then ends, so a console
// question gets that answer (or the end of the input).
EngineRun run(const QString& version, const QStringList& args, const QString& workDir,
              const std::map<QString, QString>& extraEnv = {}, const QByteArray& input = {}) {
    QProcess p;
    QProcessEnvironment env = cleanEnvironment();
    for (const auto& [k, v] : extraEnv)
        env.insert(k, v);
    p.setProcessEnvironment(env);
    p.setWorkingDirectory(workDir);
    p.setProcessChannelMode(QProcess::SeparateChannels);
    QElapsedTimer timer;
    timer.start();
    p.start(engine(version), args);
    EngineRun r;
    if (!p.waitForStarted(10000))
        return r;
    p.write(input);
    p.closeWriteChannel();
    if (!p.waitForFinished(60000))
        return r;
    r.ms = timer.elapsed();
    r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2;
    if (p.exitStatus() == QProcess::CrashExit)
        r.signal = p.exitCode();
    r.out = p.readAllStandardOutput();
    r.err = p.readAllStandardError();
    return r;
}

EngineRun run6(const QStringList& args, const QString& dir) {
    return run("0.6", args, dir);
}

void writeFile(const QString& path, const QByteArray& data) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(data);
}

QByteArray readFile(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

QByteArray sampleFile(const QString& name) {
    return readFile(QString(STANDIN_SAMPLES_DIR "/") + name);
}

QByteArray textOfSize(int n) {
    const QByteArray line = "The stand-in engine keeps this text in its own container.\r\n";
    QByteArray s;
    while (s.size() < n)
        s += line;
    return s.left(n);
}

QByteArray noiseOfSize(int n, std::uint32_t seed) {
    QByteArray s(n, '\0');
    for (int i = 0; i < n; ++i) {
        seed = seed * 1664525u + 1013904223u;
        s[i] = static_cast<char>(seed >> 24);
    }
    return s;
}

// The eight files of the captured samples, same names and sizes.
const std::vector<std::pair<QString, int>> kSampleFiles = {
    {"folder/empty.txt", 0},
    {"folder/readme.txt", 13989},
    {"folder/sub/notes.txt", 3433},
    {"folder/read me with spaces.txt", 1391},
    {"folder/sub/deeper/deep.txt", 341},
    {"folder/random.bin", 30000},
    {"folder/sub/data.bin", 10000},
    {"folder/pattern.dat", 51200},
};

QByteArray contentFor(const QString& name, int size) {
    if (name.endsWith("random.bin"))
        return noiseOfSize(size, 7);
    if (name.endsWith("pattern.dat"))
        return QByteArray("PATTERN-").repeated(size / 8).left(size);
    if (name.endsWith("data.bin")) {
        QByteArray s(size, '\0');
        for (int i = 0; i < size; ++i)
            s[i] = static_cast<char>((i * 7) % 251);
        return s;
    }
    return textOfSize(size);
}

void makeSampleTree(const QString& dir) {
    for (const auto& [name, size] : kSampleFiles)
        writeFile(dir + "/" + name, contentFor(name, size));
}

// Lines of engine output: text and what ended it ("\r\n", "\r" or nothing at the end).
struct Record {
    std::string text;
    std::string end;
};

std::vector<Record> records(const QByteArray& data) {
    std::vector<Record> out;
    std::string cur;
    for (int i = 0; i < data.size(); ++i) {
        char c = data[i];
        if (c == '\r') {
            bool crlf = i + 1 < data.size() && data[i + 1] == '\n';
            out.push_back({cur, crlf ? "\r\n" : "\r"});
            cur.clear();
            if (crlf)
                ++i;
        } else {
            cur.push_back(c);
        }
    }
    if (!cur.empty())
        out.push_back({cur, ""});
    return out;
}

std::vector<std::string> crlfLines(const QByteArray& data) {
    std::vector<std::string> lines;
    for (const auto& r : records(data))
        lines.push_back(r.text);
    return lines;
}

bool hasLine(const QByteArray& data, const std::string& line) {
    auto lines = crlfLines(data);
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

// Stored names of the eight files, as the engine prints them, with the short forms that
// the add progress line uses for names longer than 22 characters.
std::vector<std::string> knownNames() {
    std::vector<std::string> names;
    for (const auto& f : kSampleFiles) {
        std::string n = QString(f.first).replace('/', '\\').toStdString();
        names.push_back(n);
        if (n.size() > 22)
            names.push_back("..." + n.substr(n.size() - 19));
    }
    std::sort(names.begin(), names.end(),
              [](const std::string& a, const std::string& b) { return a.size() > b.size(); });
    return names;
}

// File names are replaced by runs of 'N' of the same length, so lines about different
// files can be compared by their layout.
std::string maskNames(std::string s, bool& masked) {
    for (const auto& n : knownNames()) {
        for (auto pos = s.find(n); pos != std::string::npos; pos = s.find(n, pos)) {
            s.replace(pos, n.size(), std::string(n.size(), 'N'));
            masked = true;
        }
    }
    return s;
}

struct Token {
    std::size_t start, end;
    std::string text;
};

std::vector<Token> tokens(const std::string& s) {
    std::vector<Token> out;
    std::size_t i = 0;
    while (i < s.size()) {
        if (s[i] == ' ') {
            ++i;
            continue;
        }
        std::size_t j = i;
        while (j < s.size() && s[j] != ' ')
            ++j;
        out.push_back({i, j, s.substr(i, j - i)});
        i = j;
    }
    return out;
}

bool hasDigit(const std::string& s) {
    return std::any_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// A word that holds a masked file name (with whatever stands around it, such as a quote or
// a target folder).
bool isNameRun(const std::string& s) {
    return s.find("NNNNN") != std::string::npos;
}

std::string collapseNames(const std::string& s) {
    static const QRegularExpression run("N{5,}");
    return QString::fromLatin1(s.c_str()).replace(run, "N").toStdString();
}

enum class LineKind { Layout, LengthOnly, CommandLine, LogTitle };

// Compares one line of the stand-in with the engine's: words at the same columns, numbers
// ending at the same column (values may differ), other words equal.
void expectSameLayout(const std::string& sample, const std::string& mine, LineKind kind,
                      const std::string& where) {
    SCOPED_TRACE(where + "\n  engine:   [" + sample + "]\n  stand-in: [" + mine + "]");
    if (kind == LineKind::LengthOnly) {
        EXPECT_EQ(sample.size(), mine.size());
        return;
    }
    if (kind == LineKind::CommandLine) {
        EXPECT_EQ(mine.rfind("Commandline: \"", 0), 0u);
        EXPECT_EQ(mine.back(), '"');
        return;
    }
    if (kind == LineKind::LogTitle) {
        ASSERT_EQ(sample.size(), mine.size());
        static const QRegularExpression tail(
            "^=== .* =+ \\d\\d-[A-Z][a-z][a-z]-\\d\\d\\d\\d  \\d\\d:\\d\\d:\\d\\d ===$");
        EXPECT_TRUE(tail.match(QString::fromLatin1(mine.c_str())).hasMatch());
        EXPECT_EQ(sample.substr(sample.size() - 26, 1), mine.substr(mine.size() - 26, 1));
        return;
    }
    bool maskedSample = false, maskedMine = false;
    std::string s = maskNames(sample, maskedSample);
    std::string m = maskNames(mine, maskedMine);
    EXPECT_EQ(maskedSample, maskedMine);
    if (!maskedSample) {
        EXPECT_EQ(sample.size(), mine.size());
    }
    auto ts = tokens(s), tm = tokens(m);
    ASSERT_EQ(ts.size(), tm.size());
    for (std::size_t i = 0; i < ts.size(); ++i) {
        if (isNameRun(ts[i].text) || isNameRun(tm[i].text)) {
            EXPECT_EQ(collapseNames(ts[i].text), collapseNames(tm[i].text)) << "word " << i;
            EXPECT_EQ(ts[i].start, tm[i].start) << "word " << i;
        } else if (hasDigit(ts[i].text)) {
            EXPECT_TRUE(hasDigit(tm[i].text)) << "word " << i;
            EXPECT_EQ(ts[i].end, tm[i].end) << "number " << i << " " << ts[i].text;
        } else {
            EXPECT_EQ(ts[i].text, tm[i].text) << "word " << i;
            EXPECT_EQ(ts[i].start, tm[i].start) << "word " << i;
        }
    }
}

enum class OutputKind { Console, Log };

void expectSameLayout(const QByteArray& sample, const QByteArray& mine, OutputKind kind) {
    auto rs = records(sample), rm = records(mine);
    ASSERT_EQ(rs.size(), rm.size()) << "stand-in output:\n" << mine.toStdString();
    for (std::size_t i = 0; i < rs.size(); ++i) {
        const std::string where = "record " + std::to_string(i);
        EXPECT_EQ(rs[i].end, rm[i].end) << where;
        LineKind lk = LineKind::Layout;
        if (kind == OutputKind::Console && i >= 1 && i <= 3)
            lk = LineKind::LengthOnly; // banner
        if (kind == OutputKind::Log && rs[i].text.rfind("===", 0) == 0 && i == 1)
            lk = LineKind::LogTitle;
        if (kind == OutputKind::Log && rs[i].text.rfind("Commandline: ", 0) == 0)
            lk = LineKind::CommandLine;
        expectSameLayout(rs[i].text, rm[i].text, lk, where);
    }
}

int countOf(const QByteArray& data, const std::string& s) {
    return data.count(QByteArray::fromStdString(s));
}

// Every file is named as often in the stand-in's output as in the engine's.
void expectSameNames(const QByteArray& sample, const QByteArray& mine) {
    for (const auto& n : knownNames())
        EXPECT_EQ(countOf(sample, n), countOf(mine, n)) << n;
}

// Entries of a stand-in archive file: offsets of their packed data.
struct RawEntry {
    std::string name;
    qsizetype dataPos;
    qsizetype dataLen;
};

std::uint64_t le(const QByteArray& d, qsizetype pos, int bytes) {
    std::uint64_t v = 0;
    for (int i = 0; i < bytes; ++i)
        v |= static_cast<std::uint64_t>(static_cast<unsigned char>(d[pos + i])) << (8 * i);
    return v;
}

std::vector<RawEntry> rawEntries(const QByteArray& d) {
    std::vector<RawEntry> out;
    qsizetype pos = 10 + 3 + 1 + 4 + 8 + 1;
    auto count = le(d, pos, 4);
    pos += 4;
    for (std::uint64_t i = 0; i < count; ++i) {
        auto nameLen = static_cast<qsizetype>(le(d, pos, 2));
        std::string name = d.mid(pos + 2, nameLen).toStdString();
        pos += 2 + nameLen + 8 + 8 + 1 + 4 + 1;
        auto len = static_cast<qsizetype>(le(d, pos, 8));
        pos += 8;
        out.push_back({name, pos, len});
        pos += len;
    }
    return out;
}

std::uint32_t crc32Of(const QByteArray& d) {
    std::uint32_t crc = 0xFFFFFFFFu;
    for (char ch : d) {
        crc ^= static_cast<unsigned char>(ch);
        for (int k = 0; k < 8; ++k)
            crc = (crc & 1) ? (0xEDB88320u ^ (crc >> 1)) : (crc >> 1);
    }
    return ~crc;
}

void putLe(QByteArray& d, std::uint64_t v, int bytes) {
    for (int i = 0; i < bytes; ++i)
        d.append(static_cast<char>((v >> (8 * i)) & 0xFF));
}

// A stored (-m0) stand-in archive with the given names, written by hand.
QByteArray handMadeArchive(const std::vector<std::pair<std::string, QByteArray>>& entries) {
    QByteArray d("QVSTANDIN\x1a", 10);
    d += "0.6";
    putLe(d, 0, 1);
    putLe(d, 0, 4);
    putLe(d, 1700000000, 8);
    putLe(d, '0', 1);
    putLe(d, entries.size(), 4);
    for (const auto& [name, data] : entries) {
        putLe(d, name.size(), 2);
        d += QByteArray::fromStdString(name);
        putLe(d, data.size(), 8);
        putLe(d, 1700000000, 8);
        putLe(d, 0x20, 1);
        putLe(d, crc32Of(data), 4);
        putLe(d, '0', 1);
        putLe(d, data.size(), 8);
        d += data;
    }
    return d;
}

std::vector<std::string> listedNames(const QByteArray& log) {
    // Entry lines follow the 79-dash separator, each followed by its detail line.
    std::vector<std::string> names;
    auto lines = crlfLines(log);
    const std::string dashes(79, '-');
    auto it = std::find(lines.begin(), lines.end(), dashes);
    if (it == lines.end())
        return names;
    for (++it; it != lines.end() && *it != dashes; it += 2)
        names.push_back(*it);
    return names;
}

class StandinTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dir.isValid()); }
    QString path(const QString& rel) const { return dir.path() + "/" + rel; }
    QTemporaryDir dir;
};

// ---------------------------------------------------------------------------------------

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

// The console output after the banner (the blank line, three banner lines): the part that
// the stand-in writes as the engine does.
QByteArray afterBanner(const QByteArray& out) {
    qsizetype pos = 0;
    for (int i = 0; i < 4 && pos >= 0; ++i) {
        pos = out.indexOf("\r\n", pos);
        if (pos >= 0)
            pos += 2;
    }
    return pos < 0 ? QByteArray() : out.mid(pos);
}

// The capture's layout: the archive Z:\tmp\ucap\one.uha (a folder named "Z:" in the
// working folder here) holds src\one.txt; the add names src\two.txt (4 bytes).
class StandinQuestionTest : public StandinTest {
protected:
    void SetUp() override {
        StandinTest::SetUp();
        writeFile(path("Z:/tmp/ucap/src/one.txt"), "one!\r\n");
        writeFile(path("Z:/tmp/ucap/src/two.txt"), "two!");
        writeFile(path("Z:/tmp/ucap/src/three.txt"), "three");
        ASSERT_EQ(run6({"a", "-y+", kArchive, "Z:\\tmp\\ucap\\src\\one.txt"}, dir.path()).exitCode,
                  0);
        original = readFile(archiveFile());
        ASSERT_FALSE(original.isEmpty());
    }
    QString archiveFile() const { return path("Z:/tmp/ucap/one.uha"); }
    std::vector<std::string> storedNames() {
        QFile::remove(path("names.txt"));
        run6({"l", "-lgnames.txt", kArchive}, dir.path());
        return listedNames(readFile(path("names.txt")));
    }
    static constexpr const char* kArchive = "Z:\\tmp\\ucap\\one.uha";
    static constexpr const char* kSource = "Z:\\tmp\\ucap\\src\\two.txt";
    QByteArray original;
};

TEST_F(StandinQuestionTest, AsksAndWaitsForOneKeyThenNoLeavesTheArchive) {
    QProcess p;
    p.setProcessEnvironment(cleanEnvironment());
    p.setWorkingDirectory(dir.path());
    p.start(engine("0.6"), {"a", "-m2", kArchive, kSource});
    ASSERT_TRUE(p.waitForStarted(10000));
    QByteArray seen;
    while (!seen.endsWith("?") && p.waitForReadyRead(10000))
        seen += p.readAllStandardOutput();
    EXPECT_EQ(afterBanner(seen), afterBanner(sampleFile("add-existing-question.out")));
    expectSameLayout(sampleFile("add-existing-question.out"), seen, OutputKind::Console);
    // It waits for the key.
    EXPECT_FALSE(p.waitForFinished(500));
    p.write("n");
    ASSERT_TRUE(p.waitForFinished(10000));
    EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(p.exitCode(), 255);
    seen += p.readAllStandardOutput();
    EXPECT_EQ(afterBanner(seen), afterBanner(sampleFile("add-existing-answer-n.out")));
    expectSameLayout(sampleFile("add-existing-answer-n.out"), seen, OutputKind::Console);
    EXPECT_EQ(readFile(archiveFile()), original);
    EXPECT_FALSE(QFile::exists(path("Z:/tmp/ucap/UHA$0000.$$$")));
}

TEST_F(StandinQuestionTest, YesReplacesTheArchiveWithTheNewFilesOnly) {
    EngineRun r = run("0.6", {"a", "-m2", kArchive, kSource}, dir.path(), {}, "y");
    ASSERT_EQ(r.exitCode, 0) << r.out.toStdString();
    const QByteArray sample = sampleFile("add-existing-answer-y.out");
    expectSameLayout(sample, r.out, OutputKind::Console);
    const QByteArray upToSearch =
        "\r\n\r" + QByteArray(79, ' ') + "\rArchive \"Z:\\tmp\\ucap\\one.uha\" already exists. " +
        "Overwrite (y/n) ?\r" + QByteArray(79, ' ') + "\rSearching files ...\r";
    EXPECT_TRUE(afterBanner(sample).startsWith(upToSearch));
    EXPECT_TRUE(afterBanner(r.out).startsWith(upToSearch));
    EXPECT_TRUE(hasLine(r.out, "Adding 1 file (4 bytes)                                 size     "
                               "packed   ratio"));
    EXPECT_TRUE(hasLine(r.out, "Using ALZ:2-mode (1 KB dictionary) with multimedia detection."));
    EXPECT_TRUE(hasLine(r.out, "Using 3.0 MB for compression and 50 KB for file buffers."));
    EXPECT_EQ(storedNames(), std::vector<std::string>{"tmp\\ucap\\src\\two.txt"});
    ASSERT_EQ(run6({"x", "-y+", "-tout", kArchive}, dir.path()).exitCode, 0);
    EXPECT_EQ(readFile(path("out/tmp/ucap/src/two.txt")), "two!");
    EXPECT_FALSE(QFile::exists(path("out/tmp/ucap/src/one.txt")));
}

TEST_F(StandinQuestionTest, CapitalYAnswersYesAnyOtherKeyOrNoInputAnswersNo) {
    for (const QByteArray& key :
         {QByteArray("x"), QByteArray("N"), QByteArray(), QByteArray("\n"), QByteArray(" y")}) {
        SCOPED_TRACE(key.toStdString());
        EngineRun r = run("0.6", {"a", "-d2", kArchive, kSource}, dir.path(), {}, key);
        EXPECT_EQ(r.exitCode, 255);
        EXPECT_TRUE(r.out.endsWith("Overwrite (y/n) ?\r" + QByteArray(79, ' ') +
                                   "\rERROR: Can't create archive file\r\nProcess aborted.\r\n"))
            << r.out.toStdString();
        EXPECT_EQ(readFile(archiveFile()), original);
    }
    // One byte is read: "Yes" answers with its "Y".
    EngineRun r =
        run("0.6", {"a", kArchive, "Z:\\tmp\\ucap\\src\\three.txt"}, dir.path(), {}, "Yes\r\n");
    ASSERT_EQ(r.exitCode, 0) << r.out.toStdString();
    EXPECT_EQ(storedNames(), std::vector<std::string>{"tmp\\ucap\\src\\three.txt"});
}

TEST_F(StandinQuestionTest, MoveAsksTooAndKeepsItsSourcesOnNo) {
    EngineRun no = run("0.6", {"m", kArchive, kSource}, dir.path(), {}, "n");
    EXPECT_EQ(no.exitCode, 255);
    EXPECT_TRUE(no.out.contains("already exists. Overwrite (y/n) ?"));
    EXPECT_TRUE(QFile::exists(path("Z:/tmp/ucap/src/two.txt")));
    EXPECT_EQ(readFile(archiveFile()), original);
    EngineRun yes = run("0.6", {"m", kArchive, kSource}, dir.path(), {}, "y");
    EXPECT_EQ(yes.exitCode, 0);
    EXPECT_FALSE(QFile::exists(path("Z:/tmp/ucap/src/two.txt")));
    EXPECT_EQ(storedNames(), std::vector<std::string>{"tmp\\ucap\\src\\two.txt"});
}

// A pseudo-terminal as the engine's standard input: one key without Enter answers, the key
// is not echoed, and the terminal settings are back afterwards.
class StandinTerminalTest : public StandinQuestionTest {
protected:
    void SetUp() override {
        StandinQuestionTest::SetUp();
        master = posix_openpt(O_RDWR | O_NOCTTY);
        ASSERT_GE(master, 0);
        ASSERT_EQ(grantpt(master), 0);
        ASSERT_EQ(unlockpt(master), 0);
        slaveName = QString::fromLocal8Bit(ptsname(master));
        slave = ::open(ptsname(master), O_RDWR | O_NOCTTY);
        ASSERT_GE(slave, 0);
        fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
        ASSERT_EQ(tcgetattr(slave, &before), 0);
        ASSERT_TRUE(before.c_lflag & ICANON);
        ASSERT_TRUE(before.c_lflag & ECHO);
    }
    void TearDown() override {
        if (slave >= 0)
            ::close(slave);
        if (master >= 0)
            ::close(master);
    }
    // Starts the add with the terminal as standard input and waits until the question is
    // out and the terminal reads single keys.
    void startAsking(QProcess& p) {
        p.setProcessEnvironment(cleanEnvironment());
        p.setWorkingDirectory(dir.path());
        p.setStandardInputFile(slaveName);
        p.start(engine("0.6"), {"a", kArchive, kSource});
        ASSERT_TRUE(p.waitForStarted(10000));
        QByteArray seen;
        while (!seen.endsWith("Overwrite (y/n) ?") && p.waitForReadyRead(10000))
            seen += p.readAllStandardOutput();
        ASSERT_TRUE(seen.endsWith("Overwrite (y/n) ?"));
        QElapsedTimer t;
        t.start();
        struct termios now {};
        for (;;) {
            ASSERT_EQ(tcgetattr(slave, &now), 0);
            if (!(now.c_lflag & ICANON) || t.elapsed() > 5000)
                break;
            QThread::msleep(10);
        }
        EXPECT_FALSE(now.c_lflag & ICANON);
        EXPECT_FALSE(now.c_lflag & ECHO);
    }
    void expectSettingsBack() {
        struct termios after {};
        ASSERT_EQ(tcgetattr(slave, &after), 0);
        EXPECT_EQ(after.c_lflag, before.c_lflag);
        EXPECT_EQ(after.c_cc[VMIN], before.c_cc[VMIN]);
        EXPECT_EQ(after.c_cc[VTIME], before.c_cc[VTIME]);
    }
    int master = -1;
    int slave = -1;
    QString slaveName;
    struct termios before {};
};

TEST_F(StandinTerminalTest, OneKeyWithoutEnterAnswers) {
    QProcess p;
    startAsking(p);
    ASSERT_EQ(::write(master, "y", 1), 1);
    ASSERT_TRUE(p.waitForFinished(10000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString();
    EXPECT_EQ(storedNames(), std::vector<std::string>{"tmp\\ucap\\src\\two.txt"});
    char echoed[16];
    EXPECT_LE(::read(master, echoed, sizeof echoed), 0); // nothing was echoed
    expectSettingsBack();
}

TEST_F(StandinTerminalTest, SettingsComeBackWhenTheWaitIsEndedBySignal) {
    QProcess p;
    startAsking(p);
    p.terminate();
    ASSERT_TRUE(p.waitForFinished(10000));
    EXPECT_EQ(p.exitStatus(), QProcess::CrashExit);
    expectSettingsBack();
    EXPECT_EQ(readFile(archiveFile()), original);
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

TEST_F(StandinTest, DotDotNamesNeverLeaveTheTarget) {
    QByteArray arc = handMadeArchive({{"..\\..\\evil.txt", "e"},
                                      {"C:\\abs\\x.txt", "x"},
                                      {"\\root.txt", "r"},
                                      {"a\\..\\..\\b\\up.txt", "u"},
                                      {"../slash.txt", "s"}});
    writeFile(path("work/h.uha"), arc);
    EngineRun x = run6({"x", "-y+", "-ttarget", "h.uha"}, path("work"));
    ASSERT_EQ(x.exitCode, 0) << x.out.toStdString();
    EXPECT_EQ(readFile(path("work/target/evil.txt")), "e");
    EXPECT_EQ(readFile(path("work/target/abs/x.txt")), "x");
    EXPECT_EQ(readFile(path("work/target/root.txt")), "r");
    EXPECT_EQ(readFile(path("work/target/a/b/up.txt")), "u");
    EXPECT_EQ(readFile(path("work/target/slash.txt")), "s");
    EXPECT_FALSE(QFile::exists(path("evil.txt")));
    EXPECT_FALSE(QFile::exists(path("work/evil.txt")));
    EXPECT_FALSE(QFile::exists(path("b/up.txt")));
    EXPECT_FALSE(QFile::exists(path("slash.txt")));
    QDir().mkpath(path("work/in"));
    EngineRun e2 = run6({"e", "-y+", "../h.uha"}, path("work/in"));
    ASSERT_EQ(e2.exitCode, 0) << e2.out.toStdString();
    EXPECT_EQ(readFile(path("work/in/evil.txt")), "e");
    EXPECT_EQ(QDir(path("work")).entryList(QDir::Files), QStringList{"h.uha"});
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

// ---------------------------------------------------------------------------------------
// Faults on demand (QUOVARA_STANDIN_FAULT)

class StandinFaultTest : public StandinTest {
protected:
    void SetUp() override {
        StandinTest::SetUp();
        for (int i = 0; i < 3; ++i)
            writeFile(path(QString("src/f%1.txt").arg(i)), textOfSize(1000 + i));
        ASSERT_EQ(run6({"a", "-y+", "f.uha", "src/*"}, dir.path()).exitCode, 0);
        archive = readFile(path("f.uha"));
        EngineRun l = run6({"l", "-y+", "f.uha"}, dir.path());
        auto lines = crlfLines(l.out);
        auto at = std::find(lines.begin(), lines.end(), "src\\f0.txt");
        ASSERT_NE(at, lines.end());
        f0Detail = QByteArray::fromStdString(*(at + 1));
        ASSERT_EQ(f0Detail.size(), 79);
    }
    EngineRun faulty(const QString& fault, const QStringList& args) {
        return run("0.6", args, dir.path(), {{"QUOVARA_STANDIN_FAULT", fault}});
    }
    // The command lines of every command; each writes per-file progress lines (-d2), the
    // listing its log.
    static std::vector<std::pair<std::string, QStringList>> commands() {
        return {{"a", {"a", "-y+", "-d2", "new.uha", "src/*"}},
                {"m", {"m", "-y+", "-d2", "new.uha", "src/*"}},
                {"e", {"e", "-y+", "-d2", "-tout", "f.uha"}},
                {"x", {"x", "-y+", "-d2", "-tout", "f.uha"}},
                {"t", {"t", "-y+", "-d2", "f.uha"}},
                {"l", {"l", "-d2", "-y+", "-lgLOG.txt", "f.uha"}}};
    }
    // What the run has written up to the fault: the first file's progress line, or the
    // listing up to its first entry.
    QByteArray firstProgress(const std::string& cmd) const {
        if (cmd == "a" || cmd == "m")
            return "-------------------------------------------------------------------------"
                   "------\r\n\rAdding src\\f0.txt                      Total:  0%          0 "
                   "         0    0.0%";
        if (cmd == "e")
            return QByteArray("\rExtracting out\\f0.txt") + QByteArray(48, ' ') + "Total:  0%";
        if (cmd == "x")
            return QByteArray("\rExtracting out\\src\\f0.txt") + QByteArray(44, ' ') + "Total:  0%";
        if (cmd == "t")
            return QByteArray("\rTesting src\\f0.txt") + QByteArray(51, ' ') + "Total:  0%";
        return QByteArray(79, '-') + "\r\nsrc\\f0.txt\r\n" + f0Detail + "\r\n";
    }
    void expectNothingChanged(const std::string& cmd) {
        EXPECT_EQ(readFile(path("f.uha")), archive);
        EXPECT_FALSE(QFile::exists(path("new.uha")));
        EXPECT_FALSE(QFile::exists(path("out/f0.txt")));
        EXPECT_FALSE(QFile::exists(path("out/src/f0.txt")));
        for (int i = 0; i < 3; ++i)
            EXPECT_TRUE(QFile::exists(path(QString("src/f%1.txt").arg(i)))) << cmd;
    }
    QByteArray archive;
    QByteArray f0Detail; // the listing's detail line of src\f0.txt
};

TEST_F(StandinFaultTest, ExitEndsAfterTheFirstProgressWithTheCodeAndNoError) {
    for (const auto& [cmd, args] : commands()) {
        SCOPED_TRACE(cmd);
        QFile::remove(path("LOG.txt"));
        QFile::remove(path("UHA$0000.$$$"));
        EngineRun r = faulty("exit:7", args);
        EXPECT_EQ(r.exitCode, 7);
        EXPECT_FALSE(r.out.contains("ERROR:"));
        EXPECT_TRUE(r.out.endsWith(firstProgress(cmd))) << r.out.toStdString();
        expectNothingChanged(cmd);
        if (cmd == "a" || cmd == "m") {
            EXPECT_TRUE(QFile::exists(path("UHA$0000.$$$")));
        }
        if (cmd == "l") {
            // The log holds the listing up to its first entry, and no closing line.
            const QByteArray log = readFile(path("LOG.txt"));
            EXPECT_TRUE(log.contains("\r\nsrc\\f0.txt\r\n")) << log.toStdString();
            EXPECT_FALSE(log.contains("src\\f1.txt"));
            EXPECT_FALSE(log.contains(" packed ("));
            EXPECT_FALSE(log.contains(QByteArray(79, '=')));
            EXPECT_TRUE(log.endsWith(firstProgress(cmd).mid(81)));
        }
    }
    EXPECT_EQ(faulty("exit:0", {"t", "-y+", "-d2", "f.uha"}).exitCode, 0);
    EXPECT_EQ(faulty("exit:255", {"t", "-y+", "f.uha"}).exitCode, 255);
}

TEST_F(StandinFaultTest, SignalEndsTheRunByThatSignal) {
    for (const auto& [cmd, args] : commands()) {
        SCOPED_TRACE(cmd);
        for (int sig : {9, 15, 2}) {
            EngineRun r = faulty("signal:" + QString::number(sig), args);
            EXPECT_EQ(r.exitCode, -2) << sig;
            EXPECT_EQ(r.signal, sig);
            EXPECT_FALSE(r.out.contains("ERROR:"));
            EXPECT_TRUE(r.out.endsWith(firstProgress(cmd))) << r.out.toStdString();
            expectNothingChanged(cmd);
        }
    }
    // A signal whose default action is to be ignored (SIGWINCH) lets the run finish.
    EngineRun ignored = faulty("signal:28", {"t", "-y+", "-d2", "f.uha"});
    EXPECT_EQ(ignored.exitCode, 0);
    EXPECT_TRUE(ignored.out.contains("All files OK"));
}

TEST_F(StandinFaultTest, HangWaitsForEverAfterTheFirstProgress) {
    for (const auto& [cmd, args] : commands()) {
        SCOPED_TRACE(cmd);
        QFile::remove(path("LOG.txt"));
        QProcess p;
        QProcessEnvironment env = cleanEnvironment();
        env.insert("QUOVARA_STANDIN_FAULT", "hang");
        p.setProcessEnvironment(env);
        p.setWorkingDirectory(dir.path());
        p.start(engine("0.6"), args);
        ASSERT_TRUE(p.waitForStarted(10000));
        QByteArray seen;
        const QByteArray expected = firstProgress(cmd);
        while (!seen.endsWith(expected) && p.waitForReadyRead(10000))
            seen += p.readAllStandardOutput();
        EXPECT_TRUE(seen.endsWith(expected)) << seen.toStdString();
        EXPECT_FALSE(p.waitForFinished(700));
        EXPECT_EQ(p.state(), QProcess::Running);
        seen += p.readAllStandardOutput();
        EXPECT_TRUE(seen.endsWith(expected));
        if (cmd == "l") {
            EXPECT_TRUE(readFile(path("LOG.txt")).endsWith(expected.mid(81)));
        }
        p.kill();
        ASSERT_TRUE(p.waitForFinished(10000));
        expectNothingChanged(cmd);
    }
}

TEST_F(StandinFaultTest, EnospcIsAWriteFailure) {
    const QByteArray tail = "ERROR: No space left on device\r\nProcess aborted.\r\n";
    for (const auto& [cmd, args] : commands()) {
        SCOPED_TRACE(cmd);
        QFile::remove(path("LOG.txt"));
        EngineRun r = faulty("enospc", args);
        EXPECT_EQ(r.exitCode, 255);
        // After an open progress line the line is ended and the next one blanked.
        const QByteArray end =
            cmd == "l" ? firstProgress(cmd) + tail
                       : firstProgress(cmd) + "\r\n\r" + QByteArray(79, ' ') + "\r" + tail;
        EXPECT_TRUE(r.out.endsWith(end)) << r.out.toStdString();
        EXPECT_EQ(r.out.count("ERROR:"), 1);
        expectNothingChanged(cmd);
        // The add removes its temporary archive.
        EXPECT_FALSE(QFile::exists(path("UHA$0000.$$$")));
        if (cmd == "l") {
            EXPECT_TRUE(readFile(path("LOG.txt"))
                            .endsWith(firstProgress(cmd).mid(81) + tail + QByteArray(79, '=') +
                                      "\r\n\r\n"));
        }
    }
    // An add in display mode 1 has its progress line open too.
    EngineRun quiet = faulty("enospc", {"a", "-y+", "q.uha", "src/*"});
    EXPECT_EQ(quiet.exitCode, 255);
    EXPECT_TRUE(quiet.out.endsWith("Total:  0%          0          0    0.0%\r\n\r" +
                                   QByteArray(79, ' ') + "\r" + tail))
        << quiet.out.toStdString();
    EXPECT_FALSE(QFile::exists(path("q.uha")));
}

TEST_F(StandinFaultTest, AValueThatNamesNoFaultIsRefused) {
    for (const char* bad :
         {"exit", "exit:256", "exit:-1", "signal:0", "signal:x", "hang ", "full"}) {
        EngineRun r = faulty(bad, {"t", "-y+", "f.uha"});
        EXPECT_EQ(r.exitCode, 2) << bad;
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_EQ(r.err.toStdString(), "QUOVARA_STANDIN_FAULT=\"" + std::string(bad) +
                                           "\" names no fault (exit:N, signal:N, hang, enospc)\n");
    }
    EXPECT_EQ(faulty("", {"t", "-y+", "f.uha"}).exitCode, 0);
}

// ---------------------------------------------------------------------------------------
// Layouts against the captured engine output

TEST(StandinLayoutCheck, NoticesAMovedColumnAndAChangedWord) {
    const QByteArray add = sampleFile("add-alz3.out");
    QByteArray moved = add;
    ASSERT_EQ(moved.count("      14208       2482"), 1);
    moved.replace("      14208       2482", "     14208        2482");
    EXPECT_NONFATAL_FAILURE(expectSameLayout(add, moved, OutputKind::Console), "number");
    const QByteArray sample = sampleFile("test-ok.out");
    QByteArray changed = sample;
    changed.replace("All files OK", "All files ok");
    EXPECT_NONFATAL_FAILURE(expectSameLayout(sample, changed, OutputKind::Console), "word");
    EXPECT_FATAL_FAILURE(expectSameLayout(sampleFile("test-ok.out"),
                                          sampleFile("test-ok.out") + "\r\n", OutputKind::Console),
                         "stand-in output");
}

class StandinLayoutTest : public StandinTest {
protected:
    void SetUp() override {
        StandinTest::SetUp();
        makeSampleTree(dir.path());
        EngineRun a = run6({"a", "-m3", "-md32768", "-r+", "-y+", "-d2", "test.uha", "folder\\*"},
                           dir.path());
        ASSERT_EQ(a.exitCode, 0);
        addOutput = a.out;
    }
    QByteArray addOutput;
};

TEST_F(StandinLayoutTest, AddOutputMatchesTheEngine) {
    const QByteArray sample = sampleFile("add-alz3.out");
    ASSERT_FALSE(sample.isEmpty());
    expectSameLayout(sample, addOutput, OutputKind::Console);
    expectSameNames(sample, addOutput);
    EXPECT_TRUE(addOutput.contains(
        "\r\nSearching files ...\rAnalysing files ...  0%\b\b\b12%\b\b\b25%\b\b\b37%\b\b\b50%"
        "\b\b\b62%\b\b\b75%\b\b\b87%\b\b\b99%\r" +
        QByteArray(79, ' ') + "\rCreating archive \"test.uha\".\r\n"));
    EXPECT_TRUE(hasLine(addOutput, "Using ALZ:3-mode (128 KB dictionary) with multimedia "
                                   "detection."));
    EXPECT_TRUE(hasLine(addOutput, "Adding folder\\random.bin                               "
                                   "30000      30001  100.0%"));
}

TEST_F(StandinLayoutTest, ListingLogMatchesTheEngine) {
    EngineRun l = run6({"l", "-d2", "-y+", "-lgLOG.txt", "test.uha"}, dir.path());
    ASSERT_EQ(l.exitCode, 0);
    const QByteArray log = readFile(path("LOG.txt"));
    expectSameLayout(sampleFile("list-alz3.log"), log, OutputKind::Log);
    expectSameNames(sampleFile("list-alz3.log"), log);
    auto lines = crlfLines(log);
    EXPECT_EQ(lines[8], std::string(79, '-'));
    ASSERT_GE(lines.size(), 14u);
    EXPECT_EQ(lines[lines.size() - 4], "8 files                           110354");
    EXPECT_EQ(lines[lines.size() - 3].substr(40, 19), " packed (ALZ:3-mode");
    EXPECT_EQ(listedNames(log), listedNames(sampleFile("list-alz3.log")));
    EXPECT_EQ(lines[2], "Environment: \"\"");
}

TEST_F(StandinLayoutTest, PpmListingMatchesTheEngine) {
    ASSERT_EQ(run6({"a", "-mx", "-r+", "-y+", "test_mx.uha", "folder\\*"}, dir.path()).exitCode, 0);
    EngineRun l = run6({"l", "-d2", "-y+", "-lgLOG.txt", "test_mx.uha"}, dir.path());
    ASSERT_EQ(l.exitCode, 0);
    expectSameLayout(sampleFile("list-ppm.log"), readFile(path("LOG.txt")), OutputKind::Log);
}

TEST_F(StandinLayoutTest, ExtractOutputMatchesTheEngine) {
    EngineRun x = run6({"x", "-d2", "-o+", "-tout_x", "-y+", "test.uha"}, dir.path());
    ASSERT_EQ(x.exitCode, 0);
    const QByteArray sample = sampleFile("extract-with-paths.out");
    expectSameLayout(sample, x.out, OutputKind::Console);
    expectSameNames(sample, x.out);
    EXPECT_TRUE(
        hasLine(x.out, "Extracting out_x\\folder\\read me with spaces.txt" + std::string(32, ' ')));
}

TEST_F(StandinLayoutTest, TestOutputMatchesTheEngine) {
    EngineRun t = run6({"t", "-d2", "-y+", "-lgLOG.txt", "test.uha"}, dir.path());
    ASSERT_EQ(t.exitCode, 0);
    const QByteArray sample = sampleFile("test-ok.out");
    expectSameLayout(sample, t.out, OutputKind::Console);
    expectSameNames(sample, t.out);
    auto lines = crlfLines(t.out);
    EXPECT_TRUE(QRegularExpression("^Completed successfully \\(\\d\\.\\d sec\\) +All files OK$")
                    .match(QString::fromStdString(lines.back()))
                    .hasMatch())
        << lines.back();
    EXPECT_EQ(lines.back().size(), 79u);
}

TEST_F(StandinLayoutTest, CrcErrorOutputMatchesTheEngine) {
    // The engine's sample damaged the sixth file and reported it while the seventh started.
    QByteArray arc = readFile(path("test.uha"));
    auto entries = rawEntries(arc);
    ASSERT_EQ(entries.size(), 8u);
    const auto& e = entries[5];
    ASSERT_GT(e.dataLen, 8);
    for (int k = 0; k < 4; ++k)
        arc[e.dataPos + e.dataLen / 2 + k] = static_cast<char>(~arc[e.dataPos + e.dataLen / 2 + k]);
    writeFile(path("flip.uha"), arc);
    EngineRun t = run6({"t", "-d2", "-y+", "-lgLOG.txt", "flip.uha"}, dir.path());
    EXPECT_EQ(t.exitCode, 255);
    expectSameLayout(sampleFile("test-crc-error.out"), t.out, OutputKind::Console);
    EXPECT_TRUE(hasLine(t.out, "ERROR: CRC-failure (file \"" + e.name + "\")"));
    EXPECT_TRUE(readFile(path("LOG.txt"))
                    .contains(QByteArray::fromStdString("ERROR: CRC-failure (file \"" + e.name +
                                                        "\")\r\nProcess aborted.\r\n")));
}

} // namespace
