#pragma once

#include <string>
#include <vector>

namespace tessaly::zplogger {

/// Does what must be done before all else, and gives the words behind the program's name, in UTF-8.
std::vector<std::string> start(int argc, char** argv);

}  // namespace tessaly::zplogger
