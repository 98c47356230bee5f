#include "varnhold/xml.h"

#include "temp_folder.h"
#include "tests/support/growth.h"
#include "varnhold/strings.h"

#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#endif

#include <algorithm>
#include <functional>
#include <string>

namespace {

using namespace std::string_literals;

std::string Nest(std::size_t depth, bool closed) {
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) {
        text += "<a>";
    }
    for (std::size_t i = 0; closed && i < depth; ++i) {
        text += "</a>";
    }
    return text;
}

std::string Reason(std::string_view text) {
    CXmlDocumentWrapper document;
    return document.LoadFromMemory(text) ? "loaded" : wstring2String(document.GetErrorReason());
}

TEST(XmlHostile, TenThousandLevelsCanBeRead) {
    CXmlDocumentWrapper document;
    ASSERT_TRUE(document.LoadFromMemory(Nest(10000, true)));
    CXmlNodeWrapper node = document.GetDocumentElement();
    std::size_t depth = 0;
    for (; !node.IsNull(); node = node.GetChild(0)) {
        ++depth;
    }
    EXPECT_EQ(depth, 10000u);
}

TEST(XmlHostile, TheDepthLimitIsExact) {
    EXPECT_EQ(Reason(Nest(CXmlDocumentWrapper::kMaxDepth, true)), "loaded");
    CXmlDocumentWrapper document;
    EXPECT_FALSE(document.LoadFromMemory(Nest(CXmlDocumentWrapper::kMaxDepth + 1, true)));
    EXPECT_EQ(document.GetErrorReason(), L"elements are nested deeper than 100000");
    EXPECT_EQ(document.GetErrorColumn(), 3 * CXmlDocumentWrapper::kMaxDepth + 1);
}

TEST(XmlHostile, TheDepthLimitIsExactForTheShortestDocument) {
    const auto nest = [](std::size_t depth) {
        std::string text = Nest(depth, true);
        return text.replace(text.find("<a></a>"), 7, "<a/>");
    };
    EXPECT_EQ(Reason(nest(CXmlDocumentWrapper::kMaxDepth)), "loaded");
    EXPECT_EQ(Reason(nest(CXmlDocumentWrapper::kMaxDepth + 1)), "elements are nested deeper than 100000");
}

TEST(XmlHostile, TenMegabytesOfNestingAreRefusedSoon) {
    constexpr std::size_t tenMegabytes = 10 << 20;
    double seconds = MeasureSeconds(
        [] { EXPECT_EQ(Reason(Nest(tenMegabytes / 7, true)), "elements are nested deeper than 100000"); });
    EXPECT_LT(seconds, 60.0); // quadratic work would take hours
    seconds = MeasureSeconds([] { EXPECT_EQ(Reason(Nest(tenMegabytes / 3, false)), "<a> of line 1 is not ended"); });
    EXPECT_LT(seconds, 60.0); // quadratic work would take hours
}

/// About 4 where time is linear, about 16 where it is quadratic.
double GrowthForFourTimes(std::size_t size, const std::function<double(std::size_t)>& measure) {
    return MeasureGrowth(
        4, [&] { return measure(size); }, [&] { return measure(4 * size); });
}

TEST(XmlHostile, ChildrenByIndexTakeLinearTime) {
    const double growth = GrowthForFourTimes(12500, [](std::size_t count) {
        std::string text = "<r>";
        for (std::size_t i = 0; i < count; ++i) {
            text += "<e n='1'/>";
        }
        CXmlDocumentWrapper document;
        EXPECT_TRUE(document.LoadFromMemory(text + "</r>"));
        const CXmlNodeWrapper root = document.GetDocumentElement();
        EXPECT_EQ(root.GetChildCount(), count);
        return MeasureSeconds([&] {
            std::size_t sum = 0;
            for (std::size_t i = 0; i < root.GetChildCount(); ++i) {
                sum += root.GetChild(i).GetAttributeValue(0).size() + root.GetChild(i).GetPosition().line;
            }
            EXPECT_EQ(sum, 2 * count);
        });
    });
    EXPECT_LT(growth, 9.0);
}

TEST(XmlHostile, AttributesByIndexTakeLinearTime) {
    const double growth = GrowthForFourTimes(12500, [](std::size_t count) {
        std::string text = "<r";
        for (std::size_t i = 0; i < count; ++i) {
            text += " a='v'";
        }
        CXmlDocumentWrapper document;
        EXPECT_TRUE(document.LoadFromMemory(text + "/>"));
        const CXmlNodeWrapper root = document.GetDocumentElement();
        EXPECT_EQ(root.GetAttributeCount(), count);
        return MeasureSeconds([&] {
            for (std::size_t i = 0; i < root.GetAttributeCount(); ++i) {
                ASSERT_EQ(root.GetAttributeName(i), L"a");
            }
        });
    });
    EXPECT_LT(growth, 9.0);
}

