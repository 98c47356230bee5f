#include "fx/string_data.h"

#include <cstdlib>
#include <limits>

namespace {

struct EmptyBlock {
    CStringData header;
    wchar_t terminator[2]; ///< serves both widths
};

class StringManager final : public IAtlStringMgr {
public:
    constexpr StringManager() noexcept = default;

    CStringData* Allocate(int nAllocLength, int nCharSize) noexcept override {
        const std::size_t bytes = BlockSize(nAllocLength, nCharSize);
        CStringData* const data = bytes == 0 ? nullptr : static_cast<CStringData*>(std::malloc(bytes));
        if (data != nullptr) {
            data->pStringMgr = this;
            data->nDataLength = 0;
            data->nAllocLength = CharactersIn(bytes, nCharSize);
            data->nRefs = 1;
        }
        return data;
    }
    void Free(CStringData* pData) noexcept override { std::free(pData); }
    CStringData* Reallocate(CStringData* pData, int nAllocLength, int nCharSize) noexcept override {
        const std::size_t bytes = BlockSize(nAllocLength, nCharSize);
        CStringData* const data = bytes == 0 ? nullptr : static_cast<CStringData*>(std::realloc(pData, bytes));
        if (data != nullptr) {
            data->nAllocLength = CharactersIn(bytes, nCharSize);
        }
        return data;
    }
    CStringData* GetNilString() noexcept override {
        m_empty.header.AddRef();
        return &m_empty.header;
    }
    IAtlStringMgr* Clone() noexcept override { return this; }

private:
    // Rounded up to what the heap gives anyway. 0: too long.
    static std::size_t BlockSize(int length, int charSize) noexcept {
        constexpr std::size_t grain = 16;
        if (length < 0 || length > (std::numeric_limits<int>::max() - 64) / charSize) {
            return 0;
        }
        const std::size_t bytes = sizeof(CStringData) + (static_cast<std::size_t>(length) + 1) * charSize;
        return (bytes + grain - 1) / grain * grain;
    }
    static int CharactersIn(std::size_t bytes, int charSize) noexcept {
        return static_cast<int>((bytes - sizeof(CStringData)) / charSize) - 1;
    }

    // Two references of its own, so that it always counts as shared and is never written or freed.
    EmptyBlock m_empty{{this, 0, 0, 2}, {0, 0}};
};

// No constructor and no destructor runs: strings of static objects are made before and die after everything here.
constinit StringManager g_manager;

} // namespace

IAtlStringMgr* AFXAPI AfxGetStringManager() noexcept { return &g_manager; }
