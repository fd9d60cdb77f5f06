// Reads the benchmark's command line.
#include "workbench/bench/bench_options.h"

#include <algorithm>
#include <charconv>

#include "workbench/base/command_line.h"
#include "workbench/base/text.h"
#include "workbench/plugin/install_tree.h"

namespace wb {
namespace {

constexpr int kLargestSize = 10'000'000;
constexpr char kDefaultSizes[] = "1000,10000,100000";

std::vector<std::string> Pieces(const std::string& list) {
  std::vector<std::string> pieces;
  for (size_t at = 0; at <= list.size();) {
    const size_t comma = std::min(list.find(',', at), list.size());
    pieces.push_back(list.substr(at, comma - at));
    at = comma + 1;
  }
  return pieces;
}

int NumberIn(const std::string& text, int least, int most, const char* what) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc() && stop == end && number >= least && number <= most) return number;
  throw UsageError("\"" + text + "\" is no " + what + ": give a number from " +
                   std::to_string(least) + " to " + std::to_string(most));
}

std::vector<int> SizesIn(const std::string& list) {
  std::vector<int> sizes;
  // The smallest assembly that every shape can be made with.
  for (const std::string& piece : Pieces(list)) {
    sizes.push_back(NumberIn(piece, 10, kLargestSize, "size"));
  }
  std::sort(sizes.begin(), sizes.end());
  sizes.erase(std::unique(sizes.begin(), sizes.end()), sizes.end());
  return sizes;
}

std::string ShapeNames() {
  std::vector<std::string> names;
  for (const BenchShape& shape : BenchShapes()) names.push_back(shape.name);
  return Join(",", names);
}

std::vector<const BenchShape*> ShapesIn(const std::string& list) {
  std::vector<const BenchShape*> shapes;
  for (const std::string& piece : Pieces(list)) {
    const BenchShape* const shape = FindBenchShape(piece);
    if (shape == nullptr) {
      throw UsageError("there is no shape \"" + piece + "\"; the shapes are " + ShapeNames());
    }
    shapes.push_back(shape);
  }
  return shapes;
}

}  // namespace

BenchOptions ParseBenchOptions(const std::vector<std::string>& args) {
  const CommandLine line(args, {"--markdown", "--strict"},
                         {"--sizes", "--shapes", "--runs", "--install"});
  if (!line.words().empty()) throw UsageError("bench takes options only; see bench --help");
  BenchOptions options;
  options.markdown = line.Has("--markdown");
  options.strict = line.Has("--strict");
  options.sizes = SizesIn(line.Has("--sizes") ? line.Value("--sizes") : kDefaultSizes);
  options.shapes = ShapesIn(line.Has("--shapes") ? line.Value("--shapes") : ShapeNames());
  if (line.Has("--runs")) options.runs = NumberIn(line.Value("--runs"), 1, 1000, "number of runs");
  options.install = InstallTree(line);
  return options;
}

std::string BenchUsage() {
  std::string text =
      "workbench bench [options]: how the plug-in's commands grow with the assembly\n"
      "  --sizes N,N,...   occurrences of each assembly (1000,10000,100000)\n"
      "  --shapes A,B,...  of the assemblies (all):\n";
  for (const BenchShape& shape : BenchShapes()) {
    text += "      " + std::string(shape.name) +
            std::string(10 - std::string(shape.name).size(), ' ') + shape.what;
    if (shape.largest > 0) text += ", at most " + std::to_string(shape.largest);
    text += "\n";
  }
  return text +
         "  --runs N          timed runs of each command (more for small assemblies)\n"
         "  --install DIR     the install tree (quillmax-5.1-C3 beside the workbench)\n"
         "  --markdown        tables for a document\n"
         "  --strict          end with code 1 when a bound is missed\n"
         "  --help            this text\n";
}

}  // namespace wb
