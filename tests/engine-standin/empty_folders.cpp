#include "empty_folders.h"

#include "names.h"

#include <algorithm>
#include <system_error>

namespace fs = std::filesystem;

namespace standin {

bool storesEmptyFolder(const Options& o, const fs::path& dir, const std::string& pattern,
                       const std::string& stored) {
    if (!o.emptyFolders || !o.recurse)
        return false;
    std::error_code ec;
    // A folder that cannot be read is not known to be empty (is_empty is false on an error).
    return fs::is_empty(dir, ec) && nameMatches(pattern, filePart(stored)) &&
           !anyMatches(o.excludes, stored);
}

Entry folderEntry(const std::string& stored, const fs::path& dir) {
    Entry e;
    e.name = stored;
    e.mtime = fileTimeSeconds(dir);
    e.attr = AttrDirectory;
    e.method = '0';
    return e;
}

bool addFolders(ArchiveWriter& writer, const std::vector<Entry>& folders) {
    return std::all_of(folders.begin(), folders.end(),
                       [&writer](const Entry& e) { return writer.add(e); });
}

bool isFolder(const Entry& e) {
    return (e.attr & AttrDirectory) != 0;
}

std::vector<const Entry*> takeFolders(std::vector<const Entry*>& selection) {
    std::vector<const Entry*> folders;
    std::erase_if(selection, [&folders](const Entry* e) {
        if (isFolder(*e))
            folders.push_back(e);
        return isFolder(*e);
    });
    return folders;
}

void makeFolder(const fs::path& place) {
    std::error_code ec;
    // As for a file's folders, a folder that cannot be made is passed over without a word:
    // the engine's console names no folder.
    fs::create_directories(place, ec);
}

} // namespace standin
