#include "interface.h"

#include "afx.h"
#include "afxwin.h"
#include "atlsimpstr.h"
#include "atltime.h"
#include "atltypes.h"

INTERFACE_OF(CObject) {
    VIRTUAL(void, AssertValid, () const);
    VIRTUAL(void, Dump, (CDumpContext&) const);
    VIRTUAL(CRuntimeClass*, GetRuntimeClass, () const);
    MEMBER(BOOL, IsKindOf, (const CRuntimeClass*) const);
    MEMBER(BOOL, IsSerializable, () const);
    VIRTUAL(void, Serialize, (CArchive&));
}

INTERFACE_OF(CRuntimeClass) {
    MEMBER(CObject*, CreateObject, ());
    STATIC(CObject*, CreateObject, (LPCSTR));
    STATIC(CObject*, CreateObject, (LPCWSTR));
    STATIC(CRuntimeClass*, FromName, (LPCSTR));
    STATIC(CRuntimeClass*, FromName, (LPCWSTR));
    MEMBER(BOOL, IsDerivedFrom, (const CRuntimeClass*) const);
    NAMED(m_lpszClassName);
    NAMED(m_nObjectSize);
    NAMED(m_pBaseClass);
    NAMED(m_pfnCreateObject);
    NAMED(m_pfnGetBaseClass);
    NAMED(m_wSchema);
}

INTERFACE_OF(CArchive) {
    MADE_FROM(CFile*, UINT, int, void*);
    MEMBER(void, Abort, ());
    MEMBER(void, Close, ());
    MEMBER(void, Flush, ());
    MEMBER(CFile*, GetFile, () const);
    MEMBER(UINT, GetObjectSchema, ());
    MEMBER(BOOL, IsBufferEmpty, () const);
    MEMBER(BOOL, IsLoading, () const);
    MEMBER(BOOL, IsStoring, () const);
    MEMBER(void, MapObject, (const CObject*));
    MEMBER(UINT, Read, (void*, UINT));
    MEMBER(CRuntimeClass*, ReadClass, (const CRuntimeClass*, UINT*, DWORD*));
    CALL(ReadClass);
    MEMBER(CObject*, ReadObject, (const CRuntimeClass*));
    MEMBER(BOOL, ReadString, (CString&));
    MEMBER(LPTSTR, ReadString, (LPTSTR, UINT));
    MEMBER(void, SerializeClass, (const CRuntimeClass*));
    MEMBER(void, SetLoadParams, (UINT));
    CALL(SetLoadParams);
    MEMBER(void, SetObjectSchema, (UINT));
    MEMBER(void, SetStoreParams, (UINT, UINT));
    CALL(SetStoreParams);
    MEMBER(void, Write, (const void*, INT));
    MEMBER(void, WriteClass, (const CRuntimeClass*));
    MEMBER(void, WriteObject, (const CObject*));
    MEMBER(void, WriteString, (LPCTSTR));
    DATA(CDocument*, m_pDocument);
}

INTERFACE_OF(CArchiveException) {
    BASE(CException);
    MADE_FROM(int, LPCTSTR);
    DATA(int, m_cause);
    DATA(CString, m_strFileName);
}

INTERFACE_OF(CException) {
    BASE(CObject);
    MADE_FROM(BOOL);
    MEMBER(void, Delete, ());
    VIRTUAL(int, ReportError, (UINT, UINT));
    CALL(ReportError);
}

INTERFACE_OF(CSimpleException) {
    BASE(CException);
    MADE_FROM();
    MADE_FROM(BOOL);
    CALL(GetErrorMessage, LPTSTR, UINT);
}

INTERFACE_OF(CMemoryException) {
    BASE(CSimpleException);
    MADE_FROM();
}

INTERFACE_OF(CInvalidArgException) {
    BASE(CSimpleException);
    MADE_FROM();
}

INTERFACE_OF(CNotSupportedException) {
    BASE(CSimpleException);
    MADE_FROM();
}

INTERFACE_OF(CResourceException) {
    BASE(CSimpleException);
    MADE_FROM();
}

