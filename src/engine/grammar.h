// The engine's command-line vocabulary: every command letter and switch that the jobs write,
// with its exact spelling and spacing, and the builders that put the Add and Extract lines
// together from the dialogs' choices.
//
// A command line is a list of pieces appended one after the other with nothing between them.
// Most pieces carry their own leading or trailing blank, so the spacing of the line (two blanks
// in a row in some places, none in others) comes from the pieces themselves. Nothing is quoted,
// escaped or validated beyond what a piece says: a quote inside a password stands unescaped in
// the script. Paths, passwords and patterns are values of their pieces (core/jobscript.h), so
// the job that runs keeps each of them inside its own argument.
#pragma once

#include "core/jobscript.h"
#include "core/places.h"

#include <QString>
#include <QStringList>

namespace quovara {

namespace fragment {
inline constexpr char Add[] = "a ";
inline constexpr char Move[] = "m ";
inline constexpr char ExtractWithPaths[] = "x ";
inline constexpr char ExtractFlat[] = "e ";
inline constexpr char List[] = " l -d2 -y+ -lg";
inline constexpr char Test[] = " t -y+ ";
inline constexpr char SingleItemExtract[] = " e  -o+ -t";
inline constexpr char YesToAll[] = " -y+ ";
inline constexpr char RecurseOn[] = "-r+ ";
inline constexpr char RecurseOff[] = "-r- ";
inline constexpr char Multimedia[] = "-mm+ ";
inline constexpr char DictionaryFlag[] = "-md+ ";
inline constexpr char OverwriteOn[] = " -o+ ";
inline constexpr char OverwriteOff[] = " -o- ";
// The engine's file name as the add, extract and list lines spell it, and as the test and
// single-item lines spell it (one file on the engine's file system).
inline constexpr char EngineName[] = "uharc.exe";
inline constexpr char EngineNameUpper[] = "UHARC.exe";
} // namespace fragment

// The method list of the Add dialog, by position.
inline constexpr int MethodCount = 6;
// "Store", "ALZ Fast", "ALZ Normal", "ALZ Best", "PPM", "LZP".
QStringList MethodItems();
// "1024" ... "32768".
QStringList DictionaryItems();
inline constexpr int DefaultMethodPosition = 2;
inline constexpr int DefaultDictionaryPosition = 2;

// '"' + programFolder + sep + "uharc.exe" + '"' + ' '.
Fragment EngineFragment(const QString& programFolder, PathStyle style);
// The method switch of a list position ("-m0 " ... "-mz "); empty outside 0..5.
QString MethodFragment(int position);
// "-md" + size text + ' '.
Fragment DictionarySizeFragment(const QString& sizeText);
// "-pw" + '"' + password + '"' + ' ' (the password as it stands, even when empty).
Fragment PasswordFragment(const QString& password);
// "-t" + '"' + folder + '"'.
Fragment TargetFragment(const QString& folder);
// '"' + archive + '"' + ' ' (Add) or without the blank (Extract).
Fragment AddArchiveFragment(const QString& archive);
Fragment ExtractArchiveFragment(const QString& archive);
// '"' + folder + sep + pattern + '"' + ' '.
Fragment AddIncludeFragment(const QString& sourceFolder, const QString& pattern, PathStyle style);
// '"' + folder + sep + "*.*" + '"'.
Fragment WholeFolderFragment(const QString& sourceFolder, PathStyle style);
// '"' + file + '"'.
Fragment SingleFileFragment(const QString& file);
// ' ' + '"' + pattern + '"'.
Fragment ExtractIncludeFragment(const QString& pattern);
// " !" + '"' + pattern + '"'.
Fragment ExcludeFragment(const QString& pattern);
// " @" + '"' + list file + '"'.
Fragment ListFileFragment(const QString& listFile);
// " > " + tempRoot + sep + "Corvana" + sep + "das.txt", not quoted.
Fragment RedirectFragment(const QString& tempRoot, PathStyle style);

// Splits a pattern text at every comma. Elements are kept exactly as they come out (blanks
// around commas stay, two adjacent commas give an empty element); an empty text gives none.
QStringList SplitPatterns(const QString& text);

// Which files of the source or archive a job takes.
enum class FileChoice {
    AllFiles,  // "All Files"
    FileTypes, // "Only These Files"
    FileList,  // "By File List (Full Path)"
};

// What the Add dialog's controls say when OK is pressed. Only what influences the line is here;
// "Multimedia Compression" and "Dictionary" are shown by the dialog but change nothing.
struct AddOptions {
    bool move = false;   // "Create and Move File" instead of "Create and Add"
    bool recurse = true; // "Include Subdirectories "
    int methodPosition = DefaultMethodPosition; // -1 when nothing is chosen
    QString dictionary = QStringLiteral("4096");
    bool passwordTicked = false;
    QString password;
    QString archive;
    bool sourceIsFolder = true;
    QString source; // the item selected in the main window's browser
    FileChoice choice = FileChoice::AllFiles;
    QString fileTypes;
    QString listFile;
    bool excludeTicked = false;
    QString exclude;
};

// The Add dialog's method switch. It starts empty and keeps the last chosen switch for the
// life of the dialog: a job with no method chosen writes whatever the previous job wrote.
class MethodMemory {
public:
    // Takes the switch of `position` when it is one of the six, then returns the kept switch.
    QString choose(int position);
    const QString& current() const { return switch_; }

private:
    QString switch_;
};

struct ExtractOptions {
    bool toCurrentDir = false; // "Extract files to current dir"
    bool fullPath = false;     // "Extract files with full path"
    QString destination;       // the selected folder; a trailing separator is dropped
    bool overwrite = false;    // "Overwrite files"
    bool passwordTicked = false;
    QString password;
    QString archive;
    FileChoice choice = FileChoice::AllFiles;
    QString fileTypes;
    QString listFile;
    bool excludeTicked = false;
    QString exclude;
    // Stored names that must never reach the engine's extraction (their names are unsafe):
    // each is excluded by name, after the user's own exclusions.
    QStringList leftOut;
};

// Where an Add job runs and what it names: the folder that holds the chosen item, and the
// item's own name. The engine stores names as they are given, so run from there the archive's
// top level is the chosen item itself ("Docs\a.txt"), never the path above it
// ("home\anna\Docs\a.txt"). A root folder, which has nothing above it, is named as it is
// and the folder is empty.
struct AddSourceParts {
    QString folder;
    QString name;
};
AddSourceParts SplitAddSource(const QString& source);

// The command pieces of an Add line (engine to redirection), in order, to run in the folder
// that holds the source (SplitAddSource). The source is named relative to that folder, its
// parts joined by "\", the separator the engine stores ("/" would be stored as it stands).
// `methods` is the dialog's method memory and is updated from `options.methodPosition`.
CommandPieces AddCommandPieces(const AddOptions& options, MethodMemory& methods,
                               const QString& programFolder, const QString& tempRoot,
                               PathStyle style);
CommandPieces ExtractCommandPieces(const ExtractOptions& options, const QString& programFolder,
                                   const QString& tempRoot, PathStyle style);

// The list line: '"' + engine + '"', " l -d2 -y+ -lg", the log path + ' ', the password
// fragment when a password is known, the quoted archive.
CommandPieces ListCommandPieces(const QString& programFolder, const QString& tempRoot,
                                const QString& password, const QString& archive, PathStyle style);
// The test line: '"' + engine ("UHARC.exe") + '"', " t -y+ ", the quoted archive, the
// redirection. Its script ends the line with a line break.
CommandPieces TestCommandPieces(const QString& programFolder, const QString& tempRoot,
                                const QString& archive, PathStyle style);
// The single-item line: '"' + engine ("UHARC.exe") + '"' + " e  -o+ -t" + '"' + WorkFolder +
// '"' + " -y+ ", the password fragment when a password is known, then the quoted archive, a
// blank and the quoted item, then an exclusion for each name of `leftOut`. No redirection.
CommandPieces SingleItemCommandPieces(const QString& programFolder, const QString& tempRoot,
                                      const QString& password, const QString& archive,
                                      const QString& item, PathStyle style,
                                      const QStringList& leftOut = {});

// Writes the Add or Extract job script ("@echo off", "cls", "set uharc_opt= -d2", then the line
// without a line end). False when it is refused or cannot be written; `error` then says why.
bool WriteAddJobScript(const QString& scriptPath, const AddOptions& options, MethodMemory& methods,
                       const QString& programFolder, const QString& tempRoot, PathStyle style,
                       QString* error = nullptr);
bool WriteExtractJobScript(const QString& scriptPath, const ExtractOptions& options,
                           const QString& programFolder, const QString& tempRoot, PathStyle style,
                           QString* error = nullptr);

} // namespace quovara
