#include "bench/ExpatAlone.h"

#include <expat.h>

#include <cstdlib>
#include <iostream>

namespace tessaly::bench {
namespace {

XmlCount& countOf(void* data) { return *static_cast<XmlCount*>(data); }

void onStart(void* data, const char* /*name*/, const char** /*attributes*/) { ++countOf(data).elements; }
void onEnd(void* /*data*/, const char* /*name*/) {}
void onCharacters(void* data, const char* /*text*/, int length) {
  countOf(data).characters += static_cast<std::size_t>(length);
}

}  // namespace

XmlCount countByExpat(std::string_view document) {
  XmlCount count;
  XML_Parser parser = XML_ParserCreate(nullptr);
  XML_SetUserData(parser, &count);
  XML_SetElementHandler(parser, onStart, onEnd);
  XML_SetCharacterDataHandler(parser, onCharacters);
  const XML_Status status = XML_Parse(parser, document.data(), static_cast<int>(document.size()), XML_TRUE);
  XML_ParserFree(parser);
  if (status != XML_STATUS_OK) {
    std::cerr << "localisation-bench: Expat refuses a language file\n";
    std::exit(1);
  }
  return count;
}

}  // namespace tessaly::bench
