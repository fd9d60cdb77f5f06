// Host functions of the parameter family.
#include "workbench/api/parameter.h"

#include <cstring>

#include "workbench/host/arguments.h"

namespace wb {
namespace {

// Characters of the host's relation language, which no parameter name may hold.
constexpr std::string_view kForbiddenInNames = " \t+-*/^=<>!&|~()[]{},;:?@#$%'\"\\.";

bool IsParameterName(const std::string& name) {
  return !name.empty() && name.find_first_of(kForbiddenInNames) == std::string::npos;
}

ParameterValue ValueArgument(const Call& call, const ProParamvalue& value) {
  switch (value.type) {
    case PRO_PARAM_DOUBLE:
      return value.value.d_val;
    case PRO_PARAM_STRING:
      return call.Text(value.value.s_val, PRO_LINE_SIZE, "parameter text");
    case PRO_PARAM_INTEGER:
      return value.value.i_val;
    case PRO_PARAM_BOOLEAN:
      if (value.value.l_val != 0 && value.value.l_val != 1) call.Fail("yes/no value not 0 or 1");
      return value.value.l_val == 1;
    default:
      call.Fail("value type " + std::to_string(static_cast<int>(value.type)));
  }
}

void FillValue(const Call& call, const ParameterValue& held, ProParamvalue& value) {
  value = {};
  if (const auto* real = std::get_if<double>(&held)) {
    value.type = PRO_PARAM_DOUBLE;
    value.value.d_val = *real;
  } else if (const auto* text = std::get_if<std::string>(&held)) {
    value.type = PRO_PARAM_STRING;
    call.CopyText(value.value.s_val, PRO_LINE_SIZE, *text);
  } else if (const auto* whole = std::get_if<int>(&held)) {
    value.type = PRO_PARAM_INTEGER;
    value.value.i_val = *whole;
  } else {
    value.type = PRO_PARAM_BOOLEAN;
    value.value.l_val = std::get<bool>(held) ? 1 : 0;
  }
}

// Parameters are modelled on models, not on features or other items.
Model& OwnerAt(const Call& call, const ProModelitem* owner) {
  if (owner == nullptr) call.Fail("null owner");
  Model& model = call.ModelAt(owner->owner);
  if (static_cast<int>(owner->type) != static_cast<int>(model.id.kind)) {
    throw NotModelled{"parameters of items inside a model"};
  }
  return model;
}

struct OwnerIn {
  const ProModelitem* owner;
  std::string Describe() const { return DescribeArgument(owner); }
  Model& Look(const Call& call) const { return OwnerAt(call, owner); }
};

struct ParameterNameIn : TextIn {
  explicit ParameterNameIn(const wchar_t* name) : TextIn{name, PRO_NAME_SIZE, "parameter name"} {}
};

std::string DescribeValue(const ProParamvalue& value) {
  switch (value.type) {
    case PRO_PARAM_DOUBLE:
      return "real " + DescribeArgument(value.value.d_val);
    case PRO_PARAM_STRING:
      return "string " + DescribeArgument(value.value.s_val);
    case PRO_PARAM_INTEGER:
      return "integer " + DescribeArgument(value.value.i_val);
    case PRO_PARAM_BOOLEAN:
      return "yes_no " + DescribeArgument(int{value.value.l_val});
    default:
      return "value of type " + DescribeArgument(static_cast<int>(value.type));
  }
}

struct ValueOut : Out<ProParamvalue> {
  explicit ValueOut(ProParamvalue* value_place) : Out(value_place, "value place") {}
  std::string Describe() const { return place == nullptr ? "null" : "-> " + DescribeValue(*place); }
};

struct ValueIn {
  const ProParamvalue* value;
  std::string Describe() const { return value == nullptr ? "null" : DescribeValue(*value); }
  ParameterValue Look(const Call& call) const {
    return ValueArgument(call, call.Place(value, "value"));
  }
};

struct HeldParameter {
  Model& model;
  Parameter* parameter;  // null: gone since the record was made
};

// The name in a record, which stands in its reserve in a host whose record is longer than ours.
wchar_t* NameIn(const Call& call, ProParameter& record) {
  static_assert(sizeof(record.reserve) >= sizeof(record.id));
  return call.host.habits.parameter_record_has_unknown_order
             ? reinterpret_cast<wchar_t*>(record.reserve)
             : record.id;
}

// The reserve behind a record is not the host's: a plug-in that was built without one has something
// else there.
size_t SizeOfRecord(const Habits& habits) {
  return habits.parameter_record_has_unknown_order ? sizeof(ProParameter)
                                                   : offsetof(ProParameter, reserve);
}

struct ParameterIn {
  const ProParameter* record;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(record)); }
  HeldParameter Look(const Call& call) const {
    if (record == nullptr) call.Fail("null parameter");
    Model& model = OwnerAt(call, &record->owner.who.item);
    ProParameter copy = {};
    std::memcpy(&copy, record, SizeOfRecord(call.host.habits));
    const wchar_t* const name = NameIn(call, copy);
    return {model, model.FindParameter(call.Text(name, PRO_NAME_SIZE, "parameter name"))};
  }
};

