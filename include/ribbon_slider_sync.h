#pragma once

#include "barwright_api.h"

#include <afxribbonslider.h>
#include <fx/ribbon_slider_part.h>

#include <vector>

/// A ribbon slider whose copies stay at one position. The copies form a chain by their originals; the root of the chain
/// reaches them all, and every change is reported once, as the root's command. The tooltip is the position. The
/// containers own the sliders; copies and root may go in any order: the first copy of a root that goes becomes the root
/// of the others.
class BARWRIGHT_API CMFCRibbonSliderSync : public CMFCRibbonSlider {
    DECLARE_DYNCREATE(CMFCRibbonSliderSync)

public:
    CMFCRibbonSliderSync() : CMFCRibbonSlider(0) {}
    /// width: of the channel, in pixels at 96 DPI.
    explicit CMFCRibbonSliderSync(UINT id, int width = 100);
    ~CMFCRibbonSliderSync() override;

    /// Moves the root and every slider linked to it; their tooltips follow. No command is sent.
    void SetPosSync(int pos, int redraw);
    /// Brings this slider's position to all the others and sends the root's command, to the owner of the root's bar;
    /// to nobody when the root is in no bar or disabled. The command's handler may delete this slider.
    void NotifyCommandSync();
    void setTooltipFromPos();

    /// Makes another slider follow this one, which does not follow it. A slider whose original is a synchronised slider
    /// follows that alone; nothing happens then, nor when this slider follows the other one.
    void AddLinkedSlider(CMFCRibbonSliderSync* slider);

    /// Refused where the chain would become a ring.
    void SetOriginal(CMFCRibbonBaseElement* original) override;
    void OnMouseMove(CPoint point) override;
    void OnLButtonDown(CPoint point) override;
    void OnLButtonUp(CPoint point) override;
    BOOL OnAutoRepeat() override;

protected:
    void ChangePos(int pos) override;

private:
    CMFCRibbonSliderSync& GetRoot();
    bool Follows(const CMFCRibbonSliderSync& slider) const;
    void Link(CMFCRibbonSliderSync& slider);
    void Unlink();
    void ShowPos(int pos, int redraw);
    void TakePos(int pos);
    RibbonSliderPart PartAt(CPoint point) const;
    int PosAt(CPoint point) const;
    RibbonSliderPart PressedPart() const;

    RibbonSliderPart m_pressed = RibbonSliderPart::None; ///< by the press that came last

    // None of them is owned.
    CMFCRibbonSliderSync* m_source = nullptr;    // the original, where that is a synchronised slider
    CMFCRibbonSliderSync* m_leader = nullptr;    // whose list holds this slider: the source where there is one
    std::vector<CMFCRibbonSliderSync*> m_linked; // who follows this slider itself
};
