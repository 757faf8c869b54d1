// Which application the desktop opens a kind of file with, read from the desktop's own
// association files: the "mimeapps.list" files of the configuration and data folders (their
// default applications, added and removed associations), then the applications that the
// installed desktop files declare ("mimeinfo.cache", or the desktop files themselves where a
// folder has no cache).
#pragma once

#include <QString>
#include <QStringList>

namespace quovara {

// The id of the desktop file ("org.example.Viewer.desktop") of an application that opens files
// of the first of `mimeTypes` that has one, or empty when none of them has one. An application
// counts only when its desktop file is installed and not hidden.
QString AssociatedApplication(const QStringList& mimeTypes);

} // namespace quovara
