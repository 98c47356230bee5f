#include "checked_installation.h"
#include "sample_installation.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

const fs::path kSource = BARWRIGHT_SOURCE;

/// The folder of an installation as it lies in the source tree.
void Copy(const fs::path& from, const CheckedInstallation& installation) {
    for (const char* folder : {"cfg", "lang", "pic"}) {
        if (fs::exists(from / folder)) {
            fs::copy(from / folder, installation.Directory().Path() / folder, fs::copy_options::recursive);
        }
    }
}

TEST(CleanSample, NothingIsSaidOfTheDemosFiles) {
    const CheckedInstallation installation;
    Copy(kSource / "demo", installation);
    WriteMissingIcons(installation); // the real ones are drawn when the demo is built
    EXPECT_EQ(installation.Findings(), "");
}

TEST(CleanSample, NothingIsSaidOfTheExampleHostsFiles) {
    const CheckedInstallation installation;
    Copy(kSource / "examples" / "host", installation);
    EXPECT_EQ(installation.Findings(), "");
}

std::string Replaced(std::string text, std::string_view before, std::string_view after) {
    for (std::size_t at = text.find(before); at != std::string::npos; at = text.find(before, at + after.size())) {
        text.replace(at, before.size(), after);
    }
    return text;
}

/// As UTF-16 with a mark in front, the lower byte first; the sample is ASCII.
std::string InUtf16(const std::string& text) {
    std::string wide = "\xFF\xFE";
    for (const char c : Replaced(text, "UTF-8", "UTF-16")) {
        wide += c;
        wide += '\0';
    }
    return wide;
}

TEST(CleanSample, NothingIsSaidOfWhatIsOddButValid) {
    constexpr std::string_view nothing[][2] = {
        {"\n", "\r\n"},
        {"\n", "\r"},
        {"<item ", "<!-- <a> \"b\" --><item "},
        {"<item ", "<?x y=\"<a>\"?><item "},
        {"/>", " \t\n/>"},
        {"<unit ", "<!-- & --><unit "},
        {" KEYWORD=\"", "\n\tKEYWORD = \""},
        {" KEYWORD=", " keyword="},
        {"\"", "'"},
        {"KEYWORD=\"Save\"", "KEYWORD=\"S&#97;v&#x65;\""},
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n", ""},
        {"encoding=\"UTF-8\"", "encoding=\"utf-8\" standalone=\"yes\""},
        {"<panel KEYWORD=\"PanelZoom\" NAME=\"\" CMD=\"zoom\">",
         "<panel KEYWORD=\"PanelZoom\" NAME=\"\" CMD=\"zoom\"><![CDATA[ ]]>"},
        {"<item MENUNAME=\"SEPARATOR\"/>", "<item MENUNAME=\"Separator\"><!-- line --></item>"},
        {"TYPE=\"BUTTON\"", "TYPE=\"Button\""},
        {"version=\"2.0\"", "version=\"2.1\""},
        {"<source>Save</source>", "<source><![CDATA[Save]]></source>"},
        {"<source>Save</source>", "<source>\n  <pc id=\"1\">Sa</pc>ve\n</source>"},
    };
    const CheckedInstallation installation;
    WriteSample(installation);
    for (const auto& [before, after] : nothing) {
        for (const SampleFile& file : SampleFiles()) {
            installation.Write(file.name, Replaced(file.text, before, after));
        }
        EXPECT_EQ(installation.Findings(), "") << before << " -> " << after;
    }
    for (const SampleFile& file : SampleFiles()) {
        installation.Write(file.name, "\xEF\xBB\xBF" + file.text);
    }
    EXPECT_EQ(installation.Findings(), "") << "with a mark in front";
    for (const SampleFile& file : SampleFiles()) {
        installation.Write(file.name, InUtf16(file.text));
    }
    EXPECT_EQ(installation.Findings(), "") << "in UTF-16";
}

} // namespace
