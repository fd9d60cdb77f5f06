// Owners of what the host hands out: freed on every path, moved but never copied. The verbs are the
// same everywhere: get() borrows, put() gives the address a host call writes to (freeing what was
// held), release() gives up ownership, reset() frees. A call that answers success with a null
// handle leaves the owner empty, so users test the owner and not the status alone.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "toolkit/array.h"
#include "toolkit/component.h"
#include "toolkit/export.h"
#include "toolkit/export_3d.h"
#include "toolkit/feature.h"
#include "toolkit/geometry.h"
#include "toolkit/selection.h"
#include "toolkit/status.h"
#include "toolkit/types.h"
#include "toolkit/ui_table.h"

namespace qm {

template <typename Handle, auto Release>
class Owner {
 public:
  Owner() = default;
  explicit Owner(Handle handle) : handle_(handle) {}
  Owner(Owner&& other) noexcept : handle_(other.release()) {}
  Owner& operator=(Owner&& other) noexcept {
    if (this != &other) reset(other.release());
    return *this;
  }
  ~Owner() { reset(); }

  Handle get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }

  Handle* put() {
    reset();
    return &handle_;
  }
  Handle release() { return std::exchange(handle_, nullptr); }
  void reset(Handle handle = nullptr) {
    const Handle old = std::exchange(handle_, handle);
    if (old != nullptr) Release(old);
  }

 private:
  Handle handle_ = nullptr;
};

namespace release {

inline void Text(wchar_t* text) {
  ProWstringFree(text);
}
inline void NarrowText(char* text) {
  ProStringFree(text);
}
inline void Selections(ProSelection* selections) {
  ProSelectionarrayFree(selections);
}
inline void Selection(ProSelection selection) {
  ProSelectionFree(&selection);
}
inline void Constraint(ProAsmcompconstraint constraint) {
  ProAsmcompconstraintFree(constraint);
}
inline void Element(ProElement element) {
  ProElementFree(&element);
}
inline void Value(ProValue value) {
  ProValueFree(value);
}
inline void Environment(ProSelectionEnv environment) {
  ProSelectionEnvFree(environment);
}
inline void Geometry(ProGeomitemdata* data) {
  ProGeomitemdataFree(&data);
}
inline void Data2d(Pro2dExportdata data) {
  Pro2dExportdataFree(data);
}
inline void PdfOptions(ProPDFOptions options) {
  ProPDFoptionsFree(options);
}
inline void ArrayTexts(wchar_t** texts) {
  ProWstringproarrayFree(texts);
}
inline void RepData(ProSimprepdata* data) {
  ProSimprepdataFree(&data);
}
inline void Brep(ProOutputBrepRepresentation brep) {
  ProOutputBrepRepresentationFree(brep);
}
template <typename T>
void Array(T* items) {
  ProArray array = items;
  ProArrayFree(&array);
}

}  // namespace release

using WideText = Owner<wchar_t*, &release::Text>;
using NarrowText = Owner<char*, &release::NarrowText>;
// An array of the host with texts that are freed with it.
using TextArray = Owner<wchar_t**, &release::ArrayTexts>;
using OwnSelection = Owner<ProSelection, &release::Selection>;
using Constraint = Owner<ProAsmcompconstraint, &release::Constraint>;
// An element that is joined to no tree yet, or the root of one.
using Element = Owner<ProElement, &release::Element>;
using ElementValue = Owner<ProValue, &release::Value>;
using SelectionEnvironment = Owner<ProSelectionEnv, &release::Environment>;
using ExportData = Owner<Pro2dExportdata, &release::Data2d>;
using PdfOptions = Owner<ProPDFOptions, &release::PdfOptions>;
using SimplifiedRepData = Owner<ProSimprepdata*, &release::RepData>;
using BrepRepresentation = Owner<ProOutputBrepRepresentation, &release::Brep>;
using GeometryData = Owner<ProGeomitemdata*, &release::Geometry>;

// Number of elements of one of the host's arrays, 0 for no array; nothing when the host does not
// tell.
inline std::optional<int> ToldArraySize(ProArray array) {
  if (array == nullptr) return 0;
  int size = -1;  // what a success that tells nothing leaves
  const bool is_told = Ok(ProArraySizeGet(array, &size)) && size >= 0;
  return is_told ? std::optional(size) : std::nullopt;
}

