#pragma once

#include "window_combos.h"

#include "host_messages.h"
#include "tests/support/keys.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

#include <functional>
#include <string>
#include <vector>

/// A window with a combo in it, which writes down what the combo tells it: "check red 1", "command 0".
class ComboHost : public TestWindow {
public:
    static constexpr UINT comboId = 700;

    std::vector<std::wstring> heard;
    /// Run in each message, before it is answered.
    std::function<void()> onMessage;
    LRESULT answer = 0;

    template <class Combo>
    void Place(Combo& combo, DWORD style = CBS_DROPDOWNLIST) {
        ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, CRect(10, 10, 210, 200), this, comboId));
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const std::wstring words = WordsFor(message, wParam, lParam);
        if (words.empty()) {
            return TestWindow::WindowProc(message, wParam, lParam);
        }
        heard.push_back(words);
        if (onMessage) {
            onMessage();
        }
        return message == WM_COMMAND ? TestWindow::WindowProc(message, wParam, lParam) : answer;
    }

public:
    /// What is written down for a message; empty for one that a combo does not send.
    static std::wstring WordsFor(UINT message, WPARAM wParam, LPARAM lParam) {
        const auto text = [wParam] { return std::wstring(*reinterpret_cast<const CString*>(wParam)); };
        const std::wstring value = L" " + std::to_wstring(lParam);
        switch (message) {
        case WM_COMBO_CHECK_CHANGED:
            return L"check " + text() + value;
        case WM_COMBO_LIGHT_CHANGED:
            return L"light " + text() + value;
        case WM_VESCOMBO_LIGHT_CHANGED:
            return L"ves " + text() + value;
        case WM_COMBO_COLOR_PICK:
            return L"colour " + std::to_wstring(wParam) + value;
        case WM_COMMAND:
            return LOWORD(wParam) == comboId ? L"command " + std::to_wstring(HIWORD(wParam)) : std::wstring();
        default:
            return {};
        }
    }
};

using Heard = std::vector<std::wstring>;

inline std::wstring Command(UINT code) { return L"command " + std::to_wstring(code); }

inline void AddColours(CComboBox& combo) {
    for (const wchar_t* text : {L"red", L"green", L"blue", L"white", L"black"}) {
        combo.AddString(text);
    }
}

inline HWND ListOf(const CComboBox& combo) {
    COMBOBOXINFO info{};
    combo.GetComboBoxInfo(&info);
    return info.hwndList;
}

/// A point of an item's row in the list, `x` from its left edge.
inline POINT InRow(HWND list, int index, int x) {
    RECT row{};
    ::SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&row));
    return {row.left + x, (row.top + row.bottom) / 2};
}
