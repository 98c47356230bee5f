#include "atltime.h"

#include "fx/archive.h"
#include "fx/exceptions.h"

#include <cwchar>
#include <vector>

namespace {

/// From 1601, where file times begin, to 1970, in units of 100 ns.
constexpr ULONGLONG fileTimeOf1970 = 116'444'736'000'000'000ULL;
constexpr ULONGLONG fileTimeSecond = 10'000'000;

CString Loaded(UINT id) {
    CString text;
    if (!text.LoadString(id)) {
        AfxThrowInvalidArgException();
    }
    return text;
}

/// -1 when the parts are no time.
__time64_t FromLocalParts(int year, int month, int day, int hour, int minute, int second, int daylight) {
    struct tm parts = {};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    parts.tm_isdst = daylight;
    return _mktime64(&parts);
}

CString FormatParts(const struct tm* parts, LPCTSTR format) {
    if (parts == nullptr || format == nullptr) {
        AfxThrowInvalidArgException();
    }
    if (*format == L'\0') {
        return {};
    }
    // 0 means that it did not fit, or that the text is empty: no format makes it longer than this.
    constexpr std::size_t longest = 1 << 16;
    std::vector<wchar_t> text(128);
    while (text.size() <= longest) {
        // Some systems answer a full buffer where others answer 0 for a text that does not fit.
        const std::size_t length = std::wcsftime(text.data(), text.size(), format, parts);
        if (length != 0 && length + 1 < text.size()) {
            return {text.data(), static_cast<int>(length)};
        }
        text.resize(text.size() * 4);
    }
    return {};
}

void Serialize(CArchive& archive, __time64_t& value) {
    if (archive.IsStoring()) {
        archive << static_cast<LONGLONG>(value);
    } else {
        LONGLONG read = 0;
        archive >> read;
        value = read;
    }
}

} // namespace

CTimeSpan::CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept
    : m_seconds(nSecs + 60 * (nMins + 60 * (nHours + 24 * static_cast<__time64_t>(lDays)))) {}

CTimeSpan& CTimeSpan::operator+=(CTimeSpan span) noexcept {
    m_seconds += span.m_seconds;
    return *this;
}

CTimeSpan& CTimeSpan::operator-=(CTimeSpan span) noexcept {
    m_seconds -= span.m_seconds;
    return *this;
}

CString CTimeSpan::Format(LPCSTR pFormat) const { return Format(static_cast<LPCTSTR>(CString(pFormat))); }

CString CTimeSpan::Format(LPCTSTR pszFormat) const {
    CString text;
    for (LPCTSTR at = pszFormat; at != nullptr && *at != L'\0'; ++at) {
        if (*at != L'%') {
            text.AppendChar(*at);
            continue;
        }
        switch (*++at) {
        case L'D':
            text.AppendFormat(L"%lld", GetDays());
            break;
        case L'H':
            text.AppendFormat(L"%02ld", GetHours());
            break;
        case L'M':
            text.AppendFormat(L"%02ld", GetMinutes());
            break;
        case L'S':
            text.AppendFormat(L"%02ld", GetSeconds());
            break;
        case L'%':
            text.AppendChar(L'%');
            break;
        default:
            AfxThrowInvalidArgException();
        }
    }
    return text;
}

CString CTimeSpan::Format(UINT nID) const { return Format(static_cast<LPCTSTR>(Loaded(nID))); }

CArchive& CTimeSpan::Serialize64(CArchive& ar) {
    Serialize(ar, m_seconds);
    return ar;
}

CTime WINAPI CTime::GetCurrentTime() noexcept { return _time64(nullptr); }

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST)
    : m_time(FromLocalParts(nYear, nMonth, nDay, nHour, nMin, nSec, nDST)) {
    const bool isInRange = nYear >= 1970 && nYear <= 3000 && nMonth >= 1 && nMonth <= 12 && nDay >= 1 && nDay <= 31 &&
                           nHour >= 0 && nHour <= 23 && nMin >= 0 && nMin <= 59 && nSec >= 0 && nSec <= 59;
    if (!isInRange || m_time == -1) {
        AfxThrowInvalidArgException();
    }
}

