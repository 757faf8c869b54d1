// The file managers' context-menu actions, installed into a temporary prefix: each action's
// command line is expanded the way its file manager does it for a selected file, and the
// installed program is started with it on the offscreen platform, with the stand-in engine. A
// probe plugin loaded into the program reports the window that opened and closes it; the
// program must open the right window on the selected path, and end when it is closed.
#include "../core/test_support.h"

#include "ui/browser/commandline.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <glib.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace quovara;
using quovara::testing::readAll;
using quovara::testing::writeFile;

namespace {

// The selected files: a blank, both quote characters, letters outside Latin-1 and an emoji.
const QStringList kNames{QStringLiteral("a b.uha"), QStringLiteral("it's \"q\".uha"),
                         QString::fromUtf8("Łódź Привет 日本 📦.uha")};

struct GFreeString {
    void operator()(gchar* p) const { g_free(p); }
};
using GString_ = std::unique_ptr<gchar, GFreeString>;

QString fromG(const gchar* s) {
    return QString::fromUtf8(s);
}

QString shellQuote(const QString& s) {
    GString_ q(g_shell_quote(s.toUtf8().constData()));
    return fromG(q.get());
}

// GLib's shell-like splitting, which GIO, Nemo and Caja all use to turn the expanded line into
// the program's arguments. An unparsable line answers an empty list.
QStringList parseArgv(const QString& line) {
    gint argc = 0;
    gchar** argv = nullptr;
    GError* error = nullptr;
    if (!g_shell_parse_argv(line.toUtf8().constData(), &argc, &argv, &error)) {
        ADD_FAILURE() << "cannot parse " << line.toStdString() << ": " << error->message;
        g_error_free(error);
        return {};
    }
    QStringList out;
    for (gint i = 0; i < argc; ++i)
        out << fromG(argv[i]);
    g_strfreev(argv);
    return out;
}

// Desktop entries and KDE service menus (GIO's and KIO's launchers): %f and %F become the
// quoted path, %u and %U its URI, "%%" a percent sign, other codes nothing; then the line
// is split.
QStringList expandDesktopExec(const QString& exec, const QString& path) {
    QString line;
    for (int i = 0; i < exec.size(); ++i) {
        if (exec.at(i) != QLatin1Char('%') || i + 1 == exec.size()) {
            line += exec.at(i);
            continue;
        }
        const QChar code = exec.at(++i);
        if (code == QLatin1Char('%'))
            line += code;
        else if (code == QLatin1Char('f') || code == QLatin1Char('F'))
            line += shellQuote(path);
        else if (code == QLatin1Char('u') || code == QLatin1Char('U'))
            line += shellQuote(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    }
    return parseArgv(line);
}

// Nemo: %F becomes the paths as they are, written between the quotes that the Quote key names
// (none by default) and with characters escaped by a backslash, then the line is split. Two
// generations of Nemo escape differently: the older escapes both quote characters, and spaces
// when EscapeSpaces is true; the newer, without a Quote key, escapes quotes, tabs, backslashes
// and spaces, and puts a newline between single quotes.
enum class NemoGeneration { Older, Newer };
QStringList expandNemoExec(const QString& exec, const QString& path, const QString& quote,
                           bool escapeSpaces, NemoGeneration generation) {
    QString escaped;
    for (const QChar c : path) {
        if (generation == NemoGeneration::Older) {
            if (c == QLatin1Char('\'') || c == QLatin1Char('"') ||
                (escapeSpaces && c == QLatin1Char(' ')))
                escaped += QLatin1Char('\\');
            escaped += c;
        } else if (c == QLatin1Char('\n')) {
            escaped += QStringLiteral("'\n'");
        } else {
            if (QStringLiteral("'\"\t\\ ").contains(c))
                escaped += QLatin1Char('\\');
            escaped += c;
        }
    }
    QString q;
    if (quote == QLatin1String("double"))
        q = QStringLiteral("\"");
    else if (quote == QLatin1String("single"))
        q = QStringLiteral("'");
    QString line = exec;
    line.replace(QStringLiteral("%F"), q + escaped + q);
    return parseArgv(line);
}

// Caja's actions (the FileManager-actions format): the command is split at its first blank
// and joined again with one, %f becomes the quoted path, "%%" a percent sign, then the line is
// split.
QStringList expandCajaExec(const QString& exec, const QString& path) {
    const QString trimmed = exec.trimmed();
    const int blank = trimmed.indexOf(QLatin1Char(' '));
    const QString joined =
        blank < 0 ? trimmed
                  : trimmed.left(blank) + QLatin1Char(' ') + trimmed.mid(blank + 1).trimmed();
    QString line;
    for (int i = 0; i < joined.size(); ++i) {
        if (joined.at(i) == QLatin1Char('%') && i + 1 < joined.size()) {
            const QChar code = joined.at(++i);
            if (code == QLatin1Char('f') || code == QLatin1Char('F'))
                line += shellQuote(path);
            else if (code == QLatin1Char('%'))
                line += code;
            continue;
        }
        line += joined.at(i);
    }
    return parseArgv(line);
}

// A key file read the way GLib reads it (the file managers above all use GKeyFile or the same
// escapes).
class KeyFile {
public:
    explicit KeyFile(const QString& path) : file_(g_key_file_new()) {
        GError* error = nullptr;
        loaded_ = g_key_file_load_from_file(file_, QFile::encodeName(path).constData(),
                                            G_KEY_FILE_NONE, &error);
        if (error) {
            ADD_FAILURE() << path.toStdString() << ": " << error->message;
            g_error_free(error);
        }
    }
    ~KeyFile() { g_key_file_free(file_); }
    KeyFile(const KeyFile&) = delete;
    KeyFile& operator=(const KeyFile&) = delete;

    bool loaded() const { return loaded_; }
    QString value(const QString& group, const QString& key) const {
        GString_ v(g_key_file_get_string(file_, group.toUtf8().constData(),
                                         key.toUtf8().constData(), nullptr));
        return v ? fromG(v.get()) : QString();
    }
    QStringList list(const QString& group, const QString& key) const {
        return value(group, key).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    }
    QStringList keys(const QString& group) const {
        gchar** k = g_key_file_get_keys(file_, group.toUtf8().constData(), nullptr, nullptr);
        QStringList out;
        for (gchar** p = k; p && *p; ++p)
            out << fromG(*p);
        g_strfreev(k);
        return out;
    }
    QStringList groups() const {
        gchar** g = g_key_file_get_groups(file_, nullptr);
        QStringList out;
        for (gchar** p = g; p && *p; ++p)
            out << fromG(*p);
        g_strfreev(g);
        return out;
    }

private:
    GKeyFile* file_;
    bool loaded_ = false;
};

// One action as a file manager offers it.
struct Action {
    QString file;  // the installed file, relative to share/
    QString label; // the menu text
    QString word;  // the request word the command passes ("extract", "add", "sfx")
    std::function<QStringList(const QString& path)> expand;
};

// What one run of the program showed.
struct RunResult {
    bool finished = false;
    int exitCode = -1;
    QStringList report;
    QString output;
};

class FileManagerActions : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        root_ = new QTemporaryDir;
        ASSERT_TRUE(root_->isValid());
        prefix_ = root_->path() + "/prefix";
        QProcess install;
        install.setProcessChannelMode(QProcess::MergedChannels);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove("DESTDIR");
        install.setProcessEnvironment(env);
        install.start(QStringLiteral(QUOVARA_CMAKE),
                      {"--install", QStringLiteral(QUOVARA_BUILD_DIR), "--prefix", prefix_});
        ASSERT_TRUE(install.waitForFinished(120000));
        ASSERT_EQ(install.exitCode(), 0) << install.readAll().toStdString();

        // The stand-in engine as the program folder's engine, and one real archive of its
        // kind under every name.
        const QString program = root_->path() + "/program";
        ASSERT_TRUE(QDir().mkpath(program));
        ASSERT_TRUE(QFile::copy(QStringLiteral(QUOVARA_STANDIN_06), program + "/uharc.exe"));
        QFile(program + "/uharc.exe")
            .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QString sources = root_->path() + "/sources";
        ASSERT_TRUE(QDir().mkpath(sources + "/docs"));
        writeFile(sources + "/docs/readme.txt", "a file in the archive\r\n");
        selected_ = root_->path() + "/x";
        ASSERT_TRUE(QDir().mkpath(selected_));
        for (const QString& name : kNames) {
            QProcess make;
            make.setWorkingDirectory(sources);
            make.setProcessChannelMode(QProcess::MergedChannels);
            make.start(QStringLiteral(QUOVARA_STANDIN_06),
                       {"a", "-r+", "-y+", "-d0", selected_ + "/" + name, "docs/*"});
            ASSERT_TRUE(make.waitForFinished(30000));
            ASSERT_EQ(make.exitCode(), 0) << make.readAll().toStdString();
            ASSERT_TRUE(QFileInfo(selected_ + "/" + name).isFile()) << name.toStdString();
        }
    }
    static void TearDownTestSuite() {
        delete root_;
        root_ = nullptr;
    }

