// The image editor as a dialog: its fields, its tools, what OK does.
#include "afximageeditordialog.h"

#include "fx/to_rect.h"
#include "fx/window_dc.h"
#include "toolbar/customize_texts.h"
#include "toolbar/dark_dialog.h"
#include "toolbar/image_editor.h"
#include "visual/image_source.h"
#include "window/dialog_template.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

using toolbar::DrawingTool;
using toolbar::ImageDrawing;
using toolbar::PixelImage;

namespace {

enum Item : int { kPicture = 1001, kPalette, kPreview, kUndo, kFirstTool = 1010, kLastTool = kFirstTool + 6 };

constexpr DWORD kField = SS_NOTIFY;
constexpr DWORD kTool = BS_AUTORADIOBUTTON;

// The tools stand in the order of DrawingTool.
constexpr fx::DialogItem kItems[] = {
    {kPicture, 0, 7, 7, 150, 150, fx::DialogControl::Static, kField},
    {kPalette, 0, 7, 162, 150, 42, fx::DialogControl::Static, kField},
    {kFirstTool, toolbar::kPenText, 166, 7, 78, 12, fx::DialogControl::Button, kTool | WS_GROUP | WS_TABSTOP},
    {kFirstTool + 1, toolbar::kFillText, 166, 21, 78, 12, fx::DialogControl::Button, kTool},
    {kFirstTool + 2, toolbar::kLineText, 166, 35, 78, 12, fx::DialogControl::Button, kTool},
    {kFirstTool + 3, toolbar::kRectangleText, 166, 49, 78, 12, fx::DialogControl::Button, kTool},
    {kFirstTool + 4, toolbar::kEllipseText, 166, 63, 78, 12, fx::DialogControl::Button, kTool},
    {kFirstTool + 5, toolbar::kPickerText, 166, 77, 78, 12, fx::DialogControl::Button, kTool},
    {kLastTool, toolbar::kEraserText, 166, 91, 78, 12, fx::DialogControl::Button, kTool},
    {kUndo, toolbar::kUndoText, 166, 110, 78, 14, fx::DialogControl::Button, BS_PUSHBUTTON | WS_GROUP | WS_TABSTOP},
    {-1, toolbar::kPreviewText, 166, 131, 78, 8},
    {kPreview, 0, 166, 141, 34, 34, fx::DialogControl::Static, kField},
    {IDOK, toolbar::kOkText, 166, 190, 37, 14, fx::DialogControl::Button, BS_DEFPUSHBUTTON | WS_TABSTOP},
    {IDCANCEL, toolbar::kCancelText, 207, 190, 37, 14, fx::DialogControl::Button, BS_PUSHBUTTON | WS_TABSTOP},
};

constexpr fx::DialogShape kShape{251, 211, DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU,
                                 toolbar::kEditImageTitle};

constexpr PixelImage::Pixel kAlpha = 0xFF000000;
constexpr int kSixteenColorBits = 4;

/// Empty where there is no such bitmap. Without alpha every pixel is opaque in it.
ImageDrawing ReadDrawing(HBITMAP bitmap) {
    const HBITMAP copy = visual::CopyBitmap32(bitmap);
    if (copy == nullptr) {
        return {PixelImage(), false};
    }
    const visual::PixelView view = visual::ViewOf(copy);
    std::vector<PixelImage::Pixel> pixels(view.bits, view.bits + static_cast<std::ptrdiff_t>(view.width) * view.height);
    const fx::Size size{view.width, view.height};
    ::DeleteObject(copy);
    const bool hasAlpha = std::ranges::any_of(pixels, [](PixelImage::Pixel pixel) { return (pixel & kAlpha) != 0; });
    if (!hasAlpha) {
        std::ranges::for_each(pixels, [](PixelImage::Pixel& pixel) { pixel |= kAlpha; });
    }
    return {PixelImage(size, std::move(pixels)), hasAlpha};
}

void WriteDrawing(const ImageDrawing& drawing, HBITMAP bitmap) {
    const fx::Size size = drawing.Image().Size();
    std::vector<PixelImage::Pixel> pixels = drawing.Image().Pixels();
    if (!drawing.HasAlpha()) {
        std::ranges::for_each(pixels, [](PixelImage::Pixel& pixel) { pixel &= ~kAlpha; });
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = -size.height; // from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const CClientDC dc(nullptr);
    ::SetDIBits(dc.m_hDC, bitmap, 0, static_cast<UINT>(size.height), pixels.data(), &info, DIB_RGB_COLORS);
}

int BitsOf(HBITMAP bitmap) {
    BITMAP info{};
    ::GetObjectW(bitmap, sizeof(info), &info);
    return info.bmBitsPixel * info.bmPlanes;
}

} // namespace

namespace toolbar {

/// The dialog's fields and what they show.
class ImageEditor {
public:
    ImageEditor(HBITMAP bitmap, int bits)
        : m_drawing(ReadDrawing(bitmap)), m_colors(PaletteColors(bits <= kSixteenColorBits)) {}

