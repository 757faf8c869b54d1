// What the non-visual layers ask of the user. The windows implement it with message boxes and a
// text prompt; tests implement it with a recorder that answers from a script.
#pragma once

#include <QString>
#include <functional>
#include <utility>

namespace quovara {

class Prompter {
public:
    virtual ~Prompter() = default;
    virtual void critical(const QString& text) = 0;
    virtual void exclamation(const QString& text) = 0;
    virtual void information(const QString& text) = 0;
    // A message box with no icon and only an OK button.
    virtual void plain(const QString& text) = 0;
    // A modal text prompt; the answer, or the empty string when it was cancelled.
    virtual QString askPassword(const QString& prompt) = 0;
    // A question with Yes and No buttons; true for Yes. No is the default button, and closing
    // the box answers No.
    virtual bool question(const QString& text) = 0;
};

// Hands every question on to another prompter, and first tells its owner that a message (not a
// question) is about to be shown: a window that says it is busy ("Reading …") says so no more
// while it shows why it stopped.
class NoticingPrompter : public Prompter {
public:
    NoticingPrompter(Prompter& target, std::function<void()> beforeMessage)
        : target_(&target), beforeMessage_(std::move(beforeMessage)) {}
    void setTarget(Prompter& target) { target_ = &target; }
    void critical(const QString& text) override {
        notice();
        target_->critical(text);
    }
    void exclamation(const QString& text) override {
        notice();
        target_->exclamation(text);
    }
    void information(const QString& text) override {
        notice();
        target_->information(text);
    }
    void plain(const QString& text) override {
        notice();
        target_->plain(text);
    }
    QString askPassword(const QString& prompt) override { return target_->askPassword(prompt); }
    bool question(const QString& text) override { return target_->question(text); }

private:
    void notice() {
        if (beforeMessage_)
            beforeMessage_();
    }
    Prompter* target_;
    std::function<void()> beforeMessage_;
};

} // namespace quovara
