#pragma once

#include "tests/ui/ribbon_drawing/probes.h"

#include <random>
#include <vector>

/// Shows its scroll buttons to the tests.
class OpenCategory : public CMFCRibbonCategory {
    DECLARE_DYNCREATE(OpenCategory)

public:
    CRect ScrollLeftRect() const { return m_ScrollLeft.GetRect(); }
    CRect ScrollRightRect() const { return m_ScrollRight.GetRect(); }
};

/// A bar whose active category has panels and elements by chance; each seed gives always the same ones.
class RandomRibbon : public RibbonBarTest {
protected:
    enum class Direction { LeftToRight, RightToLeft };

    /// The scale is that of every window of the program while the object lives; 1.0 at 96 DPI.
    explicit RandomRibbon(double scale = 1.0, Direction direction = Direction::LeftToRight);
    ~RandomRibbon() override;

    void Fill(unsigned seed);
    /// Without the message loop, so that nothing but the layout happens. Pixels of the frame's client area.
    void SetWidth(int width);
    std::vector<CMFCRibbonPanel*> Panels() const;
    static std::vector<CMFCRibbonBaseElement*> ElementsOf(const CMFCRibbonPanel& panel);

    DrawingLog m_log;
    OpenCategory* m_category = nullptr;

private:
    CMFCRibbonBaseElement* MakeElement();
    CMFCRibbonButton* MakeButton(LPCTSTR text, bool hasLargeImage);
    CString Word(unsigned most);

    std::mt19937 m_random;
    UINT m_nextId = commands::firstHandled + 2000;
};
