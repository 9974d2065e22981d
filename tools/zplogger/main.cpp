// zplogger, a logger for the terminal.

#include <exception>
#include <iostream>

#include "tools/zplogger/Run.h"
#include "tools/zplogger/Serve.h"
#include "tools/zplogger/Start.h"

int main(int argc, char** argv) {
  using namespace tessaly::zplogger;
  try {
    const int code = run(start(argc, argv), {std::cout, std::cerr, serve});
    return std::cout.flush() ? code : kFailed;
  } catch (const std::exception& error) {
    std::cerr << "zplogger: " << error.what() << '\n';
    return kFailed;
  }
}
