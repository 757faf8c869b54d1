#include "frmsfx.h"

#include "jobnotice.h"

#include "core/enginefiles.h"
#include "core/places.h"
#include "core/prompter.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTextCursor>
#include <QVBoxLayout>

Q_LOGGING_CATEGORY(lcSfxDialog, "quovara.ui.sfx")

namespace quovara {

namespace {

SfxSaveDialog& saveDialogHook() {
    static SfxSaveDialog hook;
    return hook;
}

} // namespace

QString PlatformSfxSaveDialog(QWidget* parent, const SfxSaveRequest& request) {
    QFileDialog dialog(parent, request.title);
    dialog.setObjectName(QStringLiteral("CommonDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // Only a name in an existing folder can be chosen; the folder of the program is not
    // changed by the dialog.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(request.filter);
    dialog.setDefaultSuffix(request.suffix);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.confirmOverwrite);
    if (!request.proposal.isEmpty())
        dialog.selectFile(request.proposal);
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    // Qt's own dialog reads a typed name holding '"' as a list of quoted names; on Linux a
    // double quote is an ordinary letter of a file name, so such a name is taken whole.
    if (const auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        edit && edit->text().contains(QLatin1Char('"'))) {
        QString name = edit->text();
        if (!request.suffix.isEmpty() && QFileInfo(name).suffix().isEmpty())
            name += QLatin1Char('.') + request.suffix;
        return QFileInfo(name).isAbsolute() ? name : dialog.directory().filePath(name);
    }
    const QStringList chosen = dialog.selectedFiles();
    return chosen.isEmpty() ? QString() : chosen.first();
}

namespace {

// The assembly speaks to the main window's state and hint lines and to the user; its closing
// message (success or failure) is first handed to `onEnd`.
class LabelFeedback : public SfxFeedback {
public:
    using EndHandler = std::function<void(bool created, const QString& text)>;
    LabelFeedback(QLabel* stato, QLabel* consiglio, Prompter& prompter, EndHandler onEnd = {})
        : stato_(stato), consiglio_(consiglio), prompter_(prompter), onEnd_(std::move(onEnd)) {}
    void setState(const QString& text) override {
        if (stato_)
            stato_->setText(text);
    }
    void setHint(const QString& text) override {
        if (consiglio_)
            consiglio_->setText(text);
    }
    // Paints the two lines now, without handing user input to anyone while the SFX is built.
    void repaint() override {
        if (stato_)
            stato_->repaint();
        if (consiglio_)
            consiglio_->repaint();
    }
    void information(const QString& text) override {
        if (onEnd_)
            onEnd_(true, text);
        prompter_.information(text);
    }
    void critical(const QString& text) override {
        if (onEnd_)
            onEnd_(false, text);
        prompter_.critical(text);
    }

private:
    QLabel* stato_;
    QLabel* consiglio_;
    Prompter& prompter_;
    EndHandler onEnd_;
};

// A text box's text the way the stub reads it: line breaks as CR LF.
QString crlf(const QString& plain) {
    QString text = plain;
    text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return text;
}

bool sameFile(const QString& a, const QString& b) {
    const QFileInfo fa(a), fb(b);
    if (!fa.exists() || !fb.exists())
        return false;
    return fa.canonicalFilePath() == fb.canonicalFilePath();
}

QLabel* buddyLabel(const char* name, const QString& text, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    label->setBuddy(buddy);
    return label;
}

} // namespace

QString SfxSaveFilterForQt() {
    // "Application (*.exe)|*.exe": the description already names its pattern.
    return QCoreApplication::translate("quovara::frmSFX", sfxdlg::SaveFilter)
        .section(QLatin1Char('|'), 0, 0);
}

void SetSfxSaveDialog(SfxSaveDialog dialog) {
    saveDialogHook() = std::move(dialog);
}

frmSFX::frmSFX(const QString& archivePath, QLabel* stato, QLabel* consiglio, Prompter& prompter,
               QWidget* parent)
    : QDialog(parent), archivePath_(archivePath), stato_(stato), consiglio_(consiglio),
      prompter_(prompter) {
    setObjectName(QStringLiteral("frmSFX"));
    setWindowTitle(tr(sfxdlg::Caption));

    TabStrip1 = new QTabBar(this);
    TabStrip1->setObjectName(QStringLiteral("TabStrip1"));
    TabStrip1->setAccessibleName(tr("Pages"));

    // The pages share one area under the tabs.
    auto* area = new QWidget(this);
    area->setObjectName(QStringLiteral("PageArea"));
    auto* areaLayout = new QGridLayout(area);
    areaLayout->setContentsMargins(0, 0, 0, 0);

    // Page of "General": where to extract and the programs to run.
    pic[0] = new QWidget(area);
    pic[0]->setObjectName(QStringLiteral("pic(0)"));
    auto* general = new QVBoxLayout(pic[0]);
    general->setContentsMargins(8, 8, 8, 8);
    Frame1 = new QGroupBox(tr("&Path To Extract"), pic[0]);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    cmbPath = new QComboBox(Frame1);
    cmbPath->setObjectName(QStringLiteral("cmbPath"));
    cmbPath->setEditable(true);
    cmbPath->setInsertPolicy(QComboBox::NoInsert);
    cmbPath->setAccessibleName(tr("Path To Extract"));
    auto* frame1Layout = new QVBoxLayout(Frame1);
    frame1Layout->addWidget(cmbPath);
    general->addWidget(Frame1);

    Frame2 = new QGroupBox(tr("Setup Program"), pic[0]);
    Frame2->setObjectName(QStringLiteral("Frame2"));
    TxTRunB = new QLineEdit(Frame2);
    TxTRunB->setObjectName(QStringLiteral("TxTRunB"));
    Label2 = buddyLabel("Label2", tr("Run &Before Extraction"), TxTRunB, Frame2);
    TxTRunA = new QLineEdit(Frame2);
    TxTRunA->setObjectName(QStringLiteral("TxTRunA"));
    Label1 = buddyLabel("Label1", tr("Run &After Extraction"), TxTRunA, Frame2);
    auto* frame2Layout = new QVBoxLayout(Frame2);
    frame2Layout->addWidget(Label2);
    frame2Layout->addWidget(TxTRunB);
    frame2Layout->addSpacing(6);
    frame2Layout->addWidget(Label1);
    frame2Layout->addWidget(TxTRunA);
    general->addWidget(Frame2);
    general->addStretch(1);

    // Page of "Text": the texts of the SFX window and of the licence window.
    pic[1] = new QWidget(area);
    pic[1]->setObjectName(QStringLiteral("pic(1)"));
    auto* text = new QVBoxLayout(pic[1]);
    text->setContentsMargins(8, 8, 8, 8);
    Frame3 = new QGroupBox(tr("Text of SFX"), pic[1]);
    Frame3->setObjectName(QStringLiteral("Frame3"));
    TxtCaptionSFX = new QLineEdit(Frame3);
    TxtCaptionSFX->setObjectName(QStringLiteral("TxtCaptionSFX"));
    Label5 = buddyLabel("Label5", tr("Tit&le of SFX window"), TxtCaptionSFX, Frame3);
    TextSFX = new QPlainTextEdit(Frame3);
    TextSFX->setObjectName(QStringLiteral("TextSFX"));
    TextSFX->setTabChangesFocus(true);
    TextSFX->setFixedHeight(72);
    Label3 = buddyLabel("Label3", tr("Text to display in &SFX window (Max lenght 156) "), TextSFX,
                        Frame3);
    auto* frame3Layout = new QVBoxLayout(Frame3);
    frame3Layout->addWidget(Label5);
    frame3Layout->addWidget(TxtCaptionSFX);
    frame3Layout->addWidget(Label3);
    frame3Layout->addWidget(TextSFX);
    text->addWidget(Frame3);

    Frame4 = new QGroupBox(tr("License Text"), pic[1]);
    Frame4->setObjectName(QStringLiteral("Frame4"));
    TxtCaptionLicense = new QLineEdit(Frame4);
    TxtCaptionLicense->setObjectName(QStringLiteral("TxtCaptionLicense"));
    Label6 = buddyLabel("Label6", tr("Title of L&icense window"), TxtCaptionLicense, Frame4);
    TextLicense = new QPlainTextEdit(Frame4);
    TextLicense->setObjectName(QStringLiteral("TextLicense"));
    TextLicense->setTabChangesFocus(true);
    TextLicense->setLineWrapMode(QPlainTextEdit::NoWrap);
    TextLicense->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    TextLicense->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    TextLicense->setMinimumHeight(120);
    Label4 = buddyLabel("Label4", tr("Text to display in License &window"), TextLicense, Frame4);
    auto* frame4Layout = new QVBoxLayout(Frame4);
    frame4Layout->addWidget(Label6);
    frame4Layout->addWidget(TxtCaptionLicense);
    frame4Layout->addWidget(Label4);
    frame4Layout->addWidget(TextLicense, 1);
    text->addWidget(Frame4, 1);

    areaLayout->addWidget(pic[0], 0, 0);
    areaLayout->addWidget(pic[1], 0, 0);
    // The area keeps the size of the larger page whichever page is shown, and when none is.
    area->setMinimumSize(
        pic[0]->sizeHint().expandedTo(pic[1]->sizeHint()).expandedTo(QSize(400, 0)));

    auto* tabbed = new QFrame(this);
    tabbed->setObjectName(QStringLiteral("TabFrame"));
    tabbed->setFrameShape(QFrame::StyledPanel);
    auto* tabbedLayout = new QVBoxLayout(tabbed);
    tabbedLayout->setContentsMargins(2, 2, 2, 2);
    tabbedLayout->addWidget(area);

    cmdOk = new QPushButton(tr("&Create"), this);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    cmdOk->setDefault(true);
    cmdCancel = new QPushButton(tr("Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdCancel);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->addWidget(TabStrip1);
    layout->addWidget(tabbed, 1);
    layout->addSpacing(10);
    layout->addLayout(buttons);

    // Keyboard order follows the form.
    setTabOrder(TabStrip1, cmbPath);
    setTabOrder(cmbPath, TxTRunB);
    setTabOrder(TxTRunB, TxTRunA);
    setTabOrder(TxTRunA, TxtCaptionSFX);
    setTabOrder(TxtCaptionSFX, TextSFX);
    setTabOrder(TextSFX, TxtCaptionLicense);
    setTabOrder(TxtCaptionLicense, TextLicense);
    setTabOrder(TextLicense, cmdOk);
    setTabOrder(cmdOk, cmdCancel);

    connect(TabStrip1, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0)
            TabStrip1_Click(index);
    });
    connect(TabStrip1, &QTabBar::currentChanged, this, [this](int index) {
        if (index >= 0)
            TabStrip1_Click(index);
    });
    connect(TextSFX, &QPlainTextEdit::textChanged, this, &frmSFX::limitSfxText);
    connect(cmdOk, &QPushButton::clicked, this, &frmSFX::cmdOk_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmSFX::cmdCancel_Click);

    Form_Load();
}

frmSFX::~frmSFX() = default;

void frmSFX::Form_Load() {
    // The SFX reads these names as the special folders they stand for: they stay as written.
    cmbPath->addItems({QStringLiteral("Start Menu"), QStringLiteral("Favorites"),
                       QStringLiteral("Programs"), QStringLiteral("Desktop"),
                       QStringLiteral("StartUp")});
    // The combo's text starts empty, as every other box but the SFX window text.
    cmbPath->setCurrentIndex(-1);
    cmbPath->setEditText(QString());

    // Each tab's key is its caption.
    const char* tabs[][2] = {{QT_TR_NOOP("&General"), "General"},
                             {QT_TR_NOOP("&Text"), "Text"},
                             {QT_TR_NOOP("Ad&vanced"), "Advanced"}};
    const QSignalBlocker block(TabStrip1);
    for (const auto& tab : tabs) {
        const int index = TabStrip1->addTab(tr(tab[0]));
        TabStrip1->setTabData(index, QString::fromLatin1(tab[1]));
    }

    for (QWidget* page : pic)
        page->hide();
    TextSFX->setPlainText(tr(sfxdlg::InitialSfxText));
    TabStrip1->setCurrentIndex(0);
    pic[0]->show();
}

void frmSFX::TabStrip1_Click(int index) {
    const QString key = TabStrip1->tabData(index).toString();
    for (QWidget* page : pic)
        page->hide();
    if (key == QLatin1String("General"))
        pic[0]->show();
    else if (key == QLatin1String("Text"))
        pic[1]->show();
    // "Advanced" has no page: the area under the tabs stays empty.
}

int frmSFX::visiblePage() const {
    for (int i = 0; i < 2; ++i)
        if (!pic[i]->isHidden())
            return i;
    return -1;
}

// Keeps the SFX window text within its limit, counting a line break as the two characters it
// is written as; whatever is typed or pasted past the limit is cut off.
void frmSFX::limitSfxText() {
    if (limiting_)
        return;
    const QString plain = TextSFX->toPlainText();
    if (crlf(plain).size() <= sfxdlg::MaxSfxText)
        return;
    int keep = 0;
    int written = 0;
    while (keep < plain.size()) {
        const int cost = plain.at(keep) == QLatin1Char('\n') ? 2 : 1;
        if (written + cost > sfxdlg::MaxSfxText)
            break;
        written += cost;
        ++keep;
    }
    if (keep > 0 && plain.at(keep - 1).isHighSurrogate())
        --keep;
    limiting_ = true;
    const int position = std::min(TextSFX->textCursor().position(), keep);
    TextSFX->setPlainText(plain.left(keep));
    QTextCursor cursor = TextSFX->textCursor();
    cursor.setPosition(position);
    TextSFX->setTextCursor(cursor);
    limiting_ = false;
}

SfxSettings frmSFX::settings() const {
    SfxSettings s;
    s.extractPath = cmbPath->currentText();
    s.runBefore = TxTRunB->text();
    s.runAfter = TxTRunA->text();
    s.sfxText = crlf(TextSFX->toPlainText());
    s.sfxTitle = TxtCaptionSFX->text();
    s.licenceText = crlf(TextLicense->toPlainText());
    s.licenceTitle = TxtCaptionLicense->text();
    return s;
}

void frmSFX::cmdOk_Click() {
    SfxSaveRequest request;
    request.title = tr(sfxdlg::SaveTitle);
    request.filter = SfxSaveFilterForQt();
    request.suffix = QStringLiteral("exe");
    if (!archivePath_.isEmpty()) {
        const QFileInfo archive(archivePath_);
        request.proposal = archive.absolutePath() + QLatin1Char('/') + archive.completeBaseName() +
                           QStringLiteral(".exe");
    }
    const SfxSaveDialog& hook = saveDialogHook();
    const QString output = hook ? hook(this, request) : PlatformSfxSaveDialog(this, request);
    if (output.isEmpty())
        return;

    // The files the SFX is made from are never given up for its output.
    const QString folder = ProgramFolder();
    for (const QString& source :
         {archivePath_, ResolveEngineFile(folder, QString::fromLatin1(names::SfxStub)),
          ResolveEngineFile(folder, QStringLiteral("uharc.exe"))}) {
        if (!source.isEmpty() && sameFile(output, source)) {
            prompter_.critical(
                tr("Cannot create the SFX: %1 is one of the files it is made from.").arg(output));
            return;
        }
    }

    // The user has agreed to replace an existing file: it goes now.
    const QFileInfo existing(output);
    if ((existing.exists() || existing.isSymLink()) && !QFile::remove(output))
        qCDebug(lcSfxDialog) << "could not delete the existing file" << output;

    // A user who went elsewhere while the SFX was made is told how it ended. The build held
    // the event loop: what the desktop said meanwhile (another window activated) is taken in
    // first.
    LabelFeedback feedback(
        stato_, consiglio_, prompter_, [this, output](bool made, const QString& text) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            if (UserIsAway(this))
                NotifyJobEnd({JobKind::SfxBuild, made ? JobOutcome::Finished : JobOutcome::Failed,
                              archivePath_, made ? QString() : text, made ? output : QString()});
        });
    created_ = BuildSfx(output, archivePath_, folder, settings(), feedback);
    // A failure has been reported; the dialog stays open with its texts, so that the user
    // can put the missing file in place and try again.
    if (created_)
        accept();
}

void frmSFX::cmdCancel_Click() {
    reject();
}

} // namespace quovara
