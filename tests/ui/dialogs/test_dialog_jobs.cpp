// Whole jobs: the dialogs write their scripts, the scripts run against the stand-in engine, and
// what comes out of the archive is compared with the source byte for byte.
#include "dialog_test_support.h"

#include "core/runner.h"
#include "ui/browser/commandline.h"
#include "ui/browser/frmapri.h"
#include "ui/jobs/frmaggiungi.h"
#include "ui/jobs/frmestrai.h"
#include "ui/jobs/frmprogress.h"

#include <QApplication>
#include <QCheckBox>
#include <QDirIterator>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QTimer>
#include <QTreeView>

using namespace quovara;
using namespace quovara::testing;

namespace {

const QString kSix = QStringLiteral(QUOVARA_STANDIN_06);
const QString kFour = QStringLiteral(QUOVARA_STANDIN_04);

using Tree = QMap<QString, QByteArray>;

// Every file under `root` by its path relative to `root`, with its bytes.
Tree treeOf(const QString& root) {
    Tree tree;
    QDirIterator it(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        tree.insert(QDir(root).relativeFilePath(path), readAll(path));
    }
    return tree;
}

// The same tree with only the files whose name satisfies `keep`.
template <typename F> Tree filtered(const Tree& tree, F keep) {
    Tree out;
    for (auto it = tree.begin(); it != tree.end(); ++it)
        if (keep(QFileInfo(it.key()).fileName()))
            out.insert(it.key(), it.value());
    return out;
}

// The same files by their names alone (a flat extraction).
Tree flattened(const Tree& tree) {
    Tree out;
    for (auto it = tree.begin(); it != tree.end(); ++it)
        out.insert(QFileInfo(it.key()).fileName(), it.value());
    return out;
}

QByteArray randomBytes(int size, quint32 seed) {
    QRandomGenerator gen(seed);
    QByteArray bytes(size, '\0');
    for (char& b : bytes)
        b = char(gen.bounded(256));
    return bytes;
}

void printTree(const Tree& tree, std::ostream* os) {
    *os << '{';
    for (auto it = tree.begin(); it != tree.end(); ++it)
        *os << it.key().toStdString() << " (" << it.value().size() << " bytes), ";
    *os << '}';
}

} // namespace

namespace quovara::testing {
// Readable trees in failure messages.
inline void PrintTo(const Tree& tree, std::ostream* os) {
    printTree(tree, os);
}
} // namespace quovara::testing

namespace {

class DialogJobs : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
        QFile::copy(kSix, places_.programFolder() + "/uharc.exe");
        QFile::copy(kFour, places_.programFolder() + "/Uharc0.4.fns");
        src_ = places_.path() + "/src";
        QDir().mkpath(src_ + "/a/b");
        QDir().mkpath(src_ + "/docs");
        writeFile(src_ + "/root.txt", "root file\r\n");
        writeFile(src_ + "/notes.bak", "old notes");
        writeFile(src_ + "/empty.txt", "");
        writeFile(src_ + "/a/d.txt", QByteArray(5000, 'd'));
        writeFile(src_ + "/a/b/random.bin", randomBytes(70000, 7));
        writeFile(src_ + "/a/b/lib.dll", randomBytes(3000, 8) + QByteArray(4000, 'x'));
        writeFile(src_ + "/docs/readme.txt", "read me");
        source_ = treeOf(src_);
        ASSERT_EQ(source_.size(), 7);
        out_ = places_.path() + "/out";
        QDir().mkpath(out_);
    }

    // The hand-over of these tests: the script runs to its end in the archive's folder.
    JobHandOver runScript(const char* script) {
        return [this, script](const QString& archive) {
            QString error;
            EXPECT_TRUE(RunAndWait(WorkFile(script), 0, FolderOf(archive), {}, &error))
                << error.toStdString();
            console_ = QString::fromLatin1(readAll(WorkFile(names::ConsoleOutput)));
        };
    }

    // Adds `source` to `archive`; `choose` sets the dialog's controls before OK.
    void add(const QString& source, const QString& archive,
             const std::function<void(frmAggiungi&)>& choose = {}) {
        frmAggiungi dialog([source] { return source; }, prompter_, runScript(names::AddScript));
        showAndWait(&dialog);
        typeInto(control<QLineEdit>(&dialog, "Text1"), archive);
        if (choose)
            choose(dialog);
        click(control<QPushButton>(&dialog, "Command3"));
        EXPECT_FALSE(console_.contains("ERROR:")) << console_.toStdString();
    }

    // Extracts `archive`; the destination is clicked in the folder tree.
    void extract(const QString& archive, const QString& destination,
                 const std::function<void(frmEstrai&)>& choose = {}) {
        frmEstrai dialog(archive, prompter_, runScript(names::ExtractScript));
        showAndWait(&dialog);
        clickFolder(control<QTreeView>(&dialog, "FolderView1"), destination);
        if (choose)
            choose(dialog);
        click(control<QPushButton>(&dialog, "Command2"));
    }

    // Where an extraction with paths puts the source folder: an Add stores names from the
    // chosen folder down, so its stored name is the folder's own name.
    QString storedRoot(const QString& destination) const {
        return destination + "/" + QFileInfo(src_).fileName();
    }

    ScopedPlaces places_;
    RecordingPrompter prompter_;
    QString src_;
    QString out_;
    Tree source_;
    QString console_;
};

