// The engine writes its console output and logs in code page 437.
#pragma once

#include <QByteArray>
#include <QString>

namespace quovara {

QString FromCp437(const QByteArray& bytes);

} // namespace quovara
