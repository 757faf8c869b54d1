// The Add dialog (frmAggiungi).
#include "frmapri.h"

namespace quovara {

void frmApri::showAddDialog() {
    notAvailable(QStringLiteral("The Add dialog"));
}

} // namespace quovara
