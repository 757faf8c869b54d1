// Names of the mirror tree that differ from the names stored in the archive. An entry whose
// name the file system cannot hold as it stands (a part longer than 255 bytes, which an
// archive made on Windows can have, or a file and a folder of one name) gets a placeholder
// under another name: shortened ("a very long na….txt") or numbered ("x (2)"). Everything that
// hands an entry to the engine asks here for its stored name.
#pragma once

#include <QHash>
#include <QString>

namespace quovara {

class MirrorAliases {
public:
    // `shown` (the path in the mirror tree) stands for `stored` (its path in the archive); both
    // relative, "\" between folders. Given for the part that was renamed: a folder renamed
    // covers every entry below it.
    void add(const QString& shown, const QString& stored);
    // The stored name of an item as the browser gives it ("a\b.txt", "\b.txt", "a\*.*"): the
    // longest renamed part at its start is given its stored name; the rest stays.
    QString storedOf(const QString& item) const;
    qsizetype count() const { return map_.size(); }
    bool isEmpty() const { return map_.isEmpty(); }
    void clear() { map_.clear(); }

private:
    QHash<QString, QString> map_;
};

// The longest a name (one part of a path) can be on this system, in bytes.
inline constexpr int kLongestNameBytes = 255;

// Another name for `name` that fits in kLongestNameBytes bytes of UTF-8: shortened with "…"
// before its extension when it is too long, and with " (n)" before its extension for n ≥ 2.
QString AliasName(const QString& name, int n);

// The message that tells the user that some names are shown under another name.
QString AliasesMessage(const QString& archive, qsizetype count);

} // namespace quovara
