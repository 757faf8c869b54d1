#include "jobscript.h"

#include "codepage.h"
#include "confinement.h"
#include "enginefiles.h"
#include "enginelocale.h"
#include "letternames.h"
#include "logging.h"
#include "places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <algorithm>
#include <ostream>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quovara {

Fragment::Fragment(const QString& fixedText) {
    if (!fixedText.isEmpty())
        parts_.append(ScriptPart{fixedText, false, QString()});
}

Fragment::Fragment(const char* fixedText) : Fragment(QString::fromUtf8(fixedText)) {}

Fragment Fragment::Value(const QString& text, const QString& field) {
    Fragment f;
    f.parts_.append(ScriptPart{text, true, field});
    return f;
}

Fragment& Fragment::operator+=(const Fragment& other) {
    parts_.append(other.parts_);
    return *this;
}

QString Fragment::text() const {
    QString out;
    for (const ScriptPart& p : parts_)
        out += p.text;
    return out;
}

Fragment operator+(Fragment a, const Fragment& b) {
    a += b;
    return a;
}

bool operator==(const Fragment& a, const QString& b) {
    return a.text() == b;
}

void PrintTo(const Fragment& f, std::ostream* os) {
    *os << '"' << f.text().toStdString() << '"';
}

CommandPieces::CommandPieces(std::initializer_list<Fragment> fragments) : fragments_(fragments) {}

CommandPieces::CommandPieces(const QStringList& texts) {
    for (const QString& t : texts)
        fragments_.append(Fragment(t));
}

CommandPieces& CommandPieces::operator<<(const Fragment& fragment) {
    fragments_.append(fragment);
    return *this;
}

QStringList CommandPieces::texts() const {
    QStringList out;
    for (const Fragment& f : fragments_)
        out << f.text();
    return out;
}

QString CommandLine(const CommandPieces& pieces) {
    return pieces.texts().join(QString());
}

namespace {

bool isBlank(QChar c) {
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

// Splits fixed text and values into arguments: one pass over the parts, where only the fixed
// text can open or close quotes, separate arguments or redirect.
class Splitter {
public:
    void fixed(const QString& text) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar c = text[i];
            if (c == QLatin1Char('"')) {
                quoted_ = !quoted_;
                inWord_ = true;
                continue;
            }
            if (!quoted_ && isBlank(c)) {
                endWord();
                continue;
            }
            if (!quoted_ && c == QLatin1Char('>')) {
                endWord();
                redirect_ = true;
                job_.appendOutput = i + 1 < text.size() && text[i + 1] == QLatin1Char('>');
                if (job_.appendOutput)
                    ++i;
                continue;
            }
            word_.append(c);
            inWord_ = true;
        }
    }
    void value(const QString& text, const QString& field) {
        word_.append(text);
        inWord_ = true;
        if (wordField_.isEmpty())
            wordField_ = field;
    }
    ParsedJob finish() {
        endWord();
        return job_;
    }

private:
    void endWord() {
        if (!inWord_)
            return;
        if (redirect_) {
            job_.outputTarget = word_;
            redirect_ = false;
        } else {
            job_.arguments.append(word_);
            job_.argumentFields.append(wordField_);
        }
        word_.clear();
        wordField_.clear();
        inWord_ = false;
    }

    ParsedJob job_;
    QString word_;
    QString wordField_;
    bool inWord_ = false;
    bool quoted_ = false;
    bool redirect_ = false;
};

bool holdsLineBreak(const QString& text) {
    return text.contains(QLatin1Char('\r')) || text.contains(QLatin1Char('\n')) ||
           text.contains(QChar(0));
}

// The scripts this program wrote, by absolute path: only these run, and only unchanged.
QHash<QString, WrittenScript>& writtenScripts() {
    static QHash<QString, WrittenScript> scripts;
    return scripts;
}

