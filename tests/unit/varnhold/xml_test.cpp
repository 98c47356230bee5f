#include "varnhold/xml.h"

#include "temp_folder.h"
#include "varnhold/strings.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

CXmlDocumentWrapper Parse(std::string_view text) {
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.LoadFromMemory(text)) << wstring2String(document.GetErrorText());
    return document;
}

std::string Fails(std::string_view text) {
    CXmlDocumentWrapper document;
    EXPECT_FALSE(document.LoadFromMemory(text, L"f.xml")) << text;
    return wstring2String(document.GetErrorText());
}

TEST(Xml, ChildrenAreElementsInDocumentOrder) {
    const CXmlDocumentWrapper document = Parse("<r>text<a/><!-- c --><b><x/></b><?p i?><![CDATA[d]]><c/>tail</r>");
    const CXmlNodeWrapper root = document.GetDocumentElement();
    EXPECT_EQ(root.GetName(), L"r");
    ASSERT_EQ(root.GetChildCount(), 3u);
    EXPECT_EQ(root.GetChild(0).GetName(), L"a");
    EXPECT_EQ(root.GetChild(1).GetName(), L"b");
    EXPECT_EQ(root.GetChild(2).GetName(), L"c");
    ASSERT_EQ(root.GetChild(1).GetChildCount(), 1u);
    EXPECT_EQ(root.GetChild(1).GetChild(0).GetName(), L"x");
    EXPECT_EQ(root.GetChild(0).GetChildCount(), 0u);
}

TEST(Xml, ChildrenOfEachElementAreItsOwn) {
    const CXmlDocumentWrapper document = Parse("<r><a><a1/><a2/></a><b/><c><c1><d/></c1></c></r>");
    const CXmlNodeWrapper root = document.GetDocumentElement();
    EXPECT_EQ(root.GetChild(0).GetChild(0).GetName(), L"a1");
    EXPECT_EQ(root.GetChild(0).GetChild(1).GetName(), L"a2");
    EXPECT_EQ(root.GetChild(1).GetChildCount(), 0u);
    EXPECT_EQ(root.GetChild(2).GetChild(0).GetChild(0).GetName(), L"d");
}

