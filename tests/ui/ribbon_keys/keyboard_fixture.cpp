#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <algorithm>
#include <random>

namespace {

void Send(std::vector<std::pair<UINT, bool>> strokes) {
    std::vector<INPUT> inputs;
    for (const auto& [key, isUp] : strokes) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = static_cast<WORD>(key);
        input.ki.wScan = static_cast<WORD>(::MapVirtualKey(key, MAPVK_VK_TO_VSC));
        // Page up to the arrows, and Insert: the keys beside the number pad.
        const bool isExtended = (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT;
        input.ki.dwFlags = (isUp ? KEYEVENTF_KEYUP : 0) | (isExtended ? KEYEVENTF_EXTENDEDKEY : 0);
        inputs.push_back(input);
    }
    ASSERT_EQ(::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)), inputs.size());
    PumpPending();
}

} // namespace

KeyboardTest::KeyboardTest() {
    m_document.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE, CRect(0, 300, 300, 500), m_frame, 5000);
    m_frame->SetForegroundWindow();
    m_document.SetFocus();
    PumpPending();
}

void KeyboardTest::Press(std::initializer_list<UINT> keys) {
    for (const UINT key : keys) {
        Send({{key, false}, {key, true}});
    }
}

void KeyboardTest::Chord(UINT held, UINT key) { Send({{held, false}, {key, false}, {key, true}, {held, true}}); }

void KeyboardTest::Type(const CString& keys) {
    for (int place = 0; place < keys.GetLength(); ++place) {
        Press(static_cast<UINT>(keys[place]));
    }
}

std::vector<std::wstring> KeyboardTest::ShownTips() {
    std::vector<std::wstring> tips;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM list) -> BOOL {
            const CMFCRibbonKeyTip* tip = DYNAMIC_DOWNCAST(CMFCRibbonKeyTip, CWnd::FromHandlePermanent(window));
            if (tip != nullptr && ::IsWindowVisible(window)) {
                reinterpret_cast<std::vector<std::wstring>*>(list)->push_back(static_cast<LPCTSTR>(tip->GetKeys()));
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&tips));
    std::sort(tips.begin(), tips.end());
    return tips;
}

std::wstring KeyboardTest::FocusedText() {
    CMFCRibbonBaseElement* focused = Bar().GetFocused();
    if (focused == nullptr) {
        return {};
    }
    const bool isTab = focused->IsKindOf(RUNTIME_CLASS(CMFCRibbonTab)) != FALSE;
    return isTab ? focused->GetParentCategory()->GetName() : focused->GetText();
}

std::set<UINT> KeyboardTest::FillAtRandom(unsigned seed, unsigned categories) {
    std::mt19937 random(seed);
    std::set<UINT> ids;
    UINT id = commands::firstHandled + 2000;
    const auto text = [&random] {
        static constexpr std::wstring_view letters = L"aeiourstlnmdcABC \x5730\x56FE";
        std::wstring word;
        for (std::size_t length = random() % 9; length > 0; --length) {
            word += letters[random() % letters.size()];
        }
        return word;
    };
    const auto button = [&] {
        ids.insert(id);
        return new CMFCRibbonButton(id++, text().c_str());
    };
    const auto group = [&] {
        auto* buttons = new CMFCRibbonButtonsGroup;
        for (unsigned count = 1 + random() % 5; count > 0; --count) {
            buttons->AddButton(button());
        }
        return buttons;
    };
    Bar().RemoveAllCategories();
    for (; categories > 0; --categories) {
        CMFCRibbonCategory* category = Bar().AddCategory(text().c_str(), 0, 0);
        for (unsigned panels = 2 + random() % 2; panels > 0; --panels) {
            CMFCRibbonPanel* panel = category->AddPanel(text().c_str());
            for (unsigned elements = 3 + random() % 7; elements > 0; --elements) {
                switch (random() % 6) {
                case 0:
                    panel->Add(group());
                    break;
                case 1:
                    panel->AddSeparator();
                    break;
                default:
                    panel->Add(button());
                    break;
                }
            }
        }
    }
    return ids;
}
