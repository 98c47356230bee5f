#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "afxribbonkeytip.h"
#include "fx/ribbon_host.h"
#include "ribbon/focus_walk.h"

class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonCategory;
class CMFCRibbonPanel;
class CMFCRibbonTab;

/// A ribbon bar's keyboard: the levels of key tips, and the focus that arrows move. Owned by its bar. While it is
/// active the bar's window has the system's focus, or the edit window of an element has; when it ends the focus returns
/// to where it was. A command may destroy bar and keyboard: what sends one comes last.
class RibbonKeyboard final : public RibbonElementKeys {
public:
    enum class Focus { GiveBack, Leave };

    explicit RibbonKeyboard(CMFCRibbonBar& bar);
    ~RibbonKeyboard();
    RibbonKeyboard(const RibbonKeyboard&) = delete;
    RibbonKeyboard& operator=(const RibbonKeyboard&) = delete;

    bool IsActive() const override { return m_isActive; }
    bool AreTipsEnabled() const { return m_areTipsEnabled; }
    void EnableTips(bool enable);
    /// Key tips are shown.
    bool AreTipsShown() const { return m_areTipsShown; }
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
    void OnOtherKey() { m_isAltPending = false; }
    /// The same, and the key was taken: the release of Alt must not open the window's menu.
    void OnAltIsUsed() override {
        m_isAltPending = false;
        m_swallowedUp = VK_MENU;
    }
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
    CString KeysOf(const CMFCRibbonBaseElement& element, bool isMenu, const CString& given) override;
    /// Texts, keys or elements have changed.
    void Forget() override { m_known.clear(); }
    void OnElementDestroyed(const CMFCRibbonBaseElement& element);
    void OnLayoutChanged();
    void SetFocusTo(CMFCRibbonBaseElement* element);
    /// Does what Enter on the element does, wherever the focus is. Nothing follows it: a command may end the bar.
    void Invoke(CMFCRibbonBaseElement& element);
    /// Marks the element with the focus, while the arrows move it.
    void DrawFocus(CDC& dc) const;

private:
    using Tips = std::vector<std::unique_ptr<CMFCRibbonKeyTip>>;
    using Elements = std::vector<CMFCRibbonBaseElement*>;
    struct Level {
        CObject* object;                     // the bar, a category, a panel or a pop-up
        CWnd* window;                        // that shows the elements
        const CMFCRibbonBaseElement* anchor; // the object goes when this element goes; may be null
        Tips tips;
    };

    // Levels.
    Level MakeLevel(CObject* object) const;
    void CollectBar(Tips& tips) const;
    static void CollectCategory(CMFCRibbonCategory& category, Tips& tips);
    static void Append(CMFCRibbonBaseElement& element, Tips& tips);
    static void AppendLaunchButton(CMFCRibbonPanel& panel, Tips& tips);
    static void Assign(Tips& tips, std::size_t first);
    void PushLevel(CObject* object);
    void PopLevel();
    void ShowMatchingTips();
    bool IsPopupOnTop() const;
    bool IsReachable(const CMFCRibbonKeyTip& tip) const;
    bool TypeKey(UINT key);
    bool Type(wchar_t character);
    void GoBack();
    bool CanStart() const;

    // What keys do.
    void Execute(CMFCRibbonBaseElement& element, bool isMenu);
    void ExecuteTab(CMFCRibbonTab& tab);
    void OpenMenu(CMFCRibbonBaseElement& element, bool isMenu);
    bool HandKeyToFocused(UINT key);
    void TakeFocusTo(CMFCRibbonBaseElement& element);
    bool OnArrow(UINT key);
    bool MoveAmongTabs(CMFCRibbonTab& tab, int step);
    bool MoveInCategory(CMFCRibbonBaseElement& from, ribbon::FocusStep step);
    bool MoveAnywhere(const CMFCRibbonBaseElement& from, ribbon::FocusStep step);
    void MoveInOrder(bool forward);
    void MoveToEnd(bool last);
    void EnterCategory(CMFCRibbonTab& tab);
    void GoToNextPane(bool forward);
    void ChooseTab(CMFCRibbonTab& tab);
    bool OnKeyInEdit(UINT key);

    // Where the focus can stand.
    Elements CaptionStops() const;
    Elements Tabs() const;
    Elements TabRowStops() const;
    Elements CategoryStops() const;
    CMFCRibbonTab* ActiveTab() const;
    bool HoldsFocus() const;
    void ReturnFocus();

    CMFCRibbonBar& m_bar;
    std::vector<Level> m_levels;
    std::wstring m_typed;
    bool m_areTipsEnabled = true;
    bool m_areTipsShown = false;
    bool m_isActive = false;
    bool m_isInList = false; // that letters opened; the tips wait for its end
    bool m_isMovingFocus = false;
    bool m_isAltPending = false; // Alt went down and nothing happened since
    UINT m_swallowedUp = 0;      // key whose release belongs to a press that was taken
    HWND m_formerFocus = nullptr;
    CMFCRibbonBaseElement* m_target = nullptr; // that a key acts on now; null when it is gone
    std::map<std::pair<const CMFCRibbonBaseElement*, bool>, CString> m_known;
};
