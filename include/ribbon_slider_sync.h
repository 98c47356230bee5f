#pragma once

#include "barwright_api.h"

#include <afxribbonslider.h>

#include <vector>

/// A ribbon slider whose copies stay at one position. The copies form a chain by their originals; the root of the chain
/// knows them all, and every change is reported once, as the root's command. The tooltip is the position. The
/// containers own the sliders; copies and root may go in any order.
class BARWRIGHT_API CMFCRibbonSliderSync : public CMFCRibbonSlider {
    DECLARE_DYNCREATE(CMFCRibbonSliderSync)

public:
    CMFCRibbonSliderSync() = default;
    /// width: of the channel, in pixels at 96 DPI.
    explicit CMFCRibbonSliderSync(UINT id, int width = 100);
    ~CMFCRibbonSliderSync() override;

    /// Moves the root and every slider linked to it; their tooltips follow. No command is sent.
    void SetPosSync(int pos, int redraw);
    /// Brings this slider's position to all the others and sends the root's command. The command's handler may delete
    /// this slider.
    void NotifyCommandSync();
    void setTooltipFromPos();

    /// Makes another slider follow this one; nothing happens when it does already. A slider whose original is a
    /// synchronised slider is linked by that alone.
    void AddLinkedSlider(CMFCRibbonSliderSync* slider);

    void SetOriginal(CMFCRibbonBaseElement* original) override;
    void OnMouseMove(CPoint point) override;
    void OnLButtonUp(CPoint point) override;
    BOOL OnAutoRepeat() override;

protected:
    void ChangePos(int pos) override;

private:
    CMFCRibbonSliderSync* GetSource() const;
    CMFCRibbonSliderSync& GetRoot();
    void Unlink();
    void ShowPos(int pos, int redraw);
    void TakePos(int pos);

    std::vector<CMFCRibbonSliderSync*> m_linked; // not owned
    CMFCRibbonSliderSync* m_linkedTo = nullptr;  // whose list holds this slider
};
