#include "options.h"

#include <QCoreApplication>

#include <vector>

#include "core/engineinstall.h"
#include "engine/convertformat.h"

#ifndef QUOVARA_VERSION
#error "QUOVARA_VERSION must name the package's version"
#endif

namespace quovara {

namespace {

// The descriptions are translated where --help shows them (context "Options").
const CommandOption kOptions[] = {
    {OptionId::Help, "--help", "-h", OptionTakes::Nothing, "",
     QT_TRANSLATE_NOOP("Options", "print this help and end")},
    {OptionId::Version, "--version", "", OptionTakes::Nothing, "",
     QT_TRANSLATE_NOOP(
         "Options",
         "print the version of Quovara and of the engine found in the program folder, and end")},
    {OptionId::InstallEngine, InstallEngineSwitch, "", OptionTakes::Rest, "FILE...",
     QT_TRANSLATE_NOOP(
         "Options",
         "copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the "
         "program folder, check that the engine runs, and end; no window opens")},
    {OptionId::ExtractHere, "--extract-here", "", OptionTakes::Rest, "ARCHIVE...",
     QT_TRANSLATE_NOOP(
         "Options",
         "extract each archive beside itself, never into or over anything that exists: an "
         "archive of one top-level folder or one file as it is, any other into a new folder named "
         "after it (\"name (2)\" when that is taken); a progress window shows each, and the "
         "status is 0 only when every archive was extracted")},
    {OptionId::Convert, "--convert", "", OptionTakes::Rest, "FORMAT ARCHIVE...",
     QT_TRANSLATE_NOOP(
         "Options",
         "convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as "
         "name.FORMAT (\"name (2).FORMAT\" when that is taken, never over anything): every "
         "file is extracted into a private folder, checked against the archive's listing (size and "
         "CRC-32), written, and the new archive read back; the new archive has no password; a "
         "progress window shows each, and the status is 0 only when every archive was converted "
         "and checked")},
    {OptionId::ArchiveLocale, "--archive-locale", "", OptionTakes::Value, "LOCALE",
     QT_TRANSLATE_NOOP(
         "Options",
         "run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and "
         "extract the names of archives made on a system of that language; the same as the "
         "variable QUOVARA_ARCHIVE_LOCALE")},
};

// An option's description, marked for translation in the table.
QString described(const char* text) {
    return QCoreApplication::translate("Options", text);
}

// The column where descriptions start in the help, and the width they are wrapped to.
constexpr int kDescriptionColumn = 29;
constexpr int kWidth = 79;

const CommandOption* findLong(std::span<const CommandOption> options, const QString& name) {
    for (const CommandOption& o : options)
        if (name == QLatin1String(o.name))
            return &o;
    return nullptr;
}

const CommandOption* findShort(std::span<const CommandOption> options, const QString& name) {
    for (const CommandOption& o : options)
        if (*o.shortName && name == QLatin1String(o.shortName))
            return &o;
    return nullptr;
}

// `text` wrapped at blanks into lines of at most `width - indent` characters, each indented.
// How many terminal columns a character takes: two for the wide letters of Chinese, Japanese
// and Korean, one for the rest.
int columns(char32_t c) {
    const bool wide = (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0xA4CF) ||
                      (c >= 0xAC00 && c <= 0xD7A3) || (c >= 0xF900 && c <= 0xFAFF) ||
                      (c >= 0xFE30 && c <= 0xFE4F) || (c >= 0xFF00 && c <= 0xFF60) ||
                      (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x20000 && c <= 0x3FFFD);
    return wide ? 2 : 1;
}

int columns(const QString& text) {
    int n = 0;
    for (char32_t c : text.toUcs4())
        n += columns(c);
    return n;
}

// `text` wrapped into lines of at most `width - indent` columns, each indented. Lines break at
// blanks, and also between two wide letters (Chinese and Japanese use no blanks).
QString wrapped(const QString& text, int indent, int width) {
    const QString pad(indent, QLatin1Char(' '));
    // The pieces a line may break between, each with whether a blank goes before it.
    struct Piece {
        QString text;
        bool blankBefore;
    };
    std::vector<Piece> pieces;
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        bool first = true; // the word's first piece has a blank before it
        QString run;       // narrow letters, kept together
        for (char32_t c : word.toUcs4()) {
            if (columns(c) == 1) {
                run += QString::fromUcs4(&c, 1);
                continue;
            }
            if (!run.isEmpty()) {
                pieces.push_back({run, first});
                first = false;
                run.clear();
            }
            pieces.push_back({QString::fromUcs4(&c, 1), first});
            first = false;
        }
        if (!run.isEmpty())
            pieces.push_back({run, first});
    }
    QString out;
    QString line;
    int used = 0;
    for (const Piece& piece : pieces) {
        const int blank = piece.blankBefore && !line.isEmpty() ? 1 : 0;
        const int need = columns(piece.text);
        if (!line.isEmpty() && indent + used + blank + need > width) {
            out += pad + line + QLatin1Char('\n');
            line.clear();
            used = 0;
        }
        if (!line.isEmpty() && piece.blankBefore) {
            line += QLatin1Char(' ');
            ++used;
        }
        line += piece.text;
        used += need;
    }
    if (!line.isEmpty())
        out += pad + line + QLatin1Char('\n');
    return out;
}

// One entry of the options list: the names, then the description from its column (on the
// next line when the names reach it).
QString entry(const QString& names, const QString& description) {
    const QString head = QStringLiteral("  ") + names;
    const QString body = wrapped(description, kDescriptionColumn, kWidth);
    if (head.size() + 1 > kDescriptionColumn)
        return head + QLatin1Char('\n') + body;
    return head.leftJustified(kDescriptionColumn) + body.mid(kDescriptionColumn);
}

} // namespace

