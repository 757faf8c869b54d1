// The address bar (`ShComboBox1`): the browser's folder as the user knows it. Inside an archive
// that is the archive's path followed by the folder inside it ("/home/u/old.uha/docs"); the
// mirror tree in the work folder, which the browser really shows, never appears. A typed,
// pasted or chosen address goes there: a folder is shown, an archive is opened (then the folder
// inside it), a file is shown selected in its folder.
#include "frmapri.h"

#include "filebrowser.h"
#include "fileicons.h"

#include "core/logging.h"
#include "core/places.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QUrl>

namespace quovara {

namespace {

// `path` with "/" separators and nothing redundant ("a//b/" is "a/b").
QString Clean(const QString& path) {
    return QDir::cleanPath(QDir::fromNativeSeparators(path));
}

// `inner` below `top` (both clean), or a null string when it is not `top` or below it.
QString Below(const QString& top, const QString& inner) {
    if (inner == top)
        return QLatin1String("");
    const QString prefix = top.endsWith(QLatin1Char('/')) ? top : top + QLatin1Char('/');
    return inner.startsWith(prefix) ? inner.mid(prefix.size()) : QString();
}

// What a user types or pastes, made a plain path: quotes around it and a file URL's form go,
// "~" stands for the home folder.
QString PlainPath(QString text) {
    if (text.size() >= 2 &&
        (text.front() == QLatin1Char('"') || text.front() == QLatin1Char('\'')) &&
        text.back() == text.front())
        text = text.mid(1, text.size() - 2);
    if (text.startsWith(QLatin1String("file:"))) {
        const QUrl url(text);
        if (url.isLocalFile())
            text = url.toLocalFile();
    }
    if (text == QLatin1String("~"))
        return QDir::homePath();
    if (text.startsWith(QLatin1String("~/")))
        return QDir::homePath() + text.mid(1);
    return text;
}

} // namespace

void frmApri::connectAddressBar() {
    connect(ShComboBox1, &QComboBox::activated, this, [this](int index) {
        const QString address = ShComboBox1->itemData(index).toString();
        if (!address.isEmpty())
            goToAddress(address);
    });
    connect(ShComboBox1->lineEdit(), &QLineEdit::returnPressed, this,
            [this] { goToAddress(ShComboBox1->currentText()); });
}

QString frmApri::shownArchive() const {
    const ArchiveListing& l = lister_.listing();
    return l.status == ListStatus::Opened && !l.archivePath.isEmpty() ? Clean(l.archivePath)
                                                                      : QString();
}

QString frmApri::addressOf(const QString& folder) const {
    const QString archive = shownArchive();
    if (!archive.isEmpty() && insideScratchFolder(folder)) {
        const QString inner = Below(Clean(ScratchFolder()), Clean(folder));
        return QDir::toNativeSeparators(inner.isEmpty() ? archive
                                                        : archive + QLatin1Char('/') + inner);
    }
    return QDir::toNativeSeparators(folder);
}

void frmApri::showAddress(const QString& folder) {
    // The drop-down lists the address and the folders above it: inside an archive, the folders
    // that hold the archive, the archive, and the folders inside it down to the one shown. Each
    // item carries its address.
    struct Step {
        QString address;
        QString name;
        QFileInfo look; // what its icon is taken from
    };
    QList<Step> chain;
    const QString archive = shownArchive();
    QString real = folder;
    if (!archive.isEmpty() && insideScratchFolder(folder)) {
        QString inner = Below(Clean(ScratchFolder()), Clean(folder));
        QString mirror = Clean(folder);
        while (!inner.isEmpty()) {
            chain.prepend({archive + QLatin1Char('/') + inner, QFileInfo(inner).fileName(),
                           QFileInfo(mirror)});
            inner = inner.contains(QLatin1Char('/')) ? QFileInfo(inner).path() : QString();
            mirror = QFileInfo(mirror).path();
        }
        chain.prepend({archive, QFileInfo(archive).fileName(), QFileInfo(archive)});
        real = QFileInfo(archive).path();
    }
    QDir dir(real);
    do {
        const QString path = dir.absolutePath();
        chain.prepend({path, dir.isRoot() ? path : dir.dirName(), QFileInfo(path)});
    } while (dir.cdUp());

    ShComboBox1->blockSignals(true);
    ShComboBox1->clear();
    for (int i = 0; i < chain.size(); ++i) {
        const QString shown = i == 0 ? QDir::toNativeSeparators(chain[i].name) : chain[i].name;
        ShComboBox1->addItem(SharedFileIconProvider()->icon(chain[i].look),
                             QString(i * 2, QLatin1Char(' ')) + shown,
                             QDir::toNativeSeparators(chain[i].address));
    }
    ShComboBox1->setCurrentIndex(ShComboBox1->count() - 1);
    ShComboBox1->setEditText(addressOf(folder));
    ShComboBox1->blockSignals(false);
}

void frmApri::goToAddress(const QString& typed) {
    QString path = PlainPath(typed);
    if (path.isEmpty())
        return;
    // A relative address is taken from the address shown.
    if (QDir::isRelativePath(QDir::fromNativeSeparators(path)))
        path = QDir(QDir::fromNativeSeparators(addressOf(FileView1->folder()))).filePath(path);
    path = Clean(path);

    // A folder inside the archive shown.
    const QString archive = shownArchive();
    if (!archive.isEmpty() && archiveLayout()) {
        const QString inner = Below(archive, path);
        if (!inner.isNull()) {
            showFolderInArchive(inner);
            return;
        }
    }
    // The work folder is ours: it is reached only as the archive it mirrors.
    if (!Below(Clean(WorkFolder()), path).isNull()) {
        qCDebug(lcFiles) << "address in the work folder not shown:" << path;
        return;
    }
    if (QFileInfo(path).isDir()) {
        FileView1->setFolder(path);
        return;
    }
    // The longest part of the path that exists: an archive is opened, and the folder inside it
    // shown; another file is shown selected in its folder.
    QString file = path;
    while (!QFileInfo(file).exists() && QFileInfo(file).path() != file)
        file = QFileInfo(file).path();
    if (!QFileInfo(file).isFile()) {
        prompter_->exclamation(
            tr("\"%1\" cannot be found. Check the spelling of the address and try again.")
                .arg(QDir::toNativeSeparators(path)));
        return;
    }
    const QString inner = Below(file, path);
    if (!IsArchiveName(file)) {
        if (inner.isEmpty())
            pointBrowserAt(file);
        else
            prompter_->exclamation(
                tr("\"%1\" cannot be found: \"%2\" is a file, not a folder or an archive.")
                    .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(file)));
        return;
    }
    pointBrowserAt(file);
    OpenItem(file);
    if (!inner.isEmpty() && archiveLayout() && shownArchive() == file)
        showFolderInArchive(inner);
}

void frmApri::showFolderInArchive(const QString& inner) {
    const QString folder =
        inner.isEmpty() ? ScratchFolder() : ScratchFolder() + QLatin1Char('/') + inner;
    if (QFileInfo(folder).isDir() && insideScratchFolder(folder)) {
        FileView1->setFolder(folder);
        return;
    }
    prompter_->exclamation(
        tr("The archive \"%1\" holds no folder \"%2\".")
            .arg(QDir::toNativeSeparators(shownArchive()), QDir::toNativeSeparators(inner)));
}

} // namespace quovara
