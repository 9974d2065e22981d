#include "examples/showcase/tests/FakeWindow.h"

#include <algorithm>
#include <utility>

namespace showcase::tests {

using tessaly::Long;
using tessaly::transparentBitmap;
using tessaly::URLLink;

namespace {

constexpr tessaly::headless::Bounds kLinkBounds{0, 100, 200, 20};

/// A user in a dialog that nobody sees; its link stands on a form.
class FakeDialogUser final : public DialogUser {
 public:
  FakeDialogUser(Dialog& dialog, tessaly::headless::Form& form) : dialog_(dialog), form_(form) {
    for (const Field& field : dialog.fields) {
      if (!field.onLink) continue;
      link_ = &form_.add<URLLink>(kLinkBounds);
      field.onLink(*link_);
    }
  }
  FakeDialogUser(const FakeDialogUser&) = delete;
  FakeDialogUser& operator=(const FakeDialogUser&) = delete;
  ~FakeDialogUser() override {
    if (link_ != nullptr) form_.remove(*link_);
  }

  void write(std::size_t field, std::u16string_view text) override { dialog_.fields[field].text = text; }
  void choose(std::size_t field, Long number) override { dialog_.fields[field].number = number; }
  void click(std::size_t /*field*/) override {
    form_.movePointer({kLinkBounds.left + 1, kLinkBounds.top + 1});
    form_.press();
    form_.release();
  }
  void key(std::int16_t key, std::int16_t shift) override { dialog_.onKey(key, shift); }
  tessaly::PictureReference picture() override { return nullptr; }
  void press(Long button) override {
    if (dialog_.onButton(button)) closedBy = button;
  }

  tessaly::String linkText() const { return link_ == nullptr ? tessaly::String() : link_->text(); }

  Long closedBy = 0;

 private:
  Dialog& dialog_;
  tessaly::headless::Form& form_;
  URLLink* link_ = nullptr;
};

}  // namespace

transparentBitmap& FakeWindow::addButton() {
  const auto left = static_cast<Long>(middles_.size()) * kButtonSide;
  auto& button = form.add<transparentBitmap>({left, 0, kButtonSide, kButtonSide});
  middles_[&button] = {left + kButtonSide / 2, kButtonSide / 2};
  return button;
}

void FakeWindow::nameButton(const transparentBitmap& button, std::u16string_view name) {
  names[&button] = name;
}

void FakeWindow::setGridFont(std::u16string_view name, Long points) {
  gridFont = name;
  gridFontSize = points;
}

Long FakeWindow::runDialog(Dialog& dialog) {
  FakeDialogUser user(dialog, form);
  dialogs.push_back(dialog);
  linkText = user.linkText();
  dialog.window = kDialogHandle;
  if (const auto visit = std::exchange(visit_, nullptr)) visit(user);
  // What nobody closes is closed by Escape.
  if (user.closedBy == 0) user.press(Dialog::kCancel);
  dialog.window = 0;
  return user.closedBy;
}

const MenuItem* FakeWindow::find(Long id) const {
  for (const MenuItem& menu : menus) {
    const auto item = std::find_if(menu.items.begin(), menu.items.end(), [id](const MenuItem& each) {
      return each.id == id && !each.text.empty();
    });
    if (item != menu.items.end()) return &*item;
  }
  return nullptr;
}

void FakeWindow::choose(Long id) {
  const MenuItem* const item = find(id);
  if (item != nullptr && item->isEnabled) handlers.onCommand(id);
}

std::vector<tessaly::String> FakeWindow::textsOf(const Dialog& dialog) {
  std::vector<tessaly::String> texts = {dialog.title};
  for (const Field& field : dialog.fields) {
    texts.push_back(field.label);
    if (field.kind == Field::Kind::Words) texts.push_back(field.text);
    if (field.kind == Field::Kind::Choice)
      texts.insert(texts.end(), field.choices.begin(), field.choices.end());
  }
  for (const DialogButton& button : dialog.buttons) texts.push_back(button.text);
  return texts;
}

void FakeWindow::point(const transparentBitmap& button) { form.movePointer(middles_.at(&button)); }

void FakeWindow::press(const transparentBitmap& button) {
  hold(button);
  release(button);
}

void FakeWindow::hold(const transparentBitmap& button) {
  point(button);
  form.press();
}

void FakeWindow::release(const transparentBitmap&) { form.release(); }

}  // namespace showcase::tests
