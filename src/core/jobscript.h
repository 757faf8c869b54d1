// JobScripts: the small batch files that every engine run goes through. They are always written
// in one exact shape (CR LF line ends, a fixed preamble, the command line last), whatever runs
// them afterwards.
//
// A command line is made of fragments, and each fragment of parts: fixed text of the engine's
// grammar (switches, quotes, blanks) and values (a path, a password, a pattern). The script holds
// all of them one after the other, exactly as written. The job that runs is taken from the same
// parts, never from a re-reading of the text: the fixed text alone decides where arguments begin
// and end, and a value stays inside its argument whatever it holds (quotes, blanks, ">").
#pragma once

#include "enginelocale.h"
#include "scriptexec.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <initializer_list>
#include <optional>

namespace quovara {

struct ScriptPart {
    QString text;
    bool isValue = false;
    // What the value is, for messages: "archive", "password", "source", ...
    QString field;
    bool operator==(const ScriptPart&) const = default;
};

class Fragment {
public:
    Fragment() = default;
    // Fixed text of the grammar.
    Fragment(const QString& fixedText);
    Fragment(const char* fixedText);
    // A value named by `field`.
    static Fragment Value(const QString& text, const QString& field);

    Fragment& operator+=(const Fragment& other);
    // The text as the script holds it.
    QString text() const;
    const QList<ScriptPart>& parts() const { return parts_; }

private:
    QList<ScriptPart> parts_;
};

Fragment operator+(Fragment a, const Fragment& b);
bool operator==(const Fragment& a, const QString& b);
void PrintTo(const Fragment& f, std::ostream* os);

// The command line of a job: its fragments in order.
class CommandPieces {
public:
    CommandPieces() = default;
    CommandPieces(std::initializer_list<Fragment> fragments);
    // Every text taken as fixed text.
    CommandPieces(const QStringList& texts);

    CommandPieces& operator<<(const Fragment& fragment);
    const QList<Fragment>& fragments() const { return fragments_; }
    // One text per fragment, as the script holds them.
    QStringList texts() const;
    bool isEmpty() const { return fragments_.isEmpty(); }

    // The folder the command runs in; empty: the folder the caller chooses. A job script
    // shows it as a "cd /d" line before the command, so the script tells what ran.
    void setWorkingFolder(const QString& folder) { workingFolder_ = folder; }
    const QString& workingFolder() const { return workingFolder_; }

private:
    QList<Fragment> fragments_;
    QString workingFolder_;
};

// The fragments joined: the command line exactly as it stands in the script.
QString CommandLine(const CommandPieces& pieces);

// The job a command line asks for, from its parts: arguments with the Windows rules (blanks
// separate, double quotes group and are removed) applied to the fixed text only, and the target
// of a ">" in the fixed text.
ParsedJob SplitPieces(const CommandPieces& pieces);

enum class Preamble {
    // "cls", "@echo off": the list script.
    List,
    // "@echo off", "cls", "set uharc_opt= -d2": add, extract, test and single-item scripts.
    Job,
};

enum class LastLine {
    // The command line is the end of the file (every script but one).
    NoLineEnd,
    // The command line ends with CR LF (the test script).
    LineEnd,
};

// Scripts are written in the platform's ANSI code page: the locale's encoding (UTF-8) here, so
// that every name and password round-trips byte for byte.
QByteArray ToScriptEncoding(const QString& text);

// The exact bytes of a script: preamble lines ended by CR LF, then, for pieces with a working
// folder, the line "cd /d " + '"' + folder + '"' ended by CR LF, then the command pieces written
// one after the other with nothing between them.
QByteArray JobScriptBytes(Preamble preamble, const CommandPieces& commandPieces,
                          LastLine last = LastLine::NoLineEnd);

// Why a value (a name, a pattern, a password) cannot reach a Windows engine run under
// `engine.locale`, in words for the user; empty when it can (always for a native engine). The
// engine reads its command line in the ANSI code page of its locale: a letter that code page
// lacks reaches it as "?". The message names the letters (never those of a password), the code
// page and the locale; under a locale that is not installed every letter beyond ASCII is
// refused, since wine garbles them all.
QString ValueProblemForEngine(const QString& value, const QString& field, bool secret,
                              const EngineTextCodecs& engine);

// Why the pieces cannot make a script, in words for the user; empty when they can. A part that
// holds a line break or a NUL cannot stand on one script line; for a Windows engine, a value
// must also pass ValueProblemForEngine.
QString CommandPiecesProblem(const CommandPieces& commandPieces, const EngineTextCodecs& engine);

// Writes the script (replacing an older one) into a private folder, without following a link,
// and remembers what was written so that only that script, unchanged, can be run. False when
// it is refused or cannot be written; `error` (when given) then says why in words for the user.
bool WriteJobScript(const QString& path, Preamble preamble, const CommandPieces& commandPieces,
                    LastLine last = LastLine::NoLineEnd, QString* error = nullptr);

// Writes `bytes` to `path` (replacing a file of ours) without following a link, readable by the
// user alone (0600). Empty on success, otherwise the reason in words.
QString WritePrivateFile(const QString& path, const QByteArray& bytes);

// What this program wrote to a script path: the bytes and the job they ask for. Empty for a
// path this program has not written.
struct WrittenScript {
    QByteArray bytes;
    ParsedJob job;
};
std::optional<WrittenScript> WrittenJobScript(const QString& path);

// The SFX settings record's text in the ANSI code page of the engine's locale (1252 under
// an English locale, 1251 under a Russian one ...), so that "€", curly quotes and dashes
// survive; '?' for what the code page lacks.
QByteArray ToAnsi(const QString& text);

} // namespace quovara
