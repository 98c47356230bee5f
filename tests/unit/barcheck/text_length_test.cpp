#include "checked_installation.h"
#include "config/check/text_width.h"

#include <varnhold/strings.h>

#include <gtest/gtest.h>

#include <utility>

namespace {

/// An installation whose only panel holds one element, with its text in each language.
class TextLength : public testing::Test {
protected:
    void Write(const std::string& element, const std::string& english, const std::string& german = {}) const {
        m_installation.Write("cfg/ribbon.xml",
                             "<r><r><c KEYWORD='Map' NAME=''><p KEYWORD='P'>\n" + element + "\n</p></c></r></r>");
        const auto table = [](const std::string& text, const char* language) {
            return CheckedInstallation::Table(
                CheckedInstallation::Unit("Map", "Map") + CheckedInstallation::Unit("A", text), language);
        };
        m_installation.Write("lang/en/a.xlf", table(english, "en"));
        if (!german.empty()) {
            m_installation.Write("lang/de/a.xlf", table(german, "de"));
        }
    }
    std::string Findings() const { return m_installation.Findings(); }

    const CheckedInstallation m_installation;
};

TEST(TextWidth, CountsEachLetterByItsOwnWidth) {
    EXPECT_EQ(TextWidth(L""), 0);
    EXPECT_LT(TextWidth(L"iiii") * 2, TextWidth(L"mmmm"));
    EXPECT_EQ(TextWidth(L"mm"), (TextWidth(L"mmmm") + 1) / 2);
}

TEST(TextWidth, CountsAChineseCharacterAsASquare) { EXPECT_EQ(TextWidth(L"\u4E2D\u6587"), 24); }

TEST(TextWidth, CountsMarksAboveLettersAsNothing) {
    EXPECT_EQ(TextWidth(L"e\u0301"), TextWidth(L"e"));
    EXPECT_EQ(TextWidth(L"\u05D0\u05B8"), TextWidth(L"\u05D0"));
}

TEST(TextWidth, CountsACharacterBeyondTheBasicPlaneOnce) {
    EXPECT_GT(TextWidth(L"\U00020000"), 0);
    EXPECT_LE(TextWidth(L"\U00020000"), 12);
}

TEST_F(TextLength, AFieldHasTheRoomOfItsWidth) {
    Write("<e KEYWORD='A' NAME='' TYPE='edit' WIDTH='60'/>", "Short text");
    EXPECT_EQ(Findings(), "");
    Write("<e KEYWORD='A' NAME='' TYPE='edit' WIDTH='60'/>", "Rather a long text");
    EXPECT_EQ(Findings(), "lang/en/a.xlf:4:1 long-text\n");
    Write("<e KEYWORD='A' NAME='' TYPE='edit' WIDTH='130'/>", "Rather a long text");
    EXPECT_EQ(Findings(), "");
}

TEST_F(TextLength, AFieldWithoutWidthHasTheUsualOne) {
    Write("<e KEYWORD='A' NAME='' TYPE='edit'/>", "Place");
    EXPECT_EQ(Findings(), "");
    Write("<e KEYWORD='A' NAME='' TYPE='edit'/>", "Places of all");
    EXPECT_EQ(Findings(), "lang/en/a.xlf:4:1 long-text\n");
}

TEST_F(TextLength, WhatIsALittleWiderIsNotSaid) {
    const std::string text(20, 'n');
    const int width = TextWidth(std::wstring(20, L'n'));
    const auto field = [](int pixels) {
        return "<e KEYWORD='A' NAME='' TYPE='edit' WIDTH='" + std::to_string(pixels) + "'/>";
    };
    constexpr int margins = 6;
    Write(field(width * 97 / 100 + margins), text);
    EXPECT_EQ(Findings(), "");
    Write(field(width * 93 / 100 + margins), text);
    EXPECT_EQ(Findings(), "lang/en/a.xlf:4:1 long-text\n");
}

TEST_F(TextLength, AFieldThatIsTooSmallInEveryLanguageIsSaidOnceAndHowWideItShouldBe) {
    Write("<e KEYWORD='A' NAME='' TYPE='edit' WIDTH='60'/>", "Rather a long text", "A text that is rather long");
    const std::vector<Diagnostic> findings = m_installation.Check();
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(CheckedInstallation::Describe(findings[0]), "cfg/ribbon.xml:2:36 long-text\n");
    const int widest = TextWidth(L"A text that is rather long");
    EXPECT_EQ(findings[0].fix, L"write WIDTH=\"" + std::to_wstring(widest + 6) + L"\" or more");
}

TEST_F(TextLength, TheLanguageThatIsTooLongIsNamedByItsTable) {
    Write("<e KEYWORD='A' NAME='' TYPE='edit' WIDTH='60'/>", "Short", "A text that is rather long");
    EXPECT_EQ(Findings(), "lang/de/a.xlf:4:1 long-text\n");
}

TEST_F(TextLength, NoWindowHasRoomForATextOfThirteenHundredPixels) {
    std::string text;
    while (TextWidth(string2wstring(text)) < 1400) {
        text += "many words ";
    }
    const std::string place = "lang/en/a.xlf:4:1 long-text\n";
    Write("<e KEYWORD='A' NAME='' TYPE='label'/>", text);
    EXPECT_EQ(Findings(), place);
    Write("<e KEYWORD='A' NAME='' TYPE='BUTTON' SIZE='16'/>", text);
    EXPECT_EQ(Findings(), place);
    Write("<e KEYWORD='A' NAME='' TYPE='BUTTON' SIZE='32'/>", text); // on two lines
    EXPECT_EQ(Findings(), "");
    Write("<e KEYWORD='A' NAME='' TYPE='BUTTON' SIZE='32'/>", text + text);
    EXPECT_EQ(Findings(), place);
}

/// Of single words, about so wide.
std::string WideText(int width) {
    std::string text;
    while (TextWidth(string2wstring(text)) < width) {
        text += "word ";
    }
    return text;
}

TEST_F(TextLength, ALargeButtonHasTwoLinesBrokenBetweenWords) {
    const std::string button = "<e KEYWORD='A' NAME='' TYPE='BUTTON' SIZE='32'/>";
    const std::string word(260, 'n'); // in one piece
    Write(button, "a " + word);
    EXPECT_EQ(Findings(), "lang/en/a.xlf:4:1 long-text\n");
    std::string unspaced;
    for (int i = 0; i < 150; ++i) { // 1,800 pixels, which can be broken anywhere
        unspaced += "\xE4\xB8\xAD";
    }
    Write(button, unspaced);
    EXPECT_EQ(Findings(), "");
    Write(button, unspaced + unspaced);
    EXPECT_EQ(Findings(), "lang/en/a.xlf:4:1 long-text\n");
}

TEST_F(TextLength, TheCaptionOfAComboLeavesRoomForItsList) {
    const std::string text = WideText(1270);
    Write("<e KEYWORD='A' NAME='' TYPE='label'/>", text);
    EXPECT_EQ(Findings(), "");
    for (const char* const type : {"qkRibbonCheckComb", "qkRibbonMultiComb", "qkRibbonMultiComb2"}) {
        Write("<e KEYWORD='A' NAME='' TYPE='" + std::string(type) + "'/>", text);
        EXPECT_EQ(Findings(), "lang/en/a.xlf:4:1 long-text\n") << type;
    }
}

TEST_F(TextLength, AMenuItemLeavesRoomForItsShortcut) {
    const auto write = [this](const std::string& attributes) {
        m_installation.Write("cfg/menu.xml", "<m><g><p KEYWORD='Map' MENUNAME=''>\n<i KEYWORD='A' MENUNAME=''" +
                                                 attributes + "/></p></g></m>");
    };
    m_installation.Write("lang/en/a.xlf", CheckedInstallation::Table(CheckedInstallation::Unit("Map", "Map") +
                                                                         CheckedInstallation::Unit("A", WideText(1300)),
                                                                     "en"));
    write("");
    EXPECT_EQ(Findings(), "");
    write(" HOTKEY='Ctrl+Shift+K'");
    EXPECT_EQ(Findings(), "lang/en/a.xlf:4:1 long-text\n");
}

TEST_F(TextLength, ATooltipHasTheLinesOfAScreen) {
    const auto write = [this](int width) {
        m_installation.Write("cfg/ribbon.xml", RibbonWith("<e KEYWORD='A' TOOLTIP='' TYPE='slider'/>"));
        m_installation.Write("lang/en/a.xlf",
                             CheckedInstallation::Table(CheckedInstallation::Unit("Map", "Map") +
                                                            CheckedInstallation::Unit("A.tooltip", WideText(width)),
                                                        "en"));
    };
    write(640 * 45);
    EXPECT_EQ(Findings(), "");
    write(640 * 50);
    EXPECT_EQ(Findings(), "lang/en/a.xlf:4:1 long-text\n");
}

/// Whose only row of status-bar buttons holds these.
class StatusTextLength : public TextLength {
protected:
    void WriteRow(const std::string& buttons, const std::string& english, const std::string& german) const {
        m_installation.Write("cfg/ribbon.xml",
                             "<r>\n<r KEYWORD='StatusEx_btns'>" + buttons +
                                 "</r><r><c KEYWORD='Map' NAME=''><p KEYWORD='P'><b KEYWORD='A' NAME='' "
                                 "TYPE='slider'/><b KEYWORD='B' NAME='' TYPE='slider'/></p></c></r></r>");
        for (const auto& [language, text] : {std::pair("en", english), std::pair("de", german)}) {
            m_installation.Write(std::string("lang/") + language + "/a.xlf",
                                 CheckedInstallation::Table(CheckedInstallation::Unit("Map", "Map") +
                                                                CheckedInstallation::Unit("A", text) +
                                                                CheckedInstallation::Unit("B", text),
                                                            language));
        }
    }
    static constexpr const char* kTwoLabels =
        "<b KEYWORD='A' NAME='' TYPE='label'/><b KEYWORD='B' NAME='' TYPE='label'/>";
};

TEST_F(StatusTextLength, AButtonThatNoWindowHasRoomForIsSaidByItsText) {
    WriteRow("<b KEYWORD='A' NAME='' TYPE='label'/>", "Short", WideText(1400));
    EXPECT_EQ(Findings(), "lang/de/a.xlf:4:1 long-text\n");
    WriteRow("<b KEYWORD='A' NAME='' TYPE='slider'/>", "Short", WideText(1400)); // which does not draw it
    EXPECT_EQ(Findings(), "");
}

TEST_F(StatusTextLength, ARowThatIsTooWideTogetherIsSaidOnceWithTheWorstLanguage) {
    WriteRow(kTwoLabels, WideText(500), WideText(900));
    EXPECT_EQ(Findings(), "");
    WriteRow(kTwoLabels, WideText(500), WideText(1100));
    const std::vector<Diagnostic> findings = m_installation.Check();
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(CheckedInstallation::Describe(findings[0]), "cfg/ribbon.xml:2:4 long-text\n");
    EXPECT_NE(findings[0].text.find(L" in de"), std::wstring::npos);
}

TEST_F(StatusTextLength, ASliderOfARowHasItsWidth) {
    const std::string slider = "<b KEYWORD='B' NAME='' TYPE='slider' WIDTH='";
    const std::string label = "'/><b KEYWORD='A' NAME='' TYPE='label'/>";
    WriteRow(slider + "700" + label, WideText(1000), WideText(1000));
    EXPECT_EQ(Findings(), "");
    WriteRow(slider + "1100" + label, WideText(1000), WideText(1000));
    EXPECT_EQ(Findings(), "cfg/ribbon.xml:2:4 long-text\n");
}

TEST_F(TextLength, TextsOfToolbarsAreThoseOfTheFile) {
    const auto write = [this](const std::string& title, const std::string& text) {
        m_installation.Write("cfg/toolbar.xml", "<t><g KEYWORD='G'><b PROMPT='" + title +
                                                    "'>\n<i TYPE='button' KEYWORD='T' PROMPT='" + text +
                                                    "'/></b></g></t>");
        m_installation.Write("lang/en/a.xlf", CheckedInstallation::Table("", "en"));
    };
    const std::string icon = "cfg/toolbar.xml:2:1 missing-icon\n";
    const auto withoutIcon = [&] {
        std::string findings = Findings();
        const std::size_t at = findings.find(icon);
        return at == std::string::npos ? findings : findings.erase(at, icon.size());
    };
    write(WideText(1000), WideText(1000));
    EXPECT_EQ(withoutIcon(), "");
    write(WideText(1400), "In");
    EXPECT_EQ(withoutIcon(), "cfg/toolbar.xml:1:22 long-text\n");
    write("Zoom", WideText(1400));
    EXPECT_EQ(withoutIcon(), "cfg/toolbar.xml:2:30 long-text\n");
}

TEST_F(TextLength, OfATextThatIsNotAskedForNothingIsSaid) {
    Write("<e KEYWORD='A' TYPE='edit' WIDTH='20'/>", "Rather a long text");
    EXPECT_EQ(Findings(), "");
}

TEST_F(TextLength, AWidthThatCannotBeReadIsSaidAlone) {
    Write("<e KEYWORD='A' NAME='' TYPE='edit' WIDTH='20px'/>", "Rather a long text");
    EXPECT_EQ(Findings(), "cfg/ribbon.xml:2:36 bad-number\n");
    Write("<e KEYWORD='A' NAME='' TYPE='edit' WIDTH='0'/>", "Rather a long text");
    EXPECT_EQ(Findings(), "cfg/ribbon.xml:2:36 odd-size\n");
}

} // namespace
