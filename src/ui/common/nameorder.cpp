#include "nameorder.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <vector>

namespace quovara {

namespace {

// Lists up to this long are sorted by comparing names: making keys would cost more.
constexpr qsizetype KeyedSortFrom = 64;

QCollator MakeCollator(const QLocale& locale) {
    // As the file model makes its own for ordering names.
    QCollator collator(locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

// The collator of the default locale, made again when the default locale has changed. One per
// thread: a collator is not to be shared between threads.
const QCollator& NameCollator() {
    thread_local QLocale madeFor;
    thread_local QCollator collator = MakeCollator(madeFor);
    const QLocale now;
    if (now != madeFor) {
        madeFor = now;
        collator = MakeCollator(now);
    }
    return collator;
}

bool IsCLocale(const QCollator& collator) {
    return collator.locale().language() == QLocale::C;
}

} // namespace

bool FileManagerLess(const QString& a, const QString& b) {
    if (const int c = NameCollator().compare(a, b); c != 0)
        return c < 0;
    return a < b;
}

void SortNames(QStringList& names) {
    const QCollator& collator = NameCollator();
    // Under the C locale a collation key keeps case, which the comparison ignores: the names
    // are compared directly, which is cheap there.
    if (names.size() < KeyedSortFrom || IsCLocale(collator)) {
        std::sort(names.begin(), names.end(), FileManagerLess);
        return;
    }
    struct Keyed {
        QCollatorSortKey key;
        qsizetype index;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(size_t(names.size()));
    for (qsizetype i = 0; i < names.size(); ++i)
        keyed.push_back({collator.sortKey(names[i]), i});
    std::sort(keyed.begin(), keyed.end(), [&names](const Keyed& x, const Keyed& y) {
        if (const int c = x.key.compare(y.key); c != 0)
            return c < 0;
        return names[x.index] < names[y.index];
    });
    QStringList sorted;
    sorted.reserve(names.size());
    for (const Keyed& k : keyed)
        sorted.append(std::move(names[k.index]));
    names = std::move(sorted);
}

} // namespace quovara
