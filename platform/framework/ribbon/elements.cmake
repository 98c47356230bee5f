# The ribbon elements.
target_sources(framework PRIVATE
  base_element.cpp
  button.cpp
  button_draw.cpp
  button_input.cpp
  button_menu_row.cpp
  button_popup.cpp
  buttons_group.cpp
  check_box.cpp
  combo_box.cpp
  combo_box_access.cpp
  combo_box_face.cpp
  drop_down_list.cpp
  edit.cpp
  edit_tool.cpp
  edit_window.cpp
  element_commands.cpp
  element_metrics.cpp
  label.cpp
  panel_changes.cpp
  separator.cpp
  shown_text.cpp
  slider.cpp
  sub_items.cpp
)
