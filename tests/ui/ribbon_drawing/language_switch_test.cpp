// Texts are looked up at every paint: after a language switch a repaint shows the new ones, and nothing runs over.
#include "tests/support/icon_writer.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/translation_tables.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

#include "ribbon_icon_button.h"
#include "ribbon_label_ex.h"

namespace {

class LanguageSwitch : public RibbonBarTest {
protected:
    LanguageSwitch() {
        m_tables.Translate("One Two Three Four Five", "Common");
        const auto file = [this](int side) {
            const std::string name = "icon" + std::to_string(side) + ".ico";
            return CString(m_directory.Write(name, MakeIconFile(side, {0xFF0000, 0x00FF00})).c_str());
        };
        m_large = file(32);
        m_small = file(16);
        m_category = Bar().AddCategory(L"Icons", 0, 0);
        m_panel = m_category->AddPanel(L"A panel whose name is long enough for all of its buttons, and for more");
        Add(L"One");
        Add(L"Two")->AddSubItem(new CMFCRibbonButton(commands::firstHandled + 3000, L"Item"));
        for (const LPCTSTR text : {L"Three", L"Four", L"Five"}) {
            auto* button = new CMFCRibbonSmallButton(m_nextId++, text, m_large, FALSE, m_small, TRUE, FALSE);
            button->SetSmallMode();
            m_panel->Add(button);
        }
        Bar().SetActiveCategory(m_category);
        Bar().RecalcLayout();
        RunIdle();
        PumpPending();
    }
    CMFCRibbonUNIcoButton* Add(LPCTSTR text) {
        auto* button = new CMFCRibbonUNIcoButton(m_nextId++, text, m_large, FALSE, m_small, TRUE, FALSE, FALSE);
        m_panel->Add(button);
        return button;
    }
    /// Another language, in which all texts are longer.
    void Switch() { ASSERT_TRUE(m_tables.Translate("One Two Three Four Five", "Common", "very much longer ")); }
    void PaintOnce() { Bar().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
    std::vector<CRect> Places() const {
        std::vector<CRect> places;
        for (int index = 0; index < m_panel->GetCount(); ++index) {
            places.push_back(m_panel->GetElement(index)->GetRect());
        }
        return places;
    }

    TranslatedInstallation m_tables;
    TemporaryDirectory m_directory;
    CString m_large, m_small;
    CMFCRibbonCategory* m_category = nullptr;
    CMFCRibbonPanel* m_panel = nullptr;
    UINT m_nextId = commands::firstHandled + 2000;
};

TEST_F(LanguageSwitch, ARepaintChangesNoPixelOutsideOfTheElements) {
    PaintOnce();
    const std::vector<COLORREF> before = ShownPixels();
    const std::vector<CRect> places = Places();
    Switch();
    PaintOnce();
    const std::vector<COLORREF> after = ShownPixels();
    ASSERT_EQ(Places(), places);
    CRect client;
    Bar().GetClientRect(client);
    std::vector<int> changed(places.size());
    for (int y = 0; y < client.Height(); ++y) {
        for (int x = 0; x < client.Width(); ++x) {
            const auto pixel = static_cast<size_t>(y) * static_cast<size_t>(client.Width()) + static_cast<size_t>(x);
            if (before[pixel] == after[pixel]) {
                continue;
            }
            bool isInside = false;
            for (size_t index = 0; index < places.size(); ++index) {
                isInside = isInside || places[index].PtInRect(CPoint(x, y));
                changed[index] += places[index].PtInRect(CPoint(x, y)) ? 1 : 0;
            }
            ASSERT_TRUE(isInside) << x << ", " << y;
        }
    }
    for (const int count : changed) {
        EXPECT_GT(count, 0) << "the new text did not show";
    }
}

TEST_F(LanguageSwitch, TheTextsGetTheirRoomWithTheNextPaint) {
    const std::vector<CRect> former = Places();
    Switch();
    PaintOnce();
    PumpPending();
    const std::vector<CRect> places = Places();
    EXPECT_GT(places[0].Width(), former[0].Width());
    EXPECT_GT(places[2].Width(), former[2].Width());
    Bar().ForceRecalcLayout();
    EXPECT_EQ(Places(), places) << "as if laid out in that language from the start";
}

TEST_F(LanguageSwitch, ALabelAloneGetsItsRoomToo) {
    CMFCRibbonCategory* category = Bar().AddCategory(L"Labels", 0, 0);
    auto* label = new CMFCRibbonLabelEx(L"One", FALSE);
    category->AddPanel(L"Panel")->Add(label);
    Bar().SetActiveCategory(category);
    Bar().RecalcLayout();
    PumpPending();
    const int width = label->GetRect().Width();
    Switch();
    PaintOnce();
    PumpPending();
    EXPECT_GT(label->GetRect().Width(), width);
}

TEST_F(LanguageSwitch, SwitchedBackItIsAsBefore) {
    const std::vector<CRect> former = Places();
    Switch();
    PaintOnce();
    PumpPending();
    ASSERT_NE(Places(), former);
    m_tables.Translate("One Two Three Four Five", "Common");
    PaintOnce();
    PumpPending();
    EXPECT_EQ(Places(), former);
}

/// Draws another text than it measures, each time another one.
class Restless : public CMFCRibbonButton {
public:
    using CMFCRibbonButton::CMFCRibbonButton;
    void OnDraw(CDC* pDC) override {
        const CString kept = m_strText;
        m_strText = CString(L'm', 1 + ++draws % 40);
        CMFCRibbonButton::OnDraw(pDC);
        m_strText = kept;
    }
    int draws = 0;
};

TEST_F(LanguageSwitch, AnElementThatNeverShowsWhatItMeasuresIsNotDrawnWithoutEnd) {
    auto* button = new Restless(m_nextId++, L"Restless");
    m_panel->Add(button);
    Bar().RecalcLayout();
    PumpPending();
    button->draws = 0;
    for (int paint = 0; paint < 5; ++paint) {
        PaintOnce();
        PumpPending();
    }
    EXPECT_LE(button->draws, 7);
}

} // namespace
