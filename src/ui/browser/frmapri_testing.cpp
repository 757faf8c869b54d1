// The test progress window (frmTesting); Testing.bat has been written by the Verify command.
#include "frmapri.h"

#include "ui/jobs/frmprogress.h"

namespace quovara {

void frmApri::showTestingWindow() {
    RunJobWindow(JobKind::Test, *this);
}

} // namespace quovara
