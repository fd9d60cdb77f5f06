// Pictures of sheets, read back: what the SVG says is compared with the drawing's own numbers.
#include "workbench/sheet/sheet_svg.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "tests/workbench/report/page_text.h"
#include "workbench/session/drawing_views.h"
#include "workbench/session/session.h"
#include "workbench/sheet/view_boxes.h"

namespace wb {
namespace {

constexpr double kPrecision = 0.001;
constexpr double kHeightOfA2 = 420;

struct ReadView {
  Outline outline{};
  std::vector<Outline> boxes;  // what each visible path takes up
};

// The value of an attribute in a tag.
std::string AttributeOf(const std::string& tag, const std::string& name) {
  std::smatch found;
  const std::regex pattern(" " + name + "=\"([^\"]*)\"");
  return std::regex_search(tag, found, pattern) ? found[1].str() : "";
}

Outline ReadRectangle(const std::string& tag, double height) {
  const auto number = [&](const char* name) { return std::stod(AttributeOf(tag, name)); };
  const double top = height - number("y");
  return {number("x"), top - number("height"), number("x") + number("width"), top};
}

// What a path of M, L, H and V takes up.
Outline ReadPath(const std::string& path, double height) {
  static const std::regex kStep("([MLHV])(-?[0-9.]+)(?: (-?[0-9.]+))?");
  Outline area = {1e9, 1e9, -1e9, -1e9};
  double x = 0;
  double y = 0;
  for (std::sregex_iterator step(path.begin(), path.end(), kStep), end; step != end; ++step) {
    const char letter = (*step)[1].str()[0];
    const double first = std::stod((*step)[2]);
    if (letter == 'V') y = height - first;
    if (letter != 'V') x = first;
    if (letter == 'M' || letter == 'L') y = height - std::stod((*step)[3]);
    area = {std::min(area[0], x), std::min(area[1], y), std::max(area[2], x), std::max(area[3], y)};
  }
  return area;
}

std::map<int, ReadView> ReadViews(const std::string& svg, double height = kHeightOfA2) {
  static const std::regex kTag("<(/?[a-z]+)[^>]*>");
  std::map<int, ReadView> views;
  ReadView* view = nullptr;
  for (std::sregex_iterator at(svg.begin(), svg.end(), kTag), end; at != end; ++at) {
    const std::string tag = at->str();
    const std::string kind = AttributeOf(tag, "class");
    if (kind == "view") view = &views[std::stoi(AttributeOf(tag, "data-view"))];
    if (view == nullptr) continue;
    if (kind == "outline") view->outline = ReadRectangle(tag, height);
    if (tag.starts_with("<path d")) view->boxes.push_back(ReadPath(AttributeOf(tag, "d"), height));
  }
  return views;
}

Outline Around(const std::vector<Outline>& boxes) {
  Outline all = boxes.at(0);
  for (const Outline& box : boxes) {
    all = {std::min(all[0], box[0]), std::min(all[1], box[1]), std::max(all[2], box[2]),
           std::max(all[3], box[3])};
  }
  return all;
}

void ExpectNear(const Outline& is, const Outline& wanted, const std::string& what) {
  for (std::size_t i = 0; i < is.size(); ++i) EXPECT_NEAR(is[i], wanted[i], kPrecision) << what;
}

// A block of odd measures off the origin with a plate in front of it and a pin inside it, drawn on
// an A2 sheet.
class SheetSvg : public testing::Test {
 protected:
  SheetSvg() {
    AddPart("block", {{-17.3, 5.1, 3.7}, {82.9, 65.3, 43.1}});
    AddPart("plate", {{0, 0, 0}, {20, 30, 5}});
    AddPart("pin", {{-3, -3, -3}, {3, 3, 3}});
    Model top({"top", ModelKind::kAssembly});
    Place(top, 1, "block", 0, 0, 0);
    Place(top, 2, "plate", 10, 20, 60);
    Place(top, 3, "pin", 50, 50, 20);
    top_ = &session_.Add(std::move(top));
    Model drawing({"top", ModelKind::kDrawing});
    DrawingContent pattern;
    pattern.sheets.push_back({.size = "A2", .scale = 0.7});
    drawing.content = MadeOf(pattern, {top_->id, top_});
    model_ = &session_.Add(std::move(drawing));
  }

  void AddPart(const std::string& name, const Box& box) {
    Model part({name, ModelKind::kPart});
    part.solid().surfaces.Add({1, box});
    session_.Add(std::move(part));
  }
  static void Place(Model& top, int id, const std::string& part, double x, double y, double z) {
    Placement placement = kIdentityPlacement;
    placement[3] = {x, y, z, 1};
    top.solid().features.Add(NewComponent(id, {part, ModelKind::kPart}, placement));
  }
  DrawingContent& Drawing() { return *model_->As<DrawingContent>(); }
  int View(const Rotation& orientation, SheetPoint place, DisplayStyle style) {
    return AddView(Drawing(), {.shows = Drawing().shows,
                               .orientation = orientation,
                               .place = place,
                               .display = {.style = style}});
  }
  SheetPicture Picture() { return PictureOf(Drawing()).at(0); }
  std::string Svg() { return DrawSheet(Picture()); }

