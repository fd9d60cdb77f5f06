// The words of habits.
#include "workbench/host/habits.h"

namespace wb {

std::span<const HabitRow> HabitRows() {
  static constexpr HabitRow kRows[] = {
      {"radio_without_choice_succeeds", &Habits::radio_without_choice_succeeds, true},
      {"empty_preselection_succeeds", &Habits::empty_preselection_succeeds, true},
      {"second_registration_fails", &Habits::second_registration_fails, true},
      {"empty_neighbour_is_refused", &Habits::empty_neighbour_is_refused, true},
      {"null_neighbour_is_refused", &Habits::null_neighbour_is_refused},
      {"option_menu_answers_label", &Habits::option_menu_answers_label, true},
      {"lacking_field_is_an_error", &Habits::lacking_field_is_an_error, true},
      {"model_data_has_name_first", &Habits::model_data_has_name_first, true},
      {"model_data_has_unknown_order", &Habits::model_data_has_unknown_order},
      {"resources_lie_beside_text", &Habits::resources_lie_beside_text},
      {"surface_data_has_unknown_order", &Habits::surface_data_has_unknown_order},
      {"parameter_record_has_unknown_order", &Habits::parameter_record_has_unknown_order},
      {"lacking_appearance_is_not_found", &Habits::lacking_appearance_is_not_found, true},
      {"appearance_record_has_unknown_order", &Habits::appearance_record_has_unknown_order},
      {"post_relations_are_always_there", &Habits::post_relations_are_always_there, true},
      {"relations_without_lines_succeed", &Habits::relations_without_lines_succeed, true},
      {"unit_conversions_are_exchanged", &Habits::unit_conversions_are_exchanged},
      {"unit_system_types_are_exchanged", &Habits::unit_system_types_are_exchanged, true},
      {"unit_records_are_longer", &Habits::unit_records_are_longer},
      {"rotation_axes_count_from_one", &Habits::rotation_axes_count_from_one, true},
      {"view_rotates_the_other_way", &Habits::view_rotates_the_other_way, true},
      {"scaled_view_matrix_is_taken", &Habits::scaled_view_matrix_is_taken},
      {"view_turn_is_refused", &Habits::view_turn_is_refused},
      {"view_turns_the_other_way", &Habits::view_turns_the_other_way},
      {"view_turns_about_the_other_axis", &Habits::view_turns_about_the_other_axis},
      {"view_display_has_flags_last", &Habits::view_display_has_flags_last},
      {"view_places_are_on_the_screen", &Habits::view_places_are_on_the_screen, true},
      {"empty_collection_succeeds", &Habits::empty_collection_succeeds, true},
      {"table_segments_count_from_minus_one", &Habits::table_segments_count_from_minus_one, true},
      {"untouched_dimension_has_no_lines", &Habits::untouched_dimension_has_no_lines, true},
      {"untouched_dimension_text_fails", &Habits::untouched_dimension_text_fails},
      {"tolerances_are_taken_for_numbers", &Habits::tolerances_are_taken_for_numbers},
      {"copy_stays_in_session", &Habits::copy_stays_in_session, true},
      {"rename_leaves_files", &Habits::rename_leaves_files},
      {"erasing_acts_at_the_end", &Habits::erasing_acts_at_the_end},
      {"selection_policy_clears_selection", &Habits::selection_policy_clears_selection},
      {"undisplayed_drawing_is_not_exported", &Habits::undisplayed_drawing_is_not_exported},
      {"empty_file_list_fails", &Habits::empty_file_list_fails},
      {"file_list_repeats_names", &Habits::file_list_repeats_names},
      {"chosen_folder_has_separator", &Habits::chosen_folder_has_separator},
      {"origin_has_no_version", &Habits::origin_has_no_version},
      {"backup_leaves_what_is_used", &Habits::backup_leaves_what_is_used, true},
  };
  return kRows;
}

Habits OtherHabits() {
  Habits habits;
  for (const HabitRow& row : HabitRows()) habits.*row.habit = row.is_in_other_set;
  return habits;
}

}  // namespace wb
