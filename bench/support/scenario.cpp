#include "scenario.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string_view>

namespace {

constexpr std::size_t kButtonsInAPanel = 10;
constexpr std::size_t kPanelsInACategory = 10;
constexpr unsigned kSeed = 41000;

void Put(std::string& bytes, std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i) {
        bytes.push_back(static_cast<char>(value >> (8 * i)));
    }
}

/// An icon file with one 32-bit picture of the given side in pixels.
std::string MakeIcon(int side, std::uint32_t color) {
    const std::uint32_t pixels = static_cast<std::uint32_t>(side * side);
    const std::uint32_t maskBytes = static_cast<std::uint32_t>((side + 31) / 32 * 4 * side);
    constexpr std::uint32_t kHeader = 40;
    constexpr std::uint32_t kOffset = 6 + 16;
    std::string bytes;
    Put(bytes, 0, 2);
    Put(bytes, 1, 2);
    Put(bytes, 1, 2);
    Put(bytes, static_cast<std::uint32_t>(side), 1);
    Put(bytes, static_cast<std::uint32_t>(side), 1);
    Put(bytes, 0, 2);
    Put(bytes, 1, 2);
    Put(bytes, 32, 2);
    Put(bytes, kHeader + pixels * 4 + maskBytes, 4);
    Put(bytes, kOffset, 4);
    Put(bytes, kHeader, 4);
    Put(bytes, static_cast<std::uint32_t>(side), 4);
    Put(bytes, static_cast<std::uint32_t>(2 * side), 4);
    Put(bytes, 1, 2);
    Put(bytes, 32, 2);
    for (int i = 0; i < 6; ++i) {
        Put(bytes, 0, 4);
    }
    for (std::uint32_t i = 0; i < pixels; ++i) {
        Put(bytes, 0xFF000000u | color, 4);
    }
    bytes.append(maskBytes, 0);
    return bytes;
}

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

} // namespace