    static QString installed(const QString& relative) { return prefix_ + "/share/" + relative; }
    static QString programPath() { return prefix_ + "/bin/quovara"; }

    // Every action that the installed files offer, with its file manager's expansion.
    static QList<Action> actions() {
        QList<Action> out;
        // The menu entry's actions and KDE's service menus: desktop-entry actions.
        for (const QString& file : {QStringLiteral("applications/quovara.desktop"),
                                    QStringLiteral("kio/servicemenus/quovara.desktop"),
                                    QStringLiteral("kio/servicemenus/quovara-add.desktop")}) {
            KeyFile keys(installed(file));
            EXPECT_TRUE(keys.loaded()) << file.toStdString();
            for (const QString& id : keys.list("Desktop Entry", "Actions")) {
                // Options, not request words: the Extract here and Convert tests check them.
                if (id == "extracthere" || id.startsWith("convert"))
                    continue;
                const QString group = "Desktop Action " + id;
                const QString exec = keys.value(group, "Exec");
                out.append({file, keys.value(group, "Name"), id,
                            [exec](const QString& p) { return expandDesktopExec(exec, p); }});
            }
        }
        for (const QString& word : QStringList{"extract", "add", "sfx"}) {
            const QString nemo = "nemo/actions/quovara-" + word + ".nemo_action";
            KeyFile n(installed(nemo));
            EXPECT_TRUE(n.loaded()) << nemo.toStdString();
            const QString exec = n.value("Nemo Action", "Exec");
            const QString quote = n.value("Nemo Action", "Quote");
            const bool spaces = n.value("Nemo Action", "EscapeSpaces") == "true";
            for (NemoGeneration g : {NemoGeneration::Older, NemoGeneration::Newer}) {
                out.append({nemo + (g == NemoGeneration::Older ? " (older Nemo)" : " (newer Nemo)"),
                            n.value("Nemo Action", "Name"), word, [=](const QString& p) {
                                return expandNemoExec(exec, p, quote, spaces, g);
                            }});
            }
            const QString caja = "file-manager/actions/quovara-" + word + ".desktop";
            KeyFile c(installed(caja));
            EXPECT_TRUE(c.loaded()) << caja.toStdString();
            for (const QString& profile : c.list("Desktop Entry", "Profiles")) {
                const QString cexec = c.value("X-Action-Profile " + profile, "Exec");
                out.append({caja, c.value("Desktop Entry", "Name"), word,
                            [cexec](const QString& p) { return expandCajaExec(cexec, p); }});
            }
        }
        return out;
    }

