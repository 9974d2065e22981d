// The properties: how each is read and assigned, and how the bag keeps them.

#include <new>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/controls/URLLink.h"
#include "tessaly/controls/URLLinkChildren.h"
#include "tessaly/controls/URLLinkTables.h"

namespace tessaly {
namespace {

consteval const PropertyRow& linkRow(std::u16string_view name) { return rowOf(kURLLinkProperties, name); }

constexpr const PropertyRow& kLinkText = linkRow(u"text");
constexpr const PropertyRow& kLinkURL = linkRow(u"URL");
constexpr const PropertyRow& kLinkToolTip = linkRow(u"ShowToolTip");
constexpr const PropertyRow& kLinkAlignment = linkRow(u"alignment");

}  // namespace

String URLLink::text() const { return children_->lblURL->Caption(); }

void URLLink::text(std::u16string_view sText) {
  children_->lblURL->Caption(sText);
  const double width = children_->userControl->Width();
  const double height = children_->userControl->Height();
  children_->lblURL->Move(0, 0, width, height);
  children_->userControl->PropertyChanged(kLinkText.bagKey);
}

String URLLink::URL() const { return url_; }

void URLLink::URL(std::u16string_view sURL) {
  url_ = sURL;
  updateToolTip();
  children_->userControl->PropertyChanged(kLinkURL.bagKey);
}

Boolean URLLink::ShowToolTip() const { return showToolTip_; }

void URLLink::ShowToolTip(Boolean bShowToolTip) {
  showToolTip_ = bShowToolTip;
  updateToolTip();
  children_->userControl->PropertyChanged(kLinkToolTip.bagKey);
}

// Hosts know that the form is not marked as changed by this.
void URLLink::alignment(Long alignment) {
  alignment_ = alignment;
  children_->lblURL->Alignment(alignment_);
}

Long URLLink::alignment() const { return alignment_; }

void URLLink::InitProperties() {
  text(kLinkText.textDefault());
  url_ = kLinkURL.textDefault();
  ShowToolTip(kLinkToolTip.booleanDefault());
  alignment_ = kLinkAlignment.longDefault();
  children_->lblURL->Alignment(alignment_);
}

void URLLink::ReadProperties(const PropertyBag& bag) {
  bool isRead = false;
  try {
    readKept(bag);
    isRead = true;
  } catch (const RuntimeError&) {
    // A bad bag gives a control as if it were new.
  } catch (const std::bad_alloc&) {
    // Likewise.
  }
  if (!isRead) InitProperties();
}

void URLLink::readKept(const PropertyBag& bag) {
  text(stringOf(readProperty(bag, kLinkText)));
  url_ = stringOf(readProperty(bag, kLinkURL));
  ShowToolTip(booleanOf(readProperty(bag, kLinkToolTip)));
  alignment_ = longOf(readProperty(bag, kLinkAlignment));
  children_->lblURL->Alignment(alignment_);
}

void URLLink::WriteProperties(PropertyBag& bag) {
  writeProperty(bag, kLinkText, Variant(text()));
  writeProperty(bag, kLinkURL, Variant(url_));
  writeProperty(bag, kLinkToolTip, Variant(showToolTip_));
  writeProperty(bag, kLinkAlignment, Variant(alignment_));
}

}  // namespace tessaly
