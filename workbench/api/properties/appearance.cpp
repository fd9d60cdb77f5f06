// Host functions for appearances of models and of their surfaces.
#include <cmath>

#include "workbench/host/arguments.h"

namespace wb {
namespace {

// A model or a surface of one, by its item.
struct AppearancePlace {
  Model& model;
  std::optional<Appearance>& appearance;
};

struct LookIn : RecordIn<ProModelitem> {
  explicit LookIn(ProModelitem* item) : RecordIn(item, "item") {}
  AppearancePlace Look(const Call& call) const {
    const ProModelitem& item = RecordIn::Look(call);
    Model& model = call.SolidAt(item.owner);
    if (static_cast<int>(item.type) == static_cast<int>(model.id.kind)) {
      return {model, model.solid().appearance};
    }
    if (item.type != PRO_SURFACE) {
      throw NotModelled{"the appearance of an item of type " +
                        std::to_string(static_cast<int>(item.type))};
    }
    Surface* const surface = model.solid().surfaces.Find(item.id);
    if (surface == nullptr) {
      call.Fail(model.id.Text() + " has no surface " + std::to_string(item.id));
    }
    return {model, surface->appearance};
  }
};

struct NumberRow {
  double ProSurfaceAppearanceProps::*field;
  double Appearance::*fact;
};
constexpr NumberRow kNumbers[] = {
    {&ProSurfaceAppearanceProps::ambient, &Appearance::ambient},
    {&ProSurfaceAppearanceProps::diffuse, &Appearance::diffuse},
    {&ProSurfaceAppearanceProps::highlite, &Appearance::highlight},
    {&ProSurfaceAppearanceProps::shininess, &Appearance::shininess},
    {&ProSurfaceAppearanceProps::transparency, &Appearance::transparency},
};

// What an appearance with a finish holds beside its numbers and its name: a caller that writes back
// what it has read keeps all of it.
struct TextRow {
  char* ProSurfaceAppearanceProps::*field;
  const char* text;
};
constexpr TextRow kTexts[] = {
    {&ProSurfaceAppearanceProps::label, "finish label"},
    {&ProSurfaceAppearanceProps::description, "finish description"},
    {&ProSurfaceAppearanceProps::keywords, "finish keywords"},
};

char ReserveAt(int finish, size_t place) {
  return finish == 0 ? '\0' : static_cast<char>(static_cast<size_t>(finish) + place);
}

void FillFinish(int finish, ProSurfaceAppearanceProps& to) {
  for (size_t i = 0; i < sizeof(to.reserve); ++i) to.reserve[i] = ReserveAt(finish, i);
  std::memcpy(to.reserve, &finish, sizeof(finish));
  // The record's type has no const; nobody may write there all the same.
  for (const TextRow& row : kTexts) {
    to.*row.field = finish == 0 ? nullptr : const_cast<char*>(row.text);
  }
}

int ReadFinish(const Call& call, const ProSurfaceAppearanceProps& from) {
  int finish = 0;
  std::memcpy(&finish, from.reserve, sizeof(finish));
  bool is_whole = true;
  for (size_t i = sizeof(finish); i < sizeof(from.reserve); ++i) {
    is_whole = is_whole && from.reserve[i] == ReserveAt(finish, i);
  }
  for (const TextRow& row : kTexts) {
    const char* const text = from.*row.field;
    const bool has_text = text != nullptr;
    is_whole = is_whole && has_text == (finish != 0) &&
               (!has_text || call.Narrow(text, kNarrowLimit, "appearance's text") == row.text);
  }
  if (!is_whole) call.Fail("an appearance of which only a part is written back");
  return finish;
}

// Where a number stands that is none of an appearance.
constexpr double kNoNumber = 255;

void FillAppearance(const Call& call, Appearance& from, ProSurfaceAppearanceProps& to) {
  std::copy(from.colour.begin(), from.colour.end(), to.color_rgb);
  std::copy(from.highlight_colour.begin(), from.highlight_colour.end(), to.highlight_color);
  for (const NumberRow& row : kNumbers) to.*row.field = from.*row.fact;
  to.reflection = from.reflection;
  to.name = from.name.data();
  FillFinish(from.finish, to);
  if (call.host.habits.appearance_record_has_unknown_order) to.ambient = kNoNumber;
}

double Channel(const Call& call, double number) {
  if (!(number >= 0 && number <= 1)) call.Fail("a number of an appearance is not from 0 to 1");
  return number;
}

Appearance ReadAppearance(const Call& call, const ProSurfaceAppearanceProps& from) {
  Appearance to;
  for (size_t i = 0; i < to.colour.size(); ++i) {
    to.colour[i] = Channel(call, from.color_rgb[i]);
    to.highlight_colour[i] = Channel(call, from.highlight_color[i]);
  }
  for (const NumberRow& row : kNumbers) to.*row.fact = Channel(call, from.*row.field);
  if (!std::isfinite(from.reflection)) call.Fail("a reflection that is no number");
  to.reflection = from.reflection;
  if (from.name != nullptr) to.name = call.Narrow(from.name, kNarrowLimit, "appearance's name");
  to.finish = ReadFinish(call, from);
  return to;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProSurfaceAppearancepropsGet(ProModelitem* item, ProSurfaceAppearanceProps* properties) {
  return Crossing(__func__, LookIn(item), Out(properties, "properties place"))
      .Run([](const Call& call, const AppearancePlace& from, ProSurfaceAppearanceProps& place) {
        if (from.appearance) {
          FillAppearance(call, *from.appearance, place);
        } else if (call.host.habits.lacking_appearance_is_not_found) {
          return PRO_TK_E_NOT_FOUND;
        }
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSurfaceAppearancepropsSet(ProModelitem* item, ProSurfaceAppearanceProps* properties) {
  return Crossing(__func__, LookIn(item), DataIn{properties})
      .Run([&](const Call& call, const AppearancePlace& to, void*) {
        // Read in full first: its texts may be those of the appearance that is replaced.
        std::optional<Appearance> wanted;
        if (properties != nullptr) wanted = ReadAppearance(call, *properties);
        to.appearance = std::move(wanted);
        to.model.modified = true;
      });
}
