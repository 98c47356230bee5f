// Slips of those who write these files for the first time: one finding, where it is mended, and a plain word how.
#include "checked_installation.h"
#include "sample_installation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

struct PlantedSlip {
    PlantedFault fault;
    /// Stands in the text or the fix of the finding.
    const wchar_t* says;
};

constexpr wchar_t kStraight[] = L"write the straight quotation mark";
constexpr wchar_t kMissingQuote[] = L"is a quotation mark missing";
constexpr wchar_t kTags[] = L"is the \"/\" of that tag missing, or an end tag too many?";
constexpr wchar_t kCommentEnd[] = L"does it lack its end, -->?";
constexpr wchar_t kBlank[] = L"write a common blank";
constexpr wchar_t kDeclaration[] = L"let <?xml begin the file";
constexpr wchar_t kMerge[] = L"this is the mark of a merge conflict";
constexpr wchar_t kZoomIcon[] = L"did you mean \"pic\\icon\\west.ico\"?";

const PlantedSlip kSlips[] = {
    // Quotation marks.
    {{"cfg/ribbon.xml", "KEYWORD=\"PanelTools\" NAME=\"\"", "KEYWORD=\"PanelTools NAME=\"@@\"", "xml-syntax"},
     kMissingQuote},
    {{"cfg/ribbon.xml", "KEYWORD=\"PanelTools\" NAME=\"\"", "KEYWORD=\"PanelTools' NAME=\"@@\"", "xml-syntax"},
     kMissingQuote},
    {{"cfg/ribbon.xml", "CMD=\"measure\"/>", "CMD=@@measure\"/>", "xml-syntax"},
     L"put the value between quotation marks"},
    {{"cfg/ribbon.xml", "CMD=\"measure\"/>", "CMD=@@\u201Cmeasure\u201D/>", "xml-syntax"}, kStraight},
    {{"cfg/menu.xml", "KEYWORD=\"Undo\" MENUNAME=\"\"", "KEYWORD=@@\u201EUndo\u201C MENUNAME=\u201E\u201C",
      "xml-syntax"},
     kStraight},
    {{"cfg/ribbon.xml", "CMD=\"measure\"/>", "@@CMD=\"\u201Cmeasure\u201D\"/>", "odd-quotes"}, L"write \"measure\""},
    {{"cfg/ribbon.xml", "KEYWORD=\"ScaleLabel\"", "@@KEYWORD=\"\u201CScaleLabel\u201D\"", "odd-quotes"},
     L"write \"ScaleLabel\""},
    {{"cfg/menu.xml", "HOTKEY=\"Ctrl+P\"", "@@HOTKEY=\"\u201CCtrl+P\u201D\"", "shortcut-syntax"}, L"write \"Ctrl+P\""},
    {{"cfg/toolbar.xml", "TYPE=\"separate\"", "@@TYPE=\"\uFF02separate\uFF02\"", "odd-quotes"}, L"write \"separate\""},
    // Attributes.
    {{"cfg/ribbon.xml", "KEYWORD=\"PanelTools\" NAME=\"\"", "KEYWORD=\"PanelTools\"@@NAME=\"\"", "xml-syntax"},
     L"put a blank between the attributes"},
    {{"cfg/ribbon.xml", "KEYWORD=\"PanelTools\" NAME=\"\"", "KEYWORD:\"@@PanelTools\" NAME=\"\"", "xml-syntax"},
     L"write = between name and value"},
    {{"cfg/ribbon.xml", "KEYWORD=\"Measure\" NAME=\"\"", "KEYWORD=\"Measure\" NAME T@@OOLTIP=\"\"", "xml-syntax"},
     L"is the value missing before this place?"},
    {{"cfg/ribbon.xml", "KEYWORD=\"PanelTools\" NAME=\"\"", "KEYWORD=\"PanelTools\" @@N\u0410ME=\"\"",
      "unknown-attribute"},
     L"\"N<U+0410>ME\""},
    // Letters that look like others, and what is not seen.
    {{"cfg/ribbon.xml", "TYPE=\"label\"/>", "@@TYPE=\"l\u0430bel\"/>", "unknown-type"}, L"\"l<U+0430>bel\""},
    {{"cfg/ribbon.xml", "KEYWORD=\"ScaleLabel\"", "@@KEYWORD=\"S\u0441aleLabel\"", "missing-text"},
     L"\"S<U+0441>aleLabel\""},
    {{"cfg/ribbon.xml", "KEYWORD=\"ScaleLabel\"", "@@KEYWORD=\"\uFEFFScaleLabel\"", "missing-text"},
     L"\"<U+FEFF>ScaleLabel\""},
    {{"cfg/ribbon.xml", "KEYWORD=\"ScaleLabel\"", "@@KEYWORD=\"Scale\u200BLabel\"", "missing-text"},
     L"\"Scale<U+200B>Label\""},
    {{"cfg/ribbon.xml", "KEYWORD=\"ScaleLabel\"", "@@KEYWORD=\"ScaleLabel \"", "missing-text"},
     L"did you mean \"ScaleLabel\"?"},
    {{"cfg/ribbon.xml", "    <category KEYWORD=\"CatTools\"", "@@\uFEFF    <category KEYWORD=\"CatTools\"",
      "stray-text"},
     L"remove the character that stands here, although nobody sees it"},
    {{"cfg/ribbon.xml", "TYPE=\"label\"/>", "@@TYPE=\"label \"/>", "unknown-type"}, L"did you mean \"label\"?"},
    // Numbers and shortcuts.
    {{"cfg/menu.xml", "HOTKEY=\"Ctrl+P\"", "@@HOTKEY=\"Strg+P\"", "shortcut-syntax"}, L"did you mean \"Ctrl\"?"},
    {{"cfg/menu.xml", "HOTKEY=\"Ctrl+P\"", "@@HOTKEY=\"control+P\"", "shortcut-syntax"}, L"did you mean \"Ctrl\"?"},
    {{"cfg/menu.xml", "HOTKEY=\"Ctrl+P\"", "@@HOTKEY=\"Umschalt+P\"", "shortcut-syntax"}, L"did you mean \"Shift\"?"},
    {{"cfg/menu.xml", "HOTKEY=\"Ctrl+P\"", "@@HOTKEY=\"Ctrl+ctrl+P\"", "shortcut-syntax"}, L"stands there twice"},
    {{"cfg/menu.xml", "HOTKEY=\"Ctrl+P\"", "@@HOTKEY=\"Ctrl++\"", "shortcut-syntax"}, L"\"+\" cannot be the key"},
    {{"cfg/menu.xml", "SHORTKEY=\"P\" HOTKEY", "@@SHORTKEY=\"O+P\" HOTKEY", "access-key-syntax"},
     L"write the letter alone"},
    // Pasted from a file of another kind.
    {{"cfg/ribbon.xml", "<item KEYWORD=\"ScaleLabel\"",
      "<item KEYWORD=\"Open\" @@MENUNAME=\"\" SHORTKEY=\"O\" PicPath=\"pic\\icon\\open.ico\"/>\n<item "
      "KEYWORD=\"ScaleLabel\"",
      "unknown-attribute"},
     L"write NAME for MENUNAME"},
    {{"cfg/toolbar.xml", "<item TYPE=\"separate\"/>",
      "<item KEYWORD=\"Save\" @@NAME=\"\" TOOLTIP=\"\" TYPE=\"BUTTON\" SIZE=\"16\" CMD=\"save\"/>",
      "unknown-attribute"},
     L"are attributes of a ribbon file, not of a toolbar file"},
    {{"cfg/menu.xml", "<item MENUNAME=\"SEPARATOR\"/>",
      "<item @@TYPE=\"button\" KEYWORD=\"Save\" PROMPT=\"Save\" PICPATH=\"pic\\icon\\save.ico\"/>",
      "unknown-attribute"},
     L"write MENUNAME for PROMPT"},
    {{"cfg/ribbon.xml", "CMD=\"measure\"/>", "@@HOTKEY=\"Ctrl+M\" CMD=\"measure\"/>", "unknown-attribute"},
     L"it belongs into a menu file"},
    // What refers to commands.
    {{"cfg/ribbon.xml", "<item KEYWORD=\"ZoomIn\"/>", "<item @@KEYWORD=\"CatMap\"/>", "quick-access-kind"},
     L"only buttons and combos"},
    {{"cfg/ribbon.xml", "<item KEYWORD=\"ZoomIn\"/>", "<item @@KEYWORD=\"PanelZoom\"/>", "quick-access-kind"},
     L"only buttons and combos"},
    {{"cfg/ribbon.xml", "<item KEYWORD=\"Separator\"/>", "<item @@KEYWORD=\"Separatr\"/>", "unknown-status-button"},
     L"did you mean \"Separator\"?"},
    {{"cfg/ribbon.xml", "WIDTH=\"130\"", "@@WIDTH=\"130,5\"", "bad-number"}, L"write the digits 0 to 9 alone"},
    {{"cfg/ribbon.xml", "WIDTH=\"130\"", "@@WIDTH=\"\uFF11\uFF13\uFF10\"", "bad-number"},
     L"write the digits 0 to 9 alone"},
    {{"cfg/menu.xml", "HOTKEY=\"Ctrl+P\"", "@@HOTKEY=\"Ctrl\uFF0BP\"", "shortcut-syntax"}, L"write \"Ctrl+P\""},
    {{"cfg/menu.xml", "HOTKEY=\"Ctrl+P\"", "@@HOTKEY=\"Ctrl +P\"", "shortcut-syntax"}, L"write \"Ctrl+P\""},
    // Paths.
    {{"cfg/ribbon.xml", "PICPATH=\"pic\\icon\\west.ico\"", "@@PICPATH=\"D:\\maps\\pic\\icon\\west.ico\"",
      "missing-icon"},
     kZoomIcon},
    {{"cfg/ribbon.xml", "PICPATH=\"pic\\icon\\west.ico\"", "@@PICPATH=\"\\\\server\\pic\\west.ico\"", "missing-icon"},
     kZoomIcon},
    {{"cfg/ribbon.xml", "PICPATH=\"pic\\icon\\west.ico\"", "@@PICPATH=\"https://pic/icon/west.ico\"", "path-separator"},
     L"this is an address"},
    {{"cfg/ribbon.xml", "PICPATH=\"pic\\icon\\west.ico\"", "@@PICPATH=\"./pic/icon/west.ico\"", "path-separator"},
     L"write \".\\pic\\icon\\west.ico\""},
    {{"cfg/ribbon.xml", "PICPATH=\"pic\\icon\\west.ico\"", "@@PICPATH=\"pic\\icon\\west.ico \"", "missing-icon"},
     kZoomIcon},
    {{"cfg/ribbon.xml", "PICPATH=\"pic\\icon\\west.ico\"", "@@PICPATH=\"pic\\icon\\west\"", "missing-icon"}, kZoomIcon},
    // Tags and comments.
    {{"cfg/menu.xml", "PicPath=\"pic\\icon\\open.ico\"/>", "PicPath=@@\"pic\\icon\\open.ico/>", "xml-syntax"},
     L"a second quotation mark is missing"},
    {{"cfg/ribbon.xml", "CMD=\"measure\"/>", "CMD/@@>", "xml-syntax"}, L"is the value missing before this place?"},
    {{"cfg/ribbon.xml", "KEYWORD=\"ScaleLabel\"", "@@<!-- x --> KEYWORD=\"ScaleLabel\"", "xml-syntax"},
     L"a comment cannot stand within a tag"},
    {{"cfg/ribbon.xml", "  <row KEYWORD=\"Main\">", "  <!-- a <!-- b --> @@-->\n  <row KEYWORD=\"Main\">",
      "stray-text"},
     L"none can stand within another"},
    {{"cfg/ribbon.xml", "<group KEYWORD=\"Moves\"", "<@@1group KEYWORD=\"Moves\"", "xml-syntax"},
     L"the name of an element begins with a letter"},
    {{"cfg/menu.xml", "<?xml version", "@@{ \"menu\": [] }<?xml version", "xml-syntax"},
     L"is this a file of another kind?"},
    {{"cfg/ribbon.xml", "<?xml version=", "\n@@<?xml version=", "xml-syntax"}, kDeclaration},
    {{"cfg/menu.xml", "<?xml version=", "  \t@@<?xml version=", "xml-syntax"}, kDeclaration},
    {{"cfg/ribbon.xml", "<item KEYWORD=\"ScaleLabel\" NAME=\"\" TYPE=\"label\"/>",
      "@@<item KEYWORD=\"ScaleLabel\" NAME=\"\" TYPE=\"label\"><item KEYWORD=\"West\" NAME=\"\" "
      "TYPE=\"BUTTON\"/></item>",
      "children-lost"},
     L"move them beside it"},
    {{"cfg/ribbon.xml", "TYPE=\"label\"/>", "TYPE=\"label\"/>@@</item>", "xml-syntax"}, kTags},
    {{"cfg/menu.xml", "CMD=\"exit\"/>\n    </popup>", "CMD=\"exit\">\n    @@</popup>", "xml-syntax"}, kTags},
    {{"cfg/ribbon.xml", "<row KEYWORD=\"StatusEx_btns\">",
      "@@<!-- status bar -><row KEYWORD=\"StatusEx_btns\"><!-- x -->", "xml-syntax"},
     kCommentEnd},
    {{"cfg/ribbon.xml", "<row KEYWORD=\"StatusEx_btns\">", "@@<!-- status bar <row KEYWORD=\"StatusEx_btns\">",
      "xml-syntax"},
     kCommentEnd},
    {{"cfg/ribbon.xml", "    <category KEYWORD=\"CatTools\"", "@@// tools\n    <category KEYWORD=\"CatTools\"",
      "stray-text"},
     L"make it a comment"},
    {{"cfg/menu.xml", "</menu>\n", "</menu>\n@@<menu></menu>\n", "xml-syntax"}, L"a second document element"},
    {{"cfg/ribbon.xml", "KEYWORD=\"PanelTools\" NAME=\"\"", "KEYWORD=\"PanelTools\"@@\u00A0NAME=\"\"", "xml-syntax"},
     kBlank},
    {{"cfg/menu.xml", "</menu>\n", "</menu>\n@@</popup>\n</menu>\n", "xml-syntax"},
     L"the document element has ended before"},
    {{"cfg/ribbon.xml", "<row KEYWORD=\"StatusEx_btns\">", "<!-- status @@-- bar --><row KEYWORD=\"StatusEx_btns\">",
      "xml-syntax"},
     L"two dashes stand within a comment"},
    {{"cfg/toolbar.xml", "  <group KEYWORD=\"Main\">", "  <!-- bars @@----><group KEYWORD=\"Main\">", "xml-syntax"},
     L"elsewhere the file is refused"},
    // Signs of a Chinese keyboard.
    {{"cfg/ribbon.xml", "KEYWORD=\"PanelTools\" NAME=\"\"", "KEYWORD@@\uFF1D\uFF02PanelTools\uFF02 NAME=\"\"",
      "xml-syntax"},
     L"write the narrow sign =: the one that stands here is \uFF1D"},
    {{"cfg/menu.xml", "CMD=\"exit\"/>", "CMD=\"exit\"@@\uFF0F>", "xml-syntax"}, L"write the narrow sign /"},
    {{"cfg/ribbon.xml", "KEYWORD=\"PanelTools\" NAME=\"\">", "KEYWORD=\"PanelTools\" NAME=\"\"@@\uFF1E", "xml-syntax"},
     L"write the narrow sign >"},
    {{"cfg/ribbon.xml", "<item KEYWORD=\"ScaleLabel\"", "@@\uFF1Citem KEYWORD=\"In\"/>\n<item KEYWORD=\"ScaleLabel\"",
      "stray-text"},
     L"write the narrow sign <"},
    // What a tool for versions leaves.
    {{"cfg/ribbon.xml", "  <row KEYWORD=\"Main\">", "@@<<<<<<< HEAD\n  <row KEYWORD=\"Main\">", "xml-syntax"}, kMerge},
    {{"cfg/menu.xml", "  <group>", "  <group>\n@@=======", "stray-text"}, kMerge},
    {{"cfg/toolbar.xml", "  <group KEYWORD=\"Main\">", "@@>>>>>>> other\n  <group KEYWORD=\"Main\">", "stray-text"},
     kMerge},
    {{"lang/de/a.xlf", "    <unit id=\"West\">", "@@<<<<<<< HEAD\n    <unit id=\"West\">", "xml-syntax"}, kMerge},
    // Tables.
    {{"lang/de/a.xlf", "<target>de West</target>", "<target>de West@@</traget>", "xml-syntax"}, kTags},
    {{"lang/de/a.xlf", "<target>de West</target>", "<target>de West</target>@@<target>West</target>", "bad-table"},
     L"has a second target in one segment"},
    {{"lang/de/a.xlf", "<target>de West</target>", "<target>de @@<b>West</b></target>", "bad-table"},
     L"<b> is no element of a text"},
    {{"lang/en/a.xlf", "<source>West</source>", "<source>West@@<br/></source>", "bad-table"},
     L"write the text without it"},
    {{"lang/de/a.xlf", "<unit id=\"West\"><segment><source>West</source><target>de West</target></segment>",
      "@@<unit id=\"West\"><source>West</source><target>de West</target>", "bad-table"},
     L"put <segment> around"},
    {{"lang/de/a.xlf", "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" version=\"2.0\"",
      "@@<xliff version=\"1.2\"", "bad-table"},
     L"a table begins with <xliff version=\"2.0\">"},
    {{"lang/en/a.xlf", "<source>West</source>", "<source>West <@@ East</source>", "xml-syntax"},
     L"write &lt; for the sign itself"},
    {{"lang/de/a.xlf", "<unit id=\"West\">", "@@<unit id=\"\u897F\u8FB9\">", "missing-text"},
     L"did you mean \"West\"?"},
    {{"lang/en/a.xlf", "<unit id=\"Undo\">", "@@<unit id=\"TakeBack\">", "missing-text"}, L"did you mean \"Undo\"?"},
    {{"lang/de/a.xlf", "<?xml version", " @@<?xml version", "xml-syntax"}, kDeclaration},
    {{"lang/de/a.xlf", "<unit id=\"West\">", "<unit id=@@\u201CWest\u201D>", "xml-syntax"}, kStraight},
    {{"lang/de/a.xlf", "<unit id=\"West\"><segment><source>West</source><target>de West</target>",
      "@@<unit id=\"West\"><segment><source>West</source><target></target>", "untranslated-text"},
     L"has no target"},
};

