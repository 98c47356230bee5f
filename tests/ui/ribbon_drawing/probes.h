#pragma once

#include "tests/ui/ribbon_bar/ribbon_frame.h"

#include <map>
#include <utility>

/// Where the probes drew themselves since the log was emptied.
struct DrawingLog {
    std::map<const CMFCRibbonBaseElement*, CRect> places;
    int draws = 0;
};

/// An element of the class `Base` that notes where it draws itself.
template <class Base>
class Probe : public Base {
public:
    template <class... Arguments>
    explicit Probe(DrawingLog& log, Arguments&&... arguments)
        : Base(std::forward<Arguments>(arguments)...), m_log(log) {}
    void OnDraw(CDC* pDC) override {
        ++m_log.draws;
        m_log.places[this] = this->m_rect;
        Base::OnDraw(pDC);
    }

private:
    DrawingLog& m_log;
};
