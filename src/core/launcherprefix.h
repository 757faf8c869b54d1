// The wine prefix of the engine's own. The engine runs in a prefix that belongs to this program
// (32-bit, under the user's data folder), never in the user's own ~/.wine: it is made on first
// use without any window or installer prompt, and every process started in it ends with the
// program.
#pragma once

#include <QProcessEnvironment>
#include <QString>

#include <functional>

namespace quovara {

// QUOVARA_WINEPREFIX when set; else "wine" in the per-user data folder
// (~/.local/share/quovara/wine).
QString LauncherPrefixFolder();

// Puts the prefix's variables into the environment of a launcher, its server or the engine:
// WINEPREFIX, WINEARCH=win32, WINEDEBUG=-all, no Mono or Gecko installer and no desktop menu
// entries (WINEDLLOVERRIDES), no display (the engine is a console program, and a window of
// wine's own could pop up while a prefix is made); and LC_ALL when an archive locale is chosen.
void ApplyLauncherEnvironment(QProcessEnvironment& environment);
QProcessEnvironment LauncherEnvironment();

// True when the prefix has been made (its system registry exists).
bool LauncherPrefixReady();

// Told when the prefix is being made (true) and when that is over (false), so that the user
// sees "Preparing the engine for its first use…" instead of a silent wait.
using PrefixPreparingNotice = std::function<void(bool preparing)>;
void SetPrefixPreparingNotice(PrefixPreparingNotice notice);

// The text shown while the prefix is made.
QString PreparingEngineText();

// Makes the prefix with `launcher` ("wineboot -i") when it is not ready, waiting in an event
// loop (the window stays live) for at most `timeoutSeconds`. True when it is ready; otherwise
// `error` says why in words for the user.
bool EnsureLauncherPrefix(const QString& launcher, QString* error = nullptr,
                          int timeoutSeconds = 300);

// Ends every process of the prefix: the server is asked to end them all ("wineserver -k" with
// the prefix's variables), and any process of this user still left whose environment names the
// prefix is killed. Returns how many were killed by the second step.
int EndLauncherPrefixProcesses(const QString& serverProgram);

// The processes of this user whose environment names `prefix` as WINEPREFIX.
QList<qint64> ProcessesOfPrefix(const QString& prefix);

} // namespace quovara
