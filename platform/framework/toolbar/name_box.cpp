#include "toolbar/name_box.h"

#include "core/framework_text.h"
#include "toolbar/dark_dialog.h"
#include "window/dialog_template.h"

namespace toolbar {

namespace {

constexpr int kName = 1001;
constexpr int kLabel = 1002;
constexpr int kLongestName = 100;

constexpr fx::DialogItem kItems[] = {
    {kLabel, kBarNameText, 7, 7, 186, 8},
    {kName, 0, 7, 17, 186, 13, fx::DialogControl::Edit, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP},
    {IDOK, kOkText, 89, 38, 50, 14, fx::DialogControl::Button, BS_DEFPUSHBUTTON | WS_TABSTOP},
    {IDCANCEL, kCancelText, 143, 38, 50, 14, fx::DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
};

class NameBox : public CDialog {
public:
    NameBox(CWnd& parent, CustomizeText title, CustomizeText label, CString name)
        : m_label(label),
          m_name(std::move(name)),
          m_template(fx::MakeDialogTemplate(
              {200, 59, DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU, static_cast<UINT>(title)}, kItems)) {
        InitModalIndirect(fx::TemplateIn(m_template), &parent);
    }
    const CString& Name() const { return m_name; }

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        DressDialog(m_hWnd);
        SetDlgItemText(kLabel, FrameworkText(m_label));
        SetDlgItemText(kName, m_name);
        SendDlgItemMessage(kName, EM_LIMITTEXT, kLongestName);
        SendDlgItemMessage(kName, EM_SETSEL, 0, -1);
        OnChange();
        GotoDlgCtrl(GetDlgItem(kName));
        return FALSE; // the focus is set
    }

protected:
    afx_msg void OnChange() {
        GetDlgItemText(kName, m_name);
        m_name.Trim();
        ::EnableWindow(::GetDlgItem(m_hWnd, IDOK), !m_name.IsEmpty());
    }
    DECLARE_MESSAGE_MAP()

private:
    CustomizeText m_label;
    CString m_name;
    std::vector<DWORD> m_template;
};

BEGIN_MESSAGE_MAP(NameBox, CDialog)
ON_EN_CHANGE(kName, &NameBox::OnChange)
END_MESSAGE_MAP()

} // namespace

CString AskName(CWnd& parent, CustomizeText title, CustomizeText label, const CString& proposed) {
    NameBox box(parent, title, label, proposed);
    return box.DoModal() == IDOK ? box.Name() : CString();
}

} // namespace toolbar
