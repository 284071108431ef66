// A whole sweep: read and check the experiment, open the results table, run
// the runs of this shard that it lacks on a pool of threads, and append their
// rows in run order as they finish.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace keldor::sweep {

// Runs keldor-sweep with the given arguments (program name first); the
// summary goes to `out`, messages and errors to `err`, and a progress bar too
// when `errIsTerminal`. Returns keldor-headless's exit statuses.
int RunSweep(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err, bool errIsTerminal);

}  // namespace keldor::sweep
