#include "ribbon_model.h"

#include "config/element_kind.h"
#include "config/ribbon_file.h"

#include <varnhold/strings.h>

#include <algorithm>

namespace {

using nlohmann::ordered_json;

std::string Utf8(std::wstring_view text) { return wstring2String(text); }

/// What configured buttons have as their description.
const std::wstring kF1Hint = L"按F1键获得此功能视频";

struct KindClass {
    ElementKind kind;
    const char* className;
};
constexpr KindClass kClasses[] = {
    {ElementKind::Button, "CMFCRibbonUNIcoButton"},
    {ElementKind::Slider, "CMFCRibbonSlider"},
    {ElementKind::Label, "CMFCRibbonLabel"},
    {ElementKind::Edit, "CMFCRibbonEdit"},
    {ElementKind::CheckCombo, "CMFCRibbonCheckComb"},
    {ElementKind::MultiCombo, "CMFCRibbonMultiCombo"},
    {ElementKind::LightCombo, "CMFCRibbonVesMultiCombo"},
};

ordered_json MakeElement(const char* className, std::uint32_t id, std::wstring_view text, std::wstring_view toolTip,
                         std::wstring_view description) {
    return {{"class", className},
            {"id", id},
            {"text", Utf8(text)},
            {"tooltip", Utf8(toolTip)},
            {"description", Utf8(description)}};
}

/// A text without the marks of its letters: of two "&" one is left.
std::wstring WithoutMarks(std::wstring_view text) {
    std::wstring plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'&' && (++i == text.size())) {
            break;
        }
        plain += text[i];
    }
    return plain;
}

/// Where there is none, the text stands in for it, but not with a slider. A label has none of its own, and calls
/// nothing by its letters.
std::wstring ToolTipOf(ElementKind kind, const RibbonTexts& info, std::wstring_view text) {
    if (kind == ElementKind::Label) {
        return std::wstring(text);
    }
    const bool isOwn = kind == ElementKind::Slider || !info.tooltip.empty();
    return isOwn ? std::wstring(info.tooltip) : WithoutMarks(text);
}

bool MayStandInQuickAccess(std::wstring_view type) {
    const ElementKind kind = KindOfElement(type);
    return kind != ElementKind::Label && kind != ElementKind::Edit && kind != ElementKind::Slider;
}

/// Null for a kind that is not built by itself.
ordered_json MakeControl(const RibbonTexts& info, std::uint32_t id) {
    constexpr int smallButton = 16;
    const ElementKind kind = KindOfElement(info.type);
    const std::wstring_view hint = info.acceptF1 && kind == ElementKind::Button ? std::wstring_view(kF1Hint) : L"";
    for (const KindClass& known : kClasses) {
        if (known.kind != kind) {
            continue;
        }
        const bool isSmall = kind == ElementKind::Button && info.size == smallButton;
        // What stands in an edit is no text of the element.
        const std::wstring_view text = kind == ElementKind::Edit ? std::wstring_view() : info.name;
        return MakeElement(isSmall ? "CMFCRibbonSmallButton" : known.className, id, text, ToolTipOf(kind, info, text),
                           hint);
    }
    return nullptr;
}

ordered_json DumpRecord(const RibbonTexts& record) {
    ordered_json values = ordered_json::array();
    for (const std::wstring_view value : record.valueGroup) {
        values.push_back(Utf8(value));
    }
    return {{"groupBefore", record.groupBefore},
            {"name", Utf8(record.name)},
            {"type", Utf8(record.type)},
            {"tooltip", Utf8(record.tooltip)},
            {"keyword", Utf8(record.keyword)},
            {"picPath", Utf8(record.picPath)},
            {"picDisPath", Utf8(record.picDisPath)},
            {"size", record.size},
            {"cmd", Utf8(record.cmd)},
            {"param", Utf8(record.param)},
            {"help", Utf8(record.help)},
            {"acceptF1", record.acceptF1},
            {"cateTab", record.cateTab},
            {"valueGroup", std::move(values)},
            {"width", record.width}};
}

} // namespace

