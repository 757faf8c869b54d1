// The user-facing side of Prompter: message boxes titled with the application's name and the
// "Insert Password" prompt with hidden echo.
#pragma once

#include "core/prompter.h"

#include <QPointer>
#include <QWidget>

namespace quovara {

class MessagePrompter : public Prompter {
public:
    explicit MessagePrompter(QWidget* owner = nullptr) : owner_(owner) {}
    void setOwner(QWidget* owner) { owner_ = owner; }

    void critical(const QString& text) override;
    void exclamation(const QString& text) override;
    void information(const QString& text) override;
    void plain(const QString& text) override;
    QString askPassword(const QString& prompt) override;
    bool question(const QString& text) override;

private:
    QPointer<QWidget> owner_;
};

// The application's title for message boxes.
QString ApplicationTitle();

} // namespace quovara
