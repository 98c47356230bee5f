#pragma once

#include "fx/string.h"

class CObject;

namespace fx {

/// Where bars keep their state from one run to the next. The application's object hands its own out
/// (CWinApp::GetStateStore), so that panes and toolbars need not know which class of application keeps sections.
///
/// A section is a path below the application's base section, an entry a name in it.
class StateStore {
public:
    /// Whether there is such an entry, damaged or not: to read one that is missing may leave an empty section behind.
    virtual BOOL HasEntry(LPCTSTR section, LPCTSTR entry) = 0;
    /// missing when there is no such entry.
    virtual int ReadInt(LPCTSTR section, LPCTSTR entry, int missing) = 0;
    virtual BOOL WriteInt(LPCTSTR section, LPCTSTR entry, int value) = 0;
    /// Whether WriteObject has left something there, damaged or not.
    virtual BOOL HasObject(LPCTSTR section, LPCTSTR entry) = 0;
    /// Serialises out of the entry. FALSE: it is missing or damaged; the object may have read a part of it.
    virtual BOOL ReadObject(LPCTSTR section, LPCTSTR entry, CObject& object) = 0;
    virtual BOOL WriteObject(LPCTSTR section, LPCTSTR entry, CObject& object) = 0;
    /// Takes the section and what lies below it away. FALSE: there was none, or it could not be done.
    virtual BOOL DeleteSection(LPCTSTR section) = 0;

protected:
    ~StateStore() = default;
};

} // namespace fx