TEST(XmlHostile, NulCharactersAreRefusedWhereverTheyStand) {
    const std::string text = "<r a='1'><b>t</b></r>\n";
    for (std::size_t i = 0; i <= text.size(); ++i) {
        std::string broken = text;
        broken.insert(i, 1, '\0');
        CXmlDocumentWrapper document;
        EXPECT_FALSE(document.LoadFromMemory(broken)) << i;
        // After a first "<" or before it a NUL looks like UTF-16, which then is not well-formed.
        if (i > 1) {
            EXPECT_EQ(document.GetErrorReason(), L"there is a NUL character") << i;
            EXPECT_EQ(document.GetErrorLine(), i < text.size() ? 1u : 2u);
            EXPECT_EQ(document.GetErrorColumn(), i < text.size() ? i + 1 : 1u);
        }
    }
}

std::string MakeSample() {
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE ribbon [<!ELEMENT ribbon ANY>]>\n<ribbon>\n";
    for (int i = 0; i < 40; ++i) {
        text += "  <row KEYWORD=\"Row" + std::to_string(i) +
                "\" NAME='\xE5\x9C\xB0&amp;'>\n    <!-- \xE5\x9B\xBE -->\n" +
                "    <cell a=\"1\"/><![CDATA[ <x> ]]><?note here?>\n  </row>\n";
    }
    return text + "</ribbon>\n";
}

TEST(XmlHostile, ACutFileFailsWithAPlace) {
    const std::string sample = MakeSample();
    ASSERT_EQ(Reason(sample), "loaded");
    for (std::size_t size = 1; size < sample.size() - 1; size += 50) {
        CXmlDocumentWrapper document;
        EXPECT_FALSE(document.LoadFromMemory(std::string_view(sample).substr(0, size))) << size;
        EXPECT_GT(document.GetErrorLine(), 0u) << size;
        EXPECT_GT(document.GetErrorColumn(), 0u) << size;
        EXPECT_FALSE(document.GetErrorReason().empty()) << size;
    }
}

TEST(XmlHostile, AnyByteMayBeWrong) {
    const std::string sample = MakeSample();
    for (std::size_t i = 0; i < sample.size(); i += 7) {
        for (const char wrong : {'<', '>', '&', '"', '\xFF', '\xC3', '\x01'}) {
            std::string broken = sample;
            broken[i] = wrong;
            CXmlDocumentWrapper document;
            if (!document.LoadFromMemory(broken)) {
                EXPECT_FALSE(document.GetErrorText().empty()) << i;
            } else {
                EXPECT_FALSE(document.GetDocumentElement().IsNull()) << i;
            }
        }
    }
}

TEST(XmlHostile, EntitiesOfADocumentTypeAreNotExpanded) {
    std::string bomb = "<!DOCTYPE r [<!ENTITY e0 \"ha\">";
    for (int i = 1; i < 30; ++i) {
        const std::string inner = "&e" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY e" + std::to_string(i) + " \"" + inner + inner + "\">";
    }
    bomb += "]><r a='&e29;' b='&e0;'/>";
    CXmlDocumentWrapper document;
    const double seconds = MeasureSeconds([&] { ASSERT_TRUE(document.LoadFromMemory(bomb)); });
    EXPECT_LT(seconds, 1.0);
    EXPECT_EQ(document.GetDocumentElement().GetAttributeValue(0), L"&e29;");
    EXPECT_EQ(document.GetDocumentElement().GetAttributeValue(1), L"&e0;");
}

TEST(XmlHostile, NothingOutsideTheFileIsRead) {
    const TempFolder folder;
    folder.Write("secret.txt", "secret");
    const std::wstring path = folder.Write(
        "doc.xml",
        "<!DOCTYPE r SYSTEM 'secret.txt' [<!ENTITY s SYSTEM 'secret.txt'> %p; <!ENTITY % p SYSTEM 'x'>]><r a='&s;'/>");
    CXmlDocumentWrapper document;
    ASSERT_TRUE(document.Load(path)) << wstring2String(document.GetErrorText());
    EXPECT_EQ(document.GetDocumentElement().GetAttributeValue(0), L"&s;");
}

TEST(XmlHostile, DeepDocumentTypesDoNotOverflowTheStack) {
    std::string text = "<!DOCTYPE r [";
    for (int i = 0; i < 500000; ++i) {
        text += "<!A ";
    }
    EXPECT_EQ(Reason(text), "the document type definition is malformed or not closed");
}

TEST(XmlHostile, CharacterReferencesReachTheLastCharacter) {
    CXmlDocumentWrapper document;
    ASSERT_TRUE(document.LoadFromMemory("<r a='&#65;&#x41;&#0065;' b='&#xD7FF;&#xe000;' c='&#1114111;&#x0010FFFF;'/>"));
    const CXmlNodeWrapper root = document.GetDocumentElement();
    EXPECT_EQ(root.GetAttributeValue(0), L"AAA");
    EXPECT_EQ(root.GetAttributeValue(1), L"\xD7FF\xE000");
    EXPECT_EQ(root.GetAttributeValue(2), L"\U0010FFFF\U0010FFFF");
}