    // Starts the installed program with `argv` the way the file manager would (no shell) and
    // waits for it to end.
    RunResult run(const QStringList& argv) {
        RunResult r;
        QTemporaryDir places;
        const QString report = places.path() + "/report.txt";
        QDir().mkpath(places.path() + "/tmp");
        QDir().mkpath(places.path() + "/run");
        QFile::setPermissions(places.path() + "/run",
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("QT_QPA_GENERIC_PLUGINS", "quovaraprobe");
        env.insert("QT_PLUGIN_PATH", QStringLiteral(QUOVARA_PROBE_PLUGIN_DIR));
        env.insert("QUOVARA_PROBE_REPORT", report);
        env.insert("QUOVARA_PROGRAM_DIR", root_->path() + "/program");
        env.insert("TMPDIR", places.path() + "/tmp");
        env.insert("XDG_RUNTIME_DIR", places.path() + "/run");
        env.insert("HOME", places.path());
        QProcess p;
        p.setProcessEnvironment(env);
        p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(argv.value(0), argv.mid(1));
        r.finished = p.waitForFinished(60000);
        if (!r.finished) {
            p.kill();
            p.waitForFinished(5000);
        }
        r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
        r.output = QString::fromLocal8Bit(p.readAll());
        r.report = QString::fromUtf8(readAll(report)).split('\n', Qt::SkipEmptyParts);
        return r;
    }

    static QTemporaryDir* root_;
    static QString prefix_;
    static QString selected_;
};

QTemporaryDir* FileManagerActions::root_ = nullptr;
QString FileManagerActions::prefix_;
QString FileManagerActions::selected_;

} // namespace

