// The desktop files in twelve languages: every caption, comment and keyword list of the menu
// entry and of the file managers' actions, and the summary and every paragraph and list item of
// the AppStream metainfo, has a translation in each language, that keeps the ellipsis of its
// English text and the names that stay as they are. The files are read as the desktops read
// them (GLib's key-file reader, which also picks the text of a user's language), and checked
// with desktop-file-validate and appstreamcli where those are installed.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <glib.h>
#include <gtest/gtest.h>

#include <string>

namespace {

const QStringList kLanguages{"cs", "de",    "es", "fr", "it", "ja",
                             "pl", "pt_BR", "ru", "tr", "uk", "zh_CN"};
// The keys a desktop shows to people, as the desktop-entry format and the file managers'
// action formats name them.
const QStringList kShownKeys{"Name", "GenericName", "Comment", "Keywords", "Tooltip"};
// The program's name, which no language translates.
const QString kProductName = QStringLiteral("Quovara");
// Names and commands that every language writes as English does.
const QStringList kKeptWords{"Quovara", "UHARC",  "ZIP",     "7z",
                             "SFX",     "CRC-32", "tar.xz",  ".uha",
                             "tar.zst", "wine",   "Windows", "quovara --install-engine"};
const QString kEllipsis = QString::fromUtf8("\u2026");

QString dataDir() {
    return QStringLiteral(QUOVARA_SOURCE_DIR "/data");
}

// The menu entry and every file-manager action, relative to the data folder.
QStringList keyFiles() {
    QStringList out{QStringLiteral("quovara.desktop.in")};
    const QStringList actions =
        QDir(dataDir() + "/file-manager").entryList({"*.in"}, QDir::Files, QDir::Name);
    for (const QString& name : actions)
        out << "file-manager/" + name;
    return out;
}

std::string joined(const QStringList& lines) {
    return lines.join('\n').toStdString();
}

// What is wrong with one translation of an English text: missing, left in English, without
// the ellipsis, without a name that stays as it is; a keyword list must also hold every English
// keyword, and words of its own.
QStringList translationProblems(const QString& where, const QString& english,
                                const QString& language, const QString& translated,
                                bool keywordList) {
    const QString place = where + " [" + language + "]";
    if (translated.trimmed().isEmpty())
        return {place + ": no translation"};
    QStringList out;
    if (keywordList) {
        const QStringList words = translated.split(';', Qt::SkipEmptyParts);
        const QStringList englishWords = english.split(';', Qt::SkipEmptyParts);
        for (const QString& word : englishWords)
            if (!words.contains(word))
                out << place + ": lacks the English keyword \"" + word + "\"";
        if (words.size() <= englishWords.size())
            out << place + ": no keywords of its own";
        return out;
    }
    if (translated == english)
        out << place + ": the English text";
    if (english.endsWith(kEllipsis) && !translated.endsWith(kEllipsis))
        out << place + ": \"" + translated + "\" lost the ellipsis";
    for (const QString& word : kKeptWords)
        if (english.contains(word) && !translated.contains(word))
            out << place + ": \"" + translated + "\" lacks \"" + word + "\"";
    return out;
}

QStringList notUtf8(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {path + ": cannot be read"};
    const QByteArray bytes = file.readAll();
    if (!g_utf8_validate(bytes.constData(), bytes.size(), nullptr))
        return {path + ": not UTF-8"};
    return {};
}

// Every shown key of every group of a key file, in every language (all translations kept, not
// only those of the current locale). "checked" counts the English texts.
QStringList keyFileProblems(const QString& path, int* checked = nullptr) {
    QStringList out = notUtf8(path);
    if (!out.isEmpty())
        return out;
    GKeyFile* file = g_key_file_new();
    GError* error = nullptr;
    if (!g_key_file_load_from_file(file, QFile::encodeName(path).constData(),
                                   G_KEY_FILE_KEEP_TRANSLATIONS, &error)) {
        out << path + ": " + QString::fromUtf8(error->message);
        g_error_free(error);
        g_key_file_free(file);
        return out;
    }
    const QString name = QFileInfo(path).fileName();
    gchar** groups = g_key_file_get_groups(file, nullptr);
    for (gchar** group = groups; *group; ++group) {
        gchar** keys = g_key_file_get_keys(file, *group, nullptr, nullptr);
        for (gchar** key = keys; key && *key; ++key) {
            const QString k = QString::fromUtf8(*key);
            const QString where = name + " [" + QString::fromUtf8(*group) + "] " + k;
            if (k.contains('[')) {
                // A translation needs the English text it translates.
                const QByteArray base = k.section('[', 0, 0).toUtf8();
                if (!g_key_file_has_key(file, *group, base.constData(), nullptr))
                    out << where + ": a translation without an English text";
                continue;
            }
            if (!kShownKeys.contains(k))
                continue;
            gchar* value = g_key_file_get_string(file, *group, *key, nullptr);
            const QString english = QString::fromUtf8(value);
            g_free(value);
            if (english == kProductName)
                continue;
            if (checked)
                ++*checked;
            for (const QString& language : kLanguages) {
                const QByteArray localized = (k + "[" + language + "]").toUtf8();
                gchar* t = g_key_file_get_string(file, *group, localized.constData(), nullptr);
                const QString translated = t ? QString::fromUtf8(t) : QString();
                g_free(t);
                out << translationProblems(where, english, language, translated,
                                           k == QLatin1String("Keywords"));
            }
        }
        g_strfreev(keys);
    }
    g_strfreev(groups);
    g_key_file_free(file);
    return out;
}

// The summary and every paragraph and list item of the metainfo: each English element is
// followed by its translations, one per language, each with the English element's tag.
QStringList metainfoProblems(const QString& path, int* checked = nullptr) {
    QStringList out = notUtf8(path);
    if (!out.isEmpty())
        return out;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {path + ": cannot be read"};
    struct Text {
        QString tag;
        QString where;
        QString english;
        QMap<QString, QString> translations;
    };
    QList<Text> texts;
    QXmlStreamReader xml(&file);
    const QStringList tags{"summary", "p", "li"};
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString tag = xml.name().toString();
        if (!tags.contains(tag))
            continue;
        const QString language = xml.attributes().value(QLatin1String("xml:lang")).toString();
        const qint64 line = xml.lineNumber();
        const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        if (language.isEmpty()) {
            texts.append(
                {tag, "<" + tag + "> line " + QString::number(line), text.simplified(), {}});
        } else if (texts.isEmpty() || texts.last().tag != tag) {
            out << "<" + tag + " xml:lang=\"" + language + "\"> line " + QString::number(line) +
                       ": not after an English <" + tag + ">";
        } else if (texts.last().translations.contains(language)) {
            out << texts.last().where + " [" + language + "]: translated twice";
        } else {
            texts.last().translations.insert(language, text.simplified());
        }
    }
    if (xml.hasError())
        out << path + ": " + xml.errorString();
    for (const Text& t : texts) {
        if (checked)
            ++*checked;
        for (const QString& language : kLanguages)
            out << translationProblems(t.where, t.english, language, t.translations.value(language),
                                       false);
    }
    return out;
}

