// The extended status bar: which elements it has for which application.
#include "ribbon_status_bar_ex.h"

#include "add_ribbon_bar.h"
#include "bars/status_bar_layout.h"
#include "elements/icon_file.h"
#include "library_context.h"
#include "menu_id_mgr.h"
#include "ribbon_icon_button.h"
#include "ribbon_label_ex.h"
#include "ribbon_slider_sync.h"

#include <afxwin.h>
#include <fx/dc_scope.h>
#include <fx/to_rect.h>
#include <varnhold/letter_case.h>

#include <algorithm>
#include <memory>

IMPLEMENT_DYNCREATE(CMFCRibbonStatusBarEx, CMFCRibbonStatusBar)

BEGIN_MESSAGE_MAP(CMFCRibbonStatusBarEx, CMFCRibbonStatusBar)
END_MESSAGE_MAP()

namespace {

using Element = CMFCRibbonBaseElement;
using ElementArray = CArray<Element*, Element*>;
using Record = CAddRibbonBar::_RibbonInfo;

constexpr wchar_t kSeparator[] = L"Separator";
constexpr wchar_t kLabel[] = L"label";
constexpr wchar_t kSlider[] = L"slider";
constexpr int kIconSide = 16;
constexpr int kSliderWidth = 50;            // of one that names none
constexpr UINT kFirstUnusedId = 0xFFFFFFFE; // no command has it; downwards

bool IsSameName(const wchar_t* one, const wchar_t* other) { return ::lstrcmpiW(one, other) == 0; }

/// Whether the button will have a picture: the file is looked at as the button does when it draws.
bool IsIconFile(const CString& path) { return FileIcon(path, kIconSide, kIconSide).Get() != nullptr; }

std::unique_ptr<Element> MakeButton(UINT id, const Record& record) {
    const CString icon = GetIconPathStr(record.picPath, kIconSide);
    const wchar_t* const text = IsIconFile(icon) ? L"" : record.name.c_str();
    auto button = std::make_unique<CMFCRibbonSmallButton>(id, text, icon, FALSE, CString(), FALSE, FALSE);
    button->SetToolTipText(record.tooltip.c_str());
    button->SetSmallMode();
    return button;
}

std::unique_ptr<Element> WithTexts(std::unique_ptr<Element> element, const Record& record) {
    element->SetText(record.name.c_str());
    element->SetToolTipText(record.tooltip.c_str());
    return element;
}

std::unique_ptr<Element> MakeElement(UINT id, const Record& record) {
    if (varnhold::EqualsIgnoringCase(record.type, kLabel)) {
        auto label = std::make_unique<CMFCRibbonLabelEx>(record.name.c_str());
        label->SetID(id);
        return WithTexts(std::move(label), record);
    }
    if (varnhold::EqualsIgnoringCase(record.type, kSlider)) {
        return WithTexts(std::make_unique<CMFCRibbonSliderSync>(id, record.width < 1 ? kSliderWidth : record.width),
                         record);
    }
    return MakeButton(id, record);
}

/// Null where the class cannot be made by its name.
std::unique_ptr<Element> CopyOf(Element& source) {
    std::unique_ptr<CObject> made(source.GetRuntimeClass()->CreateObject());
    auto* const copy = DYNAMIC_DOWNCAST(CMFCRibbonBaseElement, made.get());
    if (copy == nullptr) {
        return nullptr;
    }
    static_cast<void>(made.release());
    std::unique_ptr<Element> result(copy);
    copy->CopyFrom(source);
    copy->SetID(source.GetID());
    copy->CopyStateFrom(&source);
    auto* const slider = DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, &source);
    auto* const follower = DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, copy);
    if (slider != nullptr && follower != nullptr) {
        slider->AddLinkedSlider(follower);
    }
    return result;
}

/// 0: there is none, or the frame cannot be dragged now.
int GripWidthOf(const CWnd& bar, const CRect& client) {
    const CFrameWnd* const frame = bar.GetParentFrame();
    if ((bar.GetStyle() & SBARS_SIZEGRIP) == 0 || (frame != nullptr && frame->IsZoomed())) {
        return 0;
    }
    return std::min(::GetSystemMetrics(SM_CXVSCROLL) + 1, client.Height());
}

status::Item MeasureElement(Element& element, CDC& dc) {
    element.OnCalcTextSize(&dc);
    status::Item item;
    item.size = fx::FromSize(element.GetSize(&dc));
    item.isVisible = element.IsVisible() != FALSE;
    item.isSeparator = element.IsSeparator() != FALSE;
    item.fillsHeight = element.IsWholeRowHeight() != FALSE;
    const auto* const label = DYNAMIC_DOWNCAST(CMFCRibbonLabelEx, &element);
    item.isRight = label != nullptr && label->IsRight();
    return item;
}

void PlaceElement(Element& element, const fx::Rect& rect, bool isTold, CDC& dc) {
    element.SetRect(fx::ToRect(rect));
    if (isTold) {
        element.OnAfterChangeRect(&dc);
    }
}

} // namespace

// The window first: its messages still need the members.
CMFCRibbonStatusBarEx::~CMFCRibbonStatusBarEx() {
    if (GetSafeHwnd() != nullptr) {
        DestroyWindow();
    }
}

