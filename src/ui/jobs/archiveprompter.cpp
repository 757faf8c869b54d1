#include "archiveprompter.h"

#include "extractherejob.h"

#include "engine/listing.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace quovara {

ArchiveNamedPrompter::ArchiveNamedPrompter(Prompter& inner, const QString& archive)
    : inner_(inner), name_(QFileInfo(archive).fileName()) {}

QString ArchiveNamedPrompter::askPassword(const QString& prompt) {
    const QString answer = inner_.askPassword(named(prompt));
    if (answer.isEmpty())
        cancelled_ = true;
    return answer;
}

QString ArchiveNamedPrompter::named(const QString& text) const {
    return QCoreApplication::translate("ExtractHere", extract_here::AboutArchive).arg(name_, text);
}

bool ListForPassword(ArchiveLister& lister, ArchiveNamedPrompter& prompter, const QString& path,
                     const QString& noPassword, const QString& password) {
    lister.listing().archivePath = path;
    lister.listing().password = password;
    for (;;) {
        lister.Batch();
        switch (lister.listing().status) {
        case ListStatus::Opened:
            return true;
        case ListStatus::EngineSwitched:
            continue; // the other engine version lists it again
        case ListStatus::PasswordRequired:
            break;
        case ListStatus::Failed:
        default:
            // The engine's message has been shown (with the archive's name). The engine
            // answers a wrong password as it answers a damaged archive: once a password was
            // given, it is asked for again.
            if (lister.listing().password.isEmpty())
                return false;
            break;
        }
        lister.listing().password =
            prompter.askPassword(QCoreApplication::translate("Listing", "Insert Password"));
        if (prompter.passwordCancelled()) {
            prompter.critical(noPassword);
            return false;
        }
    }
}

} // namespace quovara
