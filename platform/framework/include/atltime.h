#pragma once

// Points in time and spans between them, in whole seconds.

#include "fx/string.h"

#include <time.h>

class CArchive;

// The system's headers make a macro of a member's name.
#undef GetCurrentTime

/// A span of time, which may be negative.
class FRAMEWORK_API CTimeSpan {
public:
    CTimeSpan() noexcept = default;
    CTimeSpan(__time64_t time) noexcept : m_seconds(time) {}
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept;

    LONGLONG GetDays() const noexcept { return m_seconds / (24 * 3600); }
    LONGLONG GetTotalHours() const noexcept { return m_seconds / 3600; }
    /// What is left of the day: -23 to 23; likewise the minutes of the hour and the seconds of the minute.
    LONG GetHours() const noexcept { return static_cast<LONG>(GetTotalHours() % 24); }
    LONGLONG GetTotalMinutes() const noexcept { return m_seconds / 60; }
    LONG GetMinutes() const noexcept { return static_cast<LONG>(GetTotalMinutes() % 60); }
    LONGLONG GetTotalSeconds() const noexcept { return m_seconds; }
    LONG GetSeconds() const noexcept { return static_cast<LONG>(m_seconds % 60); }
    __time64_t GetTimeSpan() const noexcept { return m_seconds; }

    CTimeSpan operator+(CTimeSpan span) const noexcept { return m_seconds + span.m_seconds; }
    CTimeSpan operator-(CTimeSpan span) const noexcept { return m_seconds - span.m_seconds; }
    CTimeSpan& operator+=(CTimeSpan span) noexcept;
    CTimeSpan& operator-=(CTimeSpan span) noexcept;
    bool operator==(CTimeSpan span) const noexcept { return m_seconds == span.m_seconds; }
    bool operator!=(CTimeSpan span) const noexcept { return m_seconds != span.m_seconds; }
    bool operator<(CTimeSpan span) const noexcept { return m_seconds < span.m_seconds; }
    bool operator>(CTimeSpan span) const noexcept { return m_seconds > span.m_seconds; }
    bool operator<=(CTimeSpan span) const noexcept { return m_seconds <= span.m_seconds; }
    bool operator>=(CTimeSpan span) const noexcept { return m_seconds >= span.m_seconds; }

    /// %D days, %H hours, %M minutes, %S seconds, %% a percent sign; other codes throw CInvalidArgException.
    CString Format(LPCSTR pFormat) const;
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nID) const;

    CArchive& Serialize64(CArchive& ar);

private:
    __time64_t m_seconds = 0;
};

/// Seconds since 1970-01-01 00:00 UTC; parts and texts are in local time unless they say otherwise.
class FRAMEWORK_API CTime {
public:
    static CTime WINAPI GetCurrentTime() noexcept;

    CTime() noexcept = default;
    CTime(__time64_t time) noexcept : m_time(time) {}
    /// Local time. nDST: 0 standard time, above daylight saving, below: as the system's rules say. A date outside of
    /// 1970 to 3000, or parts that make no date, throw CInvalidArgException.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    CTime(WORD wDosDate, WORD wDosTime, int nDST = -1);
    /// 0 when there is no such time.
    CTime(const SYSTEMTIME& st, int nDST = -1) noexcept;
    CTime(const FILETIME& ft, int nDST = -1);

    CTime& operator=(__time64_t time) noexcept;
    CTime& operator+=(CTimeSpan span) noexcept;
    CTime& operator-=(CTimeSpan span) noexcept;
    CTimeSpan operator-(CTime time) const noexcept { return m_time - time.m_time; }
    CTime operator-(CTimeSpan timeSpan) const noexcept { return m_time - timeSpan.GetTimeSpan(); }
    CTime operator+(CTimeSpan timeSpan) const noexcept { return m_time + timeSpan.GetTimeSpan(); }
    bool operator==(CTime time) const noexcept { return m_time == time.m_time; }
    bool operator!=(CTime time) const noexcept { return m_time != time.m_time; }
    bool operator<(CTime time) const noexcept { return m_time < time.m_time; }
    bool operator>(CTime time) const noexcept { return m_time > time.m_time; }
    bool operator<=(CTime time) const noexcept { return m_time <= time.m_time; }
    bool operator>=(CTime time) const noexcept { return m_time >= time.m_time; }

    /// Fill the caller's structure and answer it; null when the time has no such parts.
    struct tm* GetGmtTm(struct tm* ptm) const;
    struct tm* GetLocalTm(struct tm* ptm) const;
    bool GetAsSystemTime(SYSTEMTIME& st) const noexcept;
    __time64_t GetTime() const noexcept { return m_time; }
    int GetYear() const noexcept;
    int GetMonth() const noexcept;     ///< 1 to 12
    int GetDay() const noexcept;       ///< 1 to 31
    int GetHour() const noexcept;      ///< 0 to 23
    int GetMinute() const noexcept;    ///< 0 to 59
    int GetSecond() const noexcept;    ///< 0 to 59
    int GetDayOfWeek() const noexcept; ///< 1 is Sunday

    /// The codes of strftime.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nFormatID) const;
    CString FormatGmt(LPCTSTR pszFormat) const;
    CString FormatGmt(UINT nFormatID) const;

    CArchive& Serialize64(CArchive& ar);

private:
    struct tm LocalParts() const noexcept;

    __time64_t m_time = 0;
};
