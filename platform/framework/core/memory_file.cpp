#include "fx/file.h"

#include <algorithm>
#include <cstdlib>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT nGrowBytes) : m_growBytes(nGrowBytes) {}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) { Attach(lpBuffer, nBufferSize, nGrowBytes); }

CMemFile::~CMemFile() { CMemFile::Close(); }

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    ENSURE(m_buffer == nullptr);
    m_buffer = lpBuffer;
    m_capacity = nBufferSize;
    // Memory that may grow is given over empty, to be written; fixed memory is there to be read.
    m_length = nGrowBytes == 0 ? nBufferSize : 0;
    m_position = 0;
    m_growBytes = nGrowBytes;
    m_ownsBuffer = nGrowBytes != 0;
}

BYTE* CMemFile::Detach() {
    BYTE* const buffer = m_buffer;
    m_buffer = nullptr;
    m_capacity = m_length = m_position = 0;
    return buffer;
}

BOOL CMemFile::Open(LPCTSTR, UINT, CFileException*) { AfxThrowNotSupportedException(); }
CFile* CMemFile::Duplicate() const { AfxThrowNotSupportedException(); }
void CMemFile::LockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException(); }
void CMemFile::UnlockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException(); }

ULONGLONG CMemFile::GetPosition() const { return m_position; }
ULONGLONG CMemFile::GetLength() const { return m_length; }

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom) {
    LONGLONG place = lOff;
    if (nFrom == current) {
        place += static_cast<LONGLONG>(m_position);
    } else if (nFrom == end) {
        place += static_cast<LONGLONG>(m_length);
    }
    if (place < 0) {
        AfxThrowFileException(CFileException::badSeek);
    }
    m_position = static_cast<std::size_t>(place);
    return m_position;
}

void CMemFile::Reserve(std::size_t size) {
    if (size <= m_capacity) {
        return;
    }
    if (m_growBytes == 0) {
        AfxThrowFileException(CFileException::diskFull);
    }
    // Half as much again at least, so that many small writes stay linear.
    const std::size_t wanted = std::max(size, m_capacity + std::max<std::size_t>(m_growBytes, m_capacity / 2));
    BYTE* const grown = static_cast<BYTE*>(std::realloc(m_buffer, wanted));
    if (grown == nullptr) {
        AfxThrowMemoryException();
    }
    m_buffer = grown;
    m_capacity = wanted;
}

void CMemFile::SetLength(ULONGLONG dwNewLen) {
    const std::size_t length = static_cast<std::size_t>(dwNewLen);
    Reserve(length);
    if (length > m_length) {
        std::memset(m_buffer + m_length, 0, length - m_length);
    }
    m_length = length;
    m_position = std::min(m_position, m_length);
}

UINT CMemFile::Read(void* lpBuf, UINT nCount) {
    if (m_position >= m_length) {
        return 0;
    }
    const std::size_t count = std::min<std::size_t>(nCount, m_length - m_position);
    std::memcpy(lpBuf, m_buffer + m_position, count);
    m_position += count;
    return static_cast<UINT>(count);
}

void CMemFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0) {
        return;
    }
    const std::size_t end = m_position + nCount;
    Reserve(end);
    if (m_position > m_length) {
        std::memset(m_buffer + m_length, 0, m_position - m_length);
    }
    std::memcpy(m_buffer + m_position, lpBuf, nCount);
    m_position = end;
    m_length = std::max(m_length, end);
}

void CMemFile::Abort() { Close(); }
void CMemFile::Flush() {}

void CMemFile::Close() {
    if (m_ownsBuffer) {
        std::free(m_buffer);
    }
    Detach();
    m_growBytes = 0;
}