std::span<const CommandOption> ProgramOptions() {
    return kOptions;
}

QStringList OptionNames(std::span<const CommandOption> options) {
    QStringList names;
    for (const CommandOption& o : options) {
        if (*o.shortName)
            names << QLatin1String(o.shortName);
        names << QLatin1String(o.name);
    }
    return names;
}

ParsedArguments ParseArguments(const QStringList& arguments,
                               std::span<const CommandOption> options) {
    ParsedArguments parsed;
    bool ended = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& a = arguments.at(i);
        if (ended) {
            parsed.operands << a;
            parsed.operandIndex << i;
            continue;
        }
        if (a == QLatin1String(EndOfOptions)) {
            ended = true;
            continue;
        }
        const CommandOption* option = nullptr;
        QString value;
        bool hasValue = false;
        if (a.startsWith(QLatin1String("--"))) {
            const qsizetype equals = a.indexOf(QLatin1Char('='));
            const QString name = equals < 0 ? a : a.left(equals);
            option = findLong(options, name);
            if (!option) {
                parsed.error =
                    QCoreApplication::translate("Options", "unrecognized option '%1'").arg(a);
                return parsed;
            }
            if (equals >= 0) {
                if (option->takes != OptionTakes::Value) {
                    parsed.error = QCoreApplication::translate(
                                       "Options", "option '%1' doesn't allow an argument")
                                       .arg(name);
                    return parsed;
                }
                value = a.mid(equals + 1);
                hasValue = true;
            }
        } else {
            option = findShort(options, a);
        }
        if (!option) {
            parsed.operands << a;
            parsed.operandIndex << i;
            ++parsed.operandsBeforeEnd;
            continue;
        }
        OptionUse use{option, {}};
        switch (option->takes) {
        case OptionTakes::Nothing:
            break;
        case OptionTakes::Value:
            if (!hasValue) {
                if (i + 1 >= arguments.size()) {
                    parsed.error =
                        QCoreApplication::translate("Options", "option '%1' requires an argument")
                            .arg(a);
                    return parsed;
                }
                value = arguments.at(++i);
            }
            use.values << value;
            break;
        case OptionTakes::Rest:
            use.values = arguments.mid(i + 1);
            i = int(arguments.size());
            break;
        }
        parsed.options.push_back(use);
    }
    return parsed;
}

