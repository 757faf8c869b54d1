// A Prompter that records what would have been shown and answers password prompts from a list.
#pragma once

#include "core/prompter.h"

#include <QStringList>

namespace quovara::testing {

class RecordingPrompter : public Prompter {
public:
    void critical(const QString& text) override { shown << "critical: " + text; }
    void exclamation(const QString& text) override { shown << "exclamation: " + text; }
    void information(const QString& text) override { shown << "information: " + text; }
    void plain(const QString& text) override { shown << "plain: " + text; }
    QString askPassword(const QString& prompt) override {
        shown << "prompt: " + prompt;
        return answers.isEmpty() ? QString() : answers.takeFirst();
    }

    QStringList shown;
    QStringList answers;
};

} // namespace quovara::testing
