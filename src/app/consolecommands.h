// The options that answer on the console and end: they need no display and make no folder.
#pragma once

class QTextStream;

namespace quovara {

// `quovara --help`: the usage on standard output. Answers the exit status, 0.
int ShowHelp(QTextStream& out);

// `quovara --version`: "Quovara <version>", then what the program folder holds of the engine,
// read without running it and without making the per-user folder. Answers 0.
int ShowVersion(QTextStream& out);

} // namespace quovara
