#include "tests/ui/ribbon_access/accessible.h"

#include <gmock/gmock.h>

#include "afxRibbonEdit.h"
#include "afxribbonslider.h"
#include "ribbon_events.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class AccessEventTest : public AccessTest {};

TEST_F(AccessEventTest, AChangeOfTheFocusNamesItsElement) {
    RibbonEvents events(Bar());
    EXPECT_EQ(Of(commands::copy).Select(SELFLAG_TAKEFOCUS), S_OK);
    // The system tells of the window, the bar of the tab where it starts.
    EXPECT_THAT(events.NamesOf(EVENT_OBJECT_FOCUS), ElementsAre(L"Ribbon", L"Home", L"Copy"));
}

TEST_F(AccessEventTest, ChangesOfStateNameTheirElement) {
    RibbonEvents events(Bar());
    m_frame->disabledCommand = commands::paste;
    PumpPending();
    EXPECT_THAT(events.NamesOf(EVENT_OBJECT_STATECHANGE), ElementsAre(L"Paste"));
    PumpPending();
    EXPECT_THAT(events.NamesOf(EVENT_OBJECT_STATECHANGE), IsEmpty()) << "nothing has changed";
    m_frame->checkedCommand = commands::options;
    PumpPending();
    EXPECT_THAT(events.NamesOf(EVENT_OBJECT_STATECHANGE), ElementsAre(L"Options"));
}

TEST_F(AccessEventTest, ChangesOfValueAndNameNameTheirElement) {
    RibbonEvents events(Bar());
    static_cast<CMFCRibbonEdit&>(Element(commands::size)).SetEditText(L"48");
    EXPECT_THAT(events.NamesOf(EVENT_OBJECT_VALUECHANGE), ElementsAre(L"Size:"));
    static_cast<CMFCRibbonSlider&>(Element(commands::zoom)).SetPos(70);
    EXPECT_EQ(events.NamesOf(EVENT_OBJECT_VALUECHANGE).size(), 1u);
    static_cast<CMFCRibbonSlider&>(Element(commands::zoom)).SetPos(70);
    EXPECT_THAT(events.NamesOf(EVENT_OBJECT_VALUECHANGE), IsEmpty());
    Element(commands::cut).SetText(L"Remove");
    EXPECT_THAT(events.NamesOf(EVENT_OBJECT_NAMECHANGE), ElementsAre(L"Remove"));
}

} // namespace
