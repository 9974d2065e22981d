#pragma once

#include <QString>

#include "tessaly/controls/URLLink.h"
#include "tessaly/hosts/qt/WidgetContainer.h"

namespace tessaly::qt {

/// A `URLLink` in a widget. Its properties and its event bear the control's names and mean what they do
/// there; what an assignment raises comes out of the call, but goes to the error handler where Qt assigns, as
/// by `setProperty` or a style sheet. No assignment checks its value. A layout finds room for its text in one
/// line. The thread of the user interface uses it, and waits while the shell works.
class TESSALY_QT_API UrlLink : public WidgetContainer {
  Q_OBJECT
  Q_PROPERTY(QString text READ text WRITE writeText)
  Q_PROPERTY(QString URL READ URL WRITE writeURL)
  Q_PROPERTY(bool ShowToolTip READ ShowToolTip WRITE writeShowToolTip)
  Q_PROPERTY(int alignment READ alignment WRITE writeAlignment)

 public:
  /// A new control. The widget is its parent's, or the caller's where there is none.
  explicit UrlLink(QWidget* parent = nullptr);

  /// A stored control, as `save` gave it; one with all the defaults where a value is damaged.
  explicit UrlLink(const PropertyBag& bag, QWidget* parent = nullptr);
  ~UrlLink() override;

  /// The control itself, which is the widget's. Its `events` bring the signal: where the host sets it there,
  /// there is no signal any more.
  URLLink& control() const { return *control_; }

  /// What is shown.
  QString text() const;
  void text(const QString& sText);

  /// What a click opens: an address, or a file that some application opens. It passes through the system's
  /// 8-bit code page. What the shell can't open is not reported; a
  /// call to it that fails as such is shown by `MsgBoxW`.
  QString URL() const;
  void URL(const QString& sURL);

  /// Whether the URL is shown where the pointer rests on the text.
  bool ShowToolTip() const;
  void ShowToolTip(bool bShowToolTip);

  /// Where the text stands: 0 left, 1 right, 2 in the middle. Nobody is told of a change.
  void alignment(Long alignment);
  Long alignment() const;

 signals:
  /// A click, before anything is opened. For direct connections: what is changed through a pointer counts for
  /// this click. A slot may delete the widget.
  void GoToURL(QString* URL, bool* Cancel);

 protected:
  void propertyChanged(std::u16string_view name) override;

 private:
  void prepare();
  void raiseGoToURL(String& address, Boolean& cancel);
  void writeText(const QString& value);
  void writeURL(const QString& value);
  void writeShowToolTip(bool value);
  void writeAlignment(int value);

  std::shared_ptr<URLLink> control_;
};

}  // namespace tessaly::qt
