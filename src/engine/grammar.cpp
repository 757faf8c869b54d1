#include "grammar.h"

#include "core/jobscript.h"

namespace quovara {

namespace {

const QChar Quote = QLatin1Char('"');

QString quoted(const QString& text) {
    return Quote + text + Quote;
}

QString dasPath(const QString& tempRoot, PathStyle style) {
    return style.join(style.join(tempRoot, QString::fromLatin1(names::WorkFolderName)),
                      QString::fromLatin1(names::ConsoleOutput));
}

} // namespace

QStringList MethodItems() {
    return {QStringLiteral("Store"),    QStringLiteral("ALZ Fast"), QStringLiteral("ALZ Normal"),
            QStringLiteral("ALZ Best"), QStringLiteral("PPM"),      QStringLiteral("LZP")};
}

QStringList DictionaryItems() {
    return {QStringLiteral("1024"), QStringLiteral("2048"),  QStringLiteral("4096"),
            QStringLiteral("8192"), QStringLiteral("16384"), QStringLiteral("32768")};
}

QString EngineFragment(const QString& programFolder, PathStyle style) {
    return quoted(style.join(programFolder, QString::fromLatin1(fragment::EngineName))) +
           QLatin1Char(' ');
}

QString MethodFragment(int position) {
    static const char* const switches[MethodCount] = {"-m0 ", "-m1 ", "-m2 ",
                                                      "-m3 ", "-mx ", "-mz "};
    if (position < 0 || position >= MethodCount)
        return QString();
    return QString::fromLatin1(switches[position]);
}

QString DictionarySizeFragment(const QString& sizeText) {
    return QStringLiteral("-md") + sizeText + QLatin1Char(' ');
}

QString PasswordFragment(const QString& password) {
    return QStringLiteral("-pw") + quoted(password) + QLatin1Char(' ');
}

QString TargetFragment(const QString& folder) {
    return QStringLiteral("-t") + quoted(folder);
}

QString AddArchiveFragment(const QString& archive) {
    return quoted(archive) + QLatin1Char(' ');
}

QString ExtractArchiveFragment(const QString& archive) {
    return quoted(archive);
}

QString AddIncludeFragment(const QString& sourceFolder, const QString& pattern, PathStyle style) {
    return quoted(style.join(sourceFolder, pattern)) + QLatin1Char(' ');
}

QString WholeFolderFragment(const QString& sourceFolder, PathStyle style) {
    return quoted(style.join(sourceFolder, QStringLiteral("*.*")));
}

QString SingleFileFragment(const QString& file) {
    return quoted(file);
}

QString ExtractIncludeFragment(const QString& pattern) {
    return QLatin1Char(' ') + quoted(pattern);
}

QString ExcludeFragment(const QString& pattern) {
    return QStringLiteral(" !") + quoted(pattern);
}

QString ListFileFragment(const QString& listFile) {
    return QStringLiteral(" @") + quoted(listFile);
}

QString RedirectFragment(const QString& tempRoot, PathStyle style) {
    return QStringLiteral(" > ") + dasPath(tempRoot, style);
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

QStringList AddCommandPieces(const AddOptions& o, MethodMemory& methods,
                             const QString& programFolder, const QString& tempRoot,
                             PathStyle style) {
    QStringList pieces;
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
                pieces << AddIncludeFragment(o.source, pattern, style);
        } else {
            pieces << WholeFolderFragment(o.source, style);
        }
    } else {
        pieces << SingleFileFragment(o.source);
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

QStringList ExtractCommandPieces(const ExtractOptions& o, const QString& programFolder,
                                 const QString& tempRoot, PathStyle style) {
    QStringList pieces;
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
    if (o.choice == FileChoice::FileList)
        pieces << ListFileFragment(o.listFile);
    pieces << RedirectFragment(tempRoot, style);
    return pieces;
}

QStringList ListCommandPieces(const QString& programFolder, const QString& tempRoot,
                              const QString& password, const QString& archive, PathStyle style) {
    QStringList pieces;
    pieces << quoted(style.join(programFolder, QString::fromLatin1(fragment::EngineName)));
    pieces << QString::fromLatin1(fragment::List);
    pieces << style.join(style.join(tempRoot, QString::fromLatin1(names::WorkFolderName)),
                         QString::fromLatin1(names::ListLog)) +
                  QLatin1Char(' ');
    if (!password.isEmpty())
        pieces << PasswordFragment(password);
    pieces << quoted(archive);
    return pieces;
}

QStringList TestCommandPieces(const QString& programFolder, const QString& tempRoot,
                              const QString& archive, PathStyle style) {
    QStringList pieces;
    pieces << quoted(style.join(programFolder, QString::fromLatin1(fragment::EngineNameUpper)));
    pieces << QString::fromLatin1(fragment::Test);
    pieces << quoted(archive);
    pieces << RedirectFragment(tempRoot, style);
    return pieces;
}

QStringList SingleItemCommandPieces(const QString& programFolder, const QString& tempRoot,
                                    const QString& password, const QString& archive,
                                    const QString& item, PathStyle style) {
    QStringList pieces;
    pieces << quoted(style.join(programFolder, QString::fromLatin1(fragment::EngineNameUpper))) +
                  QString::fromLatin1(fragment::SingleItemExtract) +
                  quoted(style.join(tempRoot, QString::fromLatin1(names::WorkFolderName))) +
                  QString::fromLatin1(fragment::YesToAll);
    if (!password.isEmpty())
        pieces << PasswordFragment(password);
    pieces << quoted(archive) + QLatin1Char(' ') + quoted(item);
    return pieces;
}

QString CommandLine(const QStringList& pieces) {
    return pieces.join(QString());
}

bool WriteAddJobScript(const QString& scriptPath, const AddOptions& options, MethodMemory& methods,
                       const QString& programFolder, const QString& tempRoot, PathStyle style) {
    return WriteJobScript(scriptPath, Preamble::Job,
                          AddCommandPieces(options, methods, programFolder, tempRoot, style));
}

bool WriteExtractJobScript(const QString& scriptPath, const ExtractOptions& options,
                           const QString& programFolder, const QString& tempRoot, PathStyle style) {
    return WriteJobScript(scriptPath, Preamble::Job,
                          ExtractCommandPieces(options, programFolder, tempRoot, style));
}

} // namespace quovara
