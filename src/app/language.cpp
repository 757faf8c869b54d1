#include "language.h"

#include "core/logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTranslator>

namespace quovara {

namespace {

// "ru_RU.UTF-8@latin" → "ru_RU".
QString bare(QString name) {
    const qsizetype cut = name.indexOf(QRegularExpression(QStringLiteral("[.@]")));
    if (cut >= 0)
        name.truncate(cut);
    return name.trimmed();
}

bool isPlainC(const QString& locale) {
    const QString b = bare(locale);
    return b.isEmpty() || b == QLatin1String("C") || b == QLatin1String("POSIX");
}

} // namespace

QStringList RequestedLanguages(const QProcessEnvironment& environment) {
    QString locale;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = environment.value(QLatin1String(name));
        if (!locale.isEmpty())
            break;
    }
    if (isPlainC(locale))
        return {};
    // LANGUAGE, when set, is the whole list (the locale's own language is not added after it:
    // "LANGUAGE=en" under a Russian locale asks for English).
    QStringList languages;
    for (const QString& entry :
         environment.value(QStringLiteral("LANGUAGE")).split(QLatin1Char(':'), Qt::SkipEmptyParts))
        languages << bare(entry);
    if (languages.isEmpty())
        languages << bare(locale);
    languages.removeDuplicates();
    return languages;
}

QString ChooseCatalogue(const QStringList& requested, const QStringList& available) {
    for (const QString& language : requested) {
        if (available.contains(language))
            return language;
        const QString base = language.section(QLatin1Char('_'), 0, 0);
        if (base != language) {
            if (available.contains(base))
                return base;
            continue; // a region asked for ("zh_TW") never takes another region's catalogue
        }
        for (const QString& a : available)
            if (a.startsWith(base + QLatin1Char('_')))
                return a;
    }
    return QString();
}

QStringList CatalogueLanguages() {
    QStringList languages;
    const QStringList files =
        QDir(QStringLiteral(":/i18n")).entryList({QStringLiteral("quovara_*.qm")}, QDir::Files);
    for (const QString& f : files)
        languages << f.mid(8, f.size() - 8 - 3);
    return languages;
}

QString InstallTranslations(QCoreApplication& app, const QProcessEnvironment& environment) {
    const QString language = ChooseCatalogue(RequestedLanguages(environment), CatalogueLanguages());
    if (language.isEmpty())
        return QString();
    auto* own = new QTranslator(&app);
    if (!own->load(QStringLiteral(":/i18n/quovara_%1.qm").arg(language))) {
        qCDebug(lcFiles) << "could not load the catalogue of" << language;
        delete own;
        return QString();
    }
    QCoreApplication::installTranslator(own);
    // Qt's own texts: the buttons of message boxes, the file dialog, the context menus of
    // line edits. Without Debian's qt6-translations-l10n they stay English.
    auto* qt = new QTranslator(&app);
    if (qt->load(QStringLiteral("qtbase_%1").arg(language),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else {
        qCDebug(lcFiles) << "no Qt catalogue for" << language;
        delete qt;
    }
    return language;
}

} // namespace quovara
