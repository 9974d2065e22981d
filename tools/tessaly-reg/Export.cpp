#include "tessaly/base/Text.h"
#include "tools/support/Visible.h"
#include "tools/tessaly-reg/Commands.h"
#include "tools/tessaly-reg/Counts.h"
#include "tools/tessaly-reg/Failure.h"
#include "tools/tessaly-reg/FileBytes.h"
#include "tools/tessaly-reg/RegEncoding.h"
#include "tools/tessaly-reg/RegExport.h"
#include "tools/tessaly-reg/ValueText.h"

namespace tessaly::reg {
namespace {

using platform::registry_result::kSuccess;

int write(const Arguments& arguments, Context& context, const Exported& exported) {
  const std::string file = tools::visible(*arguments.file);
  const std::string bytes = encodeRegFile(exported.text);
  const std::string fault = writeFile(*arguments.file, bytes, arguments.isForced);
  if (!fault.empty()) return fail(context, "can't write " + file, fault);
  context.out << "Exported " << counted(exported.keys, "key") << " and " << counted(exported.values, "value")
              << " to " << file << ".\n";
  if (bytes.size() > kLargestRegFile)
    context.errors << "It is larger than 16 MiB, which import refuses; export the keys in it one by one.\n";
  return kDone;
}

int refuse(Context& context, const Exported& exported, bool toTerminal) {
  const std::string name = tools::inQuotes(shownName(exported.badName));
  const std::string why = toTerminal
                              ? "the name " + name + " can't be shown as text; export to a file"
                              : "the name " + name + " holds what a .reg file can't, a NUL or a line break";
  return fail(context, "can't export " + tools::visible(exported.culprit), why);
}

}  // namespace

int exportKey(const Arguments& arguments, Context& context) {
  const bool toTerminal = *arguments.file == "-";
  FoundKey key;
  Exported exported;
  Long result = context.keys.find(arguments.key, key);
  if (result == kSuccess) {
    result = exportTree(context.keys, key, toTerminal ? ExportNames::Showable : ExportNames::All,
                        toTerminal ? u"\n" : u"\r\n", exported);
  }
  if (result != kSuccess) return fail(context, "can't export", arguments.key, result);
  if (!exported.culprit.empty()) return refuse(context, exported, toTerminal);
  if (!toTerminal) return write(arguments, context, exported);
  context.out << toUtf8(exported.text);
  return kDone;
}

}  // namespace tessaly::reg
