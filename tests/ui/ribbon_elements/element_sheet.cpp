// Draws every ribbon element in every state into a bitmap file, for people to look at.
//   ribbon_element_sheet OUT.bmp [PERCENT]
#include <afxcontrolbars.h>
#include <afxglobals.h>
#include <afxribbonbutton.h>
#include <afxribbonbuttonsgroup.h>
#include <afxribboncheckbox.h>
#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>
#include <afxvisualmanageroffice2007.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

using Element = std::unique_ptr<CMFCRibbonBaseElement>;

struct Column {
    std::function<Element()> make;
};

struct State {
    const wchar_t* name;
    std::function<void(CMFCRibbonBaseElement&)> apply;
};

HICON Icon() { return ::LoadIconW(nullptr, MAKEINTRESOURCEW(32516 /* information */)); }

enum class Menu { None, Whole, Split };

Element Button(const wchar_t* text, int mode, Menu menu) {
    auto button = std::make_unique<CMFCRibbonButton>(1, text, Icon());
    if (mode > 0) {
        button->SetIntermediateMode();
    }
    if (mode > 1) {
        button->SetCompactMode();
    }
    if (menu != Menu::None) {
        button->AddSubItem(new CMFCRibbonButton(2, L"Sub"));
    }
    button->SetDefaultCommand(menu == Menu::Split);
    return button;
}

Element Group() {
    auto group = std::make_unique<CMFCRibbonButtonsGroup>();
    for (int i = 0; i < 4; ++i) {
        group->AddButton(new CMFCRibbonButton(static_cast<UINT>(10 + i), L"", Icon()));
    }
    return group;
}

Element Slider(bool hasButtons) {
    auto slider = std::make_unique<CMFCRibbonSlider>(5, 100);
    slider->SetPos(40);
    slider->SetZoomButtons(hasButtons);
    return slider;
}

Element Edit(const wchar_t* label) {
    auto edit = std::make_unique<CMFCRibbonEdit>(6, 70, label);
    edit->SetEditText(L"Text 12");
    return edit;
}

const Column kColumns[] = {
    {[] { return Button(L"Paste", 0, Menu::None); }},
    {[] { return Button(L"Page Setup", 0, Menu::None); }},
    {[] { return Button(L"Paste", 0, Menu::Split); }},
    {[] { return Button(L"Insert a new page", 0, Menu::Whole); }},
    {[] { return Button(L"\x53E6\x5B58\x4E3A\x56FE\x7247", 0, Menu::Split); }},
    {[] { return Button(L"Format", 1, Menu::None); }},
    {[] { return Button(L"Format", 1, Menu::Whole); }},
    {[] { return Button(L"\x683C\x5F0F\x5237", 1, Menu::Split); }},
    {[] { return Button(L"Format", 2, Menu::None); }},
    {[] { return Button(L"Format", 2, Menu::Split); }},
    {[] { return Group(); }},
    {[] { return Element(std::make_unique<CMFCRibbonCheckBox>(3, L"Grid lines")); }},
    {[] { return Edit(L"Name:"); }},
    {[] { return Slider(true); }},
    {[] { return Slider(false); }},
    {[] { return Element(std::make_unique<CMFCRibbonLabel>(L"A label")); }},
    {[] { return Element(std::make_unique<CMFCRibbonSeparator>()); }},
};

CMFCRibbonBaseElement& Inner(CMFCRibbonBaseElement& element) {
    auto* group = dynamic_cast<CMFCRibbonButtonsGroup*>(&element);
    return group != nullptr ? *group->GetButton(1) : element;
}

