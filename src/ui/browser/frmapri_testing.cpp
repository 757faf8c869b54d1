// The test progress window (frmTesting); Testing.bat has been written by the Verify command.
#include "frmapri.h"

#include "filebrowser.h"

#include "controls/taskpanebar.h"
#include "core/jobscript.h"
#include "core/places.h"
#include "core/vbtext.h"
#include "engine/grammar.h"
#include "ui/jobs/frmprogress.h"

namespace quovara {

void frmApri::showTestingWindow() {
    RunJobWindow(JobKind::Test, *this);
}

bool frmApri::writeTestScript() {
    QString archive;
    if (!Barra->isHidden()) {
        archive = lister_.listing().archivePath;
    } else {
        archive = FileView1->selectedPath();
        if (!Like(archive, QStringLiteral("*.uha"))) {
            prompter_->exclamation(apri::Text(apri::NoArchiveSelected));
            return false;
        }
    }
    const QString script = WorkFile(names::TestScript);
    QString refused;
    if (!WriteJobScript(script, Preamble::Job,
                        TestCommandPieces(ProgramFolder(), TempRoot(), archive, PathStyle::host()),
                        LastLine::LineEnd, &refused)) {
        prompter_->critical(refused);
        return false;
    }
    return true;
}

} // namespace quovara
