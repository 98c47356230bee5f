#pragma once

#include "elements/icon_file.h"
#include "ribbon_icon_button.h"
#include "tests/support/canvas.h"
#include "tests/support/icon_writer.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/ui_test.h"

#include <afxglobals.h>

#include <memory>
#include <string>

// 0x00RRGGBB.
constexpr std::uint32_t red = 0xFF0000;
constexpr std::uint32_t green = 0x00FF00;
constexpr std::uint32_t blue = 0x0000FF;
constexpr std::uint32_t yellow = 0xFFFF00;

/// Two icon files with their alternates: red and green, blue and yellow; and a canvas to draw buttons on.
class IconButton : public testing::Test {
protected:
    ~IconButton() override {
        CMFCRibbonUNIcoButton::SetSkinStyle(CString());
        afxGlobalData.SetRibbonImageScale(1.0);
        EXPECT_EQ(FileIcon::GetAliveCount(), 0u) << "an icon was not released";
    }
    void SetUp() override {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0));
        m_large = WriteIcon("pic/modle/large.ico", 32, red);
        m_small = WriteIcon("pic/modle/small.ico", 16, green);
        WriteIcon("pic/modle_0/large.ico", 32, blue);
        WriteIcon("pic/modle_0/small.ico", 16, yellow);
    }

    CString WriteIcon(const std::string& name, int side, std::uint32_t colour) {
        return m_directory.Write(name, MakeIconFile(side, {colour, colour})).c_str();
    }
    std::unique_ptr<CMFCRibbonUNIcoButton> MakeButton(BOOL keepLarge = FALSE) const {
        return std::make_unique<CMFCRibbonUNIcoButton>(1, L"text", m_large, FALSE, m_small, TRUE, FALSE, keepLarge);
    }

    /// The large picture's colour where the skin style selects the alternate of the path.
    std::uint32_t AlternateDrawn(const CString& largePath) {
        CMFCRibbonUNIcoButton button(1, L"", largePath, FALSE, CString());
        CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
        return ColourDrawn(button, Large);
    }
    /// The colour near the corner of the picture that the button draws at (10, 20).
    std::uint32_t ColourDrawn(CMFCRibbonUNIcoButton& button, CMFCRibbonBaseElement::RibbonImageType type) {
        m_canvas.Clear();
        button.DrawImage(m_canvas.Dc(), type, CRect(10, 20, 64, 64));
        return m_canvas.At(14, 24);
    }
    CSize ExtentDrawn(CMFCRibbonUNIcoButton& button, CMFCRibbonBaseElement::RibbonImageType type) {
        ColourDrawn(button, type);
        return m_canvas.Extent();
    }

    static constexpr auto Large = CMFCRibbonBaseElement::RibbonImageLarge;
    static constexpr auto Small = CMFCRibbonBaseElement::RibbonImageSmall;

    TemporaryDirectory m_directory;
    CString m_large;
    CString m_small;
    Canvas m_canvas;
};
