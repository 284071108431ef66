// keldor-sweep: runs an experiment of many keldor-headless runs (see --help).
#include <unistd.h>

#include <iostream>

#include <QCoreApplication>

#include "app/sweep/Sweep.h"

int main(int argc, char* argv[]) {
  QCoreApplication app(argc, argv);
  return keldor::sweep::RunSweep(std::vector<std::string>(argv, argv + argc), std::cout, std::cerr,
                                 isatty(STDERR_FILENO) != 0);
}
