// The kinds of arguments of exported functions: how each is shown in a trace, what it stands for,
// and what a fault does to it. A kind that takes two of the function's arguments shows both.
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include "workbench/host/call.h"
#include "workbench/host/loans.h"

namespace wb {

// --- Places that the call fills in.

template <typename T>
struct Out {
  T* place;
  const char* what;
  Out(T* out_place, const char* place_name) : place(out_place), what(place_name) {}

  std::string Describe() const {
    if (place == nullptr) return "null";
    if constexpr (std::is_floating_point_v<T>) {
      return "-> " + DescribeArgument(static_cast<double>(*place));
    } else if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T>) {
      return "-> " + DescribeArgument(static_cast<int>(*place));
    } else if constexpr (std::is_pointer_v<T>) {
      return "-> " + DescribeArgument(static_cast<const void*>(*place));
    } else {
      return "->";
    }
  }
  T& Look(const Call& call) const { return call.Place(place, what); }
  // Whether it is a text that is given, which none of the host's texts lacks for good.
  static constexpr bool kGivesText = std::is_same_v<T, wchar_t*> || std::is_same_v<T, char*>;
  void Empty() const {
    if (place != nullptr) std::memset(static_cast<void*>(place), 0, sizeof(T));
  }
};

// A place that the caller may leave out.
template <typename T>
struct OptionalOut : Out<T> {
  explicit OptionalOut(T* out_place) : Out<T>(out_place, "place") {}
  T* Look(const Call&) const { return this->place; }
};

// Where the body of a call writes a text that fills a buffer of the plug-in.
struct TextPlace {
  const Call& call;
  wchar_t* place;
  size_t limit;
  void operator=(const std::string& text) { call.CopyText(place, limit, text); }
};

// A text buffer of `limit` characters.
struct OutText {
  wchar_t* place;
  size_t limit;

  std::string Describe() const {
    return place == nullptr ? "null" : "-> " + DescribeArgument(place);
  }
  TextPlace Look(const Call& call) const {
    call.Place(place, "text buffer");
    return {call, place, limit};
  }
  static constexpr bool kGivesText = true;
  void Empty() const {
    if (place != nullptr) *place = L'\0';
  }
};

// --- Things that a handle or record of the plug-in stands for.

struct ModelIn {
  ProMdl handle;
  std::string Describe() const { return DescribeArgument(handle); }
  Model& Look(const Call& call) const { return call.ModelAt(handle); }
};

struct SolidIn : ModelIn {
  Model& Look(const Call& call) const { return call.SolidAt(handle); }
};

// A model that has `Content`; `what` is the kind of model wanted, "a drawing".
template <typename Content>
struct ContentIn : ModelIn {
  const char* what;
  Content& Look(const Call& call) const {
    Content* const content = call.ModelAt(handle).As<Content>();
    if (content == nullptr) call.Fail(std::string("not ") + what);
    return *content;
  }
};
inline ContentIn<DrawingContent> DrawingIn(ProDrawing handle) {
  return {{handle}, "a drawing"};
}
inline ContentIn<ManufacturingContent> ManufacturingIn(ProMfg handle) {
  return {{handle}, "a manufacturing model"};
}

// A feature and the model it is in; a body that wants only the feature takes `const Feature&`.
struct FeaturePlace {
  Model& owner;
  Feature& feature;
  operator Feature&() const { return feature; }
};

struct FeatureIn {
  const ProModelitem* item;
  std::string Describe() const { return DescribeArgument(item); }
  FeaturePlace Look(const Call& call) const {
    Model* owner = nullptr;
    Feature& feature = call.FeatureAt(item, &owner);
    return {*owner, feature};
  }
};

// A component's feature; other features are a misuse.
struct ComponentIn : FeatureIn {
  FeaturePlace Look(const Call& call) const {
    const FeaturePlace place = FeatureIn::Look(call);
    if (!place.feature.IsComponent()) {
      call.Fail("feature " + std::to_string(place.feature.id) + " is no component");
    }
    return place;
  }
};

