#include "preparingnotice.h"

#include "core/launcherprefix.h"

#include <QApplication>
#include <QPointer>
#include <QProgressDialog>

namespace quovara {

void InstallPreparingNotice(QWidget* parent) {
    QPointer<QWidget> owner(parent);
    SetPrefixPreparingNotice([owner](bool preparing) {
        static QPointer<QProgressDialog> dialog;
        if (!preparing) {
            if (dialog)
                dialog->deleteLater();
            dialog = nullptr;
            return;
        }
        if (dialog)
            return;
        dialog = new QProgressDialog(PreparingEngineText(), QString(), 0, 0, owner.data());
        dialog->setObjectName(QStringLiteral("PreparingEngine"));
        dialog->setWindowTitle(QApplication::applicationDisplayName());
        dialog->setAccessibleName(PreparingEngineText());
        dialog->setCancelButton(nullptr);
        dialog->setMinimumDuration(0);
        dialog->setAutoClose(false);
        dialog->setWindowModality(Qt::NonModal);
        dialog->show();
        dialog->raise();
    });
}

} // namespace quovara
