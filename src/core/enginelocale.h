// Which code pages the engine uses. Under wine a Windows program takes its code pages from the
// locale of its process (LC_ALL, else LC_CTYPE, else LANG): the OEM code page for its text and
// the names it stores, the ANSI code page for the names it reads from its command line and the
// disk. This is the one place that knows them; everything that decodes engine text or checks a
// name for the engine asks here.
#pragma once

#include "codepage.h"

#include <QProcessEnvironment>
#include <QString>

namespace quovara {

struct EngineCodePages {
    int oem = 437;
    int ansi = 1252;
    bool operator==(const EngineCodePages&) const = default;
};

// The code pages that wine gives a program under a locale name such as "ru_RU.UTF-8",
// "sr_RS@latin", "ja_JP" or "C" (the defaults of the Windows locale of that language and
// country).
EngineCodePages CodePagesForLocale(const QString& locale);

// The locale named by an environment the way the C library reads it for characters: LC_ALL,
// else LC_CTYPE, else LANG; "C" when none is set.
QString LocaleOfEnvironment(const QProcessEnvironment& environment);

// The locale chosen for the names of the archives of this session (set at start from
// "--archive-locale" or QUOVARA_ARCHIVE_LOCALE): the engine runs under it instead of the user's
// own, so that an archive made on a system of another language shows its names right. Empty: the
// user's own.
void SetArchiveLocale(const QString& locale);
QString ArchiveLocale();

// The locale the engine runs under: the archive locale when one is chosen, else this
// program's own (LocaleOfEnvironment of the process).
QString EngineLocale();

// True when the C library of this system has the locale (it is generated or built in). Wine
// garbles every name beyond ASCII under a locale that is not installed.
bool LocaleInstalled(const QString& locale);

// The message for a locale that is not installed: which one, and how to add it.
QString LocaleMissingMessage(const QString& locale);

// The full name of a locale to run the engine under for a language or locale the user names:
// "ru" or "ru_RU" or "ru_RU.UTF-8" give "ru_RU.UTF-8" (the UTF-8 form, so that the names of
// extracted files reach this system in its own encoding). Empty when the text names no locale.
QString NormalizedLocale(const QString& text);

// How the active engine reads and writes text.
struct EngineTextCodecs {
    // A Windows program run through the launcher (else a native engine, UTF-8 throughout).
    bool windows = false;
    QString locale;
    EngineCodePages pages;
    // Its logs, console output, stored names and list files.
    EngineCodec text;
    // The names and passwords it reads from its command line.
    EngineCodec names;
};
EngineTextCodecs ActiveEngineCodecs();
inline EngineCodec ActiveEngineCodec() {
    return ActiveEngineCodecs().text;
}

// The codecs of a Windows engine run under `locale`.
EngineTextCodecs WindowsEngineCodecs(const QString& locale);

// A locale under which a Windows engine takes every one of `letters` (read and kept), for
// "--archive-locale": an installed one when one fits, else the first that fits; empty when
// none of the known locales has them all.
QString LocaleForLetters(const QString& letters);

// "code page 866 (the locale ru_RU.UTF-8)" and the like, for messages.
QString CodePageDescription(const EngineTextCodecs& codecs, bool ansi);

} // namespace quovara
