// The test progress window (frmTesting); Testing.bat has been written.
#include "core/places.h"
#include "frmapri.h"

namespace quovara {

void frmApri::showTestingWindow() {
    notAvailable(QStringLiteral("The test progress window (") + WorkFile(names::TestScript) +
                 QStringLiteral(" has been written)"));
}

} // namespace quovara
