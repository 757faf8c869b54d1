#include "entrydetails.h"

#include <QDate>
#include <QTime>

#include <algorithm>
#include <cstring>

namespace quovara {

namespace {

bool allDigits(QStringView s) {
    return !s.isEmpty() && std::all_of(s.begin(), s.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
}

bool isHex8(QStringView s) {
    return s.size() == 8 && std::all_of(s.begin(), s.end(), [](QChar c) {
               return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
                      (c >= QLatin1Char('A') && c <= QLatin1Char('F')) ||
                      (c >= QLatin1Char('a') && c <= QLatin1Char('f'));
           });
}

// "22-Nov-2026" as 20261122; empty for anything that is no real day.
std::optional<quint32> readDate(QStringView s) {
    static const char* const months[] = {"jan", "feb", "mar", "apr", "may", "jun",
                                         "jul", "aug", "sep", "oct", "nov", "dec"};
    const auto parts = s.split(QLatin1Char('-'));
    if (parts.size() != 3 || !allDigits(parts[0]) || !allDigits(parts[2]) || parts[0].size() > 2 ||
        parts[2].size() != 4)
        return std::nullopt;
    int month = 0;
    for (int m = 0; m < 12; ++m)
        if (parts[1].compare(QLatin1String(months[m]), Qt::CaseInsensitive) == 0)
            month = m + 1;
    const int day = parts[0].toInt();
    const int year = parts[2].toInt();
    if (month == 0 || !QDate(year, month, day).isValid())
        return std::nullopt;
    return quint32(year * 10000 + month * 100 + day);
}

// "14:28:18" as 142818.
std::optional<quint32> readTime(QStringView s) {
    const auto parts = s.split(QLatin1Char(':'));
    if (parts.size() != 3)
        return std::nullopt;
    for (const auto& p : parts)
        if (!allDigits(p) || p.size() > 2)
            return std::nullopt;
    const int h = parts[0].toInt(), m = parts[1].toInt(), sec = parts[2].toInt();
    if (!QTime(h, m, sec).isValid())
        return std::nullopt;
    return quint32(h * 10000 + m * 100 + sec);
}

} // namespace

QString EntryDetails::modifiedText() const {
    // Written the same way in every language, as the listing's own order: year first.
    QString text;
    if (date)
        text = QStringLiteral("%1-%2-%3")
                   .arg(*date / 10000, 4, 10, QLatin1Char('0'))
                   .arg(*date / 100 % 100, 2, 10, QLatin1Char('0'))
                   .arg(*date % 100, 2, 10, QLatin1Char('0'));
    if (time) {
        if (!text.isEmpty())
            text += QLatin1Char(' ');
        text += QStringLiteral("%1:%2:%3")
                    .arg(*time / 10000, 2, 10, QLatin1Char('0'))
                    .arg(*time / 100 % 100, 2, 10, QLatin1Char('0'))
                    .arg(*time % 100, 2, 10, QLatin1Char('0'));
    }
    return text;
}

QString EntryDetails::crcText() const {
    return crc ? QStringLiteral("%1").arg(*crc, 8, 16, QLatin1Char('0')).toUpper() : QString();
}

namespace {

// The blank-separated fields of a line, one after the other, without copying.
class Fields {
public:
    explicit Fields(QStringView line) : line_(line) {}
    QStringView next() {
        while (at_ < line_.size() && line_[at_] == QLatin1Char(' '))
            ++at_;
        const qsizetype start = at_;
        while (at_ < line_.size() && line_[at_] != QLatin1Char(' '))
            ++at_;
        return line_.mid(start, at_ - start);
    }

private:
    QStringView line_;
    qsizetype at_ = 0;
};

} // namespace

void ArchiveDetails::parseInto(QStringView line, Packed& p) {
    p = Packed{};
    Fields fields(line);
    QStringView field = fields.next();
    if (allDigits(field)) {
        bool ok = false;
        const quint64 size = field.toULongLong(&ok);
        if (ok) {
            p.size = size;
            p.flags |= HasSize;
        }
        field = fields.next(); // a size beyond 64 bits is read as none, and the rest still is
    }
    if (field.count(QLatin1Char('-')) == 2 && !field.startsWith(QLatin1Char('-'))) {
        if (const auto date = readDate(field)) {
            p.date = *date;
            p.flags |= HasDate;
        }
        field = fields.next();
    }
    if (field.contains(QLatin1Char(':'))) {
        if (const auto time = readTime(field)) {
            p.time = *time;
            p.flags |= HasTime;
        }
        field = fields.next();
    }
    bool attributes = false;
    for (; !field.isEmpty(); field = fields.next()) {
        if (!(p.flags & HasCrc) && isHex8(field)) {
            p.crc = field.toUInt(nullptr, 16);
            p.flags |= HasCrc;
        } else if (!attributes) {
            attributes = true;
            for (qsizetype i = 0; i < field.size() && i < qsizetype(sizeof p.attributes); ++i) {
                const char16_t c = field[i].unicode();
                p.attributes[i] = c > 0 && c < 0x100 ? char(c) : '?';
            }
        }
    }
}

EntryDetails ParseDetailLine(QStringView line) {
    return ArchiveDetails::readLine(line);
}

EntryDetails ArchiveDetails::readLine(QStringView line) {
    Packed p;
    parseInto(line, p);
    return unpack(p);
}

void ArchiveDetails::addLine(QStringView path, QStringView line) {
    Packed p;
    parseInto(line, p);
    place(path, p);
}

quint64 ArchiveDetails::hashOf(QStringView path, quint64 start) {
    // FNV-1a over the UTF-16 units.
    quint64 h = start;
    for (const QChar c : path) {
        h ^= c.unicode();
        h *= 1099511628211ull;
    }
    return h;
}

void ArchiveDetails::add(QStringView path, const EntryDetails& d) {
    Packed p{};
    p.flags = quint8((d.size ? HasSize : 0) | (d.date ? HasDate : 0) | (d.time ? HasTime : 0) |
                     (d.crc ? HasCrc : 0));
    p.size = d.size.value_or(0);
    p.date = d.date.value_or(0);
    p.time = d.time.value_or(0);
    p.crc = d.crc.value_or(0);
    const QByteArray attributes = d.attributes.left(8).toLatin1();
    std::memcpy(p.attributes, attributes.constData(), size_t(attributes.size()));
    place(path, p);
}

void ArchiveDetails::place(QStringView path, const Packed& p) {
    Q_ASSERT(!finished_);
    index_.push_back(Slot{hashOf(path), quint32(entries_.size())});
    entries_.push_back(p);

    // The entry counts in its folder; a folder met for the first time counts in its own.
    QStringView child = path;
    for (;;) {
        const qsizetype cut = child.lastIndexOf(QLatin1Char('\\'));
        const QStringView parent = cut < 0 ? QStringView() : child.left(cut);
        const quint64 h = hashOf(parent);
        auto slot = folderSlots_.constFind(h);
        const bool known = slot != folderSlots_.cend();
        if (!known) {
            slot = folderSlots_.insert(h, quint32(folders_.size()));
            folders_.push_back(Slot{h, 0});
        }
        ++folders_[*slot].second;
        if (known || cut < 0)
            break;
        child = parent;
    }
}

void ArchiveDetails::finish() {
    if (finished_)
        return;
    finished_ = true;
    folderSlots_ = {};
    // Sorted by hash, then by the order of adding (the index): no buffer as a stable sort
    // would take. A path listed twice keeps its last line: of each run of equal hashes, the
    // last stays.
    std::sort(index_.begin(), index_.end());
    size_t kept = 0;
    for (size_t i = 0; i < index_.size(); ++i)
        if (i + 1 == index_.size() || index_[i + 1].first != index_[i].first)
            index_[kept++] = index_[i];
    index_.resize(kept);
    std::sort(folders_.begin(), folders_.end(),
              [](const Slot& a, const Slot& b) { return a.first < b.first; });
    // The vectors keep their room: a copy to fit would hold both for a moment, and room
    // reserved but never written takes no memory.
}

void ArchiveDetails::reserve(qsizetype entries) {
    if (entries <= 0 || finished_)
        return;
    entries_.reserve(size_t(entries));
    index_.reserve(size_t(entries));
}

qsizetype ArchiveDetails::mostEntriesIn(qint64 logBytes) {
    // Each entry takes a name line (a name, CR, LF) and a detail line of at least 80 bytes.
    constexpr qint64 kLeastBytesPerEntry = 84;
    constexpr qint64 kMostReserved = 50'000'000;
    return qsizetype(std::min(logBytes / kLeastBytesPerEntry + 16, kMostReserved));
}

const ArchiveDetails::Slot* ArchiveDetails::find(const std::vector<Slot>& v, quint64 key) {
    const auto it = std::lower_bound(v.begin(), v.end(), key,
                                     [](const Slot& s, quint64 k) { return s.first < k; });
    return it != v.end() && it->first == key ? &*it : nullptr;
}

EntryDetails ArchiveDetails::unpack(const Packed& p) {
    EntryDetails d;
    if (p.flags & HasSize)
        d.size = p.size;
    if (p.flags & HasDate)
        d.date = p.date;
    if (p.flags & HasTime)
        d.time = p.time;
    if (p.flags & HasCrc)
        d.crc = p.crc;
    d.attributes = QString::fromLatin1(p.attributes, qsizetype(strnlen(p.attributes, 8)));
    return d;
}

std::optional<EntryDetails> ArchiveDetails::entry(QStringView path) const {
    return entryByHash(hashOf(path));
}

std::optional<EntryDetails> ArchiveDetails::entryByHash(quint64 hash) const {
    if (!finished_)
        return std::nullopt;
    const Slot* slot = find(index_, hash);
    if (!slot)
        return std::nullopt;
    return unpack(entries_[slot->second]);
}

quint32 ArchiveDetails::entryIndexByHash(quint64 hash) const {
    const Slot* slot = finished_ ? find(index_, hash) : nullptr;
    return slot ? slot->second : kNoEntry;
}

quint64 ArchiveDetails::sortKeyAt(quint32 entry, int column) const {
    if (entry >= entries_.size())
        return 0;
    const Packed& p = entries_[entry];
    switch (column) {
    case 1:
        return (p.flags & HasSize) ? std::min<quint64>(p.size, ~quint64(0) - 1) + 1 : 0;
    case 2:
        return quint64(p.date) * 1000000u + p.time;
    case 3: {
        quint64 key = 0;
        for (const char c : p.attributes)
            key = (key << 8) | quint8(c);
        return key;
    }
    case 4:
        return (p.flags & HasCrc) ? quint64(p.crc) + 1 : 0;
    default:
        return 0;
    }
}

std::optional<int> ArchiveDetails::folderCount(QStringView path) const {
    return folderCountByHash(hashOf(path));
}

std::optional<int> ArchiveDetails::folderCountByHash(quint64 hash) const {
    if (!finished_)
        return std::nullopt;
    const Slot* slot = find(folders_, hash);
    if (!slot)
        return std::nullopt;
    return int(slot->second);
}

qsizetype ArchiveDetails::bytes() const {
    // What is written: room reserved beyond it takes no memory until it is.
    return qsizetype(entries_.size() * sizeof(Packed) + index_.size() * sizeof(Slot) +
                     folders_.capacity() * sizeof(Slot));
}

} // namespace quovara
