#pragma once

// CArchive: objects and values in a binary stream on a CFile. Numbers are little-endian.

#include "atltypes.h"
#include "fx/file.h"

#include <memory>

class CArchive;
class CDocument;

namespace fx {

constexpr int kDeepestOwnedObject = 32;

/// What collections ask of an archive that may be damaged.
struct FRAMEWORK_API ArchiveChecks {
    /// For lists that own what they read: like CArchive::ReadObject, but null and an object that the archive has given
    /// before throw badIndex, and so do lists within lists deeper than any that a person makes (kDeepestOwnedObject).
    static CObject* ReadOwnedObject(CArchive& ar, const CRuntimeClass* pClass);
    /// Throws endOfFile when the archive has less than a byte left for each of `count` elements: a damaged count must
    /// not become an allocation. An archive on a file without a length is not checked.
    static void RequireElements(CArchive& ar, ULONGLONG count);
};

} // namespace fx

/// One direction for its whole life. The file must outlive it. Errors throw CArchiveException or CFileException.
class FRAMEWORK_API CArchive {
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = nullptr);
    /// Closes, unless bNoFlushOnDelete was given.
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_mode & load) != 0; }
    BOOL IsStoring() const { return !IsLoading(); }
    BOOL IsBufferEmpty() const { return m_place == m_limit; }
    CFile* GetFile() const { return m_file; }
    /// Schema of the object being read, once; -1 when unknown.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema) { m_objectSchema = nSchema; }

    UINT Read(void* lpBuf, UINT nMax);
    void Write(const void* lpBuf, INT nMax);
    void Flush();
    void Close();
    void Abort();

    /// Text without a length in front; WriteString adds no line end, ReadString reads up to one. FALSE, null: at the
    /// end.
    void WriteString(LPCTSTR lpsz);
    LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    BOOL ReadString(CString& rString);

    /// Stores class and content, or a reference when this archive has already stored the object. Null is allowed.
    void WriteObject(const CObject* pOb);
    /// The object is new (the caller owns it) or one already read. Throws badClass when it is not of class pClass.
    CObject* ReadObject(const CRuntimeClass* pClass);
    /// Makes an object that is not stored itself a target of references.
    void MapObject(const CObject* pOb);
    void WriteClass(const CRuntimeClass* pClassRef);
    CRuntimeClass* ReadClass(const CRuntimeClass* pClassRefRequested = nullptr, UINT* pSchema = nullptr,
                             DWORD* pObTag = nullptr);
    void SerializeClass(const CRuntimeClass* pClassRef);
    void SetLoadParams(UINT nGrowBy = 1024);
    void SetStoreParams(UINT nHashSize = 2053, UINT nBlockSize = 128);

    CArchive& operator<<(BYTE by) { return Put(by); }
    CArchive& operator<<(WORD w) { return Put(w); }
    CArchive& operator<<(LONG l) { return Put(l); }
    CArchive& operator<<(DWORD dw) { return Put(dw); }
    CArchive& operator<<(float f) { return Put(f); }
    CArchive& operator<<(double d) { return Put(d); }
    CArchive& operator<<(int i) { return Put(i); }
    CArchive& operator<<(short w) { return Put(w); }
    CArchive& operator<<(char ch) { return Put(ch); }
    CArchive& operator<<(wchar_t ch) { return Put(ch); }
    CArchive& operator<<(unsigned u) { return Put(u); }
    CArchive& operator<<(bool b) { return Put(static_cast<BYTE>(b ? 1 : 0)); }
    CArchive& operator<<(ULONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator<<(LONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator>>(BYTE& by) { return Get(by); }
    CArchive& operator>>(WORD& w) { return Get(w); }
    CArchive& operator>>(LONG& l) { return Get(l); }
    CArchive& operator>>(DWORD& dw) { return Get(dw); }
    CArchive& operator>>(float& f) { return Get(f); }
    CArchive& operator>>(double& d) { return Get(d); }
    CArchive& operator>>(int& i) { return Get(i); }
    CArchive& operator>>(short& w) { return Get(w); }
    CArchive& operator>>(char& ch) { return Get(ch); }
    CArchive& operator>>(wchar_t& ch) { return Get(ch); }
    CArchive& operator>>(unsigned& u) { return Get(u); }
    CArchive& operator>>(bool& b) {
        BYTE byte = 0;
        Get(byte);
        b = byte != 0;
        return *this;
    }
    CArchive& operator>>(ULONGLONG& dwdw) { return Get(dwdw); }
    CArchive& operator>>(LONGLONG& dwdw) { return Get(dwdw); }

    template <typename BaseType, class StringTraits>
    CArchive& operator<<(const CStringT<BaseType, StringTraits>& str) {
        WriteText(str.GetString(), str.GetLength());
        return *this;
    }
    template <typename BaseType, class StringTraits>
    CArchive& operator>>(CStringT<BaseType, StringTraits>& str) {
        std::basic_string<BaseType> text;
        ReadText(text);
        str.SetString(text.data(), static_cast<int>(text.size()));
        return *this;
    }

    /// For documents: the document being stored or loaded.
    CDocument* m_pDocument = nullptr;

private:
    friend struct fx::ArchiveChecks;
    struct Objects;

    template <typename T>
    CArchive& Put(T value) {
        Write(&value, sizeof(value));
        return *this;
    }
    template <typename T>
    CArchive& Get(T& value) {
        ReadExactly(&value, sizeof(value));
        return *this;
    }
    void ReadExactly(void* target, UINT size);
    UINT Fill();
    void WriteText(const wchar_t* text, int length);
    void WriteText(const char* text, int length);
    void ReadText(std::wstring& text);
    void ReadText(std::string& text);
    void WriteTag(DWORD index, bool isClass);
    [[noreturn]] void Fail(int cause) const;

    CFile* m_file;
    UINT m_mode;
    std::unique_ptr<BYTE[]> m_ownBuffer;
    BYTE* m_buffer;
    BYTE* m_place; ///< next byte to write or read
    BYTE* m_limit; ///< storing: end of the buffer; loading: end of what was read
    int m_bufferSize;
    UINT m_objectSchema = static_cast<UINT>(-1);
    std::unique_ptr<Objects> m_objects;
};

inline CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb) {
    ar.WriteObject(pOb);
    return ar;
}
inline CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}
inline CArchive& AFXAPI operator>>(CArchive& ar, const CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}
FRAMEWORK_API CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect);
FRAMEWORK_API CArchive& AFXAPI operator<<(CArchive& ar, POINT point);
FRAMEWORK_API CArchive& AFXAPI operator<<(CArchive& ar, SIZE size);
FRAMEWORK_API CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect);
FRAMEWORK_API CArchive& AFXAPI operator>>(CArchive& ar, POINT& point);
FRAMEWORK_API CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size);
