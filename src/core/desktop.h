// Handing files and web addresses to the desktop's "open" action.
#pragma once

#include <QString>
#include <functional>

namespace quovara {

class Prompter;

// The platform's answer to an "open" request: 32 or more is success; below that, 0 (out of
// memory or resources), 2 (file not found), 3 (folder not found), 11 (bad format) or 31 (no
// application is associated with the file).
using DesktopOpener =
    std::function<int(const QString& target, const QString& parameters, const QString& folder)>;

// Replaces the opener (the windows install the desktop's; tests install a recorder). An empty
// function restores the default, which checks the file and its folder and hands the target to
// the desktop's opener command.
void SetDesktopOpener(DesktopOpener opener);
int DesktopOpen(const QString& target, const QString& parameters = QString(),
                const QString& folder = QString());

// Opens a web address or file; the result is only logged.
void ShellOpen(const QString& target);

// The Italian text for a failed open, with its two carriage returns and the "Parametri: '"
// suffix for non-blank parameters; empty for success and for codes that have no text.
QString ShellOpenFailureText(int code, const QString& parameters);

// Opens `file` and reports a failure to the user (critical icon). Returns the platform value.
int ShellOpenReport(Prompter& prompter, const QString& file, const QString& parameters,
                    const QString& folder, qint32 showCommand);

} // namespace quovara
