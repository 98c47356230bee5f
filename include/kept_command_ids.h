#pragma once

#include "barwright_api.h"

#include <cstdint>
#include <set>
#include <string>

/// For a host that builds bars a second time from files that have changed: as long as one of these lives, a command
/// that is registered gets the id that its keyword had before.
///
/// Builders take from a file only what the registry does not hold yet. So the commands of the bars that are built anew
/// are forgotten first, and then get the texts, CMD and shortcuts that the files have now:
///
///     CKeptCommandIds kept(keywords);  // of the bars that are to be built anew, see RegisteredKeywords
///     ... remove these bars and load their files ...
///
/// One at a time, on the user-interface thread. Where no new command came, CMenuIdMgr::s_AddBeginID is afterwards what
/// it was before.
class BARWRIGHT_API CKeptCommandIds {
public:
    /// Forgets the commands of these keywords and remembers their ids. The ids of all others stay as they are.
    explicit CKeptCommandIds(const std::set<std::wstring>& forgotten);
    ~CKeptCommandIds();
    CKeptCommandIds(const CKeptCommandIds&) = delete;
    CKeptCommandIds& operator=(const CKeptCommandIds&) = delete;

    /// The keywords of all commands with an id of their own. Whoever asks before and after a file is loaded knows which
    /// commands came with it.
    static std::set<std::wstring> RegisteredKeywords();

private:
    std::uint32_t m_nextId;
};
