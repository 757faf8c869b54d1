// The stand-in engine's command line: the command, the archive, names, exclusions, list files
// and switches, after the switches of the uharc_opt variable.
#pragma once

#include <string>
#include <vector>

namespace standin {

struct Options {
    char command = 0;
    std::string archive; // as given, with ".uha" added when it has no extension
    std::vector<std::string> names;
    std::vector<std::string> excludes;
    bool recurse = false;
    bool emptyFolders = false; // -ed+: an add stores empty folders
    char method = '2';
    bool multimedia = true;
    unsigned dictionaryKB = 4096;
    std::string password;
    int overwrite = -1; // -1: not given
    std::string target;
    // Path switches of an add, as the engine has them: 0 the default (the path as given, its
    // root, drive, "." and ".." parts removed), 'r' (-pr: relative, ".." kept), 'f' (-pf: full,
    // a drive kept).
    char paths = 0;
    bool yes = false;
    int display = 1;
    bool hasLog = false;
    std::string logFile;
    std::string error; // first problem found in the command line
};

// Reads one argument into `o` (a switch, the archive, @listfile, !exclude or a name); the
// uharc_opt variable gives switches only (`fromEnvironment`). The first problem found is kept
// in `o.error`.
void parseArgument(const std::string& a, Options& o, bool fromEnvironment);
// The switches in uharc_opt (the name is matched without regard to case) come first, so
// that the command line can override them. Returns the raw value for the log.
std::string environmentOptions(Options& o);

} // namespace standin