std::string PlaceAndCode(const Diagnostic& finding) { return CheckedInstallation::Describe(finding); }

/// Line and column of the mark, in characters.
std::string PlaceOfMark(const std::string& text) {
    const std::string before = text.substr(0, text.find(kMark));
    const std::size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0
    const auto isStart = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return std::to_string(1 + std::count(before.begin(), before.end(), '\n')) + ":" +
           std::to_string(
               1 + std::count_if(before.begin() + static_cast<std::ptrdiff_t>(lineStart), before.end(), isStart));
}

void ExpectSays(const Diagnostic& finding, const std::wstring& words) {
    EXPECT_NE((finding.text + L"\n" + finding.fix).find(words), std::wstring::npos)
        << wstring2String(finding.text + L" / " + finding.fix);
}

TEST(Slip, IsOneFindingWhereItIsMendedInPlainWords) {
    const CheckedInstallation installation;
    WriteSample(installation);
    for (const PlantedSlip& slip : kSlips) {
        const std::string marked = MarkedFault(slip.fault);
        ASSERT_FALSE(marked.empty()) << slip.fault.before << " stands not once in " << slip.fault.file;
        installation.Write(slip.fault.file, TextWithFault(slip.fault));
        const std::vector<Diagnostic> findings = installation.Check();
        std::string all;
        for (const Diagnostic& finding : findings) {
            all += PlaceAndCode(finding);
        }
        EXPECT_EQ(all, std::string(slip.fault.file) + ":" + PlaceOfMark(marked) + " " + slip.fault.code + "\n")
            << slip.fault.after;
        if (findings.size() == 1) {
            ExpectSays(findings.front(), slip.says);
        }
        for (const SampleFile& sample : SampleFiles()) {
            if (sample.name == std::string_view(slip.fault.file)) {
                installation.Write(sample.name, sample.text);
            }
        }
    }
}