void RibbonModel::Load(const std::wstring& path, const std::wstring& fullPath) {
    m_lists.push_back(Json::array());
    RibbonRecords rows;
    if (!LoadRibbonFile(fullPath, rows, DroppedDiagnostics())) {
        return;
    }
    std::vector<std::wstring> quickAccess;
    for (const RibbonRecord& row : rows.top) {
        switch (KindOfRow(row.info.keyword)) {
        case RibbonRowKind::QuickAccess:
            for (const RibbonRecord& item : row.children) {
                quickAccess.emplace_back(item.info.keyword);
            }
            break;
        case RibbonRowKind::StatusButtons: {
            Json records = Json::array();
            for (const RibbonRecord& button : row.children) {
                records.push_back(DumpRecord(button.info));
            }
            m_statusExtras[path] = {
                {"path", Utf8(path)}, {"row", Utf8(row.info.keyword)}, {"records", std::move(records)}};
            break;
        }
        case RibbonRowKind::Categories:
            for (const RibbonRecord& category : row.children) {
                m_categories.push_back(Category(category));
            }
            break;
        }
    }
    ShowQuickAccess(quickAccess);
}

void RibbonModel::ShowQuickAccess(const std::vector<std::wstring>& keywords) {
    Json ids = Json::array();
    bool isAsked = false;
    for (const std::wstring& keyword : keywords) {
        if (const std::uint32_t* const id = m_commands.Find(keyword)) {
            isAsked = true;
            // A command stands there once.
            if (m_forQuickAccess.contains(*id) && std::ranges::find(ids, Json(*id)) == ids.end()) {
                ids.push_back(*id);
            }
        }
    }
    if (isAsked) {
        m_quickAccess = std::move(ids);
    }
}

std::uint32_t RibbonModel::Obtain(const RibbonTexts& info, bool offersHelp) {
    const auto text = [](std::wstring_view view) { return std::wstring(view); };
    return m_commands.Obtain(
        text(info.name), {text(info.keyword), text(info.tooltip), text(info.cmd), text(info.param), text(info.help)},
        offersHelp);
}

nlohmann::ordered_json RibbonModel::Category(const RibbonRecord& category) {
    m_lists.back().push_back(Utf8(category.info.cmd));
    Json result = {{"name", Utf8(category.info.name)},
                   {"class", category.info.cateTab ? "CMFCRibbonCategory" : "CMFCRibbonCategoryEx"}};
    if (!category.info.cateTab) {
        result["id"] = Obtain(category.info, false);
    }
    Json panels = Json::array();
    for (const RibbonRecord& panel : category.children) {
        panels.push_back(Panel(panel));
    }
    result["panels"] = std::move(panels);
    return result;
}

nlohmann::ordered_json RibbonModel::Panel(const RibbonRecord& panel) {
    m_lists.back().push_back(Utf8(panel.info.cmd));
    Json elements = Json::array();
    for (const RibbonRecord& element : panel.children) {
        AddElement(element, elements);
    }
    return {{"name", Utf8(panel.info.name)}, {"elements", std::move(elements)}};
}

void RibbonModel::AddElement(const RibbonRecord& element, Json& elements) {
    m_lists.back().push_back(Utf8(element.info.cmd));
    const std::uint32_t id = Obtain(element.info, true);
    // An empty panel takes no separator.
    if (element.info.groupBefore && !elements.empty()) {
        elements.push_back(MakeElement("CMFCRibbonSeparator", 0, {}, {}, {}));
    }
    Json built = element.children.empty() ? Control(element.info, id) : Element(element, id);
    if (!built.is_null()) {
        elements.push_back(std::move(built));
    }
}

nlohmann::ordered_json RibbonModel::Control(const RibbonTexts& info, std::uint32_t id) {
    Json control = MakeControl(info, id);
    if (!control.is_null() && MayStandInQuickAccess(info.type)) {
        m_forQuickAccess.insert(id);
    }
    return control;
}

nlohmann::ordered_json RibbonModel::Element(const RibbonRecord& element, std::uint32_t id) {
    const ElementKind kind = KindOfElement(element.info.type);
    if (kind != ElementKind::Button && kind != ElementKind::Group) {
        return nullptr;
    }
    Json result =
        kind == ElementKind::Group ? MakeElement("CMFCRibbonButtonsGroup", 0, {}, {}, {}) : Control(element.info, id);
    Json children = Json::array();
    for (const RibbonRecord& subItem : element.children) {
        m_lists.back().push_back(Utf8(subItem.info.cmd));
        Json built = Control(subItem.info, Obtain(subItem.info, true));
        if (!built.is_null()) {
            children.push_back(std::move(built));
        }
    }
    if (!children.empty()) {
        result["children"] = std::move(children);
    }
    return result;
}

nlohmann::ordered_json RibbonModel::Dump() const {
    return {{"categories", m_categories}, {"quickAccess", m_quickAccess}, {"commands", m_lists}};
}

nlohmann::ordered_json RibbonModel::DumpStatusExtras() const {
    Json extras = Json::array();
    for (const auto& [path, extra] : m_statusExtras) {
        extras.push_back(extra);
    }
    return extras;
}
