#pragma once

#include <string_view>

namespace tessaly::bench {

struct XmlCount {
  std::size_t elements = 0;
  std::size_t characters = 0;
};

/// Expat's plain walk over a document: the least that anybody pays who reads XML with it.
XmlCount countByExpat(std::string_view document);

}  // namespace tessaly::bench
