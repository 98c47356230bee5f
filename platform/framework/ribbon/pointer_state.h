#pragma once

#include <initializer_list>

namespace ribbon {

/// Where the pointer is among the elements of a window, and what it holds: states and their transitions, without a
/// window. An element is known by its address only. One press at a time: it belongs to its element until the button is
/// released, and the pointer lights nothing else meanwhile.
template <class Element>
class PointerState {
public:
    Element* Hot() const { return m_hot; }
    /// The element that is pressed; null when none is.
    Element* Pressed() const { return m_pressed; }
    bool IsPressed() const { return m_pressed != nullptr; }

    /// What is to be lit when the pointer is over `hit`.
    Element* HotOver(Element* hit) const { return m_pressed == nullptr || hit == m_pressed ? hit : nullptr; }
    /// The former one.
    Element* SetHot(Element* hot) {
        Element* former = m_hot;
        m_hot = hot;
        return former;
    }

    void Press(Element& element) {
        m_pressed = &element;
        m_dropped = nullptr;
    }
    /// The press has opened its element's pop-up and is over with that; the button is still down. Null when the
    /// element is gone.
    Element* Drop() {
        m_dropped = m_pressed;
        m_pressed = nullptr;
        return m_dropped;
    }
    /// The button went up: the element whose pop-up the press has opened, null when it has opened none.
    Element* ReleaseDropped() { return Take(m_dropped); }
    /// The button went up over a pressed element: it is being released until EndRelease. Null when none is pressed.
    Element* BeginRelease() {
        m_releasing = Take(m_pressed);
        return m_releasing;
    }
    bool IsReleasing() const { return m_releasing != nullptr; }
    /// The element that was released; null when it is gone.
    Element* EndRelease() { return Take(m_releasing); }
    /// The press ends without a click: the element that was pressed.
    Element* Cancel() {
        m_dropped = nullptr;
        return Take(m_pressed);
    }
    /// What is being released is not looked at afterwards.
    void ForgetReleased() { m_releasing = nullptr; }

    void Forget(const Element* element) {
        for (Element** holder : {&m_hot, &m_pressed, &m_releasing, &m_dropped}) {
            if (*holder == element) {
                *holder = nullptr;
            }
        }
    }

private:
    static Element* Take(Element*& holder) {
        Element* element = holder;
        holder = nullptr;
        return element;
    }

    Element* m_hot = nullptr;
    Element* m_pressed = nullptr;
    Element* m_releasing = nullptr; // gets the button's release now
    Element* m_dropped = nullptr;   // its press has opened its pop-up; the button is still down
};

/// Milliseconds that a held button waits before its first repeat: as long as a held key does, and never less than
/// between two repeats. keyboardDelay: the user's setting, from 0 (about 250 ms) to 3 (about one second).
constexpr unsigned FirstRepeatDelay(int keyboardDelay, unsigned between) {
    constexpr unsigned kStep = 250;
    const int setting = keyboardDelay < 0 ? 0 : keyboardDelay > 3 ? 3 : keyboardDelay;
    const unsigned first = static_cast<unsigned>(setting + 1) * kStep;
    return first > between ? first : between;
}

} // namespace ribbon
