#include "toolbar_model.h"

#include "config/check/icon_check.h"
#include "config/toolbar_file.h"

#include <varnhold/strings.h>

namespace {

using nlohmann::ordered_json;

constexpr int kIconSide = 16;

/// Null for a kind that is no button.
const char* ClassOf(ToolBarItemKind kind) {
    switch (kind) {
    case ToolBarItemKind::Button:
        return "CMFCToolBarButton";
    case ToolBarItemKind::CheckCombo:
        return "CMFCCheckCombo";
    case ToolBarItemKind::MultiCombo:
        return "CMFCMultiCombo";
    case ToolBarItemKind::MultiCombo2:
        return "CMFCMultiCombo2";
    case ToolBarItemKind::Separator:
    case ToolBarItemKind::Unknown:
        break;
    }
    return nullptr;
}

} // namespace

class ToolBarModel::Reading : public ToolBarFileVisitor {
public:
    explicit Reading(ToolBarModel& model) : m_model(model) {}

    void VisitGroup(const ToolBarInfo& info) override { m_group = info.strKeyword; }

    bool VisitToolBar(const ToolBarInfo& info) override {
        auto& bars = m_model.m_groups[m_group];
        bars.push_back({{"group", wstring2String(m_group)},
                        {"title", wstring2String(info.strPrompt)},
                        {"controlId", m_model.m_nextBar++},
                        {"buttons", ordered_json::array()}});
        m_bar = &bars.back();
        return true;
    }

    void VisitButton(const ToolBarInfo& info) override {
        ordered_json& buttons = (*m_bar)["buttons"];
        const ToolBarItemKind kind = ToolBarItemKindOf(info.strType);
        if (kind == ToolBarItemKind::Separator) {
            buttons.push_back({{"separator", true}});
            return;
        }
        const int image = m_model.TakeImage(info.strPicPath);
        const std::uint32_t id =
            m_model.m_commands.Obtain(info.strPrompt, {info.strKeyword, info.strToolTip, {}, {}, {}}, false);
        if (const char* const className = ClassOf(kind)) {
            // What a combo says is its chosen item.
            const bool isButton = kind == ToolBarItemKind::Button;
            buttons.push_back({{"class", className},
                               {"id", id},
                               {"text", isButton ? wstring2String(info.strPrompt) : std::string()},
                               {"image", image}});
        }
    }

private:
    ToolBarModel& m_model;
    std::wstring m_group;
    ordered_json* m_bar = nullptr;
};

void ToolBarModel::Load(const std::wstring& fullPath) {
    Reading reading(*this);
    LoadToolBarFile(fullPath, reading, DroppedDiagnostics());
}

int ToolBarModel::TakeImage(const std::wstring& picPath) {
    return !picPath.empty() && CanLoadIcon(m_files, picPath, kIconSide) ? m_nextImage++ : -1;
}

nlohmann::ordered_json ToolBarModel::Dump() const {
    ordered_json bars = ordered_json::array();
    for (const auto& [group, inGroup] : m_groups) {
        for (const ordered_json& bar : inGroup) {
            bars.push_back(bar);
        }
    }
    return bars;
}
