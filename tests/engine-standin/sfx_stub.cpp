// Quovara's demonstration self-extractor stub: NOT the UHARC SFX stub. It stands at the front
// of a self-extracting file made by Quovara's "Make SFX" window with the stand-in engine, so
// that the demonstration folder can build an SFX and run it on Linux.
//
// The file it runs from is laid out as: this program, "FileSFX" 0x05, the archive,
// "UharcSFX" 0x05, the engine, "InfoScript" 0x05, then seven texts joined by "<|>": folder to
// extract to, program to run before, program to run after, window text, window title, licence
// text, licence title. The stub finds the sections by their markers, writes the archive and the
// engine into a private temporary folder, shows the texts on the console, and runs the engine's
// extract command into the folder (the first argument, else the folder of the settings, else
// the current folder). The programs to run before and after are shown, not run.
//
//   <sfx> [folder] [-y]     -y answers yes to the licence question
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

// The markers are assembled at run time so that this program's own bytes never hold them.
std::string marker(const char* shifted) {
    std::string m;
    for (const char* p = shifted; *p; ++p)
        m += char(*p - 1);
    m += '\x05';
    return m;
}

std::vector<std::string> split(const std::string& text, const std::string& separator) {
    std::vector<std::string> parts;
    size_t start = 0;
    for (;;) {
        const size_t at = text.find(separator, start);
        if (at == std::string::npos) {
            parts.push_back(text.substr(start));
            return parts;
        }
        parts.push_back(text.substr(start, at - start));
        start = at + separator.size();
    }
}

bool writeFile(const fs::path& path, const std::string& bytes, size_t from, size_t to) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data() + from, std::streamsize(to - from));
    return bool(out);
}

// The folder names the window offers for Windows are taken as folders of the user's home.
fs::path targetFolder(const std::string& argument, const std::string& setting) {
    if (!argument.empty())
        return argument;
    if (setting.empty())
        return fs::current_path();
    for (const char* special : {"Start Menu", "Favorites", "Programs", "Desktop", "StartUp"}) {
        if (setting == special) {
            const char* home = std::getenv("HOME");
            return fs::path(home ? home : ".") / setting;
        }
    }
    return setting;
}

} // namespace

int main(int argc, char** argv) {
    std::string folderArgument;
    bool yes = false;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "-y")
            yes = true;
        else
            folderArgument = a;
    }
    std::ifstream self("/proc/self/exe", std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(self)),
                            std::istreambuf_iterator<char>());
    const std::string archiveMarker = marker("GjmfTGY"); // FileSFX
    const std::string engineMarker = marker("VibsdTGY"); // UharcSFX
    const std::string infoMarker = marker("JogpTdsjqu"); // InfoScript
    // Searched from the end: the sections follow this program, whose code might hold a marker's
    // bytes by chance.
    const size_t infoAt = bytes.rfind(infoMarker);
    const size_t engineAt =
        infoAt == std::string::npos ? std::string::npos : bytes.rfind(engineMarker, infoAt);
    const size_t archiveAt =
        engineAt == std::string::npos ? std::string::npos : bytes.rfind(archiveMarker, engineAt);
    std::puts("Quovara demonstration self-extractor (not the UHARC SFX stub)");
    if (archiveAt == std::string::npos || engineAt == std::string::npos ||
        infoAt == std::string::npos || !(archiveAt < engineAt && engineAt < infoAt)) {
        std::puts("This file holds no archive: it is the bare stub.");
        return 2;
    }
    const std::vector<std::string> info =
        split(bytes.substr(infoAt + infoMarker.size()), std::string("<|>"));
    auto field = [&](size_t i) { return i < info.size() ? info[i] : std::string(); };
    if (!field(4).empty() || !field(3).empty())
        std::printf("\n%s\n%s\n", field(4).c_str(), field(3).c_str());
    if (!field(5).empty()) {
        std::printf("\n%s\n%s\n", field(6).c_str(), field(5).c_str());
        if (!yes) {
            std::fputs("\nAccept the licence? [y/N] ", stdout);
            std::fflush(stdout);
            std::string answer;
            if (!std::getline(std::cin, answer) || (answer != "y" && answer != "Y")) {
                std::puts("Not accepted: nothing extracted.");
                return 1;
            }
        }
    }
    if (!field(1).empty())
        std::printf("Program to run before (not run by the demonstration stub): %s\n",
                    field(1).c_str());

    std::error_code ec;
    const fs::path temp = fs::temp_directory_path() / ("quovara-sfx-" + std::to_string(getpid()));
    fs::create_directories(temp, ec);
    const fs::path archive = temp / "archive.uha";
    const fs::path engine = temp / "uharc";
    if (ec || !writeFile(archive, bytes, archiveAt + archiveMarker.size(), engineAt) ||
        !writeFile(engine, bytes, engineAt + engineMarker.size(), infoAt)) {
        std::puts("Cannot write the temporary files.");
        fs::remove_all(temp, ec);
        return 3;
    }
    fs::permissions(engine, fs::perms::owner_all, ec);
    const fs::path target = targetFolder(folderArgument, field(0));
    fs::create_directories(target, ec);
    std::printf("Extracting to %s\n", target.c_str());
    const std::string targetSwitch = "-t" + target.string();
    const std::string archivePath = archive.string();
    const std::string enginePath = engine.string();
    int status = 1;
    const pid_t pid = fork();
    if (pid == 0) {
        execl(enginePath.c_str(), enginePath.c_str(), "x", "-y+", "-o+", "-d0",
              targetSwitch.c_str(), archivePath.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    if (pid > 0) {
        int raw = 0;
        waitpid(pid, &raw, 0);
        status = WIFEXITED(raw) ? WEXITSTATUS(raw) : 1;
    }
    fs::remove_all(temp, ec);
    if (!field(2).empty())
        std::printf("Program to run after (not run by the demonstration stub): %s\n",
                    field(2).c_str());
    std::puts(status == 0 ? "Done." : "The extraction failed.");
    return status;
}
