#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace tessaly::tests {

/// One document and what every body must make of it.
struct XmlRow {
  std::string name;
  std::string bytes;
  /// The root's children as "name=text" with a '|' behind each; nothing where the document is not
  /// well-formed.
  std::optional<std::string> children;
  /// Why Wine's parser may do otherwise; empty where it may not.
  std::string excuse;
};

inline void PrintTo(const XmlRow& row, std::ostream* out) { *out << row.name; }

/// Well-formed documents: blanks, CDATA, comments, nested markup, prefixes, references, document types.
std::vector<XmlRow> xmlDocuments();

/// Encodings with and without a mark and a declaration.
std::vector<XmlRow> xmlEncodings();

/// Documents that are not well-formed.
std::vector<XmlRow> xmlMalformed();

/// Documents that grow beyond all bounds when they are read, and count as not well-formed.
std::vector<std::string> xmlHostile();

}  // namespace tessaly::tests