struct ParameterOut : Out<ProParameter> {
  explicit ParameterOut(ProParameter* parameter) : Out(parameter, "parameter place") {}
  void Empty() const {
    if (place != nullptr) std::memset(place, 0, SizeOfRecord(TheHost().habits));
  }
};

void FillRecord(const Call& call, const ProModelitem& owner, const std::string& name,
                ProParameter& place) {
  ProParameter record = {};
  record.type = PRO_TYPE_UNUSED;
  call.CopyText(NameIn(call, record), PRO_NAME_SIZE, name);
  record.owner.type = PRO_PARAM_OWNER_ITEM;
  record.owner.who.item = owner;
  std::memcpy(&place, &record, SizeOfRecord(call.host.habits));
}

}  // namespace

ParameterValue ParameterValueAt(const Call& call, const ProParamvalue& value) {
  return ValueArgument(call, value);
}

void FillParameterValue(const Call& call, const ParameterValue& held, ProParamvalue& value) {
  FillValue(call, held, value);
}

std::string ParameterNameAt(const Call& call, const ProParameter& record, Model** model) {
  *model = &OwnerAt(call, &record.owner.who.item);
  ProParameter copy = record;
  return call.Text(NameIn(call, copy), PRO_NAME_SIZE, "parameter name");
}

}  // namespace wb

using namespace wb;

ProError ProParameterCreate(ProModelitem* owner, ProName name, ProParamvalue* value,
                            ProParameter* parameter) {
  return Crossing(__func__, OwnerIn{owner}, ParameterNameIn(name), ValueIn{value},
                  ParameterOut(parameter))
      .Run([&](const Call& call, Model& model, const std::string& text, const ParameterValue& held,
               ProParameter& place) {
        if (!IsParameterName(text)) return PRO_TK_INVALID_NAME;
        if (model.FindParameter(text) != nullptr) return PRO_TK_E_FOUND;
        FillRecord(call, *owner, text, place);
        model.SetParameter(text, held);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProParameterInit(ProModelitem* owner, ProName name, ProParameter* parameter) {
  return Crossing(__func__, OwnerIn{owner}, ParameterNameIn(name), ParameterOut(parameter))
      .Run([&](const Call& call, Model& model, const std::string& text, ProParameter& place) {
        const Parameter* const held = model.FindParameter(text);
        if (held == nullptr) return PRO_TK_E_NOT_FOUND;
        FillRecord(call, *owner, held->name, place);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProParameterValueGet(ProParameter* parameter, ProParamvalue* value) {
  return Crossing(__func__, ParameterIn{parameter}, ValueOut(value))
      .Run([](const Call& call, const HeldParameter& held, ProParamvalue& place) {
        if (held.parameter == nullptr) return PRO_TK_E_NOT_FOUND;
        FillValue(call, held.parameter->value, place);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProParameterValueSet(ProParameter* parameter, ProParamvalue* value) {
  return Crossing(__func__, ParameterIn{parameter}, ValueIn{value})
      .Run([](const HeldParameter& held, const ParameterValue& wanted) {
        if (held.parameter == nullptr) return PRO_TK_E_NOT_FOUND;
        if (held.parameter->value.index() != wanted.index()) return PRO_TK_INVALID_TYPE;
        held.model.SetParameter(held.parameter->name, wanted);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProParameterDelete(ProParameter* parameter) {
  return Crossing(__func__, ParameterIn{parameter}).Run([](const HeldParameter& held) {
    if (held.parameter == nullptr) return PRO_TK_E_NOT_FOUND;
    held.model.DeleteParameter(std::string(held.parameter->name));
    return PRO_TK_NO_ERROR;
  });
}
