#include "toolbar/customize_page.h"

#include "core/framework_text.h"
#include "fx/app.h"
#include "fx/window_guard.h"
#include "toolbar/dark_dialog.h"

namespace toolbar {

CustomizePage::CustomizePage(CMFCToolBarsCustomizeDialog& dialog, CustomizeText caption,
                             std::span<const fx::DialogItem> items)
    : m_dialog(dialog),
      m_template(
          fx::MakeDialogTemplate({kPageWidth, kPageHeight, WS_CHILD | WS_CAPTION | WS_DISABLED, caption}, items)) {
    m_psp.dwFlags |= PSP_DLGINDIRECT;
    m_psp.pResource = fx::TemplateIn(m_template);
}

BOOL CustomizePage::OnInitDialog() {
    const BOOL result = CPropertyPage::OnInitDialog();
    DressDialog(m_hWnd);
    return result;
}

void CustomizePage::EnableItem(int id, bool isEnabled) {
    const HWND item = ::GetDlgItem(m_hWnd, id);
    if (!isEnabled && ::GetFocus() == item) {
        NextDlgCtrl(); // else the keyboard would lead nowhere
    }
    ::EnableWindow(item, isEnabled);
}

void CustomizePage::ShowItem(int id, bool isShown) {
    ::ShowWindow(::GetDlgItem(m_hWnd, id), isShown ? SW_SHOWNA : SW_HIDE);
}

bool CustomizePage::IsConfirmed(CustomizeText question) {
    const fx::WindowGuard guard(this);
    return AfxMessageBox(FrameworkText(question), MB_YESNO | MB_ICONQUESTION) == IDYES && guard.IsAlive();
}

} // namespace toolbar
