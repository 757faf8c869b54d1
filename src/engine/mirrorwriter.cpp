#include "mirrorwriter.h"

#include "core/logging.h"
#include "engine/listing.h"
#include "engine/unsafenames.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quovara {

namespace {

QString joined(const QString& a, const QString& b) {
    return a.isEmpty() ? b : a + QLatin1Char('\\') + b;
}

// Errors that say the name itself cannot stand here: another name may.
bool nameRefused(int error) {
#ifdef Q_OS_UNIX
    return error == ENAMETOOLONG || error == EEXIST || error == EISDIR || error == ENOTDIR ||
           error == EILSEQ || error == EINVAL;
#else
    Q_UNUSED(error);
    return true;
#endif
}

constexpr int kMostTries = 1000;

// Another name for an unsafe entry's shown name: numbered (or shortened) in its last part, so
// that "..∖x" becomes "..∖x (2)" and "∖tmp∖a.txt" "∖tmp∖a (2).txt".
QString numberedUnsafe(const QString& shown, int n) {
    const qsizetype cut = shown.lastIndexOf(QChar(0x2216));
    if (cut < 0)
        return AliasName(shown, n);
    const QString numbered = shown.left(cut + 1) + AliasName(shown.mid(cut + 1), n);
    return numbered.toUtf8().size() <= kLongestNameBytes ? numbered : AliasName(shown, n);
}

} // namespace

MirrorWriter::MirrorWriter(const QString& root) : root_(QDir::cleanPath(root)) {
    root_ok_ = ensureDir(QFile::encodeName(root_)) == 0;
}

MirrorWriter::~MirrorWriter() {
    forgetLastFolder();
}

bool MirrorWriter::usable(const QString& component) {
    return !component.isEmpty() && component != QLatin1String(".") &&
           component != QLatin1String("..") && !component.contains(QChar(0));
}

QString MirrorWriter::placeEntry(const QString& name) {
    if (IsUnsafeEntryName(name))
        return placeUnsafe(name);
    QString folder = sGivePath(name);
    if (Tipo(folder) == 1)
        folder = folder.mid(2);
    else if (folder.size() == 2 && folder[1] == QLatin1Char(':'))
        folder.clear(); // an entry at a drive's root ("C:\a.txt") lands at the root
    const QString shown = placeholder(makeFolder(folder), sGiveFile(name));
    return shown.isEmpty() ? shown : joined(lastShown_, shown);
}

