// Controls gallery: every control in every mode and style, for looking at and screenshots.
// Not installed.
#include "controls/taskpanebar.h"
#include "controls/uctoolbar.h"
#include "controls/xp_progressbar.h"
#include "galleryicons.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace quovara;
using quovara::gallery::PaintedIcon;

namespace {

QLabel* heading(const QString& text) {
    auto* l = new QLabel(text);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    return l;
}

ucToolbar* mainToolbar(int imageSize, bool flat, bool list, bool divider, bool showStates) {
    auto* tb = new ucToolbar;
    tb->Initialize(imageSize, flat, list, divider);
    for (const char* n : {"back", "add", "extract", "sfx", "verify", "view", "update", "about"})
        tb->AddIcon(PaintedIcon(QString::fromLatin1(n)));
    tb->AddButton(QStringLiteral("Back"), 0, QStringLiteral("Go back"));
    tb->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    tb->AddButton(QStringLiteral("Add"), 1, QStringLiteral("Add files to an archive"));
    tb->AddButton(QStringLiteral("Extract"), 2, QStringLiteral("Extract the archive"));
    tb->AddButton(QStringLiteral("SFX"), 3, QStringLiteral("Build a self-extracting archive"));
    tb->AddButton(QStringLiteral("Verify"), 4, QStringLiteral("Test the archive"));
    tb->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    tb->AddButton(QStringLiteral("View"), 5, QStringLiteral("Change the view"),
                  ucToolbar::tbrDropDown);
    tb->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    tb->AddButton(QStringLiteral("Update"), 6, QStringLiteral("Look for a new version"));
    tb->AddButton(QStringLiteral("About"), 7, QString());
    if (showStates) {
        tb->SetButtonEnabled(1, false);
        tb->SetButtonChecked(4, true);
        tb->SetButtonPressed(6, true);
    }
    tb->setFixedHeight(tb->sizeHint().height());
    return tb;
}

TaskPaneBar* pane(const QString& style, const QList<QIcon>& images) {
    auto* p = new TaskPaneBar;
    p->setObjectName(QStringLiteral("Barra_") + style);
    p->SetStyleOverride(style);
    p->DisableUpdates(true);
    p->SetImageList(images);
    QPixmap special(64, 64);
    special.fill(Qt::transparent);
    {
        QPainter ptr(&special);
        PaintedIcon(QStringLiteral("archive")).paint(&ptr, QRect(0, 0, 64, 64));
    }
    p->AddSpecialGroup(QStringLiteral("Archive Tasks"), special);
    p->AddItem(-1, QStringLiteral("open"), QStringLiteral("Open an archive"), 1);
    p->AddItem(-1, QStringLiteral("search"), QStringLiteral("Search in archive"), 3);
    p->AddGroup(QStringLiteral("Operazioni"), QStringLiteral("File and Folder Operations"));
    p->AddItem(QStringLiteral("Operazioni"), QStringLiteral("extract"),
               QStringLiteral("Extract selected item"), 2);
    p->AddItem(QStringLiteral("Operazioni"), QStringLiteral("run"),
               QStringLiteral("Run selected file"), 2);
    p->AddItem(QStringLiteral("Operazioni"), QStringLiteral("mail"),
               QStringLiteral("Send by e-mail"), 4);
    p->AddGroup(QStringLiteral("Stato"), QStringLiteral("State"));
    auto* state = new QLabel(QStringLiteral("Quovara is ready"));
    state->setObjectName(QStringLiteral("Stato"));
    state->setAutoFillBackground(false);
    state->setFixedHeight(36);
    state->setWordWrap(true);
    p->SetGroupChild(QStringLiteral("Stato"), state);
    p->AddGroup(QStringLiteral("Links"), QStringLiteral("Other Places"));
    p->AddItem(QStringLiteral("Links"), QStringLiteral("web"), QStringLiteral("Home page"), 5);
    p->ExpandGroup(QStringLiteral("Links"), false);
    p->AddDetailsGroup(
        QStringLiteral("Details"), QStringLiteral("archive.uha"),
        QStringLiteral("Files: 128\nSize: 12.40 MB\nPacked: 3.75 MB\nMethod: ALZ Best"));
    p->DisableUpdates(false);
    p->setFixedSize(236, 600);
    return p;
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget window;
    window.setObjectName(QStringLiteral("ControlsGallery"));
    window.setWindowTitle(QStringLiteral("Quovara controls"));
    auto* root = new QVBoxLayout(&window);
    root->setContentsMargins(10, 10, 10, 10);
    root->setSpacing(6);

    root->addWidget(heading(QStringLiteral("Toolbar: flat, captions below, divider, 32 px")));
    root->addWidget(mainToolbar(32, true, false, true, false));
    root->addWidget(heading(
        QStringLiteral("Toolbar: flat list style, 16 px; disabled, checked and pressed buttons")));
    root->addWidget(mainToolbar(16, true, true, false, true));
    root->addWidget(heading(QStringLiteral("Toolbar: raised buttons, 24 px")));
    root->addWidget(mainToolbar(24, false, false, false, false));

    root->addWidget(heading(
        QStringLiteral("Progress bar: the ten display modes at 45 %, and upright at 70 %")));
    auto* bars = new QGridLayout;
    bars->setHorizontalSpacing(8);
    bars->setVerticalSpacing(6);
    const char* names[] = {"0 solid",         "1 blocks",   "2 searching",       "3 rounded",
                           "4 sunken",        "5 gradient", "6 two-colour text", "7 hatched",
                           "8 image pattern", "9 cylinder"};
    QPixmap pattern(8, 8);
    pattern.fill(QColor(255, 220, 120));
    {
        QPainter ptr(&pattern);
        ptr.fillRect(0, 0, 4, 4, QColor(230, 120, 40));
        ptr.fillRect(4, 4, 4, 4, QColor(230, 120, 40));
    }
    for (int mode = 0; mode < 10; ++mode) {
        const int row = mode % 5;
        const int col = (mode / 5) * 4;
        bars->addWidget(new QLabel(QString::fromLatin1(names[mode])), row, col);
        auto* bar = new XP_ProgressBar;
        bar->setObjectName(QStringLiteral("RatioBar%1").arg(mode));
        bar->setFixedSize(260, 20);
        bar->SetScrolling(mode);
        bar->SetShowText(true);
        bar->SetValue(45);
        if (mode == 8)
            bar->SetImage(pattern);
        if (mode == 5 || mode == 9)
            bar->SetColor(QColor(46, 150, 70));
        bars->addWidget(bar, row, col + 1);
        auto* upright = new XP_ProgressBar;
        upright->setFixedSize(16, 22);
        upright->SetOrientation(1);
        upright->SetScrolling(mode);
        upright->SetValue(70);
        if (mode == 8)
            upright->SetImage(pattern);
        bars->addWidget(upright, row, col + 2);
        bars->setColumnMinimumWidth(col + 3, 30);
    }
    bars->setColumnStretch(8, 1);
    root->addLayout(bars);

    auto* panes = new QHBoxLayout;
    panes->setSpacing(14);
    const QList<QIcon> images{
        PaintedIcon(QStringLiteral("folder")), PaintedIcon(QStringLiteral("file")),
        PaintedIcon(QStringLiteral("search")), PaintedIcon(QStringLiteral("mail")),
        PaintedIcon(QStringLiteral("web"))};
    for (const char* style : {"NormalColor", "Metallic", "HomeStead", "Classic"}) {
        auto* col = new QVBoxLayout;
        col->addWidget(heading(QStringLiteral("Task pane: ") + QString::fromLatin1(style)));
        col->addWidget(pane(QString::fromLatin1(style), images));
        panes->addLayout(col);
    }
    panes->addStretch();
    root->addLayout(panes);
    root->addStretch();

    window.resize(1270, 1010);
    window.move(0, 0);
    window.show();
    return app.exec();
}
