#include "settings/settings_file.h"

#include "config/depth_walker.h"

#include <varnhold/markup.h>
#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLongestFile = 16U << 20; // bytes: far beyond what users can change
constexpr std::string_view kRoot = "settings";
constexpr std::string_view kVersion = "1";

// ---- writing

std::string Escaped(std::wstring_view text) {
    std::string result;
    for (const char character : varnhold::EscapedMarkup(wstring2String(text))) {
        if (const auto code = static_cast<unsigned char>(character); code < 0x20) {
            result += "&#" + std::to_string(code) + ";";
        } else {
            result += character;
        }
    }
    return result;
}

std::string Attribute(std::string_view name, std::wstring_view value) {
    return " " + std::string(name) + "=\"" + Escaped(value) + "\"";
}

std::string Attribute(std::string_view name, bool value) {
    return " " + std::string(name) + (value ? "=\"Y\"" : "=\"N\"");
}

void WriteItems(std::string& text, std::string_view element, std::string_view attribute, const Keywords& items) {
    for (const std::wstring& item : items) {
        text += "    <" + std::string(element) + Attribute(attribute, item) + "/>\n";
    }
}

// ---- reading

std::wstring Text(std::string_view utf8) { return string2wstring(utf8); }

class Attributes {
public:
    explicit Attributes(varnhold::XmlCursor& element) : m_list(element.ReadAttributes()) {}

    std::optional<std::wstring> Find(std::string_view name) const {
        for (const varnhold::XmlAttributeView& attribute : m_list) {
            if (attribute.name == name) {
                return Text(attribute.value);
            }
        }
        return std::nullopt;
    }
    std::wstring Get(std::string_view name) const { return Find(name).value_or(std::wstring()); }
    std::optional<bool> FindSwitch(std::string_view name) const {
        const std::optional<std::wstring> value = Find(name);
        return value == L"Y" ? std::optional(true) : value == L"N" ? std::optional(false) : std::nullopt;
    }
    int GetNumber(std::string_view name) const {
        const std::string value = wstring2String(Get(name));
        int number = 0;
        std::from_chars(value.data(), value.data() + value.size(), number);
        return number;
    }

private:
    std::span<const varnhold::XmlAttributeView> m_list;
};

/// The named children's attribute, in document order.
Keywords ReadItems(const varnhold::XmlCursor& parent, std::wstring_view element, std::string_view attribute) {
    Keywords items;
    ForEachChild(parent, [&](varnhold::XmlCursor& child) {
        if (child.GetName() == element) {
            if (std::optional<std::wstring> item = Attributes(child).Find(attribute)) {
                items.push_back(std::move(*item));
            }
        }
    });
    return items;
}

void ReadRibbon(varnhold::XmlCursor& element, KeptSettings& settings) {
    const Attributes attributes(element);
    settings.isMinimized = attributes.FindSwitch("MINIMIZED");
    settings.isQuickAccessBelow = attributes.FindSwitch("QUICKACCESSBELOW");
}

void ReadQuickAccess(varnhold::XmlCursor& element, KeptSettings& settings) {
    KeptCommands kept{Attributes(element).Get("PATH"), ReadItems(element, L"item", "KEYWORD"),
                      ReadItems(element, L"seen", "KEYWORD")};
    settings.quickAccess.push_back(std::move(kept));
}

void ReadToolBar(varnhold::XmlCursor& element, KeptSettings& settings) {
    const Attributes attributes(element);
    settings.toolBars.push_back({attributes.Get("GROUP"), attributes.Get("TITLE"), attributes.GetNumber("NUMBER"),
                                 attributes.FindSwitch("SHOWN").value_or(true)});
}

void ReadShortcut(varnhold::XmlCursor& element, KeptSettings& settings) {
    std::wstring keyword = Attributes(element).Get("KEYWORD");
    settings.shortcuts.push_back({std::move(keyword), ReadItems(element, L"key", "KEY")});
}

struct ElementReader {
    std::wstring_view name;
    void (*read)(varnhold::XmlCursor&, KeptSettings&);
};
constexpr ElementReader kReaders[] = {{L"ribbon", &ReadRibbon},
                                      {L"quickaccess", &ReadQuickAccess},
                                      {L"toolbar", &ReadToolBar},
                                      {L"shortcut", &ReadShortcut}};

// ---- files

