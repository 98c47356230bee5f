#pragma once

#include "tests/support/temporary_directory.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>

#include <string>

/// An installation directory with one language, which is in force while the object lives. Every text goes through the
/// translation service's own tables: what a key is translated to says which key and which number it was asked for.
class TranslatedInstallation {
public:
    TranslatedInstallation() : m_appPath(m_directory.Prefix()) {}
    ~TranslatedInstallation() { CMultiLanguageMgr::SetLanguage(L""); }

    const TemporaryDirectory& Directory() const { return m_directory; }

    /// Puts a language in force in which each of the space-separated keys of the section has a name, "<key>", and a
    /// tooltip, "tip of <key>". False when the service refused the table.
    bool Translate(const std::string& keys, const std::string& section = "RibbonBarCfg",
                   const std::string& mark = "") const {
        std::string units;
        std::size_t begin = 0;
        while (begin < keys.size()) {
            const std::size_t end = std::min(keys.find(' ', begin), keys.size());
            const std::string key = keys.substr(begin, end - begin);
            units += Unit(key, mark + "<" + key + ">") + Unit(key + ".tooltip", mark + "tip of <" + key + ">");
            begin = end + 1;
        }
        m_directory.Write(
            "lang/en/table.xlf",
            R"(<xliff xmlns="urn:oasis:names:tc:xliff:document:2.0" version="2.0" srcLang="en"><file id=")" + section +
                "\">" + units + "</file></xliff>");
        return CMultiLanguageMgr::SetLanguage(L"en");
    }

private:
    static std::string Unit(const std::string& key, const std::string& text) {
        return "<unit id=\"" + key + "\" name=\"" + key + "\"><segment><source><![CDATA[" + text +
               "]]></source></segment></unit>";
    }

    TemporaryDirectory m_directory;
    ScopedAppPath m_appPath;
};
