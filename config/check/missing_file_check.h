#pragma once

#include "config/check/gathered_elements.h"
#include "config/check/installation_files.h"
#include "config/check/language_texts.h"

#include <span>
#include <string>

/// What a program may have is not known: one without a menu, or with a ribbon alone, lacks nothing. A kind of file is
/// missing where none of its names is there and the others show that there was one: a file of nearly that name that
/// holds what such a file holds; for the ribbon also quick access items and status-bar buttons that lead nowhere, and
/// many texts that no element has, more than the `lostKeywords` of faults that were reported. Reports missing-file once
/// a kind, and returns whether there was any.
bool ReportMissingKinds(std::span<const GatheredElement> elements, const InstallationFiles& files,
                        std::span<const LanguageTexts> languages, std::size_t lostKeywords, DiagnosticsSink& sink);

/// missing-file where texts are asked for and there is no table of any language, nor anything that was meant to
/// be one: every text shows as its keyword then.
void ReportMissingTables(std::span<const GatheredElement> elements, const InstallationFiles& files,
                         DiagnosticsSink& sink);

/// "call FILE ribbon.xml" for a file that was probably meant to be a ribbon, menu or toolbar file; otherwise what else
/// there is to do.
std::wstring MendOfMissingConfiguration(const InstallationFiles& files);
