#include "fx/image_list.h"

#include "fx/dc_scope.h"
#include "fx/dump_context.h"
#include "fx/module_state.h"
#include "gdi/dc_calls.h"
#include "gdi/gdi_maps.h"

#include <objbase.h>
#include <vector>

IMPLEMENT_DYNCREATE(CImageList, CObject)

namespace {

class Stream {
public:
    Stream() noexcept { ::CreateStreamOnHGlobal(nullptr, TRUE, &m_stream); }
    ~Stream() {
        if (m_stream != nullptr) {
            m_stream->Release();
        }
    }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;
    IStream* Get() const noexcept { return m_stream; }

private:
    IStream* m_stream = nullptr;
};

std::vector<BYTE> ReadAll(IStream* stream) {
    STATSTG status = {};
    std::vector<BYTE> bytes;
    if (SUCCEEDED(stream->Stat(&status, STATFLAG_NONAME))) {
        bytes.resize(static_cast<std::size_t>(status.cbSize.QuadPart));
        ULONG read = 0;
        stream->Seek(LARGE_INTEGER{}, STREAM_SEEK_SET, nullptr);
        stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read);
        bytes.resize(read);
    }
    return bytes;
}

} // namespace

CImageList::~CImageList() { CImageList::DeleteImageList(); }

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList) {
    return ThreadGdiMaps().imageLists.FromHandle(hImageList, RUNTIME_CLASS(CImageList), fx::HandlerDepth());
}
CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList) {
    return ThreadGdiMaps().imageLists.LookupPermanent(hImageList);
}
void PASCAL CImageList::DeleteTempMap() { ThreadGdiMaps().imageLists.DeleteTemp(); }

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    ASSERT(m_hImageList == nullptr);
    if (hImageList == nullptr) {
        return FALSE;
    }
    m_hImageList = hImageList;
    ThreadGdiMaps().imageLists.SetPermanent(hImageList, this);
    CountGdiObjectMade();
    return TRUE;
}

HIMAGELIST CImageList::Detach() {
    const HIMAGELIST handle = m_hImageList;
    if (handle != nullptr) {
        ThreadGdiMaps().imageLists.RemovePermanent(handle, this);
        CountGdiObjectGone();
        m_hImageList = nullptr;
    }
    return handle;
}

BOOL CImageList::DeleteImageList() { return m_hImageList != nullptr && ::ImageList_Destroy(Detach()); }

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}
BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}
BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask) {
    return Attach(
        ::ImageList_LoadBitmap(AfxFindResourceHandle(lpszBitmapID, RT_BITMAP), lpszBitmapID, cx, nGrow, crMask));
}
BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy) {
    return Attach(::ImageList_Merge(imagelist1.m_hImageList, nImage1, imagelist2.m_hImageList, nImage2, dx, dy));
}
BOOL CImageList::Create(CImageList* pImageList) {
    ENSURE(pImageList != nullptr);
    return Attach(::ImageList_Duplicate(pImageList->m_hImageList));
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Add(m_hImageList, SafeHandle(pbmImage), SafeHandle(pbmMask));
}
int CImageList::Add(CBitmap* pbmImage, COLORREF crMask) {
    return ::ImageList_AddMasked(m_hImageList, SafeHandle(pbmImage), crMask);
}
BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Replace(m_hImageList, nImage, SafeHandle(pbmImage), SafeHandle(pbmMask));
}
BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags) {
    return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}
BOOL CImageList::Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags) {
    ENSURE(pSrc != nullptr);
    return ::ImageList_Copy(m_hImageList, iDst, pSrc->m_hImageList, iSrc, uFlags);
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
    return DrawEx(pDC, nImage, pt, SIZE{0, 0}, CLR_DEFAULT, CLR_DEFAULT, nStyle);
}
BOOL CImageList::DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle) {
    if (pDC == nullptr) {
        return FALSE;
    }
    int width = sz.cx, height = sz.cy;
    if (width == 0 || height == 0) {
        ::ImageList_GetIconSize(m_hImageList, &width, &height);
    }
    const fx::PictureScope place(*pDC, CRect(pt, CSize(width, height)));
    return ::ImageList_DrawEx(m_hImageList, nImage, *pDC, place.Corner().x, place.Corner().y, sz.cx, sz.cy, clrBk,
                              clrFg, nStyle);
}
BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp) {
    ENSURE(pimldp != nullptr);
    IMAGELISTDRAWPARAMS parameters = *pimldp;
    parameters.cbSize = sizeof(parameters);
    parameters.himl = m_hImageList;
    return ::ImageList_DrawIndirect(&parameters);
}
BOOL CImageList::DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle, DWORD dwRop,
                              COLORREF rgbBack, COLORREF rgbFore, DWORD fState, DWORD Frame, COLORREF crEffect) {
    IMAGELISTDRAWPARAMS parameters = {};
    parameters.i = nImage;
    parameters.hdcDst = SafeHandle(pDC);
    parameters.x = pt.x;
    parameters.y = pt.y;
    parameters.cx = sz.cx;
    parameters.cy = sz.cy;
    parameters.xBitmap = ptOrigin.x;
    parameters.yBitmap = ptOrigin.y;
    parameters.rgbBk = rgbBack;
    parameters.rgbFg = rgbFore;
    parameters.fStyle = fStyle;
    parameters.dwRop = dwRop;
    parameters.fState = fState;
    parameters.Frame = Frame;
    parameters.crEffect = crEffect;
    return DrawIndirect(&parameters);
}

BOOL CImageList::Write(CArchive* pArchive) {
    ENSURE(pArchive != nullptr && pArchive->IsStoring());
    const Stream stream;
    if (stream.Get() == nullptr || !::ImageList_Write(m_hImageList, stream.Get())) {
        return FALSE;
    }
    const std::vector<BYTE> bytes = ReadAll(stream.Get());
    *pArchive << static_cast<DWORD>(bytes.size());
    pArchive->Write(bytes.data(), static_cast<INT>(bytes.size()));
    return TRUE;
}

BOOL CImageList::Read(CArchive* pArchive) {
    ENSURE(pArchive != nullptr && pArchive->IsLoading());
    DWORD size = 0;
    *pArchive >> size;
    const Stream stream;
    if (stream.Get() == nullptr) {
        return FALSE;
    }
    BYTE piece[4096];
    for (DWORD left = size; left > 0;) {
        const UINT count = std::min<DWORD>(left, sizeof(piece));
        if (pArchive->Read(piece, count) != count) {
            AfxThrowArchiveException(CArchiveException::endOfFile);
        }
        stream.Get()->Write(piece, count, nullptr);
        left -= count;
    }
    stream.Get()->Seek(LARGE_INTEGER{}, STREAM_SEEK_SET, nullptr);
    const HIMAGELIST read = ::ImageList_Read(stream.Get());
    if (read == nullptr) {
        return FALSE;
    }
    DeleteImageList();
    return Attach(read);
}

CImageList* PASCAL CImageList::GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot) {
    return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
}

void CImageList::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << L"m_hImageList = " << static_cast<const void*>(m_hImageList) << L"\n";
}
void CImageList::AssertValid() const { CObject::AssertValid(); }
