#include "toolbar/choose_buttons.h"

#include "afxpopupmenu.h"
#include "afxtoolbar.h"
#include "core/framework_text.h"
#include "toolbar/metrics.h"

#include <utility>

namespace {

constexpr UINT kChooseText = 17201;
constexpr UINT kResetText = 17202;

/// The bar may go while its menu is open.
class BarRow : public CMFCToolBarMenuButton {
public:
    BarRow() = default;
    BarRow(const CMFCToolBar& bar, CString text) : m_bar(bar.m_hWnd) {
        m_strText = std::move(text);
        m_bText = TRUE;
    }
    void CopyFrom(const CMFCToolBarButton& src) override {
        CMFCToolBarMenuButton::CopyFrom(src);
        if (const auto* const other = dynamic_cast<const BarRow*>(&src)) {
            m_bar = other->m_bar;
        }
    }

protected:
    CMFCToolBar* Bar() const { return CMFCToolBar::FromHandlePermanent(m_bar); }

    HWND m_bar = nullptr;
};

/// A button of the bar, checked while it is shown.
class ToggleRow : public BarRow {
    DECLARE_DYNCREATE(ToggleRow)

public:
    ToggleRow() = default;
    ToggleRow(CMFCToolBar& bar, const CMFCToolBarButton& button, CString text)
        : BarRow(bar, std::move(text)), m_button(&button) {
        m_nStyle = button.IsHidden() ? TBBS_BUTTON : TBBS_BUTTON | TBBS_CHECKED;
    }
    void CopyFrom(const CMFCToolBarButton& src) override {
        BarRow::CopyFrom(src);
        if (const auto* const other = DYNAMIC_DOWNCAST(ToggleRow, &src)) {
            m_button = other->m_button;
        }
    }
    BOOL OnClickMenuItem() override {
        CMFCToolBar* const bar = Bar();
        CMFCToolBarButton* const button = bar != nullptr ? bar->GetButton(bar->ButtonToIndex(m_button)) : nullptr;
        if (button == nullptr) {
            return TRUE; // the program has taken it away
        }
        button->Show(button->IsHidden());
        m_nStyle = button->IsHidden() ? TBBS_BUTTON : TBBS_BUTTON | TBBS_CHECKED;
        if (GetParentWnd() != nullptr) {
            GetParentWnd()->InvalidateRect(m_rect);
        }
        bar->AdjustLayout();
        return TRUE;
    }

private:
    const CMFCToolBarButton* m_button = nullptr; ///< only compared until the bar has said that it has it
};

IMPLEMENT_DYNCREATE(ToggleRow, CMFCToolBarMenuButton)

class ResetRow : public BarRow {
    DECLARE_DYNCREATE(ResetRow)

public:
    ResetRow() = default;
    explicit ResetRow(const CMFCToolBar& bar) : BarRow(bar, FrameworkText(kResetText)) {}
    BOOL OnClickMenuItem() override {
        const HWND window = m_bar;
        CMFCPopupMenu::CloseAll(); // with this row
        if (CMFCToolBar* const bar = CMFCToolBar::FromHandlePermanent(window)) {
            bar->RestoreOriginalState();
        }
        return TRUE;
    }
};

IMPLEMENT_DYNCREATE(ResetRow, CMFCToolBarMenuButton)

class ChooseMenu : public CMFCPopupMenu {
public:
    explicit ChooseMenu(CMFCToolBar* bar) : m_bar(bar) {}

protected:
    BOOL InitMenuBar() override {
        if (!CMFCPopupMenu::InitMenuBar()) {
            return FALSE;
        }
        for (int index = 0; m_bar != nullptr && index < m_bar->GetCount(); ++index) {
            const CMFCToolBarButton& button = *m_bar->GetButton(index);
            const CString text = toolbar::ReadableText(button);
            if ((button.m_nStyle & TBBS_SEPARATOR) == 0 && !text.IsEmpty()) {
                InsertItem(ToggleRow(*m_bar, button, text));
            }
        }
        if (m_bar != nullptr && m_bar->CanBeRestored()) {
            InsertSeparator();
            InsertItem(ResetRow(*m_bar));
        }
        return TRUE;
    }

private:
    CMFCToolBar* m_bar;
};

class ChooseRow : public BarRow {
    DECLARE_DYNCREATE(ChooseRow)

public:
    ChooseRow() = default;
    explicit ChooseRow(const CMFCToolBar& bar) : BarRow(bar, FrameworkText(kChooseText)) {}
    BOOL IsEmptyMenuAllowed() const override { return TRUE; }
    CMFCPopupMenu* CreatePopupMenu() override { return new ChooseMenu(Bar()); }
};

IMPLEMENT_DYNCREATE(ChooseRow, CMFCToolBarMenuButton)

} // namespace

CString toolbar::ReadableText(CString text) {
    const int tabulator = text.Find(L'\t');
    if (tabulator >= 0) {
        text.Truncate(tabulator);
    }
    constexpr int kLength = 4; // "(&O)"
    const int bracket = text.Find(L"(&");
    if (bracket > 0 && bracket + kLength <= text.GetLength() && text[bracket + kLength - 1] == L')') {
        text.Delete(bracket, kLength);
    }
    return WithoutPrefix(text);
}

CString toolbar::ReadableText(const CMFCToolBarButton& button) {
    CMFCToolBarMenuButton row;
    row.m_strText = button.m_strText;
    if (row.m_strText.IsEmpty()) {
        button.ExportToMenuButton(row); // what has a control inside keeps its text there
    }
    CString resource;
    const bool isCommand = button.m_nID != 0 && button.m_nID != static_cast<UINT>(-1);
    if (row.m_strText.IsEmpty() && isCommand && resource.LoadString(button.m_nID)) {
        row.m_strText = resource.Mid(resource.Find(L'\n') + 1); // the short one behind the line break
    }
    return ReadableText(row.m_strText);
}

std::unique_ptr<CMFCToolBarMenuButton> toolbar::MakeChooseButtonsRow(CMFCToolBar& bar) {
    return std::make_unique<ChooseRow>(bar);
}
