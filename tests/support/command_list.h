#pragma once

#include <afxtempl.h>

#include <initializer_list>
#include <vector>

/// Ids of commands in the form in which a quick access toolbar takes and gives them.
class CommandList : public CList<UINT, UINT> {
public:
    CommandList(std::initializer_list<UINT> ids) : CommandList(std::vector<UINT>(ids)) {}
    explicit CommandList(const std::vector<UINT>& ids = {}) {
        for (const UINT id : ids) {
            AddTail(id);
        }
    }

    std::vector<UINT> Ids() const {
        std::vector<UINT> ids;
        for (POSITION position = GetHeadPosition(); position != nullptr;) {
            ids.push_back(GetNext(position));
        }
        return ids;
    }
};