template <typename T> T* c(QWidget* w, const char* name) {
    return control<T>(w, name);
}

} // namespace

TEST_F(DialogJobs, EveryMethodAddsAFolderRecursivelyAndItComesBackByteForByte) {
    for (int method = 0; method < 6; ++method) {
        const QString archive = places_.path() + QStringLiteral("/m%1.uha").arg(method);
        add(src_, archive, [method](frmAggiungi& d) {
            choosePosition(c<QComboBox>(&d, "Combo1"), method);
            choosePosition(c<QComboBox>(&d, "Combo2"), method);
        });
        ASSERT_TRUE(QFileInfo(archive).isFile()) << method;
        const QString to = out_ + QStringLiteral("/m%1").arg(method);
        QDir().mkpath(to);
        extract(archive, to, [](frmEstrai& d) { click(c<QCheckBox>(&d, "Check3")); });
        EXPECT_FALSE(console_.contains("ERROR:")) << console_.toStdString();
        EXPECT_EQ(treeOf(storedRoot(to)), source_) << "method " << method;
    }
    EXPECT_TRUE(prompter_.shown.isEmpty());
    // The sources are untouched by an add.
    EXPECT_EQ(treeOf(src_), source_);
}

TEST_F(DialogJobs, APasswordProtectsTheArchive) {
    const QString archive = places_.path() + "/locked.uha";
    add(src_, archive, [](frmAggiungi& d) {
        click(c<QCheckBox>(&d, "Check4"));
        QTest::keyClicks(c<QLineEdit>(&d, "Text2"), "open sesame");
    });
    // Without the password the engine refuses and nothing comes out.
    extract(archive, out_, [](frmEstrai& d) { click(c<QCheckBox>(&d, "Check3")); });
    EXPECT_TRUE(console_.contains("ERROR: Archive requires a password")) << console_.toStdString();
    EXPECT_TRUE(treeOf(out_).isEmpty());
    extract(archive, out_, [](frmEstrai& d) {
        click(c<QCheckBox>(&d, "Check3"));
        click(c<QCheckBox>(&d, "Check2"));
        QTest::keyClicks(c<QLineEdit>(&d, "TxTPwd"), "open sesame");
    });
    EXPECT_FALSE(console_.contains("ERROR:")) << console_.toStdString();
    EXPECT_EQ(treeOf(storedRoot(out_)), source_);
}

TEST_F(DialogJobs, IncludePatternsTakeOnlyThoseFilesInEveryFolder) {
    const QString archive = places_.path() + "/some.uha";
    add(src_, archive, [](frmAggiungi& d) {
        click(c<QRadioButton>(&d, "OpFileType"));
        QTest::keyClicks(c<QLineEdit>(&d, "TxtFileType"), "*.txt,*.dll");
    });
    extract(archive, out_, [](frmEstrai& d) { click(c<QCheckBox>(&d, "Check3")); });
    EXPECT_EQ(treeOf(storedRoot(out_)), filtered(source_, [](const QString& name) {
                  return name.endsWith(".txt") || name.endsWith(".dll");
              }));
}

TEST_F(DialogJobs, ExcludePatternsLeaveThoseFilesOut) {
    const QString archive = places_.path() + "/less.uha";
    add(src_, archive, [](frmAggiungi& d) {
        click(c<QCheckBox>(&d, "ChkExclude"));
        QTest::keyClicks(c<QLineEdit>(&d, "TxtExclude"), "*.bak,*.bin");
    });
    extract(archive, out_, [](frmEstrai& d) { click(c<QCheckBox>(&d, "Check3")); });
    EXPECT_EQ(treeOf(storedRoot(out_)), filtered(source_, [](const QString& name) {
                  return !name.endsWith(".bak") && !name.endsWith(".bin");
              }));
}

