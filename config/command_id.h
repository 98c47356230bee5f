#pragma once

#include "ribbon_info.h"

/// Whether a command that is registered already is offered the record's help file.
enum class HelpOffer { No, Yes };

/// The command id of a record: the one that its keyword is registered under, else the next free one, which is then
/// registered with the record's texts. A record without a keyword takes an id too, which leads nowhere.
int ObtainCommandId(const RibbonInfo& info, HelpOffer offer);
