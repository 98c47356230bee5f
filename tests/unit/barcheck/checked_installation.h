#pragma once

#include "config/check/configuration_check.h"
#include "tests/support/icon_writer.h"
#include "tests/support/temporary_directory.h"

#include <varnhold/strings.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

/// Most tests write a file or two and no tables, and mean to hear of those files alone.
enum class WithoutTables { SaysNothing, IsReported };

/// An installation directory that is written file by file and then checked.
class CheckedInstallation {
public:
    explicit CheckedInstallation(WithoutTables withoutTables = WithoutTables::SaysNothing)
        : m_withoutTables(withoutTables) {}

    void Write(const std::string& name, std::string_view bytes) const { m_directory.Write(name, bytes); }
    /// The icon path "a\b.ico" as files of the folders 16 and 32.
    void WriteIcon(const std::string& folder, const std::string& name) const {
        for (const int side : {16, 32}) {
            Write(folder + "/" + std::to_string(side) + "/" + name, MakeIconFile(side, {0xFF0000, 0x00FF00}));
        }
    }
    /// A table of section RibbonBarCfg.
    void WriteTable(const std::string& language, const std::string& units) const {
        Write("lang/" + language + "/a.xlf", Table(units));
    }
    static std::string Table(const std::string& units, const std::string& sourceLanguage = "en") {
        return "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" version=\"2.0\" srcLang=\"" + sourceLanguage +
               "\">\n<file id=\"RibbonBarCfg\">\n" + units + "\n</file>\n</xliff>\n";
    }
    static std::string Unit(const std::string& key, const std::string& text) {
        return "<unit id=\"" + key + "\"><segment><source>" + text + "</source></segment></unit>\n";
    }

    std::vector<Diagnostic> Check(const std::vector<std::wstring>& files = {},
                                  const std::wstring& language = {}) const {
        std::vector<Diagnostic> findings = CheckConfiguration({m_directory.Prefix(), files, language});
        if (m_withoutTables == WithoutTables::SaysNothing) {
            std::erase_if(findings, [](const Diagnostic& finding) {
                return finding.code == "missing-file" && finding.file == L"lang";
            });
        }
        return findings;
    }

    /// Every finding as "file:line:column code", one a line.
    std::string Findings(const std::vector<std::wstring>& files = {}, const std::wstring& language = {}) const {
        std::string text;
        for (const Diagnostic& finding : Check(files, language)) {
            text += Describe(finding);
        }
        return text;
    }
    static std::string Describe(const Diagnostic& finding) {
        return wstring2String(finding.file) + ":" + std::to_string(finding.position.line) + ":" +
               std::to_string(finding.position.column) + " " + std::string(finding.code) + "\n";
    }

    const TemporaryDirectory& Directory() const { return m_directory; }

private:
    TemporaryDirectory m_directory;
    WithoutTables m_withoutTables;
};

/// Writes an icon for every path that the message of a missing one quotes, until none is missing: of those in a folder
/// that is not there only the first is told.
inline void WriteMissingIcons(const CheckedInstallation& installation) {
    bool isMissing = true;
    for (int round = 0; isMissing && round < 9; ++round) {
        isMissing = false;
        for (const Diagnostic& finding : installation.Check()) {
            if (finding.code != "missing-icon") {
                continue;
            }
            isMissing = true;
            std::string text = wstring2String(finding.text);
            for (std::size_t open = text.find('"'); open != std::string::npos; open = text.find('"', open)) {
                const std::size_t close = text.find('"', open + 1);
                std::string path = text.substr(open + 1, close - open - 1);
                std::ranges::replace(path, '\\', '/');
                installation.Write(path, MakeIconFile(32, {0, 0}));
                open = close + 1;
            }
        }
    }
}

/// A ribbon file whose one panel holds these elements; the first stands in line 4, column 1.
inline std::string RibbonWith(const std::string& elements) {
    return "<ribbon>\n<row KEYWORD=\"Main\"><category KEYWORD=\"Map\" NAME=\"\">\n<panel KEYWORD=\"Views\">\n" +
           elements + "\n</panel></category></row>\n</ribbon>\n";
}

/// A menu file whose one popup holds these items; the first stands in line 4, column 1.
inline std::string MenuWith(const std::string& items) {
    return "<menu>\n<group>\n<popup KEYWORD=\"Edit\" MENUNAME=\"\">\n" + items + "\n</popup></group>\n</menu>\n";
}

/// A toolbar file whose one toolbar holds these buttons; the first stands in line 4, column 1.
inline std::string ToolBarWith(const std::string& buttons) {
    return "<toolbars>\n<group KEYWORD=\"Main\">\n<bar PROMPT=\"Standard\">\n" + buttons +
           "\n</bar></group>\n</toolbars>\n";
}