TEST_F(DialogJobs, AListFileAddsTheFilesItNamesBesideTheSelectedFile) {
    const QString list = places_.path() + "/names.lst";
    writeFile(list, (src_ + "/a/d.txt\r\n" + src_ + "/a/b/random.bin\r\n").toLocal8Bit());
    const QString archive = places_.path() + "/listed.uha";
    add(src_ + "/root.txt", archive, [&list](frmAggiungi& d) {
        click(c<QRadioButton>(&d, "OpFileList"));
        QTest::keyClicks(c<QLineEdit>(&d, "TxtFileList"), list);
    });
    extract(archive, out_, [](frmEstrai& d) { click(c<QCheckBox>(&d, "Check3")); });
    // The selected file is stored by its name; the list's names as the list gives them, full
    // paths without their root.
    EXPECT_EQ(readAll(out_ + "/root.txt"), readAll(src_ + "/root.txt"));
    QFile::remove(out_ + "/root.txt");
    EXPECT_EQ(treeOf(out_ + src_), filtered(source_, [](const QString& name) {
                  return name == "d.txt" || name == "random.bin";
              }));
}

TEST_F(DialogJobs, MoveTakesTheSourcesIntoTheArchive) {
    const QString archive = places_.path() + "/moved.uha";
    add(src_, archive, [](frmAggiungi& d) { click(c<QRadioButton>(&d, "Option2")); });
    EXPECT_TRUE(treeOf(src_).isEmpty()) << "the source files are gone";
    extract(archive, out_, [](frmEstrai& d) { click(c<QCheckBox>(&d, "Check3")); });
    EXPECT_EQ(treeOf(storedRoot(out_)), source_);
}

TEST_F(DialogJobs, AFlatExtractionPutsEveryFileInTheChosenFolder) {
    const QString archive = places_.path() + "/flat.uha";
    add(src_, archive);
    extract(archive, out_);
    EXPECT_EQ(treeOf(out_), flattened(source_));
}

TEST_F(DialogJobs, ATypedFolderThatDoesNotExistIsMadeAndTheFilesGoThere) {
    const QString archive = places_.path() + "/typed.uha";
    add(src_, archive);
    const QString typed = out_ + "/made/for/it";
    prompter_.questionAnswers = {true};
    frmEstrai dialog(archive, prompter_, runScript(names::ExtractScript));
    showAndWait(&dialog);
    auto* box = control<QLineEdit>(&dialog, "TxTDir");
    box->setFocus();
    typeInto(box, typed);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(dialog.selectedFolder(), typed);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(prompter_.shown,
              QStringList({"question: The folder \"" + typed + "\" does not exist. Create it?"}));
    EXPECT_FALSE(console_.contains("ERROR:")) << console_.toStdString();
    EXPECT_EQ(treeOf(typed), flattened(source_));
}

TEST_F(DialogJobs, CurrentDirExtractsBesideTheArchive) {
    const QString folder = places_.path() + "/beside";
    QDir().mkpath(folder);
    const QString archive = folder + "/here.uha";
    add(src_, archive);
    extract(archive, out_, [](frmEstrai& d) { click(c<QRadioButton>(&d, "Option1")); });
    Tree expected = flattened(source_);
    expected.insert("here.uha", readAll(archive));
    EXPECT_EQ(treeOf(folder), expected);
    EXPECT_TRUE(treeOf(out_).isEmpty()) << "the folder tree's choice is not used";

    // With the stored paths as well.
    const QString second = places_.path() + "/beside2";
    QDir().mkpath(second);
    QFile::copy(archive, second + "/here.uha");
    extract(second + "/here.uha", out_, [](frmEstrai& d) {
        click(c<QRadioButton>(&d, "Option1"));
        click(c<QCheckBox>(&d, "Check3"));
    });
    EXPECT_EQ(treeOf(storedRoot(second)), source_);
}

TEST_F(DialogJobs, OverwriteOffKeepsExistingFilesAndOnReplacesThem) {
    const QString archive = places_.path() + "/over.uha";
    add(src_, archive);
    writeFile(out_ + "/root.txt", "edited by the user");
    extract(archive, out_);
    EXPECT_EQ(readAll(out_ + "/root.txt"), "edited by the user");
    EXPECT_TRUE(console_.contains("Skipping")) << console_.toStdString();
    Tree expected = flattened(source_);
    expected["root.txt"] = "edited by the user";
    EXPECT_EQ(treeOf(out_), expected);

    extract(archive, out_, [](frmEstrai& d) { click(c<QCheckBox>(&d, "Check1")); });
    EXPECT_EQ(treeOf(out_), flattened(source_));
}