TEST_F(FileManagerActions, EveryFileManagerOffersTheThreeRequests) {
    QMap<QString, QStringList> words;
    for (const Action& a : actions())
        words[a.file.section(' ', 0, 0)] << a.word;
    const QStringList all{"extract", "add", "sfx"};
    EXPECT_EQ(words.value("applications/quovara.desktop"), all);
    EXPECT_EQ(words.value("kio/servicemenus/quovara.desktop"), QStringList({"extract", "sfx"}));
    EXPECT_EQ(words.value("kio/servicemenus/quovara-add.desktop"), QStringList{"add"});
    for (const QString& word : all) {
        EXPECT_EQ(words.value("nemo/actions/quovara-" + word + ".nemo_action").size(), 2);
        EXPECT_EQ(words.value("file-manager/actions/quovara-" + word + ".desktop"),
                  QStringList{word});
    }
    // Menu texts.
    QMap<QString, QString> labels;
    for (const Action& a : actions())
        labels[a.file.section(' ', 0, 0) + "|" + a.word] = a.label;
    EXPECT_EQ(labels.value("applications/quovara.desktop|extract"), "Extract…");
    EXPECT_EQ(labels.value("applications/quovara.desktop|add"), "Add to archive…");
    EXPECT_EQ(labels.value("applications/quovara.desktop|sfx"), "Make SFX…");
    EXPECT_EQ(labels.value("kio/servicemenus/quovara.desktop|extract"), "Extract with Quovara");
    EXPECT_EQ(labels.value("kio/servicemenus/quovara.desktop|sfx"), "Make SFX with Quovara");
    EXPECT_EQ(labels.value("kio/servicemenus/quovara-add.desktop|add"), "Add to a Quovara archive");
}

TEST_F(FileManagerActions, ExtractHereIsOfferedBesideTheOtherActionsForEverySelectedArchive) {
    // The desktop entry and the KDE service menu: an action of their own, every file selected.
    for (const QString& file : {QStringLiteral("applications/quovara.desktop"),
                                QStringLiteral("kio/servicemenus/quovara.desktop")}) {
        KeyFile keys(installed(file));
        ASSERT_TRUE(keys.loaded()) << file.toStdString();
        EXPECT_TRUE(keys.list("Desktop Entry", "Actions").contains("extracthere"));
        const QString exec = keys.value("Desktop Action extracthere", "Exec");
        EXPECT_EQ(exec, programPath() + " --extract-here %F") << file.toStdString();
        EXPECT_EQ(expandDesktopExec(exec, selected_ + "/a b.uha"),
                  QStringList({programPath(), "--extract-here", selected_ + "/a b.uha"}));
    }
    EXPECT_EQ(KeyFile(installed("applications/quovara.desktop"))
                  .value("Desktop Action extracthere", "Name"),
              "Extract here");
    // Nemo and Caja: one or several archives.
    KeyFile nemo(installed("nemo/actions/quovara-extract-here.nemo_action"));
    ASSERT_TRUE(nemo.loaded());
    EXPECT_EQ(nemo.value("Nemo Action", "Name"), "Extract here with Quovara");
    EXPECT_EQ(nemo.value("Nemo Action", "Selection"), "notnone");
    EXPECT_EQ(nemo.value("Nemo Action", "Mimetypes"), "application/x-uharc;");
    EXPECT_EQ(nemo.value("Nemo Action", "Exec"), programPath() + " --extract-here %F");
    for (NemoGeneration g : {NemoGeneration::Older, NemoGeneration::Newer})
        EXPECT_EQ(expandNemoExec(nemo.value("Nemo Action", "Exec"), selected_ + "/a b.uha",
                                 nemo.value("Nemo Action", "Quote"), true, g),
                  QStringList({programPath(), "--extract-here", selected_ + "/a b.uha"}));
    KeyFile caja(installed("file-manager/actions/quovara-extract-here.desktop"));
    ASSERT_TRUE(caja.loaded());
    EXPECT_EQ(caja.value("X-Action-Profile local", "SelectionCount"), ">0");
    EXPECT_EQ(caja.value("X-Action-Profile local", "Exec"), programPath() + " --extract-here %F");
    EXPECT_EQ(expandCajaExec(caja.value("X-Action-Profile local", "Exec"), selected_ + "/x.uha"),
              QStringList({programPath(), "--extract-here", selected_ + "/x.uha"}));
}

