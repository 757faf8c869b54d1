// The archive locale of a session: the locale the engine runs under instead of the user's own,
// so that the names of archives made on a system of another language come out right.
#pragma once

#include "app/options.h"

#include <QString>

namespace quovara {

// The locale asked for: the last --archive-locale given, else QUOVARA_ARCHIVE_LOCALE; empty
// when neither is.
QString ArchiveLocaleOfArguments(const ParsedArguments& parsed);

// Makes `text` ("ru", "ru_RU", "ru_RU.UTF-8") the engine's locale for this session. Empty when
// done; otherwise what is wrong, for standard error: a text that names no locale (it starts
// with "quovara:", a misuse), or a locale that is not installed, with the way to add it.
QString UseArchiveLocale(const QString& text);

} // namespace quovara
