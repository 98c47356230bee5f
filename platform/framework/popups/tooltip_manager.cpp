#include "afxtooltipmanager.h"

#include "afxglobals.h"
#include "afxvisualmanager.h"
#include "popups/tooltip_width.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

struct TypeSettings {
    CRuntimeClass* kind = nullptr;
    CMFCToolTipInfo params;
};

struct LiveTooltip {
    CToolTipCtrl* tooltip;
    CWnd* owner;
    UINT type;
};

/// One entry per type bit.
std::array<TypeSettings, 16>& Settings() {
    static std::array<TypeSettings, 16> settings;
    return settings;
}

std::vector<LiveTooltip>& Live() {
    static std::vector<LiveTooltip> live;
    return live;
}

const TypeSettings* SettingsFor(UINT type) {
    for (std::size_t bit = 0; bit < Settings().size(); ++bit) {
        if (type == 1u << bit) {
            return &Settings()[bit];
        }
    }
    return nullptr;
}

/// Owners are told in turn; each may take its own and other tooltips down meanwhile.
void NotifyOwners(UINT types) {
    std::vector<HWND> owners;
    for (const LiveTooltip& live : Live()) {
        if ((live.type & types) != 0 && std::ranges::find(owners, live.owner->GetSafeHwnd()) == owners.end()) {
            owners.push_back(live.owner->GetSafeHwnd());
        }
    }
    for (const HWND owner : owners) {
        if (::IsWindow(owner)) {
            ::SendMessageW(owner, AFX_WM_UPDATETOOLTIPS, types, 0);
        }
    }
}

} // namespace

CTooltipManager::CTooltipManager() = default;
CTooltipManager::~CTooltipManager() = default;

BOOL CTooltipManager::CreateToolTip(CToolTipCtrl*& pToolTip, CWnd* pWndParent, UINT nType) {
    pToolTip = nullptr;
    const TypeSettings* const settings = SettingsFor(nType);
    if (settings == nullptr || pWndParent == nullptr) {
        return FALSE;
    }
    // What the host did not choose comes from the visual manager; a manager without a look gets the system's tooltip.
    CMFCToolTipInfo look = settings->params;
    CToolTipCtrl* made = nullptr;
    if (settings->kind != nullptr) {
        made = DYNAMIC_DOWNCAST(CToolTipCtrl, settings->kind->CreateObject());
        if (CMFCToolTipCtrl* const own = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, made)) {
            own->SetParams(&look);
        }
    } else if (CMFCVisualManager::GetInstance()->GetToolTipInfo(look, nType)) {
        made = new CMFCToolTipCtrl(&look);
    } else {
        made = new CToolTipCtrl;
    }
    // The bars give texts without key marks: every "&" is to be shown.
    DWORD style = TTS_ALWAYSTIP | TTS_NOPREFIX;
    if (CMFCToolTipCtrl* const own = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, made)) {
        own->SetOwnerType(nType);
        style |= look.m_bBalloonTooltip ? TTS_BALLOON : 0;
    }
    if (made == nullptr || !made->Create(pWndParent, style)) {
        delete made;
        return FALSE;
    }
    if (afxGlobalData.m_nMaxToolTipWidth > 0) {
        made->SetMaxTipWidth(tooltip::WidestText());
    }
    made->Activate(TRUE);
    Live().push_back({made, pWndParent, nType});
    pToolTip = made;
    return TRUE;
}

void CTooltipManager::DeleteToolTip(CToolTipCtrl*& pToolTip) {
    if (pToolTip == nullptr) {
        return;
    }
    std::erase_if(Live(), [pToolTip](const LiveTooltip& live) { return live.tooltip == pToolTip; });
    if (pToolTip->GetSafeHwnd() != nullptr) {
        pToolTip->DestroyWindow();
    }
    delete pToolTip;
    pToolTip = nullptr;
}

void CTooltipManager::SetTooltipText(TOOLINFO* pTI, CToolTipCtrl* pToolTip, UINT, const CString strText,
                                     LPCTSTR lpszDescr) {
    if (pTI == nullptr) {
        return;
    }
    if (CMFCToolTipCtrl* const own = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, pToolTip)) {
        own->SetDescription(lpszDescr);
    }
    if (pToolTip != nullptr && strText.Find(L'\n') >= 0) {
        pToolTip->SetMaxTipWidth(tooltip::WidestText());
    }
    // The control copies the text and the caller frees it, as for all texts of tool descriptions.
    pTI->lpszText = static_cast<LPWSTR>(calloc(static_cast<size_t>(strText.GetLength()) + 1, sizeof(wchar_t)));
    if (pTI->lpszText != nullptr) {
        std::copy_n(static_cast<LPCWSTR>(strText), strText.GetLength() + 1, pTI->lpszText);
    }
}

void CTooltipManager::SetTooltipParams(UINT nTypes, CRuntimeClass* pRTC, CMFCToolTipInfo* pParams) {
    for (std::size_t bit = 0; bit < Settings().size(); ++bit) {
        if ((nTypes & (1u << bit)) != 0) {
            Settings()[bit].kind = pRTC;
            Settings()[bit].params = pParams != nullptr ? *pParams : CMFCToolTipInfo();
        }
    }
    NotifyOwners(nTypes);
}

void CTooltipManager::UpdateTooltips() { NotifyOwners(AFX_TOOLTIP_TYPE_ALL); }
