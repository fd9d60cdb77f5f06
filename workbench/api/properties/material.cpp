// Host functions for materials, bend tables and regeneration.
#include <cstdlib>

#include "workbench/base/utf8_text.h"
#include "workbench/host/arguments.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

struct PartIn : ModelIn {
  Model& Look(const Call& call) const {
    Model& model = call.ModelAt(handle);
    if (model.id.kind != ModelKind::kPart) call.Fail("not a part");
    return model;
  }
};

struct TableNameIn : TextIn {
  TableNameIn(const wchar_t* name, const char* name_of) : TextIn{name, PRO_NAME_SIZE, name_of} {}
};

// The file, or else its highest version, "q235.mtl.2". None: empty.
fs::path NewestOf(const fs::path& file) {
  if (fs::is_regular_file(file)) return file;
  const std::string beginning = PathToUtf8(file.filename()) + ".";
  fs::path newest;
  int highest = 0;
  std::error_code error;
  for (const auto& item : fs::directory_iterator(file.parent_path(), error)) {
    const std::string name = PathToUtf8(item.path().filename());
    if (!name.starts_with(beginning)) continue;
    const int version = std::atoi(name.c_str() + beginning.size());
    if (version <= highest) continue;
    highest = version;
    newest = item.path();
  }
  return newest;
}

// The file of this name in the first folder that has it: the working directory, or one of those
// that the option names. None: empty.
fs::path FindNamed(Host& host, const std::string& name, const char* option,
                   std::initializer_list<const char*> extensions) {
  std::vector<fs::path> folders = {host.session.working_directory()};
  const auto found = host.options.find(option);
  if (found != host.options.end()) {
    for (const std::string& folder : found->second) folders.push_back(PathFromUtf8(folder));
  }
  for (const fs::path& folder : folders) {
    for (const char* const extension : extensions) {
      const fs::path file = NewestOf(folder / PathFromUtf8(name + extension));
      if (!file.empty()) return file;
    }
  }
  return {};
}

std::string FirstLine(const fs::path& file) {
  const std::string text(WithoutBom(ReadFileBytes(file).value_or("")));
  return text.substr(0, text.find_first_of("\r\n"));
}

struct MaterialPlace {
  Model& part;
  std::string name;
};
struct MaterialIn : RecordIn<ProMaterial> {
  explicit MaterialIn(ProMaterial* material) : RecordIn(material, "material") {}
  MaterialPlace Look(const Call& call) const {
    const ProMaterial& material = RecordIn::Look(call);
    return {PartIn{{material.part}}.Look(call),
            call.Text(material.matl_name, PRO_NAME_SIZE, "material's name")};
  }
};

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProMaterialfileRead(ProSolid part, ProName name) {
  return Crossing(__func__, PartIn{{part}}, TableNameIn(name, "material"))
      .Run([](const Call& call, Model& to, const std::string& wanted) {
        const auto file = FindNamed(call.host, wanted, "pro_material_dir", {".mtl", ".mat"});
        if (file.empty()) return PRO_TK_E_NOT_FOUND;
        ItemList<Material>& held = to.solid().materials;
        if (held.Find(FoldCase(wanted)) != nullptr) return PRO_TK_E_FOUND;
        held.Add({wanted, FirstLine(file)});
        to.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProMaterialCurrentSet(ProMaterial* material) {
  return Crossing(__func__, MaterialIn(material)).Run([](const MaterialPlace& wanted) {
    const Material* const held = wanted.part.solid().materials.Find(FoldCase(wanted.name));
    if (held == nullptr) return PRO_TK_E_NOT_FOUND;
    wanted.part.solid().material = held->name;
    wanted.part.modified = true;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProSmtPartBendtableApply(ProPart part, ProName table, ProBoolean from_file) {
  return Crossing(__func__, PartIn{{part}}, TableNameIn(table, "bend table"), from_file)
      .Run([](const Call& call, Model& to, const std::string& wanted, ProBoolean is_file) {
        if (is_file != PRO_B_TRUE) throw NotModelled{"bend tables of other parts"};
        if (!to.solid().sheet_metal) return PRO_TK_INVALID_TYPE;
        const auto file = FindNamed(call.host, wanted, "pro_sheet_met_dir", {".bnd"});
        if (file.empty()) return PRO_TK_E_NOT_FOUND;
        to.solid().bend_table = wanted;
        to.solid().bend_table_text = FirstLine(file);
        to.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSolidRegenerate(ProSolid solid, int flags) {
  return Crossing(__func__, SolidIn{{solid}}, flags)
      .Run([](const Call& call, const Model& regenerated, int options) {
        if (options != kPlainRegeneration) throw NotModelled{"regeneration with options"};
        call.host.events.Add(Regeneration{regenerated.id.Text()});
      });
}
