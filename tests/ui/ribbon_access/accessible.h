#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/ui/ribbon_bar/ribbon_frame.h"

#include <oleacc.h>

/// A reference to an accessible object, as an assistive program has it; and to a child that has no object of its own.
class Accessible {
public:
    Accessible() = default;
    /// Takes the reference over.
    explicit Accessible(IAccessible* object, LONG child = CHILDID_SELF) : m_object(object), m_child(child) {}
    Accessible(Accessible&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr)), m_child(other.m_child) {}
    Accessible& operator=(Accessible&& other) noexcept {
        std::swap(m_object, other.m_object);
        std::swap(m_child, other.m_child);
        return *this;
    }
    ~Accessible() {
        if (m_object != nullptr) {
            m_object->Release();
        }
    }

    IAccessible* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    /// The same object; objects are compared by their identity.
    bool operator==(const Accessible& other) const { return m_object == other.m_object && m_child == other.m_child; }

    static VARIANT Child(LONG number);
    VARIANT Self() const { return Child(m_child); }
    std::wstring Name() const { return Text(&IAccessible::get_accName); }
    std::wstring Value() const { return Text(&IAccessible::get_accValue); }
    std::wstring Description() const { return Text(&IAccessible::get_accDescription); }
    std::wstring Keys() const { return Text(&IAccessible::get_accKeyboardShortcut); }
    std::wstring Action() const { return Text(&IAccessible::get_accDefaultAction); }
    LONG Role() const;
    LONG State() const;
    CRect Location() const;
    long ChildCount() const;
    Accessible ChildAt(LONG number) const;
    std::vector<Accessible> Children() const;
    Accessible Parent() const;
    HRESULT DoDefaultAction() const { return m_object->accDoDefaultAction(Self()); }
    HRESULT Select(long flags) const { return m_object->accSelect(flags, Self()); }
    /// Nothing when the answer is empty.
    std::optional<Accessible> HitTest(CPoint screen) const;
    std::optional<Accessible> Navigate(long direction) const;
    std::optional<Accessible> Focus() const;

private:
    std::wstring Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*)) const;
    std::optional<Accessible> From(const VARIANT& answer) const;

    IAccessible* m_object = nullptr;
    LONG m_child = CHILDID_SELF;
};

/// The ribbon of the bar's tests, seen from outside.
class AccessTest : public RibbonBarTest {
protected:
    AccessTest();
    ~AccessTest() override;

    /// What AccessibleObjectFromWindow gives for the bar's window.
    Accessible Root();
    /// The object at the middle of the command's element.
    Accessible Of(UINT id);
    /// Child of the root with that role; the first one.
    Accessible Part(LONG role);
};
