#include "ribbon/bar_menus.h"

#include "core/module.h"

CString RibbonText(RibbonTextId id) {
    LPCWSTR text = nullptr;
    const int length = ::LoadStringW(FrameworkInstance(), static_cast<UINT>(id), reinterpret_cast<LPWSTR>(&text), 0);
    return length > 0 ? CString(text, length) : CString();
}

RibbonMenu::RibbonMenu() { m_menu.CreatePopupMenu(); }

void RibbonMenu::Append(UINT flags, const CString& text, Action action) {
    m_actions.push_back(std::move(action));
    m_menu.AppendMenu(MF_STRING | flags, static_cast<UINT_PTR>(m_actions.size()), text);
}

void RibbonMenu::AddCommand(const CString& text, bool enabled, Action action) {
    Append(enabled ? MF_ENABLED : MF_GRAYED, text, std::move(action));
}

void RibbonMenu::AddCheck(const CString& text, bool checked, Action action) {
    Append(checked ? MF_CHECKED : MF_UNCHECKED, text, std::move(action));
}

void RibbonMenu::AddSeparator() {
    if (!m_actions.empty()) {
        m_menu.AppendMenu(MF_SEPARATOR);
    }
}

BOOL RibbonMenu::Track(CPoint screen, CWnd* owner) {
    const auto chosen = static_cast<size_t>(
        m_menu.TrackPopupMenu(TPM_LEFTALIGN | TPM_RETURNCMD | TPM_NONOTIFY, screen.x, screen.y, owner));
    if (chosen == 0 || chosen > m_actions.size()) {
        return FALSE;
    }
    m_actions[chosen - 1]();
    return TRUE;
}