CTime::CTime(WORD wDosDate, WORD wDosTime, int nDST)
    : CTime((wDosDate >> 9) + 1980, wDosDate >> 5 & 15, wDosDate & 31, wDosTime >> 11, wDosTime >> 5 & 63,
            (wDosTime & 31) * 2, nDST) {}

CTime::CTime(const SYSTEMTIME& st, int nDST) noexcept
    : m_time(FromLocalParts(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, nDST)) {
    if (st.wYear < 1900 || m_time == -1) {
        m_time = 0;
    }
}

CTime::CTime(const FILETIME& ft, int) {
    const ULONGLONG time = static_cast<ULONGLONG>(ft.dwHighDateTime) << 32 | ft.dwLowDateTime;
    if (time >= fileTimeOf1970) {
        m_time = static_cast<__time64_t>((time - fileTimeOf1970) / fileTimeSecond);
    }
}

CTime& CTime::operator=(__time64_t time) noexcept {
    m_time = time;
    return *this;
}

CTime& CTime::operator+=(CTimeSpan span) noexcept {
    m_time += span.GetTimeSpan();
    return *this;
}

CTime& CTime::operator-=(CTimeSpan span) noexcept {
    m_time -= span.GetTimeSpan();
    return *this;
}

struct tm* CTime::GetGmtTm(struct tm* ptm) const {
    return ptm != nullptr && _gmtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

struct tm* CTime::GetLocalTm(struct tm* ptm) const {
    return ptm != nullptr && _localtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

struct tm CTime::LocalParts() const noexcept {
    struct tm parts = {};
    // A time that has no parts (before 1970) answers that of an empty structure.
    GetLocalTm(&parts);
    return parts;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const noexcept {
    struct tm parts = {};
    if (GetLocalTm(&parts) == nullptr) {
        return false;
    }
    st.wYear = static_cast<WORD>(parts.tm_year + 1900);
    st.wMonth = static_cast<WORD>(parts.tm_mon + 1);
    st.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    st.wDay = static_cast<WORD>(parts.tm_mday);
    st.wHour = static_cast<WORD>(parts.tm_hour);
    st.wMinute = static_cast<WORD>(parts.tm_min);
    st.wSecond = static_cast<WORD>(parts.tm_sec);
    st.wMilliseconds = 0;
    return true;
}

int CTime::GetYear() const noexcept { return LocalParts().tm_year + 1900; }
int CTime::GetMonth() const noexcept { return LocalParts().tm_mon + 1; }
int CTime::GetDay() const noexcept { return LocalParts().tm_mday; }
int CTime::GetHour() const noexcept { return LocalParts().tm_hour; }
int CTime::GetMinute() const noexcept { return LocalParts().tm_min; }
int CTime::GetSecond() const noexcept { return LocalParts().tm_sec; }
int CTime::GetDayOfWeek() const noexcept { return LocalParts().tm_wday + 1; }

CString CTime::Format(LPCTSTR pszFormat) const {
    struct tm parts = {};
    return FormatParts(GetLocalTm(&parts), pszFormat);
}

CString CTime::Format(UINT nFormatID) const { return Format(static_cast<LPCTSTR>(Loaded(nFormatID))); }

CString CTime::FormatGmt(LPCTSTR pszFormat) const {
    struct tm parts = {};
    return FormatParts(GetGmtTm(&parts), pszFormat);
}

CString CTime::FormatGmt(UINT nFormatID) const { return FormatGmt(static_cast<LPCTSTR>(Loaded(nFormatID))); }

CArchive& CTime::Serialize64(CArchive& ar) {
    Serialize(ar, m_time);
    return ar;
}
