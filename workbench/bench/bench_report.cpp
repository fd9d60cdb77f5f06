// Tables and verdict of the benchmark.
#include "workbench/bench/bench_report.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>

#include "workbench/base/text.h"

namespace wb {
namespace {

std::string Number(double value, int decimals) {
  char text[64];
  std::snprintf(text, sizeof(text), "%.*f", decimals, value);
  return text;
}

using TextRow = std::vector<std::string>;

std::vector<size_t> Widths(const std::vector<TextRow>& rows) {
  std::vector<size_t> widths(rows.front().size(), 0);
  for (const TextRow& row : rows) {
    for (size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  return widths;
}

// The first `texts` columns are texts, the others numbers.
std::string Table(const std::vector<TextRow>& rows, size_t texts, bool markdown) {
  const std::vector<size_t> widths = Widths(rows);
  const std::string gap = markdown ? " | " : "  ";
  std::string table;
  for (size_t r = 0; r < rows.size(); ++r) {
    TextRow cells;
    for (size_t i = 0; i < widths.size(); ++i) {
      const std::string pad(widths[i] - rows[r][i].size(), ' ');
      cells.push_back(i < texts ? rows[r][i] + pad : pad + rows[r][i]);
    }
    const std::string line = Join(gap, cells);
    table += markdown ? "| " + line + " |\n" : line + "\n";
    if (r > 0 || !markdown) continue;
    for (size_t i = 0; i < widths.size(); ++i) table += i < texts ? "|---" : "|---:";
    table += "|\n";
  }
  return table;
}

std::string Figures(const std::vector<BenchRow>& rows, bool markdown) {
  std::vector<TextRow> table = {{"shape", "part", "occurrences", "models", "host calls",
                                 "per occurrence", "per model", "ms", "x walk", "x same work",
                                 "heap KiB", "heap bytes per occurrence"}};
  for (const BenchRow& row : rows) {
    const auto calls = static_cast<double>(row.calls);
    const auto heap = static_cast<double>(row.heap_bytes);
    const bool has_heap = row.heap_bytes > 0;
    table.push_back({row.shape->name, BenchPartName(row.part), std::to_string(row.occurrences),
                     std::to_string(row.models), std::to_string(row.calls),
                     Number(calls / row.occurrences, 3), Number(calls / row.models, 3),
                     Number(row.seconds * 1000, 2), Number(row.times_walk, 2),
                     Number(row.times_same_work, 2), has_heap ? Number(heap / 1024, 0) : "-",
                     has_heap ? Number(heap / row.occurrences, 0) : "-"});
  }
  return Table(table, 2, markdown);
}

// The rows of one part on one shape: one curve.
struct Curve {
  const BenchShape* shape;
  BenchPart part;
  std::vector<std::pair<double, double>> times;
  std::vector<std::pair<double, double>> bare_times;  // of the same work
  std::vector<std::pair<double, double>> ratios;      // against the same work
  std::vector<std::pair<long, long>> calls;

  std::string Name() const { return std::string(BenchPartName(part)) + " on " + shape->name; }
  double CallsExponent() const {
    std::vector<std::pair<double, double>> points(calls.begin(), calls.end());
    return FittedExponent(points);
  }
};

std::vector<Curve> CurvesOf(const std::vector<BenchRow>& rows) {
  std::vector<Curve> curves;
  for (const BenchRow& row : rows) {
    auto curve = std::ranges::find_if(curves, [&](const Curve& other) {
      return other.shape == row.shape && other.part == row.part;
    });
    if (curve == curves.end()) curve = curves.insert(curve, {row.shape, row.part, {}, {}, {}, {}});
    curve->times.emplace_back(row.occurrences, row.fastest);
    curve->bare_times.emplace_back(row.occurrences, row.fastest_same_work);
    curve->ratios.emplace_back(row.occurrences, row.times_same_work);
    curve->calls.emplace_back(row.occurrences, row.calls);
  }
  return curves;
}

std::string Growth(const std::vector<BenchRow>& rows, bool markdown) {
  std::vector<TextRow> table = {{"shape", "part", "exponent of time", "of the bare walk's",
                                 "of x same work", "of host calls", "calls exactly linear"}};
  for (const Curve& curve : CurvesOf(rows)) {
    table.push_back(
        {curve.shape->name, BenchPartName(curve.part), Number(FittedExponent(curve.times), 3),
         Number(FittedExponent(curve.bare_times), 3), Number(FittedExponent(curve.ratios), 3),
         Number(curve.CallsExponent(), 3), IsExactlyLinear(curve.calls) ? "yes" : "no"});
  }
  return Table(table, 2, markdown);
}

std::string Asked(const std::vector<MostAsked>& most_asked, bool markdown) {
  std::vector<TextRow> table = {{"host function", "most often of one model or component"}};
  for (const MostAsked& row : most_asked) {
    table.push_back({row.function, std::to_string(row.times)});
  }
  return Table(table, 1, markdown);
}

std::string Folders(const std::vector<FolderRow>& rows, bool markdown) {
  std::vector<TextRow> table = {
      {"command over a folder", "drawings", "host calls", "per drawing", "notes", "ms"}};
  for (const FolderRow& row : rows) {
    table.push_back({row.command, std::to_string(row.drawings), std::to_string(row.calls),
                     Number(static_cast<double>(row.calls) / row.drawings, 3),
                     std::to_string(row.notes), Number(row.seconds * 1000, 2)});
  }
  return Table(table, 1, markdown);
}

BenchBound FolderCallsAreLinear(const BenchResult& result) {
  BenchBound bound{"host calls exactly linear in the drawings of a folder", "all are", true};
  std::map<std::string, std::vector<std::pair<long, long>>> calls;
  for (const FolderRow& row : result.folders) {
    calls[row.command].emplace_back(row.drawings, row.calls);
  }
  for (const auto& [command, points] : calls) {
    if (IsExactlyLinear(points)) continue;
    bound.kept = false;
    bound.found = command + " are not";
  }
  return bound;
}

BenchBound CallsAreLinear(const BenchResult& result) {
  BenchBound bound{"host calls exactly linear in the occurrences", "all are", true};
  for (const Curve& curve : CurvesOf(result.rows)) {
    if (IsExactlyLinear(curve.calls)) continue;
    bound.kept = false;
    bound.found = curve.Name() + " are not";
  }
  return bound;
}

// The summary and the level bill of the benchmark have this many columns that name a parameter.
constexpr long kParameterColumns = 3;

BenchBound ParametersReadOnce(const BenchResult& result) {
  BenchBound bound{"QmBom reads each model's parameter once for each column", "it does", true};
  for (const BenchRow& row : result.rows) {
    if (!IsBill(row.part) || row.parameters <= kParameterColumns * row.models) continue;
    bound.kept = false;
    bound.found = std::to_string(row.parameters) + " readings of " + std::to_string(row.models) +
                  " models (" + row.shape->name + ")";
  }
  return bound;
}

bool WorksOnTable(BenchPart part) {
  return IsBill(part) || part == BenchPart::kReadTable;
}

// A bill asks for each parameter of each model and fills a cell with each answer.
constexpr long kMostCallsOfBill = 4;

BenchBound BillCalls(const BenchResult& result) {
  BenchBound bound{"QmBom at most 4 host calls for each of the bare walk's and each fact", "",
                   true};
  double worst = -1;
  for (const BenchRow& row : result.rows) {
    if (!WorksOnTable(row.part)) continue;
    const long facts = kParameterColumns * row.models;
    const double times =
        static_cast<double>(row.calls) / static_cast<double>(row.walk_calls + facts);
    if (times <= worst) continue;
    worst = times;
    bound.found = Number(worst, 2) + " at most (" + BenchPartName(row.part) + " on " +
                  row.shape->name + ", " + std::to_string(row.occurrences) + ")";
  }
  bound.kept = worst <= kMostCallsOfBill;
  return bound;
}

BenchBound ReadOnce(const BenchResult& result) {
  BenchBound bound{"QmParams asks each model for each fact once", "it does", true};
  for (const MostAsked& row : result.most_asked) {
    if (row.times <= 1) continue;
    bound.kept = false;
    bound.found = row.function + " " + std::to_string(row.times) + " times";
  }
  return bound;
}

// A curve that grows as the bare walk does shows the machine, not the plug-in.
BenchBound TimeGrows(const BenchResult& result, double most) {
  BenchBound bound{"exponent of time at most " + Number(most, 1) + ", or " + Number(most - 1, 1) +
                       " above the bare walk's",
                   "", true};
  double worst = -1;
  for (const Curve& curve : CurvesOf(result.rows)) {
    const double beyond = 1 + FittedExponent(curve.ratios);
    const double exponent = std::min(FittedExponent(curve.times), beyond);
    if (exponent <= worst) continue;
    worst = exponent;
    bound.found = Number(exponent, 3) + " at most (" + curve.Name() + ")";
  }
  bound.kept = worst <= most;
  return bound;
}

// Below this many occurrences the fixed cost of a command (fields, settings file, log) counts.
constexpr int kLargeEnough = 10000;

bool Counts(const BenchResult& result, const BenchRow& row) {
  const auto large = [](const BenchRow& other) { return other.occurrences >= kLargeEnough; };
  return large(row) || std::ranges::none_of(result.rows, large);
}

BenchBound Times(const BenchResult& result, BenchPart part, double most, const std::string& text,
                 double BenchRow::*times) {
  BenchBound bound{text, "", true};
  double worst = -1;
  for (const BenchRow& row : result.rows) {
    if (row.part != part || !Counts(result, row) || row.*times <= worst) continue;
    worst = row.*times;
    bound.found = Number(worst, 2) + " at most (" + row.shape->name + ", " +
                  std::to_string(row.occurrences) + ")";
  }
  bound.kept = worst <= most;
  return bound;
}

}  // namespace

double FittedExponent(const std::vector<std::pair<double, double>>& points) {
  double x_sum = 0, y_sum = 0, xx_sum = 0, xy_sum = 0;
  for (const auto& [size, value] : points) {
    const double x = std::log(size);
    const double y = std::log(value);
    x_sum += x;
    y_sum += y;
    xx_sum += x * x;
    xy_sum += x * y;
  }
  const auto count = static_cast<double>(points.size());
  const double spread = count * xx_sum - x_sum * x_sum;
  return spread > 0 ? (count * xy_sum - x_sum * y_sum) / spread : 0;
}

bool IsExactlyLinear(const std::vector<std::pair<long, long>>& points) {
  for (size_t i = 2; i < points.size(); ++i) {
    const long long x1 = points[1].first - points[0].first;
    const long long y1 = points[1].second - points[0].second;
    const long long x2 = points[i].first - points[0].first;
    const long long y2 = points[i].second - points[0].second;
    if (y1 * x2 != y2 * x1) return false;
  }
  return true;
}

std::vector<BenchBound> CheckBounds(const BenchResult& result) {
  return {CallsAreLinear(result),
          FolderCallsAreLinear(result),
          ReadOnce(result),
          ParametersReadOnce(result),
          BillCalls(result),
          TimeGrows(result, 1.1),
          Times(result, BenchPart::kCollection, 1.5, "collection at most 1.5 times the bare walk",
                &BenchRow::times_walk),
          Times(result, BenchPart::kAddParameter, 2,
                "QmParams at most 2 times the bare walk with the same work",
                &BenchRow::times_same_work)};
}

std::string BenchHead() {
  return R"(The plug-in's commands on assemblies made in memory, run in the workbench for real.
  occurrences   components of all levels, repeated ones each time
  collection    the part of QmShowAllComp from the allocation of its array to the first component
                it shows: the component collection alone
  QmParams Add  one press of Add for all models (AsmAndPart), settings file included
  QmBom ...     one press of QmLoadBom, for the summary (模型名称, 模型数量, 名称, 材料, 重量) or for
                all levels (层级2 and these), and one of QmExportBom with the summary in the table,
                up to the start of the spreadsheet program: the writer's preparation
  QmExStp       every component's model as a STEP file, by a writer that writes nothing
  QmRelations, SetUnit   one press of AddRels or ApplyBt for all models; BatchColor and SetMat are
                whole commands
  QmIsolate     with all components of the top level preselected, QmSimRep with the first one;
                QmRemoveCons with one constraint a component, SetBendTable with every tenth part
                of sheet metal: whole commands, their dialogs included
  over a folder one run over so many drawings of two sheets and three views; each time the user is
                told how far it is counts as a note. QmExport list, QmBackup, QmExIgs, QmExSat and
                QmRename: on an assembly of so many parts that have such drawings; the list with the sheets
                and parameters of each
  x walk        against a bare walk in the workbench: a plain visitor that makes the same host calls
                for each occurrence (flags, type, status, visibility, append, model, model type),
                level by level, and keeps nothing else
  x same work   against a bare walk that also shows, reverses or creates as the command does; for
                QmBom without the time inside the table's own functions, against the bare walk
  heap          the most that the plug-in had allocated at one time, counted exactly; the host's own
                memory, its arrays for instance, is not in it
Times are medians of several rounds; each round times the bare walks beside the commands. The bare
walk enters a repeated subassembly each time, so a figure below 1 is possible. Exponents are fitted
to the fastest rounds; where the bare walk's own exponent is above 1, larger assemblies have left
the processor's cache, or other programs have taken their share of the longer runs. Bounds on ratios
are checked from 10,000 occurrences up, or on all assemblies where none is so large: there the
fixed cost of fields, settings file and log decides, and they are missed. Measure on a machine that does nothing else.
)";
}

std::string BenchTables(const BenchResult& result, bool markdown) {
  return Figures(result.rows, markdown) + "\n" + Growth(result.rows, markdown) + "\n" +
         Asked(result.most_asked, markdown) + "\n" + Folders(result.folders, markdown);
}

}  // namespace wb
