#include "convertwindow.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

namespace quovara {

namespace {
constexpr int kRefreshMs = 100;
} // namespace

ConvertWindow::ConvertWindow(const ConvertRequest& request, QWidget* parent)
    : QDialog(parent), request_(request) {
    setObjectName(QStringLiteral("frmConverting"));
    setWindowTitle(tr(convert_window::Caption).arg(QFileInfo(request.archivePath).fileName()));
    setWindowModality(Qt::ApplicationModal);
    auto* layout = new QVBoxLayout(this);
    stageLabel_ = new QLabel(tr(convert_window::Checking), this);
    stageLabel_->setObjectName(QStringLiteral("ConvertStage"));
    stageLabel_->setWordWrap(true);
    bar_ = new QProgressBar(this);
    bar_->setObjectName(QStringLiteral("ConvertProgress"));
    bar_->setRange(0, 1000);
    bar_->setValue(0);
    bar_->setAccessibleName(tr("Progress"));
    stopButton_ = new QPushButton(tr(convert_window::Stop), this);
    stopButton_->setObjectName(QStringLiteral("ConvertStop"));
    stopButton_->setDefault(true);
    connect(stopButton_, &QPushButton::clicked, this, &ConvertWindow::stop);
    layout->addWidget(stageLabel_);
    layout->addWidget(bar_);
    layout->addWidget(stopButton_, 0, Qt::AlignRight);
    setMinimumWidth(380);
    timer_ = new QTimer(this);
    timer_->setInterval(kRefreshMs);
    connect(timer_, &QTimer::timeout, this, &ConvertWindow::showProgress);
}

ConvertWindow::~ConvertWindow() = default;

ConvertOutcome ConvertWindow::run() {
    QEventLoop loop;
    // The work touches no widget: it reports through atomics the timer shows.
    QThread* worker = QThread::create([this] {
        outcome_ = ConvertExtracted(request_, &stop_,
                                    [this](ConvertStage stage, quint64 done, quint64 total) {
                                        stage_ = int(stage);
                                        bytesDone_ = done;
                                        bytesTotal_ = total;
                                    });
        done_ = true;
    });
    connect(worker, &QThread::finished, &loop, &QEventLoop::quit);
    show();
    timer_->start();
    worker->start();
    loop.exec();
    worker->wait();
    delete worker;
    timer_->stop();
    hide();
    return outcome_;
}

void ConvertWindow::stop() {
    stop_ = true;
    stopButton_->setEnabled(false);
}

void ConvertWindow::reject() {
    stop();
}

void ConvertWindow::closeEvent(QCloseEvent* event) {
    // The window closes when the work has ended; until then closing it stops the work.
    if (!done_) {
        stop();
        event->ignore();
        return;
    }
    QDialog::closeEvent(event);
}

void ConvertWindow::showProgress() {
    switch (ConvertStage(stage_.load())) {
    case ConvertStage::Checking:
        stageLabel_->setText(tr(convert_window::Checking));
        break;
    case ConvertStage::Writing:
        stageLabel_->setText(tr(convert_window::Writing).arg(ConvertFormatName(request_.format)));
        break;
    case ConvertStage::ReadingBack:
        stageLabel_->setText(tr(convert_window::ReadingBack));
        break;
    }
    const quint64 total = bytesTotal_.load();
    bar_->setValue(total == 0 ? 0 : int(bytesDone_.load() * 1000 / total));
}

} // namespace quovara
