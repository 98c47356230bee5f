#include "checked_installation.h"
#include "sample_installation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

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

std::string Contents(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Puts a text behind the first line that ends so.
void WriteBehind(const CheckedInstallation& installation, const std::string& name, const std::string& line,
                 const std::string& added) {
    std::string text = Contents(installation.Directory().Path() / name);
    const std::size_t place = text.find(line);
    ASSERT_NE(place, std::string::npos) << line;
    installation.Write(name, text.insert(place + line.size(), "\n" + added));
}

TEST(CleanSample, OfTheFirstButtonOfTheGuideOnlyTheTextsOfOtherLanguagesAreMissed) {
    std::vector<std::string> pieces;
    const std::string guide = Contents(kSource / "docs" / "first-button.md"), begin = "```xml\n";
    for (std::size_t at = guide.find(begin); at != std::string::npos; at = guide.find(begin, at)) {
        at += begin.size();
        pieces.push_back(guide.substr(at, guide.find("```", at) - at));
    }
    ASSERT_EQ(pieces.size(), 2u);
    const CheckedInstallation installation;
    Copy(kSource / "demo", installation);
    WriteBehind(installation, "cfg/ribbon.xml", R"(<panel KEYWORD="PanelRegions" NAME="">)", pieces[0]);
    WriteBehind(installation, "lang/en/viewer.xlf", R"(<file id="RibbonBarCfg">)", pieces[1]);
    WriteMissingIcons(installation);
    const std::vector<Diagnostic> findings = installation.Check();
    EXPECT_FALSE(findings.empty());
    for (const Diagnostic& finding : findings) {
        EXPECT_EQ(finding.code, "missing-text") << CheckedInstallation::Describe(finding);
        EXPECT_NE(finding.text.find(L"CityNairobi"), std::wstring::npos) << wstring2String(finding.text);
    }
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
        {"<item KEYWORD=\"ScaleLabel\"", "<\u9879\u76EE KEYWORD=\"ScaleLabel\""}, // elements may have any names
        {" KEYWORD=", " xmlns:x=\"urn:x\" xml:space=\"default\" KEYWORD="},
        {"<ribbon>", "<ribbon xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                     "xsi:noNamespaceSchemaLocation=\"ribbon.xsd\" own=\"1\">"},
        {"<menu>", "<menu version=\"2\">"},
        {"KEYWORD=\"Save\"", "IDKEY=\"Save\""},
        {"CATETAB=\"Y\"", "CATETAB=\"y\""},
        {"GROUPBEFORE=\"Y\"", "groupBefore=\"y\""},
        {"<item KEYWORD=\"Separator\"/>", "<item KEYWORD=\"SEPARATOR\"/>"},
        {"MENUNAME=\"SEPARATOR\"", "menuname=\"separator\" KEYWORD=\"any\""},
        {"TYPE=\"separate\"", "type=\"SEPARATE\""},
        {"HOTKEY=\"Ctrl+P\"", "HOTKEY=\"ctrl+p\""},
        {"HOTKEY=\"Ctrl+Shift+Z\"", "HOTKEY=\"shift+CTRL+z\""},
        {"HOTKEY=\"Alt+X\"", "HOTKEY=\"Alt+5\""},
        {"SHORTKEY=\"X\"", "SHORTKEY=\"5\""},
        {"SIZE=\"32\"", "SIZE=\"+32\""},
        {"SIZE=\"32\"", "SIZE=\"0032\""},
        {"WIDTH=\"120\"", ""},
        {"PICPATH=\"pic\\icon\\save.ico\"", "PICPATH=\"PIC\\Icon\\SAVE.ICO\""},
        {"PICPATH=\"pic\\icon\\save.ico\"", "PICPATH=\".\\pic\\..\\pic\\icon\\save.ico\""},
        {"PICPATH=\"pic\\icon\\save.ico\"", "PICPATH=\"pic/icon\\save.ico\""},
        {"PARAM=\"all\"", "PARAM=\"a &lt; b &amp;&amp; c &gt; d &quot;e&quot; &apos;\""},
        {"PARAM=\"all\"", "PARAM=\"\u5168\u90E8 \U0001F600\""},
        {"help=\"open.swf\"", "HELP=\"open.swf\""},
        {"</ribbon>\n", "</ribbon>\n<!-- end -->\n\n<?end?>\n"},
        {"  <group KEYWORD=\"Main\">", "  <group KEYWORD=\"Main\" PROMPT=\"x\">"},
        {"version=\"2.0\"", "version=\"2.2\""},
        {"trgLang=\"de\"", "trgLang=\"DE\""},
        {" trgLang=\"de\"", ""},
        {"<file id=\"RibbonBarCfg\">", "<file id=\"RibbonBarCfg\"><notes><note>x</note></notes>"},
        {"<unit id=\"Save\">", "<unit id=\"u1\" name=\"Save\"><notes><note category=\"x\">y</note></notes>"},
        {"<segment>", "<segment id=\"s\" state=\"final\" subState=\"x:y\">"},
        {"<source>Save</source>", "<source>S<ph id=\"1\"/><cp hex=\"0061\"/><mrk id=\"m\">ve</mrk></source>"},
        {"<source>Save</source>", "<source xml:space=\"preserve\">Save</source>"},
        {"<target>de Save</target>", "<target order=\"1\">de Save</target>"},
        {"<target>de Save</target></segment>", "<target>de </target></segment><ignorable><source> "
                                               "</source></ignorable><segment><source/><target>Save</target>"
                                               "</segment>"},
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
