#include "window/input_filter.h"

#include <algorithm>
#include <vector>

namespace fx {

namespace {

std::vector<InputFilter>& Filters() {
    static std::vector<InputFilter> filters;
    return filters;
}

} // namespace

void AddInputFilter(InputFilter filter) { Filters().push_back(filter); }

BOOL FilterInput(MSG* message) {
    return std::ranges::any_of(Filters(), [message](InputFilter filter) { return filter(message) != FALSE; });
}

} // namespace fx
