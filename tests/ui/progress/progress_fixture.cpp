#include "progress_fixture.h"

#include "core/jobscript.h"
#include "core/places.h"
#include "engine/grammar.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <QTest>
#include <unistd.h>

namespace quovara::testing {

namespace {
// Taken before any test points TMPDIR elsewhere.
const QString kLockPath =
    QDir::tempPath() +
    QStringLiteral("/quovara-progress-tests-%1.lock").arg(static_cast<qint64>(::getpid()));
} // namespace

bool WaitFor(const std::function<bool()>& done, int ms) {
    QElapsedTimer t;
    t.start();
    while (!done()) {
        if (t.elapsed() > ms)
            return false;
        QTest::qWait(10);
    }
    return true;
}

bool ProcessAlive(qint64 pid) {
    if (pid <= 0)
        return false;
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return false;
    const QByteArray s = stat.readAll();
    const qsizetype close = s.lastIndexOf(')');
    return close < 0 || s.mid(close + 2, 1) != "Z";
}

JobBench::JobBench() : oldDelay_(qgetenv("QUOVARA_STANDIN_DELAY_MS")) {
    qunsetenv("QUOVARA_STANDIN_DELAY_MS");
    QFile::copy(kSix, programFile("uharc.exe"));
    QFile::copy(kFour, programFile("Uharc0.4.fns"));
    src = places.path() + "/src";
    QDir().mkpath(src);
    SetTrayIconFactory([this] {
        auto icon = std::make_unique<RecordingTray>();
        tray = icon.get();
        return icon;
    });
    main = std::make_unique<frmApri>();
    main->setPrompter(&prompter);
    // The lock is held for the program's life: one path for the whole run, outside the
    // folders that each test removes.
    main->setInstanceLockPath(kLockPath);
    main->Form_Load(QString());
}

JobBench::~JobBench() {
    window.reset();
    main.reset();
    SetTrayIconFactory({});
    if (oldDelay_.isNull())
        qunsetenv("QUOVARA_STANDIN_DELAY_MS");
    else
        qputenv("QUOVARA_STANDIN_DELAY_MS", oldDelay_);
}

QString JobBench::programFile(const QString& name) const {
    return places.programFolder() + "/" + name;
}

void JobBench::makeSource(int count, int size) {
    for (int i = 0; i < count; ++i) {
        QByteArray content;
        content.reserve(size);
        quint32 x = 2463534242u + i;
        for (int b = 0; b < size; ++b) {
            x ^= x << 13;
            x ^= x >> 17;
            x ^= x << 5;
            content.append(char('a' + x % 7));
        }
        writeFile(src + QStringLiteral("/f%1.bin").arg(i, 2, 10, QLatin1Char('0')), content);
    }
}

QString JobBench::makeArchive(const QString& engine, const QString& name, QStringList switches) {
    const QString archive = places.path() + "/" + name;
    QProcess p;
    p.setWorkingDirectory(src);
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("QUOVARA_STANDIN_DELAY_MS"));
    p.setProcessEnvironment(env);
    p.start(engine, QStringList{"a"} + switches + QStringList{"-r+", "-y+", archive, "*"});
    p.waitForFinished(30000);
    return archive;
}

void JobBench::setDelay(int ms) {
    qputenv("QUOVARA_STANDIN_DELAY_MS", QByteArray::number(ms));
}

void JobBench::writeAddScript(const QString& archive, const QString& password) {
    AddOptions o;
    o.archive = archive;
    o.source = src;
    o.sourceIsFolder = true;
    o.passwordTicked = !password.isEmpty();
    o.password = password;
    MethodMemory methods;
    WriteAddJobScript(WorkFile(names::AddScript), o, methods, ProgramFolder(), TempRoot(),
                      PathStyle::host());
}

void JobBench::writeExtractScript(const QString& archive, const QString& destination,
                                  const QString& password) {
    ExtractOptions o;
    o.archive = archive;
    o.toCurrentDir = destination.isEmpty();
    o.destination = destination;
    o.overwrite = true;
    o.passwordTicked = !password.isEmpty();
    o.password = password;
    WriteExtractJobScript(WorkFile(names::ExtractScript), o, ProgramFolder(), TempRoot(),
                          PathStyle::host());
}

void JobBench::writeTestScript(const QString& archive) {
    WriteJobScript(WorkFile(names::TestScript), Preamble::Job,
                   TestCommandPieces(ProgramFolder(), TempRoot(), archive, PathStyle::host()),
                   LastLine::LineEnd);
}

frmProgress* JobBench::open(JobKind kind, const QString& archivePath) {
    window = std::make_unique<frmProgress>(*ProgressKindOf(kind), *main, archivePath);
    window->setWindowModality(Qt::ApplicationModal);
    window->show();
    return window.get();
}

bool JobBench::waitUnloaded(frmProgress* w, int ms) {
    return WaitFor([w] { return w->isUnloaded(); }, ms);
}

} // namespace quovara::testing
