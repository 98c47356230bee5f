# The ribbon elements.
target_sources(framework PRIVATE
)
