// Host functions of family tables: instances, their generics, columns and cells.
#include "workbench/api/assembly/opaque_record.h"
#include "workbench/api/parameter.h"
#include "workbench/host/arguments.h"

namespace wb {

namespace {

// What stands in the records of this family: the generic, and the name of a column or an instance.
template <uint64_t Mark>
struct FamilyRecord {
  static constexpr uint64_t kMark = Mark;
  uint64_t mark = Mark;
  ProMdl generic = nullptr;
  wchar_t name[PRO_NAME_SIZE] = {};
};
using TableContent = FamilyRecord<1>;
using ColumnContent = FamilyRecord<2>;
using InstanceContent = FamilyRecord<3>;

template <typename Content>
Content FamilyContent(const Call& call, const Model& generic, const std::string& name) {
  Content content;
  content.generic = generic.handle;
  call.CopyText(content.name, PRO_NAME_SIZE, name);
  return content;
}

struct FamilyPlace {
  Model& generic;
  std::string name;
};

template <typename Content, typename Record>
struct FamilyIn : OpaqueIn<Content, Record> {
  FamilyPlace Look(const Call& call) const {
    const Content content = OpaqueIn<Content, Record>::Look(call);
    return {call.SolidAt(content.generic), FromWide(content.name)};
  }
};
FamilyIn<TableContent, ProFamtable> FamilyTableIn(const ProFamtable* table) {
  return {{table, "family table"}};
}
FamilyIn<ColumnContent, ProFamtableItem> ColumnIn(const ProFamtableItem* item) {
  return {{item, "column"}};
}
FamilyIn<InstanceContent, ProFaminstance> InstanceIn(const ProFaminstance* instance) {
  return {{instance, "instance"}};
}

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
        FillOpaque(place, FamilyContent<TableContent>(call, of, ""));
      });
}

ProError ProFaminstanceInit(ProName name, ProFamtable* table, ProFaminstance* instance) {
  return Crossing(__func__, ModelNameIn{name}, FamilyTableIn(table),
                  Out(instance, "instance place"))
      .Run([](const Call& call, const std::string& wanted, const FamilyPlace& of,
              ProFaminstance& place) {
        FillOpaque(place, FamilyContent<InstanceContent>(call, of.generic, wanted));
      });
}

ProError ProParameterToFamtableItem(ProParameter* parameter, ProFamtableItem* item) {
  return Crossing(__func__, RecordIn(parameter, "parameter"), Out(item, "item place"))
      .Run([](const Call& call, const ProParameter& from, ProFamtableItem& place) {
        Model* model = nullptr;
        const std::string name = ParameterNameAt(call, from, &model);
        if (model->FindParameter(name) == nullptr) return PRO_TK_E_NOT_FOUND;
        FillOpaque(place, FamilyContent<ColumnContent>(call, *model, name));
        return PRO_TK_NO_ERROR;
      });
}

ProError ProFamtableItemAdd(ProFamtable* table, ProFamtableItem* item) {
  return Crossing(__func__, FamilyTableIn(table), ColumnIn(item))
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
  return Crossing(__func__, InstanceIn(instance), ColumnIn(item), Out(value, "value place"))
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
  return Crossing(__func__, InstanceIn(instance), ColumnIn(item), RecordIn(value, "value"))
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