class SlipWithFiles : public testing::Test {
protected:
    SlipWithFiles() { WriteSample(m_installation); }

    fs::path Path(const char* name) const { return m_installation.Directory().Path() / name; }
    void ExpectOne(const std::string& placeAndCode, const std::wstring& words) const {
        const std::vector<Diagnostic> findings = m_installation.Check();
        ASSERT_EQ(findings.size(), 1u);
        EXPECT_EQ(PlaceAndCode(findings.front()), placeAndCode + "\n");
        ExpectSays(findings.front(), words);
    }

    const CheckedInstallation m_installation;
};

TEST_F(SlipWithFiles, ACopyOfATableIsOneFinding) {
    fs::copy(Path("lang/en/a.xlf"), Path("lang/en/a - Copy.xlf"));
    ExpectOne("lang/en/a.xlf:4:5 duplicate-text", L"is one of the two files a copy?");
}

TEST_F(SlipWithFiles, AFolderThatIsNoLanguagesNameIsOneFinding) {
    m_installation.Write("lang/de/b.xlf", "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" version=\"2.0\" "
                                          "srcLang=\"en\" trgLang=\"de\">\n<file id=\"Other\"/>\n</xliff>\n");
    ASSERT_EQ(m_installation.Findings(), "");
    fs::rename(Path("lang/de"), Path("lang/ger"));
    ExpectOne("lang/ger/a.xlf:2:1 bad-table", L"give the folder the name of its language");
}

