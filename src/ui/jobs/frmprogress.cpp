// The progress window's table, its controls (Load) and the modal entry point.
#include "frmprogress.h"

#include "core/jobscript.h"

#include "core/jobprocess.h"
#include "core/places.h"
#include "core/scriptexec.h"
#include "engine/progress.h"
#include "ui/browser/frmapri.h"

#include <QCloseEvent>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QHash>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QProgressBar>
#include <QTimer>

Q_LOGGING_CATEGORY(lcJobWindow, "quovara.jobwindow", QtWarningMsg)

// The program's pictures live in the UI library; a test program has no main() that loads them.
static void initProgramResources() {
    Q_INIT_RESOURCE(quovara);
}

namespace quovara {

namespace {

// Sizes of the Part are in twips; 15 twips make a pixel on a 96-dot screen.
constexpr int px(int twips) {
    return twips / 15;
}

// clang-format off
const ProgressKind kKinds[] = {
    // kind             form             caption            script              icon
    {JobKind::Add,     "frmAdding",     QT_TRANSLATE_NOOP("quovara::frmProgress", "Adding ..."),     names::AddScript,     ":/icons/toolbar/102-add.svg",
     ConsoleJob::Add,     true,  false, true,  nullptr,              false, true,  false,
     5055, 2175, 1440, 840},
    {JobKind::Extract, "frmExtracting", QT_TRANSLATE_NOOP("quovara::frmProgress", "Extracting ..."), names::ExtractScript, ":/icons/toolbar/103-extract.svg",
     ConsoleJob::Extract, false, true,  false, nullptr,              true,  false, false,
     5055, 1935, 1200, 600},
    {JobKind::Test,    "frmTesting",    QT_TRANSLATE_NOOP("quovara::frmProgress", "Testing ..."),    names::TestScript,    ":/icons/toolbar/105-verify.svg",
     ConsoleJob::Test,    false, true,  false, progress::TestPassed, true,  false, true,
     5025, 1905, 1200, 600},
};
// clang-format on

// The archive a job script names: the first argument after the command that is not a switch.
QString ScriptArchive(const QString& scriptPath) {
    const std::optional<WrittenScript> written = WrittenJobScript(scriptPath);
    if (!written)
        return QString();
    const ParsedJob& job = written->job;
    for (qsizetype i = 2; i < job.arguments.size(); ++i) {
        const QString& a = job.arguments.at(i);
        if (!a.startsWith(QLatin1Char('-')))
            return a;
    }
    return QString();
}

QLineEdit* textBox(const char* name, QWidget* parent, QRect twips) {
    auto* t = new QLineEdit(parent);
    t->setObjectName(QLatin1String(name));
    t->setReadOnly(true);
    t->setGeometry(px(twips.x()), px(twips.y()), px(twips.width()), px(twips.height()));
    return t;
}

// A text box that reads as a label: no frame, the window's own background.
void looksLikeLabel(QLineEdit* t) {
    t->setFrame(false);
    t->setFocusPolicy(Qt::NoFocus);
    t->setStyleSheet(QStringLiteral("QLineEdit { background: palette(window); border: none;"
                                    " padding: 0px; }"));
}

// The window's own icon, one for each kind for the whole session: a new icon for every job's
// window would be drawn afresh in each size the desktop asks for and left in the program's
// picture cache under a key of its own.
QIcon KindIcon(const char* path) {
    static QHash<QString, QIcon> icons;
    const QString key = QLatin1String(path);
    auto it = icons.constFind(key);
    if (it == icons.constEnd())
        it = icons.insert(key, QIcon(key));
    return *it;
}

} // namespace

const ProgressKind* ProgressKindOf(JobKind kind) {
    for (const ProgressKind& k : kKinds) {
        if (k.kind == kind)
            return &k;
    }
    return nullptr;
}

frmProgress::frmProgress(const ProgressKind& kind, frmApri& main, const QString& archivePath)
    : QWidget(&main, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                         Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint |
                         Qt::CustomizeWindowHint),
      kind_(kind), main_(main), tray_(MakeTrayIcon()) {
    initProgramResources();
    // Load.
    SetTrayUsed(false);
    setObjectName(QLatin1String(kind.formName));
    setWindowTitle(tr(kind.caption));
    setWindowIcon(KindIcon(kind.icon));
    setAttribute(Qt::WA_QuitOnClose, false);
    time_.startTime = QDateTime::currentDateTime();
    scriptPath_ = WorkFile(kind.script);

    archivePath_ = archivePath;
    if (archivePath_.isEmpty())
        archivePath_ = ScriptArchive(scriptPath_);
    if (archivePath_.isEmpty())
        archivePath_ = main.lister().listing().archivePath;
    if (kind.kind == JobKind::Add) {
        // Step 3 of the add job: the archive of the Add dialog becomes the current archive.
        main.lister().listing().archivePath = archivePath_;
    }

    buildControls();

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(1000);
    connect(Timer1, &QTimer::timeout, this, &frmProgress::Timer1_Timer);
    Timer1->start();

    pollTimer_ = new QTimer(this);
    pollTimer_->setObjectName(QStringLiteral("PollTimer"));
    pollTimer_->setInterval(100);
    connect(pollTimer_, &QTimer::timeout, this, &frmProgress::pollRound);

    tray_->setClickHandler([this](TrayClick click) { onTrayClick(click); });
    qCDebug(lcJobWindow) << "loaded" << kind.formName << "script" << scriptPath_ << "archive"
                         << archivePath_;
}

frmProgress::~frmProgress() {
    if (!unloaded_) {
        Form_Unload();
        // The program is ending: no window can say what the stop left, the log does.
        if (!stopReport_.isEmpty())
            qCWarning(lcJobWindow).noquote() << stopReport_;
    }
}

void frmProgress::buildControls() {
    // The look of the original's 8-point dialog font (13 pixels a line): a sans-serif face of
    // Arial's widths where the desktop has one.
    QFont f = font();
    f.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"),
                   QStringLiteral("Nimbus Sans"), QStringLiteral("Helvetica"), f.family()});
    f.setPixelSize(11);
    setFont(f);
    setFixedSize(px(kind_.clientWidth), px(kind_.clientHeight));

    const int frame1Height = kind_.pbTop + 255 + 120;
    Frame1 = new QGroupBox(tr("Progress"), this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    Frame1->setGeometry(px(120), px(120), px(4815), px(frame1Height));
    JobTxt = textBox("JobTxt", Frame1, QRect(120, 240, 4575, 195));
    looksLikeLabel(JobTxt);
    if (kind_.sizesLine) {
        ProgressTxt = textBox("ProgressTxt", Frame1, QRect(120, 480, 4575, 195));
        looksLikeLabel(ProgressTxt);
    }
    PB = new QProgressBar(Frame1);
    PB->setObjectName(QStringLiteral("PB"));
    PB->setRange(0, 100);
    PB->setValue(0);
    PB->setTextVisible(false);
    PB->setGeometry(px(120), px(kind_.pbTop), px(4575), px(255));

    Frame2 = new QGroupBox(tr("Time"), this);
    Frame2->setObjectName(QStringLiteral("Frame2"));
    Frame2->setGeometry(px(120), px(kind_.frame2Top), px(4815), px(615));
    TimeTxt = textBox("TimeTxt", Frame2, QRect(120, 240, 4575, 285));
    // The time line before the first estimate (InitialTimeText), made as every later one is, so
    // that it reads in the user's language as they do.
    TimeTxt->setText(TimeLineText(0, 0, 0));
    TimeTxt->setCursorPosition(0);
    // The time line was made to fit its box: with a wider face the box's font is made smaller
    // until it does (down to 9 pixels).
    QFont timeFont = f;
    const int room = TimeTxt->width() - 8;
    while (timeFont.pixelSize() > 9 &&
           QFontMetrics(timeFont).horizontalAdvance(TimeTxt->text()) > room)
        timeFont.setPixelSize(timeFont.pixelSize() - 1);
    TimeTxt->setFont(timeFont);
}

