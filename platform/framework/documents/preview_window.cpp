#include "documents/preview_window.h"

#include "window/dialog_template.h"

#include <afxcontrolbars.h>

#include <algorithm>
#include <array>

namespace fx {

namespace {

/// Among the framework's texts.
enum PreviewText : UINT {
    kTitleText = 17284,
    kPrintText,
    kNextText,
    kPreviousText,
    kTwoPagesText,
    kOnePageText,
    kInText,
    kOutText,
    kCloseText
};
enum Control { kNext = 1001, kPrevious, kTwoPages, kIn, kOut, kPageLabel };

// Dialog units.
constexpr short kRow = 4, kHeight = 14, kWidth = 58, kGap = 4, kGroup = 10, kLabelWidth = 90;
constexpr short kStrip = kHeight + 2 * kRow;
constexpr short Place(int index, int groups) {
    return static_cast<short>(kRow + index * (kWidth + kGap) + groups * kGroup);
}

constexpr DialogItem kItems[] = {
    {IDOK, kPrintText, Place(0, 0), kRow, kWidth, kHeight, DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
    {kPrevious, kPreviousText, Place(1, 1), kRow, kWidth, kHeight, DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
    {kNext, kNextText, Place(2, 1), kRow, kWidth, kHeight, DialogControl::Button, BS_DEFPUSHBUTTON | WS_TABSTOP},
    {kTwoPages, kTwoPagesText, Place(3, 2), kRow, kWidth, kHeight, DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
    {kIn, kInText, Place(4, 3), kRow, kWidth, kHeight, DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
    {kOut, kOutText, Place(5, 3), kRow, kWidth, kHeight, DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
    {IDCANCEL, kCloseText, Place(6, 4), kRow, kWidth, kHeight, DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
    {kPageLabel, 0, Place(7, 5), static_cast<short>(kRow + 3), kLabelWidth, 8},
};

/// Percent.
constexpr std::array kZooms = {25, 50, 75, 100, 150, 200, 400};

CString Text(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}

class PreviewWindow : public CDialog {
public:
    PreviewWindow(CWnd* owner, PreviewPages& pages, const CString& job, const std::function<void(CPreviewView&)>& atEnd)
        : m_template(MakeDialogTemplate({static_cast<short>(Place(7, 5) + kLabelWidth), 280,
                                         WS_POPUP | WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, kTitleText},
                                        kItems)),
          m_pages(pages),
          m_job(job),
          m_atEnd(atEnd) {
        InitModalIndirect(TemplateIn(m_template), owner);
    }

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        CRect strip(0, 0, 0, kStrip);
        MapDialogRect(strip);
        m_strip = strip.bottom;
        m_view = new CPreviewView(m_pages); // deletes itself with its window
        m_view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST);
        SetWindowText(m_job.IsEmpty() ? Text(kTitleText) : m_job + L" - " + Text(kTitleText));
        CoverOwner();
        m_view->SetCurrentPage(m_pages.First());
        ShowState();
        GetDlgItem(kNext)->SetFocus();
        return FALSE;
    }

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        switch (LOWORD(wParam)) {
        case kNext:
            m_view->SetCurrentPage(m_view->GetCurrentPage() + m_view->GetPagesShown());
            break;
        case kPrevious:
            m_view->SetCurrentPage(m_view->GetCurrentPage() -
                                   std::min(m_view->GetCurrentPage(), m_view->GetPagesShown()));
            break;
        case kTwoPages:
            m_view->SetPagesShown(3 - m_view->GetPagesShown());
            break;
        case kIn:
        case kOut:
            m_view->SetZoom(LOWORD(wParam) == kIn ? LargerZoom() : SmallerZoom());
            break;
        default:
            return CDialog::OnCommand(wParam, lParam);
        }
        ShowState();
        return TRUE;
    }

    BOOL PreTranslateMessage(MSG* pMsg) override {
        const UINT key = pMsg->message == WM_KEYDOWN ? static_cast<UINT>(pMsg->wParam) : 0;
        if (key == VK_NEXT || key == VK_PRIOR) {
            SendMessage(WM_COMMAND, key == VK_NEXT ? kNext : kPrevious);
            return TRUE;
        }
        return CDialog::PreTranslateMessage(pMsg);
    }

    afx_msg void OnSize(UINT nType, int cx, int cy) {
        CDialog::OnSize(nType, cx, cy);
        if (m_view != nullptr) {
            m_view->MoveWindow(0, m_strip, cx, std::max(0, cy - m_strip));
        }
    }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point) {
        // The keys stay with the buttons, and the wheel comes to where the keys are.
        if ((nFlags & MK_CONTROL) != 0) {
            SendMessage(WM_COMMAND, zDelta > 0 ? kIn : kOut);
            return TRUE;
        }
        return static_cast<BOOL>(
            m_view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(nFlags, zDelta), MAKELPARAM(point.x, point.y)));
    }
    afx_msg void OnDestroy() {
        m_atEnd(*m_view);
        CDialog::OnDestroy();
    }
    DECLARE_MESSAGE_MAP()

private:
    void CoverOwner() {
        CRect room;
        if (const CWnd* const owner = GetParent()) {
            owner->GetWindowRect(room);
        }
        if (!room.IsRectEmpty()) {
            MoveWindow(room);
        }
    }
    int LargerZoom() const {
        const auto* const larger =
            std::find_if(kZooms.begin(), kZooms.end(),
                         [now = m_view->GetPercent(m_view->GetZoom())](int zoom) { return zoom > now; });
        return larger != kZooms.end() ? *larger : m_view->GetZoom();
    }
    /// The whole sheet once a step would be smaller than that.
    int SmallerZoom() const {
        const auto smaller =
            std::find_if(kZooms.rbegin(), kZooms.rend(), [this](int zoom) { return zoom < m_view->GetZoom(); });
        return smaller != kZooms.rend() && *smaller > m_view->GetPercent(0) ? *smaller : 0;
    }
    void ShowState() {
        SetDlgItemText(kTwoPages, Text(m_view->GetPagesShown() == 1 ? kTwoPagesText : kOnePageText));
        SetDlgItemText(kPageLabel, m_view->GetPageText());
        const CWnd* const focus = GetFocus();
        GetDlgItem(kNext)->EnableWindow(m_view->HasNextPage());
        GetDlgItem(kPrevious)->EnableWindow(m_view->HasPreviousPage());
        GetDlgItem(kIn)->EnableWindow(LargerZoom() != m_view->GetZoom());
        GetDlgItem(kOut)->EnableWindow(m_view->GetZoom() != 0);
        if (focus != nullptr && !focus->IsWindowEnabled()) {
            GetDlgItem(IDCANCEL)->SetFocus(); // keys go nowhere from a disabled button
        }
    }

    std::vector<DWORD> m_template;
    PreviewPages& m_pages;
    CString m_job;
    const std::function<void(CPreviewView&)>& m_atEnd;
    CPreviewView* m_view = nullptr;
    int m_strip = 0;
};

BEGIN_MESSAGE_MAP(PreviewWindow, CDialog)
ON_WM_SIZE()
ON_WM_MOUSEWHEEL()
ON_WM_DESTROY()
END_MESSAGE_MAP()

} // namespace

bool RunPreview(CWnd* owner, PreviewPages& pages, const CString& job, const std::function<void(CPreviewView&)>& atEnd) {
    return PreviewWindow(owner, pages, job, atEnd).DoModal() == IDOK;
}

} // namespace fx
