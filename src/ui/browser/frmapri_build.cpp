// The main window's parts: the toolbar, the task pane with its three panels, the View menu and
// the keyboard shortcuts.
#include "frmapri.h"

#include "controls/taskpanebar.h"
#include "controls/uctoolbar.h"
#include "controls/xp_progressbar.h"
#include "core/vbtext.h"
#include "ui/common/handcursor.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace quovara {

namespace {

QPushButton* linkButton(const QString& caption, const char* name, QWidget* parent) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(QLatin1String(name));
    b->setFlat(true);
    SetHandCursor(b, true);
    b->setStyleSheet(QStringLiteral("QPushButton { text-align: left; color: #1c3f94; border: none;"
                                    " padding: 2px; }"
                                    "QPushButton:hover, QPushButton:focus { color: #3d6ee0;"
                                    " text-decoration: underline; }"));
    return b;
}

QLabel* label(const QString& caption, const char* name, QWidget* parent) {
    auto* l = new QLabel(caption, parent);
    l->setObjectName(QLatin1String(name));
    return l;
}

} // namespace

void frmApri::buildPanels() {
    // Details: the ratio bar and the totals.
    // The panels belong to the window until the task pane hosts them (Form_Load).
    pDettagli = new QWidget(this);
    pDettagli->hide();
    pDettagli->setObjectName(QStringLiteral("pDettagli"));
    auto* details = new QGridLayout(pDettagli);
    details->setContentsMargins(8, 6, 8, 8);
    details->setVerticalSpacing(3);
    NomeAr = label(tr("Files Number:"), "NomeAr", pDettagli);
    GranNorm = label(tr("Grandezza normale:"), "GranNorm", pDettagli);
    GranComp = label(tr("Grandezza compresso:"), "GranComp", pDettagli);
    MetodoC = label(tr("Metodo:"), "MetodoC", pDettagli);
    RatioP = label(tr("Ratio:"), "RatioP", pDettagli);
    RatioBar = new XP_ProgressBar(pDettagli);
    RatioBar->setObjectName(QStringLiteral("RatioBar"));
    RatioBar->setAccessibleName(tr("Ratio"));
    RatioBar->setMinimumHeight(18);
    details->addWidget(NomeAr, 0, 0, 1, 2);
    details->addWidget(GranNorm, 1, 0, 1, 2);
    details->addWidget(GranComp, 2, 0, 1, 2);
    details->addWidget(MetodoC, 3, 0, 1, 2);
    details->addWidget(RatioP, 4, 0);
    details->addWidget(RatioBar, 4, 1);
    details->setColumnStretch(1, 1);

    // Operations: search and the single-item commands.
    pOperazioni = new QWidget(this);
    pOperazioni->hide();
    pOperazioni->setObjectName(QStringLiteral("pOperazioni"));
    auto* ops = new QGridLayout(pOperazioni);
    ops->setContentsMargins(8, 6, 8, 8);
    ops->setVerticalSpacing(4);
    LBCerca = label(tr("Search file in archive"), "LBCerca", pOperazioni);
    TxtCerca = new QLineEdit(pOperazioni);
    TxtCerca->setObjectName(QStringLiteral("TxtCerca"));
    TxtCerca->setAccessibleName(tr("Search file in archive"));
    TxtCerca->setToolTip(tr("Search file in archive (Ctrl+F)"));
    LBCerca->setBuddy(TxtCerca);
    ImgCerca = new QToolButton(pOperazioni);
    ImgCerca->setObjectName(QStringLiteral("ImgCerca"));
    ImgCerca->setIcon(QIcon(QStringLiteral(":/icons/search.svg")));
    ImgCerca->setIconSize(QSize(20, 20));
    ImgCerca->setAutoRaise(true);
    SetHandCursor(ImgCerca, true);
    ImgCerca->setAccessibleName(tr("Search"));
    ImgCerca->setToolTip(tr("Search (Ctrl+F)"));
    EstFile = linkButton(tr("Extract selected item"), "EstFile", pOperazioni);
    EseFile = linkButton(tr("Run selected file"), "EseFile", pOperazioni);
    ops->addWidget(LBCerca, 0, 0, 1, 2);
    ops->addWidget(TxtCerca, 1, 0);
    ops->addWidget(ImgCerca, 1, 1);
    ops->addWidget(EstFile, 2, 0, 1, 2);
    ops->addWidget(EseFile, 3, 0, 1, 2);
    ops->setColumnStretch(0, 1);

    // State: what the program is doing.
    pStato = new QWidget(this);
    pStato->hide();
    pStato->setObjectName(QStringLiteral("pStato"));
    auto* state = new QVBoxLayout(pStato);
    state->setContentsMargins(8, 6, 8, 8);
    Stato = label(apri::Text(apri::Ready), "Stato", pStato);
    QFont bold = Stato->font();
    bold.setBold(true);
    Stato->setFont(bold);
    Consiglio = label(apri::Text(apri::SelectAction), "Consiglio", pStato);
    // The state texts wrap rather than being cut ("Quovara is reading the archive: N entries"
    // is wider than the pane); the room they may need is kept below them.
    Stato->setWordWrap(true);
    Consiglio->setWordWrap(true);
    state->addWidget(Stato);
    state->addWidget(Consiglio);
    state->addStretch(1);

    PopView = new QMenu(this);
    PopView->setObjectName(QStringLiteral("PopView"));
    const QString modes[] = {tr("Large Icon"), tr("Report"), tr("Small Icon"), tr("List")};
    for (int i = 0; i < 4; ++i) {
        QAction* a = PopView->addAction(modes[i]);
        a->setCheckable(true);
        connect(a, &QAction::triggered, this, [this, i] { PopViewChoose(i); });
    }
    PopView->actions()[3]->setChecked(true);
    buildEntryMenu();
}