QString scriptKey(const QString& path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString fieldName(const ScriptPart& part) {
    return part.field.isEmpty() ? QStringLiteral("command line") : part.field;
}

// The names of the fields a message can name, marked so that a catalogue translates them.
[[maybe_unused]] const char* const kFieldNames[] = {
    QT_TRANSLATE_NOOP("JobScript", "archive"),
    QT_TRANSLATE_NOOP("JobScript", "archive name"),
    QT_TRANSLATE_NOOP("JobScript", "command line"),
    QT_TRANSLATE_NOOP("JobScript", "destination folder"),
    QT_TRANSLATE_NOOP("JobScript", "dictionary size"),
    QT_TRANSLATE_NOOP("JobScript", "exclusion"),
    QT_TRANSLATE_NOOP("JobScript", "file type"),
    QT_TRANSLATE_NOOP("JobScript", "item"),
    QT_TRANSLATE_NOOP("JobScript", "list file"),
    QT_TRANSLATE_NOOP("JobScript", "name"),
    QT_TRANSLATE_NOOP("JobScript", "password"),
    QT_TRANSLATE_NOOP("JobScript", "program folder"),
    QT_TRANSLATE_NOOP("JobScript", "source"),
    QT_TRANSLATE_NOOP("JobScript", "temporary folder"),
};

// A field's name as a message shows it (the field itself stays the key that code compares).
QString shownField(const QString& field) {
    return QCoreApplication::translate("JobScript", field.toUtf8().constData());
}

// How much of a path the engine reads as it is written: the job runner hands it a plain
// stand-in for the rest (launcherpaths.h, confinement.h).
enum class PlainPath { None, Whole, FileName };
PlainPath pathSeenPlain(const QString& field, const QStringList& job) {
    // An archive is read through a link with a plain name; an Add gets the archive's folder as
    // a drive and names the archive as it is.
    if (field == QLatin1String("archive"))
        return IsAddJob(job) ? PlainPath::FileName : PlainPath::Whole;
    // An extraction's destination is a drive of its own.
    if (field == QLatin1String("destination folder") && IsExtractionJob(job))
        return PlainPath::Whole;
    // A list file is copied into the work folder, and its names are checked as they are copied.
    if (field == QLatin1String("list file"))
        return PlainPath::Whole;
    return PlainPath::None;
}

} // namespace

ParsedJob SplitPieces(const CommandPieces& pieces) {
    Splitter splitter;
    for (const Fragment& f : pieces.fragments()) {
        for (const ScriptPart& p : f.parts()) {
            if (p.isValue)
                splitter.value(p.text, p.field);
            else
                splitter.fixed(p.text);
        }
    }
    ParsedJob job = splitter.finish();
    job.workingFolder = pieces.workingFolder();
    return job;
}

QByteArray ToScriptEncoding(const QString& text) {
    return text.toLocal8Bit();
}

QByteArray ToAnsi(const QString& text) {
    return WindowsEngineCodecs(EngineLocale()).names.encode(text);
}

QByteArray JobScriptBytes(Preamble preamble, const CommandPieces& commandPieces, LastLine last) {
    QByteArray out;
    if (preamble == Preamble::List)
        out += "cls\r\n@echo off\r\n";
    else
        out += "@echo off\r\ncls\r\nset uharc_opt= -d2\r\n";
    if (!commandPieces.workingFolder().isEmpty())
        out += "cd /d \"" + ToScriptEncoding(commandPieces.workingFolder()) + "\"\r\n";
    for (const Fragment& f : commandPieces.fragments())
        out += ToScriptEncoding(f.text());
    if (last == LastLine::LineEnd)
        out += "\r\n";
    return out;
}

