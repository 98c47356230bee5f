#include "config/menu_attributes.h"

#include "config/shortcut_text.h"
#include "varnhold/letter_case.h"

#include <varnhold/language.h>
#include <varnhold/strings.h>

#include <stdexcept>

namespace {

constexpr std::string_view kSeparatorName = "SEPARATOR";

struct Attribute {
    const varnhold::XmlCursor& element;
    MenuInfo& info;
    const CTranslationSection& translations;
    const FileDiagnostics& diagnostics;
    const varnhold::XmlAttributeView* written;
    /// The keyword read so far, as it stands in the file.
    std::string_view keyword;

    std::string_view Value() const { return written->value; }
    void Warn(std::string_view code, std::wstring text) const {
        if (diagnostics.IsListening()) {
            diagnostics.Warn(element.GetAttributePosition(*written), code, std::move(text));
        }
    }
};

/// False: the rest of the element must not be read.
using Taker = bool (*)(Attribute& attribute);

template <std::wstring MenuInfo::*field>
bool TakeText(Attribute& attribute) {
    string2wstring(attribute.Value(), attribute.info.*field);
    return true;
}

bool TakeKeyword(Attribute& attribute) {
    attribute.keyword = attribute.Value();
    return TakeText<&MenuInfo::strKeyword>(attribute);
}

template <std::wstring MenuInfo::*field, int number>
bool TakeTranslation(Attribute& attribute) {
    if (attribute.keyword.empty()) {
        attribute.Warn("text-before-keyword", L"the text is looked up under the keyword, which must stand before it");
    }
    attribute.translations.Translate(attribute.keyword, number, attribute.info.*field);
    return true;
}

bool TakeMenuName(Attribute& attribute) {
    if (varnhold::EqualsIgnoringCase(attribute.Value(), kSeparatorName)) {
        attribute.info.bSeparator = true;
        return false;
    }
    return TakeTranslation<&MenuInfo::strName, -1>(attribute);
}

bool TakeHotKey(Attribute& attribute) {
    TakeText<&MenuInfo::strHotKey>(attribute);
    if (attribute.diagnostics.IsListening() && !attribute.Value().empty()) {
        try {
            if (ReadShortcutText(attribute.info.strHotKey).character == 0) {
                attribute.Warn("shortcut-without-key", L"the shortcut names no key and is left out");
            }
        } catch (const std::out_of_range&) {
            attribute.Warn("shortcut-without-key",
                           L"nothing stands where the shortcut's key belongs; loading ends here");
        }
    }
    return true;
}

struct KnownAttribute {
    std::string_view name;
    Taker take;
};

constexpr KnownAttribute kAttributes[] = {
    {"KEYWORD", TakeKeyword},
    {"MENUNAME", TakeMenuName},
    {"SHORTKEY", TakeText<&MenuInfo::strShortKey>},
    {"HOTKEY", TakeHotKey},
    {"TOOLTIP", TakeTranslation<&MenuInfo::strToolTip, 0>},
    {"CMD", TakeText<&MenuInfo::strCmd>},
    {"Param", TakeText<&MenuInfo::strParam>},
    {"PicPath", TakeText<&MenuInfo::strPicPath>},
};

Taker TakerOf(std::string_view name) {
    for (const KnownAttribute& known : kAttributes) {
        if (varnhold::EqualsIgnoringCase(known.name, name)) {
            return known.take;
        }
    }
    return nullptr;
}

} // namespace

bool ReadMenuInfo(varnhold::XmlCursor& element, MenuInfo& info, const CTranslationSection& translations,
                  const FileDiagnostics& diagnostics) {
    const std::span<const varnhold::XmlAttributeView> read = element.ReadAttributes();
    if (read.empty()) {
        return false;
    }
    info.bSeparator = false;
    Attribute attribute{element, info, translations, diagnostics, nullptr, {}};
    for (const varnhold::XmlAttributeView& written : read) {
        attribute.written = &written;
        const Taker take = TakerOf(written.name);
        if (!take) {
            if (diagnostics.IsListening()) {
                attribute.Warn("unknown-attribute",
                               L"\"" + string2wstring(written.name) + L"\" is not an attribute of a menu file");
            }
        } else if (!take(attribute)) {
            return true;
        }
    }
    info.strText = info.strName;
    if (!info.strShortKey.empty()) {
        info.strText += L"(&" + info.strShortKey + L")";
    }
    return true;
}
