// A Qt plugin that the desktop tests load into the real program (QT_QPA_GENERIC_PLUGINS): it
// writes down every window that opens and closes it the way a user would, so that a test can
// start the program exactly as a file manager does and see what it showed.
//
// One line per event in the file named by QUOVARA_PROBE_REPORT, fields separated by tabs:
//   main-window <title>              the main window became visible
//   dialog <object name> <title>     a modal window opened (then it is cancelled)
//   file-dialog <title> <file>       a file dialog opened with <file> proposed (then cancelled)
//   message <text>                   a message box opened (then closed)
// The "Make SFX" window is first asked to create, so that its save dialog shows the file it
// proposes for the archive, and is then cancelled.
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QGenericPlugin>
#include <QHash>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace {

class WindowProbe : public QObject {
public:
    WindowProbe() : report_(qEnvironmentVariable("QUOVARA_PROBE_REPORT")) {
        timer_.setInterval(50);
        connect(&timer_, &QTimer::timeout, this, [this] { poll(); });
        timer_.start();
    }

private:
    void write(const QStringList& fields) {
        QFile file(report_);
        if (file.open(QIODevice::Append))
            file.write(fields.join(QLatin1Char('\t')).toUtf8() + '\n');
    }

    // Acts after the current event, so that a window's own nested loop is never entered from
    // inside the timer.
    static void later(QObject* target, const char* method) {
        QMetaObject::invokeMethod(target, method, Qt::QueuedConnection);
    }

    void poll() {
        if (!mainWindowSeen_) {
            for (QWidget* w : QApplication::topLevelWidgets()) {
                if (w->isVisible() && w->objectName() == QLatin1String("frmApri")) {
                    mainWindowSeen_ = true;
                    write({QStringLiteral("main-window"), w->windowTitle()});
                }
            }
        }
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible())
            return;
        int& visits = visits_[modal];
        ++visits;
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            if (visits == 1) {
                write({QStringLiteral("message"), box->text()});
                later(box, "reject");
            }
        } else if (auto* files = qobject_cast<QFileDialog*>(modal)) {
            if (visits == 1) {
                // The name as it stands in the name field: selectedFiles() would read double
                // quotes in it as a list of names.
                const auto* name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                write({QStringLiteral("file-dialog"), files->windowTitle(),
                       files->directory().absolutePath() + QLatin1Char('/') +
                           (name ? name->text() : files->selectedFiles().value(0))});
                later(files, "reject");
            }
        } else if (modal->objectName() == QLatin1String("frmSFX")) {
            // First visit: ask to create (the save dialog opens over it). When it is on top
            // again, the save dialog has been cancelled: cancel the window itself.
            auto* create = modal->findChild<QPushButton*>(QStringLiteral("cmdOk"));
            if (visits == 1) {
                write({QStringLiteral("dialog"), modal->objectName(), modal->windowTitle()});
                if (create)
                    later(create, "click");
                else
                    later(modal, "reject");
            } else if (!sfxCancelled_.contains(modal)) {
                sfxCancelled_.insert(modal, true);
                later(modal, "reject");
            }
        } else if (visits == 1) {
            write({QStringLiteral("dialog"), modal->objectName(), modal->windowTitle()});
            if (qobject_cast<QDialog*>(modal))
                later(modal, "reject");
            else
                later(modal, "close");
        }
    }

    QString report_;
    QTimer timer_;
    bool mainWindowSeen_ = false;
    QHash<QWidget*, int> visits_;
    QHash<QWidget*, bool> sfxCancelled_;
};

} // namespace

class QuovaraProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")
public:
    QObject* create(const QString& key, const QString&) override {
        if (key.compare(QLatin1String("quovaraprobe"), Qt::CaseInsensitive) != 0)
            return nullptr;
        return new WindowProbe;
    }
};

#include "probe.moc"
