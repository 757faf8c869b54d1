// The About window (frmInfo), opened modally.
#include "frmapri.h"

#include "ui/jobs/frminfo.h"

namespace quovara {

void frmApri::showAboutWindow() {
    frmInfo window(this);
    window.exec();
}

} // namespace quovara
