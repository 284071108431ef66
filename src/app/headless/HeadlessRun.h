// A whole batch run: parse the command line, build the world, run the ticks
// writing the CSV rows, then write the JSON state and print a summary line.
#pragma once

#include <ostream>

#include <QStringList>

namespace keldor::headless {

// Exit statuses of keldor-headless.
inline constexpr int ExitOk = 0;
inline constexpr int ExitWriteFailed = 1;
inline constexpr int ExitBadArguments = 2;

// Runs keldor-headless with the given arguments (program name first); the
// summary goes to `out`, messages and errors to `err`. Returns the exit status.
int RunHeadless(const QStringList& arguments, std::ostream& out, std::ostream& err);

}  // namespace keldor::headless