// The conversions, one action per format, in the same places as Extract here and with its
// icon, MIME type and selection rules: every key of the Extract here action is in the
// conversion's with the same value, but for the caption, the description and the command.
namespace {
struct Conversion {
    QString format; // the option's format argument
    QString id;     // the desktop-entry action
    QString menu;   // the caption in the menu entry
    QString label;  // the caption in the file managers
};
const QList<Conversion> kConversions{
    {"zip", "convertzip", "Convert to ZIP", "Convert to ZIP with Quovara"},
    {"7z", "convert7z", "Convert to 7z", "Convert to 7z with Quovara"}};

void expectSameKeysAs(const KeyFile& actual, const KeyFile& model, const QString& group,
                      const QString& modelGroup, const QStringList& own) {
    QStringList wanted = model.keys(modelGroup);
    QStringList got = actual.keys(group);
    wanted.sort();
    got.sort();
    EXPECT_EQ(got, wanted) << group.toStdString();
    for (const QString& key : model.keys(modelGroup)) {
        // A translation ("Name[de]") belongs to its key.
        if (!own.contains(key.section(QLatin1Char('['), 0, 0))) {
            EXPECT_EQ(actual.value(group, key), model.value(modelGroup, key))
                << (group + " " + key).toStdString();
        }
    }
}

} // namespace

