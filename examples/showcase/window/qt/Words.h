#pragma once

#include <QTranslator>

#include "examples/showcase/window/Window.h"

namespace showcase {

/// Makes Qt's message boxes speak the tool's language, as long as it lives.
class Words final : public QTranslator {
 public:
  Words();

  void speak(const BoxWords& words) { words_ = words; }

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* remark, int count) const override;

 private:
  BoxWords words_;
};

}  // namespace showcase