fs::path Beside(const std::wstring& path, const wchar_t* extension) { return fs::path(path + extension); }

std::optional<KeptSettings> ReadFile(const fs::path& path) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path, error);
    if (error || size > kLongestFile) {
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    return file.bad() || text.size() != size ? std::nullopt : ReadSettings(text);
}

bool WriteFile(const fs::path& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    return !file.fail();
}

} // namespace

std::string WriteSettings(const KeptSettings& settings) {
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" + std::string(kRoot) + " VERSION=\"" +
                       std::string(kVersion) + "\">\n";
    if (settings.isMinimized || settings.isQuickAccessBelow) {
        text += "  <ribbon";
        text += settings.isMinimized ? Attribute("MINIMIZED", *settings.isMinimized) : "";
        text += settings.isQuickAccessBelow ? Attribute("QUICKACCESSBELOW", *settings.isQuickAccessBelow) : "";
        text += "/>\n";
    }
    for (const KeptCommands& kept : settings.quickAccess) {
        text += "  <quickaccess" + Attribute("PATH", kept.path) + ">\n";
        WriteItems(text, "item", "KEYWORD", kept.commands);
        WriteItems(text, "seen", "KEYWORD", kept.seen);
        text += "  </quickaccess>\n";
    }
    for (const KeptToolBar& bar : settings.toolBars) {
        text += "  <toolbar" + Attribute("GROUP", bar.group) + Attribute("TITLE", bar.title) +
                (bar.number != 0 ? Attribute("NUMBER", std::to_wstring(bar.number)) : "") +
                Attribute("SHOWN", bar.isShown) + "/>\n";
    }
    for (const KeptShortcuts& shortcuts : settings.shortcuts) {
        text += "  <shortcut" + Attribute("KEYWORD", shortcuts.keyword) + ">\n";
        WriteItems(text, "key", "KEY", shortcuts.keys);
        text += "  </shortcut>\n";
    }
    return text + "</" + std::string(kRoot) + ">\n";
}

std::optional<KeptSettings> ReadSettings(std::string_view text) {
    CXmlDocumentWrapper document;
    if (!document.LoadFromMemory(text)) {
        return std::nullopt;
    }
    varnhold::XmlCursor root(document);
    if (root.GetName() != Text(kRoot) || Attributes(root).Get("VERSION") != Text(kVersion)) {
        return std::nullopt;
    }
    KeptSettings settings;
    ForEachChild(root, [&settings](varnhold::XmlCursor& element) {
        const std::wstring name = element.GetName();
        for (const ElementReader& reader : kReaders) {
            if (name == reader.name) {
                reader.read(element, settings);
            }
        }
    });
    return settings;
}

SettingsFile::Source SettingsFile::Load(KeptSettings& settings) const {
    std::error_code error;
    const fs::path file(m_path), lastGood = Beside(m_path, L".last");
    const bool isThere = fs::exists(file, error), isLastThere = fs::exists(lastGood, error);
    if (std::optional<KeptSettings> read = isThere ? ReadFile(file) : std::nullopt) {
        settings = std::move(*read);
        return Source::File;
    }
    if (isThere) {
        // Overwriting fails on Windows: there the standard library of GCC takes any two files for the same one.
        const fs::path damaged = Beside(m_path, L".damaged");
        fs::remove(damaged, error);
        fs::copy_file(file, damaged, error);
    }
    if (std::optional<KeptSettings> read = isLastThere ? ReadFile(lastGood) : std::nullopt) {
        settings = std::move(*read);
        return Source::LastGood;
    }
    settings = {};
    return isThere || isLastThere ? Source::Damaged : Source::Nowhere;
}

bool SettingsFile::Save(const KeptSettings& settings) const {
    const fs::path file(m_path), lastGood = Beside(m_path, L".last"), fresh = Beside(m_path, L".new");
    std::error_code error;
    const std::string text = WriteSettings(settings);
    if (!WriteFile(fresh, text)) {
        fs::remove(fresh, error);
        return false;
    }
    // A damaged file must not become the last good one.
    const bool isGood = ReadFile(file).has_value();
    if (isGood) {
        fs::rename(file, lastGood, error);
    }
    fs::rename(fresh, file, error);
    if (!error) {
        return true;
    }
    std::error_code ignored;
    if (isGood) {
        fs::rename(lastGood, file, ignored);
    }
    fs::remove(fresh, ignored);
    return false;
}