QString MirrorWriter::placeUnsafe(const QString& name) {
    unsafe_ << name;
    const QByteArray root = makeFolder(QString());
    if (root.isEmpty())
        return QString();
    const QString wanted = UnsafeShownName(name);
#ifdef Q_OS_UNIX
    const int dir = folderHandle(root);
    // Always a placeholder of its own at the top of the tree, never one that stands already.
    for (int n = wanted.toUtf8().size() > kLongestNameBytes ? 1 : 0; n <= kMostTries; ++n) {
        const QString shown = n == 0 ? wanted : numberedUnsafe(wanted, n);
        const int fd = ::openat(dir, QFile::encodeName(shown).constData(),
                                O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
        if (fd >= 0) {
            ::close(fd);
            aliases_.add(shown, name);
            qCDebug(lcListing) << "unsafe entry shown as" << shown << "for" << name;
            return shown;
        }
        if (!nameRefused(errno)) {
            fail(errno);
            return QString();
        }
    }
    return QString();
#else
    const QString shown = wanted;
    QFile f(QFile::decodeName(root + '/' + QFile::encodeName(shown)));
    if (!f.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return QString();
    aliases_.add(shown, name);
    return shown;
#endif
}

QByteArray MirrorWriter::makeFolder(const QString& folder) {
    if (lastKnown_ && folder == lastFolder_)
        return lastPath_;
    QByteArray current = QFile::encodeName(root_);
    QString shown;
    QString stored;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= folder.size(); ++i) {
        if (i != folder.size() && folder[i] != QLatin1Char('\\') && folder[i] != QLatin1Char('/'))
            continue;
        const QString component = folder.mid(start, i - start);
        start = i + 1;
        if (!usable(component))
            continue;
        const QString key = joined(shown, component);
        QString name = folderAliases_.value(key, component);
        int error = ensureDir(current + '/' + QFile::encodeName(name));
        // A name that cannot stand as it is gets another one, the same for every entry below.
        for (int n = component.toUtf8().size() > kLongestNameBytes ? 1 : 2;
             error != 0 && nameRefused(error) && n <= kMostTries; ++n) {
            name = AliasName(component, n);
            error = ensureDir(current + '/' + QFile::encodeName(name));
        }
        if (error != 0) {
            fail(error);
            return QByteArray(); // could not make it safely: the entry is skipped
        }
        if (name != component && !folderAliases_.contains(key)) {
            folderAliases_.insert(key, name);
            aliases_.add(joined(shown, name), joined(stored, component));
            qCDebug(lcListing) << "folder shown as" << name << "for" << component;
        }
        current += '/' + QFile::encodeName(name);
        shown = joined(shown, name);
        stored = joined(stored, component);
    }
    forgetLastFolder();
    lastKnown_ = true;
    lastFolder_ = folder;
    lastPath_ = current;
    lastShown_ = shown;
    lastStored_ = stored;
    return current;
}

QString MirrorWriter::placeholder(const QByteArray& folder, const QString& file) {
    // The name may still hold separators ("\c.txt"): only its last usable part counts.
    QString name;
    if (!file.contains(QLatin1Char('\\')) && !file.contains(QLatin1Char('/'))) {
        if (usable(file))
            name = file;
    } else {
        const QStringList parts =
            QString(file).replace(QLatin1Char('/'), QLatin1Char('\\')).split(QLatin1Char('\\'));
        for (const QString& part : parts) {
            if (usable(part))
                name = part;
        }
    }
    if (name.isEmpty() || folder.isEmpty())
        return QString();
#ifdef Q_OS_UNIX
    // Made relative to the open folder: one look-up of the name, not of the whole path, and
    // nothing between the root and the folder can be swapped under us.
    const int dir = folderHandle(folder);
    int fd = ::openat(dir, QFile::encodeName(name).constData(),
                      O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0644);
    int error = fd < 0 ? errno : 0;
    QString shownName = name;
    // A name that cannot stand here (too long, or a folder of that name) gets a new one, never
    // one that stands already.
    for (int n = name.toUtf8().size() > kLongestNameBytes ? 1 : 2;
         fd < 0 && nameRefused(error) && error != EEXIST && n <= kMostTries; ++n) {
        shownName = AliasName(name, n);
        fd = ::openat(dir, QFile::encodeName(shownName).constData(),
                      O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
        error = fd < 0 ? errno : 0;
        if (fd < 0 && error == EEXIST)
            error = EISDIR; // taken: the next number
    }
    if (fd < 0) {
        qCDebug(lcListing) << "could not create placeholder" << folder + '/' + name.toUtf8();
        fail(error);
        return QString();
    }
    ::close(fd);
    if (shownName != name) {
        aliases_.add(joined(lastShown_, shownName), joined(lastStored_, name));
        qCDebug(lcListing) << "entry shown as" << shownName << "for" << name;
    }
    return shownName;
#else
    const QByteArray path = folder + '/' + QFile::encodeName(name);
    QFile f(QFile::decodeName(path));
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        qCDebug(lcListing) << "could not create placeholder" << path;
        return QString();
    }
    return name;
#endif
}

int MirrorWriter::ensureDir(const QByteArray& path) {
    if (known_.contains(path))
        return 0;
#ifdef Q_OS_UNIX
    if (::mkdir(path.constData(), 0755) != 0) {
        const int error = errno;
        struct stat st;
        if (error != EEXIST || ::lstat(path.constData(), &st) != 0 || !S_ISDIR(st.st_mode)) {
            qCDebug(lcListing) << "not a folder, or a link, or no such name here:" << path;
            return error;
        }
    }
#else
    const QString p = QFile::decodeName(path);
    if (!QFileInfo(p).isDir() && !QDir().mkdir(p)) {
        qCDebug(lcListing) << "could not create folder" << p;
        return 1;
    }
#endif
    known_.insert(path);
    return 0;
}

void MirrorWriter::fail(int error) {
    if (failure_.isEmpty())
        failure_ =
            QCoreApplication::translate("MirrorWriter", "it cannot create the folder view: %1")
                .arg(QString::fromLocal8Bit(std::strerror(error)).toLower());
}

int MirrorWriter::folderHandle(const QByteArray& folder) {
#ifdef Q_OS_UNIX
    if (folderFd_ < 0)
        folderFd_ = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
#else
    Q_UNUSED(folder);
#endif
    return folderFd_;
}

void MirrorWriter::forgetLastFolder() {
    lastKnown_ = false;
#ifdef Q_OS_UNIX
    if (folderFd_ >= 0)
        ::close(folderFd_);
#endif
    folderFd_ = -1;
}

} // namespace quovara
