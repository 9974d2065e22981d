#include "examples/showcase/window/Report.h"

#include <algorithm>

#include "examples/showcase/Host.h"

namespace showcase {
namespace {

using tessaly::Long;
using tessaly::String;

constexpr std::u16string_view kFile = u"Sales.rep";
constexpr std::u16string_view kReader = u"sales@example.com";
constexpr std::u16string_view kSought = u"bonus";
constexpr Long kPages = 9;
constexpr Long kRows = 240;
constexpr Long kFilteredRows = 12;
constexpr Long kZoomStep = 10;
constexpr Long kLeastZoom = 50;
constexpr Long kMostZoom = 200;

}  // namespace

void Report::begin(Long pages, bool isNew) {
  page_ = 1;
  pages_ = pages;
  isNew_ = isNew;
  isChanged_ = isNew;
  isFiltered_ = false;
  timesSent_ = 0;
}

String Report::beginNew() {
  begin(1, true);
  return name();
}

String Report::open() {
  begin(kPages, false);
  return page();
}

String Report::save() {
  isChanged_ = false;
  isNew_ = false;
  return resources_.res(Done);
}

String Report::print() { return resources_.resWithArg(PrintingPageOf, page_, pages_); }

String Report::send() {
  ++timesSent_;
  return resources_.resWithArg(MessageSentTo, kReader, u"");
}

String Report::find() { return resources_.resWithArg(TextNotFound, kSought, u""); }

String Report::filter() {
  isFiltered_ = !isFiltered_;
  isChanged_ = true;
  return isFiltered_ ? resources_.resWithArg(RowsSelectedOf, kFilteredRows, kRows)
                     : resources_.resWithArg(RowsOf, kRows, u"");
}

String Report::turnBack() {
  page_ = std::max(page_ - 1, 1);
  return page();
}

String Report::turnOn() {
  page_ = std::min(page_ + 1, pages_);
  return page();
}

String Report::zoomOut() {
  zoom_ = std::max(zoom_ - kZoomStep, kLeastZoom);
  return zoom();
}

String Report::zoomIn() {
  zoom_ = std::min(zoom_ + kZoomStep, kMostZoom);
  return zoom();
}

String Report::name() const { return isNew_ ? resources_.res(Untitled) : String(kFile); }
String Report::page() const { return resources_.resWithArg(PageOf, page_, pages_); }
String Report::zoom() const { return resources_.resWithArg(ZoomOf, zoom_, u""); }
bool Report::canZoomOut() const { return zoom_ > kLeastZoom; }
bool Report::canZoomIn() const { return zoom_ < kMostZoom; }

}  // namespace showcase
