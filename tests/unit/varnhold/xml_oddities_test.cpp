#include "varnhold/language_files.h"
#include "varnhold/strings.h"
#include "varnhold/xml.h"

#include "temp_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using varnhold::TextPosition;

std::string At(TextPosition position) {
    return "@" + std::to_string(position.line) + ":" + std::to_string(position.column) + " ";
}

std::string Oddities(std::string_view text) {
    constexpr const char* names[] = {"doctype", "broken", "text", "reference", "markup"};
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.LoadFromMemory(text)) << text;
    std::string seen;
    for (const varnhold::XmlOddity& oddity : document.FindOddities()) {
        seen += names[static_cast<std::size_t>(oddity.kind)] + At(oddity.position);
    }
    return seen;
}

TEST(XmlOddities, PlainDocumentHasNone) {
    EXPECT_EQ(
        Oddities("<?xml version='1.0'?>\n<!-- & < -->\n<r a='1 &amp; &lt;&gt;&quot;&apos;&#65;&#x41;'>\n <c/>\n</r>\n"),
        "");
    EXPECT_EQ(CXmlDocumentWrapper().FindOddities().size(), 0u);
}

TEST(XmlOddities, DocumentTypeIsToldWithItsPlace) {
    EXPECT_EQ(Oddities("<!-- <!DOCTYPE x> -->\n <!DOCTYPE r [<!ENTITY a 'b'>]>\n<r/>"), "doctype@2:2 ");
}

TEST(XmlOddities, TextBetweenTagsIsToldAtItsFirstLetter) {
    EXPECT_EQ(Oddities("<r>\n  <c/>\n  item NAME=''/>\n</r>"), "text@3:3 ");
    EXPECT_EQ(Oddities("<r><![CDATA[x]]></r>"), "text@1:13 ");
}

TEST(XmlOddities, BrokenBytesAreToldOnceAtTheFirst) {
    EXPECT_EQ(Oddities("<r a='\xE5\x9B\xBE\xFF' b='\xFF'/>"), "broken@1:8 ");
    EXPECT_EQ(Oddities("<?xml version='1.0' encoding='GBK'?><r a='\x81'/>"), "broken@1:43 ");
}

TEST(XmlOddities, UnknownReferencesAreToldInValuesAndTextsOnly) {
    EXPECT_EQ(Oddities("<?p & ?><r a='x&nbsp;' b='R&D' c='&#;'><!-- &x; --></r>"),
              "reference@1:16 reference@1:28 reference@1:35 ");
}

TEST(XmlOddities, ADocumentTypeIsToldWithoutItsEntities) {
    EXPECT_EQ(Oddities("<!DOCTYPE r [<!ENTITY a 'b'>]>\n<r b='&a;' c='R&D' d='&;'/>"),
              "doctype@1:1 reference@2:16 reference@2:23 ");
}

TEST(XmlOddities, MarkupInAValueIsTold) {
    EXPECT_EQ(Oddities("<?p a='<'?><r a='&lt;' b='x<y<z' c=\"'<'\"><!-- d='<' --><c/></r>"),
              "markup@1:28 markup@1:38 ");
}

TEST(XmlOddities, AnAttributeKnowsWhetherItsValueIsOdd) {
    CXmlDocumentWrapper document;
    ASSERT_TRUE(document.LoadFromMemory("<r a='&amp;&#65;' b='&x;' c='a<b' d=\"\xFF\" e='' f='&lt;&amp;x;' g='&'/>"));
    varnhold::XmlCursor cursor(document);
    std::string odd;
    for (const varnhold::XmlAttributeView& attribute : cursor.ReadAttributes()) {
        odd += cursor.IsOddlyWritten(attribute) ? std::string(attribute.name) : "-";
    }
    EXPECT_EQ(odd, "-bcd--g");
}

TEST(XmlOddities, ManyReferencesTakeLinearTime) {
    std::string text = "<r a='";
    for (int i = 0; i < 200000; ++i) {
        text += "&amp;";
    }
    EXPECT_EQ(Oddities(text + "'/>"), "");
    text = "<r>";
    for (int i = 0; i < 100000; ++i) {
        text += "<c/>";
    }
    EXPECT_EQ(Oddities(text + "&x;</r>"), "text@1:400004 reference@1:400004 ");
}

TEST(XmlErrors, KindsAreTold) {
    CXmlDocumentWrapper document;
    EXPECT_EQ(document.GetError(), varnhold::XmlError::None);
    const std::pair<std::string_view, varnhold::XmlError> cases[] = {
        {"", varnhold::XmlError::Empty},
        {" \n<!-- c -->", varnhold::XmlError::Empty},
        {"<?xml version='1.0' encoding='klingon'?><r/>", varnhold::XmlError::Encoding},
        {"<r>", varnhold::XmlError::Syntax},
        {"<r/>", varnhold::XmlError::None},
    };
    for (const auto& [text, error] : cases) {
        document.LoadFromMemory(text);
        EXPECT_EQ(document.GetError(), error) << text;
    }
    EXPECT_FALSE(document.Load(L"/no/such/file"));
    EXPECT_EQ(document.GetError(), varnhold::XmlError::Unreadable);
}

