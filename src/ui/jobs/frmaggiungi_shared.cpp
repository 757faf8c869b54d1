#include "frmaggiungi_shared.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace quovara {

FileChoice FileChoiceControls::choice() const {
    if (OpFileType->isChecked())
        return FileChoice::FileTypes;
    if (OpFileList->isChecked())
        return FileChoice::FileList;
    return FileChoice::AllFiles;
}

QList<QWidget*> FileChoiceControls::tabOrder() const {
    return {OpAllFile, OpFileType, TxtFileType, OpFileList, TxtFileList, ChkExclude, TxtExclude};
}

FileChoiceControls BuildFileChoiceFrame(const char* frameName, const QString& fileTypesCaption,
                                        QWidget* parent) {
    FileChoiceControls c;
    c.Frame = named(new QGroupBox(QString::fromLatin1(dialogtext::FileFrame), parent), frameName);
    c.OpAllFile = named(new QRadioButton(QString::fromLatin1(dialogtext::AllFiles)), "OpAllFile");
    c.OpFileType = named(new QRadioButton(fileTypesCaption), "OpFileType");
    c.TxtFileType = named(new QLineEdit(), "TxtFileType");
    c.TxtFileType->setAccessibleName(QStringLiteral("File types"));
    c.OpFileList = named(new QRadioButton(QString::fromLatin1(dialogtext::FileList)), "OpFileList");
    c.TxtFileList = named(new QLineEdit(), "TxtFileList");
    c.TxtFileList->setAccessibleName(QStringLiteral("List file"));
    c.ChkExclude = named(new QCheckBox(QString::fromLatin1(dialogtext::Exclude)), "ChkExclude");
    c.TxtExclude = named(new QLineEdit(), "TxtExclude");
    c.TxtExclude->setAccessibleName(QStringLiteral("Excluded files"));

    auto* group = new QButtonGroup(c.Frame);
    group->setObjectName(QStringLiteral("FileChoiceGroup"));
    group->addButton(c.OpAllFile);
    group->addButton(c.OpFileType);
    group->addButton(c.OpFileList);
    c.OpAllFile->setChecked(true);

    // Each caption above its text box, the text boxes indented under their option.
    auto* grid = new QGridLayout(c.Frame);
    grid->setColumnMinimumWidth(0, 18);
    grid->setVerticalSpacing(4);
    grid->addWidget(c.OpAllFile, 0, 0, 1, 2);
    grid->addWidget(c.OpFileType, 1, 0, 1, 2);
    grid->addWidget(c.TxtFileType, 2, 1);
    grid->addWidget(c.OpFileList, 3, 0, 1, 2);
    grid->addWidget(c.TxtFileList, 4, 1);
    grid->addWidget(c.ChkExclude, 5, 0, 1, 2);
    grid->addWidget(c.TxtExclude, 6, 1);
    grid->setColumnStretch(1, 1);
    return c;
}

void ChainTabOrder(const QList<QWidget*>& widgets) {
    for (int i = 1; i < widgets.size(); ++i)
        QWidget::setTabOrder(widgets[i - 1], widgets[i]);
}

bool SamePath(const QString& a, const QString& b) {
    if (a.isEmpty() || b.isEmpty())
        return a.isEmpty() && b.isEmpty();
    return QDir::cleanPath(QDir::fromNativeSeparators(a)) ==
           QDir::cleanPath(QDir::fromNativeSeparators(b));
}

} // namespace quovara
