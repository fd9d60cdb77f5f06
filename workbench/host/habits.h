// Habits of the host that its published interface leaves open: what the plug-in must bear either
// way. A script switches each of them; off is what the workbench does by itself.
#pragma once

#include <span>

namespace wb {

struct Habits {
  bool radio_without_choice_succeeds = false;  // with no names, instead of "not found"
  bool empty_preselection_succeeds = false;    // with no selections, instead of "not found"
  bool second_registration_fails = false;      // of a command name that is registered
  bool empty_neighbour_is_refused = false;     // of a table's rows and columns; null is not
  bool null_neighbour_is_refused = false;
  bool option_menu_answers_label = false;        // instead of the name of the item
  bool lacking_field_is_an_error = false;        // a failing status, instead of a misuse
  bool model_data_has_name_first = false;        // the other known order of the record's texts
  bool model_data_has_unknown_order = false;     // neither of the two
  bool rotation_axes_count_from_one = false;     // x, y, z are 1, 2, 3 instead of 0, 1, 2
  bool view_rotates_the_other_way = false;       // of a window
  bool scaled_view_matrix_is_taken = false;      // rows of another length than 1 are no failure
  bool view_turn_is_refused = false;             // of a view of a drawing, by an angle
  bool view_turns_the_other_way = false;         // by an angle
  bool view_turns_about_the_other_axis = false;  // "Vertical" and "Horizontal" have changed places
  bool view_display_has_flags_last = false;      // the other known order of the record's fields
  bool view_places_are_on_the_screen = false;    // instead of on the sheet; so are outlines
  bool empty_collection_succeeds = false;        // with nothing, instead of "not found"
  bool table_segments_count_from_minus_one = false;  // instead of from 0
  bool untouched_dimension_has_no_lines = false;     // instead of "@D"
  bool untouched_dimension_text_fails = false;       // with "not found", instead of "@D"
  bool tolerances_are_taken_for_numbers = false;     // which then are anything, instead of places
  bool copy_stays_in_session = false;                // until it is saved
  bool rename_leaves_files = false;                  // under their old names
  bool erasing_acts_at_the_end = false;              // of the action: until then the name is taken
  bool resources_lie_beside_text = false;            // in `resource`, instead of `text/resource`
  bool surface_data_has_unknown_order = false;
  bool parameter_record_has_unknown_order = false;
  bool selection_policy_clears_selection = false;    // of a table's rows
  bool undisplayed_drawing_is_not_exported = false;  // to DWG and DXF
  bool empty_file_list_fails = false;                // with "not found", instead of no files
  bool file_list_repeats_names = false;          // one for each version, asked for the newest alone
  bool chosen_folder_has_separator = false;      // at its end
  bool origin_has_no_version = false;            // of the file that a model came from
  bool lacking_appearance_is_not_found = false;  // instead of success with the record untouched
  bool appearance_record_has_unknown_order = false;
  bool post_relations_are_always_there = false;  // a set that has no lines can be opened
  bool relations_without_lines_succeed = false;  // with no array, instead of "not found"
  bool unit_conversions_are_exchanged = false;   // same size is 0, same dimensions is 1
  bool unit_system_types_are_exchanged = false;  // force-length-time is 0, mass-length-time is 1
  bool unit_records_are_longer = false;          // those in arrays, by 8 bytes
  bool backup_leaves_what_is_used = false;       // of an assembly the file alone is written
};

struct HabitRow {
  const char* word;
  bool Habits::*habit;
  bool is_in_other_set = false;
};
std::span<const HabitRow> HabitRows();

// The set that stands beside "all off": each habit with which everything still works.
Habits OtherHabits();

}  // namespace wb