TEST(Xml, AttributesKeepOrderSpellingAndRepetition) {
    const CXmlDocumentWrapper document = Parse("<r KEYWORD='A' name=\"\" Name='x' KEYWORD='B'/>");
    const CXmlNodeWrapper root = document.GetDocumentElement();
    const std::pair<const wchar_t*, const wchar_t*> expected[] = {
        {L"KEYWORD", L"A"}, {L"name", L""}, {L"Name", L"x"}, {L"KEYWORD", L"B"}};
    ASSERT_EQ(root.GetAttributeCount(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(root.GetAttributeName(i), expected[i].first);
        EXPECT_EQ(root.GetAttributeValue(i), expected[i].second);
    }
}

TEST(Xml, ReferencesAndLineBreaksInValuesAreResolved) {
    const CXmlDocumentWrapper document =
        Parse("<r a='&lt;&gt;&amp;&apos;&quot;&#65;&#x56FE;&#x1F600;' b='1\r\n2\t3'/>");
    EXPECT_EQ(document.GetDocumentElement().GetAttributeValue(0), L"<>&'\"A\x56FE\U0001F600");
    EXPECT_EQ(document.GetDocumentElement().GetAttributeValue(1), L"1 2 3");
}

TEST(Xml, NarrowViewsOfAttributesAreUtf8AndOutliveTheirNodeObject) {
    const CXmlDocumentWrapper document = Parse("<r><c \xE5\x9B\xBE='\xE5\x9C\xB0&lt;'/></r>");
    const std::string_view name = document.GetDocumentElement().GetChild(0).GetAttributeNameUtf8(0);
    const std::string_view value = document.GetDocumentElement().GetChild(0).GetAttributeValueUtf8(0);
    EXPECT_EQ(name, "\xE5\x9B\xBE");
    EXPECT_EQ(value, "\xE5\x9C\xB0<");
    EXPECT_EQ(document.GetDocumentElement().GetChild(0).GetAttributeUtf8(0).name, name);
    EXPECT_EQ(document.GetDocumentElement().GetChild(0).GetAttributeUtf8(0).value, value);
    EXPECT_EQ(document.GetDocumentElement().GetChild(0).GetAttributeUtf8(1).name, "");
    EXPECT_EQ(CXmlNodeWrapper().GetAttributeUtf8(0).value, "");
    EXPECT_EQ(document.GetDocumentElement().GetAttributeNameUtf8(0), "");
    EXPECT_EQ(CXmlNodeWrapper().GetAttributeValueUtf8(0), "");
}

TEST(Xml, IndexesOutOfRangeGiveNullNodesAndEmptyTexts) {
    const CXmlDocumentWrapper document = Parse("<r a='1'><c/></r>");
    const CXmlNodeWrapper root = document.GetDocumentElement();
    EXPECT_TRUE(root.GetChild(1).IsNull());
    EXPECT_TRUE(root.GetChild(static_cast<std::size_t>(-1)).IsNull());
    EXPECT_EQ(root.GetAttributeName(1), L"");
    EXPECT_EQ(root.GetAttributeValue(static_cast<std::size_t>(-1)), L"");
    EXPECT_EQ(root.GetAttributePosition(1).line, 0u);
}

TEST(Xml, ANullNodeAnswersEverything) {
    const CXmlNodeWrapper node;
    EXPECT_TRUE(node.IsNull());
    EXPECT_EQ(node.GetName(), L"");
    EXPECT_EQ(node.GetChildCount(), 0u);
    EXPECT_EQ(node.GetAttributeCount(), 0u);
    EXPECT_TRUE(node.GetChild(0).IsNull());
    EXPECT_EQ(node.GetPosition().line, 0u);
    EXPECT_TRUE(CXmlDocumentWrapper().GetDocumentElement().IsNull());
}

TEST(Xml, ANodeOutlivesItsDocument) {
    CXmlNodeWrapper node;
    {
        const CXmlDocumentWrapper document = Parse("<r><child key='value'/></r>");
        node = document.GetDocumentElement().GetChild(0);
    }
    EXPECT_EQ(node.GetName(), L"child");
    EXPECT_EQ(node.GetAttributeValue(0), L"value");
}

TEST(Xml, PositionsCountLinesAndCharactersFromOne) {
    const CXmlDocumentWrapper document = Parse("<?xml version='1.0'?>\n<r>\r\n  <a x='1'\n   y='2'/>\r<b/> <!-- "
                                               "\xE5\x9C\xB0\xF0\x9F\x98\x80 --> <c z='&lt;'/></r>");
    const CXmlNodeWrapper root = document.GetDocumentElement();
    const auto expectPosition = [](varnhold::TextPosition position, std::size_t line, std::size_t column) {
        EXPECT_EQ(position.line, line);
        EXPECT_EQ(position.column, column);
    };
    expectPosition(root.GetPosition(), 2, 1);
    expectPosition(root.GetChild(0).GetPosition(), 3, 3);
    expectPosition(root.GetChild(0).GetAttributePosition(0), 3, 6);
    expectPosition(root.GetChild(0).GetAttributePosition(1), 4, 4);
    expectPosition(root.GetChild(1).GetPosition(), 5, 1);
    expectPosition(root.GetChild(2).GetPosition(), 5, 18);
    expectPosition(root.GetChild(2).GetAttributePosition(0), 5, 21);
}

TEST(Xml, PositionsHoldFarIntoALongLine) {
    std::string text = "<r>";
    for (int i = 0; i < 3000; ++i) {
        text += "<\xE5\x9C\xB0/>"; // four characters in six bytes
    }
    text += "</r>";
    const CXmlDocumentWrapper document = Parse(text);
    const CXmlNodeWrapper root = document.GetDocumentElement();
    for (const std::size_t i : {0u, 1u, 170u, 171u, 341u, 1024u, 2999u}) {
        EXPECT_EQ(root.GetChild(i).GetPosition().line, 1u);
        EXPECT_EQ(root.GetChild(i).GetPosition().column, 4 + i * 4) << i;
    }
}

TEST(Xml, ErrorsNameFileLineColumnAndReason) {
    EXPECT_EQ(Fails("<r>\n  <a></b>\n</r>"), "f.xml:2:6: </b> does not end <a> of line 2");
    EXPECT_EQ(Fails("<r>\n<a x='>'><!-- <c> --><b/>\n</r>"), "f.xml:3:1: </r> does not end <a> of line 2");
    EXPECT_EQ(Fails("<r>\n<a>\n"), "f.xml:2:4: <a> of line 2 is not ended");
    EXPECT_EQ(Fails("<r/></r>"), "f.xml:1:5: this end tag ends no element");
    EXPECT_EQ(Fails("<a/>\n\xE5\x9C\xB0 <b/>"), "f.xml:2:1: there is text outside the document element");
    EXPECT_EQ(Fails("<a/>\n <b/>"), "f.xml:2:2: there is a second document element");
    EXPECT_EQ(Fails(""), "f.xml: the document is empty");
    EXPECT_EQ(Fails("  \n "), "f.xml:2:2: there is no document element");
    EXPECT_EQ(Fails("<!-- only -->"), "f.xml:1:14: there is no document element");
}

TEST(Xml, WhatIsNotWellFormedIsRefused) {
    for (const char* text : {"<",
                             "<r",
                             "<r>",
                             "<r/",
                             "<r></r",
                             "</r>",
                             "<r a/>",
                             "<r a=/>",
                             "<r a=1/>",
                             "<r a='1/>",
                             "<r a='1'b='2'/>",
                             "<r><!-- </r>",
                             "<r><![CDATA[ </r>",
                             "<r><? </r>",
                             "<!DOCTYPE r [ <r/>",
                             "x<r/>",
                             "<r/>x",
                             "<![CDATA[x]]><r/>",
                             "<r/>&amp;",
                             "<r/><",
                             "<1/>",
                             "<r></ r>",
                             "<a><b></a></b>"}) {
        const std::string error = Fails(text);
        EXPECT_TRUE(error.starts_with("f.xml:1:")) << text << " -> " << error;
    }
}

TEST(Xml, ASuccessfulLoadClearsTheError) {
    CXmlDocumentWrapper document;
    EXPECT_FALSE(document.LoadFromMemory("<a>"));
    EXPECT_NE(document.GetErrorLine(), 0u);
    EXPECT_TRUE(document.LoadFromMemory("<a/>"));
    EXPECT_EQ(document.GetErrorText(), L"");
    EXPECT_EQ(document.GetErrorReason(), L"");
    EXPECT_EQ(document.GetErrorLine(), 0u);
    EXPECT_EQ(document.GetErrorColumn(), 0u);
}

TEST(Xml, AFailedLoadKeepsTheEarlierContent) {
    const TempFolder folder;
    CXmlDocumentWrapper document = Parse("<kept k='1'/>");
    EXPECT_FALSE(document.LoadFromMemory("<new>"));
    EXPECT_EQ(document.GetDocumentElement().GetName(), L"kept");
    EXPECT_FALSE(document.Load(folder.GetAppPath() + L"missing.xml"));
    EXPECT_EQ(document.GetDocumentElement().GetAttributeValue(0), L"1");
    EXPECT_TRUE(document.LoadFromMemory("<new/>"));
    EXPECT_EQ(document.GetDocumentElement().GetName(), L"new");
}

TEST(Xml, LoadsFilesByWideAndNarrowPath) {
    const TempFolder folder;
    const std::wstring path = folder.Write(std::filesystem::path(u8"图 \U0001F600.xml"), "<r n='1'/>");
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.Load(path)) << wstring2String(document.GetErrorText());
    EXPECT_TRUE(document.Load(path.c_str()));
    EXPECT_TRUE(document.Load(wstring2String(path))) << wstring2String(document.GetErrorText());
    EXPECT_TRUE(document.Load(wstring2String(path).c_str()));
    EXPECT_EQ(document.GetDocumentElement().GetAttributeValue(0), L"1");
}

