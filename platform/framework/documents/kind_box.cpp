#include "documents/kind_box.h"

#include "afxwin.h"
#include "fx/doc_template.h"
#include "toolbar/customize_texts.h"
#include "window/dialog_template.h"

namespace fx {

namespace {

/// Among the framework's texts.
enum KindText : UINT { kTitle = 17280, kQuestion };

constexpr int kList = 1001;

constexpr DialogItem kItems[] = {
    {-1, kQuestion, 7, 7, 146, 8},
    {kList, 0, 7, 18, 146, 60, DialogControl::ListBox, LBS_NOTIFY | WS_BORDER | WS_VSCROLL | WS_TABSTOP},
    {IDOK, toolbar::kOkText, 49, 85, 50, 14, DialogControl::Button, BS_DEFPUSHBUTTON | WS_TABSTOP},
    {IDCANCEL, toolbar::kCancelText, 103, 85, 50, 14, DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
};

class KindBox : public CDialog {
public:
    explicit KindBox(const std::vector<CDocTemplate*>& kinds)
        : m_kinds(kinds),
          m_template(
              MakeDialogTemplate({160, 106, DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU, kTitle}, kItems)) {
        InitModalIndirect(TemplateIn(m_template), nullptr);
    }
    CDocTemplate* Chosen() const { return m_chosen; }

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        for (const CDocTemplate* const kind : m_kinds) {
            CString name;
            kind->GetDocString(name, CDocTemplate::fileNewName);
            SendDlgItemMessage(kList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(name)));
        }
        SendDlgItemMessage(kList, LB_SETCURSEL, 0);
        GotoDlgCtrl(GetDlgItem(kList));
        return FALSE; // the focus is set
    }

protected:
    void OnOK() override {
        const LRESULT row = SendDlgItemMessage(kList, LB_GETCURSEL);
        if (row >= 0 && static_cast<std::size_t>(row) < m_kinds.size()) {
            m_chosen = m_kinds[static_cast<std::size_t>(row)];
            CDialog::OnOK();
        }
    }
    afx_msg void OnDoubleClick() { OnOK(); }
    DECLARE_MESSAGE_MAP()

private:
    const std::vector<CDocTemplate*>& m_kinds;
    std::vector<DWORD> m_template;
    CDocTemplate* m_chosen = nullptr;
};

BEGIN_MESSAGE_MAP(KindBox, CDialog)
ON_LBN_DBLCLK(kList, &KindBox::OnDoubleClick)
END_MESSAGE_MAP()

} // namespace

CDocTemplate* AskKind(const std::vector<CDocTemplate*>& kinds) {
    KindBox box(kinds);
    return box.DoModal() == IDOK ? box.Chosen() : nullptr;
}

} // namespace fx
