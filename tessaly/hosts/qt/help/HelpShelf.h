#pragma once

#include <QUrl>
#include <memory>
#include <optional>
#include <vector>

#include "tessaly/hosts/qt/help/HelpBook.h"

namespace tessaly::qt {

/// The help files that a viewer has open. Within it a page has an address of its own, "help://b<n>/<page>",
/// so links lead from page to page whatever the file's path is.
class HelpShelf {
 public:
  /// Opens a file anew, whatever was read of it before, and gives its number. It may fail, and has its number
  /// all the same.
  int open(const String& path);

  /// The file that a link of another names: beside that one, or by its whole path.
  int openBeside(int number, const String& name);

  /// Where it is; empty for a number that is none.
  String path(int number) const;

  /// None where it could not be read.
  const HelpBook* book(int number) const;

  /// Whether there is a file at all.
  bool isFound(int number) const;

  /// The address of a reference in the file; that of the page as it is told where there is no such page.
  QUrl urlOf(int number, std::u16string_view reference) const;

  /// The page that a map number stands for; where there is none, an address that tells the number.
  QUrl urlOfNumber(int number, Long mapNumber) const;

  /// An address that tells of a link out of the file.
  static QUrl urlOfLink(int number, const QString& link);

  static bool isOwn(const QUrl& url);
  static int numberOf(const QUrl& url);

  /// What an address names in its file, as a reference.
  static String referenceOf(const QUrl& url);

  /// The map number of an address that tells one.
  static std::optional<Long> mapNumberOf(const QUrl& url);

  /// The link of an address that tells one; a null text for any other.
  static QString linkOf(const QUrl& url);

 private:
  struct Volume {
    String path;
    bool isFound = false;
    std::unique_ptr<const HelpBook> book;
  };

  const Volume* volume(int number) const;

  std::vector<Volume> volumes_;
};

}  // namespace tessaly::qt
