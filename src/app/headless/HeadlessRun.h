// A whole batch run: parse the command line, build or load the world, run the
// ticks writing the CSV rows and frames, then write the JSON state and the
// last frame, put every file in place and print a summary line.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace keldor::headless {

// Exit statuses of keldor-headless.
inline constexpr int ExitOk = 0;
inline constexpr int ExitWriteFailed = 1;
inline constexpr int ExitBadArguments = 2;
// A run stopped by a signal exits with this plus the signal's number.
inline constexpr int ExitInterrupted = 128;

// Runs keldor-headless with the given arguments (program name first); the
// summary goes to `out`, messages, errors and, when showProgress, the progress
// of a long run to `err`. Returns the exit status.
int RunHeadless(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err, bool showProgress = false);

}  // namespace keldor::headless
