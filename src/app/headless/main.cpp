// keldor-headless: runs a Keldor world without a window (see --help).
#include <iostream>

#include <QCoreApplication>

#include "app/headless/HeadlessRun.h"

int main(int argc, char* argv[]) {
  QCoreApplication app(argc, argv);
  return keldor::headless::RunHeadless(QCoreApplication::arguments(), std::cout, std::cerr);
}
