// The SFX dialog (frmSFX).
#include "frmapri.h"

namespace quovara {

void frmApri::showSfxDialog() {
    notAvailable(QStringLiteral("The SFX dialog"));
}

} // namespace quovara
