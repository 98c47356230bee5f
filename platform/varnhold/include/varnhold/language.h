#pragma once

#include "varnhold/varnhold_api.h"

#include <boost/function.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace varnhold {
class LanguageTables;
}

/// The translation service: the display texts of the current language, looked up by section and key.
///
/// Tables are XLIFF 2 files, `lang\CODE\*.xlf` below the installation directory (FileOp::GetAppPath): one folder for
/// each language, named by its code ("en", "zh-CN"), in it any number of files, read in name order. A `<file id="S">`
/// holds section S, a `<unit>` one text. The unit's `name` (its `id` when it has no name) is the key:
///
///     number -1 (the name)      KEY
///     number  0 (the tooltip)   KEY.tooltip
///     number  n > 0             KEY.n
///
/// The text is the unit's target, or its source where the target is missing or empty. docs/translations.md tells
/// translators the rest.
///
/// A missing entry: a fallback function, when one is given, is asked and its answer returned. Otherwise the name
/// (number -1) is the key itself, because a button that shows its key can still be found, used and mended, an empty
/// one cannot; every other number gives an empty text, because a tooltip that repeats the key tells the reader
/// nothing and no tooltip is better. An empty key gives an empty text.
///
/// Lookups may run in any thread, also while another thread switches the language: each one sees either the old or
/// the new tables. The first lookup loads nothing: call SetLanguage once at start-up.
class VARNHOLD_API CMultiLanguageMgr {
public:
    typedef boost::function<std::wstring(const std::string& keyword, int number, const std::string& section)> Fallback;
    typedef boost::function<void()> ChangeListener;
    /// Takes one line for each problem found in the tables, "file:line:column: what". May not throw.
    typedef boost::function<void(const std::wstring& problem)> ProblemSink;

    /// The text of a wide key.
    static std::wstring translation(const std::wstring& text, const std::string& section, int number = -1);
    static std::wstring translation(const wchar_t* text, const std::string& section, int number = -1);

    /// The text of a narrow (UTF-8) key, with a function that is asked for a missing entry (empty: see above).
    static std::wstring translationW(const std::string& keyword, int number, const std::string& section,
                                     const Fallback& fallback = Fallback());

    /// Reads all tables of a language and makes it the current one; then calls the listeners. The current language may
    /// be set again, which reads its files anew. False when there is no such folder with tables or one of them is
    /// broken: then the earlier language stays in force, the sink was told why and nobody else is called. An empty
    /// code drops all tables and returns true.
    static bool SetLanguage(const std::wstring& code);

    /// The code of the language in force; empty before the first successful SetLanguage.
    static std::wstring GetLanguage();

    /// The codes of the installed languages (folders with at least one table), in alphabetical order.
    static std::vector<std::wstring> Languages();

    /// Calls `listener` after each change of language, in the thread that changed it and in the order of registration.
    /// A listener may add and remove listeners; one removed during the calls is not called any more. Returns a number
    /// for RemoveChangeListener.
    static int AddChangeListener(const ChangeListener& listener);
    static void RemoveChangeListener(int number);

    /// Replaces the sink for problems in tables and returns the earlier one. The first one drops everything.
    static ProblemSink SetProblemSink(const ProblemSink& sink);

    CMultiLanguageMgr() = delete;
};

/// One section's texts in the language that was in force when it was made, for many lookups in a row: it takes the
/// tables once and then no lock. A later change of language is not seen. May be used in any number of threads.
class VARNHOLD_API CTranslationSection {
public:
    explicit CTranslationSection(std::string_view section);
    ~CTranslationSection();
    CTranslationSection(const CTranslationSection&) = delete;
    CTranslationSection& operator=(const CTranslationSection&) = delete;

    /// What CMultiLanguageMgr::translationW answers without a fallback function.
    void Translate(std::string_view keyword, int number, std::wstring& text) const;

    /// The entry's text, which lives as long as this object; null for a missing entry.
    const std::wstring* Find(std::string_view keyword, int number) const;
    /// Whether the key itself stands for a missing entry of this number; for others it is an empty text.
    static constexpr bool ShowsMissingKey(int number) { return number < 0; }

private:
    std::shared_ptr<const varnhold::LanguageTables> m_tables;
    std::string m_section;
};
