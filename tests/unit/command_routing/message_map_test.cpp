#include <gtest/gtest.h>

#include "afxwin.h"

namespace {

constexpr UINT Plain = 100;
constexpr UINT Extended = 101;
constexpr UINT First = 200;
constexpr UINT Last = 209;
constexpr UINT Overridden = 300;

class Base : public CCmdTarget {
public:
    std::vector<std::wstring> m_calls;
    bool m_takes = true;
    UINT m_id = 0;
    LRESULT m_notifyResult = 0;

protected:
    afx_msg void OnPlain() { m_calls.push_back(L"base plain"); }
    afx_msg void OnOverridden() { m_calls.push_back(L"base overridden"); }
    afx_msg void OnRange(UINT id) {
        m_calls.push_back(L"range");
        m_id = id;
    }
    afx_msg BOOL OnExtended(UINT id) {
        m_calls.push_back(L"base extended");
        m_id = id;
        return TRUE;
    }
    afx_msg void OnNotification(NMHDR*, LRESULT* result) {
        m_calls.push_back(L"notify");
        *result = 7;
    }
    afx_msg void OnSelection() { m_calls.push_back(L"selection"); }
    afx_msg void OnControlRange(UINT id) {
        m_calls.push_back(L"control range");
        m_id = id;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Base, CCmdTarget)
ON_COMMAND(Plain, OnPlain)
ON_COMMAND(Overridden, &Base::OnOverridden)
ON_COMMAND_RANGE(First, Last, &Base::OnRange)
ON_COMMAND_EX(Extended, &Base::OnExtended)
ON_NOTIFY(NM_CLICK, Plain, &Base::OnNotification)
ON_CBN_SELCHANGE(Plain, &Base::OnSelection)
ON_CONTROL_RANGE(EN_CHANGE, First, Last, &Base::OnControlRange)
END_MESSAGE_MAP()

class Derived : public Base {
protected:
    afx_msg void OnOverridden() { m_calls.push_back(L"derived overridden"); }
    afx_msg BOOL OnExtended(UINT) {
        m_calls.push_back(L"derived extended");
        return m_takes;
    }
    DECLARE_MESSAGE_MAP()
};

// The old form of an entry, and a base class's protected handler named by its bare name.
BEGIN_MESSAGE_MAP(Derived, Base)
ON_COMMAND(Overridden, OnOverridden)
ON_COMMAND_EX(Extended, OnExtended)
END_MESSAGE_MAP()

template <class Kind>
class Templated : public Base {
public:
    Kind m_value = {};

protected:
    afx_msg void OnOverridden() { m_value = Kind(5); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(Templated, Kind, Base)
ON_COMMAND(Overridden, &Templated<Kind>::OnOverridden)
END_MESSAGE_MAP()

using Calls = std::vector<std::wstring>;

TEST(MessageMap, ACommandReachesItsHandler) {
    Base target;
    EXPECT_TRUE(target.OnCmdMsg(Plain, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(target.m_calls, Calls{L"base plain"});
}

TEST(MessageMap, AnUnknownCommandIsNotHandled) {
    Base target;
    EXPECT_FALSE(target.OnCmdMsg(9999, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(target.m_calls.empty());
}

TEST(MessageMap, ADerivedMapComesBeforeItsBase) {
    Derived target;
    EXPECT_TRUE(target.OnCmdMsg(Overridden, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(target.m_calls, Calls{L"derived overridden"});
}

TEST(MessageMap, ABaseMapAnswersWhatTheDerivedMapLacks) {
    Derived target;
    EXPECT_TRUE(target.OnCmdMsg(Plain, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(target.m_calls, Calls{L"base plain"});
}

TEST(MessageMap, ARangeHandlerGetsTheIdAndBothEndsBelongToTheRange) {
    for (const UINT id : {First, First + 4, Last}) {
        Base target;
        EXPECT_TRUE(target.OnCmdMsg(id, CN_COMMAND, nullptr, nullptr));
        EXPECT_EQ(target.m_id, id);
    }
    Base target;
    EXPECT_FALSE(target.OnCmdMsg(First - 1, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(Last + 1, CN_COMMAND, nullptr, nullptr));
}

TEST(MessageMap, AnExtendedHandlerThatAnswersFalseLetsTheNextOneHaveTheCommand) {
    Derived target;
    target.m_takes = false;
    EXPECT_TRUE(target.OnCmdMsg(Extended, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(target.m_calls, (Calls{L"derived extended", L"base extended"}));
    EXPECT_EQ(target.m_id, Extended);
}

TEST(MessageMap, AnExtendedHandlerThatAnswersTrueEndsTheSearch) {
    Derived target;
    EXPECT_TRUE(target.OnCmdMsg(Extended, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(target.m_calls, Calls{L"derived extended"});
}

TEST(MessageMap, ControlNotificationsAreToldApartByTheirCode) {
    Base target;
    EXPECT_TRUE(target.OnCmdMsg(Plain, CBN_SELCHANGE, nullptr, nullptr));
    EXPECT_EQ(target.m_calls, Calls{L"selection"});
    EXPECT_FALSE(target.OnCmdMsg(Plain, CBN_DROPDOWN, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(First + 1, EN_CHANGE, nullptr, nullptr));
    EXPECT_EQ(target.m_id, First + 1);
}

TEST(MessageMap, ANotificationMatchesItsNegativeCodeAndWritesTheResult) {
    Base target;
    LRESULT result = 0;
    NMHDR header = {nullptr, Plain, static_cast<UINT>(NM_CLICK)};
    AFX_NOTIFY notify = {&result, &header};
    EXPECT_TRUE(target.OnCmdMsg(Plain, MAKELONG(NM_CLICK, WM_NOTIFY), &notify, nullptr));
    EXPECT_EQ(result, 7);
    EXPECT_FALSE(target.OnCmdMsg(Plain, MAKELONG(NM_DBLCLK, WM_NOTIFY), &notify, nullptr));
}

TEST(MessageMap, AskingForTheHandlerDoesNotCallIt) {
    Derived target;
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(target.OnCmdMsg(Overridden, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &target);
    EXPECT_TRUE(info.pmf != nullptr);
    EXPECT_TRUE(target.m_calls.empty());
}

TEST(MessageMap, AClassTemplateMayHaveAMap) {
    Templated<int> target;
    EXPECT_TRUE(target.OnCmdMsg(Overridden, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(target.m_value, 5);
    EXPECT_TRUE(target.OnCmdMsg(Plain, CN_COMMAND, nullptr, nullptr));
}

} // namespace
