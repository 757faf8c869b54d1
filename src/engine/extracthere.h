// Extracting an archive beside itself without writing into or over anything that exists: the
// engine extracts into a new hidden folder beside the archive, and what it made is then moved
// into place under a name that is free. An archive whose entries all lie under one top-level
// folder (or that holds one file) keeps that folder (or file); any other gets a new folder named
// after the archive. A taken name becomes the next free one: "name (2)", "name (3)", …
#pragma once

#include <QString>

#include <functional>

namespace quovara {

// `name` when nothing stands at `folder`/`name`, else the first free "name (n)" (for a file
// with an extension, "report (2).txt"). Empty when none up to 9999 is free.
QString FreeName(const QString& folder, const QString& name, bool isFile);

// The archive's name without its extension ("photos.uha" → "photos"); a name that is only an
// extension (".uha") keeps its whole name.
QString ArchiveBaseName(const QString& archivePath);

// Makes the hidden folder beside `archivePath` that the engine extracts into. Empty when the
// archive's folder cannot be written to; `problem` then says why.
QString MakeExtractStaging(const QString& archivePath, QString* problem);

struct PlacedExtraction {
    bool ok = false;
    // What now stands beside the archive (the top-level folder or file, or the new folder).
    QString placedPath;
    QString problem;
};

// Moves what the engine extracted into `staging` beside the archive, as above, and removes
// `staging`. A name taken meanwhile is never replaced (the move refuses it and takes the next).
PlacedExtraction PlaceExtraction(const QString& staging, const QString& archivePath);

// Moves `from` (a file or a folder) into `folder` under the first name `nameFor(n)` gives for
// n = 1, 2, … that nothing stands at; what stands there, also what appeared meanwhile, is
// never replaced.
PlacedExtraction MoveToFreeName(const QString& from, const QString& folder,
                                const std::function<QString(int)>& nameFor);

// Removes a staging folder and everything in it (a failed or stopped extraction).
void DiscardExtractStaging(const QString& staging);

} // namespace quovara
