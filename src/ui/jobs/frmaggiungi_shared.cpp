#include "frmaggiungi_shared.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace quovara {

QString DialogText(const char* source) {
    return QCoreApplication::translate("DialogText", source);
}

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
    c.Frame = named(new QGroupBox(DialogText(dialogtext::FileFrame), parent), frameName);
    c.OpAllFile = named(new QRadioButton(DialogText(dialogtext::AllFiles)), "OpAllFile");
    c.OpFileType = named(new QRadioButton(fileTypesCaption), "OpFileType");
    c.TxtFileType = named(new QLineEdit(), "TxtFileType");
    c.TxtFileType->setAccessibleName(QCoreApplication::translate("DialogText", "File types"));
    c.OpFileList = named(new QRadioButton(DialogText(dialogtext::FileList)), "OpFileList");
    c.TxtFileList = named(new QLineEdit(), "TxtFileList");
    c.TxtFileList->setAccessibleName(QCoreApplication::translate("DialogText", "List file"));
    c.ChkExclude = named(new QCheckBox(DialogText(dialogtext::Exclude)), "ChkExclude");
    c.TxtExclude = named(new QLineEdit(), "TxtExclude");
    c.TxtExclude->setAccessibleName(QCoreApplication::translate("DialogText", "Excluded files"));

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
