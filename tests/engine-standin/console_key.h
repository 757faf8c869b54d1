// One key from the engine's console, for its yes/no questions.
#pragma once

namespace standin {

// Waits for one key on standard input and returns it (0 to 255), or -1 at the end of the
// input or on a read error. A terminal is put into non-canonical mode without echo for the
// read, so that a single key press counts without Enter; its settings are restored after
// the read, and also when SIGINT, SIGTERM, SIGHUP or SIGQUIT ends the wait. Anything else
// (a pipe, a file) gives its next byte.
int readOneKey();

} // namespace standin
