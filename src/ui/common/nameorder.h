// The one order of names in every list of files and folders: the browser's. The browser's file
// model orders a folder with a collator of the current locale that reads a run of digits as its
// number and ignores case ("file2" before "file10"; "Еда", "Ёж", "Жук" and "あ", "ア", "か" as a
// reader of the language expects); under the C locale it compares characters by their codes,
// without regard to case. The folder tree and the search results use this same comparison.
#pragma once

#include <QString>
#include <QStringList>

namespace quovara {

// True when `a` comes before `b`. Names the collator holds equal (they differ only in case, or
// as hiragana and katakana of one sound do) come in their plain character order, so that the
// same names always come in the same order.
bool FileManagerLess(const QString& a, const QString& b);

// Sorts `names` in that order. A long list is sorted by collation keys, made once per name,
// which costs a fraction of comparing the names themselves at every step.
void SortNames(QStringList& names);

} // namespace quovara