INTERFACE_OF(CFileException) {
    BASE(CException);
    MADE_FROM(int, LONG, LPCTSTR);
    STATIC(int, ErrnoToException, (int));
    VIRTUAL(BOOL, GetErrorMessage, (LPTSTR, UINT, PUINT) const);
    CALL(GetErrorMessage, LPTSTR, UINT);
    STATIC(int, OsErrorToException, (LONG));
    STATIC(void, ThrowErrno, (int, LPCTSTR));
    CALL(ThrowErrno, int);
    STATIC(void, ThrowOsError, (LONG, LPCTSTR));
    CALL(ThrowOsError, LONG);
    DATA(int, m_cause);
    DATA(LONG, m_lOsError);
    DATA(CString, m_strFileName);
}

INTERFACE_OF(CUserException) { BASE(CSimpleException); }

INTERFACE_OF(CFile) {
    BASE(CObject);
    MADE_FROM();
    MADE_FROM(HANDLE);
    MADE_FROM(LPCTSTR, UINT);
    VIRTUAL(void, Abort, ());
    VIRTUAL(void, Close, ());
    VIRTUAL(CFile*, Duplicate, () const);
    VIRTUAL(void, Flush, ());
    VIRTUAL(CString, GetFileName, () const);
    VIRTUAL(CString, GetFilePath, () const);
    VIRTUAL(CString, GetFileTitle, () const);
    VIRTUAL(ULONGLONG, GetLength, () const);
    VIRTUAL(ULONGLONG, GetPosition, () const);
    MEMBER(BOOL, GetStatus, (CFileStatus&) const);
    CALL(GetStatus, LPCTSTR, CFileStatus&);
    VIRTUAL(void, LockRange, (ULONGLONG, ULONGLONG));
    VIRTUAL(BOOL, Open, (LPCTSTR, UINT, CFileException*));
    CALL(Open, LPCTSTR, UINT);
    VIRTUAL(UINT, Read, (void*, UINT));
    CALL(Remove, LPCTSTR);
    CALL(Rename, LPCTSTR, LPCTSTR);
    VIRTUAL(ULONGLONG, Seek, (LONGLONG, UINT));
    MEMBER(void, SeekToBegin, ());
    MEMBER(ULONGLONG, SeekToEnd, ());
    VIRTUAL(void, SetFilePath, (LPCTSTR));
    VIRTUAL(void, SetLength, (ULONGLONG));
    CALL(SetStatus, LPCTSTR, const CFileStatus&);
    VIRTUAL(void, UnlockRange, (ULONGLONG, ULONGLONG));
    VIRTUAL(void, Write, (const void*, UINT));
    MEMBER(HANDLE, operator HANDLE, () const);
    STATIC_DATA(const HANDLE, hFileNull);
    DATA(HANDLE, m_hFile);
}

INTERFACE_OF(CDumpContext) {
    MADE_FROM(CFile*);
    MEMBER(CDumpContext&, DumpAsHex, (BYTE));
    MEMBER(CDumpContext&, DumpAsHex, (DWORD));
    MEMBER(CDumpContext&, DumpAsHex, (int));
    MEMBER(CDumpContext&, DumpAsHex, (LONG));
    MEMBER(CDumpContext&, DumpAsHex, (LONGLONG));
    MEMBER(CDumpContext&, DumpAsHex, (UINT));
    MEMBER(CDumpContext&, DumpAsHex, (ULONGLONG));
    MEMBER(CDumpContext&, DumpAsHex, (WORD));
    MEMBER(void, Flush, ());
    MEMBER(int, GetDepth, () const);
    MEMBER(void, HexDump, (LPCTSTR, BYTE*, int, int));
    MEMBER(void, SetDepth, (int));
}

INTERFACE_OF(CStringData) {
    MEMBER(void, AddRef, ());
    MEMBER(void*, data, ());
    MEMBER(bool, IsLocked, () const);
    MEMBER(bool, IsShared, () const);
    MEMBER(void, Lock, ());
    MEMBER(void, Release, ());
    MEMBER(void, Unlock, ());
    DATA(int, nAllocLength);
    DATA(int, nDataLength);
    DATA(long, nRefs);
    DATA(IAtlStringMgr*, pStringMgr);
}

INTERFACE_OF(IAtlStringMgr) {
    MEMBER(CStringData*, Allocate, (int, int));
    MEMBER(IAtlStringMgr*, Clone, ());
    MEMBER(void, Free, (CStringData*));
    MEMBER(CStringData*, GetNilString, ());
    MEMBER(CStringData*, Reallocate, (CStringData*, int, int));
}