QString frmProgress::workingFolder() const {
    if (archivePath_.isEmpty() || QFileInfo(archivePath_).isRelative())
        return QString();
    const QString folder = QFileInfo(archivePath_).absolutePath();
    return QFileInfo(folder).isDir() ? folder : QString();
}

qint64 frmProgress::jobProcessId() const {
    return job_ ? job_->processId() : 0;
}

bool frmProgress::jobRunning() const {
    return job_ && job_->isRunning();
}

const ConsoleState* frmProgress::consoleState() const {
    return reader_ ? &reader_->state() : nullptr;
}

void frmProgress::exec() {
    setWindowModality(Qt::ApplicationModal);
    // Centred on the main window when it is on the screen.
    if (main_.isVisible()) {
        const QRect host = main_.frameGeometry();
        const QSize size = frameGeometry().size().isValid() ? frameGeometry().size() : sizeHint();
        move(host.center() - QPoint(size.width() / 2, size.height() / 2));
    }
    show();
    if (unloaded_)
        return;
    QEventLoop loop;
    connect(this, &frmProgress::unloaded, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::DialogExec);
}

void frmProgress::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // Activate: each showing of the window; only the first one, and none after the window has
    // been to the notification area, runs the job.
    if (!activated_ && !TrayUsed()) {
        activated_ = true;
        QTimer::singleShot(0, this, &frmProgress::Form_Activate);
    }
}

