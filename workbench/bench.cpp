// Runs the benchmark over the chosen shapes and sizes and prints its report.
#include "workbench/bench.h"

#include <algorithm>
#include <cstdio>

#include "workbench/bench_heap.h"
#include "workbench/bench_options.h"
#include "workbench/bench_report.h"
#include "workbench/model_file.h"
#include "workbench/windows_headers.h"

namespace wb {
namespace {

constexpr char kTree[] = "quillmax-5.1-C3";
constexpr char kDll[] = "quillmax5.1C3.dll";
constexpr char kFolderPrefix[] = "workbench bench ";

std::filesystem::path PluginBesideWorkbench() {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, MAX_PATH - 1);
  return std::filesystem::path(path).parent_path() / kTree / kDll;
}

// A copy of the installed plug-in for one run, so that its settings and its log stay as they are.
// The library file itself outlives the run, since a started plug-in stays loaded; the next run
// removes it.
class Installation {
 public:
  explicit Installation(const std::filesystem::path& dll) {
    if (!std::filesystem::is_regular_file(dll)) {
      throw BenchUsageError("there is no plug-in " + PathToUtf8(dll) +
                            ": build it with tools/build.sh, or name one with --plugin");
    }
    RemoveLeftovers();
    std::filesystem::create_directories(folder_);
    std::filesystem::copy(dll.parent_path(), folder_ / kTree,
                          std::filesystem::copy_options::recursive);
    dll_ = folder_ / kTree / dll.filename();
  }
  ~Installation() { RemoveLeftovers(); }
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;

  const std::filesystem::path& folder() const { return folder_; }
  const std::filesystem::path& dll() const { return dll_; }

 private:
  // What is in use by another run cannot be removed and stays.
  void RemoveLeftovers() const {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.parent_path(), error)) {
      if (!PathToUtf8(entry.path().filename()).starts_with(kFolderPrefix)) continue;
      std::filesystem::remove_all(entry.path(), error);
    }
  }

  const std::filesystem::path folder_ = std::filesystem::temp_directory_path() /
                                        (kFolderPrefix + std::to_string(::GetCurrentProcessId()));
  std::filesystem::path dll_;
};

// A shape with a bound is measured at its bound and at half of it where a size goes beyond.
std::vector<int> SizesFor(const BenchShape& shape, const std::vector<int>& sizes) {
  std::vector<int> fitting;
  for (const int size : sizes) {
    if (shape.largest == 0 || size <= shape.largest) fitting.push_back(size);
  }
  if (fitting.size() == sizes.size()) return fitting;
  for (const int size : {shape.largest / 2, shape.largest}) {
    if (std::ranges::find(fitting, size) == fitting.end()) fitting.push_back(size);
  }
  std::ranges::sort(fitting);
  return fitting;
}

BenchResult MeasureAll(const BenchOptions& options, const Installation& installation) {
  BenchResult all;
  for (const BenchShape* shape : options.shapes) {
    for (const int size : SizesFor(*shape, options.sizes)) {
      std::fprintf(stderr, "%s, %d occurrences\n", shape->name, size);
      BenchResult result = Measure({shape, size, options.runs, all.most_asked.empty()},
                                   installation.dll(), installation.folder());
      all.rows.insert(all.rows.end(), result.rows.begin(), result.rows.end());
      if (all.most_asked.empty()) all.most_asked = std::move(result.most_asked);
    }
  }
  return all;
}

// Gives the number of bounds missed.
int PrintReport(const BenchResult& result, bool markdown) {
  const char* const fence = markdown ? "```\n" : "";
  std::printf("%s%s%s\n%s\n", fence, BenchHead().c_str(), fence,
              BenchTables(result, markdown).c_str());
  int missed = 0;
  for (const BenchBound& bound : CheckBounds(result)) {
    missed += bound.kept ? 0 : 1;
    std::printf("%s%s: %s, %s\n", markdown ? "- " : "", bound.kept ? "kept" : "MISSED",
                bound.text.c_str(), bound.found.c_str());
  }
  std::printf("%sthe workbench's process, models included, used %lld MiB at most\n",
              markdown ? "- " : "", PeakOfProcess() / (1024 * 1024));
  std::fflush(stdout);
  return missed;
}

int RunBench(const BenchOptions& options) {
  const Installation installation(options.plugin.empty() ? PluginBesideWorkbench()
                                                         : options.plugin);
  const int missed = PrintReport(MeasureAll(options, installation), options.markdown);
  return missed > 0 && options.strict ? 1 : 0;
}

}  // namespace

int BenchCommand(const std::vector<std::string>& args) {
  try {
    const BenchOptions options = ParseBenchOptions(args);
    if (!options.help) return RunBench(options);
    std::printf("%s", BenchUsage().c_str());
    return 0;
  } catch (const BenchUsageError& error) {
    std::fprintf(stderr, "workbench bench: %s\n", error.what());
    return 2;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "workbench bench: %s\n", error.what());
    return 1;
  }
}

}  // namespace wb
