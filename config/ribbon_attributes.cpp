#include "config/ribbon_attributes.h"

#include "config/text_case.h"

#include <varnhold/language.h>
#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <boost/lexical_cast/try_lexical_convert.hpp>

#include <algorithm>
#include <iterator>

namespace {

/// One attribute on its way into the record.
struct Reading {
    const CXmlNodeWrapper& node;
    std::size_t index;
    RibbonInfo& info;
    const FileDiagnostics& diagnostics;
    /// The keyword read so far, as it stands in the file: translations are looked up under it.
    std::string_view& keyword;

    std::string_view Utf8() const { return node.GetAttributeValueUtf8(index); }
    std::wstring Value() const { return string2wstring(Utf8()); }
    void Warn(std::string_view code, std::wstring text) const {
        if (diagnostics.IsListening())
            diagnostics.Warn(node.GetAttributePosition(index), code, std::move(text));
    }
};

/// False: the rest of the element must not be read.
using Taker = bool (*)(const Reading& reading);

template <std::wstring RibbonInfo::*field>
bool TakeText(const Reading& reading) {
    reading.info.*field = reading.Value();
    return true;
}

bool TakeKeyword(const Reading& reading) {
    reading.keyword = reading.Utf8();
    return TakeText<&RibbonInfo::keyword>(reading);
}

template <std::wstring RibbonInfo::*field, int number>
bool TakeTranslation(const Reading& reading) {
    static const std::string section = "RibbonBarCfg";
    static const CMultiLanguageMgr::Fallback noFallback;
    if (reading.keyword.empty())
        reading.Warn("text-before-keyword", L"the text is looked up under the keyword, which must stand before it");
    reading.info.*field = CMultiLanguageMgr::translationW(std::string(reading.keyword), number, section, noFallback);
    return true;
}

template <std::int32_t RibbonInfo::*field>
bool TakeNumber(const Reading& reading) {
    const std::string_view value = reading.Utf8();
    std::int32_t number = 0;
    if (!boost::conversion::try_lexical_convert(value.data(), value.size(), number)) {
        if (reading.diagnostics.IsListening())
            reading.diagnostics.Fail(
                reading.node.GetAttributePosition(reading.index), "not-a-number",
                L"\"" + reading.Value() +
                    L"\" is not a decimal number of 32 bits; the attributes after it are not read");
        return false;
    }
    reading.info.*field = number;
    return true;
}

bool TakeGroupBefore(const Reading& reading) {
    reading.info.groupBefore = EqualsIgnoringCase(reading.Utf8(), "Y");
    if (reading.info.groupBefore && reading.index + 1 < reading.node.GetAttributeCount())
        reading.Warn("group-before-not-last", L"GROUPBEFORE has an effect only as the last attribute");
    return true;
}

bool TakeCateTab(const Reading& reading) {
    const std::string_view value = reading.Utf8();
    if (EqualsIgnoringCase(value, "Y"))
        reading.info.cateTab = true;
    else if (EqualsIgnoringCase(value, "N"))
        reading.info.cateTab = false;
    else
        reading.Warn("not-yes-or-no", L"\"" + reading.Value() + L"\" is neither Y nor N");
    return true;
}

bool TakeAcceptF1(const Reading& reading) {
    if (EqualsIgnoringCase(reading.Utf8(), "N"))
        reading.info.acceptF1 = false;
    return true;
}

bool TakeValueGroup(const Reading& reading) {
    const std::wstring value = reading.Value();
    reading.info.valueGroup.clear();
    std::size_t begin = 0;
    for (std::size_t comma; (comma = value.find(L',', begin)) != std::wstring::npos; begin = comma + 1)
        reading.info.valueGroup.push_back(value.substr(begin, comma - begin));
    reading.info.valueGroup.push_back(value.substr(begin));
    return true;
}

struct Attribute {
    std::string_view name;
    Taker take;
};

constexpr Attribute attributes[] = {
    {"KEYWORD", TakeKeyword},
    {"IDKEY", TakeKeyword},
    {"NAME", TakeTranslation<&RibbonInfo::name, -1>},
    {"TYPE", TakeText<&RibbonInfo::type>},
    {"TOOLTIP", TakeTranslation<&RibbonInfo::tooltip, 0>},
    {"PICPATH", TakeText<&RibbonInfo::picPath>},
    {"PICDisPATH", TakeText<&RibbonInfo::picDisPath>},
    {"SIZE", TakeNumber<&RibbonInfo::size>},
    {"GROUPBEFORE", TakeGroupBefore},
    {"VALUEGROUP", TakeValueGroup},
    {"WIDTH", TakeNumber<&RibbonInfo::width>},
    {"CMD", TakeText<&RibbonInfo::cmd>},
    {"PARAM", TakeText<&RibbonInfo::param>},
    {"help", TakeText<&RibbonInfo::help>},
    {"CateTab", TakeCateTab},
    {"AcceptF1", TakeAcceptF1},
};

const Attribute* FindAttribute(std::string_view name) {
    // The length settles nearly every comparison without a call.
    const auto* const found =
        std::find_if(std::begin(attributes), std::end(attributes), [name](const Attribute& known) {
            return known.name.size() == name.size() && EqualsIgnoringCase(known.name, name);
        });
    return found == std::end(attributes) ? nullptr : found;
}

void Reset(RibbonInfo& info) {
    info.groupBefore = false;
    info.cateTab = false;
    info.acceptF1 = true;
    for (std::wstring RibbonInfo::*field : {&RibbonInfo::name, &RibbonInfo::type, &RibbonInfo::tooltip,
                                            &RibbonInfo::keyword, &RibbonInfo::picPath, &RibbonInfo::help})
        (info.*field).clear();
    info.size = 0;
    info.width = 0;
    info.valueGroup.clear();
}

} // namespace

bool ReadRibbonInfo(const CXmlNodeWrapper& node, RibbonInfo& info, const FileDiagnostics& diagnostics) {
    Reset(info);
    const std::size_t count = node.GetAttributeCount();
    if (count == 0)
        return false;
    std::string_view keyword;
    for (std::size_t i = 0; i < count; ++i) {
        const Reading reading{node, i, info, diagnostics, keyword};
        // Every attribute takes it back, so GROUPBEFORE counts only where it is the last one.
        info.groupBefore = false;
        if (const Attribute* attribute = FindAttribute(node.GetAttributeNameUtf8(i))) {
            if (!attribute->take(reading))
                return false;
        } else if (diagnostics.IsListening()) {
            reading.Warn("unknown-attribute",
                         L"\"" + node.GetAttributeName(i) + L"\" is not an attribute of a ribbon file");
        }
    }
    if (info.help.empty() && info.acceptF1)
        info.help = info.name + L".swf";
    return true;
}
