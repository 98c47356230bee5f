// The menu of one button while toolbars are customized: what it shows, whether it begins a group, its removal.
#include "afxmenubar.h"
#include "afxpopupmenu.h"
#include "core/framework_text.h"
#include "fx/window_guard.h"
#include "panes/pane_menu.h"
#include "toolbar/button_drag.h"
#include "toolbar/button_image.h"
#include "toolbar/choose_buttons.h"
#include "toolbar/customize_texts.h"
#include "toolbar/menu_items.h"
#include "toolbar/name_box.h"

#include <algorithm>

#include <ole2.h>

namespace toolbar {

namespace {

/// A button in its bar. The texts of the framework give the commands of the menu their ids.
struct Chosen {
    CMFCToolBar& bar;
    CMFCToolBarButton& button;
    int index;
};

CMFCToolBarImages* ImagesOf(const Chosen& chosen) {
    if (chosen.button.m_bUserButton) {
        return CMFCToolBar::GetUserImages();
    }
    return chosen.button.IsLocked() ? chosen.bar.GetLockedImages() : CMFCToolBar::GetImages();
}

bool HasImage(const Chosen& chosen) {
    const CMFCToolBarImages* const images = ImagesOf(chosen);
    return images != nullptr && chosen.button.GetImage() >= 0 && chosen.button.GetImage() < images->GetCount();
}

/// A field stands in the place of the image and the text.
bool HasFace(const Chosen& chosen) { return chosen.button.GetHwnd() == nullptr; }
bool CanShowImage(const Chosen& chosen) { return HasFace(chosen) && HasImage(chosen); }
bool CanShowText(const Chosen& chosen) { return HasFace(chosen) && !ReadableText(chosen.button).IsEmpty(); }
bool CanShowBoth(const Chosen& chosen) { return CanShowImage(chosen) && CanShowText(chosen); }

bool ShowsImage(const Chosen& chosen) { return chosen.button.IsDrawImage() != FALSE; }
bool ShowsText(const Chosen& chosen) { return chosen.button.IsDrawText() || !ShowsImage(chosen); }
bool ShowsImageAlone(const Chosen& chosen) { return HasFace(chosen) && ShowsImage(chosen) && !ShowsText(chosen); }
bool ShowsTextAlone(const Chosen& chosen) { return HasFace(chosen) && !ShowsImage(chosen); }
bool ShowsBoth(const Chosen& chosen) { return HasFace(chosen) && ShowsImage(chosen) && ShowsText(chosen); }

bool IsBehindLine(const Chosen& chosen) {
    return chosen.index > 0 && (chosen.bar.GetButtonStyle(chosen.index - 1) & TBBS_SEPARATOR) != 0;
}
bool IsBehindAnother(const Chosen& chosen) { return chosen.index > (IsBehindLine(chosen) ? 1 : 0); }

bool CanEditImage(const Chosen& chosen) {
    return HasFace(chosen) && HasImage(chosen) && MayEditImage(chosen.button, ImagesOf(chosen));
}

bool Always(const Chosen&) { return true; }
bool Never(const Chosen&) { return false; }

/// What the program gave the bar under that command; null: nothing.
const CMFCToolBarButton* OriginalOf(const Chosen& chosen) {
    const CObList& originals = chosen.bar.GetOrigButtons();
    for (POSITION position = originals.GetHeadPosition(); position != nullptr;) {
        const auto* const original = static_cast<const CMFCToolBarButton*>(originals.GetNext(position));
        if (original->m_nID == chosen.button.m_nID && original->GetRuntimeClass() == chosen.button.GetRuntimeClass()) {
            return original;
        }
    }
    return nullptr;
}

void Reset(const Chosen& chosen) {
    chosen.button.ResetImageToDefault();
    if (const CMFCToolBarButton* const original = OriginalOf(chosen)) {
        chosen.button.m_strText = original->m_strText;
        chosen.button.m_bImage = original->m_bImage;
        chosen.button.m_bText = original->m_bText || chosen.bar.AreTextLabels();
    }
}

void CopyImage(const Chosen& chosen) { ImagesOf(chosen)->CopyImageToClipboard(chosen.button.GetImage()); }

void ChangeImage(const Chosen& chosen) { EditImage(chosen.bar, chosen.button, *ImagesOf(chosen)); }

// The bar's host may keep it, or take the bar away.
void Delete(const Chosen& chosen) {
    const fx::WindowGuard guard(&chosen.bar);
    const bool mayGo = chosen.bar.OnBeforeRemoveButton(&chosen.button, DROPEFFECT_NONE) != FALSE;
    if (mayGo && guard.IsAlive()) {
        chosen.bar.RemoveButton(chosen.bar.ButtonToIndex(&chosen.button));
    }
}

// What the button says, where it shows a text and in its tooltip. The dialog is modal: anything may go meanwhile.
void AskText(const Chosen& chosen) {
    const CMFCToolBarButton& button = chosen.button;
    const fx::WindowGuard guard(&chosen.bar);
    const CString before = button.m_strText.IsEmpty() ? ReadableText(button) : button.m_strText;
    const CString text = AskName(chosen.bar, kAppearanceTitle, kButtonTextText, before);
    if (!text.IsEmpty() && guard.IsAlive() && chosen.bar.ButtonToIndex(&button) >= 0) {
        chosen.button.m_strText = text;
    }
}

void Show(const Chosen& chosen, bool showsImage, bool showsText) {
    if (showsText && chosen.button.m_strText.IsEmpty()) {
        chosen.button.m_strText = ReadableText(chosen.button);
    }
    chosen.button.m_bImage = showsImage;
    chosen.button.m_bText = showsText;
}
void ShowImage(const Chosen& chosen) { Show(chosen, true, false); }
void ShowText(const Chosen& chosen) { Show(chosen, false, true); }
void ShowBoth(const Chosen& chosen) { Show(chosen, true, true); }

void SwitchGroup(const Chosen& chosen) {
    if (IsBehindLine(chosen)) {
        chosen.bar.RemoveButton(chosen.index - 1);
    } else {
        chosen.bar.InsertSeparator(chosen.index);
    }
}

struct Entry {
    UINT text = 0; ///< its id is the command's too; 0: a line
    bool (*isEnabled)(const Chosen&) = nullptr;
    bool (*isChecked)(const Chosen&) = nullptr;
    bool isRadio = false;
    void (*run)(const Chosen&) = nullptr;
};

constexpr Entry kEntries[] = {
    {kResetButtonText, Always, Never, false, Reset},
    {kCopyImageText, HasImage, Never, false, CopyImage},
    {kEditImageText, CanEditImage, Never, false, ChangeImage},
    {kDeleteButtonText, Always, Never, false, Delete},
    {},
    {kAppearanceText, HasFace, Never, false, AskText},
    {kShowImageText, CanShowImage, ShowsImageAlone, true, ShowImage},
    {kShowTextText, CanShowText, ShowsTextAlone, true, ShowText},
    {kShowBothText, CanShowBoth, ShowsBoth, true, ShowBoth},
    {},
    {kStartGroupText, IsBehindAnother, IsBehindLine, false, SwitchGroup},
};

HMENU MakeMenu(const Chosen& chosen) {
    const HMENU menu = ::CreatePopupMenu();
    for (const Entry& entry : kEntries) {
        if (entry.run == nullptr) {
            AppendMenuItem(menu, {0, CString(), TBBS_SEPARATOR, FALSE, nullptr});
            continue;
        }
        const UINT enabled = entry.isEnabled(chosen) ? 0u : static_cast<UINT>(TBBS_DISABLED);
        const UINT checked = entry.isChecked(chosen) ? static_cast<UINT>(TBBS_CHECKED) : 0u;
        AppendMenuItem(menu, {entry.text, FrameworkText(entry.text), enabled | checked, entry.isRadio, nullptr});
    }
    return menu;
}

class ButtonMenu : public CMFCPopupMenu {
public:
    ButtonMenu(const CMFCToolBar& bar, const CMFCToolBarButton& button) : m_bar(bar.m_hWnd), m_button(&button) {}

protected:
    void OnChooseItem(UINT command) override {
        const HWND window = m_bar;
        const CMFCToolBarButton* const wanted = m_button;
        CMFCPopupMenu::CloseAll(); // with this object
        CMFCToolBar* const bar = CMFCToolBar::FromHandlePermanent(window);
        const int index = bar != nullptr ? bar->ButtonToIndex(wanted) : -1;
        if (index < 0) {
            return; // the program has taken it away
        }
        const auto* const entry = std::ranges::find(kEntries, command, &Entry::text);
        if (entry == std::end(kEntries)) {
            if (CFrameWnd* const frame = bar->GetTopLevelFrame()) {
                frame->PostMessage(WM_COMMAND, command); // what the button has put there
            }
            return;
        }
        ButtonDrag::KeepOriginals(*bar);
        const fx::WindowGuard guard(bar);
        entry->run({*bar, *bar->GetButton(index), index});
        if (guard.IsAlive()) {
            bar->AdjustLayout();
            bar->Invalidate();
        }
    }

private:
    HWND m_bar;                        ///< may go while the menu is open
    const CMFCToolBarButton* m_button; ///< only compared until the bar has said that it has it
};

/// The button may change its menu before it is shown. False: the button is not the user's to change. Otherwise the bar
/// may be gone afterwards.
bool ShowButtonMenu(CMFCToolBar& bar, CMFCToolBarButton& button, CPoint screen) {
    const bool isProtected = CMFCToolBarButton::GetProtectedCommands().Find(button.m_nID) != nullptr;
    if (bar.IsLocked() || bar.IsKindOf(RUNTIME_CLASS(CMFCMenuBar)) || isProtected || !button.IsEditable()) {
        return false;
    }
    CMenu menu;
    menu.Attach(MakeMenu({bar, button, bar.ButtonToIndex(&button)}));
    const fx::WindowGuard guard(&bar);
    button.OnCustomizeMenu(&menu);
    if (guard.IsGone() || bar.ButtonToIndex(&button) < 0) {
        return true; // the button has taken itself away
    }
    auto* const popup = new ButtonMenu(bar, button);
    // The bar gets the commands: a frame would disable those that it does not know.
    popup->Create(&bar, screen.x, screen.y, menu.Detach(), FALSE, TRUE);
    return true;
}

/// In the customize mode a right click on a button is for that one.
bool ShowMenuOfButtonAt(CBasePane& pane, CPoint screen) {
    auto* const bar = DYNAMIC_DOWNCAST(CMFCToolBar, &pane);
    if (bar == nullptr || !CMFCToolBar::IsCustomizeMode() || bar->IsKindOf(RUNTIME_CLASS(CMFCPopupMenuBar))) {
        return false;
    }
    CPoint point = screen;
    bar->ScreenToClient(&point);
    CMFCToolBarButton* const button = bar->GetButton(bar->HitTest(point));
    return button != nullptr && ShowButtonMenu(*bar, *button, screen);
}

[[maybe_unused]] const bool g_isFilterSet = (SetPaneMenuFilter(&ShowMenuOfButtonAt), true);

} // namespace

} // namespace toolbar
