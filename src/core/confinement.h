// Where an extraction may write. An archive is untrusted: a stored name can point anywhere
// ("..\..\x", "C:\x"), and the engine writes each entry where its name points. Besides the name
// check that keeps such entries from the engine, every extraction runs confined to its
// destination, so that the engine cannot write above it even when the listing and the engine
// disagree about a name:
// - a Windows engine under the launcher gets the destination as the root of a drive of its own,
//   a link in the prefix's "dosdevices" folder made for the job and removed at its end; Windows
//   path rules stop ".." at a drive's root, and a stored drive is dropped under a target;
// - a native engine (the stand-in) runs under a Landlock rule set that lets it create, write
//   and remove files below the destination only (when the kernel has Landlock).
#pragma once

#include <QString>
#include <QStringList>

namespace quovara {

// True when the job's arguments (engine first) are an extraction: the command "e" or "x".
bool IsExtractionJob(const QStringList& arguments);

// True when the job's arguments (engine first) add to an archive: the command "a" or "m".
bool IsAddJob(const QStringList& arguments);

// Where among the job's arguments (engine first) an extraction names its target folder with
// "-t"; -1 when it names none.
qsizetype ExtractionTargetIndex(const QStringList& arguments);

// The real engine makes the folders of an entry that an extraction excludes by name before it
// skips the entry, so a left-out "a\..\..\stage\x.txt" leaves empty folders "a" and "stage"
// in a destination that is a drive's root. These are the folders, followed with Windows rules
// from `destination` as a root, that the excluded names of `arguments` (engine first; "!"
// arguments without wildcards) would make and that do not stand yet, parents first.
QStringList StrayFoldersOfExclusions(const QStringList& arguments, const QString& destination);
// Removes those of `folders` that are still empty, children first; nothing else is touched.
void RemoveStrayFolders(const QStringList& folders);

class LauncherDrive {
public:
    LauncherDrive() = default;
    ~LauncherDrive();
    LauncherDrive(const LauncherDrive&) = delete;
    LauncherDrive& operator=(const LauncherDrive&) = delete;

    // Links a free drive letter of the prefix `prefix` to `folder`. Letters in use (a link or
    // anything else standing as "x:" or "x::") are never taken. False when the folder is not a
    // folder or no letter is free; `error` then says why.
    bool make(const QString& prefix, const QString& folder, QString* error);
    // "Q:\" once made.
    QString root() const;
    // Removes the link (never what it points to).
    void remove();

private:
    QString link_;
    char letter_ = 0;
};

// A Landlock rule set that allows creating, writing and removing only below `folder`; reading
// stays free. Returns its descriptor (to be applied in the child with ApplyWriteConfinement), or
// -1 when the kernel has no Landlock (`error` then says so) or the folder cannot be opened.
int MakeWriteConfinement(const QString& folder, QString* error);
// In the child between fork and exec: no new privileges, then the rule set. Async-signal-safe.
bool ApplyWriteConfinement(int rulesetFd);

} // namespace quovara
