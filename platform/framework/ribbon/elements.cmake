# The ribbon elements.
target_sources(framework PRIVATE
  button_geometry.cpp
  edit_geometry.cpp
  slider_geometry.cpp
  text_break.cpp
)
