// Finds English left in a window shown in another language: every caption, label, button,
// group title, tooltip, accessible name and menu entry of the window and its children, and the
// Latin words of three letters or more in them that are no name kept in every language.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QMenu>
#include <QRegularExpression>
#include <QTranslator>
#include <QWidget>

#include <memory>
#include <vector>

namespace quovara::testing {

// Loads the program's catalogue and Qt's own for `language` while it lives.
class LanguageForTest {
public:
    explicit LanguageForTest(const QString& language) {
        own_ = std::make_unique<QTranslator>();
        loaded_ = own_->load(QStringLiteral(":/i18n/quovara_%1.qm").arg(language));
        if (loaded_)
            QCoreApplication::installTranslator(own_.get());
        qt_ = std::make_unique<QTranslator>();
        if (qt_->load(QStringLiteral("qtbase_%1").arg(language),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(qt_.get());
    }
    ~LanguageForTest() {
        QCoreApplication::removeTranslator(own_.get());
        QCoreApplication::removeTranslator(qt_.get());
    }
    bool loaded() const { return loaded_; }

private:
    std::unique_ptr<QTranslator> own_, qt_;
    bool loaded_ = false;
};

// The texts of `window` a person reads or hears.
inline QStringList ShownTexts(QWidget* window) {
    QStringList texts{window->windowTitle(), window->toolTip(), window->accessibleName()};
    QList<QWidget*> widgets = window->findChildren<QWidget*>();
    widgets << window;
    for (QWidget* w : widgets) {
        texts << w->toolTip() << w->accessibleName() << w->accessibleDescription()
              << w->whatsThis();
        if (auto* l = qobject_cast<QLabel*>(w))
            texts << l->text();
        if (auto* b = qobject_cast<QAbstractButton*>(w))
            texts << b->text();
        if (auto* g = qobject_cast<QGroupBox*>(w))
            texts << g->title();
        for (QAction* a : w->actions())
            texts << a->text() << a->toolTip();
        if (auto* m = qobject_cast<QMenu*>(w))
            texts << m->title();
    }
    texts.removeAll(QString());
    return texts;
}

// The Latin words of `texts` that are neither names kept in every language nor parts of a
// path, a file name, a switch or a number.
inline QStringList EnglishLeft(const QStringList& texts) {
    static const QStringList kept{"Quovara", "UHARC", "SFX",  "ZIP",   "PPM",   "LZP",
                                  "ALZ",     "CRC",   "uha",  "exe",   "OK",    "MB",
                                  "KB",      "GB",    "Ctrl", "Alt",   "Shift", "Backspace",
                                  "Enter",   "Esc",   "Tab",  "FORZA", "NAPOLI"};
    static const QRegularExpression word(
        QStringLiteral("(?<![\\w./\\\\-])[A-Za-z]{3,}(?![\\w./\\\\-])"));
    QStringList found;
    for (const QString& text : texts) {
        if (text.contains(QLatin1Char('/')) || text.contains(QLatin1Char('\\')))
            continue; // a path
        auto it = word.globalMatch(text);
        while (it.hasNext()) {
            const QString w = it.next().captured();
            if (!kept.contains(w))
                found << QStringLiteral("%1 (in \"%2\")").arg(w, text.left(60));
        }
    }
    found.removeDuplicates();
    return found;
}

} // namespace quovara::testing
