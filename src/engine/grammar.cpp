#include "grammar.h"

#include <QCoreApplication>

#include <algorithm>

namespace quovara {

namespace {

// A value between double quotes.
Fragment quoted(const QString& text, const char* field) {
    return Fragment("\"") + Fragment::Value(text, QString::fromLatin1(field)) + Fragment("\"");
}

// The program folder (or TempRoot) is a value; the names joined to it are fixed text.
Fragment joined(const QString& folder, const char* field, PathStyle style, const QString& name) {
    return Fragment::Value(folder, QString::fromLatin1(field)) + Fragment(style.sep + name);
}

Fragment quotedEngine(const QString& programFolder, PathStyle style, const char* name) {
    return Fragment("\"") +
           joined(programFolder, "program folder", style, QString::fromLatin1(name)) +
           Fragment("\"");
}

Fragment workFile(const QString& tempRoot, PathStyle style, const char* name) {
    return joined(tempRoot, "temporary folder", style,
                  QString::fromLatin1(names::WorkFolderName) + style.sep +
                      QString::fromLatin1(name));
}

} // namespace

QStringList MethodItems() {
    return {QCoreApplication::translate("Methods", "Store"),
            QCoreApplication::translate("Methods", "ALZ Fast"),
            QCoreApplication::translate("Methods", "ALZ Normal"),
            QCoreApplication::translate("Methods", "ALZ Best"),
            QCoreApplication::translate("Methods", "PPM"),
            QCoreApplication::translate("Methods", "LZP")};
}

QStringList DictionaryItems() {
    return {QStringLiteral("1024"), QStringLiteral("2048"),  QStringLiteral("4096"),
            QStringLiteral("8192"), QStringLiteral("16384"), QStringLiteral("32768")};
}

Fragment EngineFragment(const QString& programFolder, PathStyle style) {
    return quotedEngine(programFolder, style, fragment::EngineName) + Fragment(" ");
}

QString MethodFragment(int position) {
    static const char* const switches[MethodCount] = {"-m0 ", "-m1 ", "-m2 ",
                                                      "-m3 ", "-mx ", "-mz "};
    if (position < 0 || position >= MethodCount)
        return QString();
    return QString::fromLatin1(switches[position]);
}

Fragment DictionarySizeFragment(const QString& sizeText) {
    return Fragment("-md") + Fragment::Value(sizeText, QStringLiteral("dictionary size")) +
           Fragment(" ");
}

Fragment PasswordFragment(const QString& password) {
    return Fragment("-pw") + quoted(password, "password") + Fragment(" ");
}

Fragment TargetFragment(const QString& folder) {
    return Fragment("-t") + quoted(folder, "destination folder");
}

Fragment AddArchiveFragment(const QString& archive) {
    return quoted(archive, "archive") + Fragment(" ");
}

Fragment ExtractArchiveFragment(const QString& archive) {
    return quoted(archive, "archive");
}

Fragment AddIncludeFragment(const QString& sourceFolder, const QString& pattern, PathStyle style) {
    return Fragment("\"") + Fragment::Value(sourceFolder, QStringLiteral("source")) +
           Fragment(QString(style.sep)) + Fragment::Value(pattern, QStringLiteral("file type")) +
           Fragment("\" ");
}

Fragment WholeFolderFragment(const QString& sourceFolder, PathStyle style) {
    return Fragment("\"") + joined(sourceFolder, "source", style, QStringLiteral("*.*")) +
           Fragment("\"");
}

Fragment SingleFileFragment(const QString& file) {
    return quoted(file, "source");
}

Fragment ExtractIncludeFragment(const QString& pattern) {
    return Fragment(" ") + quoted(pattern, "file type");
}

Fragment ExcludeFragment(const QString& pattern) {
    return Fragment(" !") + quoted(pattern, "exclusion");
}

Fragment ListFileFragment(const QString& listFile) {
    return Fragment(" @") + quoted(listFile, "list file");
}

Fragment RedirectFragment(const QString& tempRoot, PathStyle style) {
    return Fragment(" > ") + workFile(tempRoot, style, names::ConsoleOutput);
}

QStringList SplitPatterns(const QString& text) {
    if (text.isEmpty())
        return {};
    return text.split(QLatin1Char(','), Qt::KeepEmptyParts);
}

QString MethodMemory::choose(int position) {
    const QString chosen = MethodFragment(position);
    if (!chosen.isEmpty())
        switch_ = chosen;
    return switch_;
}

AddSourceParts SplitAddSource(const QString& source) {
    QString path = source;
    // A trailing separator ("/data/Docs/") names the same folder.
    while (path.size() > 1 && (path.endsWith(QLatin1Char('/')) || path.endsWith(QLatin1Char('\\'))))
        path.chop(1);
    const qsizetype cut =
        std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    if (cut < 0 || cut == path.size() - 1)
        return {QString(), source};
    QString folder = path.left(cut);
    // "/a" and "C:\a" are held by the root, which keeps its separator.
    if (folder.isEmpty() || (folder.size() == 2 && folder.at(1) == QLatin1Char(':')))
        folder = path.left(cut + 1);
    return {folder, path.mid(cut + 1)};
}

CommandPieces AddCommandPieces(const AddOptions& o, MethodMemory& methods,
                               const QString& programFolder, const QString& tempRoot,
                               PathStyle style) {
    CommandPieces pieces;
    const AddSourceParts source = SplitAddSource(o.source);
    pieces.setWorkingFolder(source.folder);
    const PathStyle stored = PathStyle::windows();
    pieces << EngineFragment(programFolder, style);
    pieces << QString::fromLatin1(o.move ? fragment::Move : fragment::Add);
    pieces << QString::fromLatin1(o.recurse ? fragment::RecurseOn : fragment::RecurseOff);
    const QString method = methods.choose(o.methodPosition);
    if (!method.isEmpty())
        pieces << method;
    pieces << QString::fromLatin1(fragment::Multimedia);
    pieces << QString::fromLatin1(fragment::DictionaryFlag);
    pieces << DictionarySizeFragment(o.dictionary);
    if (o.passwordTicked)
        pieces << PasswordFragment(o.password);
    pieces << AddArchiveFragment(o.archive);
    if (o.sourceIsFolder) {
        if (o.choice == FileChoice::FileTypes) {
            for (const QString& pattern : SplitPatterns(o.fileTypes))
                pieces << AddIncludeFragment(source.name, pattern, stored);
        } else {
            pieces << WholeFolderFragment(source.name, stored);
        }
    } else {
        pieces << SingleFileFragment(source.name);
    }
    if (o.excludeTicked) {
        for (const QString& pattern : SplitPatterns(o.exclude))
            pieces << ExcludeFragment(pattern);
    }
    if (o.choice == FileChoice::FileList)
        pieces << ListFileFragment(o.listFile);
    pieces << RedirectFragment(tempRoot, style);
    return pieces;
}

CommandPieces ExtractCommandPieces(const ExtractOptions& o, const QString& programFolder,
                                   const QString& tempRoot, PathStyle style) {
    CommandPieces pieces;
    pieces << EngineFragment(programFolder, style);
    // The command letter and whether the target is written come from the two controls; the
    // four cases are exclusive.
    bool targetDue = true;
    if (o.toCurrentDir && o.fullPath) {
        pieces << QString::fromLatin1(fragment::ExtractWithPaths);
        targetDue = false;
    } else if (!o.toCurrentDir && !o.fullPath) {
        pieces << QString::fromLatin1(fragment::ExtractFlat);
        targetDue = true;
    } else if (o.toCurrentDir && !o.fullPath) {
        pieces << QString::fromLatin1(fragment::ExtractFlat);
        targetDue = false;
    } else {
        pieces << QString::fromLatin1(fragment::ExtractWithPaths);
    }
    if (targetDue) {
        QString destination = o.destination;
        if (destination.endsWith(style.sep))
            destination.chop(1);
        pieces << TargetFragment(destination);
    }
    pieces << QString::fromLatin1(o.overwrite ? fragment::OverwriteOn : fragment::OverwriteOff);
    if (o.passwordTicked)
        pieces << PasswordFragment(o.password);
    pieces << ExtractArchiveFragment(o.archive);
    if (o.choice == FileChoice::FileTypes) {
        for (const QString& pattern : SplitPatterns(o.fileTypes))
            pieces << ExtractIncludeFragment(pattern);
    }
    if (o.excludeTicked) {
        for (const QString& pattern : SplitPatterns(o.exclude))
            pieces << ExcludeFragment(pattern);
    }
    for (const QString& name : o.leftOut)
        pieces << ExcludeFragment(name);
    if (o.choice == FileChoice::FileList)
        pieces << ListFileFragment(o.listFile);
    pieces << RedirectFragment(tempRoot, style);
    return pieces;
}

CommandPieces ListCommandPieces(const QString& programFolder, const QString& tempRoot,
                                const QString& password, const QString& archive, PathStyle style) {
    CommandPieces pieces;
    pieces << quotedEngine(programFolder, style, fragment::EngineName);
    pieces << QString::fromLatin1(fragment::List);
    pieces << workFile(tempRoot, style, names::ListLog) + Fragment(" ");
    if (!password.isEmpty())
        pieces << PasswordFragment(password);
    pieces << quoted(archive, "archive");
    return pieces;
}

CommandPieces TestCommandPieces(const QString& programFolder, const QString& tempRoot,
                                const QString& archive, PathStyle style) {
    CommandPieces pieces;
    pieces << quotedEngine(programFolder, style, fragment::EngineNameUpper);
    pieces << QString::fromLatin1(fragment::Test);
    pieces << quoted(archive, "archive");
    pieces << RedirectFragment(tempRoot, style);
    return pieces;
}

CommandPieces SingleItemCommandPieces(const QString& programFolder, const QString& tempRoot,
                                      const QString& password, const QString& archive,
                                      const QString& item, PathStyle style,
                                      const QStringList& leftOut) {
    CommandPieces pieces;
    pieces << quotedEngine(programFolder, style, fragment::EngineNameUpper) +
                  Fragment(fragment::SingleItemExtract) + Fragment("\"") +
                  joined(tempRoot, "temporary folder", style,
                         QString::fromLatin1(names::WorkFolderName)) +
                  Fragment("\"") + Fragment(fragment::YesToAll);
    if (!password.isEmpty())
        pieces << PasswordFragment(password);
    pieces << quoted(archive, "archive") + Fragment(" ") + quoted(item, "item");
    for (const QString& name : leftOut)
        pieces << ExcludeFragment(name);
    return pieces;
}

bool WriteAddJobScript(const QString& scriptPath, const AddOptions& options, MethodMemory& methods,
                       const QString& programFolder, const QString& tempRoot, PathStyle style,
                       QString* error) {
    return WriteJobScript(scriptPath, Preamble::Job,
                          AddCommandPieces(options, methods, programFolder, tempRoot, style),
                          LastLine::NoLineEnd, error);
}

bool WriteExtractJobScript(const QString& scriptPath, const ExtractOptions& options,
                           const QString& programFolder, const QString& tempRoot, PathStyle style,
                           QString* error) {
    return WriteJobScript(scriptPath, Preamble::Job,
                          ExtractCommandPieces(options, programFolder, tempRoot, style),
                          LastLine::NoLineEnd, error);
}

} // namespace quovara
