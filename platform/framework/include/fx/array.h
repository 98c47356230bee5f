#pragma once

// CArray: elements in one block of memory, indexed from 0.

#include "fx/element_helpers.h"

#include <memory>
#include <new>

/// A bad index throws CInvalidArgException. Growing moves the elements, so references to them end; an argument may be a
/// reference to an element of the same array all the same.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject {
public:
    CArray() = default;
    ~CArray() override { RemoveAll(); }

    INT_PTR GetSize() const { return m_size; }
    INT_PTR GetCount() const { return m_size; }
    BOOL IsEmpty() const { return m_size == 0; }
    /// Greatest valid index; -1 when empty.
    INT_PTR GetUpperBound() const { return m_size - 1; }

    /// New elements are value-initialised. nGrowBy, unless -1, becomes the number of elements to make room for at a
    /// time; 0 (the start value) grows by half of the size, so that appending stays linear.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1) {
        ENSURE(nNewSize >= 0);
        if (nGrowBy >= 0) {
            m_growBy = nGrowBy;
        }
        if (nNewSize == 0) {
            RemoveAll();
            return;
        }
        if (nNewSize < m_size) {
            std::destroy(m_data + nNewSize, m_data + m_size);
            m_size = nNewSize;
            return;
        }
        if (nNewSize > m_capacity) {
            Reallocate(GrownCapacity(nNewSize));
        }
        for (; m_size < nNewSize; ++m_size) {
            ::new (static_cast<void*>(m_data + m_size)) TYPE();
        }
    }
    void FreeExtra() {
        if (m_size == 0) {
            RemoveAll();
        } else if (m_size != m_capacity) {
            Reallocate(m_size);
        }
    }
    void RemoveAll() {
        std::destroy(m_data, m_data + m_size);
        Release(m_data);
        m_data = nullptr;
        m_size = m_capacity = 0;
    }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_data[Checked(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return m_data[Checked(nIndex)]; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_data[Checked(nIndex)]; }
    TYPE& ElementAt(INT_PTR nIndex) { return m_data[Checked(nIndex)]; }
    const TYPE& operator[](INT_PTR nIndex) const { return m_data[Checked(nIndex)]; }
    TYPE& operator[](INT_PTR nIndex) { return m_data[Checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_data[Checked(nIndex)] = newElement; }
    /// Null when empty.
    const TYPE* GetData() const { return m_data; }
    TYPE* GetData() { return m_data; }

    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
        ENSURE(nIndex >= 0);
        if (nIndex < m_size) {
            m_data[nIndex] = newElement;
        } else if (nIndex < m_capacity) {
            SetSize(nIndex + 1);
            m_data[nIndex] = newElement;
        } else {
            // newElement may lie in the memory that is about to be given back.
            TYPE element(newElement);
            SetSize(nIndex + 1);
            m_data[nIndex] = std::move(element);
        }
    }
    /// Returns the index of the new element.
    INT_PTR Add(ARG_TYPE newElement) {
        const INT_PTR index = m_size;
        SetAtGrow(index, newElement);
        return index;
    }
    /// Returns the index of the first appended element. The array may be appended to itself.
    INT_PTR Append(const CArray& src) {
        const INT_PTR first = m_size;
        const INT_PTR count = src.m_size;
        SetSize(first + count);
        CopyElements<TYPE>(m_data + first, src.m_data, count);
        return first;
    }
    void Copy(const CArray& src) {
        if (this != &src) {
            SetSize(src.m_size);
            CopyElements<TYPE>(m_data, src.m_data, src.m_size);
        }
    }

    /// An index past the end fills the gap with value-initialised elements.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1) {
        ENSURE(nIndex >= 0 && nCount > 0);
        TYPE element(newElement);
        MakeGap(nIndex, nCount);
        for (INT_PTR index = nIndex; index < nIndex + nCount; ++index) {
            m_data[index] = element;
        }
    }
    void InsertAt(INT_PTR nStartIndex, CArray* pNewArray) {
        ENSURE(pNewArray != nullptr && pNewArray != this && nStartIndex >= 0);
        const INT_PTR count = pNewArray->m_size;
        if (count > 0) {
            MakeGap(nStartIndex, count);
            CopyElements<TYPE>(m_data + nStartIndex, pNewArray->m_data, count);
        }
    }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1) {
        ENSURE(nIndex >= 0 && nCount >= 0 && nCount <= m_size - nIndex);
        std::move(m_data + nIndex + nCount, m_data + m_size, m_data + nIndex);
        std::destroy(m_data + m_size - nCount, m_data + m_size);
        m_size -= nCount;
    }

    void Serialize(CArchive& ar) override {
        CObject::Serialize(ar);
        if (ar.IsStoring()) {
            ar << static_cast<ULONGLONG>(m_size);
        } else {
            ULONGLONG count = 0;
            ar >> count;
            fx::ArchiveChecks::RequireElements(ar, count);
            SetSize(static_cast<INT_PTR>(count));
        }
        SerializeElements<TYPE>(ar, m_data, m_size);
    }
    void AssertValid() const override {
        CObject::AssertValid();
        ASSERT(m_size >= 0 && m_size <= m_capacity && (m_data != nullptr || m_capacity == 0));
    }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << L"with " << static_cast<LONGLONG>(m_size) << L" elements";
        if (dc.GetDepth() > 0) {
            DumpElements<TYPE>(dc, m_data, m_size);
        }
        dc << L"\n";
    }

private:
    INT_PTR Checked(INT_PTR index) const {
        if (index < 0 || index >= m_size) {
            AfxThrowInvalidArgException();
        }
        return index;
    }
    INT_PTR GrownCapacity(INT_PTR needed) const {
        const INT_PTR step = m_growBy > 0 ? m_growBy : std::max<INT_PTR>(4, m_size / 2);
        return std::max(needed, m_size == 0 && m_growBy == 0 ? needed : m_capacity + step);
    }
    static TYPE* Allocate(INT_PTR count) {
        return static_cast<TYPE*>(
            ::operator new(static_cast<std::size_t>(count) * sizeof(TYPE), std::align_val_t(alignof(TYPE))));
    }
    static void Release(TYPE* data) { ::operator delete(static_cast<void*>(data), std::align_val_t(alignof(TYPE))); }

    void Reallocate(INT_PTR capacity) {
        if (capacity > static_cast<INT_PTR>(PTRDIFF_MAX / sizeof(TYPE))) {
            AfxThrowMemoryException();
        }
        TYPE* const fresh = Allocate(capacity);
        if constexpr (std::is_move_constructible_v<TYPE>) {
            std::uninitialized_move(m_data, m_data + m_size, fresh);
        } else {
            std::uninitialized_copy(m_data, m_data + m_size, fresh);
        }
        std::destroy(m_data, m_data + m_size);
        Release(m_data);
        m_data = fresh;
        m_capacity = capacity;
    }
    void MakeGap(INT_PTR index, INT_PTR count) {
        const INT_PTR before = m_size;
        SetSize(std::max(before, index) + count);
        if (index < before) {
            std::move_backward(m_data + index, m_data + before, m_data + before + count);
            for (INT_PTR gap = index; gap < std::min(index + count, before); ++gap) {
                m_data[gap] = TYPE();
            }
        }
    }

    TYPE* m_data = nullptr;
    INT_PTR m_size = 0;
    INT_PTR m_capacity = 0;
    INT_PTR m_growBy = 0;
};
