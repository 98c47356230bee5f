#include "varnhold/strings.h"
#include "varnhold/xml.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#ifdef _WIN32
#include <windows.h>
#else
#include <iconv.h>
#endif

namespace {

using namespace std::string_literals;

std::string Utf16(std::u16string_view text, bool bigEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

/// The value of the first attribute of the document element, or the error in angle brackets.
std::wstring Read(std::string_view bytes) {
    CXmlDocumentWrapper document;
    if (!document.LoadFromMemory(bytes)) {
        return L"<" + document.GetErrorReason() + L">";
    }
    return document.GetDocumentElement().GetAttributeValue(0);
}

std::string Declared(std::string_view encoding, std::string_view value) {
    return "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?>\n<r n=\"" + std::string(value) + "\"/>";
}

const std::wstring kMap = L"\x5730\x56FE"; // "map" in Chinese

TEST(XmlEncoding, WithoutMarkAndDeclarationTheFileIsUtf8) {
    EXPECT_EQ(Read("<r n='\xE5\x9C\xB0\xE5\x9B\xBE'/>"), kMap);
    EXPECT_EQ(Read("<?xml version='1.0'?><r n='\xE5\x9C\xB0\xE5\x9B\xBE'/>"), kMap);
}

TEST(XmlEncoding, ByteOrderMarksAreKnown) {
    EXPECT_EQ(Read("\xEF\xBB\xBF<r n='\xE5\x9C\xB0\xE5\x9B\xBE'/>"), kMap);
    EXPECT_EQ(Read("\xFF\xFE" + Utf16(u"<r n='\u5730\u56FE'/>", false)), kMap);
    EXPECT_EQ(Read("\xFE\xFF" + Utf16(u"<r n='\u5730\u56FE'/>", true)), kMap);
}

TEST(XmlEncoding, AByteOrderMarkOutweighsTheDeclaration) {
    EXPECT_EQ(Read("\xEF\xBB\xBF" + Declared("GBK", "\xE5\x9C\xB0\xE5\x9B\xBE")), kMap);
    EXPECT_EQ(Read("\xFF\xFE" + Utf16(u"<?xml version='1.0' encoding='UTF-8'?><r n='\u5730\u56FE'/>", false)), kMap);
}

TEST(XmlEncoding, Utf16IsKnownWithoutAMark) {
    const std::u16string text = u"<?xml version='1.0' encoding='UTF-16'?><r n='\u5730\u56FE'/>";
    EXPECT_EQ(Read(Utf16(text, false)), kMap);
    EXPECT_EQ(Read(Utf16(text, true)), kMap);
}

TEST(XmlEncoding, DeclaredByteOrdersOfUtf16AreKnown) {
    const std::u16string little = u"<?xml version='1.0' encoding='utf-16le'?><r n='\u5730\u56FE'/>";
    const std::u16string big = u"<?xml version='1.0' encoding='utf-16be'?><r n='\u5730\u56FE'/>";
    EXPECT_EQ(Read(Utf16(little, false)), kMap);
    EXPECT_EQ(Read(Utf16(big, true)), kMap);
    // The bytes tell the truth, whatever the declaration says.
    EXPECT_EQ(Read(Utf16(big, false)), kMap);
    EXPECT_EQ(Read(Utf16(little, true)), kMap);
}

TEST(XmlEncoding, Utf16ReachesBeyondTheBasicPlane) {
    EXPECT_EQ(Read("\xFF\xFE" + Utf16(u"<r n='\U0001F600'/>", false)), L"\U0001F600");
    EXPECT_EQ(Read("\xFE\xFF" + Utf16(u"<r n='\U0001F600'/>", true)), L"\U0001F600");
}

TEST(XmlEncoding, BrokenUtf16BecomesReplacements) {
    std::u16string text = u"<r n='a?b?c'/>";
    text[7] = 0xD83D;
    text[9] = 0xDE00;
    EXPECT_EQ(Read("\xFF\xFE" + Utf16(text, false)), L"a\xFFFD"
                                                     L"b\xFFFD"
                                                     L"c");
}

TEST(XmlEncoding, AHalfUnitAtTheEndOfUtf16IsNotSwallowed) {
    EXPECT_EQ(Read("\xFF\xFE" + Utf16(u"<r n='x'/>", false) + "\x20"), L"<there is text outside the document element>");
}

TEST(XmlEncoding, TheDeclaredEncodingIsHonoured) {
    for (const char* name : {"GBK", "gbk", "GB2312", "gb2312", "gb_2312-80", "GB_2312-80", "EUC-CN", "euc-cn",
                             "GB18030", "cp936", "MS936", "ms936", "windows-936"}) {
        EXPECT_EQ(Read(Declared(name, "\xB5\xD8\xCD\xBC")), kMap) << name;
    }
    for (const char* name : {"utf-8", "utf8", "UTF8"}) {
        EXPECT_EQ(Read(Declared(name, "\xE5\x9C\xB0\xE5\x9B\xBE")), kMap) << name;
    }
    for (const char* name : {"ISO-8859-1", "iso_8859-1", "ISO_8859-1", "latin1", "l1", "L1"}) {
        EXPECT_EQ(Read(Declared(name, "\xE4\xFF\x80")), L"\xE4\xFF\x80") << name;
    }
    for (const char* name : {"US-ASCII", "ascii"}) {
        EXPECT_EQ(Read(Declared(name, "a\xE4")), L"a\xFFFD") << name;
    }
}

TEST(XmlEncoding, TheDeclarationMayBeWrittenInAnyOfItsForms) {
    EXPECT_EQ(Read("<?xml\tversion = '1.0'\n encoding = 'GBK'  standalone='yes' ?><r n='\xB5\xD8'/>"), L"\x5730");
    EXPECT_EQ(Read("<?xml version='1.0' note='encoding=\"x\"' encoding='GBK'?><r n='\xB5\xD8'/>"), L"\x5730");
}

TEST(XmlEncoding, AnUnknownEncodingIsAnErrorThatNamesIt) {
    EXPECT_EQ(Read(Declared("KOI8-R", "x")), L"<the encoding \"KOI8-R\" is not known>");
    EXPECT_EQ(Read("<?xml version='1.0' encoding=GBK?><r/>"), L"<the XML declaration is malformed>");
    EXPECT_EQ(Read("<?xml version='1.0'"), L"<the XML declaration is malformed>");
}

TEST(XmlEncoding, ADeclarationThatCannotBeTrueIsAnError) {
    for (const char* name : {"UTF-16", "utf16", "utf-16le", "UTF-16LE", "utf-16be"}) {
        EXPECT_EQ(Read(Declared(name, "x")),
                  L"<the declaration says " + string2wstring(name) + L", but the bytes are not UTF-16>");
    }
    EXPECT_EQ(Read("\xFF\xFE\0\0<\0\0\0"s), L"<the encoding UTF-32 is not supported>");
    EXPECT_EQ(Read("\0\0\xFE\xFF\0\0\0<"s), L"<the encoding UTF-32 is not supported>");
}

TEST(XmlEncoding, AWrongDeclarationGivesReplacementsNotACrash) {
    EXPECT_EQ(Read(Declared("UTF-8", "\xB5\xD8\xCD\xBC")), L"\xFFFD\xFFFD\x37C"); // CD BC is a letter by chance
    EXPECT_EQ(Read(Declared("GBK", "\xE5\x9C\xB0\xE5\x9B\xBE")), string2wstring("鍦板浘"));
}

TEST(XmlEncoding, BrokenUtf8BecomesReplacementsAndTheRestIsKept) {
    EXPECT_EQ(Read("<r n='a\xE5\x9C"
                   "b\xFF"
                   "c'/>"),
              L"a\xFFFD"
              L"b\xFFFD"
              L"c");
    EXPECT_EQ(Read("<r n='\xEF\xBF\xBD' m='\xFF'/>"), L"\xFFFD");
}

TEST(XmlEncoding, BrokenGbkNeverSwallowsMarkup) {
    EXPECT_EQ(Read(Declared("GBK", "\xB5")), L"\xFFFD");
    EXPECT_EQ(Read(Declared("GBK", "\x81\x20x")), L"\xFFFD x");
    EXPECT_EQ(Read(Declared("GBK", "\xFF")), L"\xFFFD");
    EXPECT_EQ(Read(Declared("GBK", "\x80")), L"\x20AC");
    EXPECT_EQ(Read(Declared("GBK", "\xB5\xFFy")), L"\xFFFDy");
    EXPECT_EQ(Read(Declared("GB18030", "\x81\x30\x81x")), L"\xFFFD"
                                                          L"0\x4E81"); // 81 78 is a character of its own
}

TEST(XmlEncoding, Gb18030ReachesAllPlanes) {
    EXPECT_EQ(Read(Declared("GB18030", "\x81\x30\x81\x30")), L"\x80");
    EXPECT_EQ(Read(Declared("GB18030", "\x81\x30\x84\x36")), L"\xA5");
    EXPECT_EQ(Read(Declared("GB18030", "\x84\x31\xA4\x39")), L"\xFFFF");
    EXPECT_EQ(Read(Declared("GB18030", "\x90\x30\x81\x30")), L"\U00010000");
    EXPECT_EQ(Read(Declared("GB18030", "\x94\x39\xFC\x36")), L"\U0001F600");
    EXPECT_EQ(Read(Declared("GB18030", "\xE3\x32\x9A\x35")), L"\U0010FFFF");
    EXPECT_EQ(Read(Declared("GB18030", "\xE3\x32\x9A\x36")), L"\xFFFD");
    EXPECT_EQ(Read(Declared("GB18030", "\x84\x31\xA5\x30")), L"\xFFFD");
    EXPECT_EQ(Read(Declared("GB18030", "\xA8\xBC")), L"\x1E3F");
}

/// The system's own idea of two GBK bytes; 0 when it has none.
char32_t AskSystem(unsigned char lead, unsigned char trail) {
    const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
#ifdef _WIN32
    wchar_t wide[2] = {};
    return MultiByteToWideChar(936, MB_ERR_INVALID_CHARS, bytes, 2, wide, 2) == 1 ? wide[0] : 0;
#else
    static const iconv_t converter = iconv_open("UTF-32LE", "GBK");
    char32_t c = 0;
    char* in = const_cast<char*>(bytes);
    char* out = reinterpret_cast<char*>(&c);
    std::size_t inLeft = 2;
    std::size_t outLeft = 4;
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    return iconv(converter, &in, &inLeft, &out, &outLeft) == 0 && outLeft == 0 ? c : 0;
#endif
}

TEST(XmlEncoding, EveryGbkCharacterIsTheOneThatTheSystemKnows) {
    int compared = 0;
    for (unsigned lead = 0x81; lead <= 0xFE; ++lead) {
        for (unsigned trail = 0x40; trail <= 0xFE; ++trail) {
            const char32_t expected = AskSystem(static_cast<unsigned char>(lead), static_cast<unsigned char>(trail));
            const bool privateUse = expected >= 0xE000 && expected <= 0xF8FF;
            // The system's older table differs in these two by one of two look-alikes.
            const bool lookAlike = (lead == 0xA1 && trail == 0xA4) || (lead == 0xA1 && trail == 0xAA);
            if (expected == 0 || privateUse || lookAlike) {
                continue;
            }
            const std::string value{static_cast<char>(lead), static_cast<char>(trail)};
            const std::wstring read = Read(Declared("GBK", value));
            ASSERT_EQ(read.size(), 1u) << std::hex << lead << ' ' << trail;
            ASSERT_EQ(static_cast<char32_t>(read[0]), expected) << std::hex << lead << ' ' << trail;
            ++compared;
        }
    }
    EXPECT_GT(compared, 21000);
}

} // namespace
