# What assistive programs see of the ribbon.
target_sources(framework PRIVATE access.cpp access.rc access_bar.cpp access_popup.cpp access_elements.cpp access_object.cpp)
