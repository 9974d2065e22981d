#include "tessaly/hosts/qt/help/HelpArchive.h"

#include <utility>

#include "tessaly/hosts/qt/help/HelpText.h"
#include "tessaly/hosts/qt/help/PagePath.h"
#include "tessaly/platform/Core.h"

namespace tessaly::qt {
namespace {

/// Two names are the same where this is.
String keyOf(std::u16string_view name) { return platform::core().locale->CharUpperW(tidyPath(name)); }

}  // namespace

std::shared_ptr<const HelpArchive> HelpArchive::of(std::string bytes) {
  ArchiveReader reader(std::move(bytes));
  const auto names = reader.names();
  if (!names) return nullptr;
  return std::shared_ptr<const HelpArchive>(new HelpArchive(std::move(reader), *names));
}

HelpArchive::HelpArchive(ArchiveReader reader, const std::vector<std::string>& names)
    : reader_(std::move(reader)) {
  const Long codePage = platform::core().locale->GetACP();
  for (const std::string& name : names) {
    names_.push_back(tidyPath(helpText(name, codePage)));
    places_.try_emplace(keyOf(names_.back()), names_.size() - 1);
  }
}

bool HelpArchive::has(std::u16string_view name) const { return places_.contains(keyOf(name)); }

std::optional<std::string> HelpArchive::read(std::u16string_view name) const {
  const auto place = places_.find(keyOf(name));
  return place == places_.end() ? std::nullopt : reader_.read(place->second);
}

}  // namespace tessaly::qt
