# Pop-ups: of collapsed panels, sub-items, the quick access toolbar's rest, the application menu.
target_sources(framework PRIVATE
  main_panel.cpp menu_items.cpp panel_menu.cpp panel_menu_bar.cpp
  panel_menu_bar_input.cpp panel_menu_bar_keys.cpp panel_menu_bar_layout.cpp panel_menu_bar_tooltip.cpp
  popup_service.cpp popups.cpp quick_access_more.cpp)
