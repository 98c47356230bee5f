#pragma once

// The shared, reference-counted block behind a string, and the managers that allocate such blocks.

#include "fx/base.h"

struct IAtlStringMgr;

/// Header of a block; the characters follow it. A count below 0 means locked: one owner, never shared.
struct CStringData {
    IAtlStringMgr* pStringMgr;
    int nDataLength;  ///< characters, without the terminating zero
    int nAllocLength; ///< characters that fit, without the terminating zero
    long nRefs;

    void* data() noexcept { return this + 1; }
    void AddRef() noexcept { InterlockedIncrement(&nRefs); }
    bool IsLocked() const noexcept { return nRefs < 0; }
    bool IsShared() const noexcept { return nRefs > 1; }
    void Lock() noexcept {
        if (--nRefs == 0) {
            nRefs = -1;
        }
    }
    void Unlock() noexcept {
        if (IsLocked() && ++nRefs == 0) {
            nRefs = 1;
        }
    }
    inline void Release() noexcept;
};

/// Allocates the blocks. Implementations must be callable from every thread.
struct IAtlStringMgr {
    /// Null when memory is out.
    virtual CStringData* Allocate(int nAllocLength, int nCharSize) noexcept = 0;
    virtual void Free(CStringData* pData) noexcept = 0;
    /// Null when memory is out; the old block stays valid then.
    virtual CStringData* Reallocate(CStringData* pData, int nAllocLength, int nCharSize) noexcept = 0;
    /// The empty string's block, with a reference taken for the caller.
    virtual CStringData* GetNilString() noexcept = 0;
    virtual IAtlStringMgr* Clone() noexcept = 0;

protected:
    ~IAtlStringMgr() = default;
};

inline void CStringData::Release() noexcept {
    if (InterlockedDecrement(&nRefs) <= 0) {
        pStringMgr->Free(this);
    }
}

/// The manager of every string that is given none; lives in the framework DLL, usable before and after any static
/// object.
FRAMEWORK_API IAtlStringMgr* AFXAPI AfxGetStringManager() noexcept;
