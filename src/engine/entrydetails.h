// The details of an archive's entries as its listing gives them: size, date and time,
// attributes and CRC-32, under the entry's path in the mirror tree, and for every folder of the
// tree how many entries it holds. Kept compact (about 50 bytes an entry; names are not kept, a
// path is found by its 64-bit hash) so that a hundred thousand entries cost a few MiB. An entry
// listed twice keeps the details of its last line.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>
#include <QtGlobal>

#include <optional>
#include <utility>
#include <vector>

namespace quovara {

// One entry's detail line, read as far as it can be read: a field that is missing or odd (a
// size beyond 64 bits, a date like "00-Xxx-0000", no CRC) is left empty, the rest stays.
struct EntryDetails {
    std::optional<quint64> size;
    // The date as yyyymmdd and the time as hhmmss; each empty when it does not read.
    std::optional<quint32> date;
    std::optional<quint32> time;
    // The attribute letters as listed ("---A"); at most eight characters are kept.
    QString attributes;
    std::optional<quint32> crc;

    // Date and time as one number, yyyymmddhhmmss, for sorting: an unreadable part counts as 0.
    quint64 stamp() const { return quint64(date.value_or(0)) * 1000000u + time.value_or(0); }
    // The date and time as the locale shows them; only the time when the date does not read.
    QString modifiedText() const;
    // "DE77F4CE", or empty.
    QString crcText() const;
};

// Reads a detail line ("     10000  22-Nov-2026  14:28:18  ---A  DE77F4CE"): blank-separated
// fields, size first, then whatever of date, time, attributes and CRC is there.
EntryDetails ParseDetailLine(QStringView line);

// The details of every entry of one listing, found by the entry's path in the mirror tree
// ("a\b\c.txt", "\" between folders, as shown).
class ArchiveDetails {
public:
    // Records `details` for the entry shown at `path`; its folders get counted.
    void add(QStringView path, const EntryDetails& details);
    // The same for a detail line as the listing gives it, read without copying it.
    void addLine(QStringView path, QStringView line);
    // What ParseDetailLine gives.
    static EntryDetails readLine(QStringView line);
    // Ends the adding: afterwards the look-ups work. add() may not be called again.
    void finish();
    // Makes room for `entries` at once, so that adding never moves what was added (a listing
    // of 100,000 entries would otherwise hold its old and new room together while it grows).
    void reserve(qsizetype entries);
    // The most entries a listing log of `logBytes` bytes can hold (at most 50 million).
    static qsizetype mostEntriesIn(qint64 logBytes);

    // The entry at `path`, or none.
    std::optional<EntryDetails> entry(QStringView path) const;
    // How many entries (files and folders) the folder at `path` holds directly; empty when the
    // listing has no such folder. The root is "".
    std::optional<int> folderCount(QStringView path) const;

    qsizetype size() const { return qsizetype(entries_.size()); }
    // Bytes held, roughly (for the memory figures).
    qsizetype bytes() const;

    // The hash paths are found by. Hashing runs on: hashOf(b, hashOf(a)) is hashOf(a + b), so a
    // folder's hash with its separator serves every name in it.
    static constexpr quint64 kHashStart = 14695981039346656037ull;
    static quint64 hashOf(QStringView path, quint64 start = kHashStart);
    // The look-ups by a hash made with hashOf.
    std::optional<EntryDetails> entryByHash(quint64 hash) const;
    std::optional<int> folderCountByHash(quint64 hash) const;
    // What an entry sorts by, in two steps, for a caller that sorts one set of entries more
    // than once: the entry's place (kNoEntry when there is none), then its key in a column
    // (1 size, 2 date and time, 3 attributes, 4 CRC-32). Something unknown (or no such entry)
    // is 0 and sorts before everything known.
    static constexpr quint32 kNoEntry = 0xffffffffu;
    quint32 entryIndexByHash(quint64 hash) const;
    quint64 sortKeyAt(quint32 entry, int column) const;

private:
    enum Flag : quint8 { HasSize = 1, HasDate = 2, HasTime = 4, HasCrc = 8 };
    struct Packed {
        quint64 size;
        quint32 date;
        quint32 time;
        quint32 crc;
        quint8 flags;
        char attributes[8];
    };
    static EntryDetails unpack(const Packed& p);
    static void parseInto(QStringView line, Packed& p);
    void place(QStringView path, const Packed& p);
    // A path's hash and what it leads to (an index into entries_, or a folder's count), packed
    // to 12 bytes: a listing holds one per entry.
#pragma pack(push, 4)
    struct Slot {
        quint64 first;
        quint32 second;
        bool operator<(const Slot& o) const {
            return first != o.first ? first < o.first : second < o.second;
        }
    };
#pragma pack(pop)
    static_assert(sizeof(Slot) == 12);
    // The slot of `key` in a vector sorted by hash, or null.
    static const Slot* find(const std::vector<Slot>& v, quint64 key);

    std::vector<Packed> entries_;
    // (path hash, index into entries_), sorted by hash once finished.
    std::vector<Slot> index_;
    // (folder path hash, entries held), sorted by hash once finished.
    std::vector<Slot> folders_;
    // While adding: the folders met so far, by hash, with their place in folders_.
    QHash<quint64, quint32> folderSlots_;
    bool finished_ = false;
};

} // namespace quovara
