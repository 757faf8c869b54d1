// The program's options: one table gives their names, what they take, the help text and the
// parsing, so that `--help`, the manual page and the README can be checked against it.
//
// Adding an option: a value in OptionId, a row in the table (options.cpp), and its handler in
// main() (the switch on OptionId).
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <span>
#include <vector>

namespace quovara {

enum class OptionId { Help, Version, InstallEngine, ArchiveLocale, ExtractHere, Convert };

// What an option takes after its name.
enum class OptionTakes {
    Nothing, // "--help"
    Value,   // one value: "--name VALUE" or "--name=VALUE"
    Rest     // every argument after it: "--install-engine FILE..."
};

struct CommandOption {
    OptionId id;
    const char* name;      // "--help"
    const char* shortName; // "-h"; "" when there is none
    OptionTakes takes;
    const char* valueName;   // how --help names what it takes ("FILE..."); "" for Nothing
    const char* description; // for --help; wrapped there
};

// The program's options, in the order --help lists them.
std::span<const CommandOption> ProgramOptions();

// Every name of the table's options, long and short ("-h", "--help", ...).
QStringList OptionNames(std::span<const CommandOption> options = ProgramOptions());

// The argument that ends the options: what follows is taken as it is, even "-h" or "--x".
inline constexpr char EndOfOptions[] = "--";

struct OptionUse {
    const CommandOption* option = nullptr;
    QStringList values; // the value, or every argument after a Rest option
};

struct ParsedArguments {
    // The options given, in their order.
    std::vector<OptionUse> options;
    // Every other argument, in order, without the "--" that ends the options: a request word
    // and its path, an archive, and Qt's own options ("-platform offscreen"). An argument that
    // starts with a single "-" and is not in the table is one of these.
    QStringList operands;
    // The position of each operand in the argument list.
    QList<int> operandIndex;
    // How many operands came before "--" (all of them when there is none). Only those are
    // shown to Qt, which takes its own options out of them; those after "--" stay as they are.
    qsizetype operandsBeforeEnd = 0;
    // A misuse, as the message says it ("unrecognized option '--x'"); empty when fine.
    QString error;
};

// Reads the program's arguments (without the program name). Before "--", an argument that
// starts with "--" must be an option of the table (exact name, "--name=VALUE" for an option
// that takes a value); so must a short name. Everything else is an operand.
ParsedArguments ParseArguments(const QStringList& arguments,
                               std::span<const CommandOption> options = ProgramOptions());

// What is wrong with the values of "--convert FORMAT ARCHIVE...", as a misuse message; empty
// when they are fine.
QString ConvertArgumentsProblem(const QStringList& values);

// The two lines printed on standard error for a misuse.
QString UsageErrorText(const QString& error);

// The text of `quovara --help`.
QString HelpText(std::span<const CommandOption> options = ProgramOptions());

// "Quovara <version>": the package's version.
QString ProgramVersionLine();

} // namespace quovara
