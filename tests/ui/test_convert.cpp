// `quovara --convert FORMAT ARCHIVE…` and "Convert…" with the stand-in engine: each archive
// listed, extracted, checked and written beside itself (or into the chosen folder), read back
// by other readers, nothing left behind on a failure or a stop.
#include "mainwindow_fixture.h"

#include "ui/jobs/convertdialog.h"
#include "ui/jobs/convertjob.h"
#include "ui/jobs/convertwindow.h"
#include "ui/jobs/extractherejob.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QTimer>

namespace quovara::testing {
namespace {

// What Python's zipfile or tarfile, 7-Zip or zstd see in a converted archive (see
// tests/engine/tools/read_converted.py): "type mode size crc time name" lines, sorted.
QStringList independentRead(const QString& format, const QString& path) {
    QProcess p;
    p.start("python3", {QStringLiteral(QUOVARA_TEST_TOOLS "/read_converted.py"), format, path});
    EXPECT_TRUE(p.waitForFinished(120000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    QStringList lines =
        QString::fromUtf8(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    for (QString& line : lines)
        line = line.section('\t', 0, 5); // the zip's UTF-8 flag is checked elsewhere
    lines.sort();
    return lines;
}

class Convert : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        here_ = places_.path() + "/here";
        QDir().mkpath(here_);
        from_ = places_.path() + "/languages";
        writeFile(from_ + "/Zażółć gęślą jaźń.txt", "pl");
        writeFile(from_ + "/Привет/мир.txt", "ru");
        writeFile(from_ + "/日本語/ファイル.txt", "ja");
        writeFile(from_ + "/Café/crème.txt", "fr");
        writeFile(from_ + "/readonly.txt", "do not touch");
        QFile::setPermissions(from_ + "/readonly.txt", QFile::ReadOwner | QFile::ReadGroup);
        QDir().mkpath(from_ + "/empty/inner");
        stamp(from_ + "/Привет/мир.txt", "2019-05-04 03:02:01");
        stamp(from_ + "/readonly.txt", "2001-02-03 04:05:06");
    }
    void TearDown() override {
        QFile::setPermissions(from_ + "/readonly.txt", QFile::ReadOwner | QFile::WriteOwner);
        MainWindow::TearDown();
    }
    static void stamp(const QString& path, const char* when) {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        ASSERT_TRUE(f.setFileTime(QDateTime::fromString(when, "yyyy-MM-dd HH:mm:ss"),
                                  QFileDevice::FileModificationTime));
    }
    QString archiveOf(const QString& name, QStringList switches = {}) {
        switches << "-ed+";
        const QString archive = makeArchiveOf(kSix, from_, here_ + "/" + name, switches);
        EXPECT_FALSE(archive.isEmpty()) << name.toStdString();
        return here_ + "/" + name;
    }
    QString named(const QString& archive, const QString& text) {
        return QString::fromLatin1(extract_here::AboutArchive)
            .arg(QFileInfo(archive).fileName(), text);
    }
    // Nothing but the archives and what was made: no staging folder, no unfinished archive.
    QStringList hiddenLeft() {
        return QDir(here_).entryList({".*"},
                                     QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    static QString line(const char* type, const char* mode, const QByteArray& data,
                        const char* when, const QString& name) {
        return QStringLiteral("%1\t%2\t%3\t%4\t%5\t%6")
            .arg(type, mode)
            .arg(data.size())
            .arg(*type == 'd'
                     ? QString()
                     : QStringLiteral("%1").arg(crcOf(data), 8, 16, QLatin1Char('0')).toUpper())
            .arg(QDateTime::fromString(when, "yyyy-MM-dd HH:mm:ss").toSecsSinceEpoch())
            .arg(name);
    }
    static quint32 crcOf(const QByteArray& data) {
        quint32 crc = 0xFFFFFFFFu;
        for (char c : data) {
            crc ^= quint8(c);
            for (int k = 0; k < 8; ++k)
                crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
        }
        return ~crc;
    }

    QString here_, from_;
};

class ConvertEveryFormat : public Convert, public ::testing::WithParamInterface<const char*> {};

TEST_P(ConvertEveryFormat, NamesInSeveralScriptsDatesAReadOnlyFileAndAnEmptyFolderRoundTrip) {
    const QString format = QString::fromLatin1(GetParam());
    const QString archive = archiveOf("Zdjęcia Фото.uha");
    EXPECT_EQ(window_.Convert(format, {archive}), 0);
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    EXPECT_FALSE(window_.isVisible());
    const QString made = here_ + "/Zdjęcia Фото." + format;
    ASSERT_TRUE(QFileInfo::exists(made));
    EXPECT_TRUE(hiddenLeft().isEmpty()) << hiddenLeft().join('|').toStdString();
    const QStringList lines = independentRead(format, made);
    // Files: their bytes, the read-only one as 0444; the times of the listing.
    EXPECT_TRUE(lines.contains(line("f", "644", "ru", "2019-05-04 03:02:01", "Привет/мир.txt")))
        << lines.join('\n').toStdString();
    EXPECT_TRUE(
        lines.contains(line("f", "444", "do not touch", "2001-02-03 04:05:06", "readonly.txt")))
        << lines.join('\n').toStdString();
    QStringList names;
    for (const QString& l : lines)
        names << l.section('\t', 0, 0) + " " + l.section('\t', 5);
    QStringList expected{"d Café",           "d empty",
                         "d empty/inner",    "d Привет",
                         "d 日本語",         "f Café/crème.txt",
                         "f readonly.txt",   "f Zażółć gęślą jaźń.txt",
                         "f Привет/мир.txt", "f 日本語/ファイル.txt"};
    names.sort();
    expected.sort();
    EXPECT_EQ(names, expected);
}

INSTANTIATE_TEST_SUITE_P(Formats, ConvertEveryFormat,
                         ::testing::Values("zip", "7z", "tar.xz", "tar.zst"), [](const auto& info) {
                             return QString::fromLatin1(info.param)
                                 .replace('.', '_')
                                 .replace("7z", "SevenZip")
                                 .toStdString();
                         });

TEST_F(Convert, BsdtarReadsTheNewArchive) {
    const QString archive = archiveOf("photos.uha");
    ASSERT_EQ(window_.Convert("7z", {archive}), 0);
    QProcess p;
    p.start("bsdtar", {"-tf", here_ + "/photos.7z"});
    ASSERT_TRUE(p.waitForFinished(60000));
    EXPECT_EQ(p.exitCode(), 0);
    EXPECT_TRUE(QString::fromUtf8(p.readAllStandardOutput()).contains("日本語/ファイル.txt"));
}

TEST_F(Convert, ATakenNameGivesTheNextFreeOne) {
    const QString archive = archiveOf("photos.uha");
    writeFile(here_ + "/photos.zip", "mine");
    EXPECT_EQ(window_.Convert("zip", {archive}), 0);
    EXPECT_EQ(readAll(here_ + "/photos.zip"), "mine");
    EXPECT_EQ(folderEntries(here_), QStringList({"photos (2).zip", "photos.uha", "photos.zip"}));
}

TEST_F(Convert, ADamagedArchiveWritesNothingAndEndsWithStatusOne) {
    writeFile(from_ + "/big.bin", QByteArray(20000, 'q'));
    const QString archive = archiveOf("damaged.uha", {"-m0"});
    QByteArray bytes = readAll(archive);
    const qsizetype at = bytes.indexOf(QByteArray(64, 'q'));
    ASSERT_GT(at, 0);
    bytes[at + 100] = 'x';
    writeFile(archive, bytes);
    EXPECT_EQ(window_.Convert("tar.zst", {archive}), 1);
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: " + named(archive, " CRC-failure (file \"big.bin\")")}));
    EXPECT_EQ(folderEntries(here_), QStringList({"damaged.uha"}));
    EXPECT_TRUE(hiddenLeft().isEmpty());
}

TEST_F(Convert, AStopWhileTheEngineExtractsLeavesNothing) {
    for (int i = 0; i < 20; ++i)
        writeFile(from_ + QString("/many/f%1.txt").arg(i), "x");
    const QString archive = archiveOf("slow.uha");
    ScopedEnv delay("QUOVARA_STANDIN_DELAY_MS", "200");
    QTimer watch;
    watch.setInterval(50);
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* w = QApplication::activeWindow();
        if (w && w->objectName() == "frmExtracting")
            w->close();
    });
    watch.start();
    EXPECT_EQ(window_.Convert("zip", {archive}), 1);
    watch.stop();
    EXPECT_EQ(folderEntries(here_), QStringList({"slow.uha"}));
    EXPECT_TRUE(hiddenLeft().isEmpty());
}

