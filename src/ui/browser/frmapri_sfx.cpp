// The SFX dialog (frmSFX), opened modally on the open archive. Its progress texts go to this
// window's state and hint lines.
#include "frmapri.h"

#include "ui/jobs/frmsfx.h"

#include <QLabel>

namespace quovara {

void frmApri::showSfxDialog() {
    frmSFX dialog(lister().listing().archivePath, findChild<QLabel*>(QStringLiteral("Stato")),
                  findChild<QLabel*>(QStringLiteral("Consiglio")), prompter(), this);
    dialog.exec();
}

} // namespace quovara
