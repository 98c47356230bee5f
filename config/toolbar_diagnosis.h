#pragma once

#include "config/attribute_diagnosis.h"

/// Says what is wrong with the elements of a toolbar file, one by one as the reader comes to them. What lies below an
/// element that is no group or toolbar, although it stands in the place of one, is passed over.
class ToolBarDiagnosis {
public:
    explicit ToolBarDiagnosis(const FileDiagnostics& diagnostics) : m_diagnostics(diagnostics) {}

    void MeetGroup(varnhold::XmlCursor& element);
    void MeetToolBar(varnhold::XmlCursor& element);
    void MeetButton(varnhold::XmlCursor& element) const;

private:
    MetElement Describe(varnhold::XmlCursor& element, ElementRole role) const;
    static bool IsSurplus(const varnhold::XmlCursor& element, const MetElement& met);
    bool CheckDepth(varnhold::XmlCursor& element, const MetElement& met, bool& wasStray) const;
    void PassOver(varnhold::XmlCursor& element, MetElement met) const;

    const FileDiagnostics& m_diagnostics;
    bool m_isInGroup = true;
    bool m_isInToolBar = true;
    /// What stands a level too high was reported once, of the file's groups and of the group's toolbars.
    bool m_wasStrayGroup = false;
    bool m_wasStrayToolBar = false;
};