    std::vector<DWORD> dialogTemplate = fx::MakeDialogTemplate(kShape, kItems);

    ImageDrawing& Drawing() { return m_drawing; }
    void TakeOver(CWnd& dialog) {
        m_dialog = &dialog;
        TakePicture();
        m_palette.SubclassDlgItem(kPalette, &dialog);
        m_palette.draw = [this](CDC& dc, const CRect& client) { DrawPalette(dc, client, m_colors, m_drawing.Color()); };
        m_palette.press = [this](CPoint point) { PickAt(point); };
        m_preview.SubclassDlgItem(kPreview, &dialog);
        m_preview.draw = [this](CDC& dc, const CRect& client) { DrawInOwnSize(dc, client, m_drawing.Image()); };
        Show();
    }
    /// After a change.
    void Show() {
        for (DrawnField* const field : {&m_picture, &m_palette, &m_preview}) {
            field->Invalidate(FALSE);
        }
        const HWND undo = ::GetDlgItem(m_dialog->m_hWnd, kUndo);
        if (!m_drawing.CanUndo() && ::GetFocus() == undo) {
            ::SetFocus(::GetDlgItem(m_dialog->m_hWnd, IDOK)); // else the keyboard would lead nowhere
        }
        ::EnableWindow(undo, m_drawing.CanUndo());
    }

private:
    void TakePicture() {
        m_picture.SubclassDlgItem(kPicture, m_dialog);
        m_picture.draw = [this](CDC& dc, const CRect& client) { DrawEnlarged(dc, client, m_drawing.Image()); };
        m_picture.press = [this](CPoint point) {
            m_drawing.Begin(PixelAt(point));
            Show();
        };
        m_picture.move = [this](CPoint point) {
            m_drawing.MoveTo(PixelAt(point));
            Show();
        };
        m_picture.release = [this] { m_drawing.End(); };
        m_picture.cancel = [this] {
            m_drawing.Cancel();
            Show();
        };
    }
    fx::Point PixelAt(CPoint point) {
        CRect client;
        m_picture.GetClientRect(&client);
        return PixelGrid(m_drawing.Image().Size(), {client.Width(), client.Height()}).NearestTo(fx::FromPoint(point));
    }
    void PickAt(CPoint point) {
        CRect client;
        m_palette.GetClientRect(&client);
        const auto count = static_cast<int>(m_colors.size());
        for (int index = 0; index < count; ++index) {
            if (SwatchOf(client, index, count).PtInRect(point)) {
                m_drawing.SetColor(m_colors[static_cast<std::size_t>(index)]);
                Show();
            }
        }
    }

    ImageDrawing m_drawing;
    std::vector<COLORREF> m_colors;
    DrawnField m_picture;
    DrawnField m_palette;
    DrawnField m_preview;
    CWnd* m_dialog = nullptr;
};

} // namespace toolbar

BEGIN_MESSAGE_MAP(CMFCImageEditorDialog, CDialogEx)
ON_CONTROL_RANGE(BN_CLICKED, kFirstTool, kLastTool, &CMFCImageEditorDialog::OnTool)
ON_BN_CLICKED(kUndo, &CMFCImageEditorDialog::OnUndo)
END_MESSAGE_MAP()

CMFCImageEditorDialog::CMFCImageEditorDialog(CBitmap* pBitmap, CWnd* pParent, int nBitsPixel) : m_pBitmap(pBitmap) {
    ENSURE_ARG(pBitmap != nullptr);
    const auto bitmap = static_cast<HBITMAP>(pBitmap->GetSafeHandle());
    m_editor = std::make_unique<toolbar::ImageEditor>(bitmap, nBitsPixel >= 0 ? nBitsPixel : BitsOf(bitmap));
    InitModalIndirect(fx::TemplateIn(m_editor->dialogTemplate), pParent);
}

CMFCImageEditorDialog::~CMFCImageEditorDialog() { DestroyWindow(); }

BOOL CMFCImageEditorDialog::OnInitDialog() {
    const BOOL result = CDialogEx::OnInitDialog();
    toolbar::DressDialog(m_hWnd);
    m_editor->TakeOver(*this);
    CheckRadioButton(kFirstTool, kLastTool, kFirstTool);
    return result;
}

void CMFCImageEditorDialog::OnTool(UINT nID) {
    m_editor->Drawing().SetTool(static_cast<DrawingTool>(static_cast<int>(nID) - kFirstTool));
}

void CMFCImageEditorDialog::OnUndo() {
    m_editor->Drawing().Undo();
    m_editor->Show();
}

void CMFCImageEditorDialog::OnOK() {
    WriteDrawing(m_editor->Drawing(), static_cast<HBITMAP>(m_pBitmap->GetSafeHandle()));
    CDialogEx::OnOK();
}
