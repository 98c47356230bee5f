#include "page_print.h"

#include "print_pages.h"

#include <commdlg.h>
#include <winspool.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <vector>

namespace {

constexpr double kMargin = 15; // millimetres

struct DcDestroyer {
    void operator()(HDC dc) const { ::DeleteDC(dc); }
};
using OwnedDc = std::unique_ptr<std::remove_pointer_t<HDC>, DcDestroyer>;

/// Of this computer, and those elsewhere that its user is connected with. The names alone: no printer is opened for
/// them.
bool HasPrinter() {
    DWORD needed = 0;
    DWORD count = 0;
    const DWORD kinds = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    // Without room for an answer it succeeds where there is nothing to answer.
    return !::EnumPrintersW(kinds, nullptr, 4, nullptr, 0, &needed, &count) || count > 0;
}

/// The printer's settings as the dialog begins with them: the default ones, on a sheet that lies as the page does.
void ProposeShape(PRINTDLGW& dialog, PageShape shape) {
    dialog.Flags = PD_RETURNDEFAULT | PD_NOWARNING;
    if (!::PrintDlgW(&dialog) || dialog.hDevMode == nullptr) {
        return; // there is no default printer: the dialog begins with none
    }
    if (auto* const mode = static_cast<DEVMODEW*>(::GlobalLock(dialog.hDevMode))) {
        mode->dmFields |= DM_ORIENTATION;
        mode->dmOrientation = shape == PageShape::Portrait ? DMORIENT_PORTRAIT : DMORIENT_LANDSCAPE;
        ::GlobalUnlock(dialog.hDevMode);
    }
}

PrintSheet SheetOf(HDC printer) {
    PrintSheet sheet{::GetDeviceCaps(printer, PHYSICALWIDTH),   ::GetDeviceCaps(printer, PHYSICALHEIGHT),
                     ::GetDeviceCaps(printer, PHYSICALOFFSETX), ::GetDeviceCaps(printer, PHYSICALOFFSETY),
                     ::GetDeviceCaps(printer, LOGPIXELSX),      ::GetDeviceCaps(printer, LOGPIXELSY)};
    if (sheet.width <= 0) { // no printer: the whole of it is the sheet
        sheet.width = ::GetDeviceCaps(printer, HORZRES);
        sheet.height = ::GetDeviceCaps(printer, VERTRES);
    }
    return sheet;
}

/// The picture in no more pixels than the sheet has for it: each is the mean of all that it stands for, whereas devices
/// leave out lines and parts of letters.
std::vector<std::uint32_t> Shrunk(const std::vector<std::uint32_t>& pixels, int width, int height, int newWidth,
                                  int newHeight) {
    if (newWidth == width && newHeight == height) {
        return pixels;
    }
    const auto begin = [](int at, int all, int parts) {
        return static_cast<int>(static_cast<std::int64_t>(at) * all / parts);
    };
    std::vector<std::uint32_t> shrunk;
    shrunk.reserve(static_cast<std::size_t>(newWidth) * newHeight);
    for (int row = 0; row < newHeight; ++row) {
        const int top = begin(row, height, newHeight), bottom = begin(row + 1, height, newHeight);
        for (int column = 0; column < newWidth; ++column) {
            const int left = begin(column, width, newWidth), right = begin(column + 1, width, newWidth);
            std::array<std::uint32_t, 3> sums = {};
            for (int y = top; y < bottom; ++y) {
                for (int x = left; x < right; ++x) {
                    const std::uint32_t pixel = pixels[static_cast<std::size_t>(y) * width + x];
                    for (std::size_t channel = 0; channel < sums.size(); ++channel) {
                        sums[channel] += pixel >> (8 * channel) & 0xFF;
                    }
                }
            }
            const auto count = static_cast<std::uint32_t>((bottom - top) * (right - left));
            shrunk.push_back(sums[2] / count << 16 | sums[1] / count << 8 | sums[0] / count);
        }
    }
    return shrunk;
}

} // namespace

bool DrawOnSheet(HDC printer, CBitmap& picture) { return DrawOnSheet(printer, picture, SheetOf(printer)); }

bool DrawOnSheet(HDC printer, CBitmap& picture, const PrintSheet& sheet) {
    BITMAP description = {};
    picture.GetBitmap(&description);
    const WindowBox place = PlaceOnSheet(sheet, kMargin, description.bmWidth, description.bmHeight);
    if (place.right <= place.left) {
        return false;
    }
    // Printers take pixels, not bitmaps of the screen's kind.
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, description.bmWidth, -description.bmHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(description.bmWidth) * description.bmHeight);
    const CClientDC screen(nullptr);
    if (::GetDIBits(screen.GetSafeHdc(), static_cast<HBITMAP>(picture.GetSafeHandle()), 0,
                    static_cast<UINT>(description.bmHeight), pixels.data(), &info, DIB_RGB_COLORS) == 0) {
        return false;
    }
    const int width = std::min<int>(place.right - place.left, description.bmWidth);
    const int height = std::min<int>(place.bottom - place.top, description.bmHeight);
    pixels = Shrunk(pixels, description.bmWidth, description.bmHeight, width, height);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    ::SetStretchBltMode(printer, HALFTONE);
    ::SetBrushOrgEx(printer, 0, 0, nullptr);
    return ::StretchDIBits(printer, place.left, place.top, place.right - place.left, place.bottom - place.top, 0, 0,
                           width, height, pixels.data(), &info, DIB_RGB_COLORS, SRCCOPY) > 0;
}

namespace {

/// The pages that were chosen, one after the other; false: the printer refused one.
bool PrintAll(HDC printer, const PrintPages& pages, int first, int last) {
    for (int page = first; page <= last; ++page) {
        if (::StartPage(printer) <= 0 || !pages.Draw(page, printer, SheetOf(printer)) || ::EndPage(printer) <= 0) {
            return false;
        }
    }
    return true;
}

} // namespace

PrintOutcome Print(HWND owner, const PrintPages& pages, const std::wstring& title) {
    if (!HasPrinter()) {
        return PrintOutcome::NoPrinter;
    }
    PRINTDLGW dialog = {};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    ProposeShape(dialog, pages.Shape());
    dialog.Flags = PD_RETURNDC | PD_NOSELECTION | PD_USEDEVMODECOPIESANDCOLLATE | PD_NOWARNING;
    dialog.nMinPage = dialog.nFromPage = 1;
    dialog.nMaxPage = dialog.nToPage = static_cast<WORD>(pages.Count());
    const BOOL isChosen = ::PrintDlgW(&dialog);
    const DWORD error = isChosen ? 0 : ::CommDlgExtendedError();
    ::GlobalFree(dialog.hDevMode);
    ::GlobalFree(dialog.hDevNames);
    if (!isChosen) {
        return error == 0 ? PrintOutcome::Cancelled : PrintOutcome::Failed;
    }
    const OwnedDc printer(dialog.hDC);
    DOCINFOW document = {};
    document.cbSize = sizeof document;
    document.lpszDocName = title.c_str();
    if (!printer || ::StartDocW(printer.get(), &document) <= 0) {
        return PrintOutcome::Failed;
    }
    const bool isPart = (dialog.Flags & PD_PAGENUMS) != 0;
    if (PrintAll(printer.get(), pages, isPart ? dialog.nFromPage - 1 : 0,
                 isPart ? dialog.nToPage - 1 : pages.Count() - 1) &&
        ::EndDoc(printer.get()) > 0) {
        return PrintOutcome::Printed;
    }
    ::AbortDoc(printer.get());
    return PrintOutcome::Failed;
}
