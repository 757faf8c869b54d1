// Handing files and web addresses to the desktop's "open" action.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace quovara {

class Prompter;

// The platform's answer to an "open" request: 32 or more is success; below that, 0 (out of
// memory or resources), 2 (file not found), 3 (folder not found), 11 (bad format) or 31 (no
// application is associated with the file).
using DesktopOpener =
    std::function<int(const QString& target, const QString& parameters, const QString& folder)>;

// Replaces the opener (the windows install the desktop's; tests install a recorder). An empty
// function restores the default, which checks the file and its folder, then that an application
// opens its kind of file, and hands the target to the desktop's opener command.
void SetDesktopOpener(DesktopOpener opener);

// The default opener's look-up of an application for a kind of file: given the file's MIME type
// followed by its other names and the types it belongs to ("text/x-csrc", "text/plain", ...),
// the id of an application's desktop file, or empty when none opens any of them. An empty
// function restores the default, the desktop's association files (AssociatedApplication).
using AssociationLookup = std::function<QString(const QStringList& mimeTypes)>;
void SetAssociationLookup(AssociationLookup lookup);

// The default opener's hand-over of a target to the desktop (by default its "xdg-open"
// command, started on its own); false when it could not be started. An empty function restores
// the default. While one is set, the desktop's opener command counts as installed.
using DesktopLauncher = std::function<bool(const QString& target)>;
void SetDesktopLauncher(DesktopLauncher launcher);

// The default opener's answer when the desktop's opener command (xdg-open, package xdg-utils)
// is not installed: below 32 like every failure, and none of the platform's own values, so
// that the user is told what is missing instead of being told of a missing association.
inline constexpr int OpenerMissingCode = 1;

// The message for `file` when the opener command is not installed: what is missing and which
// package brings it.
QString OpenerMissingText(const QString& file);

// The MIME types that the look-up is asked about for a local file: its own type (by name and
// content), that type's other names, then the types it belongs to.
QStringList MimeTypesOfFile(const QString& path);
int DesktopOpen(const QString& target, const QString& parameters = QString(),
                const QString& folder = QString());

// Opens a web address or file; the result is only logged.
void ShellOpen(const QString& target);

// The Italian text for a failed open, with its two carriage returns and the "Parametri: '"
// suffix for non-blank parameters; empty for success and for codes that have no text.
QString ShellOpenFailureText(int code, const QString& parameters);

// Opens `file` and reports a failure to the user (critical icon): the Italian texts, or the
// opener-missing message for OpenerMissingCode. Returns the platform value.
int ShellOpenReport(Prompter& prompter, const QString& file, const QString& parameters,
                    const QString& folder, qint32 showCommand);

} // namespace quovara