struct SelectionIn {
  ProSelection handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  PickedItem& Look(const Call& call) const { return call.SelectionAt(handle); }
};

// A record of the plug-in's own that the call reads, and may change.
template <typename T>
struct RecordIn {
  T* record;
  const char* what;
  RecordIn(T* plugin_record, const char* record_name) : record(plugin_record), what(record_name) {}

  std::string Describe() const {
    if constexpr (std::is_same_v<T, ProModelitem>) return DescribeArgument(record);
    return DescribeArgument(static_cast<const void*>(record));
  }
  T& Look(const Call& call) const { return call.Place(record, what); }
};

// --- Texts, functions and data of the plug-in.

struct TextIn {
  const wchar_t* text;
  size_t limit;
  const char* what;
  std::string Describe() const { return DescribeArgument(text); }
  std::string Look(const Call& call) const { return call.Text(text, limit, what); }
};

// A text that may be left out; then it is empty.
struct OptionalTextIn : TextIn {
  std::string Look(const Call& call) const {
    return text == nullptr ? std::string() : TextIn::Look(call);
  }
};

struct ModelNameIn {
  const wchar_t* name;
  std::string Describe() const { return DescribeArgument(name); }
  std::string Look(const Call& call) const { return call.ModelNameText(name); }
};

struct PathIn {
  const wchar_t* path;
  const char* what;
  std::string Describe() const { return DescribeArgument(path); }
  std::filesystem::path Look(const Call& call) const {
    return PathFromUtf8(call.Text(path, PRO_PATH_SIZE, what));
  }
};

struct NarrowIn {
  const char* text;
  const char* what;
  size_t limit = kNarrowLimit;
  std::string Describe() const { return DescribeArgument(text); }
  std::string Look(const Call& call) const { return call.Narrow(text, limit, what); }
};

// A narrow name of at most 31 characters that may not be empty: of commands, menus, buttons.
struct MenuNameIn : NarrowIn {
  MenuNameIn(const char* name, const char* name_of) : NarrowIn{name, name_of, PRO_NAME_SIZE} {}
  std::string Look(const Call& call) const {
    const std::string name = NarrowIn::Look(call);
    if (name.empty()) call.Fail(std::string("empty ") + what);
    return name;
  }
};

template <typename Function>
struct CallbackIn {
  Function* function;
  const char* what;
  CallbackIn(Function* callback, const char* name) : function(callback), what(name) {}
  std::string Describe() const { return "callback"; }
  Function* Look(const Call& call) const {
    if (function == nullptr) call.Fail(std::string("null ") + what);
    return function;
  }
};

// Data of the plug-in's own that the host only hands on.
struct DataIn {
  void* data;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(data)); }
  void* Look(const Call&) const { return data; }
};

// --- What is lent.

// An array of the host's with elements of type T.
template <typename T>
struct ArrayIn {
  T* array;
  const char* what;
  ArrayIn(T* lent, const char* name) : array(lent), what(name) {}
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(array)); }
  std::span<T> Look(const Call& call) const {
    const int count = ArraySize(call, array);
    if (ArrayObjectSize(array) != static_cast<int>(sizeof(T))) {
      call.Fail(std::string("array of another element size given as ") + what);
    }
    return {array, static_cast<size_t>(count)};
  }
};

// What is given back: a fault that fails the call keeps it out of the plug-in's account.
template <typename T>
struct GivenBack {
  T* lent;
  explicit GivenBack(T* thing) : lent(thing) {}
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(lent)); }
  T* Look(const Call&) const { return lent; }
  void Forgive(Host& host) const {
    if (lent != nullptr) host.accounts.Forgive(lent);
  }
};

// The same through the place that holds it.
template <typename T>
struct PlaceGivenBack {
  T** place;
  const char* what;
  PlaceGivenBack(T** held, const char* name) : place(held), what(name) {}
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(place)); }
  T*& Look(const Call& call) const { return call.Place(place, what); }
  void Forgive(Host& host) const {
    if (place != nullptr) host.accounts.Forgive(*place);
  }
};

}  // namespace wb
