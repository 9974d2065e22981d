#pragma once

#include <QString>

#include "tessaly/controls/URLLink.h"
#include "tessaly/hosts/qt/WidgetContainer.h"

namespace tessaly::qt {

/// A `URLLink` in a widget. Its properties and its event bear the control's names and mean what they do
/// there; what an assignment raises comes out of the call, but goes to the error handler where Qt assigns, as
/// by `setProperty` or a style sheet. A layout finds room for its text in one line.
class TESSALY_QT_API UrlLink : public WidgetContainer {
  Q_OBJECT
  Q_PROPERTY(QString text READ text WRITE writeText)
  Q_PROPERTY(QString URL READ URL WRITE writeURL)
  Q_PROPERTY(bool ShowToolTip READ ShowToolTip WRITE writeShowToolTip)
  Q_PROPERTY(int alignment READ alignment WRITE writeAlignment)

 public:
  explicit UrlLink(QWidget* parent = nullptr);

  /// A stored control, as `save` gave it.
  explicit UrlLink(const PropertyBag& bag, QWidget* parent = nullptr);
  ~UrlLink() override;

  /// The control itself, whose `events` bring the signal: where the host sets it there, there is no signal
  /// any more.
  URLLink& control() const { return *control_; }

  QString text() const;
  void text(const QString& sText);
  QString URL() const;
  void URL(const QString& sURL);
  bool ShowToolTip() const;
  void ShowToolTip(bool bShowToolTip);
  void alignment(Long alignment);
  Long alignment() const;

 signals:
  /// For direct connections: what is changed through a pointer counts for this click.
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
