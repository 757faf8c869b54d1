#include "convertwriter.h"

#include "convertcheck.h"

#include "core/logging.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>

#include <archive.h>
#include <archive_entry.h>
#include <zlib.h>

#include <memory>

namespace quovara {

namespace {

constexpr qint64 kPiece = 1 << 20;

QString libraryError(struct archive* a) {
    const char* text = a ? archive_error_string(a) : nullptr;
    return text ? QString::fromLocal8Bit(text)
                : QCoreApplication::translate("Convert", "unknown error");
}

struct WriteCloser {
    void operator()(struct archive* a) const { archive_write_free(a); }
};
struct ReadCloser {
    void operator()(struct archive* a) const { archive_read_free(a); }
};
struct EntryCloser {
    void operator()(struct archive_entry* e) const { archive_entry_free(e); }
};

// The format and filters of `format`; false with the library's error when it has none of them.
bool chooseFormat(struct archive* a, ConvertFormat format) {
    switch (format) {
    case ConvertFormat::Zip:
        // Names in UTF-8, with the zip's flag that says so.
        return archive_write_set_format_zip(a) == ARCHIVE_OK &&
               archive_write_set_format_option(a, "zip", "hdrcharset", "UTF-8") == ARCHIVE_OK;
    case ConvertFormat::SevenZip:
        return archive_write_set_format_7zip(a) == ARCHIVE_OK;
    case ConvertFormat::TarXz:
        // pax: UTF-8 names of any length, times to the second.
        return archive_write_set_format_pax_restricted(a) == ARCHIVE_OK &&
               archive_write_add_filter_xz(a) == ARCHIVE_OK;
    case ConvertFormat::TarZst:
        return archive_write_set_format_pax_restricted(a) == ARCHIVE_OK &&
               archive_write_add_filter_zstd(a) == ARCHIVE_OK;
    }
    return false;
}

// Copies one file's bytes into the entry just begun, checking them again.
QString copyData(struct archive* a, const ConvertItem& item, const std::atomic<bool>* stop,
                 const std::function<void(quint64)>& progress, bool* stopped) {
    QFile file(item.sourcePath);
    if (!file.open(QIODevice::ReadOnly))
        return QCoreApplication::translate("Convert", "%1 cannot be read (%2)")
            .arg(item.name, file.errorString());
    thread_local QByteArray piece(kPiece, Qt::Uninitialized);
    uLong crc = crc32(0L, Z_NULL, 0);
    quint64 copied = 0;
    for (;;) {
        if (stop && stop->load()) {
            *stopped = true;
            return QCoreApplication::translate("Convert", "The conversion was stopped.");
        }
        const qint64 got = file.read(piece.data(), kPiece);
        if (got < 0)
            return QCoreApplication::translate("Convert", "%1 cannot be read (%2)")
                .arg(item.name, file.errorString());
        if (got == 0)
            break;
        crc = crc32(crc, reinterpret_cast<const Bytef*>(piece.constData()), uInt(got));
        copied += quint64(got);
        if (copied > item.size)
            break;
        if (archive_write_data(a, piece.constData(), size_t(got)) != got)
            return libraryError(a);
        if (progress)
            progress(quint64(got));
    }
    if (copied != item.size || quint32(crc) != item.crc)
        return QCoreApplication::translate("Convert", "%1 changed after it was checked")
            .arg(item.name);
    return QString();
}

} // namespace

ConvertWriteResult WriteConvertedArchive(const QString& path, ConvertFormat format,
                                         const std::vector<ConvertItem>& items,
                                         const std::atomic<bool>* stop,
                                         const std::function<void(quint64)>& progress) {
    ConvertWriteResult result;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        result.problem = QCoreApplication::translate("Convert", "%1 cannot be created (%2)")
                             .arg(path, file.errorString());
        return result;
    }
    std::unique_ptr<struct archive, WriteCloser> a(archive_write_new());
    auto fail = [&](const QString& problem) {
        result.problem = problem;
        // The library lets go of the file before it is closed: it writes nothing more (a
        // zip's central directory, say) into a descriptor that may be reused meanwhile.
        if (a) {
            archive_write_fail(a.get());
            a.reset();
        }
        file.close();
        if (!QFile::remove(path))
            qCDebug(lcFiles) << "could not remove the unfinished archive" << path;
        return result;
    };
    if (!a || !chooseFormat(a.get(), format))
        return fail(
            QCoreApplication::translate("Convert", "This system's libarchive cannot write %1 (%2)")
                .arg(ConvertFormatName(format), libraryError(a.get())));
    if (archive_write_open_fd(a.get(), file.handle()) != ARCHIVE_OK)
        return fail(libraryError(a.get()));
    std::unique_ptr<struct archive_entry, EntryCloser> entry(archive_entry_new());
    for (const ConvertItem& item : items) {
        archive_entry_clear(entry.get());
        archive_entry_set_pathname_utf8(entry.get(), item.name.toUtf8().constData());
        archive_entry_set_filetype(entry.get(), item.folder ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry.get(), item.folder ? 0755 : item.readOnly ? 0444 : 0644);
        archive_entry_set_mtime(entry.get(), time_t(item.modified), 0);
        archive_entry_set_size(entry.get(), item.folder ? 0 : la_int64_t(item.size));
        const int header = archive_write_header(a.get(), entry.get());
        if (header == ARCHIVE_WARN)
            qCDebug(lcFiles) << "libarchive warns of" << item.name << ":" << libraryError(a.get());
        else if (header != ARCHIVE_OK)
            return fail(QCoreApplication::translate("Convert", "%1 cannot be written (%2)")
                            .arg(item.name, libraryError(a.get())));
        if (item.folder)
            continue;
        bool stopped = false;
        const QString problem = copyData(a.get(), item, stop, progress, &stopped);
        if (!problem.isEmpty()) {
            result.stopped = stopped;
            return fail(problem);
        }
    }
    if (archive_write_close(a.get()) != ARCHIVE_OK)
        return fail(libraryError(a.get()));
    if (!file.flush() || !file.isOpen())
        return fail(QCoreApplication::translate("Convert", "%1 cannot be written (%2)")
                        .arg(path, file.errorString()));
    file.close();
    result.ok = true;
    return result;
}

