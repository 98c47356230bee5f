#include "documents/preview_pages.h"

namespace fx {

namespace {

constexpr int kMillimetre = 100; ///< the frame of a metafile counts hundredths
constexpr std::size_t kMostKept = 16;
constexpr COLORREF kPaper = RGB(255, 255, 255);

/// Among the framework's texts.
enum PageText : UINT { kPagesText = 17293 };

/// A page while the view draws it. What the view asks about the device the printer answers.
class PageDc : public CDC {
public:
    explicit PageDc(HDC printer) {
        const RECT frame{0, 0, kMillimetre * ::GetDeviceCaps(printer, HORZSIZE),
                         kMillimetre * ::GetDeviceCaps(printer, VERTSIZE)};
        if (!Attach(::CreateEnhMetaFileW(printer, nullptr, &frame, nullptr))) {
            AfxThrowResourceException();
        }
        m_bPrinting = TRUE;
    }
    ~PageDc() override {
        if (m_hDC != nullptr) {
            ::DeleteEnhMetaFile(Close());
        }
    }
    HENHMETAFILE Close() { return ::CloseEnhMetaFile(Detach()); }
};

/// What of a sheet can be printed, in the printer's dots; another device than a printer uses all of it.
struct PrintedPart {
    explicit PrintedPart(HDC printer)
        : part(CPoint(::GetDeviceCaps(printer, PHYSICALOFFSETX), ::GetDeviceCaps(printer, PHYSICALOFFSETY)),
               CSize(::GetDeviceCaps(printer, HORZRES), ::GetDeviceCaps(printer, VERTRES))),
          sheet(::GetDeviceCaps(printer, PHYSICALWIDTH), ::GetDeviceCaps(printer, PHYSICALHEIGHT)) {
        if (sheet.cx <= 0 || sheet.cy <= 0) {
            sheet = part.Size();
            part.MoveToXY(0, 0);
        }
    }
    CRect ScaledTo(const CRect& rect) const {
        return CRect(rect.left + ::MulDiv(part.left, rect.Width(), sheet.cx),
                     rect.top + ::MulDiv(part.top, rect.Height(), sheet.cy),
                     rect.left + ::MulDiv(part.right, rect.Width(), sheet.cx),
                     rect.top + ::MulDiv(part.bottom, rect.Height(), sheet.cy));
    }
    CRect part;
    CSize sheet;
};

CSize SheetOf(HDC printer) {
    const PrintedPart printed(printer);
    return CSize(::MulDiv(printed.sheet.cx, ::GetDeviceCaps(printer, HORZSIZE), printed.part.Width()),
                 ::MulDiv(printed.sheet.cy, ::GetDeviceCaps(printer, VERTSIZE), printed.part.Height()));
}

} // namespace

PreviewPages::PreviewPages(CView& view, CPrintInfo& info)
    : m_view(view),
      m_info(info),
      m_printer(info.m_pPD->m_pd.hDC),
      m_last(info.GetMaxPage()),
      m_sheet(SheetOf(m_printer)) {}

bool PreviewPages::Has(UINT page) {
    if (page < First() || page > m_last) {
        return false;
    }
    if (m_pictures.contains(page)) {
        return true;
    }
    PageDc dc(m_printer);
    m_info.m_nCurPage = page;
    m_info.m_bContinuePrinting = TRUE;
    m_view.OnPrepareDC(&dc, &m_info);
    if (!m_info.m_bContinuePrinting) {
        m_last = page - 1;
        return false;
    }
    m_info.m_rectDraw.SetRect(0, 0, ::GetDeviceCaps(m_printer, HORZRES), ::GetDeviceCaps(m_printer, VERTRES));
    dc.DPtoLP(&m_info.m_rectDraw);
    m_view.OnPrint(&dc, &m_info);
    if (m_pictures.size() == kMostKept) {
        m_pictures.clear();
    }
    m_pictures.emplace(page, dc.Close());
    return true;
}

void PreviewPages::Draw(CDC& dc, const CRect& sheet, UINT page) {
    dc.FillSolidRect(sheet, kPaper);
    if (Has(page)) {
        const CRect part = PrintedPart(m_printer).ScaledTo(sheet);
        ::PlayEnhMetaFile(dc.GetSafeHdc(), m_pictures[page].get(), part);
    }
}

CString PreviewPages::Describe(UINT first, UINT last) const {
    CString forms = m_info.m_strPageDesc, form, text;
    if (forms.IsEmpty()) {
        forms.LoadString(kPagesText);
    }
    AfxExtractSubString(form, forms, first < last ? 1 : 0);
    text.Format(form, first, last);
    return text;
}

} // namespace fx
