// The one line a batch tool writes when it stops on a failure.
#pragma once

#include <cstddef>
#include <ostream>
#include <string_view>

namespace keldor::headless {

// Messages echo what the user gave; a longer one is cut here.
inline constexpr size_t MaxShownMessage = 400;

// Writes "program: message" on its own line and returns status. Control
// characters are shown as '?' and a message past MaxShownMessage characters
// ends in "...", so that a hostile input neither floods the terminal nor
// writes raw bytes to it.
int ReportFailure(std::ostream& err, std::string_view program, std::string_view message, int status);

}  // namespace keldor::headless
