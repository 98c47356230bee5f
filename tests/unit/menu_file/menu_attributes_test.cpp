#include "config/menu_attributes.h"
#include "tests/support/translation_tables.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class KeptDiagnostics : public DiagnosticsSink {
public:
    void Report(const Diagnostic& diagnostic) override {
        m_codes.emplace_back(diagnostic.code);
        m_last = diagnostic;
    }
    std::vector<std::string> m_codes;
    Diagnostic m_last;
};

class MenuAttributes : public testing::Test {
protected:
    MenuAttributes() { EXPECT_TRUE(m_installation.Translate("K Open")); }

    bool Read(const std::string& attributes) {
        CXmlDocumentWrapper document;
        EXPECT_TRUE(document.LoadFromMemory("<item " + attributes + "/>"));
        varnhold::XmlCursor element(document);
        return ReadMenuInfo(element, m_info, CTranslationSection("RibbonBarCfg"), FileDiagnostics(L"menu.xml", m_sink));
    }

    TranslatedInstallation m_installation;
    KeptDiagnostics m_sink;
    MenuInfo m_info;
};

TEST_F(MenuAttributes, EachFillsItsField) {
    ASSERT_TRUE(Read("KEYWORD='K' MENUNAME='x' SHORTKEY='S' HOTKEY='Ctrl+S' TOOLTIP='x' CMD='save' Param='1' "
                     "PicPath='pic\\a.ico'"));
    EXPECT_FALSE(m_info.bSeparator);
    EXPECT_EQ(m_info.strKeyword, L"K");
    EXPECT_EQ(m_info.strName, L"<K>");
    EXPECT_EQ(m_info.strShortKey, L"S");
    EXPECT_EQ(m_info.strHotKey, L"Ctrl+S");
    EXPECT_EQ(m_info.strText, L"<K>(&S)");
    EXPECT_EQ(m_info.strCmd, L"save");
    EXPECT_EQ(m_info.strToolTip, L"tip of <K>");
    EXPECT_EQ(m_info.strPicPath, L"pic\\a.ico");
    EXPECT_EQ(m_info.strParam, L"1");
    EXPECT_TRUE(m_sink.m_codes.empty());
}

TEST_F(MenuAttributes, NamesCountWithoutRegardToCase) {
    ASSERT_TRUE(Read("keyword='K' menuname='' shortkey='S' hotkey='A+B' tooltip='' cmd='c' PARAM='p' PICPATH='i'"));
    EXPECT_EQ(m_info.strText, L"<K>(&S)");
    EXPECT_EQ(m_info.strCmd + m_info.strParam + m_info.strPicPath + m_info.strHotKey, L"cpiA+B");
}

TEST_F(MenuAttributes, ValueOfTheNameIsNotShown) {
    ASSERT_TRUE(Read("KEYWORD='K' MENUNAME='something else'"));
    EXPECT_EQ(m_info.strText, L"<K>");
}

TEST_F(MenuAttributes, NameBeforeTheKeywordIsTheTranslationOfAnEmptyOne) {
    ASSERT_TRUE(Read("MENUNAME='x' TOOLTIP='x' KEYWORD='K'"));
    EXPECT_EQ(m_info.strName, L"");
    EXPECT_EQ(m_info.strToolTip, L"");
    EXPECT_EQ(m_info.strKeyword, L"K");
}

TEST_F(MenuAttributes, NameIsTheKeywordAndTheTooltipEmptyWhereThereIsNoTranslation) {
    ASSERT_TRUE(Read("KEYWORD='unknown' MENUNAME='x' TOOLTIP='x'"));
    EXPECT_EQ(m_info.strName, L"unknown");
    EXPECT_EQ(m_info.strToolTip, L"");
}

TEST_F(MenuAttributes, SeparatorInAnyLetterCaseEndsTheElement) {
    for (const char* name : {"SEPARATOR", "separator", "SePaRaToR"}) {
        m_info = {};
        ASSERT_TRUE(Read(std::string("MENUNAME='") + name + "' KEYWORD='K' CMD='c' HOTKEY='Ctrl+'"));
        EXPECT_TRUE(m_info.bSeparator);
        EXPECT_EQ(m_info.strKeyword + m_info.strCmd + m_info.strHotKey + m_info.strText, L"");
    }
    EXPECT_TRUE(m_sink.m_codes.empty());
}

TEST_F(MenuAttributes, SeparatorMarkOfTheElementBeforeIsTakenBack) {
    m_info.bSeparator = true;
    ASSERT_TRUE(Read("KEYWORD='K'"));
    EXPECT_FALSE(m_info.bSeparator);
}

TEST_F(MenuAttributes, ElementWithoutAttributesIsNotRead) {
    m_info.strCmd = L"before";
    EXPECT_FALSE(Read(""));
    EXPECT_EQ(m_info.strCmd, L"before");
}

TEST_F(MenuAttributes, WithoutAMnemonicTheTextIsTheCaption) {
    ASSERT_TRUE(Read("KEYWORD='K' MENUNAME='' SHORTKEY=''"));
    EXPECT_EQ(m_info.strText, L"<K>");
}

TEST_F(MenuAttributes, UnknownOnesAreIgnored) {
    ASSERT_TRUE(Read("KEYWORD='K' NAME='x'"));
    EXPECT_EQ(m_info.strText, L"");
}

TEST_F(MenuAttributes, ShortcutsThatAreReadAsSomethingElseAreReported) {
    for (const char* keys :
         {"Ctrl+", "Ctrl+Shift", "F5", "Del", "Ctrl", "Ctrl+F5", "Ctrl + S", "Control+S", "Ctrl+S+A"}) {
        m_sink.m_codes.clear();
        ASSERT_TRUE(Read(std::string("KEYWORD='K' HOTKEY='") + keys + "'"));
        EXPECT_EQ(m_sink.m_codes, std::vector<std::string>{"shortcut-syntax"}) << keys;
        EXPECT_EQ(m_sink.m_last.position.column, 19u);
        EXPECT_FALSE(m_sink.m_last.fix.empty());
    }
}

TEST_F(MenuAttributes, ShortcutsThatSayWhatTheyAreAreNot) {
    for (const char* keys : {"", "S", "ctrl+s", "Ctrl+Shift+Alt+1", "Alt+,"}) {
        ASSERT_TRUE(Read(std::string("KEYWORD='K' HOTKEY='") + keys + "'"));
        EXPECT_TRUE(m_sink.m_codes.empty()) << keys;
    }
}

TEST_F(MenuAttributes, BlanksInAShortcutAreTakenOutOfTheOneThatIsSuggested) {
    ASSERT_TRUE(Read("KEYWORD='K' HOTKEY='Ctrl + Shift + S'"));
    EXPECT_EQ(m_sink.m_last.fix, L"write \"Ctrl+Shift+S\"");
}

} // namespace
