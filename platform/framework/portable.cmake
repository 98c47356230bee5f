# What knows no window system: geometry, tables, pixels. Compiled once, for the DLL and for the tests, which run on this
# machine too.
if(WIN32)
  set(letters core/letters_windows.cpp)
else()
  set(letters core/letters_posix.cpp)
endif()
add_library(framework_portable OBJECT EXCLUDE_FROM_ALL
  ${letters}
  core/mnemonic.cpp
  panes/dock_rows.cpp
  panes/dock_state.cpp
  panes/row_layout.cpp
  popups/row_letters.cpp
  popups/row_stack.cpp
  ribbon/bar_layout.cpp
  ribbon/button_geometry.cpp
  ribbon/category_layout.cpp
  ribbon/edit_geometry.cpp
  ribbon/focus_walk.cpp
  ribbon/key_letters.cpp
  ribbon/keyboard_table.cpp
  ribbon/main_panel_geometry.cpp
  ribbon/menu_geometry.cpp
  ribbon/panel_layout.cpp
  ribbon/status_layout.cpp
  ribbon/text_break.cpp
  visual/pixels.cpp
  visual/skin.cpp
  visual/skin_system.cpp
  visual/skin_table.cpp
)
target_include_directories(framework_portable PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} include)
target_link_libraries(framework_portable PRIVATE barwright_options PUBLIC barwright_usage)

# For programs that take what they need of it without the DLL.
add_library(framework_parts STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:framework_portable>)
target_include_directories(framework_parts PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} include)
target_link_libraries(framework_parts PUBLIC barwright_usage)
