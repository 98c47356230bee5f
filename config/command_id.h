#pragma once

#include "ribbon_info.h"

#include <cstdint>
#include <optional>
#include <string>

/// Whether a command that is registered already is offered the record's help file.
enum class HelpOffer { No, Yes };

/// The command id of a record: the one that its keyword is registered under, else the next free one, which is then
/// registered with the record's texts. A record without a keyword takes an id too, which leads nowhere.
int ObtainCommandId(const RibbonInfo& info, HelpOffer offer);

/// The id that a keyword had before the bars were built anew, see CKeptCommandIds.
std::optional<std::uint32_t> KeptCommandId(const std::wstring& keyword);

/// The id for a keyword that is not registered: the kept one, else the next free one.
std::uint32_t TakeCommandId(const std::wstring& keyword);
