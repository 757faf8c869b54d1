// A Prompter that records what would have been shown and answers password prompts from a list.
#pragma once

#include "core/prompter.h"

#include <QList>
#include <QStringList>
#include <functional>

namespace quovara::testing {

class RecordingPrompter : public Prompter {
public:
    void critical(const QString& text) override { shown << "critical: " + text; }
    void exclamation(const QString& text) override { shown << "exclamation: " + text; }
    void information(const QString& text) override { shown << "information: " + text; }
    void plain(const QString& text) override { shown << "plain: " + text; }
    QString askPassword(const QString& prompt) override {
        shown << "prompt: " + prompt;
        if (onPrompt)
            onPrompt();
        return answers.isEmpty() ? QString() : answers.takeFirst();
    }

    bool question(const QString& text) override {
        shown << "question: " + text;
        if (onQuestion)
            onQuestion();
        return questionAnswers.isEmpty() ? false : questionAnswers.takeFirst();
    }

    QStringList shown;
    QStringList answers;
    // Answers to questions, in order; No when none is left.
    QList<bool> questionAnswers;
    // Runs while a question is "open" (before it is answered).
    std::function<void()> onQuestion;
    // Runs while the password prompt is "open".
    std::function<void()> onPrompt;
};

} // namespace quovara::testing
