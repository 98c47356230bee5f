#pragma once

// CList: a doubly linked list. A POSITION stays valid until its own element is removed.

#include "fx/element_helpers.h"
#include "fx/node_pool.h"

/// A null or foreign POSITION and access to an empty list throw CInvalidArgException where that can be seen.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject {
public:
    explicit CList(INT_PTR nBlockSize = 10) : m_pool(nBlockSize) {}
    ~CList() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_count; }
    INT_PTR GetSize() const { return m_count; }
    BOOL IsEmpty() const { return m_count == 0; }

    TYPE& GetHead() { return Checked(m_head)->data; }
    const TYPE& GetHead() const { return Checked(m_head)->data; }
    TYPE& GetTail() { return Checked(m_tail)->data; }
    const TYPE& GetTail() const { return Checked(m_tail)->data; }
    POSITION GetHeadPosition() const { return ToPosition(m_head); }
    POSITION GetTailPosition() const { return ToPosition(m_tail); }
    /// The element at the position, which moves on to the next, null at the end.
    TYPE& GetNext(POSITION& rPosition) { return Step(rPosition, &Node::next); }
    const TYPE& GetNext(POSITION& rPosition) const { return Step(rPosition, &Node::next); }
    TYPE& GetPrev(POSITION& rPosition) { return Step(rPosition, &Node::previous); }
    const TYPE& GetPrev(POSITION& rPosition) const { return Step(rPosition, &Node::previous); }
    TYPE& GetAt(POSITION position) { return ToNode(position)->data; }
    const TYPE& GetAt(POSITION position) const { return ToNode(position)->data; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { ToNode(pos)->data = newElement; }

    POSITION AddHead(ARG_TYPE newElement) { return Link(newElement, nullptr, m_head); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(newElement, m_tail, nullptr); }
    /// Adds copies of the other list's elements in their order.
    void AddHead(CList* pNewList) {
        ENSURE(pNewList != nullptr);
        INT_PTR left = pNewList->m_count;
        for (Node* node = pNewList->m_tail; left-- > 0; node = node->previous) {
            AddHead(node->data);
        }
    }
    void AddTail(CList* pNewList) {
        ENSURE(pNewList != nullptr);
        INT_PTR left = pNewList->m_count;
        for (Node* node = pNewList->m_head; left-- > 0; node = node->next) {
            AddTail(node->data);
        }
    }
    /// A null position adds at the head (before) or at the tail (after).
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement) {
        if (position == nullptr) {
            return AddHead(newElement);
        }
        Node* const node = ToNode(position);
        return Link(newElement, node->previous, node);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement) {
        if (position == nullptr) {
            return AddTail(newElement);
        }
        Node* const node = ToNode(position);
        return Link(newElement, node, node->next);
    }

    TYPE RemoveHead() { return Take(Checked(m_head)); }
    TYPE RemoveTail() { return Take(Checked(m_tail)); }
    void RemoveAt(POSITION position) { Unlink(ToNode(position)); }
    void RemoveAll() {
        Node* node = m_head;
        m_head = m_tail = nullptr;
        m_count = 0;
        while (node != nullptr) {
            Node* const next = node->next;
            m_pool.Destroy(node);
            node = next;
        }
        if (m_count == 0) {
            m_pool.Release();
        }
    }

    /// Null when there is no such element after startAfter.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const {
        Node* node = startAfter == nullptr ? m_head : ToNode(startAfter)->next;
        while (node != nullptr && !CompareElements(&node->data, &searchValue)) {
            node = node->next;
        }
        return ToPosition(node);
    }
    /// Null when the index is out of range.
    POSITION FindIndex(INT_PTR nIndex) const {
        if (nIndex < 0 || nIndex >= m_count) {
            return nullptr;
        }
        Node* node = m_head;
        while (nIndex-- > 0) {
            node = node->next;
        }
        return ToPosition(node);
    }

    void Serialize(CArchive& ar) override {
        CObject::Serialize(ar);
        if (ar.IsStoring()) {
            ar << static_cast<ULONGLONG>(m_count);
            for (Node* node = m_head; node != nullptr; node = node->next) {
                SerializeElements<TYPE>(ar, &node->data, 1);
            }
            return;
        }
        ULONGLONG count = 0;
        ar >> count;
        fx::ArchiveChecks::RequireElements(ar, count);
        for (; count > 0; --count) {
            TYPE element{};
            SerializeElements<TYPE>(ar, &element, 1);
            AddTail(element);
        }
    }
    void AssertValid() const override {
        CObject::AssertValid();
        ASSERT((m_head == nullptr) == (m_count == 0) && (m_tail == nullptr) == (m_count == 0));
    }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << L"with " << static_cast<LONGLONG>(m_count) << L" elements";
        for (const Node* node = m_head; dc.GetDepth() > 0 && node != nullptr; node = node->next) {
            DumpElements<TYPE>(dc, &node->data, 1);
        }
        dc << L"\n";
    }

private:
    struct Node {
        TYPE data;
        Node* previous;
        Node* next;
    };

    static POSITION ToPosition(Node* node) { return reinterpret_cast<POSITION>(node); }
    static Node* Checked(Node* node) {
        if (node == nullptr) {
            AfxThrowInvalidArgException();
        }
        return node;
    }
    static Node* ToNode(POSITION position) { return Checked(reinterpret_cast<Node*>(position)); }
    static TYPE& Step(POSITION& position, Node* Node::*direction) {
        Node* const node = ToNode(position);
        position = ToPosition(node->*direction);
        return node->data;
    }
    POSITION Link(ARG_TYPE element, Node* previous, Node* next) {
        Node* const node = m_pool.Make(TYPE(element), previous, next);
        (previous == nullptr ? m_head : previous->next) = node;
        (next == nullptr ? m_tail : next->previous) = node;
        ++m_count;
        return ToPosition(node);
    }
    void Unlink(Node* node) {
        (node->previous == nullptr ? m_head : node->previous->next) = node->next;
        (node->next == nullptr ? m_tail : node->next->previous) = node->previous;
        --m_count;
        m_pool.Destroy(node);
        if (m_count == 0) {
            m_pool.Release();
        }
    }
    TYPE Take(Node* node) {
        TYPE element(std::move(node->data));
        Unlink(node);
        return element;
    }

    Node* m_head = nullptr;
    Node* m_tail = nullptr;
    INT_PTR m_count = 0;
    fx::NodePool<Node> m_pool;
};
