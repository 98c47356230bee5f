#pragma once

#include "afxwin.h"
#include "fx/print.h"

#include <map>
#include <memory>

namespace fx {

/// The pages of a job, drawn by the view as for the printer and kept as pictures of any size. User-interface thread
/// only.
class PreviewPages {
public:
    /// Both outlive the object; `info` has the printer's context.
    PreviewPages(CView& view, CPrintInfo& info);

    UINT First() const { return m_info.GetMinPage(); }
    /// As far as the view has told; 0xFFFF while it has not.
    UINT Last() const { return m_last; }
    /// Asks the view for a page that it has not drawn yet. False: the document ends before it.
    bool Has(UINT page);
    /// Millimetres.
    CSize Sheet() const { return m_sheet; }
    /// The sheet with the page, which Has, scaled to a rectangle of pixels.
    void Draw(CDC& dc, const CRect& sheet, UINT page);
    /// "Page 3", or "Pages 3-4".
    CString Describe(UINT first, UINT last) const;

private:
    struct Closing {
        void operator()(HENHMETAFILE picture) const { ::DeleteEnhMetaFile(picture); }
    };
    using Picture = std::unique_ptr<std::remove_pointer_t<HENHMETAFILE>, Closing>;

    CView& m_view;
    CPrintInfo& m_info;
    HDC m_printer;
    UINT m_last;
    CSize m_sheet;
    std::map<UINT, Picture> m_pictures;
};

} // namespace fx
