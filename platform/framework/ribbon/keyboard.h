#pragma once

#include <functional>
#include <vector>

#include "fx/ribbon_host.h"
#include "ribbon/focus_stops.h"
#include "ribbon/key_tip_levels.h"
#include "ribbon/keyboard_table.h"

class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonTab;
struct RibbonBarParts;

/// A ribbon bar's keyboard: the levels of key tips, and the focus that arrows move. What a key does stands in
/// keyboard_table; this class finds out the situation and carries the step out. Owned by its bar. While it is active
/// the bar's window has the system's focus, or the edit window of an element has; when it ends the focus returns to
/// where it was. A command may destroy bar and keyboard: what sends one comes last.
class RibbonKeyboard final : public RibbonElementKeys {
public:
    enum class Focus { GiveBack, Leave };

    RibbonKeyboard(CMFCRibbonBar& bar, RibbonBarParts& parts);
    ~RibbonKeyboard();
    RibbonKeyboard(const RibbonKeyboard&) = delete;
    RibbonKeyboard& operator=(const RibbonKeyboard&) = delete;

    bool IsActive() const override { return ribbon::IsActive(m_state); }
    bool AreTipsEnabled() const { return m_areTipsEnabled; }
    void EnableTips(bool enable);
    /// Key tips are shown.
    bool AreTipsShown() const { return ribbon::AreTipsShown(m_state); }
    /// Number of the level whose tips are shown, from 0; -1 while none are.
    int GetLevel() const override;
    CObject* GetCurrent() const;
    CObject* GetParent() const;

    /// Shows the tips of the bar, of one of its categories or of one of its panels.
    void ShowLevel(CObject* object);
    void ShowTips();
    void HideTips();
    /// Takes the focus without tips, on the active tab.
    void Activate();
    void Deactivate(Focus focus);
    /// Takes the focus from an edit that is left for what surrounds it. False, and nothing happens, while the keyboard
    /// is not active.
    bool TakeFocusBack() override;
    /// Ends the keyboard, and returns the focus even when only an edit had it.
    void GiveFocusBack() override;

    // Messages; true: done.
    bool OnSysKeyDown(UINT key, LPARAM flags);
    bool OnSysKeyUp(UINT key);
    /// Another key went down while Alt was held.
    void OnOtherKey() { ForgetAltAlone(); }
    /// The same, and the key was taken: the release of Alt must not open the window's menu.
    void OnAltIsUsed() override { m_awaited = ribbon::AwaitedRelease::AltTaken; }
    /// A key while the keyboard is active.
    bool OnKeyDown(const MSG& message) override;
    /// A letter of a key tip, in any case; starts with the bar's level when none is shown.
    bool OnCharacter(wchar_t character);
    void OnMouseButton(HWND window);
    /// The focus comes to the bar or an edit window in it.
    void OnFocusCame(HWND former);
    /// An edit that was clicked has the keyboard as well: Tab and arrows lead on from it.
    void OnEditFocusCame(HWND former) override;
    void OnFocusWent(HWND next) override;

    /// A pop-up of the bar opens. When keys opened it the elements take the next letters, and show them when the
    /// letters of a tip did; their rectangles are client pixels of their parent window. Nothing happens otherwise.
    void EnterPopup(CWnd& popup, CObject* object, const std::vector<CMFCRibbonBaseElement*>& elements) override;
    /// The pop-up closes. goesBack: without a choice, so that the level below is shown again.
    void LeavePopup(const CWnd& popup, bool goesBack) override;
    /// A key has closed the list of an element without a choice: the tips whose letters opened it are shown again.
    void LeaveList() override;

    /// The letters of the element's tip: `given`, or what its level's texts give; empty when it is in no level.
    CString KeysOf(const CMFCRibbonBaseElement& element, bool isMenu, const CString& given) override {
        return m_levels.KeysOf(element, isMenu, given);
    }
    /// Texts, keys or elements have changed.
    void Forget() override { m_levels.Forget(); }
    void OnElementDestroyed(const CMFCRibbonBaseElement& element);
    void OnLayoutChanged() { ShowMatchingTips(); }
    void SetFocusTo(CMFCRibbonBaseElement* element);
    /// Does what Enter on the element does, wherever the focus is. Nothing follows it: a command may end the bar.
    void Invoke(CMFCRibbonBaseElement& element);
    /// Marks the element with the focus, while the arrows move it.
    void DrawFocus(CDC& dc) const;

private:
    using Elements = RibbonFocusStops::Elements;

    // Keys.
    bool OnInput(ribbon::KeyInput input, UINT key, const ribbon::KeySituation& situation);
    bool Do(ribbon::KeyAction action, UINT key);
    void Take(ribbon::KeyAction action, UINT key);
    ribbon::KeySituation Situation() const;
    ribbon::KeySituation AltSituation(LPARAM flags) const;
    ribbon::KeyPlace PlaceOf(HWND window) const;
    bool CanStart() const;
    bool CanOpen() const;
    void ForgetAltAlone();
    void Handle(ribbon::KeyEvent event) { m_state = ribbon::After(m_state, event); }
    void ShowMatchingTips();
    void Start();
    void StepBack();
    bool Type(wchar_t capital);
    bool TypeWithAlt(UINT key);
    void TypeKey(UINT key);

    // What keys do.
    void Execute(CMFCRibbonBaseElement& element, bool isMenu);
    void ExecuteFocused();
    void ExecuteTab(CMFCRibbonTab& tab);
    void SendCommand(CMFCRibbonBaseElement& element, bool isMenu);
    void DropDownFocused();
    void OpenMenu(CMFCRibbonBaseElement& element, bool isMenu);
    bool OfferToFocused(UINT key);
    void TakeFocusTo(CMFCRibbonBaseElement& element);
    void MoveByArrow(UINT key);
    void MoveFrom(CMFCRibbonBaseElement& focused, ribbon::FocusStep step);
    bool MoveFromTab(CMFCRibbonTab& tab, ribbon::FocusStep step);
    bool MoveAmongTabs(CMFCRibbonTab& tab, int step);
    bool MoveInCategory(CMFCRibbonBaseElement& from, ribbon::FocusStep step);
    bool ScrollOn(CMFCRibbonBaseElement& from, ribbon::FocusStep step);
    void MoveAnywhere(const CMFCRibbonBaseElement& from, ribbon::FocusStep step);
    void MoveInOrder(bool forward);
    void MoveToEnd(bool last);
    void EnterCategory(CMFCRibbonTab& tab);
    void GoToNextPane(bool forward);
    void ChooseTab(CMFCRibbonTab& tab);

    bool HoldsFocus() const;
    bool IsEditing() const;
    void ReturnFocus();
    /// Runs what may destroy anything. The element, or null when it, the bar or the keyboard's activity is gone: then
    /// the caller touches nothing any more.
    CMFCRibbonBaseElement* SurvivorOf(CMFCRibbonBaseElement& element, const std::function<void()>& act);

    CMFCRibbonBar& m_bar;
    RibbonFocusStops m_stops;
    RibbonKeyTipLevels m_levels;
    bool m_areTipsEnabled = true;
    ribbon::KeyState m_state = ribbon::KeyState::Idle;
    ribbon::AwaitedRelease m_awaited = ribbon::AwaitedRelease::Nothing;
    bool m_isMovingFocus = false; // by itself: the messages about it say nothing new
    HWND m_formerFocus = nullptr;
    CMFCRibbonBaseElement* m_target = nullptr; // that a key acts on now; null when it is gone
};