TEST_F(SlipWithFiles, InAFolderOfAnotherNameNothingIsUntranslatedBesides) {
    m_installation.Write("lang/en/b.xlf", "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" version=\"2.0\" "
                                          "srcLang=\"de\" trgLang=\"en\">\n<file id=\"Other\"/>\n</xliff>\n");
    ASSERT_EQ(m_installation.Findings(), "");
    fs::rename(Path("lang/en"), Path("lang/english"));
    ExpectOne("lang/english/b.xlf:1:1 bad-table", L"trgLang is \"en\", but the folder is \"english\"");
}

TEST_F(SlipWithFiles, ATableBesideTheFoldersIsSaidWhereItBelongs) {
    fs::copy(Path("lang/en/a.xlf"), Path("lang/a.xlf"));
    ExpectOne("lang/a.xlf:1:1 bad-table", L"put it into the folder of its language");
}

TEST_F(SlipWithFiles, AnIconThatWasSavedAsAPictureIsNamed) {
    fs::rename(Path("pic/icon/16/west.ico"), Path("pic/icon/16/WEST.PNG"));
    ExpectOne("cfg/ribbon.xml:25:64 missing-icon", L"\"WEST.PNG\" is no icon: save it as an icon file (.ico)");
}

TEST_F(SlipWithFiles, ATableOfAnotherEndingIsOneFindingAndItsTextsAreNotMissed) {
    fs::copy(Path("lang/de/a.xlf"), Path("lang/de/b.xlf"));
    m_installation.Write("lang/de/a.xlf", "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" version=\"2.0\" "
                                          "srcLang=\"en\" trgLang=\"de\">\n<file id=\"Other\"/>\n</xliff>\n");
    ASSERT_EQ(m_installation.Findings(), "");
    for (const char* ending : {".xlif", ".xliff", ".xlf.txt"}) {
        const std::string name = std::string("lang/de/b") + ending;
        fs::rename(Path("lang/de/b.xlf"), Path(name.c_str()));
        ExpectOne(name + ":1:1 bad-table", L"give it the extension .xlf");
        fs::rename(Path(name.c_str()), Path("lang/de/b.xlf"));
    }
}