INTERFACE_OF(CPoint) {
    BASE(tagPOINT);
    MADE_FROM();
    MADE_FROM(int, int);
    MADE_FROM(POINT);
    MADE_FROM(SIZE);
    MADE_FROM(LPARAM);
    MEMBER(void, Offset, (int, int));
    MEMBER(void, Offset, (POINT));
    MEMBER(void, Offset, (SIZE));
    MEMBER(CSize, operator-, (POINT) const);
    MEMBER(CPoint, operator-, (SIZE) const);
    MEMBER(CRect, operator-, (const RECT*) const);
    MEMBER(CPoint, operator-, () const);
    MEMBER(BOOL, operator!=, (POINT) const);
    MEMBER(CPoint, operator+, (SIZE) const);
    MEMBER(CPoint, operator+, (POINT) const);
    MEMBER(CRect, operator+, (const RECT*) const);
    MEMBER(void, operator+=, (SIZE));
    MEMBER(void, operator+=, (POINT));
    MEMBER(void, operator-=, (SIZE));
    MEMBER(void, operator-=, (POINT));
    MEMBER(BOOL, operator==, (POINT) const);
}

INTERFACE_OF(CSize) {
    BASE(tagSIZE);
    MADE_FROM();
    MADE_FROM(int, int);
    MADE_FROM(SIZE);
    MADE_FROM(POINT);
    MADE_FROM(DWORD);
    MEMBER(CSize, operator-, (SIZE) const);
    MEMBER(CPoint, operator-, (POINT) const);
    MEMBER(CRect, operator-, (const RECT*) const);
    MEMBER(CSize, operator-, () const);
    MEMBER(BOOL, operator!=, (SIZE) const);
    MEMBER(CSize, operator+, (SIZE) const);
    MEMBER(CPoint, operator+, (POINT) const);
    MEMBER(CRect, operator+, (const RECT*) const);
    MEMBER(void, operator+=, (SIZE));
    MEMBER(void, operator-=, (SIZE));
    MEMBER(BOOL, operator==, (SIZE) const);
}

INTERFACE_OF(CRect) {
    BASE(tagRECT);
    MADE_FROM();
    MADE_FROM(int, int, int, int);
    MADE_FROM(const RECT&);
    MADE_FROM(LPCRECT);
    MADE_FROM(POINT, SIZE);
    MADE_FROM(POINT, POINT);
    MEMBER(CPoint&, BottomRight, ());
    MEMBER(const CPoint&, BottomRight, () const);
    MEMBER(CPoint, CenterPoint, () const);
    MEMBER(void, CopyRect, (LPCRECT));
    MEMBER(void, DeflateRect, (int, int));
    MEMBER(void, DeflateRect, (SIZE));
    MEMBER(void, DeflateRect, (LPCRECT));
    MEMBER(void, DeflateRect, (int, int, int, int));
    MEMBER(BOOL, EqualRect, (LPCRECT) const);
    MEMBER(int, Height, () const);
    MEMBER(void, InflateRect, (int, int));
    MEMBER(void, InflateRect, (SIZE));
    MEMBER(void, InflateRect, (LPCRECT));
    MEMBER(void, InflateRect, (int, int, int, int));
    MEMBER(BOOL, IntersectRect, (LPCRECT, LPCRECT));
    MEMBER(BOOL, IsRectEmpty, () const);
    MEMBER(BOOL, IsRectNull, () const);
    MEMBER(void, MoveToX, (int));
    MEMBER(void, MoveToXY, (int, int));
    MEMBER(void, MoveToXY, (POINT));
    MEMBER(void, MoveToY, (int));
    MEMBER(void, NormalizeRect, ());
    MEMBER(void, OffsetRect, (int, int));
    MEMBER(void, OffsetRect, (POINT));
    MEMBER(void, OffsetRect, (SIZE));
    MEMBER(BOOL, PtInRect, (POINT) const);
    MEMBER(void, SetRect, (int, int, int, int));
    MEMBER(void, SetRectEmpty, ());
    MEMBER(CSize, Size, () const);
    MEMBER(BOOL, SubtractRect, (LPCRECT, LPCRECT));
    MEMBER(CPoint&, TopLeft, ());
    MEMBER(const CPoint&, TopLeft, () const);
    MEMBER(BOOL, UnionRect, (LPCRECT, LPCRECT));
    MEMBER(int, Width, () const);
    MEMBER(CRect, operator-, (POINT) const);
    MEMBER(CRect, operator-, (SIZE) const);
    MEMBER(CRect, operator-, (LPCRECT) const);
    MEMBER(LPCRECT, operator LPCRECT, () const);
    MEMBER(LPRECT, operator LPRECT, ());
    MEMBER(BOOL, operator!=, (const RECT&) const);
    MEMBER(CRect, operator&, (const RECT&) const);
    MEMBER(void, operator&=, (const RECT&));
    MEMBER(CRect, operator|, (const RECT&) const);
    MEMBER(void, operator|=, (const RECT&));
    MEMBER(CRect, operator+, (POINT) const);
    MEMBER(CRect, operator+, (LPCRECT) const);
    MEMBER(CRect, operator+, (SIZE) const);
    MEMBER(void, operator+=, (POINT));
    MEMBER(void, operator+=, (SIZE));
    MEMBER(void, operator+=, (LPCRECT));
    MEMBER(void, operator=, (const RECT&));
    MEMBER(void, operator-=, (POINT));
    MEMBER(void, operator-=, (SIZE));
    MEMBER(void, operator-=, (LPCRECT));
    MEMBER(BOOL, operator==, (const RECT&) const);
}