QString metainfoPath() {
    return dataDir() + "/org.example.Quovara.metainfo.xml";
}

void writeText(const QString& path, const QString& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    file.write(text.toUtf8());
}

} // namespace

TEST(DesktopTranslations, EveryCaptionCommentAndKeywordListIsInTwelveLanguages) {
    const QStringList files = keyFiles();
    // The menu entry, and the KDE, Nemo and Caja actions.
    ASSERT_EQ(files.size(), 15) << joined(files);
    for (const QString& file : files) {
        SCOPED_TRACE(file.toStdString());
        int checked = 0;
        const QStringList problems = keyFileProblems(dataDir() + "/" + file, &checked);
        EXPECT_TRUE(problems.isEmpty()) << joined(problems);
        EXPECT_GT(checked, 0);
    }
}

TEST(DesktopTranslations, TheMetainfoSummaryParagraphsAndListItemsAreInTwelveLanguages) {
    int checked = 0;
    const QStringList problems = metainfoProblems(metainfoPath(), &checked);
    EXPECT_TRUE(problems.isEmpty()) << joined(problems);
    // The summary, two paragraphs and five list items.
    EXPECT_EQ(checked, 8);
}

TEST(DesktopTranslations, ADesktopShowsTheTextsOfItsUsersLanguage) {
    GKeyFile* file = g_key_file_new();
    ASSERT_TRUE(g_key_file_load_from_file(
        file, QFile::encodeName(dataDir() + "/quovara.desktop.in").constData(),
        G_KEY_FILE_KEEP_TRANSLATIONS, nullptr));
    // The text GLib picks for a locale, as GIO does for the menus under that locale.
    const auto shown = [file](const char* group, const char* key, const char* locale) {
        gchar* v = g_key_file_get_locale_string(file, group, key, locale, nullptr);
        const QString s = QString::fromUtf8(v);
        g_free(v);
        return s.toStdString();
    };
    const char* here = "Desktop Action extracthere";
    EXPECT_EQ(shown(here, "Name", "de_DE.UTF-8"), "Hier entpacken");
    EXPECT_EQ(shown(here, "Name", "ru_RU.UTF-8"), "Распаковать сюда");
    EXPECT_EQ(shown(here, "Name", "fr_FR.UTF-8"), "Extraire ici");
    EXPECT_EQ(shown(here, "Name", "ja_JP.UTF-8"), "ここに展開");
    EXPECT_EQ(shown(here, "Name", "zh_CN.UTF-8"), "解压到此处");
    EXPECT_EQ(shown(here, "Name", "pt_BR.UTF-8"), "Extrair aqui");
    // Portugal's Portuguese and Taiwan's Chinese are not among the twelve: English.
    EXPECT_EQ(shown(here, "Name", "pt_PT.UTF-8"), "Extract here");
    EXPECT_EQ(shown(here, "Name", "zh_TW.UTF-8"), "Extract here");
    EXPECT_EQ(shown("Desktop Action extract", "Name", "de_DE.UTF-8"), "Entpacken…");
    EXPECT_EQ(shown("Desktop Action extract", "Name", "uk_UA.UTF-8"), "Розпакувати…");
    EXPECT_EQ(shown("Desktop Entry", "GenericName", "de_DE.UTF-8"), "Archivverwaltung");
    EXPECT_EQ(shown("Desktop Entry", "Name", "de_DE.UTF-8"), "Quovara");
    g_key_file_free(file);
}

