// "quovara --install-engine FILE...": copies the engine and its stored versions into the
// per-user program folder and checks that the launcher can run the engine. Console only; no
// window is ever opened.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class QTextStream;

namespace quovara {

// The command-line switch.
inline constexpr char InstallEngineSwitch[] = "--install-engine";

// The packages that give Debian the launcher with its 32-bit part, as the command to type.
inline constexpr char WineInstallCommand[] =
    "sudo dpkg --add-architecture i386 && sudo apt update && sudo apt install wine wine32";

// The names the installer takes, as they are written in the program folder: the engine, its
// stored versions and the SFX stub.
QStringList InstallableEngineFileNames();

// The program-folder name for a file name given in any case ("UHARC.EXE" -> "uharc.exe",
// "uharc0.4.FNS" -> "Uharc0.4.fns"); empty when the name is not one of them.
QString InstallableEngineFileName(const QString& fileName);

// The folder the installer writes to: QUOVARA_PROGRAM_DIR when set, else the per-user data
// folder (~/.local/share/quovara or $XDG_DATA_HOME/quovara), created when missing.
QString EngineInstallFolder();

// A program run on a pseudo-terminal of its own (the engine needs a console), in `folder`,
// with a time limit. The output is everything written to the terminal.
struct TerminalRun {
    bool started = false;
    bool timedOut = false;
    int exitCode = -1; // -1: ended by a signal, or not started
    QString startError;
    QByteArray output;
};
// `stopAfterSeen`: once this text has appeared in the output, the program gets a short grace
// time to end on its own and is then ended.
TerminalRun RunOnTerminal(const QString& program, const QStringList& arguments,
                          const QString& folder, int timeoutMs,
                          const QByteArray& stopAfterSeen = QByteArray());

// What the launcher check found.
struct EngineCheck {
    enum Result {
        Runs,               // the engine started and printed its banner
        NoEngine,           // no uharc.exe in the folder
        NoLauncher,         // a Windows engine and no launcher (wine)
        LauncherIncomplete, // the launcher cannot run 32-bit Windows programs
        NoBanner            // the engine did not print its banner in time
    };
    Result result = NoEngine;
    QString engine;
    QString launcher; // empty when the engine runs without one
    QString banner;   // the output line that holds "UHARC"
    QString output;   // everything written, for the report
};

// Runs the folder's engine (through the launcher for a Windows program) on a pseudo-terminal
// and looks for its banner "UHARC".
EngineCheck CheckEngine(const QString& folder, int timeoutMs);

// The whole command: `files` are the arguments after the switch. Reports go to `out`, errors
// to `err`. Answers the exit status: 0 installed and the engine runs; 1 nothing to do, an
// unknown name or a file that could not be copied; 2 the engine is missing or printed no
// banner; 3 the launcher is missing or cannot run the engine.
int InstallEngineCommand(const QStringList& files, QTextStream& out, QTextStream& err);

} // namespace quovara
