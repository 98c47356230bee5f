#pragma once

#include "afxribbonbar.h"
#include "fx/window_guard.h"
#include "ribbon/bar_parts.h"

/// A time in which a bar's commands are asked for their states, at the end of which they are known. An answer may
/// change the layout and have it drawn, which asks no second time: an answer that is never twice the same would be
/// drawn without end. It may also end the bar.
class AskingForStates {
public:
    AskingForStates(const CMFCRibbonBar& bar, RibbonBarParts& parts)
        : m_guard(&bar), m_hasWindow(bar.GetSafeHwnd() != nullptr), m_parts(parts), m_before(parts.states) {
        m_parts.states = RibbonBarParts::States::Asking;
    }
    ~AskingForStates() {
        if (m_hasWindow && m_guard.IsGone()) {
            return;
        }
        const bool isWithinAnother = m_before == RibbonBarParts::States::Asking;
        m_parts.states = isWithinAnother ? m_before : RibbonBarParts::States::Known;
    }
    AskingForStates(const AskingForStates&) = delete;
    AskingForStates& operator=(const AskingForStates&) = delete;

    /// Whether an answer has ended the bar.
    bool IsBarGone() const { return m_guard.IsGone(); }

private:
    fx::WindowGuard m_guard;
    bool m_hasWindow;
    RibbonBarParts& m_parts;
    RibbonBarParts::States m_before;
};
