#include "workspace.h"

#include "enginefiles.h"
#include "logging.h"
#include "places.h"
#include "prompter.h"

namespace quovara {

void StartupEngineSwap(const QString& programFolder) {
    const PathStyle host = PathStyle::host();
    if (!FileExists(host.join(programFolder, QStringLiteral("Uharc0.6.fns"))))
        return;
    RenameEngineFile(programFolder, QStringLiteral("Uharc.exe"), QStringLiteral("Uharc0.4.fns"));
    RenameEngineFile(programFolder, QStringLiteral("Uharc0.6.fns"), QStringLiteral("UHARC.EXE"));
}

bool PrepareWorkFolder(Prompter& prompter) {
    CleanWorkFolder();
    // The WorkFolder is made private to the user; one that fails the check (a link, another
    // user's folder, a folder others can write) is never written into.
    const QString problem = EnsurePrivateWorkFolder();
    if (!problem.isEmpty()) {
        prompter.critical(problem);
        return false;
    }
    return true;
}

bool PrepareEngine(Prompter& prompter) {
    const QString program = ProgramFolder();
    if (!FileExists(PathStyle::host().join(program, QStringLiteral("Uharc.exe")))) {
        prompter.critical(QCoreApplication::translate("Workspace", kEngineMissingText));
        return false;
    }
    StartupEngineSwap(program);
    return true;
}

bool PrepareWorkspace(Prompter& prompter) {
    return PrepareWorkFolder(prompter) && PrepareEngine(prompter);
}

} // namespace quovara
