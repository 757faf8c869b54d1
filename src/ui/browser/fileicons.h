// File and folder icons for the browser: the desktop's icon theme when it has them, bundled
// pictures otherwise, so that a bare machine shows them too.
#pragma once

#include <QAbstractFileIconProvider>

namespace quovara {

// One provider shared by every browser of the program.
QAbstractFileIconProvider* SharedFileIconProvider();

} // namespace quovara
