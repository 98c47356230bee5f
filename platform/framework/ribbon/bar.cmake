# Bar, categories, panels, quick access toolbar and their layout.
target_sources(framework PRIVATE
)
