#pragma once

#include "barwright_api.h"
#include "ribbon_notify_combox.h"

#include <afxribboncombobox.h>
#include <fx/item_marks.h>

#include <map>
#include <memory>
#include <string>

/// A ribbon combo box whose items each have a colour swatch and a light, on the face and in the drop list. A click on
/// the swatch asks the host for another colour (WM_COMBO_COLOR_PICK), one on the light whether it may be switched
/// (WM_COMBO_LIGHT_CHANGED); in the open list Space does what a click on the hot row's light does, and Shift+Space what
/// one on its swatch does; with Ctrl as well where a text is typed. Item texts are translation keys (section "Common").
/// The states belong to positions: they outlive the items; one that was never given is black and off. The pictures of
/// the light are CQkMfc's.
///
/// Copies of one element (those with its command id on the same ribbon bar) are changed along by AddItem, RemoveAll,
/// SetItemClr and SetItemLight. The container owns the combo; the host may destroy it in any message that it gets from
/// it. Setters are false, and nothing changed, without such an item; getters are false, and the argument untouched,
/// when the position was never given a state (the count of items plays no part).
class BARWRIGHT_API CMFCRibbonMultiCombo : public CMFCRibbonComboBox,
                                           public CRibbonNotifyCombox,
                                           public RibbonItemMarks {
    DECLARE_DYNCREATE(CMFCRibbonMultiCombo)

public:
    struct rowInfo {
        COLORREF clr = 0;
        bool light = false;
    };

    /// As CMFCRibbonComboBox.
    explicit CMFCRibbonMultiCombo(UINT id, BOOL hasEditBox = TRUE, int width = -1, LPCTSTR label = nullptr,
                                  int imageIndex = -1);
    ~CMFCRibbonMultiCombo() override;

    /// Appends an item, which takes the state that its position has, if any. Always 1: the index is the count less one.
    INT_PTR AddItem(LPCTSTR text, DWORD_PTR data = 0) override;
    /// The states stay.
    void RemoveAll();

    // By text: the first item with it.
    bool SetItemClr(int index, const COLORREF& clr, bool redraw);
    bool SetItemClr(const wchar_t* text, const COLORREF& clr, bool redraw);
    bool GetItemClr(int index, COLORREF& clr) const;
    bool SetItemLight(int index, bool light, bool redraw);
    bool SetItemLight(const wchar_t* text, bool light, bool redraw);
    bool GetItemLight(int index, bool& light) const;
    /// This element only, without a redraw; `lock` is ignored.
    bool SetItemInfo(int index, const COLORREF& clr, bool light, bool lock);
    /// Any index, also one without an item: always true. This element only, without a redraw.
    bool SetItemInfo(int index, rowInfo& info);
    bool GetItemInfo(int index, rowInfo& info) const;
    // A ribbon combo has no locks: true, and nothing happens.
    bool SetItemLock(int index, bool lock, bool redraw);
    bool SetItemLock(const wchar_t* text, bool lock, bool redraw);
    bool GetItemLock(int index, bool& lock) const;

    /// The host's own names of items, taken as a whole and as they are.
    void setTypeKeyName2Index(const std::map<std::wstring, int>& map);
    /// -1 for an empty or unknown key.
    int findIndexByTypeKeyName(const std::wstring& key) const;
    /// The first key of the index in key order; empty when there is none, and for -1.
    std::wstring findTypeKeyNameByIndex(int index) const;

    /// The height in which the lists of all multi combos drop that use it, in pixels; a user's resize of one sets it.
    static int m_nStaticDropDownHeight;
    /// Whether this combo uses it; from then on its list drops in that height.
    void UserStaticDropDownHeight(bool use);
    /// Sets it for all; ignored unless this combo uses it.
    void SetStaticDropDownHeight(int height);

    bool NotifyChangeData(int index, int zone, bool exclusive) override;

    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    CString GetShownItemText(int index) const override;
    void DropDownList() override;
    BOOL OnDrawDropListItem(CDC* dc, int index, CMFCToolBarMenuButton* row, BOOL highlighted) override;
    int GetDropListItemWidth(CDC* dc, int index, CSize text) override;
    BOOL OnToggleDropListItem(int index) override;
    void OnLButtonDown(CPoint point) override;
    CString GetItemStateText(int index, BOOL& isChecked) const override;

protected:
    CMFCRibbonMultiCombo();
    std::unique_ptr<CMFCDropDownListBox> MakeDropDownList() override;
    void OnDrawSelectedItem(CDC* dc, CRect edit) override;

private:
    struct State;
    bool AskForLight(HWND host, const CString& text, int index);
    void AskForColor(HWND host, int index) const;

    std::shared_ptr<State> m_state; // known to whoever must see that the combo is gone
};

/// A ribbon combo box whose items each have a light and nothing else: a click on it switches the light first and tells
/// the host afterwards (WM_VESCOMBO_LIGHT_CHANGED). In all else a CMFCRibbonMultiCombo without colours and without a
/// static height.
class BARWRIGHT_API CMFCRibbonVesMultiCombo : public CMFCRibbonComboBox,
                                              public CRibbonNotifyCombox,
                                              public RibbonItemMarks {
    DECLARE_DYNCREATE(CMFCRibbonVesMultiCombo)

public:
    /// As CMFCRibbonComboBox.
    explicit CMFCRibbonVesMultiCombo(UINT id, BOOL hasEditBox = TRUE, int width = -1, LPCTSTR label = nullptr,
                                     int imageIndex = -1);
    ~CMFCRibbonVesMultiCombo() override;

    /// Appends an item, which takes the state that its position has, if any. Always 1: the index is the count less one.
    INT_PTR AddItem(LPCTSTR text, DWORD_PTR data = 0) override;
    /// The lights stay.
    void RemoveAll();

    bool SetItemLight(int index, bool light, bool redraw);
    bool SetItemLight(const wchar_t* text, bool light, bool redraw);
    bool GetItemLight(int index, bool& light) const;

    void setTypeKeyName2Index(const std::map<std::wstring, int>& map);
    int findIndexByTypeKeyName(const std::wstring& key) const;
    std::wstring findTypeKeyNameByIndex(int index) const;

    bool NotifyChangeData(int index, int zone, bool exclusive) override;

    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    CString GetShownItemText(int index) const override;
    void DropDownList() override;
    BOOL OnDrawDropListItem(CDC* dc, int index, CMFCToolBarMenuButton* row, BOOL highlighted) override;
    int GetDropListItemWidth(CDC* dc, int index, CSize text) override;
    BOOL OnToggleDropListItem(int index) override;
    void OnLButtonDown(CPoint point) override;
    CString GetItemStateText(int index, BOOL& isChecked) const override;

protected:
    CMFCRibbonVesMultiCombo();
    std::unique_ptr<CMFCDropDownListBox> MakeDropDownList() override;
    void OnDrawSelectedItem(CDC* dc, CRect edit) override;

private:
    struct State;

    std::shared_ptr<State> m_state; // known to whoever must see that the combo is gone
};
