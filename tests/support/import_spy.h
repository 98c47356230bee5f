#pragma once

#include <windows.h>

/// Puts another function in the place of one that this program imports from a DLL, for as long as the object lives.
/// Catches the calls that the program itself makes, not those of other DLLs. The slot is the linker's `__imp_` symbol
/// of the function.
template <class Function>
class ImportSpy {
public:
    ImportSpy(void*& slot, Function* instead) : m_slot(slot), m_before(slot) { Put(reinterpret_cast<void*>(instead)); }
    ~ImportSpy() { Put(m_before); }
    ImportSpy(const ImportSpy&) = delete;
    ImportSpy& operator=(const ImportSpy&) = delete;

    Function* GetOriginal() const { return reinterpret_cast<Function*>(m_before); }

private:
    void Put(void* function) {
        DWORD protection = 0;
        ::VirtualProtect(&m_slot, sizeof(m_slot), PAGE_READWRITE, &protection);
        // The compiler does not know that calls read the slot.
        *const_cast<void* volatile*>(&m_slot) = function;
        ::VirtualProtect(&m_slot, sizeof(m_slot), protection, &protection);
    }

    void*& m_slot;
    void* const m_before;
};
