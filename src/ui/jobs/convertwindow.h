// The window of a conversion's own work, once the engine has extracted the archive: checking
// the extracted files, writing the new archive and reading it back. The work runs beside the
// window's thread; the window shows its stage and progress, and Stop (or Escape, or closing
// the window) ends it at the next piece, leaving nothing behind.
#pragma once

#include "engine/convert.h"

#include <QDialog>
#include <QtGlobal>

#include <atomic>

class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;

namespace quovara {

namespace convert_window {
// %1 is the archive's name.
inline constexpr char Caption[] = QT_TRANSLATE_NOOP("quovara::ConvertWindow", "Converting %1");
inline constexpr char Checking[] = QT_TRANSLATE_NOOP(
    "quovara::ConvertWindow", "Checking the extracted files against the listing…");
// %1 is the new archive's format ("zip").
inline constexpr char Writing[] =
    QT_TRANSLATE_NOOP("quovara::ConvertWindow", "Writing the %1 archive…");
inline constexpr char ReadingBack[] =
    QT_TRANSLATE_NOOP("quovara::ConvertWindow", "Reading the new archive back…");
inline constexpr char Stop[] = QT_TRANSLATE_NOOP("quovara::ConvertWindow", "&Stop");
} // namespace convert_window

class ConvertWindow : public QDialog {
    Q_OBJECT
public:
    ConvertWindow(const ConvertRequest& request, QWidget* parent);
    ~ConvertWindow() override;

    // Shows the window modally, does the work, and returns its outcome when it has ended.
    ConvertOutcome run();

    // Asks the work to stop (the Stop button does this).
    void stop();

protected:
    void reject() override; // Escape and the close button stop the work
    void closeEvent(QCloseEvent* event) override;

private:
    void showProgress();

    ConvertRequest request_;
    ConvertOutcome outcome_;
    std::atomic<bool> stop_{false};
    std::atomic<bool> done_{false};
    std::atomic<int> stage_{0};
    std::atomic<quint64> bytesDone_{0};
    std::atomic<quint64> bytesTotal_{0};
    QLabel* stageLabel_ = nullptr;
    QProgressBar* bar_ = nullptr;
    QPushButton* stopButton_ = nullptr;
    QTimer* timer_ = nullptr;
};

} // namespace quovara
