#pragma once

#include "config/check/gathered_elements.h"
#include "config/check/language_texts.h"

#include <set>
#include <span>
#include <string>

/// The keyword that a unit's key belongs to: without what tells the text's number.
std::wstring KeywordOf(const std::wstring& key);

/// Checks the texts that the elements ask for against the tables: missing-text. Returns the keywords that were probably
/// meant by those without a text.
std::set<std::wstring> CheckTexts(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                                  DiagnosticsSink& sink);

/// The other way round, where no file was left out: unused-text. `meant` is what CheckTexts gave; so many elements as
/// `lostKeywords` do not have their own, which was reported.
void CheckUnusedTexts(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                      const std::set<std::wstring>& meant, std::size_t lostKeywords, DiagnosticsSink& sink);

/// How many elements of what was read so far lost their keywords, which was reported: nobody knows the ones that were
/// meant, so that their texts seem unused and what refers to them leads nowhere.
std::size_t CountLostKeywords(GatheringSink& sink);

/// Those are the ones that may be meant then: adds all keywords that the tables have texts for.
void AddKeywordsWithTexts(std::span<const LanguageTexts> languages, std::set<std::wstring>& keywords);

/// Checks how wide the texts are where a file, or any window, sets a limit: long-text.
void CheckTextLengths(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                      DiagnosticsSink& sink);

/// Checks the letters of each menu in each language: access-key-clash.
void CheckAccessKeys(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                     DiagnosticsSink& sink);