TEST_F(SlipWithFiles, AnIconThatWasNotWrittenToItsEndIsOneFinding) {
    const std::string whole = MakeIconFile(16, {0xFF0000, 0x00FF00});
    m_installation.Write("pic/icon/16/west.ico", whole.substr(0, whole.size() - 1));
    ExpectOne("cfg/ribbon.xml:25:64 icon-format", L"copy or save it again");
}

TEST_F(SlipWithFiles, ACopiedKeyIsOneFindingInEachTable) {
    for (const char* language : {"en", "de"}) {
        std::string table = SampleTable(language);
        const std::string key = "<unit id=\"West\">";
        table.replace(table.find(key), key.size(), "<unit id=\"Undo\">");
        m_installation.Write("lang/" + std::string(language) + "/a.xlf", table);
    }
    EXPECT_EQ(m_installation.Findings(), "lang/de/a.xlf:31:5 duplicate-text\nlang/en/a.xlf:31:5 duplicate-text\n");
}

TEST_F(SlipWithFiles, AnIconOfTheOtherSizeAloneIsSaidToBeThat) {
    fs::remove(Path("pic/icon/16/open.ico"));
    ExpectOne("cfg/ribbon.xml:16:73 missing-icon", L"put the file of this size into folder \"16\"");
}

TEST_F(SlipWithFiles, AnIconWithoutBytesIsNone) {
    m_installation.Write("pic/icon/16/west.ico", "");
    ExpectOne("cfg/ribbon.xml:25:64 icon-format", L"is no icon file, or has no picture");
}

