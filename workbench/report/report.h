// The report of a run: one HTML page that needs nothing beside it, neither network nor script.
#pragma once

#include <filesystem>
#include <string>

#include "workbench/report/run_record.h"

namespace wb {

std::string RenderReport(const RunRecord& record);

// Throws std::runtime_error with the path and the reason when the file cannot be written.
void WriteReport(const std::filesystem::path& file, const RunRecord& record);

}  // namespace wb
