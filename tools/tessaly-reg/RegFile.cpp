#include "tools/tessaly-reg/RegFile.h"

#include "tools/tessaly-reg/RegEncoding.h"
#include "tools/tessaly-reg/RegParser.h"

namespace tessaly::reg {

RegFile parseRegFile(std::string_view bytes) {
  String text;
  if (auto error = decodeRegFile(bytes, text)) {
    RegFile file;
    file.errors.push_back(std::move(*error));
    return file;
  }
  return RegParser(text).parse();
}

}  // namespace tessaly::reg
