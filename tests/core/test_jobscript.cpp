#include "core/jobscript.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace quovara;

TEST(JobScript, ListPreambleStartsWithClsAndHasNoLineEndAfterCommand) {
    const QByteArray bytes =
        JobScriptBytes(Preamble::List, {"\"/p/uharc.exe\"", " l -d2 -y+ -lg", "/t/uharc.log "});
    EXPECT_EQ(bytes, QByteArray("cls\r\n@echo off\r\n\"/p/uharc.exe\" l -d2 -y+ -lg/t/uharc.log "));
}

TEST(JobScript, JobPreambleSetsEngineOptions) {
    const QByteArray bytes = JobScriptBytes(Preamble::Job, {"\"C:\\P\\uharc.exe\" ", "a ", "-r+ "});
    EXPECT_EQ(bytes,
              QByteArray("@echo off\r\ncls\r\nset uharc_opt= -d2\r\n\"C:\\P\\uharc.exe\" a -r+ "));
}

TEST(JobScript, TestScriptEndsItsCommandLine) {
    const QByteArray bytes = JobScriptBytes(Preamble::Job, {"x"}, LastLine::LineEnd);
    EXPECT_EQ(bytes, QByteArray("@echo off\r\ncls\r\nset uharc_opt= -d2\r\nx\r\n"));
}

TEST(JobScript, PasswordWithQuoteIsWrittenUnescaped) {
    const QByteArray bytes = JobScriptBytes(Preamble::Job, {"-pw\"a\"b\" "});
    EXPECT_TRUE(bytes.endsWith("-pw\"a\"b\" "));
}

TEST(JobScript, EightBitCodePage) {
    EXPECT_EQ(ToAnsi(QString::fromUtf8("caf\u00e9")), QByteArray("caf\xe9"));
    EXPECT_EQ(ToAnsi(QString::fromUtf8("\u20ac")), QByteArray("?"));
}

TEST(JobScript, WriteReplacesAnOlderScript) {
    QTemporaryDir dir;
    const QString path = dir.filePath("Apri.bat");
    ASSERT_TRUE(WriteJobScript(path, Preamble::Job, {"a much longer first command line"}));
    ASSERT_TRUE(WriteJobScript(path, Preamble::List, {"x"}));
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), QByteArray("cls\r\n@echo off\r\nx"));
}

TEST(JobScript, UnwritablePathFails) {
    EXPECT_FALSE(WriteJobScript("/nonexistent-folder/x/Apri.bat", Preamble::List, {"x"}));
}
