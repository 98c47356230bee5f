#pragma once

#include <varnhold/xml.h>

#include <cstddef>

/// Visits the elements below `root` in document order; the children of `root` are at depth 1. `visit(element, depth)`
/// returns whether the element's children are visited too; it may read from the cursor, but not move it. Depth takes
/// neither stack nor memory.
template <class Visit>
void WalkBelow(varnhold::XmlCursor root, Visit visit) {
    varnhold::XmlCursor& at = root;
    if (!at.ToFirstChild()) {
        return;
    }
    for (std::size_t depth = 1;;) {
        if (visit(at, depth) && at.ToFirstChild()) {
            ++depth;
            continue;
        }
        while (!at.ToNextSibling()) {
            if (--depth == 0) {
                return;
            }
            at.ToParent();
        }
    }
}

/// Calls `visit(child)` at each child of the element, in document order; it may
/// read from the cursor, but not move it.
template <class Visit>
void ForEachChild(varnhold::XmlCursor element, Visit visit) {
    for (bool found = element.ToFirstChild(); found; found = element.ToNextSibling()) {
        visit(element);
    }
}
