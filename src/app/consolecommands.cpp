#include "consolecommands.h"

#include "options.h"

#include "core/engineversion.h"
#include "core/places.h"

#include <QTextStream>

namespace quovara {

int ShowHelp(QTextStream& out) {
    out << HelpText();
    out.flush();
    return 0;
}

int ShowVersion(QTextStream& out) {
    out << ProgramVersionLine() << '\n';
    out << InstalledEngineText(FindInstalledEngine(ProgramFolderPath()));
    out.flush();
    return 0;
}

} // namespace quovara
