// What the window benchmarks share: a prompter for a run nobody watches, and waits that keep
// the event loop running.
#pragma once

#include "core/places.h"
#include "core/prompter.h"

#include <QDir>
#include <QElapsedTimer>
#include <QStringList>
#include <QTest>
#include <cstdio>
#include <functional>

namespace quovara::bench {

// Message boxes are recorded (and printed when asked), never shown: a benchmark has nobody to
// answer them. Prompts and questions are answered with nothing and No.
class BenchPrompter : public Prompter {
public:
    explicit BenchPrompter(bool print) : print_(print) {}
    QStringList shown;
    void critical(const QString& t) override { say("critical", t); }
    void exclamation(const QString& t) override { say("exclamation", t); }
    void information(const QString& t) override { say("information", t); }
    void plain(const QString& t) override { say("plain", t); }
    QString askPassword(const QString& t) override {
        say("prompt", t);
        return QString();
    }
    bool question(const QString& t) override {
        say("question", t);
        return false;
    }

private:
    void say(const char* kind, const QString& text) {
        shown << QString::fromLatin1(kind) + QStringLiteral(": ") + text;
        if (print_)
            std::fprintf(stderr, "[%s] %s\n", kind, qPrintable(text));
    }
    bool print_;
};

// True once `done` holds, false after `ms` milliseconds; the event loop runs meanwhile.
inline bool WaitFor(const std::function<bool()>& done, int ms = 60000) {
    QElapsedTimer t;
    t.start();
    while (!done()) {
        if (t.elapsed() > ms)
            return false;
        QTest::qWait(10);
    }
    return true;
}

// Waits (at most 60 s) until the folders moved aside by the listings and at start-up
// ("<folder>.old-<pid>-<n>") have been deleted in the background.
inline void WaitForBackgroundDeletes() {
    const QStringList aside{QStringLiteral("*.old-*")};
    WaitFor([&] {
        return QDir(TempRoot()).entryList(aside, QDir::Dirs | QDir::Hidden).isEmpty() &&
               QDir(WorkFolder()).entryList(aside, QDir::Dirs | QDir::Hidden).isEmpty();
    });
}

} // namespace quovara::bench
