#include "tessaly/hosts/qt/UrlLink.h"

#include "tessaly/hosts/qt/AccessibleLink.h"
#include "tessaly/hosts/qt/Text.h"

namespace tessaly::qt {

// Not among the initialisers: a control that is being placed already tells of its properties, and so there
// must be a pointer, to none.
UrlLink::UrlLink(QWidget* parent) : WidgetContainer(parent) {
  control_ = place<URLLink>();
  prepare();
}

UrlLink::UrlLink(const PropertyBag& bag, QWidget* parent) : WidgetContainer(parent) {
  control_ = place<URLLink>(bag);
  prepare();
}

// An event that runs may hold the control for longer than there is a widget to raise signals.
UrlLink::~UrlLink() { control_->events = {}; }

void UrlLink::prepare() {
  installAccessibleLink();
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  control_->events.GoToURL = [this](String& URL, Boolean& Cancel) { raiseGoToURL(URL, Cancel); };
}

// The widget may be gone when the signal returns.
void UrlLink::raiseGoToURL(String& address, Boolean& cancel) {
  QString shown = toQString(address);
  bool isCancelled = cancel != 0;
  emit GoToURL(&shown, &isCancelled);
  address = fromQString(shown);
  cancel = isCancelled;
}

QString UrlLink::text() const { return toQString(control_->text()); }
QString UrlLink::URL() const { return toQString(control_->URL()); }
bool UrlLink::ShowToolTip() const { return control_->ShowToolTip() != 0; }
Long UrlLink::alignment() const { return control_->alignment(); }
void UrlLink::alignment(Long alignment) { control_->alignment(alignment); }

// The host may delete the widget when it is told of the change.
void UrlLink::text(const QString& sText) {
  const auto held = control_;
  held->text(fromQString(sText));
}

void UrlLink::URL(const QString& sURL) {
  const auto held = control_;
  held->URL(fromQString(sURL));
}

void UrlLink::ShowToolTip(bool bShowToolTip) {
  const auto held = control_;
  held->ShowToolTip(bShowToolTip);
}

void UrlLink::writeText(const QString& value) {
  guard([&] { text(value); });
}
void UrlLink::writeURL(const QString& value) {
  guard([&] { URL(value); });
}
void UrlLink::writeShowToolTip(bool value) {
  guard([&] { ShowToolTip(value); });
}
void UrlLink::writeAlignment(int value) {
  guard([&] { alignment(value); });
}

// The control tells of a property of a bag before it is anybody's.
void UrlLink::propertyChanged(std::u16string_view name) {
  if (control_ && name == u"Text") {
    updateGeometry();
    tellNameOfLink(*this);
  }
  WidgetContainer::propertyChanged(name);
}

}  // namespace tessaly::qt
