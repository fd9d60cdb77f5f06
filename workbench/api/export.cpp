// Host functions that write files of other programs: DXF files of drawings, which the companion
// makes of their sheets, STEP of models, and texts that stand for the files of other formats. PDF
// has a file of its own.
#include <nlohmann/json.hpp>

#include "workbench/api/export_file.h"
#include "workbench/base/text.h"
#include "workbench/host/arguments.h"
#include "workbench/sheet/sheet_svg.h"
#include "workbench/step/write/step_writer.h"

namespace wb {
namespace {

using Json = nlohmann::json;

constexpr const char* kDwgOption = "dwg_export_format";

struct Data2d {
  std::optional<Pro2dSheetoption> sheets{};
  int model_space_sheet = 0;  // 0: nobody said
};

using Data2dIn = LentIn<Data2d, HandleKind::kExportData, Pro2dExportdata>;

// Null: nothing was said.
struct OptionalData2dIn : Data2dIn {
  const Data2d* Look(const Call& call) const {
    return handle == nullptr ? nullptr : &Data2dIn::Look(call);
  }
};

// The sheet that a 2D file shows; 0: there is no such sheet.
int ShownSheet(const DrawingContent& drawing, const Data2d* data) {
  if (data == nullptr) return drawing.current_sheet;
  if (data->sheets == PRO2DEXPORT_CURRENT_TO_MODEL_SPACE) return drawing.current_sheet;
  if (data->sheets != PRO2DEXPORT_SELECTED) throw NotModelled{"other sheets than a chosen one"};
  return FindSheet(drawing, data->model_space_sheet) == nullptr ? 0 : data->model_space_sheet;
}

std::string SheetText(int sheet, const Model& drawing) {
  return "sheet " + std::to_string(sheet) + " of " + drawing.id.Text();
}

std::string Asked2d(const Call& call, int type, const Data2d* data) {
  std::string text = std::string(call.function) + ", type " + std::to_string(type);
  if (data == nullptr) {
    text += ", no export data";
  } else {
    text += ", sheet option " + std::to_string(*data->sheets) + ", model-space sheet " +
            std::to_string(data->model_space_sheet);
  }
  const auto version = call.host.options.find(kDwgOption);
  const bool has_version = version != call.host.options.end() && !version->second.empty();
  return text + ", " + kDwgOption + " " + (has_version ? version->second.front() : "not set") + ".";
}

Companion::Answer MakeDxf(const Model& model, const DrawingContent& drawing, int sheet) {
  const std::vector<SheetPicture> sheets = PictureOf(drawing);
  const Page page = DrawPage(sheets[static_cast<size_t>(sheet - 1)]);
  const Json question = {
      {"want", "dxf"},
      {"svg", page.svg},
      {"width", page.width},
      {"height", page.height},
      {"properties", {{"Drawing", model.id.Text()}, {"Sheet", std::to_string(sheet)}}}};
  return TheCompanion().Ask(question.dump());
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError Pro2dExportdataAlloc(Pro2dExportdata* data) {
  return Crossing(__func__, Out(data, "data place"))
      .Run([](const Call& call, Pro2dExportdata& place) {
        Lend<Data2d>(call, place, HandleKind::kExportData, Resource::kExportData);
      });
}

ProError Pro2dExportdataFree(Pro2dExportdata data) {
  return Crossing(__func__, GivenBack(data)).Run([](const Call& call, Pro2dExportdata lent) {
    TakeBack<Data2d>(call, lent, HandleKind::kExportData, Resource::kExportData);
  });
}

ProError Pro2dExportdataSheetoptionSet(Pro2dExportdata data, Pro2dSheetoption option) {
  return Crossing(__func__, Data2dIn{data}, option)
      .Run([](const Call& call, Data2d& held, Pro2dSheetoption wanted) {
        const bool known =
            wanted >= PRO2DEXPORT_CURRENT_TO_MODEL_SPACE && wanted <= PRO2DEXPORT_SELECTED;
        if (!known) call.Fail("sheet option " + std::to_string(static_cast<int>(wanted)));
        held.sheets = wanted;
      });
}

ProError Pro2dExportdataModelspacesheetSet(Pro2dExportdata data, int sheet) {
  return Crossing(__func__, Data2dIn{data}, sheet)
      .Run([](const Call& call, Data2d& held, int wanted) {
        if (wanted < kFirstSheet) call.Fail("sheet " + std::to_string(wanted));
        held.model_space_sheet = wanted;
      });
}

ProError Pro2dExport(int type, ProPath file, ProMdl drawing, Pro2dExportdata data) {
  return Crossing(__func__, type, PathIn{file, "file"}, DrawingIn(drawing),
                  OptionalData2dIn{{data}})
      .Run([&](const Call& call, int kind, const std::filesystem::path& path,
               const DrawingContent& from, const Data2d* held) {
        const bool is_dxf = kind == PRO_DXF_FILE;
        if (!is_dxf && kind != PRO_DWG_FILE) {
          throw NotModelled{"files of type " + std::to_string(kind)};
        }
        if (held != nullptr && !held->sheets) {
          // The plug-in cannot know that its setting was struck.
          if (call.host.faults.struck() > 0) return PRO_TK_BAD_INPUTS;
          call.Fail("export data without a sheet option");
        }
        const Model& model = call.ModelAt(drawing);
        const bool is_shown = call.host.session.FindWindowOf(model) != nullptr;
        const bool must_be_shown = call.host.habits.undisplayed_drawing_is_not_exported;
        if (must_be_shown && !is_shown) return PRO_TK_NOT_DISPLAYED;
        const int sheet = ShownSheet(from, held);
        if (sheet == 0) return PRO_TK_BAD_INPUTS;
        ExportJob job = {FileFormat::kDwg, ".dwg", "DWG", SheetText(sheet, model),
                         Asked2d(call, kind, held)};
        if (is_dxf) {
          job.format = FileFormat::kDxf;
          job.extension = ".dxf";
          job.word = "DXF";
          job.make = [&] { return MakeDxf(model, from, sheet); };
        }
        return WriteExport(call, model, path, job);
      });
}

ProError ProOutputFileWrite(ProMdl model, int type, ProPath file, ProAppData argument_1,
                            ProAppData argument_2, ProAppData argument_3, ProAppData argument_4) {
  return Crossing(__func__, ModelIn{model}, type, PathIn{file, "file"}, DataIn{argument_1},
                  DataIn{argument_2}, DataIn{argument_3}, DataIn{argument_4})
      .Run([](const Call& call, const Model& from, int kind, const std::filesystem::path& path,
              const void* a, const void* b, const void* c, const void* d) {
        const bool is_step = kind == PRO_STEP_FILE;
        if (!is_step && kind != PRO_IGES_3D_FILE) {
          throw NotModelled{"files of type " + std::to_string(kind)};
        }
        if (a != nullptr || b != nullptr || c != nullptr || d != nullptr) {
          throw NotModelled{std::string("further arguments of ") + call.function};
        }
        if (from.As<SolidContent>() == nullptr) return PRO_TK_INVALID_TYPE;
        const std::string asked = std::string(call.function) + ", type " + std::to_string(kind) +
                                  ", no further arguments.";
        ExportJob step = {FileFormat::kStep, ".stp", "STEP", from.id.Text(), asked};
        step.make = [&] {
          return Companion::Answer{StepTextOf(from, PathToUtf8(path.filename())), ""};
        };
        step.by_companion = false;
        const ExportJob iges = {FileFormat::kIges, ".igs", "IGES", from.id.Text(), asked};
        return WriteExport(call, from, path, is_step ? step : iges);
      });
}
