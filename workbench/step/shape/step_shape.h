// The geometry that a STEP shape representation holds: a box for every face, and one around loose
// wires and points.
#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include "workbench/step/shape/step_geometry.h"

namespace wb {

struct StepShape {
  std::vector<StepBox> faces;
  StepBox wires;  // edges, curves and points that belong to no face
};

// A MAPPED_ITEM: another representation shown at a place in this one.
struct StepMapping {
  const StepRecord* item;
  const StepRecord* representation;  // the one that is shown
  StepPlacement placement;           // of its coordinates in those of the showing one
};

class StepShapes {
 public:
  // `is_component` tells whether what one representation shows belongs to another product: then it
  // is a component and adds nothing to the shape of the part that shows it.
  StepShapes(const StepFile& file, StepUnits& units,
             std::function<bool(const StepRecord& showing, const StepRecord& shown)> is_component);

  // The shape in the representation's own coordinates, in millimetres. Read once and kept. Throws
  // StepError when representations show each other in a circle.
  const StepShape& Of(const StepRecord& representation);
  std::vector<StepMapping> MappingsOf(const StepRecord& representation);

 private:
  enum class Role : std::uint8_t;
  struct Entry {
    bool done = false;
    StepShape shape;
    std::vector<StepMapping> shown;
  };

  void ReadOwn(const StepRecord& representation, Entry& entry);
  void AddItem(const StepRecord& item, double scale, StepShape& shape);
  void Combine(Entry& entry);
  StepBox TessellationBox(const StepRecord& record, bool face, double scale);
  const std::vector<StepPoint>& Coordinates(const StepRecord& list, double scale);

  const StepFile& file_;
  StepUnits& units_;
  std::function<bool(const StepRecord&, const StepRecord&)> is_component_;
  std::vector<Role> roles_;  // by type
  std::unordered_map<const StepRecord*, Entry> entries_;
  const StepRecord* coordinates_of_ = nullptr;  // the list that was read last
  std::vector<StepPoint> coordinates_;
};

}  // namespace wb
