// Writes exported files.
#include "workbench/api/export_file.h"

#include <fstream>

#include "workbench/base/text.h"

namespace wb {
namespace {

std::string StandIn(const ExportJob& job) {
  return std::string("This file stands for the ") + job.word + " file of " + job.what + ".\n" +
         job.asked + "\n";
}

Companion::Answer Make(const Host& host, const ExportJob& job) {
  if (job.by_companion && host.companion_is_missing) return {"", "the companion is missing"};
  return job.make();
}

bool WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out << bytes;
  out.flush();
  return bool(out);
}

}  // namespace

ProError WriteExport(const Call& call, const Model& model, std::filesystem::path file,
                     const ExportJob& job) {
  Host& host = call.host;
  // A name that is an extension and nothing else has one.
  const bool is_whole = file.has_extension() || PathToUtf8(file.filename()) == job.extension;
  if (!is_whole) file += job.extension;
  file = host.session.working_directory() / file;
  const WriterConduct conduct = host.writers.ConductFor(job.format, file);
  const bool fails =
      conduct == WriterConduct::kFails || host.session.IsReadOnly(file.parent_path());
  if (fails) return PRO_TK_CANT_WRITE;
  if (conduct == WriterConduct::kWritesNothing) return PRO_TK_NO_ERROR;
  ExportedFile written = {PathToUtf8(file), job.word, model.id.Text()};
  std::string bytes;
  if (conduct == WriterConduct::kWorks) {
    Companion::Answer made;
    if (job.make) made = Make(host, job);
    written.is_real = job.make && made.trouble.empty();
    written.trouble = made.trouble;
    bytes = written.is_real ? made.bytes : StandIn(job);
  }
  if (!WriteBytes(file, bytes)) return PRO_TK_CANT_WRITE;
  host.events.Add(std::move(written));
  return PRO_TK_NO_ERROR;
}

}  // namespace wb
