// The stand-in launcher: plays wine for the tests, so that the code-page and wine-prefix paths
// of the program run without wine. A test fixture, not wine.
//
//   wine-standin <engine> <arguments...>
//       <engine> is a file that starts with "MZ" (a Windows program for the program that starts
//       it) and holds a line "standin=<path of the stand-in engine>". The arguments' launcher
//       paths ("Z:\a\b", also after -t, -lg, @ and !) are turned back into host paths, the code
//       pages of the locale (LC_ALL, else LC_CTYPE, else LANG) are handed to the stand-in engine
//       as QUOVARA_STANDIN_CODEPAGES, and the engine is run in place of the launcher.
//   wine-standin wineboot [-i]
//       makes the prefix $WINEPREFIX (its system.reg), after QUOVARA_STANDIN_WINEBOOT_MS
//       milliseconds, and counts the runs in $WINEPREFIX/wineboot.count.
//   wineserver [-f] [-p<seconds>] | wineserver -k    (the same program under that name)
//       serves until it is ended; "-k" ends the server and the helpers of the prefix (their
//       process ids are in $WINEPREFIX/helpers.pid) unless QUOVARA_STANDIN_WINESERVER_DEAF is
//       set, in which case it does nothing, as a server that does not answer.
//
// Every run that starts an engine also leaves a lingering helper behind when
// QUOVARA_STANDIN_WINE_HELPER_SECONDS is set, as wine leaves its own helper processes: a
// process in a session of its own, outside the job, that sleeps that long.
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

std::string env(const char* name) {
    const char* v = std::getenv(name);
    return v ? v : "";
}

std::string prefix() {
    return env("WINEPREFIX");
}

// The code pages of a locale for the few languages the tests use; an independent table, so
// that the program's own is checked against it.
std::string codePagesOf(std::string locale) {
    const auto cut = locale.find_first_of(".@");
    if (cut != std::string::npos)
        locale.resize(cut);
    const struct {
        const char* name;
        const char* pages;
    } table[] = {{"en_US", "437,1252"}, {"en_GB", "850,1252"}, {"de", "850,1252"},
                 {"fr", "850,1252"},    {"pl", "852,1250"},    {"cs", "852,1250"},
                 {"ru", "866,1251"},    {"uk", "866,1251"},    {"el", "737,1253"},
                 {"tr", "857,1254"},    {"ja", "932,932"},     {"zh_CN", "936,936"},
                 {"ko", "949,949"},     {"zh_TW", "950,950"}};
    for (const auto& t : table) {
        const std::string n = t.name;
        if (locale == n || (n.size() == 2 && locale.rfind(n + "_", 0) == 0))
            return t.pages;
    }
    return "437,1252";
}

std::string localeOfProcess() {
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const std::string v = env(name);
        if (!v.empty())
            return v;
    }
    return "C";
}

// "Z:\a\b" → "/a/b"; any other text stays.
std::string hostPath(const std::string& s) {
    if (s.size() < 3 || (s[0] != 'Z' && s[0] != 'z') || s[1] != ':' || s[2] != '\\')
        return s;
    std::string out = s.substr(2);
    for (char& c : out)
        if (c == '\\')
            c = '/';
    return out;
}

std::string hostArgument(const std::string& a) {
    for (const char* p : {"-t", "-lg", "@", "!"}) {
        const std::string pre = p;
        if (a.rfind(pre, 0) == 0 && a.size() > pre.size())
            return pre + hostPath(a.substr(pre.size()));
    }
    return hostPath(a);
}

void appendLine(const std::string& path, const std::string& line) {
    std::ofstream f(path, std::ios::app);
    f << line << "\n";
}

void leaveHelper() {
    const std::string seconds = env("QUOVARA_STANDIN_WINE_HELPER_SECONDS");
    if (seconds.empty() || prefix().empty())
        return;
    const pid_t first = fork();
    if (first != 0) {
        if (first > 0)
            waitpid(first, nullptr, 0);
        return;
    }
    // A session of its own, and an orphan: nothing but the prefix ties it to the program.
    setsid();
    const pid_t second = fork();
    if (second != 0)
        _exit(0);
    appendLine(prefix() + "/helpers.pid", std::to_string(getpid()));
    for (int fd = 0; fd < 3; ++fd)
        close(fd);
    execlp("sleep", "sleep", seconds.c_str(), static_cast<char*>(nullptr));
    _exit(127);
}

int wineboot() {
    const std::string p = prefix();
    if (p.empty())
        return 1;
    const std::string ms = env("QUOVARA_STANDIN_WINEBOOT_MS");
    if (!ms.empty())
        usleep(static_cast<useconds_t>(std::atoi(ms.c_str())) * 1000);
    mkdir(p.c_str(), 0700);
    std::ofstream(p + "/system.reg") << "WINE REGISTRY Version 2\n";
    appendLine(p + "/wineboot.count", "wineboot");
    appendLine(p + "/wineboot.env", "DISPLAY=" + env("DISPLAY") + " WINEARCH=" + env("WINEARCH") +
                                        " WINEDLLOVERRIDES=" + env("WINEDLLOVERRIDES"));
    return 0;
}

int wineserver(int argc, char** argv) {
    const bool kill = argc > 1 && std::strcmp(argv[1], "-k") == 0;
    if (!kill) {
        appendLine(prefix() + "/server.pid", std::to_string(getpid()));
        for (;;)
            pause();
    }
    if (!env("QUOVARA_STANDIN_WINESERVER_DEAF").empty())
        return 0;
    for (const char* list : {"/helpers.pid", "/server.pid"}) {
        std::ifstream f(prefix() + list);
        std::string line;
        while (std::getline(f, line)) {
            const long pid = std::atol(line.c_str());
            if (pid > 0)
                ::kill(static_cast<pid_t>(pid), SIGKILL);
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::string self = argv[0];
    const std::string name =
        self.substr(self.rfind('/') == std::string::npos ? 0 : self.rfind('/') + 1);
    if (name.find("wineserver") != std::string::npos)
        return wineserver(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: wine-standin <engine.exe> [arguments...]\n");
        return 2;
    }
    if (std::strcmp(argv[1], "wineboot") == 0)
        return wineboot();

    std::ifstream exe(argv[1], std::ios::binary);
    std::stringstream content;
    content << exe.rdbuf();
    const std::string text = content.str();
    const auto at = text.find("\nstandin=");
    if (text.rfind("MZ", 0) != 0 || at == std::string::npos) {
        std::fprintf(stderr, "wine-standin: %s is not a stand-in Windows program\n", argv[1]);
        return 126;
    }
    const auto from = at + 9;
    const std::string engine = text.substr(from, text.find('\n', from) - from);
    std::vector<std::string> args{engine};
    for (int i = 2; i < argc; ++i)
        args.push_back(hostArgument(argv[i]));
    setenv("QUOVARA_STANDIN_CODEPAGES", codePagesOf(localeOfProcess()).c_str(), 1);
    leaveHelper();
    std::vector<char*> raw;
    for (auto& a : args)
        raw.push_back(a.data());
    raw.push_back(nullptr);
    execv(engine.c_str(), raw.data());
    std::fprintf(stderr, "wine-standin: cannot run %s: %s\n", engine.c_str(), std::strerror(errno));
    return 127;
}
