#include "display.h"

#include <QCoreApplication>

namespace quovara {

namespace {

// A platform that talks to a display server named by DISPLAY or WAYLAND_DISPLAY.
bool needsDisplayServer(const QString& platform) {
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
}

bool isSet(const QProcessEnvironment& env, const char* name) {
    return !env.value(QLatin1String(name)).isEmpty();
}

} // namespace

QString RequestedPlatform(const QStringList& arguments, const QProcessEnvironment& env) {
    QString platform;
    bool given = false;
    for (qsizetype i = 0; i + 1 < arguments.size(); ++i) {
        if (arguments.at(i) == QLatin1String("-platform")) {
            platform = arguments.at(i + 1);
            given = true;
        }
    }
    return given ? platform : env.value(QStringLiteral("QT_QPA_PLATFORM"));
}

QString MissingDisplayMessage(const QStringList& arguments, const QProcessEnvironment& env) {
    if (isSet(env, "DISPLAY") || isSet(env, "WAYLAND_DISPLAY"))
        return QString();
    for (const QString& candidate : RequestedPlatform(arguments, env).split(QLatin1Char(';'))) {
        // "offscreen:fontengine=freetype": the name is what comes before the first colon.
        const QString name = candidate.section(QLatin1Char(':'), 0, 0).trimmed();
        if (!name.isEmpty() && !needsDisplayServer(name))
            return QString();
    }
    return QCoreApplication::translate("Display", NoDisplayMessage);
}

} // namespace quovara
