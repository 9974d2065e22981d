#pragma once

#include <string_view>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"
#include "tessaly/base/Variant.h"

namespace tessaly {

/// Typed settings in the registry: values by name under one key, and three operations on keys that are told
/// theirs. A host makes an object for a task, assigns `root` and then `rootPath`, and lets it go; one thread
/// uses it at a time. No key stays open between calls. A registry that fails is not reported: what is read
/// then is the caller's default, and what is written is dropped. The value name "*" is the key's unnamed
/// value. Names, paths and texts pass through the system's 8-bit code page.
class TESSALY_API CRegistry {
 public:
  /// An object without a key: it reads defaults and writes nothing until `root` is assigned.
  CRegistry();
  CRegistry(const CRegistry&) = default;
  CRegistry& operator=(const CRegistry&) = default;

  /// The predefined key: 0 HKEY_LOCAL_MACHINE, 1 HKEY_USERS, 2 HKEY_CURRENT_USER, 3 HKEY_CURRENT_CONFIG,
  /// 4 HKEY_CLASSES_ROOT; any other number is none.
  virtual Long root() const;
  virtual void root(Long selector);

  /// The path below the predefined key, its levels divided by backslashes.
  virtual void rootPath(std::u16string_view path);
  virtual String rootPath() const;

  /// A further path, put behind `rootPath` and a backslash. Reading it gives the empty string and puts it in
  /// the place of `rootPath`.
  virtual void subPath(std::u16string_view path);
  virtual String subPath();

  /// Whether there is a value of up to 4 bytes, or of up to 1000; its type does not matter.
  virtual Boolean LongKeyExists(std::u16string_view name) const;
  virtual Boolean StringKeyExists(std::u16string_view name) const;

  /// A text. It comes back up to its first character below a space, and where nothing cuts it, without the
  /// spaces at its end. With a code page that gives characters two bytes, it is cut to as many bytes as it
  /// has characters when it is written, and ends before the first of two bytes when it is read. A value of
  /// over 30000 bytes gives the default.
  virtual void SetString(std::u16string_view name, std::u16string_view text);
  virtual String GetString(std::u16string_view name, std::u16string_view defaultText) const;

  /// A date in days from 30 December 1899, kept as a text with the user's decimal separator and read with '.'
  /// alone: a separator of another kind ends it, and the time of day is lost. The default is such a text.
  /// Error 6 for a number that is not finite, and for one read that is no date: those lie above -657435 and
  /// below 2958466.
  virtual void SetDate(std::u16string_view name, double date);
  virtual double GetDate(std::u16string_view name, std::u16string_view defaultText) const;

  /// A number. What is read may be a value of any type of up to 4 bytes.
  virtual void SetLong(std::u16string_view name, Long value);
  virtual Long GetLong(std::u16string_view name, Long defaultValue) const;

  /// A truth value, kept as the number 1 or 0; any other than 0 is read as true.
  virtual void SetBool(std::u16string_view name, Boolean value);
  virtual Boolean GetBool(std::u16string_view name, Boolean defaultValue) const;

  /// A colour, kept as the number that it is.
  virtual void SetColor(std::u16string_view name, Long color);
  virtual Long GetColor(std::u16string_view name, Long defaultColor) const;

  /// The number of a key's direct subkeys, as a Long, or a 16-bit 0 where it can't be told. This and the two
  /// operations below take a selector as `root` does and the whole path, and use nothing of the object.
  virtual Variant GetSubkeysNumber(Long rootSelector, std::u16string_view path) const;

  /// The name of a subkey by its place from 1, without spaces at its front and control characters at its end;
  /// empty where there is none. Error 6 for the lowest number of all, where the key can be opened.
  virtual String GetSubKeyName(Long rootSelector, std::u16string_view path, Long index) const;

  /// Deletes a key with what lies under it. The result is a Boolean, false where all went well and true where
  /// something failed. Subkeys are counted once and drop out of the count as they go: with two or more of
  /// them the result is true though the key is gone, and where one of them has two or more itself, the rest
  /// stays.
  virtual Variant DeletePath(Long rootSelector, std::u16string_view path);

 private:
  friend class CRegistryPeer;

  virtual void GetRootHandle(Long selector, Long& handle) const;
  virtual void GetKeyPath(String& path) const;
  virtual void WriteStringValue(std::u16string_view name, std::u16string_view text);
  virtual void WriteLongValue(std::u16string_view name, Long value);
  virtual void ReadStringValue(std::u16string_view name, std::u16string_view defaultText, String& text) const;
  virtual void ReadLongValue(std::u16string_view name, Long defaultValue, Long& value) const;

 public:
  virtual ~CRegistry();

 private:
  String keyPath() const;
  Long handleOf(Long selector) const;

  Long root_ = 0;
  Long rootHandle_ = 0;
  String rootPath_;
  String subPath_;
};

}  // namespace tessaly
