#include <algorithm>

#include "tools/support/Visible.h"
#include "tools/tessaly-reg/Commands.h"
#include "tools/tessaly-reg/Counts.h"
#include "tools/tessaly-reg/Failure.h"
#include "tools/tessaly-reg/FileBytes.h"
#include "tools/tessaly-reg/RegImport.h"
#include "tools/tessaly-reg/ValueText.h"

namespace tessaly::reg {
namespace {

using namespace platform::registry_result;
using Kind = RegChange::Kind;

class Import {
 public:
  Import(const Arguments& arguments, Context& context)
      : arguments_(arguments),
        context_(context),
        name_(*arguments.file == "-" ? "standard input" : tools::visible(*arguments.file)) {}

  int run();

 private:
  int tell(std::vector<LineError> faults);
  int checkWritable(const RegImport& import);
  int checkReadable(const RegImport& import);
  int failed(const ImportResult& end);
  int preview(const RegImport& import);
  void previewChange(const RegChange& change);
  std::size_t count(Kind kind) const;
  void summarise(std::string_view beginning);

  const Arguments& arguments_;
  Context& context_;
  std::string name_;
  RegFile file_;
};

/// The file's name stands before each line, as compilers have it, so that editors find the place.
int Import::tell(std::vector<LineError> faults) {
  std::stable_sort(faults.begin(), faults.end(),
                   [](const LineError& left, const LineError& right) { return left.line < right.line; });
  const bool isCut = faults.size() >= kMostErrors;
  if (isCut) faults.resize(kMostErrors);
  for (const LineError& fault : faults)
    context_.errors << name_ << ':' << fault.line << ": " << fault.message << '\n';
  const std::string count = isCut ? "the first " + std::to_string(kMostErrors) + " errors stand above"
                                  : counted(faults.size(), "error");
  return fail(context_, "can't import " + name_, count + "; nothing was changed");
}

int Import::checkWritable(const RegImport& import) {
  for (const NamedStore* named : {&context_.stores.machine, &context_.stores.user}) {
    const platform::KeyStore* const store = named->store.get();
    if (import.concerns(*store) && !named->store->isWritable())
      return fail(context_, "can't import " + name_, kAccessDenied, store);
  }
  return kDone;
}

/// An import would find out by itself.
int Import::checkReadable(const RegImport& import) {
  for (const NamedStore* named : {&context_.stores.machine, &context_.stores.user}) {
    if (!import.concerns(*named->store)) continue;
    std::vector<String> ignored;
    const Long result = named->store->subkeys(platform::KeyStore::kRoot, ignored);
    if (result != kSuccess) return fail(context_, "can't import " + name_, result, named->store.get());
  }
  return kDone;
}

void Import::previewChange(const RegChange& change) {
  std::ostream& out = context_.out;
  out << "line " << change.line << ": ";
  const std::string name = tools::visible(shownName(change.name));
  switch (change.kind) {
    case Kind::MakeKey:
      out << "in " << shownKey(file_.keys[change.key]);
      break;
    case Kind::DeleteKey:
      out << "delete " << shownKey(file_.keys[change.key]) << " with all below it";
      break;
    case Kind::SetValue:
      out << "    set " << name << "    " << tools::visible(typeName(change.value.type)) << "    "
          << tools::visible(shownData(change.value));
      break;
    default:
      out << "    delete " << name;
  }
  out << '\n';
}

std::size_t Import::count(Kind kind) const {
  return static_cast<std::size_t>(
      std::count_if(file_.changes.begin(), file_.changes.end(),
                    [&](const RegChange& change) { return change.kind == kind; }));
}

void Import::summarise(std::string_view beginning) {
  context_.out << beginning << counted(count(Kind::SetValue), "value") << " set in "
               << counted(count(Kind::MakeKey), "key");
  const std::size_t values = count(Kind::DeleteValue);
  const std::size_t keys = count(Kind::DeleteKey);
  if (values != 0) context_.out << ", " << counted(values, "value") << " deleted";
  if (keys != 0) context_.out << ", " << counted(keys, "key") << " deleted";
  context_.out << ".\n";
}

int Import::failed(const ImportResult& end) {
  fail(context_, "can't import " + name_, resultOfChange(end.result), end.failed);
  context_.errors << (end.isUserDone ? "The user's keys are imported, the machine's are as before.\n"
                                     : "Nothing was changed.\n");
  return kFailed;
}

int Import::preview(const RegImport& import) {
  for (const RegChange& change : file_.changes) previewChange(change);
  summarise("Nothing was changed. An import would give: ");
  const int code = checkReadable(import);
  return code == kDone ? checkWritable(import) : code;
}

int Import::run() {
  std::string bytes;
  const std::string fault = readFile(*arguments_.file, bytes);
  if (!fault.empty()) return fail(context_, "can't read " + name_, fault);
  file_ = parseRegFile(bytes);
  const RegImport import(file_, context_.keys);
  std::vector<LineError> faults = import.faults();
  faults.insert(faults.end(), file_.errors.begin(), file_.errors.end());
  if (!faults.empty()) return tell(std::move(faults));
  if (arguments_.isPreview) return preview(import);
  if (const int code = checkWritable(import); code != kDone) return code;
  const ImportResult end = import.apply(*context_.stores.machine.store, *context_.stores.user.store);
  if (end.result != kSuccess) return failed(end);
  summarise("Imported " + name_ + ": ");
  return kDone;
}

}  // namespace

int importFile(const Arguments& arguments, Context& context) { return Import(arguments, context).run(); }

}  // namespace tessaly::reg