QString ConvertArgumentsProblem(const QStringList& values) {
    if (values.isEmpty())
        return QCoreApplication::translate("Options",
                                           "option '--convert' needs a format (%1) and an archive")
            .arg(ConvertFormatNames().join(QStringLiteral(", ")));
    if (!ConvertFormatByName(values.constFirst()))
        return QCoreApplication::translate("Options", "unknown format '%1' for '--convert' (%2)")
            .arg(values.constFirst(), ConvertFormatNames().join(QStringLiteral(", ")));
    if (values.size() < 2)
        return QCoreApplication::translate("Options",
                                           "option '--convert' needs an archive after the format");
    return QString();
}

QString UsageErrorText(const QString& error) {
    return QStringLiteral("quovara: ") + error + QLatin1Char('\n') +
           QCoreApplication::translate("Options", "Try 'quovara --help' for more information.") +
           QLatin1Char('\n');
}

QString HelpText(std::span<const CommandOption> options) {
    QString text = QCoreApplication::translate(
        "Help", "Usage: quovara [ARCHIVE.uha]\n"
                "  or:  quovara \"WORD  PATH\"\n"
                "  or:  quovara \"WORD \" PATH\n"
                "  or:  quovara OPTION...\n"
                "\n"
                "Quovara browses, extracts, tests and creates UHARC archives (.uha); every\n"
                "operation is a run of the UHARC engine uharc.exe, kept in the program folder.\n"
                "\n"
                "Without arguments the main window opens on the home folder. With the path of\n"
                "an archive (a name ending in .uha), the archive is opened in it.\n"
                "\n"
                "A request word opens one window only, for PATH; Quovara ends when it closes:\n");
    text += entry(QStringLiteral("extract  PATH"),
                  QCoreApplication::translate("Help", "the Extract window for the archive PATH"));
    text +=
        entry(QStringLiteral("add  PATH"),
              QCoreApplication::translate("Help", "the Add window for the file or folder PATH"));
    text += entry(QStringLiteral("sfx  PATH"),
                  QCoreApplication::translate("Help", "the Make SFX window for the archive PATH"));
    text += QCoreApplication::translate(
        "Help", "The arguments are joined with single blanks, and the word is followed by two\n"
                "separator characters before the path: two blanks inside one argument\n"
                "(\"extract  /data/a.uha\"), or a blank at the end of the word and the path as\n"
                "the next argument (\"extract \" /data/a.uha).\n"
                "\n"
                "Options:\n");
    for (const CommandOption& o : options) {
        QString names = *o.shortName ? QLatin1String(o.shortName) + QStringLiteral(", ")
                                     : QStringLiteral("    ");
        names += QLatin1String(o.name);
        if (o.takes != OptionTakes::Nothing)
            names += QLatin1Char(' ') + QLatin1String(o.valueName);
        text += entry(names, described(o.description));
    }
    text += entry(QLatin1String(EndOfOptions),
                  QCoreApplication::translate(
                      "Help", "end of the options: every argument after it is a request word or a "
                              "path, even one that starts with \"-\" (a path can also be written "
                              "./-name.uha)"));
    text += QCoreApplication::translate(
        "Help", "\n"
                "Qt's own options, such as -platform NAME, are taken too. Without one, or\n"
                "QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.\n"
                "\n"
                "Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or\n"
                "misused option. --install-engine ends with 0 to 3, as quovara(1) says.\n");
    return text;
}

QString ProgramVersionLine() {
    return QStringLiteral("Quovara ") + QStringLiteral(QUOVARA_VERSION);
}

} // namespace quovara
