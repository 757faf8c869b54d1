#include "console_key.h"

#include <cerrno>
#include <csignal>
#include <termios.h>
#include <unistd.h>

namespace standin {

namespace {

constexpr int kEndingSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};
constexpr int kSignalCount = sizeof kEndingSignals / sizeof kEndingSignals[0];

struct termios g_savedTerminal;
volatile sig_atomic_t g_terminalChanged = 0;
struct sigaction g_previous[kSignalCount];
bool g_installed[kSignalCount];

// Puts the terminal back before the signal ends the program: the handler is reset to the
// default on entry (SA_RESETHAND), so the signal raised again here takes its default action
// as soon as the handler returns.
void restoreTerminalAndEnd(int sig) {
    if (g_terminalChanged)
        tcsetattr(STDIN_FILENO, TCSANOW, &g_savedTerminal);
    raise(sig);
}

void installHandlers() {
    for (int i = 0; i < kSignalCount; ++i) {
        g_installed[i] = false;
        struct sigaction current {};
        // A signal the caller chose to ignore (nohup) stays ignored.
        if (sigaction(kEndingSignals[i], nullptr, &current) != 0 || current.sa_handler == SIG_IGN)
            continue;
        struct sigaction sa {};
        sa.sa_handler = restoreTerminalAndEnd;
        sigemptyset(&sa.sa_mask);
        sa.sa_flags = SA_RESETHAND;
        g_installed[i] = sigaction(kEndingSignals[i], &sa, &g_previous[i]) == 0;
    }
}

void removeHandlers() {
    for (int i = 0; i < kSignalCount; ++i)
        if (g_installed[i])
            sigaction(kEndingSignals[i], &g_previous[i], nullptr);
}

} // namespace

int readOneKey() {
    const bool terminal = isatty(STDIN_FILENO) && tcgetattr(STDIN_FILENO, &g_savedTerminal) == 0;
    if (terminal) {
        installHandlers();
        struct termios raw = g_savedTerminal;
        raw.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
        raw.c_cc[VMIN] = 1;
        raw.c_cc[VTIME] = 0;
        g_terminalChanged = 1;
        tcsetattr(STDIN_FILENO, TCSANOW, &raw);
    }
    unsigned char key = 0;
    ssize_t n;
    do {
        n = read(STDIN_FILENO, &key, 1);
    } while (n < 0 && errno == EINTR);
    if (terminal) {
        tcsetattr(STDIN_FILENO, TCSANOW, &g_savedTerminal);
        g_terminalChanged = 0;
        removeHandlers();
    }
    return n == 1 ? key : -1;
}

} // namespace standin
