// Orders to writers.
#include "workbench/host/file_writers.h"

#include "workbench/base/text.h"

namespace wb {

void FileWriters::Order(std::optional<FileFormat> format, WriterConduct conduct,
                        const std::string& file) {
  orders_.push_back({format, conduct, file});
}

WriterConduct FileWriters::ConductFor(FileFormat format, const std::filesystem::path& file) const {
  const std::string name = PathToUtf8(file.filename());
  for (auto order = orders_.rbegin(); order != orders_.rend(); ++order) {
    const bool of_format = !order->format || *order->format == format;
    if (of_format && (order->file.empty() || EqualFolded(order->file, name))) return order->conduct;
  }
  return WriterConduct::kWorks;
}

}  // namespace wb
