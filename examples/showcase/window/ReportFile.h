#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "examples/showcase/window/ReportRow.h"

/// Reports as files: UTF-8 text with a line of headings and a line for each row, its cells divided by commas;
/// a cell with a comma or a quotation mark in it stands in quotation marks. They come from anywhere, so none
/// is believed.
namespace showcase {

/// What is in the way of a file.
enum class FileFault { None, NotFound, NotOpened, Damaged };

struct ReadReport {
  FileFault fault = FileFault::None;
  std::vector<ReportRow> rows;
};

/// The rows of a file's text; none where it is no report to the last letter.
std::optional<std::vector<ReportRow>> parseReport(std::string_view text);

/// The text of a file with these rows.
std::string reportText(const std::vector<ReportRow>& rows);

ReadReport readReport(const tessaly::String& path);

/// False where it can't be written.
bool writeReport(const tessaly::String& path, const std::vector<ReportRow>& rows);

}  // namespace showcase
