#include "toolbar/offered_bars.h"

#include "afxmenubar.h"

namespace toolbar {

CString OfferedBars::NameOf(const CMFCToolBar& bar) {
    CString name;
    bar.GetPaneName(name);
    return name;
}

std::vector<CMFCToolBar*> OfferedBars::Of(const CFrameWnd& frame) {
    std::vector<CMFCToolBar*> bars;
    for (POSITION position = CMFCToolBar::GetAllToolbars().GetHeadPosition(); position != nullptr;) {
        auto* const bar =
            const_cast<CMFCToolBar*>(static_cast<const CMFCToolBar*>(CMFCToolBar::GetAllToolbars().GetNext(position)));
        const bool isOffered = bar->GetTopLevelFrame() == &frame && !bar->IsKindOf(RUNTIME_CLASS(CMFCMenuBar)) &&
                               bar->AllowShowOnList() && !NameOf(*bar).IsEmpty();
        if (isOffered) {
            bars.push_back(bar);
        }
    }
    return bars;
}

} // namespace toolbar
