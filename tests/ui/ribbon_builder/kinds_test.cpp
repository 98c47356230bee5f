// Every kind of element in every place that takes elements.
#include "tests/ui/ribbon_builder/ribbon_fixture.h"

#include <ostream>

namespace {

struct Kind {
    const char* type;
    const wchar_t* builtAs; // without the classes' common beginning
};

std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.type; }

class ElementKind : public RibbonBuilder, public testing::WithParamInterface<Kind> {
protected:
    /// An element of the kind.
    static std::string Member(const char* keyword) {
        return std::string("<s KEYWORD='") + keyword + "' NAME='' " + GetParam().type + "/>";
    }
};

TEST_P(ElementKind, IsAPanelsElement) {
    ASSERT_TRUE(Load(Panel(Member("M"))));
    EXPECT_EQ(Outline(), std::wstring(L"[C #0 (P ") + GetParam().builtAs + L" M #1)]");
}

TEST_P(ElementKind, IsAMemberOfAGroup) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='G' TYPE='GROUP'>" + Member("M") + Member("N") + "</e>")));
    const std::wstring kind = GetParam().builtAs;
    EXPECT_EQ(Outline(), L"[C #0 (P ButtonsGroup{" + kind + L" M #2, " + kind + L" N #3})]");
}

TEST_P(ElementKind, IsAButtonsSubItem) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='B' NAME='' TYPE='BUTTON'>" + Member("M") + Member("N") + "</e>")));
    const std::wstring kind = GetParam().builtAs;
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton B #1{" + kind + L" M #2, " + kind + L" N #3})]");
}

TEST_P(ElementKind, StandsBehindASeparatorWhenItBeginsAGroup) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='B' NAME='' TYPE='BUTTON'/><e KEYWORD='M' NAME='' " +
                           std::string(GetParam().type) + " GROUPBEFORE='Y'/>")));
    EXPECT_EQ(Outline(), std::wstring(L"[C #0 (P UNIcoButton B #1 Separator ") + GetParam().builtAs + L" M #2)]");
}

INSTANTIATE_TEST_SUITE_P(Kinds, ElementKind,
                         testing::Values(Kind{"TYPE='BUTTON'", L"UNIcoButton"},
                                         Kind{"TYPE='BUTTON' SIZE='16'", L"SmallButton"},
                                         Kind{"TYPE='SLIDER'", L"Slider"}, Kind{"TYPE='LABEL'", L"Label"},
                                         Kind{"TYPE='EDIT'", L"Edit"}, Kind{"TYPE='qkRibbonCheckComb'", L"CheckComb"},
                                         Kind{"TYPE='qkRibbonMultiComb'", L"MultiCombo"},
                                         Kind{"TYPE='qkRibbonMultiComb2'", L"VesMultiCombo"}),
                         [](const auto& info) {
                             const std::wstring name = info.param.builtAs;
                             return std::string(name.begin(), name.end());
                         });

TEST_F(RibbonBuilder, SeparatorStandsBeforeAGroupAndBeforeAnElementWhoseChildrenForbidIt) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='B' TYPE='BUTTON'/>"
                           "<e KEYWORD='G' TYPE='GROUP' GROUPBEFORE='Y'><s KEYWORD='1' TYPE='BUTTON'/></e>"
                           "<e KEYWORD='L' TYPE='label' GROUPBEFORE='Y'><s KEYWORD='2' TYPE='BUTTON'/></e>")));
    EXPECT_EQ(Outline(), L"[C #0 (P UNIcoButton B #1 Separator ButtonsGroup{UNIcoButton 1 #3} Separator)]");
}

} // namespace