TEST_F(SlipWithFiles, APictureThatIsCalledAnIconIsNone) {
    m_installation.Write("pic/icon/16/west.ico", "\x89PNG\r\n\x1a\nIHDR");
    ExpectOne("cfg/ribbon.xml:25:64 icon-format", L"save it as an icon file (.ico)");
}

TEST_F(SlipWithFiles, AFileThatAnEditorGaveItsOwnEndingIsOneFinding) {
    fs::rename(Path("cfg/ribbon.xml"), Path("cfg/ribbon.xml.txt"));
    ExpectOne("cfg/ribbon.xml.txt:1:1 missing-file", L"call it ribbon.xml");
}

TEST_F(SlipWithFiles, AFileThatWasNotWrittenToItsEndIsOneFinding) {
    const std::string whole = SampleRibbon();
    const std::string inTag = whole.substr(0, whole.find("KEYWORD=\"West\"") + 10);
    m_installation.Write("cfg/ribbon.xml", inTag);
    ExpectOne("cfg/ribbon.xml:25:26 xml-syntax", L"the file ends within this tag");
    m_installation.Write("cfg/ribbon.xml", whole.substr(0, inTag.rfind("<item")));
    ExpectOne("cfg/ribbon.xml:25:10 xml-syntax", L"was the file not written to its end?");
    m_installation.Write("cfg/ribbon.xml", inTag + std::string(512, '\0'));
    ExpectOne("cfg/ribbon.xml:25:27 xml-syntax", L"the file was not written to its end");
}

