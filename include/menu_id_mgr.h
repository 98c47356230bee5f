#pragma once

#include "barwright_api.h"

#include <varnhold/recursive_mutex.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

/// The process-wide registry of configured commands. Every builder enters its commands here; afterwards a keyword leads
/// to its command id and name, and an id to its keyword, tooltip, command text, parameter and help file.
///
/// One instance, owned by the class: reach it through Ins(), never delete it, end it with Destroy(). Entries are never
/// removed: a keyword entered again under another id leaves the old id's record, and an id entered again under another
/// keyword leaves the old keyword pointing at it.
///
/// Keywords are compared code unit by code unit, letter case included. A query that returns false leaves its output
/// argument as it was. Every operation holds m_mutex while it works, except SetHelpFile and the creation in Ins().
class BARWRIGHT_API CMenuIdMgr {
public:
    /// The next free command id of the process. A builder that needs an id takes this value and adds one; neither Add
    /// nor Destroy changes it. Not guarded.
    static std::uint32_t s_AddBeginID;
    /// The instance, null before the first Ins() and after Destroy().
    static CMenuIdMgr* s_pMenuMgr;
    /// Guards the tables; recursive, so a caller that holds it may call any operation. Outlives the instance.
    static xrecursive_mutex m_mutex;

    CMenuIdMgr(const CMenuIdMgr&) = default;
    CMenuIdMgr& operator=(const CMenuIdMgr&) = default;

    /// The instance, made empty on the first call; never null. Two first calls must not run at once.
    static CMenuIdMgr* Ins();
    /// Destroys the instance if there is one. Pointers from earlier Ins() calls are dead; the next Ins() starts empty.
    static void Destroy();

    /// Enters a command under both its keyword and its id; what either held before is replaced field by field, also by
    /// empty texts. An empty keyword enters nothing.
    void Add(const std::wstring& keyword, int id, const std::wstring& name, const std::wstring& cmd,
             const std::wstring& toolTip, const std::wstring& param, const std::wstring& helpFile);

    /// True when the keyword is registered.
    bool GetMenuId(const std::wstring& keyword, int& id) const;
    /// True when the keyword is registered, also when its name is empty.
    bool GetMenuName(const std::wstring& keyword, std::wstring& name) const;
    /// True when the id is registered.
    bool GetMenuMark(const int& id, std::wstring& keyword) const;

    /// True when the id is registered and the text asked for is not empty.
    bool GetToolTip(const int& id, std::wstring& toolTip) const;
    bool GetCmd(int id, std::wstring& cmd) const;
    bool GetCmdParam(int id, std::wstring& param) const;
    bool GetHelpFile(const int& id, std::wstring& helpFile) const;

    /// Gives a registered id its help file, once: an id that has one keeps it, an unknown id is not entered. Takes no
    /// lock, so it must not run while another thread calls Add, or asks for the same id's help file.
    void SetHelpFile(int id, const std::wstring& helpFile);

private:
    /// What a keyword leads to.
    struct KeywordEntry {
        int id = 0;
        std::wstring name;
    };

    enum class Field : std::size_t { Keyword, ToolTip, Command, Parameter, HelpFile };

    /// What an id leads to: five texts, in one piece of memory, as there are thousands of them.
    class MenuIdRecord {
    public:
        using Texts = std::array<std::wstring_view, 5>; // by Field

        /// Replaces all of them; they may be its own.
        void Set(const Texts& texts);
        std::wstring_view Get(Field field) const;

    private:
        std::wstring m_texts;                               // one behind the other
        std::array<std::uint32_t, Texts().size()> m_ends{}; // of each
    };

    CMenuIdMgr() = default;
    ~CMenuIdMgr() = default;

    bool GetFilledText(int id, Field field, std::wstring& text) const;

    // Nobody goes through them in order.
    std::unordered_map<std::wstring, KeywordEntry> m_byKeyword;
    std::unordered_map<int, MenuIdRecord> m_recordById;
};
