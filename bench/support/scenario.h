#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

// What the benchmarks work on; made the same way every time.

/// `count` different keywords of `length` letters and digits, in no order.
std::vector<std::wstring> MakeKeywords(std::size_t count, std::size_t length);

/// The text of a ribbon file with `buttons` buttons, 10 in a panel, 10 panels in a category, their pictures taken in
/// turn from `iconFiles` icon files.
std::string MakeRibbonFile(std::size_t buttons, std::size_t iconFiles);

/// The same of a menu file, 20 items in a popup and a shortcut for each tenth item; of a toolbar file, 25 buttons in a
/// bar.
std::string MakeMenuFile(std::size_t items, std::size_t iconFiles);
std::string MakeToolbarFile(std::size_t buttons, std::size_t iconFiles);

/// A translation table of the language with a text for every name and tooltip that the files ask for. Texts are
/// translated from English.
std::string MakeTable(const std::vector<std::string>& files, const std::string& language);

/// Where AddRibbonFile puts the icon file of that number, in pixels a side; `folder` with its closing separator.
std::wstring ScenarioIcon(const std::wstring& folder, int side, std::size_t number);

/// A new directory below the temporary one, removed with all it holds at the end.
class ScenarioDirectory {
public:
    ScenarioDirectory();
    ~ScenarioDirectory();
    ScenarioDirectory(const ScenarioDirectory&) = delete;
    ScenarioDirectory& operator=(const ScenarioDirectory&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

    /// cfg/ribbonBUTTONS.xml and, once, the icon files in 16 and 32 pixels. Returns the file's name below cfg.
    std::wstring AddRibbonFile(std::size_t buttons, std::size_t iconFiles);
    /// cfg/NAME with the text. Returns the path below the directory.
    std::wstring AddFile(const std::string& name, const std::string& text);
    /// A ribbon, a menu and a toolbar file with so many commands together, their icon files, and tables of so many of
    /// en, de, fr and zh-CN.
    void AddInstallation(std::size_t commands, std::size_t iconFiles, std::size_t languages);

private:
    std::filesystem::path m_path;
};
