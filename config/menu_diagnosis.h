#pragma once

#include "config/attribute_diagnosis.h"

#include <cstddef>

/// The item with this keyword stands for the list of recent files.
inline constexpr std::wstring_view kRecentFilesKeyword = L"QK_DEF_ZJWJ";

/// Says what is wrong with the elements of a menu file, one by one as the reader comes to them.
class MenuDiagnosis {
public:
    explicit MenuDiagnosis(const FileDiagnostics& diagnostics) : m_diagnostics(diagnostics) {}

    /// A child of the document element that has children itself: its attributes are not read.
    void MeetGroup(varnhold::XmlCursor& element);
    void LeaveGroup() { m_isStray = false; }
    /// `level` counts the popups around the element.
    void MeetPopup(varnhold::XmlCursor& element, std::size_t level) const;
    void MeetItem(varnhold::XmlCursor& element, std::size_t level, bool isSeparator) const;

private:
    MetElement Describe(varnhold::XmlCursor& element, ElementRole role, std::size_t level) const;
    bool HasAttributes(varnhold::XmlCursor& element, const wchar_t* effect) const;
    void PassOver(varnhold::XmlCursor& element) const;
    void CheckLetter(MetElement& met) const;
    void CheckTexts(const MetElement& met, const wchar_t* effect) const;

    const FileDiagnostics& m_diagnostics;
    /// The group is a popup without a group around it; what is in it is passed over.
    bool m_isStray = false;
    /// That was reported once.
    bool m_wasStray = false;
};