TEST(Xml, MissingFilesFoldersAndEmptyFilesAreErrors) {
    const TempFolder folder;
    CXmlDocumentWrapper document;
    const std::wstring missing = folder.GetAppPath() + L"missing.xml";
    EXPECT_FALSE(document.Load(missing));
    EXPECT_TRUE(document.GetErrorText().starts_with(missing + L": ")) << wstring2String(document.GetErrorText());
    EXPECT_GT(document.GetErrorReason().size(), 5u);
    EXPECT_FALSE(document.Load(TempFolder::ToWide(folder.GetPath())));
    EXPECT_EQ(document.GetErrorReason(), L"this is not a file");
    EXPECT_FALSE(document.Load(folder.GetAppPath()));
    EXPECT_FALSE(document.Load(folder.Write("empty.xml", "")));
    EXPECT_EQ(document.GetErrorReason(), L"the document is empty");
    EXPECT_FALSE(document.Load(L""));
    EXPECT_FALSE(document.Load(static_cast<const wchar_t*>(nullptr)));
    EXPECT_FALSE(document.Load(static_cast<const char*>(nullptr)));
}

TEST(Xml, APathWithANulIsNotCutThere) {
    const TempFolder folder;
    std::wstring path = folder.Write("a.xml", "<r/>");
    path += std::wstring(L"\0tail", 5);
    CXmlDocumentWrapper document;
    EXPECT_FALSE(document.Load(path));
    EXPECT_EQ(document.GetErrorReason(), L"the path holds a NUL character");
}

TEST(Xml, ManyThreadsMayReadOneDocument) {
    std::string text = "<r>";
    for (int i = 0; i < 500; ++i) {
        text += "<e n='" + std::to_string(i) + "'/>";
    }
    const CXmlDocumentWrapper document = Parse(text + "</r>");
    std::vector<std::thread> threads;
    std::vector<int> good(4);
    for (int& count : good) {
        threads.emplace_back([&document, &count] {
            const CXmlNodeWrapper root = document.GetDocumentElement();
            for (std::size_t i = 0; i < root.GetChildCount(); ++i) {
                count += root.GetChild(i).GetAttributeValue(0) == std::to_wstring(i) &&
                                 root.GetChild(i).GetPosition().column > 3
                             ? 1
                             : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(good, std::vector<int>(4, 500));
}

} // namespace
