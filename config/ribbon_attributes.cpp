#include "config/ribbon_attributes.h"

#include "config/text_case.h"

#include <varnhold/language.h>
#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <boost/lexical_cast/try_lexical_convert.hpp>

namespace {

/// One attribute on its way into the record.
struct Reading {
    const CXmlNodeWrapper& node;
    std::size_t index;
    RibbonInfo& info;
    const FileDiagnostics& diagnostics;

    std::wstring Value() const { return node.GetAttributeValue(index); }
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

template <std::wstring RibbonInfo::*field, int number>
bool TakeTranslation(const Reading& reading) {
    static const std::string section = "RibbonBarCfg";
    static const CMultiLanguageMgr::Fallback noFallback;
    if (reading.info.keyword.empty())
        reading.Warn("text-before-keyword", L"the text is looked up under the keyword, which must stand before it");
    reading.info.*field =
        CMultiLanguageMgr::translationW(wstring2String(reading.info.keyword), number, section, noFallback);
    return true;
}

template <std::int32_t RibbonInfo::*field>
bool TakeNumber(const Reading& reading) {
    const std::wstring value = reading.Value();
    std::int32_t number = 0;
    if (!boost::conversion::try_lexical_convert(value, number)) {
        if (reading.diagnostics.IsListening())
            reading.diagnostics.Fail(
                reading.node.GetAttributePosition(reading.index), "not-a-number",
                L"\"" + value + L"\" is not a decimal number of 32 bits; the attributes after it are not read");
        return false;
    }
    reading.info.*field = number;
    return true;
}

bool TakeGroupBefore(const Reading& reading) {
    reading.info.groupBefore = EqualsIgnoringCase(reading.Value(), L"Y");
    if (reading.info.groupBefore && reading.index + 1 < reading.node.GetAttributeCount())
        reading.Warn("group-before-not-last", L"GROUPBEFORE has an effect only as the last attribute");
    return true;
}

bool TakeCateTab(const Reading& reading) {
    const std::wstring value = reading.Value();
    if (EqualsIgnoringCase(value, L"Y"))
        reading.info.cateTab = true;
    else if (EqualsIgnoringCase(value, L"N"))
        reading.info.cateTab = false;
    else
        reading.Warn("not-yes-or-no", L"\"" + value + L"\" is neither Y nor N");
    return true;
}

bool TakeAcceptF1(const Reading& reading) {
    if (EqualsIgnoringCase(reading.Value(), L"N"))
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
    std::wstring_view name;
    Taker take;
};

constexpr Attribute attributes[] = {
    {L"KEYWORD", TakeText<&RibbonInfo::keyword>},
    {L"IDKEY", TakeText<&RibbonInfo::keyword>},
    {L"NAME", TakeTranslation<&RibbonInfo::name, -1>},
    {L"TYPE", TakeText<&RibbonInfo::type>},
    {L"TOOLTIP", TakeTranslation<&RibbonInfo::tooltip, 0>},
    {L"PICPATH", TakeText<&RibbonInfo::picPath>},
    {L"PICDisPATH", TakeText<&RibbonInfo::picDisPath>},
    {L"SIZE", TakeNumber<&RibbonInfo::size>},
    {L"GROUPBEFORE", TakeGroupBefore},
    {L"VALUEGROUP", TakeValueGroup},
    {L"WIDTH", TakeNumber<&RibbonInfo::width>},
    {L"CMD", TakeText<&RibbonInfo::cmd>},
    {L"PARAM", TakeText<&RibbonInfo::param>},
    {L"help", TakeText<&RibbonInfo::help>},
    {L"CateTab", TakeCateTab},
    {L"AcceptF1", TakeAcceptF1},
};

const Attribute* FindAttribute(std::wstring_view name) {
    for (const Attribute& attribute : attributes) {
        if (EqualsIgnoringCase(name, attribute.name))
            return &attribute;
    }
    return nullptr;
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
    for (std::size_t i = 0; i < count; ++i) {
        const Reading reading{node, i, info, diagnostics};
        // Every attribute takes it back, so GROUPBEFORE counts only where it is the last one.
        info.groupBefore = false;
        const std::wstring name = node.GetAttributeName(i);
        if (const Attribute* attribute = FindAttribute(name)) {
            if (!attribute->take(reading))
                return false;
        } else {
            reading.Warn("unknown-attribute", L"\"" + name + L"\" is not an attribute of a ribbon file");
        }
    }
    if (info.help.empty() && info.acceptF1)
        info.help = info.name + L".swf";
    return true;
}
