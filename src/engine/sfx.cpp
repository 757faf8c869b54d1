#include "sfx.h"

#include "core/enginefiles.h"
#include "core/jobscript.h"
#include "core/places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryFile>

#include <memory>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

Q_LOGGING_CATEGORY(lcSfx, "quovara.sfx", QtInfoMsg)

namespace quovara {

namespace {

// Buffer of the plain copy loop.
constexpr qint64 ChunkSize = qint64(1) << 20;
// Length asked of one kernel copy: large, since the kernel moves the data itself without any
// buffer of ours, and fewer calls are faster.
constexpr size_t KernelCopySize = size_t(1) << 30;

// Appends one whole source file to `out` in fixed-size pieces. On Linux the kernel copies the
// data (copy_file_range) without passing it through this process; where it cannot, a plain
// read and write loop with one buffer does.
bool appendFile(QFile& out, const QString& sourcePath, QString& failure) {
    QFile in(sourcePath);
    if (!in.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        failure = QCoreApplication::translate("Sfx", "cannot read %1 (%2)")
                      .arg(sourcePath, in.errorString());
        return false;
    }
#ifdef Q_OS_UNIX
    const int inFd = in.handle();
    const int outFd = out.handle();
    if (::posix_fadvise(inFd, 0, 0, POSIX_FADV_SEQUENTIAL) != 0)
        qCDebug(lcSfx) << "no read-ahead hint for" << sourcePath;
    bool kernelCopy = true;
    for (;;) {
        if (!kernelCopy)
            break;
        const ssize_t n = ::copy_file_range(inFd, nullptr, outFd, nullptr, KernelCopySize, 0);
        if (n == 0)
            return true;
        if (n > 0)
            continue;
        if (errno == EINTR)
            continue;
        if (errno == EXDEV || errno == ENOSYS || errno == EINVAL || errno == EOPNOTSUPP ||
            errno == EBADF) {
            // Nothing was copied by the failed call: go on with the plain loop from here.
            kernelCopy = false;
            break;
        }
        const QString reason = qt_error_string(errno);
        failure = QCoreApplication::translate("Sfx", "cannot copy %1 (%2)").arg(sourcePath, reason);
        return false;
    }
    std::unique_ptr<char[]> buffer(new char[ChunkSize]);
    for (;;) {
        ssize_t got = ::read(inFd, buffer.get(), size_t(ChunkSize));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            const QString reason = qt_error_string(errno);
            failure =
                QCoreApplication::translate("Sfx", "cannot read %1 (%2)").arg(sourcePath, reason);
            return false;
        }
        if (got == 0)
            return true;
        const char* p = buffer.get();
        while (got > 0) {
            const ssize_t put = ::write(outFd, p, size_t(got));
            if (put < 0 && errno == EINTR)
                continue;
            if (put <= 0) {
                const QString reason = qt_error_string(errno);
                failure = QCoreApplication::translate("Sfx", "cannot write %1 (%2)")
                              .arg(out.fileName(), reason);
                return false;
            }
            p += put;
            got -= put;
        }
    }
#else
    std::unique_ptr<char[]> buffer(new char[ChunkSize]);
    for (;;) {
        const qint64 got = in.read(buffer.get(), ChunkSize);
        if (got < 0) {
            failure = QCoreApplication::translate("Sfx", "cannot read %1 (%2)")
                          .arg(sourcePath, in.errorString());
            return false;
        }
        if (got == 0)
            return true;
        if (out.write(buffer.get(), got) != got) {
            failure = QCoreApplication::translate("Sfx", "cannot write %1 (%2)")
                          .arg(out.fileName(), out.errorString());
            return false;
        }
    }
#endif
}

bool appendBytes(QFile& out, const QByteArray& bytes, QString& failure) {
#ifdef Q_OS_UNIX
    // The output is written through its descriptor only, so its offset is the one truth.
    const char* p = bytes.constData();
    qsizetype left = bytes.size();
    while (left > 0) {
        const ssize_t put = ::write(out.handle(), p, size_t(left));
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0) {
            const QString reason = qt_error_string(errno);
            failure = QCoreApplication::translate("Sfx", "cannot write %1 (%2)")
                          .arg(out.fileName(), reason);
            return false;
        }
        p += put;
        left -= put;
    }
    return true;
#else
    if (out.write(bytes) != bytes.size()) {
        failure = QCoreApplication::translate("Sfx", "cannot write %1 (%2)")
                      .arg(out.fileName(), out.errorString());
        return false;
    }
    return true;
#endif
}