void CMFCRibbonStatusBarEx::CreateAllExBtns() {
    std::map<std::wstring, Element*> firstOf; // by keyword
    for (const auto& [path, application] : CAddRibbonBar::m_smStatusExBtns) {
        std::vector<Element*>& elements = m_mapAppElements[application.first];
        for (const Record& record : application.second) {
            std::unique_ptr<Element> made;
            int id = 0;
            if (varnhold::EqualsIgnoringCase(record.keyword, kSeparator)) {
                made = std::make_unique<CMFCRibbonSeparator>(FALSE);
            } else if (!CMenuIdMgr::Ins()->GetMenuId(record.keyword, id)) {
                continue;
            } else if (const auto first = firstOf.find(record.keyword); first != firstOf.end()) {
                made = CopyOf(*first->second);
            } else {
                made = MakeElement(static_cast<UINT>(id), record);
                firstOf[record.keyword] = made.get();
            }
            if (made == nullptr) {
                continue;
            }
            elements.push_back(made.get());
            AddExtendedElement(made.release(), L"", TRUE);
        }
    }
}

void CMFCRibbonStatusBarEx::SetExEleApp(const CString& app) {
    if (app.IsEmpty()) {
        return;
    }
    const auto found = CAddRibbonBar::m_smStatusExBtns.find(std::wstring(app.GetString()));
    const CString target = found != CAddRibbonBar::m_smStatusExBtns.end() ? found->second.first.c_str() : L"";
    if (m_strCurApp.IsEmpty() && m_mapAppElements.empty()) {
        CreateAllExBtns();
    }
    if (IsSameName(m_strCurApp, target)) {
        return;
    }
    for (const auto& [name, elements] : m_mapAppElements) {
        const bool isShown = IsSameName(name.c_str(), target);
        if (isShown) {
            m_strCurApp = target;
        }
        for (Element* const element : elements) {
            element->SetVisible(isShown ? TRUE : FALSE);
        }
    }
    RecalcLayout();
    if (GetSafeHwnd() != nullptr) {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
}

void CMFCRibbonStatusBarEx::SetEleWidth(int index, int width) {
    m_mapWidths[index] = width;
    m_hasNewWidths = true;
    if (GetSafeHwnd() != nullptr) {
        Invalidate();
    }
}

LRESULT CMFCRibbonStatusBarEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT && m_hasNewWidths) {
        RecalcLayout();
    }
    return CMFCRibbonStatusBar::WindowProc(message, wParam, lParam);
}

void CMFCRibbonStatusBarEx::RemoveAllEx() {
    // Elements are removed by their ids, which several may have.
    while (Element* const element = GetExElement(GetExCount() - 1)) {
        UINT unused = kFirstUnusedId;
        while (FindElement(unused) != nullptr) {
            --unused;
        }
        element->SetID(unused);
        RemoveElement(unused);
    }
}

// The bar's own ways to remove elements do not know of applications.
void CMFCRibbonStatusBarEx::OnElementDestroyed(CMFCRibbonBaseElement* pElement) {
    for (auto& [name, elements] : m_mapAppElements) {
        std::erase(elements, pElement);
    }
    CMFCRibbonStatusBar::OnElementDestroyed(pElement);
}

// ---- layout

void CMFCRibbonStatusBarEx::RecalcLayout() {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    m_hasNewWidths = false;
    CClientDC dc(this);
    const CFont* const own = GetFont();
    const fx::DcSelection font(dc, own != nullptr ? own->GetSafeHandle() : nullptr);
    CRect client;
    GetClientRect(client);
    status::Shape shape;
    shape.client = {client.Width(), client.Height()};
    shape.gripWidth = GripWidthOf(*this, client);
    shape.showsInformation = IsInformationMode() != FALSE;
    // The platform places its own parts and the elements: once for each size, as its layout takes as long as this one.
    if (const FrameParts parts = {client.Size(), shape.gripWidth, IsBottomFrame()}; parts != m_frameParts) {
        m_frameParts = parts;
        CMFCRibbonStatusBar::RecalcLayout();
    }
    for (int index = 0; index < GetCount(); ++index) {
        shape.elements.push_back(MeasureElement(*GetElement(index), dc));
        shape.elements.back().fixedWidth = m_mapWidths[index];
    }
    for (int index = 0; index < GetExCount(); ++index) {
        shape.extended.push_back(MeasureElement(*GetExElement(index), dc));
    }

    const status::Places places = status::Arrange(shape);
    m_informationPlace = fx::ToRect(places.information);
    m_space = shape.showsInformation ? m_space : places.space;
    for (int index = GetExCount(); index-- > 0;) {
        PlaceElement(*GetExElement(index), places.extended[static_cast<std::size_t>(index)], true, dc);
    }
    for (int index = 0; index < GetCount(); ++index) {
        const auto place = static_cast<std::size_t>(index);
        PlaceElement(*GetElement(index), places.elements[place], !places.isSkipped[place], dc);
    }
}

void CMFCRibbonStatusBarEx::OnDrawInformation(CDC* dc, CString& information, CRect /*rect*/) {
    CMFCRibbonStatusBar::OnDrawInformation(dc, information, m_informationPlace);
}

CMFCRibbonBaseElement* CMFCRibbonStatusBarEx::HitTest(CPoint point, int bCheckActiveCategory, int bCheckPanelCaption) {
    return CMFCRibbonStatusBar::HitTest(point, bCheckActiveCategory, bCheckPanelCaption);
}

void CMFCRibbonStatusBarEx::OnPaneContextMenu(CWnd* /*pWnd*/, CPoint /*point*/) {}
