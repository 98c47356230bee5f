#include "tests/ui/ribbon_drawing/random_ribbon.h"

#include <afxribboncheckbox.h>
#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>

IMPLEMENT_DYNCREATE(OpenCategory, CMFCRibbonCategory)

RandomRibbon::RandomRibbon(double scale, Direction direction) {
    afxGlobalData.SetRibbonImageScale(scale);
    if (direction == Direction::RightToLeft) {
        Bar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    }
    Bar().ForceRecalcLayout();
}

RandomRibbon::~RandomRibbon() { afxGlobalData.SetRibbonImageScale(0); }

void RandomRibbon::Fill(unsigned seed) {
    m_random.seed(seed);
    m_category = static_cast<OpenCategory*>(
        Bar().AddCategory(L"Random", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OpenCategory)));
    for (unsigned panels = 3 + m_random() % 6; panels > 0; --panels) {
        CMFCRibbonPanel* const panel = m_category->AddPanel(Word(18));
        panel->SetCenterColumnVert(m_random() % 2 == 0);
        panel->SetJustifyColumns(m_random() % 2 == 0);
        for (unsigned elements = 1 + m_random() % 8; elements > 0; --elements) {
            panel->Add(MakeElement());
            if (m_random() % 6 == 0) {
                panel->AddSeparator();
            }
        }
    }
    Bar().SetActiveCategory(m_category);
    Bar().RecalcLayout();
}

void RandomRibbon::SetWidth(int width) {
    CRect window(0, 0, width, 600);
    m_frame->CalcWindowRect(window);
    m_frame->SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW);
}

std::vector<CMFCRibbonPanel*> RandomRibbon::Panels() const {
    std::vector<CMFCRibbonPanel*> panels;
    for (int index = 0; index < m_category->GetPanelCount(); ++index) {
        panels.push_back(m_category->GetPanel(index));
    }
    return panels;
}

std::vector<CMFCRibbonBaseElement*> RandomRibbon::ElementsOf(const CMFCRibbonPanel& panel) {
    std::vector<CMFCRibbonBaseElement*> elements;
    for (int index = 0; index < panel.GetCount(); ++index) {
        elements.push_back(panel.GetElement(index));
    }
    return elements;
}

CMFCRibbonBaseElement* RandomRibbon::MakeElement() {
    switch (m_random() % 11) {
    case 0:
    case 1:
        return MakeButton(Word(16) + L" " + Word(8), true);
    case 2:
    case 3:
        return MakeButton(Word(14), false);
    case 4:
        return new Probe<CMFCRibbonEdit>(m_log, m_nextId++, 40 + static_cast<int>(m_random() % 100), Word(8));
    case 5:
        return new Probe<CMFCRibbonSlider>(m_log, m_nextId++, 50 + static_cast<int>(m_random() % 100));
    case 6:
        return new Probe<CMFCRibbonCheckBox>(m_log, m_nextId++, Word(12));
    case 7: {
        auto* const group = new CMFCRibbonButtonsGroup;
        for (unsigned buttons = 1 + m_random() % 5; buttons > 0; --buttons) {
            group->AddButton(MakeButton(L"", true));
        }
        return group;
    }
    case 8: {
        CMFCRibbonButton* const button = MakeButton(Word(10), m_random() % 2 == 0);
        button->AddSubItem(new CMFCRibbonButton(m_nextId++, L"Item"));
        button->SetDefaultCommand(m_random() % 2 == 0);
        return button;
    }
    case 9: {
        CMFCRibbonButton* const button = MakeButton(Word(10), true);
        button->SetVisible(FALSE);
        return button;
    }
    default:
        return new Probe<CMFCRibbonLabel>(m_log, Word(12) + L" ");
    }
}

CMFCRibbonButton* RandomRibbon::MakeButton(LPCTSTR text, bool hasLargeImage) {
    const HICON icon = ::LoadIcon(nullptr, IDI_APPLICATION);
    return hasLargeImage ? new Probe<CMFCRibbonButton>(m_log, m_nextId++, text, icon, FALSE, icon)
                         : new Probe<CMFCRibbonButton>(m_log, m_nextId++, text);
}

CString RandomRibbon::Word(unsigned most) { return CString(L'o', static_cast<int>(m_random() % (most + 1))); }
