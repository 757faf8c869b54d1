#include "jobnotice.h"

#include "core/desktop.h"
#include "core/logging.h"
#include "core/notifications.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QWidget>

namespace quovara {

namespace {

constexpr char kContext[] = "quovara::JobNotice";

// The summaries, by job and by how it ended (finished, failed, stopped); %1 is the archive's
// name.
struct Summaries {
    JobKind kind;
    const char* texts[3];
};
// clang-format off
const Summaries kSummaries[] = {
    {JobKind::Add,      {QT_TRANSLATE_NOOP("quovara::JobNotice", "Adding to %1 finished"),
                         QT_TRANSLATE_NOOP("quovara::JobNotice", "Adding to %1 failed"),
                         QT_TRANSLATE_NOOP("quovara::JobNotice", "Adding to %1 stopped")}},
    {JobKind::Extract,  {QT_TRANSLATE_NOOP("quovara::JobNotice", "Extraction of %1 finished"),
                         QT_TRANSLATE_NOOP("quovara::JobNotice", "Extraction of %1 failed"),
                         QT_TRANSLATE_NOOP("quovara::JobNotice", "Extraction of %1 stopped")}},
    {JobKind::Test,     {QT_TRANSLATE_NOOP("quovara::JobNotice", "Test of %1 finished"),
                         QT_TRANSLATE_NOOP("quovara::JobNotice", "Test of %1 failed"),
                         QT_TRANSLATE_NOOP("quovara::JobNotice", "Test of %1 stopped")}},
    {JobKind::SfxBuild, {QT_TRANSLATE_NOOP("quovara::JobNotice", "Making the SFX of %1 finished"),
                         QT_TRANSLATE_NOOP("quovara::JobNotice", "Making the SFX of %1 failed"),
                         QT_TRANSLATE_NOOP("quovara::JobNotice", "Making the SFX of %1 stopped")}},
};
// clang-format on

QString tr(const char* text) {
    return QCoreApplication::translate(kContext, text);
}

QString summary(const JobEnd& end) {
    const QString name = QFileInfo(end.archive).fileName();
    for (const Summaries& row : kSummaries) {
        if (row.kind == end.kind)
            return tr(row.texts[int(end.outcome)]).arg(name);
    }
    return name;
}

QString body(const JobEnd& end) {
    if (end.outcome == JobOutcome::Failed) {
        const QString first = end.reason.trimmed().section(QLatin1Char('\n'), 0, 0).trimmed();
        if (!first.isEmpty())
            return first;
    }
    if (end.outcome == JobOutcome::Finished && !end.result.isEmpty()) {
        const QString result = QDir::toNativeSeparators(end.result);
        if (end.kind == JobKind::Extract)
            return tr(QT_TRANSLATE_NOOP("quovara::JobNotice", "Extracted to %1")).arg(result);
        if (end.kind == JobKind::SfxBuild)
            return tr(QT_TRANSLATE_NOOP("quovara::JobNotice", "Saved as %1")).arg(result);
    }
    return QDir::toNativeSeparators(end.archive);
}

} // namespace

bool UserIsAway(const QWidget* jobWindow) {
    if (jobWindow && (jobWindow->isHidden() || jobWindow->isMinimized()))
        return true;
    return QApplication::activeWindow() == nullptr;
}

DesktopNotice JobEndNotice(const JobEnd& end) {
    DesktopNotice notice;
    notice.summary = summary(end);
    notice.body = body(end);
    if (end.kind == JobKind::Extract && end.outcome == JobOutcome::Finished &&
        !end.result.isEmpty()) {
        notice.actions = {QLatin1String(OpenFolderKey),
                          tr(QT_TRANSLATE_NOOP("quovara::JobNotice", "Open folder"))};
        const QString folder = end.result;
        notice.onAction = [folder](const QString& key) {
            if (key == QLatin1String(OpenFolderKey))
                ShellOpen(folder);
        };
    }
    return notice;
}

void NotifyJobEnd(const JobEnd& end) {
    const DesktopNotice notice = JobEndNotice(end);
    qCDebug(lcDesktop) << "job ended while the user was away:" << notice.summary;
    DesktopNotifications::instance().send(notice);
}

} // namespace quovara
