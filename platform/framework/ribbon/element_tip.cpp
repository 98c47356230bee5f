// What a tooltip says of an element of the ribbon.
#include "ribbon/element_tip.h"

#include "afxkeyboardmanager.h"
#include "afxribbonbar.h"
#include "afxtooltipctrl.h"
#include "ribbon/shown_text.h"

namespace {

struct TipTexts {
    CString title;
    CString description;
};

/// "Open (Ctrl+O)". A text from a menu may carry its keys behind a tab.
CString WithKeys(const CString& name, const CMFCRibbonBaseElement& element) {
    const int tab = name.Find(L'\t');
    CString keys = tab < 0 ? CString() : name.Mid(tab + 1);
    const CMFCRibbonBar* bar = element.GetTopLevelRibbonBar();
    CFrameWnd* frame = bar != nullptr && bar->GetSafeHwnd() != nullptr
                           ? DYNAMIC_DOWNCAST(CFrameWnd, bar->GetTopLevelFrame())
                           : nullptr;
    if (keys.IsEmpty() && frame != nullptr && element.GetID() != 0) {
        CKeyboardManager::FindDefaultAccelerator(element.GetID(), keys, frame, TRUE);
    }
    const CString shown = tab < 0 ? name : name.Left(tab);
    return keys.IsEmpty() ? shown : shown + L" (" + keys + L")";
}

/// The tip says more than the name: the name is the title then, and what else there is to say stands below.
TipTexts TextsOf(const CMFCRibbonBaseElement& element) {
    const CString name = ribbon::PlainTextOf(element);
    const CString tip = element.GetToolTipText();
    TipTexts texts{WithKeys(name, element), element.GetDescription()};
    if (name.IsEmpty() || !element.IsKindOf(RUNTIME_CLASS(CMFCRibbonButton))) {
        texts.title = tip;
    } else if (tip != name && texts.description.IsEmpty()) {
        texts.description = tip;
    } else if (tip != name && texts.description != tip) {
        texts.description = tip + L"\n" + texts.description;
    }
    return texts;
}

} // namespace

void FillRibbonTooltip(CToolTipCtrl& control, NMHDR& request, CMFCRibbonBaseElement& element, bool showsDescription,
                       CString& lent) {
    lent = element.GetToolTipText();
    if (CMFCToolTipCtrl* tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, &control)) {
        tooltip->SetHotRibbonButton(DYNAMIC_DOWNCAST(CMFCRibbonButton, &element));
        const TipTexts texts = showsDescription ? TextsOf(element) : TipTexts{lent, CString()};
        lent = texts.title;
        tooltip->SetDescription(texts.description);
    }
    reinterpret_cast<NMTTDISPINFO&>(request).lpszText = const_cast<LPTSTR>(static_cast<LPCTSTR>(lent));
}