TEST_F(FileManagerActions, ConvertToZipAnd7zAreOfferedLikeExtractHereForEverySelectedArchive) {
    // The desktop entry and the KDE service menu: actions of their own, after Extract here.
    const QString menuFile = QStringLiteral("applications/quovara.desktop");
    const QString kdeFile = QStringLiteral("kio/servicemenus/quovara.desktop");
    KeyFile menu(installed(menuFile));
    KeyFile kde(installed(kdeFile));
    ASSERT_TRUE(menu.loaded());
    ASSERT_TRUE(kde.loaded());
    EXPECT_EQ(menu.list("Desktop Entry", "Actions"),
              QStringList({"extract", "extracthere", "convertzip", "convert7z", "add", "sfx"}));
    EXPECT_EQ(kde.list("Desktop Entry", "Actions"),
              QStringList({"extract", "extracthere", "convertzip", "convert7z", "sfx"}));
    KeyFile nemoHere(installed("nemo/actions/quovara-extract-here.nemo_action"));
    KeyFile cajaHere(installed("file-manager/actions/quovara-extract-here.desktop"));
    ASSERT_TRUE(nemoHere.loaded());
    ASSERT_TRUE(cajaHere.loaded());

    for (const Conversion& c : kConversions) {
        SCOPED_TRACE(c.format.toStdString());
        const QString exec = programPath() + " --convert " + c.format + " %F";
        const QString group = "Desktop Action " + c.id;
        for (const KeyFile* keys : {&menu, &kde}) {
            EXPECT_EQ(keys->value(group, "Exec"), exec);
            expectSameKeysAs(*keys, *keys, group, "Desktop Action extracthere", {"Name", "Exec"});
            for (const QString& name : kNames)
                EXPECT_EQ(
                    expandDesktopExec(keys->value(group, "Exec"), selected_ + "/" + name),
                    QStringList({programPath(), "--convert", c.format, selected_ + "/" + name}));
        }
        EXPECT_EQ(menu.value(group, "Name"), c.menu);
        EXPECT_EQ(kde.value(group, "Name"), c.label);
        EXPECT_EQ(kde.value(group, "Icon"), "quovara");

        // Nemo and Caja: one or several archives.
        const QString nemoFile = "nemo/actions/quovara-convert-" + c.format + ".nemo_action";
        KeyFile nemo(installed(nemoFile));
        ASSERT_TRUE(nemo.loaded()) << nemoFile.toStdString();
        EXPECT_EQ(nemo.value("Nemo Action", "Name"), c.label);
        EXPECT_EQ(nemo.value("Nemo Action", "Exec"), exec);
        EXPECT_EQ(nemo.value("Nemo Action", "Selection"), "notnone");
        EXPECT_EQ(nemo.value("Nemo Action", "Mimetypes"), "application/x-uharc;");
        EXPECT_EQ(nemo.value("Nemo Action", "Icon-Name"), "quovara");
        expectSameKeysAs(nemo, nemoHere, "Nemo Action", "Nemo Action", {"Name", "Comment", "Exec"});
        for (const QString& name : kNames)
            for (NemoGeneration g : {NemoGeneration::Older, NemoGeneration::Newer})
                EXPECT_EQ(
                    expandNemoExec(nemo.value("Nemo Action", "Exec"), selected_ + "/" + name,
                                   nemo.value("Nemo Action", "Quote"),
                                   nemo.value("Nemo Action", "EscapeSpaces") == "true", g),
                    QStringList({programPath(), "--convert", c.format, selected_ + "/" + name}));

        const QString cajaFile = "file-manager/actions/quovara-convert-" + c.format + ".desktop";
        KeyFile caja(installed(cajaFile));
        ASSERT_TRUE(caja.loaded()) << cajaFile.toStdString();
        EXPECT_EQ(caja.value("Desktop Entry", "Name"), c.label);
        EXPECT_EQ(caja.value("Desktop Entry", "Type"), "Action");
        EXPECT_EQ(caja.value("Desktop Entry", "Icon"), "quovara");
        EXPECT_EQ(caja.groups(), cajaHere.groups());
        expectSameKeysAs(caja, cajaHere, "Desktop Entry", "Desktop Entry", {"Name", "Tooltip"});
        EXPECT_EQ(caja.value("X-Action-Profile local", "Exec"), exec);
        EXPECT_EQ(caja.value("X-Action-Profile local", "SelectionCount"), ">0");
        EXPECT_EQ(caja.value("X-Action-Profile local", "MimeTypes"), "application/x-uharc;");
        expectSameKeysAs(caja, cajaHere, "X-Action-Profile local", "X-Action-Profile local",
                         {"Exec"});
        for (const QString& name : kNames)
            EXPECT_EQ(expandCajaExec(caja.value("X-Action-Profile local", "Exec"),
                                     selected_ + "/" + name),
                      QStringList({programPath(), "--convert", c.format, selected_ + "/" + name}));
        // Plain files, as Extract here's.
        EXPECT_EQ(
            QFileInfo(installed(nemoFile)).permissions(),
            QFileInfo(installed("nemo/actions/quovara-extract-here.nemo_action")).permissions());
        EXPECT_EQ(QFileInfo(installed(cajaFile)).permissions(),
                  QFileInfo(installed("file-manager/actions/quovara-extract-here.desktop"))
                      .permissions());
    }
}

