# Bar, categories, panels, quick access toolbar and their layout.
target_sources(framework PRIVATE
  bar.cpp bar_arrange.cpp bar_caption.cpp bar_categories.cpp bar_elements.cpp bar_input.cpp bar_keyboard.cpp
  bar_menus.cpp bar_quick_access.cpp bar_tooltip.cpp caption_button.cpp category.cpp category_searches.cpp category_tab.cpp
  element_key_tips.cpp element_tip.cpp focus_stops.cpp font_scope.cpp key_tip.cpp key_tip_levels.cpp keyboard.cpp
  keyboard_actions.cpp keyboard_input.cpp keyboard_walk.cpp
  paint_buffer.cpp launch_button.cpp panel.cpp panel_button.cpp panel_elements.cpp panel_picture.cpp pointer.cpp quick_access.cpp
  status_bar.cpp status_bar_input.cpp bar.rc)
target_link_libraries(framework PRIVATE imm32)