void frmProgress::keyPressEvent(QKeyEvent* event) {
    // Escape does what closing the window does: the job stops.
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmProgress::closeEvent(QCloseEvent* event) {
    // The user closes the window: unload (the engine is ended), then the job's handler finds the
    // job gone, makes the main window visible and ends without showing this window again.
    event->accept();
    if (!unloaded_) {
        qCDebug(lcJobWindow) << "closed by the user";
        tellEnd(JobOutcome::Stopped);
        Form_Unload();
        main_.setVisible(true);
        if (!stopReport_.isEmpty())
            main_.prompter().information(stopReport_);
    }
}

void frmProgress::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized() && !unloaded_) {
        if (tray_->isAvailable()) {
            // Once the change is complete: QWidget::showMinimized() shows the window after
            // setting the state.
            QTimer::singleShot(0, this, [this] {
                if (!isMinimized() || unloaded_ || tray_->isShown())
                    return;
                HideToTray(*this, main_, *tray_);
                lastTip_.clear();
                refreshTip();
            });
        } else {
            // No notification area: the window stays an ordinary minimised window that the
            // desktop can bring back (hiding it would leave no way back).
            qCDebug(lcJobWindow) << "no notification area, the window stays minimised";
        }
    }
}

void RunJobWindow(JobKind kind, frmApri& main) {
    RunJobWindow(kind, main, QString());
}

bool RunJobWindow(JobKind kind, frmApri& main, const QString& archivePath) {
    return RunJobWindow(kind, main, archivePath, {});
}

bool RunJobWindow(JobKind kind, frmApri& main, const QString& archivePath,
                  const std::function<void(bool succeeded)>& onEnd) {
    JobWindowRun run{archivePath, onEnd};
    return RunJobWindow(kind, main, run);
}

bool RunJobWindow(JobKind kind, frmApri& main, JobWindowRun& run) {
    const ProgressKind* row = ProgressKindOf(kind);
    if (!row) {
        qCWarning(lcJobWindow) << "no progress window for job kind" << int(kind);
        if (run.onEnd)
            run.onEnd(false);
        return false;
    }
    frmProgress window(*row, main, run.archivePath);
    window.setEndNotice(run.notice);
    if (run.onEnd)
        QObject::connect(&window, &frmProgress::unloaded, &window,
                         [&window, &run] { run.onEnd(window.succeeded()); });
    window.exec();
    run.awayAtEnd = window.userAwayAtEnd();
    return window.succeeded();
}

} // namespace quovara