TEST_F(Convert, AStopWhileTheNewArchiveIsWrittenLeavesNothing) {
    QByteArray big(24 << 20, Qt::Uninitialized);
    for (int i = 0; i < big.size(); ++i)
        big[i] = char((i * 2654435761u) >> 24);
    writeFile(from_ + "/big.bin", big);
    const QString archive = archiveOf("big.uha", {"-m0"});
    QTimer watch;
    watch.setInterval(5);
    bool pressed = false;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->objectName() == "frmConverting" && w->isVisible() && !pressed) {
                pressed = true;
                QTest::keyClick(w, Qt::Key_Escape);
            }
        }
    });
    watch.start();
    EXPECT_EQ(window_.Convert("tar.xz", {archive}), 1);
    watch.stop();
    EXPECT_TRUE(pressed);
    // A stop is the user's own doing: no message.
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    EXPECT_EQ(folderEntries(here_), QStringList({"big.uha"}));
    EXPECT_TRUE(hiddenLeft().isEmpty());
}

TEST_F(Convert, AProtectedArchiveAsksItsPasswordAndSaysTheNewOneHasNone) {
    const QString archive = archiveOf("protected.uha", {"-pwsecret"});
    prompter_.answers = {"secret"};
    EXPECT_EQ(window_.Convert("zip", {archive}), 0);
    EXPECT_EQ(
        prompter_.shown,
        QStringList({"prompt: " + named(archive, "Insert Password"),
                     "information: " + named(archive, "The new archive will not be protected by a "
                                                      "password.")}));
    const QStringList lines = independentRead("zip", here_ + "/protected.zip");
    EXPECT_TRUE(lines.contains(line("f", "644", "ru", "2019-05-04 03:02:01", "Привет/мир.txt")));
}

