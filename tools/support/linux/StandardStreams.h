#pragma once

namespace tessaly::tools {

/// To be called first. A standard stream that the caller has closed would be given to the first file that is
/// opened, and what is written to the terminal would go into it. What stands in its place can be neither read
/// nor written. Also, from here on a write whose reader has gone fails and does not end the program.
void prepareStandardStreams();

}  // namespace tessaly::tools
