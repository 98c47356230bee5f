#include "afxkeyboardmanager.h"

#include "afxacceleratorkey.h"
#include "core/letters.h"
#include "fx/app.h"
#include "fx/archive.h"
#include "fx/state_store.h"
#include "panes/frame_keys_list.h"

#include <algorithm>
#include <vector>

bool CKeyboardManager::s_isShowAll = false;
CString CKeyboardManager::s_delimiter(L"; ");

namespace {

CFrameWnd* FrameOrMain(CFrameWnd* frame) { return frame ? frame : DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd()); }

std::vector<ACCEL> EntriesOf(CFrameWnd* frame) { return panes::KeysOf(FrameOrMain(frame)); }

constexpr LPCTSTR kKeysEntry = L"Keys";
constexpr BYTE kKnownFlags = FVIRTKEY | FNOINVERT | FSHIFT | FCONTROL | FALT;

CString KeyboardSection(LPCTSTR profile) { return CString(profile ? profile : L"") + L"\\Keyboard"; }

fx::StateStore* Store() {
    CWinApp* const application = AfxGetApp();
    return application != nullptr ? application->GetStateStore() : nullptr;
}

/// A table in the settings. Its length stands behind the keys as well: a damaged one is found.
class KeptKeys : public CObject {
public:
    std::vector<ACCEL> keys;

    void Serialize(CArchive& ar) override {
        auto count = static_cast<DWORD>(keys.size());
        if (!ar.IsLoading()) {
            ar << count;
            for (const ACCEL& key : keys) {
                ar << key.fVirt << key.key << key.cmd;
            }
            ar << count;
            return;
        }
        ar >> count;
        fx::ArchiveChecks::RequireElements(ar, count);
        std::vector<ACCEL> read;
        for (DWORD index = 0; index < count; ++index) {
            ACCEL key{};
            ar >> key.fVirt >> key.key >> key.cmd;
            if ((key.fVirt & ~kKnownFlags) != 0 || key.key == 0 || key.cmd == 0) {
                AfxThrowArchiveException(CArchiveException::badIndex);
            }
            read.push_back(key);
        }
        DWORD countAgain = 0;
        ar >> countAgain;
        if (countAgain != count) {
            AfxThrowArchiveException(CArchiveException::badIndex);
        }
        keys.swap(read);
    }
};

/// Makes the keys the frame's; none: it has no table.
BOOL GiveKeys(CFrameWnd& frame, std::vector<ACCEL> keys) {
    const HACCEL table = keys.empty() ? nullptr : ::CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
    if (!keys.empty() && !table) {
        return FALSE;
    }
    frame.ReplaceAccelTable(table);
    return TRUE;
}

} // namespace

CKeyboardManager* afxKeyboardManager = nullptr;

CKeyboardManager::CKeyboardManager() {
    ASSERT(afxKeyboardManager == nullptr);
    afxKeyboardManager = this;
}

CKeyboardManager::~CKeyboardManager() { afxKeyboardManager = nullptr; }

BOOL CKeyboardManager::UpdateAccelTable(CMultiDocTemplate*, HACCEL hAccelNew, CFrameWnd* pDefaultFrame) {
    CFrameWnd* frame = FrameOrMain(pDefaultFrame);
    if (!frame) {
        return FALSE;
    }
    frame->ReplaceAccelTable(hAccelNew);
    return TRUE;
}

BOOL CKeyboardManager::UpdateAccelTable(CMultiDocTemplate* pTemplate, LPACCEL lpAccel, int nSize,
                                        CFrameWnd* pDefaultFrame) {
    const HACCEL table = ::CreateAcceleratorTableW(lpAccel, nSize);
    if (!table) {
        return FALSE;
    }
    if (!UpdateAccelTable(pTemplate, table, pDefaultFrame)) {
        ::DestroyAcceleratorTable(table);
        return FALSE;
    }
    return TRUE;
}

BOOL CKeyboardManager::SaveState(LPCTSTR lpszProfileName, CFrameWnd* pDefaultFrame) {
    fx::StateStore* const store = Store();
    CFrameWnd* const frame = FrameOrMain(pDefaultFrame);
    KeptKeys kept;
    kept.keys = EntriesOf(frame);
    return store && frame && store->WriteObject(KeyboardSection(lpszProfileName), kKeysEntry, kept);
}

BOOL CKeyboardManager::LoadState(LPCTSTR lpszProfileName, CFrameWnd* pDefaultFrame) {
    fx::StateStore* const store = Store();
    CFrameWnd* const frame = FrameOrMain(pDefaultFrame);
    KeptKeys kept;
    if (!store || !frame || !store->ReadObject(KeyboardSection(lpszProfileName), kKeysEntry, kept)) {
        return FALSE;
    }
    KeepOriginalKeys(frame);
    return GiveKeys(*frame, kept.keys);
}

void CKeyboardManager::KeepOriginalKeys(CFrameWnd* pFrame) {
    CFrameWnd* const frame = FrameOrMain(pFrame);
    const HWND window = frame->GetSafeHwnd();
    const auto isOfFrame = [window](const Original& original) { return original.frame == window; };
    if (window != nullptr && std::ranges::none_of(m_originals, isOfFrame)) {
        m_originals.push_back({window, EntriesOf(frame)});
    }
}

void CKeyboardManager::ResetAll() {
    for (const Original& original : m_originals) {
        if (auto* const frame = DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(original.frame))) {
            GiveKeys(*frame, original.keys);
        }
    }
    m_originals.clear();
}

BOOL CKeyboardManager::FindDefaultAccelerator(UINT uiCmd, CString& str, CFrameWnd* pWndFrame, BOOL) {
    bool isFound = false;
    for (const ACCEL& entry : EntriesOf(pWndFrame)) {
        if (entry.cmd != uiCmd) {
            continue;
        }
        CString key;
        CMFCAcceleratorKey(const_cast<LPACCEL>(&entry)).Format(key);
        str = isFound ? str + s_delimiter + key : key;
        isFound = true;
        if (!s_isShowAll) {
            break;
        }
    }
    return isFound;
}

BOOL CKeyboardManager::IsKeyHandled(WORD nKey, BYTE fVirt, CFrameWnd* pWndFrame, BOOL) {
    const ACCEL wanted{fVirt, nKey, 0};
    return std::ranges::any_of(EntriesOf(pWndFrame),
                               [&wanted](const ACCEL& entry) { return panes::IsSameKey(entry, wanted); });
}

BOOL CKeyboardManager::IsKeyPrintable(const UINT nChar) {
    constexpr UINT kDelete = 0x7F;
    const UINT character = ::MapVirtualKeyW(nChar, MAPVK_VK_TO_CHAR) & 0x7FFF;
    return character >= L' ' && character != kDelete;
}

UINT CKeyboardManager::TranslateCharToUpper(const UINT nChar) { return fx::UpperCase(static_cast<wchar_t>(nChar)); }

void CKeyboardManager::ShowAllAccelerators(BOOL bShowAll, LPCTSTR lpszDelimiter) {
    s_isShowAll = bShowAll != FALSE;
    s_delimiter = lpszDelimiter ? lpszDelimiter : L"; ";
}

void CKeyboardManager::CleanUp() {
    // Tables are read from their frames each time: there is nothing to forget but the way of showing them.
    ShowAllAccelerators(FALSE);
}
