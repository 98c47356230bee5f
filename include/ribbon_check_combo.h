#pragma once

#include "barwright_api.h"
#include "ribbon_notify_combox.h"

#include <afxribboncombobox.h>
#include <fx/item_marks.h>

#include <map>
#include <memory>
#include <string>

/// A ribbon combo box whose items each have a check box, on the face and in the drop list. A click on a box changes the
/// check and leaves the list open, as Space does on the hot row (Ctrl and Space where a text is typed); a double click
/// sets all items. WM_COMBO_CHECK_CHANGED tells the host. Item texts are translation keys (section "Common"). The
/// checks belong to positions: they outlive the items.
///
/// Copies of one element (those with its command id on the same ribbon bar) are changed along by AddItem, RemoveAll and
/// SetItemCheck. The container owns the combo; the host may destroy it in any message that it gets from it.
class BARWRIGHT_API CMFCRibbonCheckComb : public CMFCRibbonComboBox,
                                          public CRibbonNotifyCombox,
                                          public RibbonItemMarks {
    DECLARE_DYNCREATE(CMFCRibbonCheckComb)

public:
    CMFCRibbonCheckComb();
    /// As CMFCRibbonComboBox.
    explicit CMFCRibbonCheckComb(UINT id, BOOL hasEditBox = TRUE, int width = -1, LPCTSTR label = nullptr,
                                 int imageIndex = -1);
    ~CMFCRibbonCheckComb() override;

    /// Appends an item, which takes the state that its position has, if any. Always 1: the index is the count less one.
    INT_PTR AddItem(LPCTSTR text, DWORD_PTR data = 0) override;
    /// The checks stay.
    void RemoveAll();

    /// False, and nothing changed, without such an item. Does not redraw.
    bool SetItemCheck(int index, bool check);
    /// False, and `check` untouched, when the position was never given one. The count of items plays no part.
    bool GetItemCheck(int index, bool& check) const;

    /// The host's own names of items, taken as a whole and as they are.
    void setTypeKeyName2Index(const std::map<std::wstring, int>& map);
    /// -1 for an empty or unknown key.
    int findIndexByTypeKeyName(const std::wstring& key) const;
    /// The first key of the index in key order; empty when there is none, and for -1.
    std::wstring findTypeKeyNameByIndex(int index) const;

    /// The height in which the lists of all check combos drop that use it, in pixels; a user's resize of one sets it.
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
    void OnCalcTextSize(CDC* dc) override;
    CString GetItemStateText(int index, BOOL& isChecked) const override;

protected:
    std::unique_ptr<CMFCDropDownListBox> MakeDropDownList() override;
    void OnDrawSelectedItem(CDC* dc, CRect edit) override;

private:
    struct State;

    std::shared_ptr<State> m_state; // known to whoever must see that the combo is gone
};
