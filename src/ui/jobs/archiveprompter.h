// What the jobs run from the command line on several archives share: messages that name the
// archive they are about, and the listing that learns an archive's password.
#pragma once

#include "core/prompter.h"

#include <QString>

namespace quovara {

class ArchiveLister;

// Passes every message on with the archive's name before it ("photos.uha:\n<message>"), so that
// with several archives the user knows which one it is about; remembers a cancelled password
// prompt.
class ArchiveNamedPrompter : public Prompter {
public:
    ArchiveNamedPrompter(Prompter& inner, const QString& archive);

    void critical(const QString& t) override { inner_.critical(named(t)); }
    void exclamation(const QString& t) override { inner_.exclamation(named(t)); }
    void information(const QString& t) override { inner_.information(named(t)); }
    void plain(const QString& t) override { inner_.plain(named(t)); }
    QString askPassword(const QString& prompt) override;
    bool question(const QString& t) override { return inner_.question(named(t)); }

    bool passwordCancelled() const { return cancelled_; }
    QString named(const QString& text) const;

private:
    Prompter& inner_;
    QString name_;
    bool cancelled_ = false;
};

// Lists the archive at `path` to learn whether it opens and with which password (trying
// `password` first, when given), asking for one while the engine wants one. False when it
// cannot be read: the user was told why, with `noPassword` when the prompt was cancelled.
bool ListForPassword(ArchiveLister& lister, ArchiveNamedPrompter& prompter, const QString& path,
                     const QString& noPassword, const QString& password = QString());

} // namespace quovara