// The checks above report what they should: a missing language, a lost ellipsis, a caption
// left in English, a dropped name, keywords without the English ones, a list item without a
// language.
TEST(DesktopTranslations, AMissingLanguageOrALostEllipsisIsReported) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    QString entry = QString::fromUtf8("[Desktop Entry]\nType=Application\nName=Quovara\n"
                                      "Keywords=archive;sfx;\n");
    for (const QString& language : kLanguages)
        entry +=
            "Keywords[" + language + "]=" +
            (language == "tr" ? QStringLiteral("arşiv;sfx;") : QStringLiteral("x;archive;sfx;")) +
            "\n";
    entry += QString::fromUtf8("\n[Desktop Action add]\nName=Add to archive…\n");
    for (const QString& language : kLanguages) {
        if (language == "ja")
            continue;
        const QString text = language == "de"   ? QString::fromUtf8("Zum Archiv hinzufügen")
                             : language == "fr" ? QString::fromUtf8("Add to archive…")
                                                : QString::fromUtf8("Ajouter…");
        entry += "Name[" + language + "]=" + text + "\n";
    }
    entry += "Comment[it]=Solo una traduzione\n"
             "\n[Desktop Action sfx]\nName=Make SFX with Quovara\n";
    for (const QString& language : kLanguages)
        entry +=
            "Name[" + language + "]=" +
            (language == "pl" ? QStringLiteral("Utwórz z Quovara") : "SFX Quovara " + language) +
            "\n";
    writeText(dir.filePath("entry.desktop"), entry);
    EXPECT_EQ(joined(keyFileProblems(dir.filePath("entry.desktop"))),
              joined({"entry.desktop [Desktop Entry] Keywords [tr]: lacks the English keyword "
                      "\"archive\"",
                      "entry.desktop [Desktop Entry] Keywords [tr]: no keywords of its own",
                      "entry.desktop [Desktop Action add] Name [de]: \"Zum Archiv hinzufügen\" "
                      "lost the ellipsis",
                      "entry.desktop [Desktop Action add] Name [fr]: the English text",
                      "entry.desktop [Desktop Action add] Name [ja]: no translation",
                      "entry.desktop [Desktop Action add] Comment[it]: a translation without an "
                      "English text",
                      "entry.desktop [Desktop Action sfx] Name [pl]: \"Utwórz z Quovara\" lacks "
                      "\"SFX\""}));

    QString metainfo = "<component><summary>A summary</summary>";
    for (const QString& language : kLanguages)
        metainfo += "<summary xml:lang=\"" + language + "\">S " + language + "</summary>";
    metainfo += "<description><p>One.</p>";
    for (const QString& language : kLanguages)
        metainfo += "<p xml:lang=\"" + language + "\">P " + language + "</p>";
    metainfo += "<ul><li>Make SFX…</li>";
    for (const QString& language : kLanguages)
        if (language != "cs")
            metainfo += "<li xml:lang=\"" + language + "\">SFX " + language +
                        (language == "es" ? QString() : kEllipsis) + "</li>";
    metainfo += "</ul><p xml:lang=\"uk\">P uk</p></description></component>";
    writeText(dir.filePath("m.xml"), metainfo);
    EXPECT_EQ(joined(metainfoProblems(dir.filePath("m.xml"))),
              joined({"<p xml:lang=\"uk\"> line 1: not after an English <p>",
                      "<li> line 1 [cs]: no translation",
                      "<li> line 1 [es]: \"SFX es\" lost the ellipsis"}));
}

