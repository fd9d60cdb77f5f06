// A file of another program on its way to the disk: where it goes, what is in it, and how the
// host's writer of its format is told to do its work. With it what such calls are given to set.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "workbench/companion/companion.h"
#include "workbench/host/call.h"

namespace wb {

struct ExportJob {
  FileFormat format = FileFormat::kDwg;
  const char* extension = "";  // for a file that has none
  const char* word = "";       // "DWG"
  // What the file is of, and how it was asked for: a text for what stands for the host's file.
  std::string what;
  std::string asked;
  // Asks for the real one; empty: nobody makes such files real.
  std::function<Companion::Answer()> make{};
  bool by_companion = true;  // the real one comes from the companion
};

// Writes it into the working directory, or where its path says.
ProError WriteExport(const Call& call, const Model& model, std::filesystem::path file,
                     const ExportJob& job);

// An opaque thing of the plug-in's that stands for a record of the host's own.
template <typename Record, HandleKind kKind, typename Handle>
struct LentIn {
  Handle handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  Record& Look(const Call& call) const {
    return *static_cast<Record*>(call.Look(handle, kKind).object);
  }
};
template <typename Record, typename Handle>
void Lend(const Call& call, Handle& place, HandleKind kind, Resource resource) {
  place = static_cast<Handle>(call.host.handles.Give(kind, new Record));
  call.Give(place, resource);
}

template <typename Record, typename Handle>
void TakeBack(const Call& call, Handle lent, HandleKind kind, Resource resource) {
  call.TakeBack(lent, resource);
  delete static_cast<Record*>(call.Look(lent, kind).object);
  call.host.handles.End(lent);
}

}  // namespace wb
