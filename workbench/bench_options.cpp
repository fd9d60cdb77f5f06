// Reads the benchmark's command line.
#include "workbench/bench_options.h"

#include <algorithm>
#include <charconv>

#include "workbench/model_file.h"
#include "workbench/text.h"

namespace wb {
namespace {

constexpr int kLargestSize = 10'000'000;

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
  throw BenchUsageError("\"" + text + "\" is no " + what + ": give a number from " +
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
  return Join(", ", names);
}

std::vector<const BenchShape*> ShapesIn(const std::string& list) {
  std::vector<const BenchShape*> shapes;
  for (const std::string& piece : Pieces(list)) {
    const BenchShape* const shape = FindBenchShape(piece);
    if (shape == nullptr) {
      throw BenchUsageError("there is no shape \"" + piece + "\"; the shapes are " + ShapeNames());
    }
    shapes.push_back(shape);
  }
  return shapes;
}

void SetValue(BenchOptions& options, const std::string& option, const std::string& value) {
  if (option == "--sizes") {
    options.sizes = SizesIn(value);
  } else if (option == "--shapes") {
    options.shapes = ShapesIn(value);
  } else if (option == "--runs") {
    options.runs = NumberIn(value, 1, 1000, "number of runs");
  } else if (option == "--plugin") {
    options.plugin = PathFromUtf8(value);
  } else {
    throw BenchUsageError("there is no option " + option + "; see workbench bench --help");
  }
}

}  // namespace

BenchOptions ParseBenchOptions(const std::vector<std::string>& args) {
  BenchOptions options;
  for (const BenchShape& shape : BenchShapes()) options.shapes.push_back(&shape);
  for (size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--help") {
      options.help = true;
    } else if (args[i] == "--markdown") {
      options.markdown = true;
    } else if (args[i] == "--strict") {
      options.strict = true;
    } else {
      const std::string& option = args[i++];
      if (i == args.size()) throw BenchUsageError(option + " wants a value; see --help");
      SetValue(options, option, args[i]);
    }
  }
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
         "  --plugin DLL      the plug-in (quillmax-5.1-C3 beside the workbench)\n"
         "  --markdown        tables for a document\n"
         "  --strict          end with code 1 when a bound is missed\n"
         "  --help            this text\n";
}

}  // namespace wb
