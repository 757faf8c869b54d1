// Empty folders (-ed+): an add with recursion stores each folder that has no entries at all as
// an entry with the directory attribute; "x" makes it again; "l", "t" and "e" pass over it, and
// no console line names or counts it, as the real engine does.
#pragma once

#include "archive.h"
#include "command_line.h"

#include <filesystem>
#include <string>
#include <vector>

namespace standin {

// True when an add stores `dir`, a sub-folder the walk reached, as an empty folder: -ed+ is
// on, the folder has no entries at all (one that holds only empty folders is stored through
// them), the pattern takes its name and no exclusion leaves out its stored name.
bool storesEmptyFolder(const Options& o, const std::filesystem::path& dir,
                       const std::string& pattern, const std::string& stored);

// The entry of an empty folder: its stored name, its time, the directory attribute, no data.
Entry folderEntry(const std::string& stored, const std::filesystem::path& dir);

// Moves the empty folders (`folder` set) out of an add's sources and gives their entries.
template <typename Source> std::vector<Entry> takeEmptyFolders(std::vector<Source>& sources) {
    std::vector<Entry> folders;
    std::erase_if(sources, [&folders](const Source& s) {
        if (s.folder)
            folders.push_back(folderEntry(s.stored, s.path));
        return s.folder;
    });
    return folders;
}

// Writes the folders' entries after the files; false when one cannot be written.
bool addFolders(ArchiveWriter& writer, const std::vector<Entry>& folders);

bool isFolder(const Entry& e);

// Moves the folder entries out of a selection of entries, keeping their order.
std::vector<const Entry*> takeFolders(std::vector<const Entry*>& selection);

// Makes an extracted empty folder (and the folders above it).
void makeFolder(const std::filesystem::path& place);

} // namespace standin