void backToReady(SfxFeedback& feedback) {
    feedback.setState(QCoreApplication::translate("Sfx", ReadyState));
    feedback.setHint(QCoreApplication::translate("Sfx", ReadyHint));
}

} // namespace

QByteArray SfxInfoText(const SfxSettings& s) {
    const QString sep = QString::fromLatin1(SfxSeparator);
    return ToAnsi(s.extractPath + sep + s.runBefore + sep + s.runAfter + sep + s.sfxText + sep +
                  s.sfxTitle + sep + s.licenceText + sep + s.licenceTitle);
}

bool BuildSfx(const QString& outputPath, const QString& archivePath, const QString& programFolder,
              const SfxSettings& settings, SfxFeedback& feedback) {
    feedback.setState(QCoreApplication::translate("Sfx", SfxBusyState));
    feedback.setHint(QCoreApplication::translate("Sfx", SfxBusyHint));
    feedback.repaint();

    auto fail = [&](const QString& message) {
        qCDebug(lcSfx) << "SFX not created:" << message;
        backToReady(feedback);
        feedback.critical(message);
        return false;
    };

    // Everything the output is made of must be there before anything is written.
    const QString sep = PathStyle::host().sep;
    const QString stub = ResolveEngineFile(programFolder, QString::fromLatin1(names::SfxStub));
    if (stub.isEmpty())
        return fail(QCoreApplication::translate(
                        "Sfx", "Cannot create the SFX: the stub file %1 is missing.")
                        .arg(programFolder + sep + QString::fromLatin1(names::SfxStub)));
    const QString engine = ResolveEngineFile(programFolder, QStringLiteral("Uharc.exe"));
    if (engine.isEmpty())
        return fail(QCoreApplication::translate(
                        "Sfx", "Cannot create the SFX: the engine file %1 is missing.")
                        .arg(programFolder + sep + QStringLiteral("Uharc.exe")));
    if (!QFileInfo(archivePath).isFile())
        return fail(
            QCoreApplication::translate("Sfx", "Cannot create the SFX: the archive %1 is missing.")
                .arg(archivePath));

    // The output is written under a temporary name beside its place and renamed into place
    // when complete, so a failure leaves nothing behind.
    const QFileInfo target(outputPath);
    QTemporaryFile out(target.absolutePath() + QStringLiteral("/.") + target.fileName() +
                       QStringLiteral(".XXXXXX"));
    if (!out.open())
        return fail(
            QCoreApplication::translate("Sfx", "Cannot create the SFX: %1 cannot be written (%2).")
                .arg(outputPath, out.errorString()));
    out.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner |
                       QFileDevice::ReadGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther |
                       QFileDevice::ExeOther);

    QString failure;
    const bool written =
        appendFile(out, stub, failure) && appendBytes(out, QByteArray(SfxArchiveMarker), failure) &&
        appendFile(out, archivePath, failure) &&
        appendBytes(out, QByteArray(SfxEngineMarker), failure) &&
        appendFile(out, engine, failure) && appendBytes(out, QByteArray(SfxInfoMarker), failure) &&
        appendBytes(out, SfxInfoText(settings), failure);
    if (!written)
        return fail(QCoreApplication::translate("Sfx", "Cannot create the SFX: %1.").arg(failure));

    if (QFile::exists(outputPath) && !QFile::remove(outputPath))
        return fail(
            QCoreApplication::translate("Sfx", "Cannot create the SFX: %1 cannot be replaced.")
                .arg(outputPath));
    if (!out.rename(outputPath))
        return fail(
            QCoreApplication::translate("Sfx", "Cannot create the SFX: %1 cannot be written (%2).")
                .arg(outputPath, out.errorString()));
    out.setAutoRemove(false);

    backToReady(feedback);
    feedback.information(QCoreApplication::translate("Sfx", SfxCreatedMessage));
    return true;
}

} // namespace quovara