TEST(XmlText, IsUtf8WhateverTheFileIs) {
    TempFolder folder;
    std::string text = "before";
    EXPECT_FALSE(varnhold::ReadXmlText(folder.GetAppPath() + L"none.xml", text));
    EXPECT_EQ(text, "before");
    folder.Write("a.xml", std::string("\xFF\xFE<\0\xFE\x56", 6));
    ASSERT_TRUE(varnhold::ReadXmlText(folder.GetAppPath() + L"a.xml", text));
    EXPECT_EQ(text, "<\xE5\x9B\xBE");
}

class Seen : public varnhold::TranslationFileVisitor {
public:
    void VisitUnit(const varnhold::TranslationUnit& unit, const varnhold::TextPlace& place) override {
        text += std::string(unit.section) + "/" + unit.key + "=" + wstring2String(unit.text) +
                (unit.isTranslated ? "+" : "-") + At(place.GetPosition());
    }
    void VisitProblem(varnhold::TranslationProblem problem, TextPosition position, const std::wstring& what) override {
        EXPECT_FALSE(what.empty());
        text += "!" + std::to_string(static_cast<int>(problem)) + At(position);
    }
    void VisitSourceLanguage(bool isForeign) override { text += isForeign ? "foreign " : "own "; }
    std::string text;
};

std::string SeenIn(const std::string& table) {
    TempFolder folder;
    folder.Write("a.xlf", table);
    Seen seen;
    varnhold::ReadTranslationFile(folder.GetAppPath() + L"a.xlf", L"de", seen);
    return seen.text;
}

TEST(TranslationFile, UnitsAreVisitedWithTheirPlaces) {
    EXPECT_EQ(SeenIn("<xliff version='2.0' srcLang='en' trgLang='de'><file id='S'>\n"
                     "<unit id='a'><segment><source>x</source><target>y</target></segment></unit>\n"
                     " <unit id='b'><segment><source>x</source></segment></unit></file></xliff>"),
              "foreign S/a=y+@2:1 S/b=x-@3:2 ");
    EXPECT_EQ(SeenIn("<xliff version='2.0' srcLang='de'/>"), "own ");
}

class ThoroughSeen : public Seen {
    bool IsThorough() const override { return true; }
    void VisitOddity(const varnhold::XmlOddity& oddity) override {
        text += std::to_string(static_cast<int>(oddity.kind)) + At(oddity.position);
    }
};

TEST(TranslationFile, OdditiesAreToldToAThoroughVisitor) {
    TempFolder folder;
    folder.Write("a.xlf", "<!DOCTYPE xliff>\n<xliff version='2.0' srcLang='de'><file id='S'>loose<unit id='a'>"
                          "<notes><note>n</note></notes><segment><source>x &y \xFF</source>stray</segment></unit>"
                          "</file></xliff>");
    ThoroughSeen seen;
    EXPECT_TRUE(varnhold::ReadTranslationFile(folder.GetAppPath() + L"a.xlf", L"de", seen));
    EXPECT_EQ(seen.text, "own 0@1:1 1@2:117 2@2:48 2@2:127 3@2:114 S/a=x &y \xEF\xBF\xBD-@2:53 ");
}

TEST(TranslationFile, ProblemsAreToldByKind) {
    using varnhold::TranslationProblem;
    const auto only = [](TranslationProblem problem) { return "!" + std::to_string(static_cast<int>(problem)); };
    EXPECT_EQ(SeenIn(""), only(TranslationProblem::Empty) + "@0:0 ");
    EXPECT_EQ(SeenIn("<x/>"), only(TranslationProblem::NotXliff) + "@1:1 ");
    EXPECT_EQ(SeenIn("<xliff>"), only(TranslationProblem::Syntax) + "@1:7 ");
    EXPECT_EQ(SeenIn("<?xml version='1.0' encoding='?'?><x/>"), only(TranslationProblem::Encoding) + "@1:1 ");
    EXPECT_EQ(SeenIn("<xliff version='2.0' trgLang='en'><file/><file id='a'><unit/><unit id='u'/></file></xliff>"),
              only(TranslationProblem::OtherLanguage) + "@1:1 own " + only(TranslationProblem::FileWithoutId) +
                  "@1:35 " + only(TranslationProblem::UnitWithoutKey) + "@1:55 " +
                  only(TranslationProblem::UnitWithoutSegment) + "@1:62 ");
}

} // namespace
