#pragma once

#include <cstddef>
#include <cstring>

/// Its memory is kept when it is gone, with nothing in it that works: whoever still uses it comes to a fault.
template <class Element>
class Buried : public Element {
public:
    using Element::Element;
    static void operator delete(void* memory, std::size_t size) { std::memset(memory, 0xDD, size); }
};
