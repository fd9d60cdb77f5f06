// What comes between a call of the plug-in and its being carried out: a user who acts, a fault. And
// what the trace shows of it.
#include <functional>

#include "tests/absent_user.h"
#include "tests/workbench/host/host_fixture.h"
#include "workbench/host/arguments.h"
#include "workbench/host/host_types.h"

namespace wb {
namespace {

// Does one thing at the first call of one function.
class ActsAtCall : public AbsentUser {
 public:
  bool CallBegins(const char* name) override {
    if (function != name) return false;
    function.clear();
    deed();
    return true;
  }
  std::string function;
  std::function<void()> deed;
};

class DisturbedCall : public HostFixture {
 protected:
  DisturbedCall() {
    Model lid({"lid", ModelKind::kPart});
    lid_ = &host_.session.Add(lid);
    lid_handle_ = lid_->handle;
    box_ = &ShowAssembly();
    host_.user = &user_;
  }
  ~DisturbedCall() override { host_.user = nullptr; }

  void EraseAt(const char* function, Model* model) {
    user_.function = function;
    user_.deed = [this, model] { host_.session.Erase(*model); };
  }

  Model* lid_ = nullptr;
  Model* box_ = nullptr;
  ProMdl lid_handle_ = nullptr;
  ActsAtCall user_;
};

TEST_F(DisturbedCall, ShowsItsNumbersWholeInTheTrace) {
  host_.trace.keep_lines = true;
  double place = 0;
  float narrow = 0;
  Crossing("ProProbe", 0.125, 7, Out(&place, "place"), Out(&narrow, "narrow"))
      .Run([](double, int, double& real, float& half) {
        real = -12.75;
        half = 0.5F;
      });
  const auto& lines = host_.trace.lines();
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].arguments, "0.125, 7, -> -12.75, -> 0.5");
}

TEST_F(DisturbedCall, FailsWithoutBlameForWhatTheUserErasedButNoLaterOneDoes) {
  ProName name{};
  EraseAt("ProMdlNameGet", lid_);
  EXPECT_EQ(ProMdlNameGet(lid_handle_, name), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches(), Lines{});
  EXPECT_EQ(ProMdlNameGet(lid_handle_, name), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches(),
            Lines{"plug-in misused ProMdlNameGet: stale model handle (its object is gone)"});
}

TEST_F(DisturbedCall, IsBlamedForWhatTheUserHasNothingToDoWith) {
  EraseAt("ProMdlNameGet", lid_);
  EXPECT_EQ(ProMdlNameGet(box_->handle, nullptr), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches().size(), 1u);
}

ProError AskType(ProFeature* feature, ProError, ProAppData) {
  ProFeattype type = 0;
  ProFeatureTypeGet(feature, &type);
  return PRO_TK_NO_ERROR;
}

TEST_F(DisturbedCall, AVisitOfAModelThatIsErasedMeanwhileIsNotModelled) {
  EraseAt("ProFeatureTypeGet", box_);
  ProSolidFeatVisit(static_cast<ProSolid>(box_->handle), &AskType, nullptr, nullptr);
  EXPECT_EQ(host_.events.AllTexts<Gap>(),
            Lines{"workbench: not modelled: ProSolidFeatVisit: a model that is "
                  "erased while it is visited"});
}

// The order that makes the trace useful: a fault strikes before the arguments are looked at.
TEST_F(DisturbedCall, AFaultStrikesWhateverTheArgumentsAre) {
  host_.faults.Order({.function = "ProMdlTypeGet", .nth = 2, .status = PRO_TK_OUT_OF_MEMORY});
  ProMdlType type{};
  EXPECT_EQ(ProMdlTypeGet(lid_handle_, &type), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProMdlTypeGet(nullptr, nullptr), PRO_TK_OUT_OF_MEMORY);
  EXPECT_EQ(Breaches(), Lines());
  EXPECT_EQ(ProMdlTypeGet(nullptr, &type), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches(), Lines{"plug-in misused ProMdlTypeGet: null model handle"});
}

}  // namespace
}  // namespace wb
