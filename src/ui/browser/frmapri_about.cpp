// The About window (frmInfo).
#include "frmapri.h"

namespace quovara {

void frmApri::showAboutWindow() {
    notAvailable(QStringLiteral("The About window"));
}

} // namespace quovara
