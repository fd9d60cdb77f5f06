// Host functions of family tables: instances, their generics, columns and cells.
#include "workbench/api/parameter.h"
#include "workbench/host/arguments.h"

namespace wb {

namespace {

// What stands in the records of this family, which the plug-in does not know: a mark that tells
// them apart, the generic and a name.
struct FamilyRecord {
  uint64_t mark = 0;
  ProMdl generic = nullptr;
  wchar_t name[PRO_NAME_SIZE] = {};
};
constexpr uint64_t kTableMark = 0x7461626C65;
constexpr uint64_t kColumnMark = 0x636F6C756D6E;
constexpr uint64_t kInstanceMark = 0x696E7374;

template <typename Record>
void FillFamilyRecord(const Call& call, Record& place, const FamilyRecord& family,
                      const std::string& name) {
  static_assert(sizeof(FamilyRecord) <= sizeof(Record));
  FamilyRecord filled = family;
  if (!name.empty()) call.CopyText(filled.name, PRO_NAME_SIZE, name);
  std::memcpy(&place, &filled, sizeof(filled));
}

// A record that a call of this family has filled.
struct FamilyPlace {
  Model& generic;
  std::string name;
  FamilyRecord record;
};

template <typename Record>
struct FamilyIn : RecordIn<Record> {
  uint64_t mark;
  FamilyIn(Record* record, uint64_t wanted, const char* what)
      : RecordIn<Record>(record, what), mark(wanted) {}
  FamilyPlace Look(const Call& call) const {
    FamilyRecord record;
    std::memcpy(&record, &RecordIn<Record>::Look(call), sizeof(record));
    if (record.mark != mark) call.Fail(std::string(this->what) + " that no call has filled");
    return {call.SolidAt(record.generic), FromWide(record.name), record};
  }
};

using FamilyTableIn = FamilyIn<ProFamtable>;
using FamilyColumnIn = FamilyIn<ProFamtableItem>;
using FamilyInstanceIn = FamilyIn<ProFaminstance>;

Model* GenericOf(Model& model) {
  SolidContent* const solid = model.As<SolidContent>();
  return solid != nullptr && solid->generic ? solid->generic->model : nullptr;
}

// The instance's row, of a table that has the column; null otherwise.
FamilyInstance* RowWithColumn(const FamilyPlace& instance, const FamilyPlace& column) {
  SolidContent& solid = instance.generic.solid();
  if (solid.family_columns.Find(FoldCase(column.name)) == nullptr) return nullptr;
  return solid.family_instances.Find(FoldCase(instance.name));
}

void CheckSameGeneric(const Call& call, const FamilyPlace& a, const FamilyPlace& b) {
  if (&a.generic != &b.generic) call.Fail("a column of another family");
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProFaminstanceGenericGet(ProMdl instance, ProBoolean immediate, ProMdl* generic) {
  return Crossing(__func__, ModelIn{instance}, immediate, Out(generic, "generic place"))
      .Run([](Model& from, ProBoolean right_above, ProMdl& place) {
        Model* above = GenericOf(from);
        if (above == nullptr) return PRO_TK_E_NOT_FOUND;
        while (right_above == PRO_B_FALSE && GenericOf(*above) != nullptr)
          above = GenericOf(*above);
        place = above->handle;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProFamtableInit(ProMdl generic, ProFamtable* table) {
  return Crossing(__func__, SolidIn{{generic}}, Out(table, "table place"))
      .Run([](const Call& call, const Model& of, ProFamtable& place) {
        FillFamilyRecord(call, place, {kTableMark, of.handle, {}}, "");
      });
}

ProError ProFaminstanceInit(ProName name, ProFamtable* table, ProFaminstance* instance) {
  return Crossing(__func__, ModelNameIn{name}, FamilyTableIn(table, kTableMark, "family table"),
                  Out(instance, "instance place"))
      .Run([](const Call& call, const std::string& wanted, const FamilyPlace& of,
              ProFaminstance& place) {
        FillFamilyRecord(call, place, {kInstanceMark, of.generic.handle, {}}, wanted);
      });
}

ProError ProParameterToFamtableItem(ProParameter* parameter, ProFamtableItem* item) {
  return Crossing(__func__, RecordIn(parameter, "parameter"), Out(item, "item place"))
      .Run([](const Call& call, const ProParameter& from, ProFamtableItem& place) {
        Model* model = nullptr;
        const std::string name = ParameterNameAt(call, from, &model);
        if (model->FindParameter(name) == nullptr) return PRO_TK_E_NOT_FOUND;
        FillFamilyRecord(call, place, {kColumnMark, model->handle, {}}, name);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProFamtableItemAdd(ProFamtable* table, ProFamtableItem* item) {
  return Crossing(__func__, FamilyTableIn(table, kTableMark, "family table"),
                  FamilyColumnIn(item, kColumnMark, "column"))
      .Run([](const Call& call, const FamilyPlace& to, const FamilyPlace& column) {
        CheckSameGeneric(call, to, column);
        ItemList<FamilyColumn>& columns = to.generic.solid().family_columns;
        if (columns.Find(FoldCase(column.name)) != nullptr) return PRO_TK_E_FOUND;
        columns.Add({column.name});
        to.generic.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProFaminstanceValueGet(ProFaminstance* instance, ProFamtableItem* item,
                                ProParamvalue* value) {
  return Crossing(__func__, FamilyInstanceIn(instance, kInstanceMark, "instance"),
                  FamilyColumnIn(item, kColumnMark, "column"), Out(value, "value place"))
      .Run([](const Call& call, const FamilyPlace& of, const FamilyPlace& column,
              ProParamvalue& place) {
        CheckSameGeneric(call, of, column);
        const FamilyInstance* const row = RowWithColumn(of, column);
        if (row == nullptr) return PRO_TK_E_NOT_FOUND;
        const Parameter* held = row->cells.Find(FoldCase(column.name));
        // An empty cell has the generic's value.
        if (held == nullptr) held = of.generic.FindParameter(column.name);
        if (held == nullptr) return PRO_TK_E_NOT_FOUND;
        FillParameterValue(call, held->value, place);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProFaminstanceValueSet(ProFaminstance* instance, ProFamtableItem* item,
                                ProParamvalue* value) {
  return Crossing(__func__, FamilyInstanceIn(instance, kInstanceMark, "instance"),
                  FamilyColumnIn(item, kColumnMark, "column"), RecordIn(value, "value"))
      .Run([](const Call& call, const FamilyPlace& of, const FamilyPlace& column,
              const ProParamvalue& wanted) {
        CheckSameGeneric(call, of, column);
        FamilyInstance* const row = RowWithColumn(of, column);
        const Parameter* const general = of.generic.FindParameter(column.name);
        if (row == nullptr || general == nullptr) return PRO_TK_E_NOT_FOUND;
        const ParameterValue given = ParameterValueAt(call, wanted);
        if (given.index() != general->value.index()) return PRO_TK_INVALID_TYPE;
        if (Parameter* const cell = row->cells.Find(FoldCase(column.name))) {
          cell->value = given;
        } else {
          row->cells.Add({column.name, given});
        }
        of.generic.modified = true;
        return PRO_TK_NO_ERROR;
      });
}
