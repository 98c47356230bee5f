#pragma once

#include "tests/support/import_spy.h"

#include <memory>
#include <vector>

/// The calls that nobody can do without who draws buttons from icon files.
struct DrawCalls {
    long icons = 0;
    long texts = 0;
};

/// Counts the calls of the libraries (not of this program itself) for as long as it lives; only one may live at a time.
class DrawCallCounter {
public:
    DrawCallCounter();
    ~DrawCallCounter();
    DrawCallCounter(const DrawCallCounter&) = delete;
    DrawCallCounter& operator=(const DrawCallCounter&) = delete;

    const DrawCalls& Calls() const;

private:
    void Watch(HMODULE module);

    std::vector<std::unique_ptr<ImportSpy<decltype(::DrawIconEx)>>> m_icons;
    std::vector<std::unique_ptr<ImportSpy<decltype(::DrawTextW)>>> m_texts;
};
