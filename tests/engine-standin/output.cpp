#include "output.h"

#include <algorithm>
#include <csignal>

#include <unistd.h>

namespace standin {

namespace {

enum class FaultKind { None, Exit, Signal, Hang, NoSpace };

struct Fault {
    FaultKind kind = FaultKind::None;
    int value = 0;
    bool done = false;
};

Fault g_fault;

bool numberIn(const std::string& s, int lo, int hi, int& out) {
    if (s.empty() || s.size() > 3 ||
        !std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return false;
    out = std::stoi(s);
    return out >= lo && out <= hi;
}

} // namespace

void readFault() {
    const char* v = std::getenv("QUOVARA_STANDIN_FAULT");
    if (!v || !*v)
        return;
    const std::string value = v;
    Fault f;
    if (value == "hang")
        f.kind = FaultKind::Hang;
    else if (value == "enospc")
        f.kind = FaultKind::NoSpace;
    else if (value.rfind("exit:", 0) == 0 && numberIn(value.substr(5), 0, 255, f.value))
        f.kind = FaultKind::Exit;
    else if (value.rfind("signal:", 0) == 0 && numberIn(value.substr(7), 1, SIGRTMAX, f.value))
        f.kind = FaultKind::Signal;
    if (f.kind == FaultKind::None) {
        std::fprintf(stderr,
                     "QUOVARA_STANDIN_FAULT=\"%s\" names no fault (exit:N, signal:N, hang, "
                     "enospc)\n",
                     v);
        std::exit(2);
    }
    g_fault = f;
}

void faultPoint(Output& out, const std::function<void()>& cleanUp) {
    if (g_fault.kind == FaultKind::None || g_fault.done)
        return;
    g_fault.done = true;
    out.flush();
    switch (g_fault.kind) {
    case FaultKind::None:
        return;
    case FaultKind::Exit:
        std::_Exit(g_fault.value);
    case FaultKind::Signal: {
        std::signal(g_fault.value, SIG_DFL);
        sigset_t set;
        sigemptyset(&set);
        sigaddset(&set, g_fault.value);
        sigprocmask(SIG_UNBLOCK, &set, nullptr);
        std::raise(g_fault.value);
        return;
    }
    case FaultKind::Hang:
        for (;;)
            pause();
    case FaultKind::NoSpace:
        if (cleanUp)
            cleanUp();
        out.fail("No space left on device", out.progressOpen());
    }
}

} // namespace standin
