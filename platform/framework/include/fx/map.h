#pragma once

// CMap: a hash map. It grows its table by itself; pairs keep their address until they are removed.

#include "fx/element_helpers.h"
#include "fx/node_pool.h"

/// Iteration goes in the order of insertion; removing the pair just passed, and adding pairs, are allowed meanwhile.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject {
public:
    struct CPair {
        const KEY key;
        VALUE value;
    };

    explicit CMap(INT_PTR nBlockSize = 10) : m_pool(nBlockSize) {}
    ~CMap() override {
        RemoveAll();
        delete[] m_table;
    }

    INT_PTR GetCount() const { return m_count; }
    INT_PTR GetSize() const { return m_count; }
    BOOL IsEmpty() const { return m_count == 0; }

    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {
        const Node* const node = FindNode(key, HashKey<ARG_KEY>(key));
        if (node != nullptr) {
            rValue = node->pair.value;
        }
        return node != nullptr;
    }
    /// Null when there is no such key.
    const CPair* PLookup(ARG_KEY key) const { return ToPair(FindNode(key, HashKey<ARG_KEY>(key))); }
    CPair* PLookup(ARG_KEY key) { return ToPair(FindNode(key, HashKey<ARG_KEY>(key))); }
    /// Adds a value-initialised value when the key is new.
    VALUE& operator[](ARG_KEY key) {
        const UINT hash = HashKey<ARG_KEY>(key);
        Node* node = FindNode(key, hash);
        if (node == nullptr) {
            node = AddNode(key, hash);
        }
        return node->pair.value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    /// FALSE when there is no such key.
    BOOL RemoveKey(ARG_KEY key) {
        if (m_table == nullptr) {
            return FALSE;
        }
        const UINT hash = HashKey<ARG_KEY>(key);
        for (Node** link = &m_table[hash % m_tableSize]; *link != nullptr; link = &(*link)->nextInBucket) {
            Node* const node = *link;
            if (node->hash == hash && CompareElements(&node->pair.key, &key)) {
                *link = node->nextInBucket;
                Unlink(node);
                return TRUE;
            }
        }
        return FALSE;
    }
    void RemoveAll() {
        Node* node = m_first;
        m_first = m_last = nullptr;
        m_count = 0;
        if (m_table != nullptr) {
            std::fill_n(m_table, m_tableSize, nullptr);
        }
        while (node != nullptr) {
            Node* const next = node->next;
            m_pool.Destroy(node);
            node = next;
        }
        if (m_count == 0) {
            m_pool.Release();
        }
    }

    POSITION GetStartPosition() const { return ToPosition(m_first); }
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {
        ENSURE(rNextPosition != nullptr);
        const Node* const node = reinterpret_cast<const Node*>(rNextPosition);
        rNextPosition = ToPosition(node->next);
        rKey = node->pair.key;
        rValue = node->pair.value;
    }
    const CPair* PGetFirstAssoc() const { return ToPair(m_first); }
    CPair* PGetFirstAssoc() { return ToPair(m_first); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const { return ToPair(ToNode(pAssocRet)->next); }
    CPair* PGetNextAssoc(const CPair* pAssocRet) { return ToPair(ToNode(pAssocRet)->next); }

    UINT GetHashTableSize() const { return m_tableSize; }
    /// Only before the first element: how many buckets to begin with.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE) {
        ENSURE(m_count == 0 && hashSize > 0);
        delete[] m_table;
        m_table = nullptr;
        m_tableSize = hashSize;
        if (bAllocNow) {
            m_table = new Node*[m_tableSize]();
        }
    }

    void Serialize(CArchive& ar) override {
        CObject::Serialize(ar);
        if (ar.IsStoring()) {
            ar << static_cast<ULONGLONG>(m_count);
            for (Node* node = m_first; node != nullptr; node = node->next) {
                KEY key(node->pair.key);
                SerializeElements<KEY>(ar, &key, 1);
                SerializeElements<VALUE>(ar, &node->pair.value, 1);
            }
            return;
        }
        ULONGLONG count = 0;
        ar >> count;
        fx::ArchiveChecks::RequireElements(ar, count);
        for (; count > 0; --count) {
            KEY key{};
            SerializeElements<KEY>(ar, &key, 1);
            SerializeElements<VALUE>(ar, &(*this)[key], 1);
        }
    }
    void AssertValid() const override {
        CObject::AssertValid();
        ASSERT((m_first == nullptr) == (m_count == 0) && (m_last == nullptr) == (m_count == 0));
    }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << L"with " << static_cast<LONGLONG>(m_count) << L" elements\n";
    }

private:
    struct Node {
        CPair pair; ///< first, so that a pair's address is its node's
        UINT hash;
        Node* nextInBucket;
        Node* previous;
        Node* next;
    };

    static POSITION ToPosition(const Node* node) { return reinterpret_cast<POSITION>(const_cast<Node*>(node)); }
    static CPair* ToPair(Node* node) { return node == nullptr ? nullptr : &node->pair; }
    static const CPair* ToPair(const Node* node) { return node == nullptr ? nullptr : &node->pair; }
    static Node* ToNode(const CPair* pair) {
        ENSURE(pair != nullptr);
        return reinterpret_cast<Node*>(const_cast<CPair*>(pair));
    }
    template <typename Argument>
    Node* FindNode(const Argument& key, UINT hash) const {
        if (m_table == nullptr) {
            return nullptr;
        }
        Node* node = m_table[hash % m_tableSize];
        while (node != nullptr && !(node->hash == hash && CompareElements(&node->pair.key, &key))) {
            node = node->nextInBucket;
        }
        return node;
    }
    template <typename Argument>
    Node* AddNode(const Argument& key, UINT hash) {
        if (m_table == nullptr) {
            m_table = new Node*[m_tableSize]();
        } else if (m_count >= static_cast<INT_PTR>(m_tableSize)) {
            Rehash(m_tableSize * 2 + 1);
        }
        Node*& bucket = m_table[hash % m_tableSize];
        Node* const node = m_pool.Make(CPair{KEY(key), VALUE()}, hash, bucket, m_last, nullptr);
        bucket = node;
        (m_last == nullptr ? m_first : m_last->next) = node;
        m_last = node;
        ++m_count;
        return node;
    }
    void Unlink(Node* node) {
        (node->previous == nullptr ? m_first : node->previous->next) = node->next;
        (node->next == nullptr ? m_last : node->next->previous) = node->previous;
        --m_count;
        m_pool.Destroy(node);
        if (m_count == 0) {
            m_pool.Release();
        }
    }
    void Rehash(UINT size) {
        Node** const table = new Node*[size]();
        for (Node* node = m_first; node != nullptr; node = node->next) {
            Node*& bucket = table[node->hash % size];
            node->nextInBucket = bucket;
            bucket = node;
        }
        delete[] m_table;
        m_table = table;
        m_tableSize = size;
    }

    Node** m_table = nullptr;
    UINT m_tableSize = 17;
    INT_PTR m_count = 0;
    Node* m_first = nullptr;
    Node* m_last = nullptr;
    fx::NodePool<Node> m_pool;
};
