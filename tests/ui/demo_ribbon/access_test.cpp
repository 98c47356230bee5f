#include "tests/ui/demo_ribbon/demo_ribbon.h"
#include "tests/ui/ribbon_access/accessible.h"
#include "varnhold/strings.h"

namespace {

class DemoAccessTest : public AccessTest {
protected:
    DemoAccessTest() { LoadDemoRibbon(Bar()); }

    CRect OnScreen(const nlohmann::ordered_json& rect) {
        CRect result(rect[0], rect[1], rect[2], rect[3]);
        Bar().ClientToScreen(result);
        return result;
    }

    /// What an assistive program hears of the element is what the dump says of it.
    void ExpectIs(const Accessible& object, const nlohmann::ordered_json& element) {
        SCOPED_TRACE(element.dump());
        ++m_compared;
        EXPECT_EQ(object.Location(), OnScreen(element["rect"]));
        const std::wstring text = string2wstring(element["text"].get<std::string>());
        if (!text.empty()) {
            EXPECT_EQ(object.Name(), text);
        }
        EXPECT_EQ((object.State() & STATE_SYSTEM_UNAVAILABLE) == 0, element["enabled"].get<bool>());
        const bool isGroup = element["class"] == "CMFCRibbonButtonsGroup";
        // Sub-items, or the list of a combo.
        const bool dropsDown = !isGroup && (element.contains("children") || element.contains("dropDownHeight"));
        EXPECT_EQ((object.State() & STATE_SYSTEM_HASPOPUP) != 0, dropsDown);
        if (!isGroup)
            return;
        const auto& members = element["children"];
        ASSERT_EQ(object.ChildCount(), static_cast<long>(members.size()));
        for (std::size_t place = 0; place < members.size(); ++place)
            ExpectIs(object.ChildAt(static_cast<LONG>(place) + 1), members[place]);
    }

    int m_compared = 0;
};

TEST_F(DemoAccessTest, TheTreeIsTheDumpElementByElement) {
    SetClientWidth(1600);
    for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
        Bar().SetActiveCategory(Bar().GetCategory(index));
        PumpPending();
        const nlohmann::ordered_json category = DumpCategories(Bar())[static_cast<std::size_t>(index)];
        const Accessible page = Part(ROLE_SYSTEM_PROPERTYPAGE);
        ASSERT_EQ(page.Name(), string2wstring(category["name"].get<std::string>()));
        const auto& panels = category["panels"];
        ASSERT_EQ(page.ChildCount(), static_cast<long>(panels.size()));
        for (std::size_t place = 0; place < panels.size(); ++place) {
            const Accessible grouping = page.ChildAt(static_cast<LONG>(place) + 1);
            EXPECT_EQ(grouping.Name(), string2wstring(panels[place]["name"].get<std::string>()));
            const auto& elements = panels[place]["elements"];
            ASSERT_EQ(grouping.ChildCount(), static_cast<long>(elements.size()));
            for (std::size_t element = 0; element < elements.size(); ++element)
                ExpectIs(grouping.ChildAt(static_cast<LONG>(element) + 1), elements[element]);
        }
    }
    EXPECT_GT(m_compared, 50);
}

} // namespace
