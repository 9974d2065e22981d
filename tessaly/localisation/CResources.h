#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"
#include "tessaly/base/Variant.h"
#include "tessaly/localisation/BuiltInStrings.h"

namespace tessaly {

namespace platform {
struct XmlDocument;
struct XmlNode;
class XmlChildNodes;
}  // namespace platform

/// A host's texts in the language in force: 175 slots, filled with built-in English and with what a language
/// file has of them. The host owns the object, hands it by reference to each form that must speak, and uses
/// it from one thread at a time. Set `applicationGUID` and `resourcesPath` before the first operation that
/// looks for language files: they are looked for once. Nothing here reports a bad file; its texts stay
/// built-in.
class TESSALY_API CResources {
 public:
  /// A catalogue of the showcase's texts. All slots are empty until a language is chosen or a file is loaded.
  CResources();

  /// A catalogue of a host's own texts; the table must outlive the object.
  explicit CResources(const BuiltInStrings& builtIn);

  CResources(const CResources&) = delete;
  CResources& operator=(const CResources&) = delete;

  /// A copy of the text in slot `n`, 0 to 174; error 9 outside.
  virtual String res(Long n) const;

  /// The text in slot `n` with every "%a1" replaced by `first` and then every "%a2" by `second`; a "%a2" that
  /// comes in with `first` is replaced too. Error 9 outside 0 to 174, error 6 for a floating number that is
  /// not finite; a wrong slot comes first.
  virtual String resWithArg(Long n, const Variant& first, const Variant& second) const;

  /// How many language files of this application the folder has; broken files count.
  virtual Long numberOfLangs();

  /// The language's name or number at a position from 1; empty or 0 at any other.
  virtual String resLang(Long position);
  virtual Long resLangID(Long position);

  /// Stores a language number for the user, at a key below HKEY_CURRENT_USER that is made where it is
  /// missing. The value name "*" is the key's unnamed value, here and below. The language in force stays.
  /// What can't be written is dropped.
  virtual void SetLangToRegistries(std::u16string_view path, std::u16string_view name, Long id);

  /// Reads a language file over the built-in texts, whatever language is in force; `lang` stays as it is.
  virtual void LoadXMLFile(std::u16string_view path);

  /// Takes the folder of the language files from the machine's settings: a text of up to 1000 bytes at a key
  /// below HKEY_LOCAL_MACHINE, up to its first character that is a control character or has two bytes. Empty,
  /// also over a folder set before, where it can't be read.
  virtual void SetResourcesPathFromRegistry(std::u16string_view path, std::u16string_view name);

  /// The folder of the language files; empty is the root.
  virtual void resourcesPath(std::u16string_view folder);

  /// Chooses the language by the user's locale: its file, or the first one of the same primary language, or
  /// what `lang` does with the primary language's number.
  virtual void AutomaticTranslation();

  /// Chooses by number: its file, or the first one of the same primary language; with neither the language
  /// in force stays. A negative number means the language of its positive and, listed or not, makes every
  /// text end in its string number, as in "Open[13]"; the next call with a number from 0 on takes that back.
  /// Error 6 for the lowest number of all, which has no positive.
  virtual void SetLangOrCountry(Long id);

  /// The identity that a language file must carry, compared to the letter.
  virtual void applicationGUID(std::u16string_view guid);

  /// `lang` with 0.
  virtual void SetDefaultLang();

  /// `lang` with the number that `SetLangToRegistries` stored; with 0 where there is none.
  virtual void SetLangFromRegistries(std::u16string_view path, std::u16string_view name);

  /// Chooses by exact number: its file, or that of 2057, or the built-in texts as 2057, "English". 0 is the
  /// user's locale. Reads the file again where it is in force already.
  virtual void lang(Long id);

  /// The name of the language in force; empty before the first choice.
  virtual String langName() const;

  /// The number that was asked for, or 2057 where the built-in texts stand alone; 0 before the first choice.
  virtual Long lang() const;

  /// The fonts that the file read last names; empty and 0 where it names none. Reading any file, also to list
  /// it, clears them first.
  virtual String reportFontName() const;
  virtual String gridFontName() const;
  virtual String mailFontName() const;
  virtual Long gridFontSize() const;

 private:
  friend class CResourcesPeer;

  virtual void FillBuiltInStrings();
  virtual Boolean LoadLanguageFile(std::u16string_view path, Boolean headerOnly);
  virtual void WalkLanguageNodes(platform::XmlChildNodes nodes, Boolean headerOnly);
  virtual void AppendLineBreak(platform::XmlDocument& document, platform::XmlNode& parent);
  virtual void AppendIndentation(platform::XmlDocument& document, platform::XmlNode& parent,
                                 Boolean newLineFirst, platform::XmlNode* node);
  virtual void ScanLanguageFiles();
  virtual void SetRegistryPath(std::u16string_view path);
  virtual String ReadRegistryString(std::u16string_view name, std::u16string_view defaultText) const;
  virtual Long ReadRegistryLong(std::u16string_view name, Long defaultValue) const;
  virtual void WriteRegistryLong(std::u16string_view name, Long value);
  virtual void SelectRegistryRoot(Long selector);
  virtual Boolean FileExists(std::u16string_view path) const;

 public:
  virtual ~CResources();

 private:
  const String& slot(Long n) const;
  void readLanguageFile(std::u16string_view path, Boolean headerOnly, Boolean& rejected);
  void clearFileFields();
  void readGeneral(platform::XmlNode& section);
  void readFonts(platform::XmlNode& section);
  void readString(platform::XmlNode& section, String& text);
  bool isListed(Long position) const;
  std::optional<Long> listedFor(Long id) const;
  bool takeFile(Long id);
  void readChosenFile();

  Long registryRoot_ = 0;
  String registryPath_;
  String resourcesPath_;
  String applicationGUID_;
  Long fileVersion_ = 0;
  String fileGUID_;
  String fileLang_;
  Long fileLangID_ = 0;
  Long langCount_ = 0;
  Boolean langsScanned_;
  std::vector<String> langNames_;
  std::vector<String> langFiles_;
  std::vector<Long> langIDs_;
  String reportFontName_;
  String gridFontName_;
  Long gridFontSize_ = 0;
  String mailFontName_;
  Long currentLang_ = 0;
  String currentFile_;
  String currentLangName_;
  Boolean showStringNumbers_;
  std::array<String, kStringCount> strings_;
  const BuiltInStrings* builtIn_;
};

}  // namespace tessaly
