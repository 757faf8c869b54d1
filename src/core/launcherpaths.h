// Paths that a Windows engine can always take. The engine reads its command line in the ANSI
// code page of its locale, so a path with a letter that code page lacks reaches it garbled.
// Those letters limit the names stored inside an archive, not where an archive lies: a job
// hands the engine a path with a plain name instead, standing for the real one for the time of
// the job (a link in the private work folder to an archive, a drive of its own for a folder).
#pragma once

#include "enginelocale.h"

#include <QString>

namespace quovara {

// True when `hostPath`, in the launcher's form ("Z:\..."), reaches a Windows engine run with
// `engine` intact, letter for letter.
bool EngineCanTakePath(const QString& hostPath, const EngineTextCodecs& engine);

// A link with a plain name ("Archivio1.uha") in a private folder to an archive that stays
// where it is. The engine reads the archive through it; removed with the object.
class ArchiveLink {
public:
    ArchiveLink() = default;
    ~ArchiveLink();
    ArchiveLink(const ArchiveLink&) = delete;
    ArchiveLink& operator=(const ArchiveLink&) = delete;

    // Links a free plain name in `folder` to `archive`, with the archive's own extension when
    // it is plain too (else "uha"). Nothing standing in the folder is replaced. False when no
    // link can be made; `error` then says why.
    bool make(const QString& folder, const QString& archive, QString* error);
    // The link's path once made, and the archive it stands for.
    const QString& path() const { return link_; }
    const QString& archive() const { return archive_; }
    // Removes the link (never the archive).
    void remove();

private:
    QString link_;
    QString archive_;
};

} // namespace quovara
