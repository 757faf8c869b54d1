// The end of a job told to a user who is not looking at the program: a desktop notification,
// decided as the job ends, before a message of the end takes the focus.
#include "frmprogress.h"

#include "core/jobscript.h"

#include <QDir>
#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcJobWindow)

namespace quovara {

void frmProgress::tellEnd(JobOutcome outcome, const QString& reason) {
    if (endTold_)
        return;
    endTold_ = true;
    awayAtEnd_ = UserIsAway(this);
    qCDebug(lcJobWindow) << "job ended:" << int(outcome) << "user away:" << awayAtEnd_;
    if (!awayAtEnd_ || endNotice_ == EndNotice::None ||
        (endNotice_ == EndNotice::FailuresOnly && outcome == JobOutcome::Finished))
        return;
    JobEnd end;
    end.kind = kind_.kind;
    end.outcome = outcome;
    end.archive = archivePath_;
    end.reason = reason;
    if (outcome == JobOutcome::Finished && kind_.kind == JobKind::Extract)
        end.result = extractDestination();
    NotifyJobEnd(end);
}

QString frmProgress::extractDestination() const {
    if (const std::optional<WrittenScript> written = WrittenJobScript(scriptPath_)) {
        for (const QString& argument : written->job.arguments) {
            if (argument.startsWith(QLatin1String("-t")) && argument.size() > 2)
                return QDir::cleanPath(argument.mid(2));
        }
    }
    return workingFolder();
}

} // namespace quovara
