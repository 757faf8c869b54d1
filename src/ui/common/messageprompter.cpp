#include "messageprompter.h"

#include <QApplication>
#include <QCoreApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>

namespace quovara {

QString ApplicationTitle() {
    // The product's name, translatable for the scripts that write it in their own letters.
    return QCoreApplication::translate("MessagePrompter", "Quovara");
}

namespace {
void show(QWidget* owner, QMessageBox::Icon icon, const QString& text) {
    QMessageBox box(icon, ApplicationTitle(), text, QMessageBox::Ok, owner);
    box.exec();
}
} // namespace

void MessagePrompter::critical(const QString& text) {
    show(owner_, QMessageBox::Critical, text);
}
void MessagePrompter::exclamation(const QString& text) {
    show(owner_, QMessageBox::Warning, text);
}
void MessagePrompter::information(const QString& text) {
    show(owner_, QMessageBox::Information, text);
}
void MessagePrompter::plain(const QString& text) {
    show(owner_, QMessageBox::NoIcon, text);
}

bool MessagePrompter::question(const QString& text) {
    QMessageBox box(QMessageBox::Question, ApplicationTitle(), text,
                    QMessageBox::Yes | QMessageBox::No, owner_);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    box.setObjectName(QStringLiteral("EngineQuestion"));
    return box.exec() == QMessageBox::Yes;
}

QString MessagePrompter::askPassword(const QString& prompt) {
    QInputDialog dialog(owner_);
    dialog.setWindowTitle(ApplicationTitle());
    dialog.setLabelText(prompt);
    dialog.setTextEchoMode(QLineEdit::Password);
    dialog.setObjectName(QStringLiteral("InsertPassword"));
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.textValue();
}

} // namespace quovara
