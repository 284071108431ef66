#include "app/headless/FailureReport.h"

#include <string>

namespace keldor::headless {

int ReportFailure(std::ostream& err, std::string_view program, std::string_view message, int status) {
  const bool cut = message.size() > MaxShownMessage;
  std::string shown(message.substr(0, MaxShownMessage));
  for (char& c : shown) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) c = '?';
  }
  err << program << ": " << shown << (cut ? "..." : "") << std::endl;
  return status;
}

}  // namespace keldor::headless