TEST_F(SlipWithFiles, WhatAnotherProgramWroteIsNamed) {
    m_installation.Write("cfg/menu.xml", std::string("PK\x03\x04\x14\0\x06\0\x08\0", 10));
    ExpectOne("cfg/menu.xml:1:1 xml-syntax", L"this is an archive, or a document of an office program");
    m_installation.Write("cfg/menu.xml", std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16));
    ExpectOne("cfg/menu.xml:1:1 xml-syntax", L"this is a picture");
}

TEST_F(SlipWithFiles, APageThatAServerSentIsOneFinding) {
    for (const char* const start : {"", "<!DOCTYPE html>\n"}) {
        m_installation.Write("cfg/ribbon.xml",
                             std::string(start) +
                                 "<html><head><title>Sign in</title></head><body><p>Who?</p></body></html>");
        const std::string line = *start ? "2" : "1";
        ExpectOne("cfg/ribbon.xml:" + line + ":1 wrong-kind", L"this is a web page");
    }
}

/// "Map" in Chinese.
constexpr const char* kMapInUtf8 = "\xE5\x9C\xB0\xE5\x9B\xBE";
constexpr const char* kMapInGbk = "\xB5\xD8\xCD\xBC";

TEST_F(SlipWithFiles, ChineseLettersInAFileThatSaysUtf8AreNamed) {
    std::string ribbon = SampleRibbon();
    const std::size_t place = ribbon.find("<ribbon>");
    m_installation.Write("cfg/ribbon.xml", std::string(ribbon).insert(place, "<!--" + std::string(kMapInGbk) + "-->"));
    ExpectOne("cfg/ribbon.xml:2:5 xml-encoding", L"they are letters in GBK");
    m_installation.Write("cfg/ribbon.xml", ribbon.insert(place, "<!-- f\xFCr -->"));
    ExpectOne("cfg/ribbon.xml:2:7 xml-encoding", L"save the file in the encoding that its first line names");
}

