#include "sample_installation.h"

#include <gtest/gtest.h>

namespace {

/// As UTF-16; the text is ASCII.
std::string Wide(const std::string& text, bool isLowerByteFirst) {
    std::string wide;
    for (const char c : text) {
        wide += isLowerByteFirst ? std::string{c, '\0'} : std::string{'\0', c};
    }
    return wide;
}

std::string Declaring(std::string text, std::string_view encoding) {
    constexpr std::string_view usual = "UTF-8";
    return text.replace(text.find(usual), usual.size(), encoding);
}

constexpr const char kLittleMark[] = "\xFF\xFE";
constexpr const char kBigMark[] = "\xFE\xFF";
constexpr const char kUtf8Mark[] = "\xEF\xBB\xBF";

TEST(DeclaredEncoding, OneThatTheFirstBytesContradictIsToldAlone) {
    const CheckedInstallation installation;
    WriteSample(installation);
    for (const SampleFile& file : SampleFiles()) {
        const std::string wrong[] = {kLittleMark + Wide(file.text, true),
                                     kBigMark + Wide(file.text, false),
                                     Wide(file.text, true),
                                     Wide(file.text, false),
                                     kLittleMark + Wide(Declaring(file.text, "gbk"), true),
                                     kLittleMark + Wide(Declaring(file.text, "UTF-16BE"), true),
                                     kUtf8Mark + Declaring(file.text, "gb2312"),
                                     kUtf8Mark + Declaring(file.text, "UTF-16")};
        for (const std::string& text : wrong) {
            installation.Write(file.name, text);
            EXPECT_EQ(installation.Findings(), std::string(file.name) + ":1:31 xml-encoding\n");
        }
        installation.Write(file.name, file.text);
    }
}

TEST(DeclaredEncoding, OneThatTheFirstBytesConfirmIsFine) {
    const CheckedInstallation installation;
    WriteSample(installation);
    for (const SampleFile& file : SampleFiles()) {
        const std::string right[] = {kLittleMark + Wide(Declaring(file.text, "UTF-16"), true),
                                     kLittleMark + Wide(Declaring(file.text, "utf-16le"), true),
                                     kBigMark + Wide(Declaring(file.text, "UTF-16BE"), false),
                                     Wide(Declaring(file.text, "UTF-16"), true),
                                     kUtf8Mark + Declaring(file.text, "utf8"),
                                     kLittleMark + Wide(file.text.substr(file.text.find('\n') + 1), true),
                                     Declaring(file.text, "gbk")};
        for (const std::string& text : right) {
            installation.Write(file.name, text);
            EXPECT_EQ(installation.Findings(), "") << file.name;
        }
        installation.Write(file.name, file.text);
    }
}

TEST(DeclaredEncoding, TheMendSaysWhatToWrite) {
    const CheckedInstallation installation;
    installation.Write("cfg/ribbon.xml", kLittleMark + Wide(SampleRibbon(), true));
    const std::vector<Diagnostic> findings = installation.Check({L"cfg/ribbon.xml"});
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(findings.front().text, L"the declaration says \"UTF-8\", and the file's byte-order mark says UTF-16, "
                                     L"which counts; other programs refuse the file");
    EXPECT_EQ(findings.front().fix, L"save the file as UTF-8, or write encoding=\"UTF-16\"");
}

} // namespace
