#pragma once

#include "fx/base.h"

#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace fx {

/// Memory for a collection's nodes, taken in blocks and given back when the collection is emptied.
template <typename Node>
class NodePool {
public:
    explicit NodePool(INT_PTR blockSize) : m_blockSize(blockSize > 0 ? static_cast<std::size_t>(blockSize) : 10) {}
    NodePool(const NodePool&) = delete;
    NodePool& operator=(const NodePool&) = delete;

    template <typename... Args>
    Node* Make(Args&&... args) {
        if (m_free == nullptr) {
            AddBlock();
        }
        Slot* const slot = m_free;
        Slot* const next = slot->next;
        Node* const node = ::new (static_cast<void*>(slot)) Node{std::forward<Args>(args)...};
        m_free = next;
        return node;
    }
    void Destroy(Node* node) {
        node->~Node();
        Slot* const slot = ::new (static_cast<void*>(node)) Slot;
        slot->next = m_free;
        m_free = slot;
    }
    /// Every node must have been destroyed.
    void Release() noexcept {
        m_free = nullptr;
        m_blocks.clear();
        m_nextSize = m_blockSize;
    }

private:
    union Slot {
        Slot* next;
        alignas(Node) std::byte storage[sizeof(Node)];
    };

    void AddBlock() {
        m_blocks.push_back(std::make_unique<Slot[]>(m_nextSize));
        Slot* const block = m_blocks.back().get();
        for (std::size_t index = m_nextSize; index-- > 0;) {
            block[index].next = m_free;
            m_free = &block[index];
        }
        // Later blocks grow, so that large collections need few of them.
        m_nextSize = m_nextSize < 512 ? m_nextSize * 2 : m_nextSize;
    }

    std::size_t m_blockSize;
    std::size_t m_nextSize = m_blockSize;
    Slot* m_free = nullptr;
    std::vector<std::unique_ptr<Slot[]>> m_blocks;
};

} // namespace fx