QString ReadBackProblem(const QString& path, const std::vector<ConvertItem>& items,
                        const std::atomic<bool>* stop,
                        const std::function<void(quint64)>& progress) {
    QHash<QString, const ConvertItem*> expected;
    for (const ConvertItem& item : items)
        expected.insert(item.name, &item);
    std::unique_ptr<struct archive, ReadCloser> a(archive_read_new());
    archive_read_support_format_all(a.get());
    archive_read_support_filter_all(a.get());
    if (archive_read_open_filename(a.get(), QFile::encodeName(path).constData(), 1 << 16) !=
        ARCHIVE_OK)
        return QCoreApplication::translate("Convert", "The new archive cannot be read back (%1).")
            .arg(libraryError(a.get()));
    QStringList wrong;
    qsizetype count = 0;
    QByteArray piece(kPiece, Qt::Uninitialized);
    struct archive_entry* entry = nullptr;
    for (;;) {
        const int next = archive_read_next_header(a.get(), &entry);
        if (next == ARCHIVE_EOF)
            break;
        if (next != ARCHIVE_OK && next != ARCHIVE_WARN)
            return QCoreApplication::translate("Convert",
                                               "The new archive cannot be read back (%1).")
                .arg(libraryError(a.get()));
        ++count;
        const char* utf8 = archive_entry_pathname_utf8(entry);
        QString name = utf8 ? QString::fromUtf8(utf8) : QString();
        if (name.endsWith(QLatin1Char('/')))
            name.chop(1);
        const ConvertItem* item = expected.value(name);
        const bool folder = archive_entry_filetype(entry) == AE_IFDIR;
        if (!item || item->folder != folder) {
            wrong << name;
            continue;
        }
        if (folder)
            continue;
        uLong crc = crc32(0L, Z_NULL, 0);
        quint64 size = 0;
        for (;;) {
            if (stop && stop->load())
                return QCoreApplication::translate("Convert", "The conversion was stopped.");
            const la_ssize_t got = archive_read_data(a.get(), piece.data(), size_t(piece.size()));
            if (got < 0)
                return QCoreApplication::translate("Convert",
                                                   "The new archive cannot be read back (%1).")
                    .arg(libraryError(a.get()));
            if (got == 0)
                break;
            crc = crc32(crc, reinterpret_cast<const Bytef*>(piece.constData()), uInt(got));
            size += quint64(got);
            if (progress)
                progress(quint64(got));
        }
        if (size != item->size || quint32(crc) != item->crc)
            wrong << name;
    }
    if (count != qsizetype(items.size()))
        return QCoreApplication::translate(
                   "Convert", "The new archive holds %1 entries where %2 were written.")
            .arg(count)
            .arg(items.size());
    if (!wrong.isEmpty())
        return QCoreApplication::translate("Convert",
                                           "The new archive does not read back as written: %1.")
            .arg(wrong.mid(0, 10).join(QStringLiteral(", ")));
    return QString();
}

} // namespace quovara
