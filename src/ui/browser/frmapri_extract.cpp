// The Extract dialog (frmEstrai); with `forSelectedItem` it is pre-set to the selected item.
#include "frmapri.h"

namespace quovara {

void frmApri::showExtractDialog(bool forSelectedItem) {
    Q_UNUSED(forSelectedItem);
    notAvailable(QStringLiteral("The Extract dialog"));
}

} // namespace quovara