QString ValueProblemForEngine(const QString& value, const QString& field, bool secret,
                              const EngineTextCodecs& engine) {
    if (!engine.windows)
        return QString();
    bool ascii = true;
    for (const QChar c : value)
        ascii = ascii && c.unicode() < 0x80;
    if (!ascii && !LocaleInstalled(engine.locale)) {
        const QString install = LocaleMissingMessage(engine.locale);
        if (secret)
            return QCoreApplication::translate(
                       "JobScript", "The password holds letters beyond ASCII. %1 Nothing was run.")
                .arg(install);
        return QCoreApplication::translate(
                   "JobScript", "The %1\n%2\nholds letters beyond ASCII. %3 Nothing was run.")
            .arg(shownField(field), value, install);
    }
    // The engine reads a name through the ANSI code page and keeps it in the OEM one: a
    // letter either lacks does not come back (the real engine then says it cannot read the
    // file, "?uro.txt" for "€uro.txt" under code page 437).
    const QString lackAnsi = engine.names.lacking(value);
    const QString lackOem = engine.text.lacking(value);
    if (lackAnsi.isEmpty() && lackOem.isEmpty())
        return QString();
    QString missing = lackAnsi;
    for (const QChar c : lackOem) {
        if (!missing.contains(c))
            missing += c;
    }
    QString pages;
    if (!lackAnsi.isEmpty() && !lackOem.isEmpty() && engine.pages.ansi != engine.pages.oem)
        pages = QCoreApplication::translate("JobScript", "(its code pages %1 and %2 lack them)")
                    .arg(QString::number(engine.pages.ansi), QString::number(engine.pages.oem));
    else
        pages =
            QCoreApplication::translate("JobScript", "(its code page %1 lacks them)")
                .arg(QString::number(lackAnsi.isEmpty() ? engine.pages.oem : engine.pages.ansi));
    // The letters of a password are never shown. Each letter is named too: a Cyrillic "о"
    // looks like a Latin "o".
    QString letters;
    if (!secret) {
        QStringList each;
        for (qsizetype i = 0; i < missing.size(); ++i) {
            const qsizetype n = missing[i].isHighSurrogate() && i + 1 < missing.size() ? 2 : 1;
            const QString letter = missing.mid(i, n);
            each << QStringLiteral("\"%1\" (%2)").arg(letter, UnicodeName(letter));
            i += n - 1;
        }
        letters = QStringLiteral(": ") + each.join(QStringLiteral(", "));
    }
    const QString locale = secret ? QString() : LocaleForLetters(missing);
    const QString goOn =
        locale.isEmpty()
            ? QCoreApplication::translate("JobScript",
                                          "start Quovara with \"--archive-locale LOCALE\" "
                                          "naming a locale whose code pages have them.")
            : QCoreApplication::translate("JobScript",
                                          "start Quovara with \"--archive-locale %1\", a locale "
                                          "whose code pages have them.")
                  .arg(locale);
    if (secret)
        return QCoreApplication::translate(
                   "JobScript",
                   "The password holds letters that the engine cannot take under the locale %1 "
                   "%2. Nothing was run. To go on, choose a password with other letters, or %3")
            .arg(engine.locale, pages, goOn);
    return QCoreApplication::translate(
               "JobScript",
               "The %1\n%2\nholds letters that the engine cannot take under the locale %3%4 %5. "
               "Nothing was run. To go on, rename it with other letters, or %6")
        .arg(shownField(field), value, engine.locale, letters, pages, goOn);
}

QString CommandPiecesProblem(const CommandPieces& commandPieces, const EngineTextCodecs& engine) {
    const QStringList job = SplitPieces(commandPieces).arguments;
    // The working folder reaches the engine as its current folder, never as text it reads, so
    // only its line must stay one line.
    if (holdsLineBreak(commandPieces.workingFolder()))
        return QCoreApplication::translate("JobScript",
                                           "The folder\n%1\nholds a line break, which a job "
                                           "script cannot carry. Nothing was run.")
            .arg(QString(commandPieces.workingFolder())
                     .replace(QLatin1Char('\r'), QStringLiteral("\\r"))
                     .replace(QLatin1Char('\n'), QStringLiteral("\\n"))
                     .replace(QChar(0), QStringLiteral("\\0")));
    for (const Fragment& f : commandPieces.fragments()) {
        for (const ScriptPart& p : f.parts()) {
            const bool secret = p.field == QLatin1String("password");
            if (holdsLineBreak(p.text)) {
                if (secret)
                    return QCoreApplication::translate("JobScript",
                                                       "The password holds a line break, which a "
                                                       "job line cannot carry. Nothing was run.");
                return QCoreApplication::translate("JobScript",
                                                   "The %1 holds a line break, which a job line "
                                                   "cannot carry:\n%2\nNothing was run.")
                    .arg(shownField(fieldName(p)),
                         QString(p.text)
                             .replace(QLatin1Char('\r'), QStringLiteral("\\r"))
                             .replace(QLatin1Char('\n'), QStringLiteral("\\n"))
                             .replace(QChar(0), QStringLiteral("\\0")));
            }
            if (engine.windows && p.isValue) {
                QString value = p.text;
                QString field = fieldName(p);
                if (const auto seen = pathSeenPlain(p.field, job); seen == PlainPath::Whole)
                    continue;
                else if (seen == PlainPath::FileName) {
                    value = value.mid(std::max(value.lastIndexOf(QLatin1Char('/')),
                                               value.lastIndexOf(QLatin1Char('\\'))) +
                                      1);
                    field = QStringLiteral("archive name");
                }
                const QString why = ValueProblemForEngine(value, field, secret, engine);
                if (!why.isEmpty())
                    return why;
            }
        }
    }
    return QString();
}

