#include "varnhold/key.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace {

/// False when a variable could not be replaced for want of memory.
bool ExpandVariables(const std::wstring& text, std::wstring& expanded) {
    std::vector<wchar_t> buffer(text.size() + MAX_PATH);
    while (true) {
        const DWORD size = ExpandEnvironmentStringsW(text.c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
        if (size == 0) {
            return false;
        }
        if (size <= buffer.size()) {
            expanded = buffer.data();
            return true;
        }
        buffer.resize(size);
    }
}

} // namespace

CKey::~CKey() { Close(); }

CKey::CKey(CKey&& other) noexcept : m_key(std::exchange(other.m_key, nullptr)) {}

CKey& CKey::operator=(CKey&& other) noexcept {
    std::swap(m_key, other.m_key);
    return *this;
}

bool CKey::Open(HKEY root, const wchar_t* path) {
    Close();
    std::wstring cleanPath = path ? path : L"";
    while (!cleanPath.empty() && cleanPath.back() == L'\\') {
        cleanPath.pop_back();
    }
    return RegOpenKeyExW(root, cleanPath.c_str(), 0, KEY_READ, &m_key) == ERROR_SUCCESS;
}

bool CKey::Open(HKEY root, const std::wstring& path) { return Open(root, path.c_str()); }

void CKey::Close() {
    if (m_key) {
        RegCloseKey(std::exchange(m_key, nullptr));
    }
}

bool CKey::GetStringValue(const wchar_t* name, std::wstring& value) const {
    if (!m_key) {
        return false;
    }
    DWORD type = 0;
    std::vector<std::byte> data(512);
    LSTATUS status = ERROR_MORE_DATA;
    DWORD size = 0;
    // Another process may make the value longer between two calls.
    while (status == ERROR_MORE_DATA) {
        size = static_cast<DWORD>(data.size());
        status = RegQueryValueExW(m_key, name, nullptr, &type, reinterpret_cast<BYTE*>(data.data()), &size);
        if (status == ERROR_MORE_DATA) {
            data.resize(std::max<std::size_t>(size, data.size() * 2));
        }
    }
    if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ)) {
        return false;
    }
    std::wstring text(reinterpret_cast<const wchar_t*>(data.data()), size / sizeof(wchar_t));
    text.resize(std::min(text.find(L'\0'), text.size()));
    if (type == REG_EXPAND_SZ) {
        return ExpandVariables(text, value);
    }
    value = std::move(text);
    return true;
}

bool CKey::GetStringValue(const std::wstring& name, std::wstring& value) const {
    return GetStringValue(name.c_str(), value);
}
