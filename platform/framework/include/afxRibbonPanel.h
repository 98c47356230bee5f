#pragma once

#include <vector>

#include "afxribbonbutton.h"
#include "afxtempl.h"
#include "afxwin.h"

class CMFCRibbonBar;
class CMFCRibbonCategory;
class CMFCRibbonCmdUI;
class CMFCRibbonPanelMenu;
class CMFCRibbonPanelMenuBar;
class CFrameWnd;
struct RibbonMetrics;
struct RibbonPanelArrangement;
struct RibbonPanelShape;

/// The button that stands for a panel that is too narrow to show its elements. Owned by its panel.
class FRAMEWORK_API CMFCRibbonDefaultPanelButton : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonDefaultPanelButton)

public:
    CMFCRibbonDefaultPanelButton();

    BOOL IsDefaultPanelButton() const override { return TRUE; }
    BOOL HasCompactMode() const override { return FALSE; }
    BOOL HasIntermediateMode() const override { return FALSE; }
    BOOL HasLargeMode() const override { return TRUE; }
    BOOL HasMenu() const override { return TRUE; }
    CSize GetImageSize(RibbonImageType type) const override;
    void DrawImage(CDC* pDC, RibbonImageType type, CRect rectImage) override;
    COLORREF OnFillBackground(CDC* pDC) override;
    void OnDrawBorder(CDC*) override {}
    /// Shows the panel's elements in a pop-up.
    void OnShowPopupMenu() override;

    /// Icon of the collapsed panel, not owned; without one the first image of the panel's elements is drawn.
    void SetPanelIcon(HICON hIcon) { m_panelIcon = hIcon; }

private:
    HICON m_panelIcon = nullptr;
};

/// The small button at the end of a panel's caption; it usually opens a dialog box with more of what the panel offers.
/// Owned by its panel. A copy in the quick access toolbar is an ordinary button.
class FRAMEWORK_API CMFCRibbonLaunchButton : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonLaunchButton)

public:
    CMFCRibbonLaunchButton();

    CSize GetRegularSize(CDC* pDC) override;
    CSize GetImageSize(RibbonImageType type) const override;
    void DrawImage(CDC* pDC, RibbonImageType type, CRect rectImage) override;
    void OnDraw(CDC* pDC) override;
    /// It stands in the caption of its panel, not as a copy elsewhere.
    BOOL IsInCaption() const { return m_pParentPanel != nullptr && !IsQATMode(); }
};

/// A captioned group of ribbon elements. Made by CMFCRibbonCategory::AddPanel, owned by its category; owns its
/// elements. Rectangles are in the ribbon bar's client pixels, empty while the panel is not shown.
class FRAMEWORK_API CMFCRibbonPanel : public CObject {
    DECLARE_DYNCREATE(CMFCRibbonPanel)

protected:
    CMFCRibbonPanel(LPCTSTR lpszName = NULL, HICON hIcon = NULL);

public:
    ~CMFCRibbonPanel() override;

    /// Takes ownership of the element.
    virtual void Add(CMFCRibbonBaseElement* pElem);
    virtual void AddSeparator();
    /// Takes ownership when it returns TRUE; FALSE for a position outside 0..GetCount().
    virtual BOOL Insert(CMFCRibbonBaseElement* pElem, int nIndex);
    virtual BOOL InsertSeparator(int nIndex);
    BOOL Remove(int nIndex, BOOL bDelete = TRUE);
    void RemoveAll();
    /// The new element takes the place of the old one, which is deleted.
    BOOL Replace(int nIndex, CMFCRibbonBaseElement* pElem);
    BOOL ReplaceByID(UINT uiCmdID, CMFCRibbonBaseElement* pElem);
    /// A new element of the class takes the place, id, texts and images of the one that was there. NULL, with nothing
    /// changed, when there is none or the class makes no ribbon element.
    CMFCRibbonBaseElement* SetElementRTC(int nIndex, CRuntimeClass* pRTC);
    CMFCRibbonBaseElement* SetElementRTCByID(UINT uiCmdID, CRuntimeClass* pRTC);
    /// Gives the button of that id a menu, see CMFCRibbonButton::SetMenu. FALSE when there is no such button.
    BOOL SetElementMenu(UINT uiCmdID, HMENU hMenu, BOOL bIsDefautCommand = FALSE, BOOL bRightAlign = FALSE);
    BOOL SetElementMenu(UINT uiCmdID, UINT uiMenuResID, BOOL bIsDefautCommand = FALSE, BOOL bRightAlign = FALSE);