TEST_F(FileManagerActions, TheFilesSayWhereTheyApply) {
    // KDE: service menus, for UHARC archives (extract, SFX) and for every file and folder
    // (add), and marked executable, without which KDE ignores them.
    for (const QString& file : {QStringLiteral("kio/servicemenus/quovara.desktop"),
                                QStringLiteral("kio/servicemenus/quovara-add.desktop")}) {
        KeyFile keys(installed(file));
        EXPECT_EQ(keys.value("Desktop Entry", "Type"), "Service") << file.toStdString();
        EXPECT_EQ(keys.value("Desktop Entry", "X-KDE-ServiceTypes"), "KonqPopupMenu/Plugin");
        EXPECT_TRUE(QFileInfo(installed(file)).permissions() & QFile::ExeOther)
            << file.toStdString();
    }
    EXPECT_EQ(
        KeyFile(installed("kio/servicemenus/quovara.desktop")).value("Desktop Entry", "MimeType"),
        "application/x-uharc;");
    EXPECT_EQ(KeyFile(installed("kio/servicemenus/quovara-add.desktop"))
                  .value("Desktop Entry", "MimeType"),
              "all/all;");
    // Nemo: one file selected; archives only for extract and SFX, anything for add.
    for (const QString& word : QStringList{"extract", "add", "sfx"}) {
        KeyFile n(installed("nemo/actions/quovara-" + word + ".nemo_action"));
        EXPECT_EQ(n.value("Nemo Action", "Selection"), "s");
        if (QString(word) == "add")
            EXPECT_EQ(n.value("Nemo Action", "Extensions"), "any;");
        else
            EXPECT_EQ(n.value("Nemo Action", "Mimetypes"), "application/x-uharc;");
        KeyFile c(installed("file-manager/actions/quovara-" + word + ".desktop"));
        EXPECT_EQ(c.value("Desktop Entry", "Type"), "Action");
        const QString profile = "X-Action-Profile " + c.list("Desktop Entry", "Profiles").value(0);
        EXPECT_EQ(c.value(profile, "MimeTypes"),
                  QString(word) == "add" ? "all/all;" : "application/x-uharc;");
        EXPECT_EQ(c.value(profile, "SelectionCount"), "=1");
    }
}

TEST_F(FileManagerActions, ThePathReachesTheProgramAsOneArgumentAndOpensTheRightWindow) {
    const QList<Action> all = actions();
    ASSERT_FALSE(all.isEmpty());
    // Command lines that come out the same (they all should) are run once.
    QMap<QStringList, RunResult> runs;
    for (const QString& name : kNames) {
        const QString path = selected_ + "/" + name;
        for (const Action& action : all) {
            SCOPED_TRACE((action.file + " " + action.word + " on " + name).toStdString());
            const QStringList argv = action.expand(path);
            // The installed program, the request word, and the path as one argument.
            ASSERT_EQ(argv.size(), 3) << argv.join('|').toStdString();
            EXPECT_EQ(argv[0], programPath());
            EXPECT_EQ(argv[2], path);
            // Read with the program's own parser: the request and its path.
            const CommandRequest request = ClassifyCommandLine(CommandLineText(argv.mid(1)));
            const CommandRequest::Kind expected = action.word == "extract" ? CommandRequest::Extract
                                                  : action.word == "add"   ? CommandRequest::Add
                                                                           : CommandRequest::Sfx;
            EXPECT_EQ(request.kind, expected);
            EXPECT_EQ(request.path, path);

            if (!runs.contains(argv))
                runs.insert(argv, run(argv));
            const RunResult& r = runs[argv];
            const std::string shown = (r.report.join(" / ") + " || " + r.output).toStdString();
            EXPECT_TRUE(r.finished) << "the program did not end: " << shown;
            EXPECT_EQ(r.exitCode, 0) << shown;
            QStringList expectedReport;
            if (action.word == "extract")
                expectedReport << "dialog\tfrmEstrai\tExtract " + path;
            else if (action.word == "add")
                expectedReport << "dialog\tfrmAggiungi\tAdd " + path;
            else
                // The SFX request lists the archive first (whatever its name holds), then
                // offers to save the SFX beside it.
                expectedReport << "dialog\tfrmSFX\tMake SFX"
                               << "file-dialog\tSave the SFX\t" + selected_ + "/" +
                                      QFileInfo(name).completeBaseName() + ".exe";
            // Only that window: no main window, no message.
            EXPECT_EQ(r.report, expectedReport) << shown;
        }
    }
    // Three requests on three names, whatever the file manager.
    EXPECT_EQ(runs.size(), 9);
}