/// The sample's table of a language with another text for each key: `text` behind the language's code.
std::string TableWithTexts(const std::string& text) {
    const std::string target = "<target>de ";
    std::string table = SampleTable("de");
    for (std::size_t at = table.find(target); at != std::string::npos; at = table.find(target, at)) {
        at += target.size() - 3;
        table.replace(at, table.find('<', at) - at, text);
    }
    return table;
}

TEST_F(SlipWithFiles, ATableWhoseLettersWereLostIsOneFinding) {
    m_installation.Write("lang/de/a.xlf", TableWithTexts(kMapInUtf8));
    ASSERT_EQ(m_installation.Findings(), "");
    m_installation.Write("lang/de/a.xlf", TableWithTexts("?? (1)"));
    ExpectOne("lang/de/a.xlf:4:5 bad-table", L"question marks stand in the place of letters in 31 texts");
    m_installation.Write("lang/de/a.xlf", TableWithTexts("What??"));
    EXPECT_EQ(m_installation.Findings(), "");
}

TEST_F(SlipWithFiles, ATableThatWasReadInAnotherEncodingAndSavedIsOneFinding) {
    // The letters that the western encoding has for the bytes, among them two of its own.
    m_installation.Write("lang/de/a.xlf", TableWithTexts("\u00E5\u0153\u00B0\u00E5\u203A\u00BE"));
    ExpectOne("lang/de/a.xlf:4:5 bad-table", L"31 texts of this file are UTF-8 that was read as another encoding");
    for (const char* const meant :
         {"\u00E9t\u00E9 \u00E0 \u00DCbung", "\u00AB\u00E0\u00BB", "\u20AC 5", "\u5730\u56FE"}) {
        m_installation.Write("lang/de/a.xlf", TableWithTexts(meant));
        EXPECT_EQ(m_installation.Findings(), "") << meant;
    }
}

TEST_F(SlipWithFiles, LetterCaseOfNamesIsNone) {
    fs::rename(Path("pic/icon/16/west.ico"), Path("pic/icon/16/WEST.ICO"));
    EXPECT_EQ(m_installation.Findings(), "");
}

} // namespace