    LPCTSTR GetName() const { return m_strName; }
    int GetCount() const;
    /// NULL for a position that does not exist.
    CMFCRibbonBaseElement* GetElement(int nIndex) const;
    virtual int GetIndex(CMFCRibbonBaseElement* pElem) const;
    BOOL HasElement(const CMFCRibbonBaseElement* pElem) const;
    CMFCRibbonBaseElement* FindByID(UINT uiCmdID) const;
    CMFCRibbonBaseElement* FindByData(DWORD_PTR dwData) const;
    void GetElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements);
    void GetElementsByID(UINT uiCmdID, CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements);
    void GetVisibleElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements);
    void GetItemIDsList(CList<UINT, UINT>& lstItems) const;

    CMFCRibbonBaseElement* GetDroppedDown() const;
    CMFCRibbonBaseElement* GetFocused() const;
    CMFCRibbonBaseElement* GetHighlighted() const;
    CMFCRibbonBaseElement* GetPressed() const;
    void SetFocused(CMFCRibbonBaseElement* pNewFocus);
    BOOL IsHighlighted() const { return m_bHighlighted; }
    /// Marks the panel and the element under the point (client pixels of the bar) as hot, or takes both marks away.
    virtual void Highlight(BOOL bHighlight, CPoint point);

    CMFCRibbonCategory* GetParentCategory() const { return m_pParent; }
    CMFCRibbonPanelMenuBar* GetParentMenuBar() const { return m_pParentMenuBar; }
    CMFCRibbonBaseElement* GetParentButton() const { return m_pParentButton; }
    CMFCRibbonButton& GetDefaultButton() { return m_btnDefault; }

    /// Shows a button at the end of the caption; 0 takes it away. nIconIndex: position in the category's small images
    /// for a copy in the quick access toolbar, -1 for a plain image.
    void EnableLaunchButton(UINT uiCmdID, int nIconIndex = -1, LPCTSTR lpszKeys = NULL);
    CMFCRibbonButton& GetLaunchButton();
    BOOL HasLaunchButton() const;

    const CRect& GetRect() const { return m_rect; }
    int GetCaptionHeight() const { return m_rectCaption.Height(); }
    const CRect& GetCaptionRect() const { return m_rectCaption; }
    BOOL IsCollapsed() const { return m_bCollapsed; }
    BOOL IsMenuMode() const { return m_bMenuMode; }
    virtual BOOL IsMainPanel() const { return FALSE; }
    BOOL IsWindows7Look() const;
    void SetCenterColumnVert(BOOL bSet = TRUE);
    BOOL IsCenterColumnVert() const { return m_bCenterColumnVert; }
    void SetJustifyColumns(BOOL bSet = TRUE);
    BOOL IsJustifyColumns() const { return m_bJustifyColumns; }

    /// The element under the point; over the caption the launch button, else the default button when bCheckPanelCaption
    /// is TRUE, else NULL.
    virtual CMFCRibbonBaseElement* HitTest(CPoint point, BOOL bCheckPanelCaption = FALSE);
    /// Position of the element under the point, -1 when there is none.
    virtual int HitTestEx(CPoint point) const;

    /// Shows the elements in a pop-up beside the button (NULL: beside the panel's own one) until it is dismissed; they
    /// are the panel's own elements, lent to the pop-up. NULL: the pop-up could not be made.
    CMFCRibbonPanelMenu* ShowPopup(CMFCRibbonDefaultPanelButton* pButton = NULL);

    void SetKeys(LPCTSTR lpszKeys);
    void SetData(DWORD_PTR dwData) { m_dwData = dwData; }
    DWORD_PTR GetData() const { return m_dwData; }

    // Called by the category.
    virtual void DoPaint(CDC* pDC);
    /// A key while one of the elements has the keyboard. FALSE: neither the panel nor the element has a use for it.
    virtual BOOL OnKey(UINT nChar);
    virtual CMFCRibbonBaseElement* MouseButtonDown(CPoint point);
    virtual void OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler);
    virtual void OnShow(BOOL bShow);

    // Extension points of this framework: category and pop-ups use them.
    void CommonInit(CMFCRibbonCategory* parent, LPCTSTR name, HICON icon);
    /// It may outlive its category: nothing in it knows category and bar from now on.
    void LeaveCategory(CDC* pDC);
    /// The elements, then the launch button when there is one.
    std::vector<CMFCRibbonBaseElement*> CollectParts() const;
    /// Sizes of all elements in every mode, for the layout.
    RibbonPanelShape Measure(CDC* pDC, const RibbonMetrics& metrics);
    /// Places panel, caption and elements as the layout found; the panel's top left corner is at origin.
    void Place(CDC* pDC, const RibbonPanelArrangement& arrangement, CPoint origin, const RibbonMetrics& metrics);
    void Hide(CDC* pDC);
    /// The pop-up that shows the elements; NULL when none does.
    void SetParentMenuBar(CMFCRibbonPanelMenuBar* pMenuBar) { m_pParentMenuBar = pMenuBar; }
    /// What a pop-up shows of a panel has the panel's own launch button.
    virtual CMFCRibbonLaunchButton& LaunchButton() { return m_btnLaunch; }

protected:
    CString m_strName;
    CString m_strKeys;
    CRect m_rect;
    CRect m_rectCaption;
    CMFCRibbonCategory* m_pParent = nullptr;
    CMFCRibbonPanelMenuBar* m_pParentMenuBar = nullptr;
    CMFCRibbonBaseElement* m_pParentButton = nullptr;
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> m_arElements;
    CMFCRibbonDefaultPanelButton m_btnDefault;
    CMFCRibbonLaunchButton m_btnLaunch;
    BOOL m_bCollapsed = FALSE;
    BOOL m_bMenuMode = FALSE;
    BOOL m_bHighlighted = FALSE;
    BOOL m_bCenterColumnVert = FALSE;
    BOOL m_bJustifyColumns = FALSE;
    DWORD_PTR m_dwData = 0;

private:
    void Adopt(CMFCRibbonBaseElement* element);
    void DeleteElements();
    const CMFCRibbonLaunchButton& LaunchButton() const { return const_cast<CMFCRibbonPanel*>(this)->LaunchButton(); }
    virtual bool IsLent() const { return m_pParentMenuBar != nullptr; }
    void MarkLayoutDirty();
};
