// The launcher's server kept warm for the jobs of one session.
//
// Every run of a Windows engine through wine needs the wine server; started by wine itself, it
// ends soon after the engine, so each job pays the server's cold start. The first job of a
// session starts the server here instead, persistent and in the foreground as this program's
// own child, in the engine's own wine prefix, so the following jobs find it running. It ends
// with the program (also when the program dies: the kernel sends it SIGTERM), together with
// every process of the prefix, and it is started again when it has ended. No job depends on
// it: wine starts a server of its own when none runs.
#pragma once

#include <QString>

namespace quovara {

class LauncherServer {
public:
    // Starts the server once per session (again if it has ended since), next to `launcher`:
    // QUOVARA_WINESERVER when set, else "wineserver" beside the launcher, else on the PATH.
    // Does nothing when no server program is found.
    static void EnsureRunning(const QString& launcher);
    // Ends every process of the engine's wine prefix when a launcher was used in this session
    // (wine's helpers too), and the server this program started, if it still runs.
    static void Shutdown();
    // The server program that would be started for `launcher`, or empty.
    static QString ServerFor(const QString& launcher);
    // The server's process id while it runs, else 0.
    static qint64 ProcessId();
};

} // namespace quovara
