#include "controls/desktoptheme.h"

namespace quovara {

DesktopTheme::DesktopTheme() {
    const QString fromEnv = qEnvironmentVariable("QUOVARA_COLOR_SCHEME");
    if (fromEnv.isEmpty()) {
        m_scheme = QStringLiteral("NormalColor");
        m_themed = true;
    } else {
        m_themed = fromEnv != QLatin1String("Classic");
        m_scheme = m_themed ? fromEnv : QString();
    }
}

DesktopTheme* DesktopTheme::instance() {
    static DesktopTheme theme;
    return &theme;
}

void DesktopTheme::SetColorScheme(const QString& schemeName, const QString& themeFilePath) {
    const bool themed = !schemeName.isEmpty() && schemeName != QLatin1String("Classic");
    const QString scheme = themed ? schemeName : QString();
    if (themed == m_themed && scheme == m_scheme && themeFilePath == m_themeFile)
        return;
    m_themed = themed;
    m_scheme = scheme;
    m_themeFile = themeFilePath;
    emit ThemeChanged();
}

} // namespace quovara
