#include "afxwin.h"
#include "fx/system_dialogs.h"

#include <array>
#include <typeinfo>
#include <utility>

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)

namespace {

/// The one that the system is making for this thread.
thread_local CColorDialog* t_made = nullptr;

/// The system's numbers of the fields that show red, green and blue.
constexpr int kRedField = 706, kGreenField = 707, kBlueField = 708;

COLORREF ShownColor(HWND dialog) {
    const auto part = [dialog](int field) { return static_cast<BYTE>(::GetDlgItemInt(dialog, field, nullptr, FALSE)); };
    return RGB(part(kRedField), part(kGreenField), part(kBlueField));
}

UINT ChangeMessage() {
    static const UINT message = ::RegisterWindowMessageW(SETRGBSTRINGW);
    return message;
}

} // namespace

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd) {
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.rgbResult = clrInit;
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = dwFlags | CC_RGBINIT;
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors() {
    static std::array<COLORREF, 16> colors = [] {
        std::array<COLORREF, 16> white{};
        white.fill(RGB(255, 255, 255));
        return white;
    }();
    return colors.data();
}

INT_PTR CColorDialog::DoModal() {
    m_cc.hwndOwner = CWnd::GetSafeOwner(m_pParentWnd, nullptr)->GetSafeHwnd();
    if (typeid(*this) != typeid(CColorDialog) && m_cc.lpfnHook == nullptr) {
        m_cc.Flags |= CC_ENABLEHOOK;
        m_cc.lpfnHook = &CColorDialog::Hook;
    }
    CColorDialog* const outer = std::exchange(t_made, this);
    const BOOL isChosen = ::ChooseColorW(&m_cc);
    t_made = outer;
    m_cc.hwndOwner = nullptr;
    return isChosen ? IDOK : IDCANCEL;
}

// The button is asked instead of the system's message for a chosen colour, which not every system sends to the hook.
UINT_PTR CALLBACK CColorDialog::Hook(HWND window, UINT message, WPARAM wParam, LPARAM) noexcept {
    if (message == WM_INITDIALOG && t_made != nullptr) {
        std::exchange(t_made, nullptr)->Attach(window);
        return 1;
    }
    auto* const dialog = DYNAMIC_DOWNCAST(CColorDialog, CWnd::FromHandlePermanent(window));
    if (dialog == nullptr) {
        return 0;
    }
    if (message == WM_DESTROY) {
        dialog->Detach();
    } else if (message == WM_COMMAND && LOWORD(wParam) == IDOK) {
        dialog->m_cc.rgbResult = ShownColor(window);
        return dialog->OnColorOK() ? 1 : 0;
    }
    return 0;
}

BOOL CColorDialog::OnColorOK() { return FALSE; }

void CColorDialog::SetCurrentColor(COLORREF clr) {
    ::SendMessageW(m_hWnd, ChangeMessage(), 0, static_cast<LPARAM>(clr));
}