// The same, 0 also when the host does not tell.
inline int ArraySize(ProArray array) {
  return ToldArraySize(array).value_or(0);
}

// An expandable array of the host with elements of type T (ProPath and other texts included).
template <typename T>
class HostArray : public Owner<T*, &release::Array<T>> {
  using Base = Owner<T*, &release::Array<T>>;

 public:
  // An empty array that grows by one element at a time.
  ProError Allocate() {
    ProArray array = nullptr;
    this->reset();
    const ProError status = ProArrayAlloc(0, static_cast<int>(sizeof(T)), 1, &array);
    if (!Ok(status)) return status;
    this->reset(static_cast<T*>(array));
    return array != nullptr ? PRO_TK_NO_ERROR : PRO_TK_OUT_OF_MEMORY;
  }

  // Adds a copy of `item` at the end; the array may move.
  ProError Append(const T& item) {
    if (this->get() == nullptr) return PRO_TK_BAD_INPUTS;
    ProArray array = this->get();
    T copy = item;
    const ProError status = ProArrayObjectAdd(&array, PRO_VALUE_UNUSED, 1, &copy);
    Adopt(array);
    return status;
  }

  // An array of these items; fails when it holds fewer or more of them.
  ProError Assign(std::vector<T>& items) {
    const ProError allocated = Allocate();
    if (!Ok(allocated) || items.empty()) return allocated;
    ProArray array = this->get();
    const ProError status =
        ProArrayObjectAdd(&array, PRO_VALUE_UNUSED, static_cast<int>(items.size()), items.data());
    Adopt(array);
    if (!Ok(status)) return status;
    return size() == static_cast<int>(items.size()) ? PRO_TK_NO_ERROR : PRO_TK_OUT_OF_MEMORY;
  }

  // Asks the host each time: keep the answer when looping.
  int size() const { return ArraySize(this->get()); }
  T& operator[](int index) const { return this->get()[index]; }

 private:
  // Where the array is after it may have moved.
  void Adopt(ProArray array) {
    if (array == nullptr || array == this->get()) return;
    this->release();
    this->reset(static_cast<T*>(array));
  }
};

// Copies of the preselected items, as the selection buffer gives them.
class SelectionArray : public Owner<ProSelection*, &release::Selections> {
 public:
  int size() const { return ArraySize(get()); }
  ProSelection operator[](int index) const { return get()[index]; }
};

namespace release {

// Each constraint, and then the array.
inline void Constraints(ProAsmcompconstraint* constraints) {
  const int count = ArraySize(constraints);
  for (int i = 0; i < count; ++i) ProAsmcompconstraintFree(constraints[i]);
  Array(constraints);
}

inline void NarrowTexts(char** texts, int count) {
  ProStringarrayFree(texts, count);
}
inline void WideTexts(wchar_t** texts, int count) {
  ProWstringarrayFree(texts, count);
}

}  // namespace release

// Constraints as the host collects them.
using ConstraintArray = Owner<ProAsmcompconstraint*, &release::Constraints>;

// Texts with their count, as list-like dialog components give them.
template <typename Char, auto Release>
class TextList {
 public:
  TextList() = default;
  TextList(const TextList&) = delete;
  TextList& operator=(const TextList&) = delete;
  ~TextList() { reset(); }

  Char*** put_texts() {
    reset();
    return &texts_;
  }
  int* put_count() { return &count_; }
  void reset() {
    if (texts_ != nullptr) Release(texts_, count_);
    texts_ = nullptr;
    count_ = 0;
  }

  int size() const { return texts_ == nullptr || count_ < 0 ? 0 : count_; }
  // Never null: a missing text reads as an empty one.
  const Char* operator[](int index) const {
    static constexpr Char kNothing[1] = {};
    return texts_[index] != nullptr ? texts_[index] : kNothing;
  }

 private:
  Char** texts_ = nullptr;
  int count_ = 0;
};

using NameList = TextList<char, &release::NarrowTexts>;
using WideTextList = TextList<wchar_t, &release::WideTexts>;

}  // namespace qm