TEST(XmlHostile, WhatIsNoWholeCharacterReferenceStaysAsWritten) {
    for (const std::string text :
         {"&#;", "&#x;", "&;", "&#0", "&#x0", "&#0 ;", "&#0x0;", "&#X0;", "&# 0;", "&#-1;", "&amp#0;"}) {
        CXmlDocumentWrapper document;
        ASSERT_TRUE(document.LoadFromMemory("<r a='" + text + "'/>")) << text;
        EXPECT_EQ(document.GetDocumentElement().GetAttributeValue(0), string2wstring(text));
    }
}

const char* const referencesToNoCharacter[] = {
    "&#0;",
    "&#x0;",
    "&#000;",
    "&#xD800;",
    "&#xdfff;",
    "&#55296;",
    "&#57343;",
    "&#x110000;",
    "&#1114112;",
    "&#4294967361;",
    "&#x100000041;",
    "&#99999999999999999999999;",
    "&#x10000000000000041;",
    "&#18446744073709551681;",
};

TEST(XmlHostile, ReferencesToNoCharacterAreRefusedWithTheirPlace) {
    for (const std::string reference : referencesToNoCharacter) {
        const std::string documents[] = {
            "<r b='>'>\n <a \xC3\xA4='" + reference + "'/></r>",
            "<r b='>'>\n <!----> " + reference + "</r>",
            "<r b=\"'&lt;\">\n<c t='&#1'>" + reference + "</c></r>",
            "<r>\n<!--'-->\t" + reference + "</r>",
            "<!DOCTYPE r [<!ENTITY a '<'><!-- > -->]><r>\n\t\t\t\t <a/>" + reference + reference + "</r>",
        };
        const std::size_t columns[] = {8, 10, 12, 10, 10};
        for (std::size_t i = 0; i < std::size(documents); ++i) {
            CXmlDocumentWrapper document;
            EXPECT_FALSE(document.LoadFromMemory(documents[i])) << documents[i];
            EXPECT_EQ(document.GetErrorReason(), L"a character reference stands for no character") << documents[i];
            EXPECT_EQ(document.GetErrorLine(), 2u) << documents[i];
            EXPECT_EQ(document.GetErrorColumn(), columns[i]) << documents[i];
        }
    }
}

TEST(XmlHostile, MarkupInAValueHidesNoReference) {
    for (const char* text : {"<r a='<!-- &#0; -->'/>", "<r a='<![CDATA[ &#0; ]]>'/>", "<r a='<?x &#0; ?>'/>",
                             "<r a='<!--' b='&#0;' c='-->'/>", "<r a=\"'\" b='&#0;'/>", "<r a='/>'>&#0;</r>"}) {
        EXPECT_EQ(Reason(text), "a character reference stands for no character") << text;
    }
}

TEST(XmlHostile, WhatIsNotReplacedMayLookLikeAReferenceToNoCharacter) {
    for (const char* text :
         {"<r><!-- &#0; --></r>", "<!-- &#0; --><r/>", "<r><![CDATA[&#0;<a b='>]]></r>", "<?x &#0;?><r/>",
          "<r><?x ' &#0;?></r>", "<!DOCTYPE r [<!ENTITY a '&#0;'><!ENTITY b \">&#0;\"><!-- '>&#0; -->]><r/>",
          "<r a='&#1'>&#x<!--&#0;--></r>", "<?x?><!DOCTYPE r SYSTEM '>&#0;'><r><!--'--><?y \"?></r><!--&#0;-->"}) {
        EXPECT_EQ(Reason(text), "loaded") << text;
    }
}

TEST(XmlHostile, HiddenReferencesAreFoundInLinearTime) {
    const double growth = GrowthForFourTimes(20000, [](std::size_t count) {
        std::string text = "<r>";
        for (std::size_t i = 0; i < count; ++i) {
            text += "<!--&#0;--><a b='&#65;'/>";
        }
        text += "</r>";
        return MeasureSeconds([&] { EXPECT_EQ(Reason(text), "loaded"); });
    });
    EXPECT_LT(growth, 9.0);
}

#ifdef _WIN32
TEST(XmlHostile, PathsLongerThanTheSystemsLimitCanBeRead) {
    const TempFolder folder;
    const std::filesystem::path longFolder = folder.GetPath() / std::wstring(120, L'a') / std::wstring(120, L'b');
    std::filesystem::create_directories(longFolder.parent_path());
    const std::wstring path = (longFolder / (std::wstring(100, L'c') + L".xml")).wstring();
    ASSERT_GT(path.size(), 300u);
    const std::wstring prefix = L"\\\\?\\";
    ASSERT_TRUE(CreateDirectoryW((prefix + longFolder.wstring()).c_str(), nullptr));
    const HANDLE file = CreateFileW((prefix + path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    DWORD written = 0;
    WriteFile(file, "<r/>", 4, &written, nullptr);
    CloseHandle(file);
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.Load(path)) << wstring2String(document.GetErrorText());
    DeleteFileW((prefix + path).c_str());
    RemoveDirectoryW((prefix + longFolder.wstring()).c_str());
}
#endif

} // namespace
