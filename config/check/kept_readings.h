#pragma once

#include "config/check/folder_listing.h"
#include "config/check/gathered_elements.h"
#include "config/check/icon_check.h"
#include "config/check/kept_by_stamp.h"
#include "config/check/language_texts.h"

#include <string>
#include <utility>
#include <vector>

/// A configuration file, as its reader met it.
struct FileReading {
    GatheringSink gathered;
    /// False: it could not be loaded.
    bool isLoaded = false;
};

/// What was read of the files of one installation, for whoever checks it again and again: what has not changed since is
/// not read a second time. Nothing is known of files but their size and time.
struct KeptReadings {
    std::wstring directory;
    KeptByStamp<FileReading, FileStamp> files;
    /// At most one language each, as ReadLanguages gives it.
    KeptByStamp<std::vector<LanguageTexts>, FolderStamp> languages;
    KeptIcons icons;
};
