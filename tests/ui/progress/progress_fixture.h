// What the progress-window tests (and the measuring tool) share: a main window on a temporary
// ProgramFolder and TempRoot with the stand-in engines, archives and job scripts made for it,
// and a recording double in place of the notification area.
#pragma once

#include "../../core/recording_prompter.h"
#include "../../core/test_support.h"
#include "core/jobkind.h"
#include "ui/browser/frmapri.h"
#include "ui/jobs/frmprogress.h"
#include "ui/jobs/trayicon.h"

#include <QIcon>
#include <QStringList>
#include <functional>
#include <memory>

namespace quovara::testing {

inline const QString kSix = QStringLiteral(QUOVARA_STANDIN_06);
inline const QString kFour = QStringLiteral(QUOVARA_STANDIN_04);

// The notification area as a record: what was added, modified and removed, and clicks.
class RecordingTray : public TrayIcon {
public:
    bool isAvailable() const override { return available; }
    void add(const QIcon& i, const QString& tip) override {
        calls << "add";
        tips << tip;
        icon = i;
        shown = true;
    }
    void modify(const QString& tip) override {
        calls << "modify";
        tips << tip;
    }
    void remove() override {
        calls << "remove";
        shown = false;
    }
    bool isShown() const override { return shown; }
    void click(TrayClick c) { clicked(c); }

    bool available = true;
    bool shown = false;
    QIcon icon;
    QStringList calls;
    QStringList tips;
};

// Processes events until `done` answers true; false after `ms` milliseconds.
bool WaitFor(const std::function<bool()>& done, int ms = 15000);

// True while a process with this id exists and has not ended (a zombie counts as ended).
bool ProcessAlive(qint64 pid);

class JobBench {
public:
    JobBench();
    ~JobBench();

    // Files of the source folder: `count` files of `size` bytes each in src/, named f00.bin ...
    void makeSource(int count, int size);
    // An archive of everything in src made by `engine` with extra switches.
    QString makeArchive(const QString& engine, const QString& name, QStringList switches = {});
    // The engine's per-file delay for the jobs started from now on.
    void setDelay(int ms);

    void writeAddScript(const QString& archive, const QString& password = QString());
    // Extract to `destination`, or into the archive's folder when it is empty.
    void writeExtractScript(const QString& archive, const QString& destination,
                            const QString& password = QString());
    void writeTestScript(const QString& archive);

    // A progress window of `kind`, shown (its job starts), not yet finished.
    frmProgress* open(JobKind kind, const QString& archivePath = QString());
    // Waits until the window has unloaded.
    bool waitUnloaded(frmProgress* w, int ms = 30000);

    QString programFile(const QString& name) const;

    ScopedPlaces places;
    QString src;
    RecordingPrompter prompter;
    std::unique_ptr<frmApri> main;
    RecordingTray* tray = nullptr; // the icon of the latest window
    std::unique_ptr<frmProgress> window;

private:
    QByteArray oldDelay_;
};

} // namespace quovara::testing
