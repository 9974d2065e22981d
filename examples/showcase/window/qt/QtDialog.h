#pragma once

#include <QDialog>
#include <QFormLayout>
#include <vector>

#include "examples/showcase/window/Dialog.h"

class QAbstractButton;
class QDialogButtonBox;

namespace showcase {

/// A dialog in Qt's widgets.
class QtDialog final : public QDialog, public DialogUser {
 public:
  /// The description must outlive this. The visit, which may be none, is paid as soon as the dialog is there.
  QtDialog(Dialog& dialog, QWidget& parent, DialogVisit visit);

  /// The button that closed it.
  tessaly::Long run();

  void write(std::size_t field, std::u16string_view text) override;
  void choose(std::size_t field, tessaly::Long number) override;
  void click(std::size_t field) override;
  void key(std::int16_t key, std::int16_t shift) override;
  tessaly::PictureReference picture() override;
  void press(tessaly::Long button) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void reject() override;

 private:
  QWidget* makeField(const Field& field);
  void addButtons();
  void readFields();
  void writeFields();

  Dialog& dialog_;
  DialogVisit visit_;
  QFormLayout* form_;
  QDialogButtonBox* box_;
  std::vector<QWidget*> widgets_;
  tessaly::Long closedBy_ = Dialog::kCancel;
};

}  // namespace showcase
