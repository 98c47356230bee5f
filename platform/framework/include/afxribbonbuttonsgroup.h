#pragma once

#include <afxbaseribbonelement.h>
#include <afxtoolbarimages.h>

// Buttons side by side with a shared border, like a small toolbar. The group owns its buttons.
class FRAMEWORK_API CMFCRibbonButtonsGroup : public CMFCRibbonBaseElement {
    DECLARE_DYNCREATE(CMFCRibbonButtonsGroup)

public:
    CMFCRibbonButtonsGroup();
    CMFCRibbonButtonsGroup(CMFCRibbonBaseElement* pButton);
    ~CMFCRibbonButtonsGroup() override;

    void AddButton(CMFCRibbonBaseElement* pButton);
    void AddButtons(const CList<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& lstButtons);
    // Null for an index out of range.
    CMFCRibbonBaseElement* GetButton(int i) const;
    int GetCount() const { return static_cast<int>(m_arButtons.GetSize()); }
    void RemoveAll();

    // Image lists for all buttons in place of the category's; they are copied, null empties.
    void SetImages(CMFCToolBarImages* pImages, CMFCToolBarImages* pHotImages, CMFCToolBarImages* pDisabledImages);
    BOOL HasImages() const { return m_Images.GetCount() > 0; }
    const CSize GetImageSize() const;
    virtual void OnDrawImage(CDC* pDC, CRect rectImage, CMFCRibbonBaseElement* pButton, int nImageIndex);

    CSize GetRegularSize(CDC* pDC) override;
    void OnCalcTextSize(CDC* pDC) override;
    void CleanUpSizes() override;
    void OnAfterChangeRect(CDC* pDC) override;
    BOOL IsAlignByColumn() const override { return FALSE; }
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    BOOL IsTabStop() const override { return FALSE; }
    void OnDraw(CDC* pDC) override;
    void OnShow(BOOL bShow) override;
    void DestroyCtrl() override;

    void SetParentCategory(CMFCRibbonCategory* pCategory) override;
    void SetParentPanel(CMFCRibbonPanel* pPanel) override;
    void SetParentRibbonBar(CMFCRibbonBar* pRibbonBar) override;
    void SetParentWnd(CWnd* pParentWnd) override;
    void SetParentMenu(CMFCRibbonPanelMenuBar* pMenuBar) override;
    void SetOriginal(CMFCRibbonBaseElement* pOriginal) override;
    void CopyFrom(const CMFCRibbonBaseElement& src) override;

    void AddToKeyList(CArray<CMFCRibbonKeyTip*, CMFCRibbonKeyTip*>& arElems) override;
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    CMFCRibbonBaseElement* HitTest(CPoint point) override;
    CMFCRibbonBaseElement* Find(const CMFCRibbonBaseElement* pElement) override;
    CMFCRibbonBaseElement* FindByID(UINT uiCmdID) override;
    CMFCRibbonBaseElement* FindByData(DWORD_PTR dwData) override;
    CMFCRibbonBaseElement* FindByOriginal(CMFCRibbonBaseElement* pOriginal) override;
    CMFCRibbonBaseElement* GetDroppedDown() override;
    CMFCRibbonBaseElement* GetHighlighted() override;
    CMFCRibbonBaseElement* GetPressed() override;
    void GetElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements) override;
    void GetElementsByID(UINT uiCmdID, CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements) override;

    // Mouse input goes to the button that HitTest answers.
    void OnHighlight(BOOL bHighlight) override;
    void OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    void PlaceButtons(CDC* pDC);

    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> m_arButtons;
    CMFCToolBarImages m_Images;
    CMFCToolBarImages m_HotImages;
    CMFCToolBarImages m_DisabledImages;
};