TEST_F(Convert, ACancelledPasswordPromptWritesNothing) {
    const QString archive = archiveOf("protected.uha", {"-pwsecret"});
    prompter_.answers = {QString()};
    EXPECT_EQ(window_.Convert("zip", {archive}), 1);
    EXPECT_EQ(prompter_.shown,
              QStringList({"prompt: " + named(archive, "Insert Password"),
                           "critical: " + named(archive, convert_job::NoPassword)}));
    EXPECT_EQ(folderEntries(here_), QStringList({"protected.uha"}));
}

TEST_F(Convert, SeveralArchivesRunInTurnAndASummaryNamesThoseNotConverted) {
    const QString one = archiveOf("one.uha");
    const QString two = archiveOf("two.uha");
    writeFile(here_ + "/notes.txt", "just text");
    EXPECT_EQ(window_.Convert("tar.zst", {one, here_ + "/notes.txt", two, here_ + "/gone.uha"}), 1);
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: " + named(here_ + "/notes.txt", extract_here::NotAnArchive),
                           "critical: " + named(here_ + "/gone.uha", extract_here::NotFound),
                           "critical: These archives were not converted:\n\n" + here_ +
                               "/notes.txt\n" + here_ + "/gone.uha"}));
    EXPECT_EQ(folderEntries(here_),
              QStringList({"notes.txt", "one.tar.zst", "one.uha", "two.tar.zst", "two.uha"}));
}

TEST_F(Convert, FromTheEntryMenuIntoAChosenFolderWithTheKeyboard) {
    const QString archive = archiveOf("photos.uha");
    const QString elsewhere = places_.path() + "/converted";
    QDir().mkpath(elsewhere);
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    ASSERT_TRUE(!child<TaskPaneBar>("Barra")->isHidden());
    bool sawDialog = false;
    QTimer drive;
    drive.setInterval(20);
    QObject::connect(&drive, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<ConvertDialog*>(QApplication::activeModalWidget());
        // Driven once it is the active window, so that keys reach it as a user's would.
        if (!dialog || sawDialog || QApplication::activeWindow() != dialog)
            return;
        sawDialog = true;
        EXPECT_EQ(dialog->windowTitle(), "Convert photos.uha");
        auto* format = dialog->findChild<QComboBox*>("ConvertFormat");
        auto* folder = dialog->findChild<QLineEdit*>("ConvertFolder");
        EXPECT_EQ(format->currentText(), "ZIP (.zip)");
        EXPECT_EQ(folder->text(), here_);
        format->setFocus();
        QTest::keyClick(format, Qt::Key_Down);
        EXPECT_EQ(format->currentText(), "7z (.7z)");
        QTest::keyClick(format, Qt::Key_Tab);
        EXPECT_TRUE(folder->hasFocus());
        folder->setFocus();
        folder->selectAll();
        QTest::keyClicks(folder, elsewhere);
        EXPECT_EQ(dialog->newName(), "photos.7z");
        QTest::keyClick(folder, Qt::Key_Return);
    });
    drive.start();
    // The entry menu is that of an entry: one is selected first.
    clickItem(ScratchFolder() + "/readonly.txt");
    QAbstractItemView* view = window_.fileView()->currentView();
    QTest::keyClick(view, Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "EntryMenu");
    QTest::keyClick(menu, 'c'); // &Convert…
    drive.stop();
    EXPECT_TRUE(sawDialog);
    EXPECT_EQ(folderEntries(elsewhere), QStringList({"photos.7z"}));
    EXPECT_EQ(prompter_.shown,
              QStringList({"information: The archive was converted and every entry checked:\n" +
                           elsewhere + "/photos.7z"}));
    EXPECT_TRUE(hiddenLeft().isEmpty());
}

} // namespace
} // namespace quovara::testing
