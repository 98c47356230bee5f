#pragma once

#include <windows.h>

/// One T per thread, made on first use and deleted when the thread ends. It may be asked for at any time, also by
/// destructors of static objects: after its deletion a new one is made. Only for static objects.
template <typename T>
class ThreadSlot {
public:
    using Maker = T* (*)();
    constexpr explicit ThreadSlot(Maker maker) noexcept : m_maker(maker) {}

    T& Get() {
        const DWORD index = Index();
        if (T* const existing = static_cast<T*>(::FlsGetValue(index))) {
            return *existing;
        }
        T* const made = m_maker();
        ::FlsSetValue(index, made);
        return *made;
    }

private:
    static void WINAPI Delete(void* value) { delete static_cast<T*>(value); }

    DWORD Index() {
        const DWORD known = static_cast<DWORD>(::InterlockedCompareExchange(&m_index, 0, 0));
        if (known != 0) {
            return known - 1;
        }
        const DWORD fresh = ::FlsAlloc(&ThreadSlot::Delete);
        const LONG before = ::InterlockedCompareExchange(&m_index, static_cast<LONG>(fresh + 1), 0);
        if (before != 0) {
            ::FlsFree(fresh);
            return static_cast<DWORD>(before) - 1;
        }
        return fresh;
    }

    Maker m_maker;
    volatile LONG m_index = 0; ///< one more than the slot's number; 0: none yet
};
