#include "archivelocale.h"

#include "core/enginelocale.h"

#include <QCoreApplication>

namespace quovara {

QString ArchiveLocaleOfArguments(const ParsedArguments& parsed) {
    QString chosen;
    for (const OptionUse& use : parsed.options) {
        if (use.option->id == OptionId::ArchiveLocale && !use.values.isEmpty())
            chosen = use.values.last();
    }
    if (chosen.isEmpty())
        chosen = qEnvironmentVariable("QUOVARA_ARCHIVE_LOCALE");
    return chosen;
}

QString UseArchiveLocale(const QString& text) {
    const QString locale = NormalizedLocale(text);
    if (locale.isEmpty())
        return QStringLiteral("quovara: ") +
               QCoreApplication::translate("Options",
                                           "'%1' names no locale (for example ru_RU.UTF-8, or ru)")
                   .arg(text) +
               QLatin1Char('\n') +
               QCoreApplication::translate("Options", "Try 'quovara --help' for more information.");
    if (!LocaleInstalled(locale))
        return LocaleMissingMessage(locale);
    SetArchiveLocale(locale);
    return QString();
}

} // namespace quovara
