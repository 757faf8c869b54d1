// The stand-in engine's output: the console (standard output, flushed after every write) and
// the optional log, and the faults it can be told to end with.
#pragma once

#include "codepage.h"
#include "layout.h"
#include "names.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

namespace standin {

class Output {
public:
    void openLog(const std::string& path) {
        log_ = std::fopen(replaced(path, '\\', '/').c_str(), "ab");
    }
    // Text goes out in the OEM code page when the stand-in plays code pages.
    void console(const std::string& text) {
        const std::string s = toOem(text);
        std::fwrite(s.data(), 1, s.size(), stdout);
        std::fflush(stdout);
    }
    void log(const std::string& text) {
        if (!log_)
            return;
        const std::string s = toOem(text);
        std::fwrite(s.data(), 1, s.size(), log_);
    }
    // A whole line, to the console and the log.
    void line(const std::string& s) {
        console(s + "\r\n");
        log(s + "\r\n");
        progressOpen_ = false;
    }
    // A per-file result that overwrites its progress line on the console.
    void fileLine(const std::string& s) {
        console("\r" + s + "\r\n");
        log(s + "\r\n");
        progressOpen_ = false;
    }
    void progress(const std::string& s) {
        console("\r" + s);
        progressOpen_ = true;
    }
    // A progress line is the last thing on the console (no line end after it).
    bool progressOpen() const { return progressOpen_; }
    // Everything written so far reaches the console and the log file.
    void flush() {
        std::fflush(stdout);
        if (log_)
            std::fflush(log_);
    }
    [[noreturn]] void finish(int code) {
        log(std::string(kWidth, '=') + "\r\n\r\n");
        if (log_)
            std::fclose(log_);
        std::fflush(stdout);
        std::exit(code);
    }
    // An error ends the run; one found while progress lines are written first ends the
    // current console line and blanks the next, as the engine does.
    [[noreturn]] void fail(const std::string& msg, bool midProgress = false) {
        if (midProgress)
            console("\r\n\r" + std::string(kWidth, ' ') + "\r");
        line("ERROR: " + msg);
        line("Process aborted.");
        finish(255);
    }

private:
    std::FILE* log_ = nullptr;
    bool progressOpen_ = false;
};

// Faults on demand, for tests of the program that runs the engine: QUOVARA_STANDIN_FAULT
// makes a run end the way a real one can end badly, once its first progress output is out
// (the first file's progress line in an add, extract or test, written or not by the display
// mode; the first entry of a listing, so that the log holds part of the listing).
//
//   exit:N     the run ends with exit code N (0-255), no "ERROR:" line, no log closing line
//   signal:N   signal N is raised with its default action (a signal whose default is to be
//              ignored, or to stop until continued, lets the run carry on)
//   hang       the run waits for ever, to be killed
//   enospc     a failed write: "ERROR: No space left on device", "Process aborted.",
//              exit 255; an add removes its temporary archive as for other write errors

// Reads QUOVARA_STANDIN_FAULT; a value that names no fault ends the run with exit code 2 and
// a message on standard error, so that a mistyped test setting does not go unnoticed.
void readFault();
// The place where the fault happens, once per run. `cleanUp` undoes what a failed write
// would leave behind.
void faultPoint(Output& out, const std::function<void()>& cleanUp = {});

} // namespace standin
