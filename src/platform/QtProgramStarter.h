// Finding and starting another program, for the About box's System Info.
#pragma once

#include "window/SystemInfo.h"

namespace keldor {

class QtProgramStarter : public ProgramStarter {
 public:
  bool FileExists(const std::string& path) override;
  bool Start(const std::string& path) override;
};

}  // namespace keldor
