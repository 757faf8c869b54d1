// The names the Unicode standard gives letters ("CYRILLIC SMALL LETTER O"), for messages that
// must tell apart letters that look alike ("о" and "o").
#pragma once

#include <QString>

namespace quovara {

// The Unicode name of the one character `letter` holds (a surrogate pair counts as one); "U+"
// and its code in hexadecimal when it has no name.
QString UnicodeName(const QString& letter);

} // namespace quovara
