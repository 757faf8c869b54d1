#include "test_helpers.h"

#include <QApplication>
#include <QCursor>
#include <QLoggingCategory>
#include <QMutex>
#include <QMutexLocker>
#include <QTest>
#include <gtest/gtest.h>

namespace quovara::test {

namespace {
QMutex g_mutex;
QStringList g_lines;
QByteArray g_category;
QtMessageHandler g_previous = nullptr;
QLoggingCategory::CategoryFilter g_previousFilter = nullptr;

// Turns the captured category on, whatever the logging rules say.
void categoryFilter(QLoggingCategory* category) {
    if (g_previousFilter)
        g_previousFilter(category);
    if (!g_category.isEmpty() && g_category == category->categoryName())
        category->setEnabled(QtDebugMsg, true);
}

// The controls' debug lines stay quiet in test runs unless a test captures them.
class QuietControlsLog : public ::testing::Environment {
public:
    void SetUp() override {
        QLoggingCategory::setFilterRules(QStringLiteral("quovara.controls.*.debug=false"));
    }
};
[[maybe_unused]] const auto* const g_quiet =
    ::testing::AddGlobalTestEnvironment(new QuietControlsLog);

void handler(QtMsgType type, const QMessageLogContext& ctx, const QString& msg) {
    if (ctx.category && g_category == ctx.category) {
        QMutexLocker lock(&g_mutex);
        g_lines.append(msg);
        return;
    }
    if (g_previous)
        g_previous(type, ctx, msg);
}
} // namespace

LogCapture::LogCapture(const char* category) {
    {
        QMutexLocker lock(&g_mutex);
        g_lines.clear();
        g_category = category;
    }
    g_previous = qInstallMessageHandler(handler);
    g_previousFilter = QLoggingCategory::installFilter(categoryFilter);
}

LogCapture::~LogCapture() {
    qInstallMessageHandler(g_previous);
    {
        QMutexLocker lock(&g_mutex);
        g_category.clear();
        g_lines.clear();
    }
    QLoggingCategory::installFilter(g_previousFilter);
}

QStringList LogCapture::lines() const {
    QMutexLocker lock(&g_mutex);
    return g_lines;
}

void LogCapture::clear() {
    QMutexLocker lock(&g_mutex);
    g_lines.clear();
}

MessageBoxCapture::MessageBoxCapture() {
    m_previous = SetControlMessageHook(
        [this](QWidget*, ControlMessageIcon icon, const QString& title, const QString& text) {
            shown.append({icon, title, text});
        });
}

MessageBoxCapture::~MessageBoxCapture() {
    SetControlMessageHook(m_previous);
}

void MoveMouse(QWidget* w, QPoint pos) {
    QTest::mouseMove(w, pos);
}

void MoveMouseAway() {
    QCursor::setPos(QPoint(5000, 5000));
    QApplication::processEvents();
}

void ShowAndWait(QWidget* w) {
    w->move(40, 40);
    w->show();
    (void)QTest::qWaitForWindowExposed(w);
}

bool Near(const QColor& a, const QColor& b, int tolerance) {
    return std::abs(a.red() - b.red()) <= tolerance &&
           std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance;
}

QImage Grab(QWidget* w) {
    QImage img = w->grab().toImage().convertToFormat(QImage::Format_RGB32);
    img.setDevicePixelRatio(1);
    return img;
}

double RowShare(const QImage& img, int y, int x0, int x1, const QColor& c, int tolerance) {
    int hits = 0;
    for (int x = x0; x < x1; ++x)
        if (Near(img.pixelColor(x, y), c, tolerance))
            ++hits;
    return x1 > x0 ? double(hits) / double(x1 - x0) : 0.0;
}

} // namespace quovara::test
