// What the non-visual layers ask of the user. The windows implement it with message boxes and a
// text prompt; tests implement it with a recorder that answers from a script.
#pragma once

#include <QString>

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

} // namespace quovara
