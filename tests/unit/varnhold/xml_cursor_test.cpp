#include "varnhold/xml.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using varnhold::XmlAttributeView;
using varnhold::XmlCursor;

CXmlDocumentWrapper Loaded(const std::string& xml) {
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.LoadFromMemory(xml)) << xml;
    return document;
}

TEST(XmlCursor, GoesFromElementToElementAndSkipsEverythingElse) {
    XmlCursor cursor(Loaded("<!-- c --><d>text<a/><?pi?><b><c/></b>text<![CDATA[<x/>]]></d><!-- c -->"));
    EXPECT_EQ(cursor.GetName(), L"d");
    EXPECT_EQ(cursor.CountChildren(), 2u);
    EXPECT_TRUE(cursor.ToFirstChild());
    EXPECT_EQ(cursor.GetName(), L"a");
    EXPECT_FALSE(cursor.HasChildren());
    EXPECT_TRUE(cursor.ToNextSibling());
    EXPECT_EQ(cursor.GetName(), L"b");
    EXPECT_TRUE(cursor.HasChildren());
    EXPECT_TRUE(cursor.ToFirstChild());
    EXPECT_EQ(cursor.GetName(), L"c");
    EXPECT_TRUE(cursor.ToParent());
    EXPECT_EQ(cursor.GetName(), L"b");
}

TEST(XmlCursor, StaysWhereThereIsNowhereToGo) {
    XmlCursor cursor(Loaded("<d>text</d>"));
    EXPECT_FALSE(cursor.ToFirstChild());
    EXPECT_FALSE(cursor.ToNextSibling());
    EXPECT_FALSE(cursor.ToParent());
    EXPECT_EQ(cursor.GetName(), L"d");
    EXPECT_EQ(cursor.CountChildren(), 0u);
}

TEST(XmlCursor, OverNothingHasNothing) {
    for (XmlCursor cursor : {XmlCursor(CXmlDocumentWrapper()), XmlCursor(CXmlNodeWrapper())}) {
        EXPECT_FALSE(cursor.ToFirstChild() || cursor.ToNextSibling() || cursor.ToParent() || cursor.HasChildren());
        EXPECT_EQ(cursor.CountChildren(), 0u);
        EXPECT_TRUE(cursor.ReadAttributes().empty());
        EXPECT_EQ(cursor.GetName(), L"");
        EXPECT_EQ(cursor.GetPosition().line, 0u);
        EXPECT_EQ(cursor.GetAttributePosition({}).line, 0u);
    }
}

TEST(XmlCursor, StartsAtANodeAndOutlivesItsDocument) {
    const CXmlNodeWrapper node = Loaded("<d><a/><b k='v'/></d>").GetDocumentElement().GetChild(1);
    XmlCursor cursor(node);
    EXPECT_EQ(cursor.GetName(), L"b");
    EXPECT_EQ(cursor.ReadAttributes()[0].value, "v");
}

TEST(XmlCursor, AttributesOfEveryLengthAreWhole) {
    // The ends of names and values stand at every place within a word, the last ones at the end of the document.
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string value(length, 'v'), name(length + 1, 'n');
        XmlCursor cursor(Loaded("<d " + name + "='" + value + "' x='" + value + "'/>"));
        const auto attributes = cursor.ReadAttributes();
        ASSERT_EQ(attributes.size(), 2u);
        EXPECT_EQ(attributes[0].name, name);
        EXPECT_EQ(attributes[0].value, value);
        EXPECT_EQ(attributes[1].value, value);
    }
}

TEST(XmlCursor, AttributesAreThoseOfTheNode) {
    const CXmlDocumentWrapper document =
        Loaded("<d a='&lt;&amp;&#x56FE;' b='x\ty' b='2'\n c='' d = '4' e= '&gt;5' f ='6'/>");
    const CXmlNodeWrapper node = document.GetDocumentElement();
    XmlCursor cursor(document);
    const auto attributes = cursor.ReadAttributes();
    ASSERT_EQ(attributes.size(), node.GetAttributeCount());
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        EXPECT_EQ(attributes[i].name, node.GetAttributeNameUtf8(i));
        EXPECT_EQ(attributes[i].value, node.GetAttributeValueUtf8(i));
        EXPECT_EQ(cursor.GetAttributePosition(attributes[i]).line, node.GetAttributePosition(i).line);
        EXPECT_EQ(cursor.GetAttributePosition(attributes[i]).column, node.GetAttributePosition(i).column);
    }
    EXPECT_EQ(cursor.GetAttributePosition(attributes[3]).line, 2u);
}

TEST(XmlCursor, AttributesKeepTheirPlaceAfterTheCursorMoved) {
    XmlCursor cursor(Loaded("<d><a k='v'\n  l=''/><b/></d>"));
    ASSERT_TRUE(cursor.ToFirstChild());
    const XmlAttributeView second = cursor.ReadAttributes()[1];
    ASSERT_TRUE(cursor.ToNextSibling());
    EXPECT_TRUE(cursor.ReadAttributes().empty());
    EXPECT_EQ(cursor.GetAttributePosition(second).line, 2u);
    EXPECT_EQ(cursor.GetAttributePosition(second).column, 3u);
}

} // namespace
