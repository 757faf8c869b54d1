#include "enginelocale.h"

#include "enginefiles.h"
#include "logging.h"
#include "places.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMutex>

#include <clocale>
#ifdef Q_OS_UNIX
#include <locale.h>
#endif

namespace quovara {

namespace {

struct LocaleCodePages {
    // A language ("ru"), a language and country ("en_GB"), or either with a script modifier
    // ("sr@latin").
    const char* name;
    int oem;
    int ansi;
};

// The defaults of the Windows locales, which wine follows. A language and country comes
// before its language alone; a language not listed gets the United States defaults.
constexpr LocaleCodePages kLocales[] = {
    // English: 437 in the United States and a few other countries, 850 elsewhere.
    {"en_GB", 850, 1252},
    {"en_AU", 850, 1252},
    {"en_CA", 850, 1252},
    {"en_NZ", 850, 1252},
    {"en_IE", 850, 1252},
    {"en_JM", 850, 1252},
    {"en_BZ", 850, 1252},
    {"en_TT", 850, 1252},
    {"en", 437, 1252},
    // Western Europe and the other Latin-1 languages.
    {"pt_PT", 860, 1252},
    {"pt", 850, 1252},
    {"de", 850, 1252},
    {"fr", 850, 1252},
    {"it", 850, 1252},
    {"es", 850, 1252},
    {"nl", 850, 1252},
    {"da", 850, 1252},
    {"sv", 850, 1252},
    {"nb", 850, 1252},
    {"nn", 850, 1252},
    {"no", 850, 1252},
    {"fi", 850, 1252},
    {"is", 850, 1252},
    {"ca", 850, 1252},
    {"eu", 850, 1252},
    {"gl", 850, 1252},
    {"af", 850, 1252},
    {"id", 850, 1252},
    {"ms", 850, 1252},
    {"fo", 850, 1252},
    {"ga", 850, 1252},
    {"gd", 850, 1252},
    {"cy", 850, 1252},
    {"lb", 850, 1252},
    {"rm", 850, 1252},
    {"fy", 850, 1252},
    {"br", 850, 1252},
    {"oc", 850, 1252},
    {"co", 850, 1252},
    {"wa", 850, 1252},
    {"sw", 437, 1252},
    {"fil", 437, 1252},
    // Central Europe.
    {"sr@latin", 852, 1250},
    {"bs@cyrillic", 855, 1251},
    {"pl", 852, 1250},
    {"cs", 852, 1250},
    {"sk", 852, 1250},
    {"hu", 852, 1250},
    {"hr", 852, 1250},
    {"sl", 852, 1250},
    {"ro", 852, 1250},
    {"sq", 852, 1250},
    {"bs", 852, 1250},
    {"hsb", 852, 1250},
    {"dsb", 852, 1250},
    {"tk", 852, 1250},
    // Cyrillic.
    {"uz@cyrillic", 866, 1251},
    {"az@cyrillic", 866, 1251},
    {"sr", 855, 1251},
    {"ru", 866, 1251},
    {"uk", 866, 1251},
    {"be", 866, 1251},
    {"bg", 866, 1251},
    {"mk", 866, 1251},
    {"kk", 866, 1251},
    {"ky", 866, 1251},
    {"tt", 866, 1251},
    {"mn", 866, 1251},
    {"tg", 866, 1251},
    {"ba", 866, 1251},
    {"sah", 866, 1251},
    // Greek, Turkish and other Turkic languages in Latin letters, Hebrew, Arabic script,
    // the Baltic languages, Vietnamese, Thai.
    {"el", 737, 1253},
    {"tr", 857, 1254},
    {"az", 857, 1254},
    {"uz", 857, 1254},
    {"he", 862, 1255},
    {"yi", 862, 1255},
    {"ar", 720, 1256},
    {"fa", 720, 1256},
    {"ur", 720, 1256},
    {"ps", 720, 1256},
    {"ug", 720, 1256},
    {"ckb", 720, 1256},
    {"sd", 720, 1256},
    {"et", 775, 1257},
    {"lv", 775, 1257},
    {"lt", 775, 1257},
    {"vi", 1258, 1258},
    {"th", 874, 874},
    // East Asia: double-byte code pages, the same for text and names.
    {"ja", 932, 932},
    {"ko", 949, 949},
    {"zh_TW", 950, 950},
    {"zh_HK", 950, 950},
    {"zh_MO", 950, 950},
    {"zh", 936, 936},
};

QMutex& archiveLocaleMutex() {
    static QMutex m;
    return m;
}
QString& archiveLocaleValue() {
    static QString value;
    return value;
}

// "ru_RU.UTF-8@latin" → language "ru", country "RU", modifier "latin".
void splitLocale(const QString& locale, QString* language, QString* country, QString* modifier) {
    QString rest = locale;
    const qsizetype at = rest.indexOf(QLatin1Char('@'));
    *modifier = at < 0 ? QString() : rest.mid(at + 1);
    if (at >= 0)
        rest.truncate(at);
    const qsizetype dot = rest.indexOf(QLatin1Char('.'));
    if (dot >= 0)
        rest.truncate(dot);
    const qsizetype bar = rest.indexOf(QLatin1Char('_'));
    *language = (bar < 0 ? rest : rest.left(bar)).toLower();
    *country = bar < 0 ? QString() : rest.mid(bar + 1).toUpper();
}

} // namespace

EngineCodePages CodePagesForLocale(const QString& locale) {
    QString language, country, modifier;
    splitLocale(locale, &language, &country, &modifier);
    const QString withModifier = language + QLatin1Char('@') + modifier.toLower();
    const QString withCountry = language + QLatin1Char('_') + country;
    for (const QString& key : {withModifier, withCountry, language}) {
        for (const LocaleCodePages& l : kLocales) {
            if (key == QLatin1String(l.name))
                return {l.oem, l.ansi};
        }
    }
    return {};
}

QString LocaleOfEnvironment(const QProcessEnvironment& environment) {
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const QString value = environment.value(QLatin1String(name));
        if (!value.isEmpty())
            return value;
    }
    return QStringLiteral("C");
}

