// The words of habits.
#include "workbench/host/habits.h"

namespace wb {

std::span<const HabitRow> HabitRows() {
  static constexpr HabitRow kRows[] = {
      {"radio_without_choice_succeeds", &Habits::radio_without_choice_succeeds},
      {"empty_preselection_succeeds", &Habits::empty_preselection_succeeds},
      {"second_registration_fails", &Habits::second_registration_fails},
      {"empty_neighbour_is_refused", &Habits::empty_neighbour_is_refused},
      {"null_neighbour_is_refused", &Habits::null_neighbour_is_refused},
      {"option_menu_answers_label", &Habits::option_menu_answers_label},
      {"lacking_field_is_an_error", &Habits::lacking_field_is_an_error},
      {"model_data_has_name_first", &Habits::model_data_has_name_first},
      {"model_data_has_unknown_order", &Habits::model_data_has_unknown_order},
      {"resources_lie_beside_text", &Habits::resources_lie_beside_text},
      {"surface_data_has_unknown_order", &Habits::surface_data_has_unknown_order},
      {"parameter_record_has_unknown_order", &Habits::parameter_record_has_unknown_order},
  };
  return kRows;
}

}  // namespace wb
