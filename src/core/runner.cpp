#include "runner.h"

#include "jobprocess.h"
#include "logging.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QList>
#include <QPointer>
#include <QTime>
#include <QTimer>
#include <cmath>
#include <thread>

namespace quovara {

qint64 SecondsSinceMidnight() {
    return std::llround(QTime::currentTime().msecsSinceStartOfDay() / 1000.0);
}

bool DeadlineReached(qint64 now, qint64 start, qint64 deadline, bool wrapped) {
    if (now < deadline)
        return false;
    return !wrapped || now < start;
}

void RunBeside(const std::function<void()>& work) {
    QEventLoop loop;
    std::thread worker([&] {
        work();
        // Queued: the quit reaches the loop also when the work ends before the loop starts.
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    worker.join();
}

namespace {
// The jobs that a RunAndWait call is waiting for now.
QList<QPointer<JobProcess>>& waitedJobs() {
    static QList<QPointer<JobProcess>> jobs;
    return jobs;
}
} // namespace

bool RunAndWait(const QString& scriptPath, qint16 timeoutSeconds, const QString& workingFolder,
                const std::function<qint64()>& clock, QString* startError) {
    const auto now = clock ? clock : std::function<qint64()>(SecondsSinceMidnight);
    const qint64 start = now();
    qint64 deadline = 0;
    bool wrapped = false;
    if (timeoutSeconds > 0) {
        deadline = start + timeoutSeconds;
        if (deadline >= 86400) {
            deadline -= 86400;
            wrapped = true;
        }
    }

    // The job belongs to the application, not to this call: after a time-out it runs on and
    // cleans itself up when it ends.
    auto* job = new JobProcess(QCoreApplication::instance());
    if (!job->start(scriptPath, workingFolder)) {
        if (startError)
            *startError = job->errorText();
        job->deleteLater();
        return false;
    }
    QPointer<JobProcess> guard(job);
    waitedJobs().append(guard);
    QEventLoop loop;
    QObject::connect(job, &JobProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(job, &JobProcess::finished, job, &QObject::deleteLater);
    QTimer deadlineTimer;
    if (timeoutSeconds > 0) {
        QObject::connect(&deadlineTimer, &QTimer::timeout, &loop, [&] {
            if (DeadlineReached(now(), start, deadline, wrapped)) {
                qCDebug(lcRunner) << "time-out reached; the job goes on by itself";
                loop.quit();
            }
        });
        deadlineTimer.start(100);
    }
    if (guard && guard->isRunning())
        loop.exec();
    waitedJobs().removeAll(guard);
    waitedJobs().removeAll(QPointer<JobProcess>());
    return true;
}

int StopWaitedJobs() {
    int stopped = 0;
    for (const QPointer<JobProcess>& job : waitedJobs()) {
        if (job && job->isRunning()) {
            job->kill();
            ++stopped;
        }
    }
    return stopped;
}

} // namespace quovara
