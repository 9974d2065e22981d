#pragma once

#include "tessaly/localisation/CResources.h"

namespace showcase {

/// The report that is open. Each act tells what came of it, in the language in force.
class Report {
 public:
  /// The catalogue must outlive the report.
  explicit Report(const tessaly::CResources& resources) : resources_(resources) {}

  tessaly::String beginNew();
  tessaly::String open();
  tessaly::String save();
  tessaly::String print();
  tessaly::String send();
  tessaly::String find();
  tessaly::String filter();
  tessaly::String turnBack();
  tessaly::String turnOn();
  tessaly::String zoomOut();
  tessaly::String zoomIn();

  /// What it is called, where it is open, and how large it is seen.
  tessaly::String name() const;
  tessaly::String page() const;
  tessaly::String zoom() const;

  bool isChanged() const { return isChanged_; }
  bool isFiltered() const { return isFiltered_; }
  tessaly::Long timesSent() const { return timesSent_; }
  bool canTurnBack() const { return page_ > 1; }
  bool canTurnOn() const { return page_ < pages_; }
  bool canZoomOut() const;
  bool canZoomIn() const;

 private:
  void begin(tessaly::Long pages, bool isNew);

  const tessaly::CResources& resources_;
  tessaly::Long page_ = 1;
  tessaly::Long pages_ = 9;
  tessaly::Long zoom_ = 100;
  tessaly::Long timesSent_ = 0;
  bool isNew_ = false;
  bool isChanged_ = false;
  bool isFiltered_ = false;
};

}  // namespace showcase
