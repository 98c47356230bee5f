#pragma once

#include <windows.h>

/// Counts accesses to memory that is not there: the system swallows those that happen below a window procedure.
class CountedFaults {
public:
    CountedFaults() : m_handler(::AddVectoredExceptionHandler(1, Count)) { s_count = 0; }
    ~CountedFaults() { ::RemoveVectoredExceptionHandler(m_handler); }
    CountedFaults(const CountedFaults&) = delete;
    CountedFaults& operator=(const CountedFaults&) = delete;
    int Get() const { return s_count; }

private:
    static LONG CALLBACK Count(EXCEPTION_POINTERS* exception) {
        s_count += exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION ? 1 : 0;
        return EXCEPTION_CONTINUE_SEARCH;
    }
    inline static int s_count = 0;
    void* m_handler;
};
