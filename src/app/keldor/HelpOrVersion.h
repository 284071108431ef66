// --help and --version of the desktop tools, answered without a display.
#pragma once

#include <QCommandLineParser>

namespace keldor {

// Adds a tool's description, options and arguments to a parser.
using CommandLineDescription = void (*)(QCommandLineParser& parser);

// When the command line asks for --help or --version, prints the answer
// (the version as "toolName <version>") and exits, before the window system
// is asked for a display, so that both work on a bare terminal. Otherwise
// returns: the toolkit's own options (-platform, -style...) are only known
// once the QApplication has taken them out, so the full parse comes later.
void AnswerHelpOrVersion(int argc, char* argv[], const char* toolName, CommandLineDescription describe);

}  // namespace keldor