void frmApri::buildToolbar() {
    // Flat, list style (caption beside the image), divider.
    ucToolbar1->Initialize(32, true, true, true);
    const char* icons[] = {"101-back",   "102-add",  "103-extract", "104-sfx",
                           "105-verify", "106-view", "107-update",  "108-about"};
    for (const char* icon : icons)
        ucToolbar1->AddIcon(
            QIcon(QStringLiteral(":/icons/toolbar/%1.svg").arg(QLatin1String(icon))));
    ucToolbar1->AddButton(tr("Back"), 0, tr("Back (Backspace, Alt+Left)"));
    ucToolbar1->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    ucToolbar1->AddButton(tr("Add"), 1, tr("Add files to an archive"));
    ucToolbar1->AddButton(tr("Extract"), 2, tr("Extract an archive"));
    ucToolbar1->AddButton(tr("SFX"), 3, tr("Make a self-extracting program of the archive"));
    ucToolbar1->AddButton(tr("Verify"), 4, tr("Test an archive"));
    ucToolbar1->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    ucToolbar1->AddButton(tr("View"), 5, tr("Change the view"), ucToolbar::tbrDropDown);
    ucToolbar1->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    ucToolbar1->AddButton(tr("Update"), 6, tr("Look for a newer version"));
    // The keys that have no button of their own are named in the last button's tip.
    ucToolbar1->AddButton(
        tr("About"), 7,
        tr("About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit"));
    ucToolbar1->SetButtonEnabled(IdSfx, false);
    ucToolbar1->setFixedHeight(ucToolbar1->ToolbarHeight() + 4);
    connect(ucToolbar1, &ucToolbar::ButtonClick, this, &frmApri::ButtonClick);
    connect(ucToolbar1, &ucToolbar::ButtonDropDown, this,
            [this](int, int x, int y) { PopView->popup(mapToGlobal(QPoint(x, y))); });
}

void frmApri::buildShortcuts() {
    // Everything can be reached without the mouse. A line edit keeps Backspace for itself.
    auto add = [this](const QKeySequence& keys, const char* name, auto slot) {
        auto* s = new QShortcut(keys, this);
        s->setObjectName(QLatin1String(name));
        connect(s, &QShortcut::activated, this, slot);
    };
    add(QKeySequence(Qt::Key_Backspace), "BackKey", [this] { ButtonClick(IdBack); });
    add(QKeySequence(Qt::ALT | Qt::Key_Left), "BackAltLeft", [this] { ButtonClick(IdBack); });
    add(QKeySequence(Qt::CTRL | Qt::Key_F), "FindKey", [this] {
        if (!Barra->isHidden()) {
            TxtCerca->setFocus(Qt::ShortcutFocusReason);
            TxtCerca->selectAll();
        }
    });
    add(QKeySequence(Qt::Key_F5), "RelistKey", [this] { relistArchive(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_O), "OpenKey", [this] { openArchiveWithDialog(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Q), "QuitKey", [this] { close(); });
}

void frmApri::buildTaskPane() {
    Barra->DisableUpdates(true);
    Barra->AddGroup(QStringLiteral("Dettagli"), tr("Details"));
    Barra->AddGroup(QStringLiteral("Operazioni"), tr("File and Folder Operations"));
    Barra->AddGroup(QStringLiteral("Stato"), tr("State"));
    // Wide enough for the longest caption of the user's language and for the groups' own
    // labels and links, also beside the pane's scroll bar; never narrower than 250.
    int contentNeeds = 0;
    for (QWidget* w : {pDettagli, pOperazioni, pStato})
        contentNeeds = std::max(contentNeeds, w->minimumSizeHint().width());
    Barra->setFixedWidth(std::max(250, Barra->WidthToShowWhole(contentNeeds)));
    // Each group's content takes the height it needs; its width follows the pane (narrower
    // when the pane shows its scroll bar), so nothing in it is cut.
    for (QWidget* w : {pDettagli, pOperazioni, pStato}) {
        w->resize(Barra->width() - 30, w->sizeHint().height());
        w->setFixedHeight(w->sizeHint().height());
    }
    // The state group is as tall as its longest texts need at its narrowest (beside the
    // pane's scroll bar): the count of a big archive being read, and the hint below it.
    const QMargins m = pStato->layout()->contentsMargins();
    const int narrowest = Barra->width() - 30 - style()->pixelMetric(QStyle::PM_ScrollBarExtent) -
                          m.left() - m.right();
    auto wrapped = [narrowest](const QLabel* l, const QString& text) {
        return l->fontMetrics()
            .boundingRect(QRect(0, 0, narrowest, 10000), Qt::TextWordWrap, text)
            .height();
    };
    pStato->setFixedHeight(
        m.top() + wrapped(Stato, apri::Text(apri::ReadingCount).arg(apri::EntriesText(9999999))) +
        pStato->layout()->spacing() +
        std::max(wrapped(Consiglio, apri::Text(apri::SelectAction)),
                 wrapped(Consiglio, apri::Text(apri::EscapeStops))) +
        m.bottom());
    Barra->SetGroupChild(QStringLiteral("Dettagli"), pDettagli);
    Barra->SetGroupChild(QStringLiteral("Operazioni"), pOperazioni);
    Barra->SetGroupChild(QStringLiteral("Stato"), pStato);
    Barra->DisableUpdates(false);
}

} // namespace quovara
