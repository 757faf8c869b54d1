#include "letternames.h"

#include <QList>

#include <unicode/uchar.h>

namespace quovara {

QString UnicodeName(const QString& letter) {
    if (letter.isEmpty())
        return QString();
    const char32_t code = letter.toUcs4().value(0);
    char name[128];
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        u_charName(static_cast<UChar32>(code), U_UNICODE_CHAR_NAME, name, sizeof name, &status);
    if (U_SUCCESS(status) && length > 0 && length < static_cast<int32_t>(sizeof name))
        return QString::fromLatin1(name, length);
    return QStringLiteral("U+%1").arg(static_cast<uint>(code), 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace quovara
