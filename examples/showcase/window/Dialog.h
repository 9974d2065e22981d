#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "tessaly/forms/Picture.h"
#include "tessaly/platform/Messages.h"

namespace tessaly {
class URLLink;
}

namespace showcase {

/// One row of a dialog.
struct Field {
  enum class Kind {
    Words,      // the text, and nothing to do
    Heading,    // the same, larger
    Choice,     // one of the choices, of which one is seen
    List,       // one of the choices, of which many are seen
    Check,      // the label behind a box that is checked or not
    Text,       // a line to write
    Paragraph,  // many lines to write
    Link,       // a `URLLink`
  };

  Kind kind = Kind::Words;

  /// What it is about; a letter behind & is its key.
  tessaly::String label = {};

  /// What is written in it.
  tessaly::String text = {};

  /// Which of the choices it is, from 0, or -1 for none; or whether the box is checked.
  tessaly::Long number = 0;
  std::vector<tessaly::String> choices = {};

  /// For the host to say what the link is; it goes with the dialog.
  std::function<void(tessaly::URLLink& link)> onLink = {};
};

struct DialogButton {
  tessaly::Long id = 0;
  tessaly::String text = {};
};

/// A dialog as the tool tells it to a window, which makes it of what its platform has. The first button is
/// the one that Return presses; Escape presses `kCancel`.
struct Dialog {
  static constexpr tessaly::Long kOk = 1;
  static constexpr tessaly::Long kCancel = 2;
  static constexpr tessaly::Long kHelp = 9;
  static constexpr tessaly::Long kOther = 100;

  tessaly::String title = {};
  std::vector<Field> fields = {};
  std::vector<DialogButton> buttons = {};

  /// A button was pressed; true closes the dialog. The fields are as they are seen, and what is changed in
  /// them is seen afterwards.
  std::function<bool(tessaly::Long button)> onButton = {};

  /// A key that may ask for help, by its number and with the bits of Shift 1, Ctrl 2 and Alt 4.
  std::function<void(std::int16_t key, std::int16_t shift)> onKey = {};

  /// The dialog's own window, as long as it is there.
  tessaly::platform::WindowHandle window = 0;
};

/// Whether there is something to enter; where there isn't, the first button has the focus at first.
inline bool hasEntry(const Dialog& dialog) {
  return std::any_of(dialog.fields.begin(), dialog.fields.end(), [](const Field& field) {
    return field.kind >= Field::Kind::Choice && field.kind <= Field::Kind::Paragraph;
  });
}

/// What a user does in a dialog that is open; a field is told by its place.
struct DialogUser {
  virtual ~DialogUser() = default;

  virtual void write(std::size_t field, std::u16string_view text) = 0;
  virtual void choose(std::size_t field, tessaly::Long number) = 0;
  virtual void click(std::size_t field) = 0;
  virtual void key(std::int16_t key, std::int16_t shift) = 0;

  /// The dialog as it is seen; none where it can't be drawn.
  virtual tessaly::PictureReference picture() = 0;

  /// Comes last, where it closes the dialog.
  virtual void press(tessaly::Long button) = 0;
};

using DialogVisit = std::function<void(DialogUser& user)>;

}  // namespace showcase
