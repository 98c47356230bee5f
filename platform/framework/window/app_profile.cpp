// The application's settings: registry key or .ini file.
#include "fx/app.h"

#include <memory>
#include <vector>

namespace {

struct KeyCloser {
    void operator()(HKEY key) const { ::RegCloseKey(key); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

Key OpenOrCreate(HKEY parent, LPCTSTR name) {
    HKEY key = nullptr;
    if (::RegCreateKeyEx(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, nullptr, &key,
                         nullptr) != ERROR_SUCCESS) {
        return nullptr;
    }
    return Key(key);
}

/// The value's bytes; false when there is none of that type.
bool ReadValue(HKEY key, LPCTSTR entry, DWORD type, std::vector<BYTE>& bytes) {
    DWORD found = 0;
    DWORD size = 0;
    if (key == nullptr || ::RegQueryValueEx(key, entry, nullptr, &found, nullptr, &size) != ERROR_SUCCESS ||
        found != type) {
        return false;
    }
    bytes.resize(size);
    return ::RegQueryValueEx(key, entry, nullptr, &found, bytes.data(), &size) == ERROR_SUCCESS;
}

bool WriteValue(HKEY key, LPCTSTR entry, DWORD type, const void* data, std::size_t size) {
    return key != nullptr && ::RegSetValueEx(key, entry, 0, type, static_cast<const BYTE*>(data),
                                             static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

/// .ini files hold text: each byte as two letters from 'A'.
std::wstring EncodeBytes(const BYTE* data, UINT count) {
    std::wstring text;
    text.reserve(count * 2u);
    for (UINT index = 0; index < count; ++index) {
        text += static_cast<wchar_t>(L'A' + (data[index] & 0x0F));
        text += static_cast<wchar_t>(L'A' + (data[index] >> 4));
    }
    return text;
}

std::wstring ReadIniText(LPCTSTR section, LPCTSTR entry, LPCTSTR fallback, LPCTSTR file) {
    std::wstring text(256, L'\0');
    for (;;) {
        const auto size = static_cast<DWORD>(text.size());
        const DWORD length = ::GetPrivateProfileString(section, entry, fallback, text.data(), size, file);
        // A text that was cut fills all but the closing zero.
        if (length + 1 < size) {
            text.resize(length);
            return text;
        }
        text.resize(text.size() * 2);
    }
}

} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    ASSERT(lpszRegistryKey != nullptr);
    m_pszRegistryKey = Keep(lpszRegistryKey);
    m_pszProfileName = m_pszAppName != nullptr ? Keep(m_pszAppName) : nullptr;
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey) {
    CString key;
    VERIFY(key.LoadString(nIDRegistryKey));
    SetRegistryKey(static_cast<LPCTSTR>(key));
}

void CWinApp::SetAppID(LPCTSTR lpcszAppID) { m_pszAppID = Keep(lpcszAppID); }

HKEY CWinApp::GetAppRegistryKey() {
    ASSERT(m_pszRegistryKey != nullptr && m_pszProfileName != nullptr);
    const std::wstring path = std::wstring(L"Software\\") + m_pszRegistryKey + L"\\" + m_pszProfileName;
    return OpenOrCreate(HKEY_CURRENT_USER, path.c_str()).release();
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection) {
    const Key application(GetAppRegistryKey());
    return application != nullptr ? OpenOrCreate(application.get(), lpszSection).release() : nullptr;
}

LONG CWinApp::DelRegTree(HKEY hParentKey, const CString& strKeyName) { return ::RegDeleteTree(hParentKey, strKeyName); }

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    if (m_pszRegistryKey == nullptr) {
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    }
    const Key section(GetSectionKey(lpszSection));
    std::vector<BYTE> bytes;
    if (!ReadValue(section.get(), lpszEntry, REG_DWORD, bytes) || bytes.size() != sizeof(DWORD)) {
        return static_cast<UINT>(nDefault);
    }
    return *reinterpret_cast<const DWORD*>(bytes.data());
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    if (m_pszRegistryKey == nullptr) {
        return ::WritePrivateProfileString(lpszSection, lpszEntry, std::to_wstring(nValue).c_str(), m_pszProfileName);
    }
    const Key section(GetSectionKey(lpszSection));
    const DWORD value = static_cast<DWORD>(nValue);
    return WriteValue(section.get(), lpszEntry, REG_DWORD, &value, sizeof(value));
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    const LPCTSTR fallback = lpszDefault != nullptr ? lpszDefault : L"";
    if (m_pszRegistryKey == nullptr) {
        return CString(ReadIniText(lpszSection, lpszEntry, fallback, m_pszProfileName).c_str());
    }
    const Key section(GetSectionKey(lpszSection));
    std::vector<BYTE> bytes;
    if (!ReadValue(section.get(), lpszEntry, REG_SZ, bytes)) {
        return CString(fallback);
    }
    // The registry does not promise a closing zero.
    std::wstring text(reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / sizeof(wchar_t));
    return CString(text.c_str());
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    if (m_pszRegistryKey == nullptr) {
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    }
    if (lpszEntry == nullptr) {
        const Key application(GetAppRegistryKey());
        return application != nullptr && ::RegDeleteTree(application.get(), lpszSection) == ERROR_SUCCESS;
    }
    const Key section(GetSectionKey(lpszSection));
    if (lpszValue == nullptr) {
        const LONG result = section != nullptr ? ::RegDeleteValue(section.get(), lpszEntry) : ERROR_INVALID_HANDLE;
        return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
    }
    return WriteValue(section.get(), lpszEntry, REG_SZ, lpszValue, (::lstrlen(lpszValue) + 1) * sizeof(wchar_t));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    std::vector<BYTE> bytes;
    if (m_pszRegistryKey != nullptr) {
        const Key section(GetSectionKey(lpszSection));
        if (!ReadValue(section.get(), lpszEntry, REG_BINARY, bytes)) {
            return FALSE;
        }
    } else {
        const CString text = GetProfileString(lpszSection, lpszEntry);
        if (text.IsEmpty()) {
            return FALSE;
        }
        for (int index = 0; index + 1 < text.GetLength(); index += 2) {
            bytes.push_back(static_cast<BYTE>((text[index] - L'A') | ((text[index + 1] - L'A') << 4)));
        }
    }
    *pBytes = static_cast<UINT>(bytes.size());
    *ppData = new BYTE[bytes.size()];
    std::copy(bytes.begin(), bytes.end(), *ppData);
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    if (m_pszRegistryKey == nullptr) {
        return WriteProfileString(lpszSection, lpszEntry, EncodeBytes(pData, nBytes).c_str());
    }
    const Key section(GetSectionKey(lpszSection));
    return WriteValue(section.get(), lpszEntry, REG_BINARY, pData, nBytes);
}
