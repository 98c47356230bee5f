#include "tests/ui/ribbon_access/accessible.h"

VARIANT Accessible::Child(LONG number) {
    VARIANT child;
    child.vt = VT_I4;
    child.lVal = number;
    return child;
}

std::wstring Accessible::Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*)) const {
    BSTR text = nullptr;
    const HRESULT result = (m_object->*get)(Self(), &text);
    EXPECT_TRUE(SUCCEEDED(result)) << std::hex << result;
    EXPECT_EQ(result == S_OK, text != nullptr);
    std::wstring copy = text != nullptr ? text : L"";
    ::SysFreeString(text);
    return copy;
}

LONG Accessible::Role() const {
    VARIANT role;
    EXPECT_EQ(m_object->get_accRole(Self(), &role), S_OK);
    EXPECT_EQ(role.vt, VT_I4);
    return role.lVal;
}

LONG Accessible::State() const {
    VARIANT state;
    EXPECT_EQ(m_object->get_accState(Self(), &state), S_OK);
    EXPECT_EQ(state.vt, VT_I4);
    return state.lVal;
}

CRect Accessible::Location() const {
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    EXPECT_EQ(m_object->accLocation(&left, &top, &width, &height, Self()), S_OK);
    return {CPoint(left, top), CSize(width, height)};
}

long Accessible::ChildCount() const {
    long count = -1;
    EXPECT_EQ(m_object->get_accChildCount(&count), S_OK);
    return count;
}

Accessible Accessible::ChildAt(LONG number) const {
    IDispatch* dispatch = nullptr;
    if (m_object->get_accChild(Child(number), &dispatch) != S_OK || dispatch == nullptr) {
        m_object->AddRef();
        return Accessible(m_object, number);
    }
    IAccessible* child = nullptr;
    EXPECT_EQ(dispatch->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(&child)), S_OK);
    dispatch->Release();
    return Accessible(child);
}

std::vector<Accessible> Accessible::Children() const {
    std::vector<Accessible> children;
    for (long number = 1; number <= ChildCount(); ++number) {
        children.push_back(ChildAt(number));
    }
    return children;
}

Accessible Accessible::Parent() const {
    IDispatch* dispatch = nullptr;
    EXPECT_EQ(m_object->get_accParent(&dispatch), S_OK);
    IAccessible* parent = nullptr;
    if (dispatch != nullptr) {
        EXPECT_EQ(dispatch->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(&parent)), S_OK);
        dispatch->Release();
    }
    return Accessible(parent);
}

std::optional<Accessible> Accessible::From(const VARIANT& answer) const {
    if (answer.vt == VT_I4) {
        EXPECT_EQ(answer.lVal, CHILDID_SELF);
        m_object->AddRef();
        return Accessible(m_object);
    }
    if (answer.vt != VT_DISPATCH) {
        EXPECT_EQ(answer.vt, VT_EMPTY);
        return std::nullopt;
    }
    IAccessible* object = nullptr;
    EXPECT_EQ(answer.pdispVal->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(&object)), S_OK);
    answer.pdispVal->Release();
    return Accessible(object);
}

std::optional<Accessible> Accessible::HitTest(CPoint screen) const {
    VARIANT answer;
    EXPECT_TRUE(SUCCEEDED(m_object->accHitTest(screen.x, screen.y, &answer)));
    return From(answer);
}

std::optional<Accessible> Accessible::Navigate(long direction) const {
    VARIANT answer;
    EXPECT_TRUE(SUCCEEDED(m_object->accNavigate(direction, Self(), &answer)));
    return From(answer);
}

std::optional<Accessible> Accessible::Focus() const {
    VARIANT answer;
    EXPECT_TRUE(SUCCEEDED(m_object->get_accFocus(&answer)));
    return From(answer);
}

AccessTest::AccessTest() {
    ::CoInitialize(nullptr);
    Bar().GetCategory(0)->GetPanel(0)->GetElement(1)->SetDescription(L"Removes it");
    m_frame->SetForegroundWindow();
    PumpPending();
}

AccessTest::~AccessTest() { ::CoUninitialize(); }

Accessible AccessTest::Root() {
    IAccessible* root = nullptr;
    EXPECT_EQ(::AccessibleObjectFromWindow(Bar().GetSafeHwnd(), static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                           reinterpret_cast<void**>(&root)),
              S_OK);
    return Accessible(root);
}

Accessible AccessTest::Of(UINT id) {
    CPoint middle = CenterOf(id);
    Bar().ClientToScreen(&middle);
    std::optional<Accessible> hit = Root().HitTest(middle);
    if (!hit) {
        throw std::runtime_error("nothing there");
    }
    return std::move(*hit);
}

Accessible AccessTest::Part(LONG role) {
    for (Accessible& child : Root().Children()) {
        if (child.Role() == role) {
            return std::move(child);
        }
    }
    throw std::runtime_error("no part has the role");
}
