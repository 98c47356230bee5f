#include "about_box.h"

#include "barwright_version.h"
#include "resource.h"
#include "scaled.h"
#include "viewer_text.h"

#include <afxglobals.h>

#include <shellapi.h>

#include <algorithm>

namespace {

constexpr wchar_t kVersion[] = L"" BARWRIGHT_VERSION;

struct Link {
    const wchar_t* text;
    const wchar_t* address;
};
constexpr std::array<Link, 2> kAddresses = {{{L"Natural Earth", L"https://www.naturalearthdata.com"},
                                             {L"GSHHG", L"https://www.soest.hawaii.edu/pwessel/gshhg"}}};

// Pixels at 96 DPI.
constexpr int kMargin = 20;
constexpr int kGap = 12;
constexpr int kIconSide = 48;
constexpr int kTextWidth = 320;
constexpr int kLeastButton = 80;
constexpr UINT kFirstLink = 200;

std::wstring TextOf(const CWnd& control) {
    CString text;
    control.GetWindowText(text);
    return text.GetString();
}

} // namespace

bool CAboutBox::Show(CWnd& owner, const std::wstring& title) {
    constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
    if (!Make(owner, title, style, CSize(1, 1)) || !MakeControls(title)) {
        return false;
    }
    FitInside(PlaceControls());
    m_close.SetFocus();
    Run();
    return true;
}

bool CAboutBox::MakeControls(const std::wstring& title) {
    if (!m_icon.Create(L"", WS_CHILD | WS_VISIBLE | SS_ICON | SS_REALSIZEIMAGE, CRect(0, 0, 0, 0), this) ||
        !AddLabel(m_name, title + L" " + kVersion) ||
        !AddLabel(m_text, ViewerText("AboutText") + L"\n\n" + WithName(ViewerText("AboutLicence"), L"MIT"))) {
        return false;
    }
    // Shared: loaded once for all boxes of that size.
    m_icon.SetIcon(static_cast<HICON>(::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_MAINFRAME),
                                                   IMAGE_ICON, Scaled(kIconSide), Scaled(kIconSide), LR_SHARED)));
    m_name.SetFont(&afxGlobalData.fontBold);
    m_text.ModifyStyle(SS_CENTERIMAGE, 0); // in as many lines as it needs
    for (std::size_t link = 0; link < kLinks; ++link) {
        if (!AddLink(m_links[link], kFirstLink + static_cast<UINT>(link), kAddresses[link].text)) {
            return false;
        }
    }
    SetDefaultButton(IDOK);
    return AddButton(m_close, IDOK, ViewerText("ButtonOk"));
}

CSize CAboutBox::PlaceControls() {
    const int margin = Scaled(kMargin), gap = Scaled(kGap), row = RowHeight();
    const int left = margin + Scaled(kIconSide) + gap + gap / 2;
    const int right = left + Scaled(kTextWidth);
    CRect needed(0, 0, right - left, 0);
    {
        CClientDC dc(this);
        CFont* const before = dc.SelectObject(&afxGlobalData.fontRegular);
        dc.DrawText(TextOf(m_text).c_str(), needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
        dc.SelectObject(before);
    }
    int top = margin;
    m_icon.MoveWindow(margin, top, Scaled(kIconSide), Scaled(kIconSide));
    m_name.MoveWindow(left, top, right - left, row);
    top += row;
    m_text.MoveWindow(left, top, right - left, needed.Height());
    top += needed.Height() + gap;
    for (CButton& link : m_links) {
        const int width = static_cast<int>(ButtonSize(static_cast<UINT>(link.GetDlgCtrlID())).cx);
        link.MoveWindow(left, top, width, row);
        top += row;
    }
    top += gap;
    const int width = std::max(Scaled(kLeastButton), static_cast<int>(ButtonSize(IDOK).cx));
    m_close.MoveWindow(right - width, top, width, row);
    return {right + margin, top + row + margin};
}

BOOL CAboutBox::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    if (HIWORD(wParam) == BN_CLICKED && id >= kFirstLink && id < kFirstLink + kLinks) {
        ::ShellExecuteW(GetSafeHwnd(), L"open", kAddresses[id - kFirstLink].address, nullptr, nullptr, SW_SHOWNORMAL);
        return TRUE;
    }
    return CDialogWindow::OnCommand(wParam, lParam);
}

CDialogWindow::Description CAboutBox::Describe() const {
    return {"about",
            {CDialogWindow::Describe("name", m_name), CDialogWindow::Describe("text", m_text),
             CDialogWindow::Describe("naturalEarth", m_links[0]), CDialogWindow::Describe("gshhg", m_links[1]),
             CDialogWindow::Describe("close", m_close)},
            {}};
}
