// The language of the program's texts, chosen as desktop programs choose it (GNU gettext's
// rules): the list in LANGUAGE ("pt_BR:pt:de") when it is set, else the locale of messages, the
// first set of LC_ALL, LC_MESSAGES and LANG. Under the C (or POSIX) locale LANGUAGE is not read
// and the texts stay as written. The first language of the list that has a catalogue wins: "pt_BR"
// takes pt_BR, "de_AT" takes de, a bare "zh" or "pt" takes the one catalogue of that language; none
// gives the source texts.
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

class QCoreApplication;

namespace quovara {

// The languages asked for, in order, without encoding or modifier ("ru_RU.UTF-8" → "ru_RU").
// Empty under the C locale.
QStringList RequestedLanguages(const QProcessEnvironment& environment);

// The catalogue of the first requested language that has one among `available` ("de",
// "pt_BR", ...); empty when none has.
QString ChooseCatalogue(const QStringList& requested, const QStringList& available);

// The languages Quovara has catalogues of.
QStringList CatalogueLanguages();

// Installs Quovara's catalogue and Qt's own (its buttons and dialogs) for the language the
// environment asks for. Returns the language chosen, or empty for the source texts.
QString InstallTranslations(QCoreApplication& app, const QProcessEnvironment& environment =
                                                       QProcessEnvironment::systemEnvironment());

} // namespace quovara