TEST_F(DialogJobs, OnlySomeTypesComeOut) {
    const QString archive = places_.path() + "/types.uha";
    add(src_, archive);
    extract(archive, out_, [](frmEstrai& d) {
        click(c<QCheckBox>(&d, "Check3"));
        click(c<QRadioButton>(&d, "OpFileType"));
        QTest::keyClicks(c<QLineEdit>(&d, "TxtFileType"), "*.dll,*.bin");
        click(c<QCheckBox>(&d, "ChkExclude"));
        QTest::keyClicks(c<QLineEdit>(&d, "TxtExclude"), "lib*");
    });
    EXPECT_EQ(treeOf(storedRoot(out_)),
              filtered(source_, [](const QString& name) { return name == "random.bin"; }));
}

// A move cancelled the way a user does it: the add progress window is closed while the job
// runs. The engine writes its temporary archive beside the target and renames it only at the
// end, and deletes the sources only after that; closing the window ends the engine and deletes
// the temporary archive.
TEST_F(DialogJobs, AMoveCancelledFromItsProgressWindowLeavesNothingBehind) {
    qputenv("QUOVARA_STANDIN_DELAY_MS", "400");
    const QString folder = places_.path() + "/target";
    QDir().mkpath(folder);
    const QString archive = folder + "/cut.uha";
    frmApri main;
    main.setPrompter(&prompter_);
    bool closed = false;
    frmAggiungi dialog(
        [this] { return src_; }, prompter_,
        [&](const QString& a) {
            // Close the progress window once the engine has stored a file or two.
            auto* poll = new QTimer(&dialog);
            poll->setInterval(50);
            QObject::connect(poll, &QTimer::timeout, [&, poll] {
                for (QWidget* w : QApplication::topLevelWidgets()) {
                    if (w->objectName() == "frmAdding" && w->isVisible() &&
                        QFile::exists(folder + "/" + names::EngineTempArchive) &&
                        readAll(WorkFile(names::ConsoleOutput)).contains("root.txt")) {
                        poll->stop();
                        closed = w->close();
                    }
                }
            });
            poll->start();
            RunJobWindow(JobKind::Add, main, a);
            poll->stop();
        });
    showAndWait(&dialog);
    typeInto(c<QLineEdit>(&dialog, "Text1"), archive);
    click(c<QRadioButton>(&dialog, "Option2"));
    click(c<QPushButton>(&dialog, "Command3"));
    qunsetenv("QUOVARA_STANDIN_DELAY_MS");
    EXPECT_TRUE(closed);
    EXPECT_EQ(treeOf(src_), source_);
    EXPECT_FALSE(QFile::exists(archive));
    EXPECT_FALSE(QFile::exists(folder + "/" + names::EngineTempArchive));
    EXPECT_TRUE(treeOf(folder).isEmpty());
}

TEST_F(DialogJobs, NamesAndPasswordsInEveryScriptGoInAndComeBackUnchanged) {
    const QString mixed = places_.path() + QString::fromUtf8("/Źródła Привет Αθήνα 日本 📦");
    QDir().mkpath(mixed + "/it's");
    // The last name in a folder of its own.
    QStringList names = MixedScriptNames();
    names.last() = "it's/it's.txt";
    for (const QString& n : names)
        writeFile(mixed + "/" + n, n.toUtf8());
    const Tree source = treeOf(mixed);
    ASSERT_EQ(source.size(), 7);
    const QString archive = places_.path() + QString::fromUtf8("/Архив 日本 📦 it's.uha");
    const QString password = QString::fromUtf8("zażółć пароль 🔑");
    add(mixed, archive, [&](frmAggiungi& d) {
        click(c<QCheckBox>(&d, "Check4"));
        typeInto(c<QLineEdit>(&d, "Text2"), password);
    });
    ASSERT_TRUE(QFileInfo(archive).isFile());
    const QString to = out_ + QString::fromUtf8("/Wynik ęą");
    QDir().mkpath(to);
    extract(archive, to, [&](frmEstrai& d) {
        click(c<QCheckBox>(&d, "Check3"));
        click(c<QCheckBox>(&d, "Check2"));
        typeInto(c<QLineEdit>(&d, "TxTPwd"), password);
    });
    EXPECT_FALSE(console_.contains("ERROR:")) << console_.toStdString();
    EXPECT_EQ(treeOf(to + "/" + QFileInfo(mixed).fileName()), source);
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}