  Session session_;
  Model* top_ = nullptr;
  Model* model_ = nullptr;
};

// All turns by right angles show faces as rectangles, which fill the outline to its edges.
TEST_F(SheetSvg, ViewsLieWhereTheirOutlinesAre) {
  for (int turn = 0; turn < 64; ++turn) {
    const Rotation x = TurnAbout(ScreenAxis::kX, 90 * (turn % 4));
    const Rotation y = TurnAbout(ScreenAxis::kY, 90 * (turn / 4 % 4));
    const Rotation z = TurnAbout(ScreenAxis::kZ, 90 * (turn / 16));
    View(Turned(Turned(x, y), z), {37.123 * (turn % 8) + 60, 41.321 * (turn / 8) - 30},
         DisplayStyle::kNoHidden);
  }
  const auto views = ReadViews(Svg());
  ASSERT_EQ(views.size(), 64u);
  for (const DrawingView& view : Drawing().views) {
    const std::string what = "view " + std::to_string(view.id);
    ExpectNear(views.at(view.id).outline, view.outline, what);
    ExpectNear(Around(views.at(view.id).boxes), view.outline, what + ", its boxes");
  }
}

TEST_F(SheetSvg, TwelveViewsOfALargeAssemblyStaySmall) {
  for (int id = 10; id < 400; ++id) Place(*top_, id, "pin", 7.77 * id, 3.33 * (id % 17), 1.1 * id);
  session_.Resolve(*top_);
  const Rotation corner = Turned(TurnAbout(ScreenAxis::kY, 30), TurnAbout(ScreenAxis::kX, 25));
  const std::array<Rotation, 3> turns = {kNoRotation, TurnAbout(ScreenAxis::kX, 90), corner};
  for (std::size_t i = 0; i < 12; ++i) {
    View(i < 10 ? turns[i % 2] : corner, {100.123, 200.321}, DisplayStyle::kNoHidden);
  }
  const SheetPicture picture = Picture();
  EXPECT_GT(picture.views[0].left_out, 300u);
  EXPECT_LT(DrawSheet(picture).size(), 60'000u);
}

TEST_F(SheetSvg, TablesHaveTheirCellsAndTextsAreEscaped) {
  const std::string evil = "<x>\"&";
  top_->SetParameter("NAME", evil);
  Drawing().tables.Add({.id = 1,
                        .place = {410, 66},
                        .widths = {30, 50},
                        .heights = {10},
                        .cells = {{1, 1, "&scale"}, {1, 2, "&name"}, {9, 9, "outside"}}});
  Drawing().notes.Add({.id = 1, .text = evil});
  Drawing().dimensions.Add({.id = 1, .text = evil});
  Drawing().sheets[0].format = "frame.frm";
  const std::string svg = Svg();
  EXPECT_TRUE(Shows(svg, ">1:1.429</text>"));
  EXPECT_FALSE(Shows(svg, "outside"));
  EXPECT_EQ(Count(svg, ">&lt;x&gt;&quot;&amp;</text>"), 3u);
  EXPECT_TRUE(Shows(svg, "class=\"frame\""));
  Drawing().sheets[0].format_shown = false;
  EXPECT_EQ(Svg().find("class=\"frame\""), svg.npos);
}

TEST_F(SheetSvg, NumbersOutOfAllMeasureHarmNobody) {
  View(kNoRotation, {1e300, -1e300}, DisplayStyle::kNoHidden);
  View(kNoRotation, {100, 100}, DisplayStyle::kHiddenLine);
  top_->solid().features[0].component->placement[3] = {1e308, -1e308, 1e308, 1};
  Drawing().sheets[0].scale = 1e10;
  RegenerateSheet(Drawing(), 1);
  EXPECT_EQ(Svg().find("inf"), std::string::npos);
  EXPECT_EQ(Svg().find("nan"), std::string::npos);
}

TEST_F(SheetSvg, APageIsThePaperAtItsTrueSizeInItsInks) {
  View(kNoRotation, {100, 100}, DisplayStyle::kShaded);
  Drawing().dimensions.Add({.id = 4, .sheet = 1, .place = {900, 200}, .value = 300});
  const Page page = DrawPage(Picture());
  EXPECT_TRUE(
      page.svg.starts_with("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"594mm\" "
                           "height=\"420mm\" viewBox=\"0 0 594 420\""));
  EXPECT_EQ(page.width, 594);
  EXPECT_EQ(page.height, kHeightOfA2);
  ExpectNear(ReadViews(page.svg).begin()->second.outline, Drawing().views.begin()->outline, "view");
  const std::string mono = DrawPage(Picture(), PageInk::kMono, true).svg;
  const std::regex coloured("#(?!000\\b|fff\\b)[0-9a-f]");
  EXPECT_TRUE(std::regex_search(page.svg, coloured));
  EXPECT_FALSE(std::regex_search(mono, coloured)) << mono;
  EXPECT_NE(mono.find("text{fill:none"), mono.npos);
}

}  // namespace
}  // namespace wb