TEST(DesktopTranslations, TheTranslatedFilesPassTheirValidators) {
    const QString desktopValidate = QStandardPaths::findExecutable("desktop-file-validate");
    const QString appstream = QStandardPaths::findExecutable("appstreamcli");
    if (desktopValidate.isEmpty() || appstream.isEmpty())
        GTEST_SKIP() << "desktop-file-validate or appstreamcli is not installed (Debian packages "
                        "desktop-file-utils and appstream)";
    // The menu entry as it is installed, with a program path in place of the placeholder.
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    QFile in(dataDir() + "/quovara.desktop.in");
    ASSERT_TRUE(in.open(QIODevice::ReadOnly));
    QByteArray entry = in.readAll();
    entry.replace("@QUOVARA_EXEC@", "/usr/bin/quovara");
    writeText(dir.filePath("quovara.desktop"), QString::fromUtf8(entry));
    QProcess validate;
    validate.setProcessChannelMode(QProcess::MergedChannels);
    validate.start(desktopValidate, {dir.filePath("quovara.desktop")});
    ASSERT_TRUE(validate.waitForFinished(60000));
    EXPECT_EQ(validate.exitCode(), 0);
    EXPECT_EQ(validate.readAll().toStdString(), "");

    // The metainfo: valid, without errors, warnings or remarks.
    QProcess metainfo;
    metainfo.setProcessChannelMode(QProcess::MergedChannels);
    metainfo.start(appstream, {"validate", "--no-net", metainfoPath()});
    ASSERT_TRUE(metainfo.waitForFinished(60000));
    const QString report = QString::fromUtf8(metainfo.readAll());
    EXPECT_EQ(metainfo.exitCode(), 0) << report.toStdString();
    for (const QString& line : report.split('\n'))
        EXPECT_FALSE(line.startsWith("E:") || line.startsWith("W:") || line.startsWith("I:"))
            << report.toStdString();
}
