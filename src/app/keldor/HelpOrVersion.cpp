#include "app/keldor/HelpOrVersion.h"

#include <QCoreApplication>
#include <QStringList>
#include <cstdlib>

#include "Version.h"

namespace keldor {

void AnswerHelpOrVersion(int argc, char* argv[], const char* toolName, CommandLineDescription describe) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  QCommandLineParser look;
  describe(look);
  look.parse(arguments);
  if (!look.isSet("help") && !look.isSet("version")) return;

  QCoreApplication app(argc, argv);
  QCoreApplication::setApplicationName(toolName);
  QCoreApplication::setApplicationVersion(KeldorVersion);
  QCommandLineParser parser;
  describe(parser);
  parser.process(app);  // prints the help, the version or a fault, and exits
  std::exit(0);
}

}  // namespace keldor