void SetArchiveLocale(const QString& locale) {
    const QMutexLocker lock(&archiveLocaleMutex());
    archiveLocaleValue() = locale;
}

QString ArchiveLocale() {
    const QMutexLocker lock(&archiveLocaleMutex());
    return archiveLocaleValue();
}

QString EngineLocale() {
    const QString chosen = ArchiveLocale();
    if (!chosen.isEmpty())
        return chosen;
    return LocaleOfEnvironment(QProcessEnvironment::systemEnvironment());
}

bool LocaleInstalled(const QString& locale) {
    if (locale == QLatin1String("C") || locale == QLatin1String("POSIX") ||
        locale.startsWith(QLatin1String("C.")))
        return true;
#ifdef Q_OS_UNIX
    const locale_t l = ::newlocale(LC_CTYPE_MASK, locale.toLocal8Bit().constData(), locale_t(0));
    if (l == locale_t(0))
        return false;
    ::freelocale(l);
    return true;
#else
    return true;
#endif
}

QString LocaleMissingMessage(const QString& locale) {
    return QCoreApplication::translate(
               "EngineLocale",
               "The locale %1 is not installed on this system, so the engine cannot read or "
               "write names in its letters. Add it with\n"
               "sudo sed -i 's/^# *%1 /%1 /' /etc/locale.gen && sudo locale-gen\n"
               "(or \"sudo dpkg-reconfigure locales\") and start Quovara again.")
        .arg(locale);
}

QString NormalizedLocale(const QString& text) {
    const QString t = text.trimmed();
    if (t.isEmpty())
        return QString();
    QString language, country, modifier;
    splitLocale(t, &language, &country, &modifier);
    if (language.isEmpty() || language.size() > 3)
        return QString();
    for (const QChar c : language) {
        if (c < QLatin1Char('a') || c > QLatin1Char('z'))
            return QString();
    }
    if (country.isEmpty()) {
        // A language alone: its own country where the two share a code ("de_DE", "pl_PL"),
        // else the usual one.
        static const QHash<QString, QString> usual = {
            {"en", "US"}, {"ja", "JP"}, {"ko", "KR"}, {"zh", "CN"}, {"el", "GR"}, {"uk", "UA"},
            {"he", "IL"}, {"cs", "CZ"}, {"da", "DK"}, {"sv", "SE"}, {"nb", "NO"}, {"nn", "NO"},
            {"et", "EE"}, {"sl", "SI"}, {"sq", "AL"}, {"ar", "EG"}, {"fa", "IR"}, {"vi", "VN"},
            {"be", "BY"}, {"kk", "KZ"}, {"ka", "GE"}, {"hy", "AM"}, {"sr", "RS"}, {"bs", "BA"},
            {"ca", "ES"}, {"eu", "ES"}, {"gl", "ES"}, {"ga", "IE"}, {"ms", "MY"}, {"ur", "PK"},
        };
        country = usual.value(language, language.toUpper());
    }
    QString out = language + QLatin1Char('_') + country + QStringLiteral(".UTF-8");
    if (!modifier.isEmpty())
        out += QLatin1Char('@') + modifier;
    return out;
}

EngineTextCodecs WindowsEngineCodecs(const QString& locale) {
    EngineTextCodecs c;
    c.windows = true;
    c.locale = locale;
    c.pages = CodePagesForLocale(locale);
    c.text = EngineCodec::ForCodePage(c.pages.oem);
    c.names = EngineCodec::ForCodePage(c.pages.ansi);
    return c;
}

QString LocaleForLetters(const QString& letters) {
    // One locale per family of code pages, the best-known language of each first.
    static const char* const candidates[] = {
        "de_DE.UTF-8", "pl_PL.UTF-8", "ru_RU.UTF-8", "el_GR.UTF-8", "tr_TR.UTF-8",
        "he_IL.UTF-8", "ar_EG.UTF-8", "lt_LT.UTF-8", "vi_VN.UTF-8", "th_TH.UTF-8",
        "ja_JP.UTF-8", "zh_CN.UTF-8", "ko_KR.UTF-8", "zh_TW.UTF-8",
    };
    QString fits;
    for (const char* name : candidates) {
        const QString locale = QString::fromLatin1(name);
        const EngineTextCodecs c = WindowsEngineCodecs(locale);
        if (!c.names.lacking(letters).isEmpty() || !c.text.lacking(letters).isEmpty())
            continue;
        // One the user can start with at once comes first.
        if (LocaleInstalled(locale))
            return locale;
        if (fits.isEmpty())
            fits = locale;
    }
    return fits;
}

EngineTextCodecs ActiveEngineCodecs() {
    const QString engine = ResolveEngineFile(ProgramFolder(), QStringLiteral("uharc.exe"));
    if (!engine.isEmpty() && IsWindowsExecutable(engine))
        return WindowsEngineCodecs(EngineLocale());
    EngineTextCodecs c;
    c.locale = EngineLocale();
    c.text = EngineCodec::Utf8();
    c.names = EngineCodec::Utf8();
    c.pages = {65001, 65001};
    return c;
}

QString CodePageDescription(const EngineTextCodecs& codecs, bool ansi) {
    return QCoreApplication::translate("EngineLocale", "code page %1 (the locale %2)")
        .arg(QString::number(ansi ? codecs.pages.ansi : codecs.pages.oem), codecs.locale);
}

} // namespace quovara
