// What the stand-in engine's tests share: running an engine, sample trees and files, the
// readers of its archives and logs, and the comparison of layouts with the real engine's.
#pragma once

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

namespace standin_test {

inline const std::string kPasswordMsg =
    "ERROR: Archive requires a password to access --> use switch -pw[password]";
inline const std::string kCorruptMsg =
    "ERROR: Can't read from archive file / Unexpected end of file (maybe corrupt)";

inline QString engine(const QString& version) {
    return QCoreApplication::applicationDirPath() + "/uharc-standin-" + version;
}

struct EngineRun {
    int exitCode = -1; // -2: ended by a signal
    int signal = 0;    // the signal that ended it
    QByteArray out;
    QByteArray err;
    qint64 ms = 0;
};

inline QProcessEnvironment cleanEnvironment() {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& key : env.keys())
        if (key.compare("uharc_opt", Qt::CaseInsensitive) == 0 ||
            key.startsWith("QUOVARA_STANDIN_"))
            env.remove(key);
    return env;
}

// Runs the engine to its end. Standard input holds `input` and then ends, so a console
// question gets that answer (or the end of the input).
inline EngineRun run(const QString& version, const QStringList& args, const QString& workDir,
                     const std::map<QString, QString>& extraEnv = {},
                     const QByteArray& input = {}) {
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

inline EngineRun run6(const QStringList& args, const QString& dir) {
    return run("0.6", args, dir);
}

inline void writeFile(const QString& path, const QByteArray& data) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(data);
}

inline QByteArray readFile(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

inline QByteArray sampleFile(const QString& name) {
    return readFile(QString(STANDIN_SAMPLES_DIR "/") + name);
}

inline QByteArray textOfSize(int n) {
    const QByteArray line = "The stand-in engine keeps this text in its own container.\r\n";
    QByteArray s;
    while (s.size() < n)
        s += line;
    return s.left(n);
}

inline QByteArray noiseOfSize(int n, std::uint32_t seed) {
    QByteArray s(n, '\0');
    for (int i = 0; i < n; ++i) {
        seed = seed * 1664525u + 1013904223u;
        s[i] = static_cast<char>(seed >> 24);
    }
    return s;
}

// The eight files of the captured samples, same names and sizes.
inline const std::vector<std::pair<QString, int>> kSampleFiles = {
    {"folder/empty.txt", 0},
    {"folder/readme.txt", 13989},
    {"folder/sub/notes.txt", 3433},
    {"folder/read me with spaces.txt", 1391},
    {"folder/sub/deeper/deep.txt", 341},
    {"folder/random.bin", 30000},
    {"folder/sub/data.bin", 10000},
    {"folder/pattern.dat", 51200},
};

inline QByteArray contentFor(const QString& name, int size) {
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

inline void makeSampleTree(const QString& dir) {
    for (const auto& [name, size] : kSampleFiles)
        writeFile(dir + "/" + name, contentFor(name, size));
}

// Lines of engine output: text and what ended it ("\r\n", "\r" or nothing at the end).
struct Record {
    std::string text;
    std::string end;
};

inline std::vector<Record> records(const QByteArray& data) {
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

inline std::vector<std::string> crlfLines(const QByteArray& data) {
    std::vector<std::string> lines;
    for (const auto& r : records(data))
        lines.push_back(r.text);
    return lines;
}

inline bool hasLine(const QByteArray& data, const std::string& line) {
    auto lines = crlfLines(data);
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

// Stored names of the eight files, as the engine prints them, with the short forms that
// the add progress line uses for names longer than 22 characters.
inline std::vector<std::string> knownNames() {
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
inline std::string maskNames(std::string s, bool& masked) {
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

inline std::vector<Token> tokens(const std::string& s) {
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

inline bool hasDigit(const std::string& s) {
    return std::any_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// A word that holds a masked file name (with whatever stands around it, such as a quote or
// a target folder).
inline bool isNameRun(const std::string& s) {
    return s.find("NNNNN") != std::string::npos;
}

inline std::string collapseNames(const std::string& s) {
    static const QRegularExpression run("N{5,}");
    return QString::fromLatin1(s.c_str()).replace(run, "N").toStdString();
}

enum class LineKind { Layout, LengthOnly, CommandLine, LogTitle };

// Compares one line of the stand-in with the engine's: words at the same columns, numbers
// ending at the same column (values may differ), other words equal.
inline void expectSameLayout(const std::string& sample, const std::string& mine, LineKind kind,
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

inline void expectSameLayout(const QByteArray& sample, const QByteArray& mine, OutputKind kind) {
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

inline int countOf(const QByteArray& data, const std::string& s) {
    return data.count(QByteArray::fromStdString(s));
}

// Every file is named as often in the stand-in's output as in the engine's.
inline void expectSameNames(const QByteArray& sample, const QByteArray& mine) {
    for (const auto& n : knownNames())
        EXPECT_EQ(countOf(sample, n), countOf(mine, n)) << n;
}

// Entries of a stand-in archive file: offsets of their packed data.
struct RawEntry {
    std::string name;
    qsizetype dataPos;
    qsizetype dataLen;
};

inline std::uint64_t le(const QByteArray& d, qsizetype pos, int bytes) {
    std::uint64_t v = 0;
    for (int i = 0; i < bytes; ++i)
        v |= static_cast<std::uint64_t>(static_cast<unsigned char>(d[pos + i])) << (8 * i);
    return v;
}

inline std::vector<RawEntry> rawEntries(const QByteArray& d) {
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

inline std::uint32_t crc32Of(const QByteArray& d) {
    std::uint32_t crc = 0xFFFFFFFFu;
    for (char ch : d) {
        crc ^= static_cast<unsigned char>(ch);
        for (int k = 0; k < 8; ++k)
            crc = (crc & 1) ? (0xEDB88320u ^ (crc >> 1)) : (crc >> 1);
    }
    return ~crc;
}

inline void putLe(QByteArray& d, std::uint64_t v, int bytes) {
    for (int i = 0; i < bytes; ++i)
        d.append(static_cast<char>((v >> (8 * i)) & 0xFF));
}

// A stored (-m0) stand-in archive with the given names, written by hand.
inline QByteArray handMadeArchive(const std::vector<std::pair<std::string, QByteArray>>& entries) {
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

inline std::vector<std::string> listedNames(const QByteArray& log) {
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

} // namespace standin_test
