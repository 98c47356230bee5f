#include "checked_installation.h"
#include "config/check/text_width.h"

#include <varnhold/strings.h>

#include <gtest/gtest.h>

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