const State kStates[] = {
    {L"normal", [](CMFCRibbonBaseElement&) {}},
    {L"hot",
     [](CMFCRibbonBaseElement& e) {
         Inner(e).SetHighlighted(TRUE);
         Inner(e).OnMouseMove(CPoint(Inner(e).GetRect().left + 4, Inner(e).GetRect().top + 8));
     }},
    {L"hot menu",
     [](CMFCRibbonBaseElement& e) {
         Inner(e).SetHighlighted(TRUE);
         Inner(e).OnMouseMove(Inner(e).GetRect().BottomRight() - CSize(4, 8));
     }},
    {L"pressed",
     [](CMFCRibbonBaseElement& e) {
         Inner(e).SetHighlighted(TRUE);
         Inner(e).SetPressed(TRUE);
     }},
    {L"checked", [](CMFCRibbonBaseElement& e) { Inner(e).SetChecked(TRUE); }},
    {L"checked, hot",
     [](CMFCRibbonBaseElement& e) {
         Inner(e).SetChecked(TRUE);
         Inner(e).SetHighlighted(TRUE);
     }},
    {L"disabled",
     [](CMFCRibbonBaseElement& e) {
         e.SetDisabled(TRUE);
         Inner(e).SetDisabled(TRUE);
     }},
    {L"disabled, checked",
     [](CMFCRibbonBaseElement& e) {
         Inner(e).SetChecked(TRUE);
         Inner(e).SetDisabled(TRUE);
     }},
};

// Draws one row for each state and answers the sheet's size; a null context only measures.
CSize DrawSheet(CDC* pDC) {
    const int gap = afxGlobalData.ScalePixels(10);
    const int rowHeight = afxGlobalData.ScalePixels(82);
    int y = gap;
    int right = 0;
    for (const State& state : kStates) {
        int x = gap;
        if (pDC != nullptr) {
            pDC->SetTextColor(RGB(90, 90, 90));
            pDC->TextOut(x, y + gap, state.name);
            pDC->SetTextColor(RGB(30, 57, 91));
        }
        x += afxGlobalData.ScalePixels(100);
        for (const Column& column : kColumns) {
            const Element element = column.make();
            element->OnCalcTextSize(pDC);
            element->SetRect(CRect(CPoint(x, y), element->GetSize(pDC)));
            element->OnAfterChangeRect(pDC);
            state.apply(*element);
            if (pDC != nullptr) {
                element->OnDraw(pDC);
            }
            x = element->GetRect().right + gap;
        }
        right = std::max(right, x);
        y += rowHeight;
    }
    return {right, y};
}

bool SaveBitmap(const wchar_t* path, const BITMAPINFOHEADER& header, const void* bits) {
    FILE* file = _wfopen(path, L"wb");
    if (file == nullptr) {
        return false;
    }
    const DWORD bytes = static_cast<DWORD>(header.biWidth) * 4u * static_cast<DWORD>(-header.biHeight);
    BITMAPFILEHEADER head{};
    head.bfType = 0x4D42;
    head.bfOffBits = sizeof(head) + sizeof(header);
    head.bfSize = head.bfOffBits + bytes;
    const bool isWritten = std::fwrite(&head, sizeof(head), 1, file) == 1 &&
                           std::fwrite(&header, sizeof(header), 1, file) == 1 && std::fwrite(bits, bytes, 1, file) == 1;
    return std::fclose(file) == 0 && isWritten;
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 2) {
        return 2;
    }
    CWinApp application;
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOW)) {
        return 1;
    }
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    if (count > 2) {
        afxGlobalData.SetRibbonImageScale(_wtoi(arguments[2]) / 100.0);
    }

    const CSize size = DrawSheet(nullptr);
    const BITMAPINFOHEADER header{sizeof(BITMAPINFOHEADER), size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    HBITMAP bitmap =
        ::CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&header), DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ old = ::SelectObject(dc.GetSafeHdc(), bitmap);
    HGDIOBJ oldFont = ::SelectObject(dc.GetSafeHdc(), afxGlobalData.fontRegular.GetSafeHandle());
    dc.FillSolidRect(CRect(CPoint(0, 0), size), RGB(216, 228, 242));
    dc.SetBkMode(TRANSPARENT);
    DrawSheet(&dc);
    ::GdiFlush();
    const bool isSaved = SaveBitmap(arguments[1], header, bits);
    ::SelectObject(dc.GetSafeHdc(), oldFont);
    ::SelectObject(dc.GetSafeHdc(), old);
    ::DeleteObject(bitmap);
    return isSaved ? 0 : 1;
}
