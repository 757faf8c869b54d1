// The desktop's visual style as the task pane sees it: whether themed drawing is available
// and the name of the active colour scheme. On this platform there is no system-wide
// visual-style service, so the program keeps one process-wide setting, taken at start from
// QUOVARA_COLOR_SCHEME ("Classic" means no themed drawing; any other value is the scheme's
// name; unset means the default blue scheme "NormalColor"). Changing it at run time tells
// every task pane, which repaints in the new style.
#pragma once

#include <QObject>
#include <QString>

namespace quovara {

class DesktopTheme : public QObject {
    Q_OBJECT
public:
    static DesktopTheme* instance();

    // True when themed drawing is available (the scheme is not "Classic").
    bool ThemeDataAvailable() const { return m_themed; }
    // Name of the active colour scheme ("NormalColor", "Metallic", "HomeStead", ...).
    QString ColorSchemeName() const { return m_scheme; }
    // Path of the active visual-style file (empty when none is known).
    QString ThemeFilePath() const { return m_themeFile; }

    // Switches the desktop colour scheme. "Classic" (or an empty name) turns themed drawing
    // off. Emits ThemeChanged when anything changed.
    void SetColorScheme(const QString& schemeName, const QString& themeFilePath = {});

signals:
    void ThemeChanged();

private:
    DesktopTheme();
    bool m_themed = true;
    QString m_scheme;
    QString m_themeFile;
};

} // namespace quovara
