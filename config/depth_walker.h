#pragma once

#include <varnhold/xml.h>

#include <cstddef>
#include <vector>

/// Visits the elements below `root` in document order; the children of `root` are at depth 1. `visit(node, depth)`
/// returns whether the node's children are visited too. Depth is limited by memory only, not by the stack.
template <class Visit>
void WalkBelow(const CXmlNodeWrapper& root, Visit visit) {
    struct Level {
        CXmlNodeWrapper parent;
        std::size_t count;
        std::size_t next;
    };
    std::vector<Level> path;
    path.push_back({root, root.GetChildCount(), 0});
    while (!path.empty()) {
        Level& level = path.back();
        if (level.next == level.count) {
            path.pop_back();
            continue;
        }
        CXmlNodeWrapper node = level.parent.GetChild(level.next++);
        if (visit(static_cast<const CXmlNodeWrapper&>(node), path.size())) {
            const std::size_t count = node.GetChildCount();
            if (count)
                path.push_back({std::move(node), count, 0});
        }
    }
}
