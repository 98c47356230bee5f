#include "varnhold/message_box.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(MessageBox, AHandlerAnswersInThePlaceOfThePerson) {
    std::wstring asked;
    int askedStatus = -1;
    HWND askedOwner = nullptr;
    const ScopedMessageBoxHandler handler([&](const std::wstring& message, int status, HWND owner) {
        asked = message;
        askedStatus = status;
        askedOwner = owner;
        return IDYES;
    });
    EXPECT_EQ(QKMessageBox(L"Is there a file?", 2, GetDesktopWindow()), IDYES);
    EXPECT_EQ(asked, L"Is there a file?");
    EXPECT_EQ(askedStatus, QK_MESSAGE_WARNING);
    EXPECT_EQ(askedOwner, GetDesktopWindow());
    EXPECT_EQ(QKMessageBox(static_cast<const wchar_t*>(nullptr)), IDYES);
    EXPECT_EQ(asked, L"");
    EXPECT_EQ(askedStatus, QK_MESSAGE_INFORMATION);
}

TEST(MessageBox, HandlersNestAndComeBack) {
    std::wstring calls;
    const auto note = [&](wchar_t name) {
        return [&calls, name](const std::wstring&, int, HWND) {
            calls += name;
            return IDOK;
        };
    };
    const ScopedMessageBoxHandler outer(note(L'o'));
    {
        const ScopedMessageBoxHandler inner(note(L'i'));
        QKMessageBox(L"x");
    }
    QKMessageBox(L"x");
    EXPECT_EQ(calls, L"io");
}

TEST(MessageBox, TheTitleIsTheProgramsNameUnlessSet) {
    EXPECT_EQ(getMessageBoxTitle(), L"varnhold_tests");
    setMessageBoxTitle(L"\x5730\x56FE");
    EXPECT_EQ(getMessageBoxTitle(), L"\x5730\x56FE");
    setMessageBoxTitle(L"");
    EXPECT_EQ(getMessageBoxTitle(), L"varnhold_tests");
}

/// Waits for the real box from a second thread, notes what it shows and presses one of its buttons.
struct RealBox {
    const wchar_t* text;
    WORD button;
    bool seen = false;
    bool hasButton = false;
};

DWORD WINAPI AnswerRealBox(void* argument) {
    RealBox& box = *static_cast<RealBox*>(argument);
    for (int i = 0; i < 6000 && !box.seen; ++i) {
        const HWND window = FindWindowW(L"#32770", L"varnhold_tests");
        for (HWND child = window ? GetWindow(window, GW_CHILD) : nullptr; child;
             child = GetWindow(child, GW_HWNDNEXT)) {
            wchar_t text[100] = {};
            GetWindowTextW(child, text, 100);
            box.seen = box.seen || std::wstring(text) == box.text;
        }
        if (box.seen) {
            box.hasButton = GetDlgItem(window, box.button) != nullptr;
            PostMessageW(window, WM_COMMAND, box.button, 0);
        } else {
            Sleep(10);
        }
    }
    return 0;
}

TEST(MessageBox, TheRealBoxShowsTitleMessageAndTheStatussButtons) {
    for (RealBox box : {RealBox{L"Make sure of the file", IDOK}, RealBox{L"Go on?", IDNO}}) {
        const HANDLE thread = CreateThread(nullptr, 0, AnswerRealBox, &box, 0, nullptr);
        const int status = box.button == IDNO ? QK_MESSAGE_QUESTION : QK_MESSAGE_WARNING;
        const int answer = QKMessageBox(box.text, status);
        WaitForSingleObject(thread, INFINITE);
        CloseHandle(thread);
        EXPECT_TRUE(box.seen);
        EXPECT_TRUE(box.hasButton);
        EXPECT_EQ(answer, box.button);
    }
}

} // namespace