std::vector<std::wstring> MakeKeywords(std::size_t count, std::size_t length) {
    static constexpr wchar_t kSigns[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
    std::mt19937 random(kSeed);
    std::uniform_int_distribution<std::size_t> sign(0, std::size(kSigns) - 2);
    std::set<std::wstring> seen;
    std::vector<std::wstring> keywords;
    while (keywords.size() < count) {
        std::wstring keyword(length, L' ');
        for (wchar_t& letter : keyword) {
            letter = kSigns[sign(random)];
        }
        if (seen.insert(keyword).second) {
            keywords.push_back(std::move(keyword));
        }
    }
    return keywords;
}

std::string MakeRibbonFile(std::size_t buttons, std::size_t iconFiles) {
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ribbon>\n  <row KEYWORD=\"Categories\">\n";
    const auto number = [](std::size_t n) { return std::to_string(n); };
    for (std::size_t i = 0; i < buttons; ++i) {
        const std::string n = std::to_string(buttons) + "_" + number(i);
        const std::size_t inCategory = i % (kButtonsInAPanel * kPanelsInACategory);
        if (inCategory == 0) {
            text += "    <category KEYWORD=\"Category" + n + "\" NAME=\"\">\n";
        }
        if (i % kButtonsInAPanel == 0) {
            text += "      <panel KEYWORD=\"Panel" + n + "\" NAME=\"\">\n";
        }
        text += "        <item KEYWORD=\"Command" + n + "\" NAME=\"\" TOOLTIP=\"\" TYPE=\"BUTTON\" SIZE=\"" +
                (i % 4 == 0 ? "32" : "16") + "\" PICPATH=\"pic\\modle\\icon" + number(i % iconFiles) +
                ".ico\" CMD=\"command\" PARAM=\"" + n + "\"/>\n";
        const bool isLast = i + 1 == buttons;
        if ((i + 1) % kButtonsInAPanel == 0 || isLast) {
            text += "      </panel>\n";
        }
        if ((i + 1) % (kButtonsInAPanel * kPanelsInACategory) == 0 || isLast) {
            text += "    </category>\n";
        }
    }
    return text + "  </row>\n</ribbon>\n";
}

std::string MakeMenuFile(std::size_t items, std::size_t iconFiles) {
    constexpr std::size_t kItemsInAPopup = 20, kItemsForAShortcut = 10, kLetters = 26;
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<menu>\n  <group>\n";
    for (std::size_t i = 0; i < items; ++i) {
        const std::string n = std::to_string(items) + "_" + std::to_string(i);
        if (i % kItemsInAPopup == 0) {
            text += "    <popup KEYWORD=\"Popup" + n + "\" MENUNAME=\"\">\n";
        }
        text += "      <item KEYWORD=\"Item" + n + "\" MENUNAME=\"\" TOOLTIP=\"\" PicPath=\"pic\\modle\\icon" +
                std::to_string(i % iconFiles) + ".ico\" CMD=\"command\" Param=\"" + n + "\"";
        if (i % kItemsForAShortcut == 0) {
            text += std::string(" HOTKEY=\"Ctrl+") + static_cast<char>('A' + i / kItemsForAShortcut % kLetters) + "\"";
        }
        text += "/>\n";
        if ((i + 1) % kItemsInAPopup == 0 || i + 1 == items) {
            text += "    </popup>\n";
        }
    }
    return text + "  </group>\n</menu>\n";
}

std::string MakeToolbarFile(std::size_t buttons, std::size_t iconFiles) {
    constexpr std::size_t kButtonsInABar = 25;
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<toolbars>\n  <group KEYWORD=\"Group\">\n";
    for (std::size_t i = 0; i < buttons; ++i) {
        const std::string n = std::to_string(buttons) + "_" + std::to_string(i);
        if (i % kButtonsInABar == 0) {
            text += "    <toolbar PROMPT=\"Bar" + n + "\">\n";
        }
        text += "      <button TYPE=\"button\" KEYWORD=\"Button" + n +
                "\" PROMPT=\"Button\" PICPATH=\"pic\\modle\\icon" + std::to_string(i % iconFiles) + ".ico\"/>\n";
        if ((i + 1) % kButtonsInABar == 0 || i + 1 == buttons) {
            text += "    </toolbar>\n";
        }
    }
    return text + "  </group>\n</toolbars>\n";
}

std::string MakeTable(const std::vector<std::string>& files, const std::string& language) {
    constexpr std::string_view keywordStart = "KEYWORD=\"";
    const bool isSource = language == "en";
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" "
        "version=\"2.0\" srcLang=\"en\"" +
        (isSource ? "" : " trgLang=\"" + language + "\"") + ">\n  <file id=\"RibbonBarCfg\">\n";
    const auto addUnit = [&](const std::string& key) {
        text += "    <unit id=\"" + key + "\"><segment><source>Text of " + key + "</source>" +
                (isSource ? "" : "<target>" + language + " text of " + key + "</target>") + "</segment></unit>\n";
    };
    for (const std::string& file : files) {
        for (std::size_t at = file.find(keywordStart); at != std::string::npos; at = file.find(keywordStart, at)) {
            at += keywordStart.size();
            const std::string keyword = file.substr(at, file.find('"', at) - at);
            const std::string_view rest = std::string_view(file).substr(at, file.find('>', at) - at);
            if (rest.find("NAME=\"") != rest.npos) {
                addUnit(keyword);
            }
            if (rest.find("TOOLTIP=\"") != rest.npos) {
                addUnit(keyword + ".tooltip");
            }
        }
    }
    return text + "  </file>\n</xliff>\n";
}

std::wstring ScenarioIcon(const std::wstring& folder, int side, std::size_t number) {
    return folder + L"pic\\modle\\" + std::to_wstring(side) + L"\\icon" + std::to_wstring(number) + L".ico";
}

ScenarioDirectory::ScenarioDirectory() {
    std::random_device device;
    m_path = std::filesystem::temp_directory_path() / ("barwright-bench-" + std::to_string(device()));
    std::filesystem::create_directories(m_path);
}

ScenarioDirectory::~ScenarioDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::wstring ScenarioDirectory::AddFile(const std::string& name, const std::string& text) {
    WriteFile(m_path / "cfg" / name, text);
    return L"cfg\\" + std::wstring(name.begin(), name.end());
}

void ScenarioDirectory::AddInstallation(std::size_t commands, std::size_t iconFiles, std::size_t languages) {
    constexpr std::size_t menuItems = 250; // each tenth has a shortcut, and there are 26 letters
    const std::size_t buttons = commands / 8;
    const std::size_t elements = commands - menuItems - buttons;
    AddRibbonFile(elements, iconFiles);
    const std::string menu = MakeMenuFile(menuItems, iconFiles);
    AddFile("menu.xml", menu);
    AddFile("toolbar.xml", MakeToolbarFile(buttons, iconFiles));
    constexpr const char* codes[] = {"en", "de", "fr", "zh-CN"};
    for (std::size_t i = 0; i < std::min(languages, std::size(codes)); ++i) {
        WriteFile(m_path / "lang" / codes[i] / "commands.xlf",
                  MakeTable({MakeRibbonFile(elements, iconFiles), menu}, codes[i]));
    }
}

std::wstring ScenarioDirectory::AddRibbonFile(std::size_t buttons, std::size_t iconFiles) {
    const std::string name = "ribbon" + std::to_string(buttons) + ".xml";
    WriteFile(m_path / "cfg" / name, MakeRibbonFile(buttons, iconFiles));
    for (const char* const set : {"modle", "modle_0"}) {
        for (const int side : {16, 32}) {
            for (std::size_t i = 0; i < iconFiles; ++i) {
                WriteFile(m_path / "pic" / set / std::to_string(side) / ("icon" + std::to_string(i) + ".ico"),
                          MakeIcon(side, static_cast<std::uint32_t>(i * 0x0B0D11) & 0xFFFFFFu));
            }
        }
    }
    return std::wstring(name.begin(), name.end());
}
