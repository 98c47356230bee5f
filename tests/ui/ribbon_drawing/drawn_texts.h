#pragma once

#include <afxwin.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

/// A text that was drawn. Rectangles are in the co-ordinates of the drawing.
struct DrawnText {
    std::wstring text;
    CRect place; // of all its letters, whether they are shown or not
    CRect shown; // what it is cut off at; as `place` where nothing cuts it off
    bool IsWhole() const { return CRect(shown & place) == place; }
};

inline std::ostream& operator<<(std::ostream& out, const DrawnText& text) {
    for (const wchar_t letter : text.text) {
        out << (letter < 128 ? static_cast<char>(letter) : '?');
    }
    return out << " at " << text.place.left << ',' << text.place.top << '-' << text.place.right << ','
               << text.place.bottom << " within " << text.shown.left << ',' << text.shown.top << '-' << text.shown.right
               << ',' << text.shown.bottom;
}

/// The texts that `draw` draws, in order, taken from a recording of its calls.
inline std::vector<DrawnText> TextsDrawnBy(const std::function<void(CDC&)>& draw) {
    const HDC recorder = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    {
        CDC dc;
        dc.Attach(recorder);
        draw(dc);
        dc.Detach();
    }
    const HENHMETAFILE record = ::CloseEnhMetaFile(recorder);
    std::vector<DrawnText> texts;
    // Played step by step, so that every text is measured in the font that it was drawn in.
    const auto step = [](HDC dc, HANDLETABLE* table, const ENHMETARECORD* entry, int handles, LPARAM result) -> int {
        if (entry->iType == EMR_EXTTEXTOUTW) {
            const auto* call = reinterpret_cast<const EMREXTTEXTOUTW*>(entry);
            const auto* letters =
                reinterpret_cast<const wchar_t*>(reinterpret_cast<const char*>(entry) + call->emrtext.offString);
            DrawnText text{std::wstring(letters, call->emrtext.nChars), {}, {}};
            // Without the player's own scale.
            const int saved = ::SaveDC(dc);
            ::ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);
            ::SetMapMode(dc, MM_TEXT);
            SIZE size{};
            ::GetTextExtentPoint32W(dc, letters, static_cast<int>(call->emrtext.nChars), &size);
            ::RestoreDC(dc, saved);
            const UINT align = ::GetTextAlign(dc);
            POINT at{call->emrtext.ptlReference.x, call->emrtext.ptlReference.y};
            if ((align & TA_CENTER) == TA_CENTER) {
                at.x -= size.cx / 2;
            } else if ((align & TA_RIGHT) == TA_RIGHT) {
                at.x -= size.cx;
            }
            text.place = CRect(CPoint(at), CSize(size));
            text.shown = text.place;
            if ((call->emrtext.fOptions & ETO_CLIPPED) != 0) {
                const RECTL& clip = call->emrtext.rcl;
                text.shown = CRect(clip.left, clip.top, clip.right, clip.bottom);
            }
            if (!text.text.empty()) {
                reinterpret_cast<std::vector<DrawnText>*>(result)->push_back(std::move(text));
            }
        }
        ::PlayEnhMetaFileRecord(dc, table, entry, static_cast<UINT>(handles));
        return 1;
    };
    const HDC player = ::CreateCompatibleDC(nullptr);
    const RECT whole{0, 0, 100, 100};
    ::EnumEnhMetaFile(player, record, step, &texts, &whole);
    ::DeleteDC(player);
    ::DeleteEnhMetaFile(record);
    return texts;
}
