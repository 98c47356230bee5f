#pragma once

#include <set>
#include <string>
#include <vector>

#include "afxribbonkeytip.h"
#include "tests/support/message_pump.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

/// The ribbon frame of the bar's tests with a child window that has the focus, and a real keyboard. Keys come through
/// SendInput and the thread's own message loop.
class KeyboardTest : public RibbonBarTest {
protected:
    KeyboardTest();

    /// Presses and releases the keys one after the other.
    void Press(std::initializer_list<UINT> keys);
    void Press(UINT key) { Press({key}); }
    /// Holds the first key while the second is pressed.
    void Chord(UINT held, UINT key);
    /// Presses the keys that write the letters and digits.
    void Type(const CString& keys);

    /// The letters of the key tips on the screen, in order.
    static std::vector<std::wstring> ShownTips();
    bool AreTipsShown() { return Bar().GetKeyboardNavigationLevel() >= 0; }
    HWND Document() const { return m_document.GetSafeHwnd(); }
    /// The text of the element with the focus, or its category's name; empty when none has it.
    std::wstring FocusedText();

    static std::wstring KeysOf(CMFCRibbonBaseElement& element) {
        return static_cast<LPCTSTR>(element.GetKeyTipText(FALSE));
    }
    /// Replaces the categories by many panels of buttons, groups and separators with texts by chance. Answers the ids
    /// of the commands; each stands in the ribbon once.
    std::set<UINT> FillAtRandom(unsigned seed, unsigned categories);

    CEdit m_document; // stands for the host's view
};