// Writes `bytes` to `path` without following a link, private to the user. Empty on success,
// otherwise the reason.
QString WritePrivateFile(const QString& path, const QByteArray& bytes) {
#ifdef Q_OS_UNIX
    const QByteArray name = QFile::encodeName(path);
    const int fd =
        ::open(name.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0) {
        if (errno == ELOOP)
            return QCoreApplication::translate("JobScript",
                                               "a symbolic link stands where the file belongs");
        return QString::fromLocal8Bit(std::strerror(errno));
    }
    struct stat st;
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_uid != ::geteuid()) {
        ::close(fd);
        return QCoreApplication::translate(
            "JobScript", "the file that stands where the file belongs is not ours");
    }
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.constData() + done, size_t(bytes.size() - done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            const QString why = QString::fromLocal8Bit(std::strerror(errno));
            ::close(fd);
            return why;
        }
        done += n;
    }
    if (::close(fd) != 0)
        return QString::fromLocal8Bit(std::strerror(errno));
    return QString();
#else
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return file.errorString();
    if (file.write(bytes) != bytes.size())
        return file.errorString();
    file.close();
    return QString();
#endif
}

bool WriteJobScript(const QString& path, Preamble preamble, const CommandPieces& commandPieces,
                    LastLine last, QString* error) {
    auto refuse = [&](const QString& why) {
        qCDebug(lcRunner) << "job script" << path << "refused:" << why;
        if (error)
            *error = why;
        return false;
    };
    const ParsedJob job = SplitPieces(commandPieces);
    EngineTextCodecs engine;
    if (!job.arguments.isEmpty()) {
        const QFileInfo program(job.arguments.first());
        const QString resolved = ResolveEngineFile(program.absolutePath(), program.fileName());
        if (!resolved.isEmpty() && IsWindowsExecutable(resolved))
            engine = WindowsEngineCodecs(EngineLocale());
    }
    const QString problem = CommandPiecesProblem(commandPieces, engine);
    if (!problem.isEmpty())
        return refuse(problem);
    // The folder must be private to the user: the WorkFolder is checked (and made when
    // missing) with the private TempRoot it lives in; any other folder is checked as it is.
    const QString folder = QDir::cleanPath(QFileInfo(path).absolutePath());
    if (folder == QDir::cleanPath(WorkFolder())) {
        const QString message = EnsurePrivateWorkFolder();
        if (!message.isEmpty())
            return refuse(message);
    } else {
        const QString folderProblem = PrivateFolderProblem(folder, false);
        if (!folderProblem.isEmpty())
            return refuse(WorkFolderMessage(folder, folderProblem));
    }

    WrittenScript written;
    written.bytes = JobScriptBytes(preamble, commandPieces, last);
    written.job = job;
    if (preamble == Preamble::Job)
        written.job.environment.append({QStringLiteral("uharc_opt"), QStringLiteral(" -d2")});
    // Forget the old script first: a failed write must not leave it runnable.
    writtenScripts().remove(scriptKey(path));
    const QString why = WritePrivateFile(path, written.bytes);
    if (!why.isEmpty())
        return refuse(
            QCoreApplication::translate("JobScript", "The job script %1 cannot be written: %2.")
                .arg(path, why));
    writtenScripts().insert(scriptKey(path), written);
    return true;
}

std::optional<WrittenScript> WrittenJobScript(const QString& path) {
    const auto it = writtenScripts().constFind(scriptKey(path));
    if (it == writtenScripts().constEnd())
        return std::nullopt;
    return *it;
}

} // namespace quovara