INTERFACE_OF(CTime) {
    MADE_FROM();
    MADE_FROM(__time64_t);
    MADE_FROM(int, int, int, int, int, int, int);
    MADE_FROM(WORD, WORD, int);
    MADE_FROM(const SYSTEMTIME&, int);
    MADE_FROM(const FILETIME&, int);
    MEMBER(CString, Format, (LPCTSTR) const);
    MEMBER(CString, Format, (UINT) const);
    MEMBER(CString, FormatGmt, (LPCTSTR) const);
    MEMBER(CString, FormatGmt, (UINT) const);
    MEMBER(bool, GetAsSystemTime, (SYSTEMTIME&) const);
    STATIC(CTime, GetCurrentTime, ());
    NAMED(GetYear);
    MEMBER(int, GetDay, () const);
    MEMBER(int, GetDayOfWeek, () const);
    MEMBER(struct tm*, GetGmtTm, (struct tm*) const);
    MEMBER(int, GetHour, () const);
    MEMBER(struct tm*, GetLocalTm, (struct tm*) const);
    MEMBER(int, GetMinute, () const);
    MEMBER(int, GetMonth, () const);
    MEMBER(int, GetSecond, () const);
    MEMBER(__time64_t, GetTime, () const);
    MEMBER(CArchive&, Serialize64, (CArchive&));
    MEMBER(CTime&, operator+=, (CTimeSpan));
    MEMBER(CTime&, operator-=, (CTimeSpan));
    MEMBER(CTime&, operator=, (__time64_t));
    MEMBER(CTime, operator+, (CTimeSpan) const);
    MEMBER(CTime, operator-, (CTimeSpan) const);
    MEMBER(CTimeSpan, operator-, (CTime) const);
}

INTERFACE_OF(CTimeSpan) {
    MADE_FROM();
    MADE_FROM(__time64_t);
    MADE_FROM(LONG, int, int, int);
    MEMBER(CString, Format, (LPCSTR) const);
    MEMBER(CString, Format, (LPCTSTR) const);
    MEMBER(CString, Format, (UINT) const);
    MEMBER(LONGLONG, GetDays, () const);
    MEMBER(LONG, GetHours, () const);
    MEMBER(LONG, GetMinutes, () const);
    MEMBER(LONG, GetSeconds, () const);
    MEMBER(__time64_t, GetTimeSpan, () const);
    MEMBER(LONGLONG, GetTotalHours, () const);
    MEMBER(LONGLONG, GetTotalMinutes, () const);
    MEMBER(LONGLONG, GetTotalSeconds, () const);
    MEMBER(CArchive&, Serialize64, (CArchive&));
    MEMBER(CTimeSpan, operator+, (CTimeSpan) const);
    MEMBER(CTimeSpan, operator-, (CTimeSpan) const);
    MEMBER(CTimeSpan&, operator+=, (CTimeSpan));
    MEMBER(CTimeSpan&, operator-=, (CTimeSpan));
}
