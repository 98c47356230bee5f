#include "planted_faults.h"
#include "sample_installation.h"

#include <gtest/gtest.h>

#include <set>

namespace {

/// Where the mark stands in a text, as line and column, and the text without it.
std::string TakeMark(std::string& text) {
    const std::size_t mark = text.find(kMark);
    if (mark == std::string::npos) {
        return "no mark";
    }
    text.erase(mark, std::string_view(kMark).size());
    std::size_t line = 1;
    std::size_t column = 1;
    for (const char c : text.substr(0, mark)) {
        if (c == '\n') {
            ++line;
            column = 1;
        } else {
            column += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
        }
    }
    return std::to_string(line) + ":" + std::to_string(column);
}

TEST(PlantedFault, TheSampleItselfIsClean) {
    const CheckedInstallation installation;
    WriteSample(installation);
    EXPECT_EQ(installation.Findings(), "");
}

TEST(PlantedFault, EachIsFoundAloneInItsPlace) {
    const CheckedInstallation installation;
    WriteSample(installation);
    std::string last;
    for (const PlantedFault& fault : kPlantedFaults) {
        for (const SampleFile& file : SampleFiles()) {
            if (last == file.name) {
                installation.Write(file.name, file.text);
            }
        }
        std::string text = MarkedFault(fault);
        ASSERT_FALSE(text.empty()) << fault.before << " stands not once in " << fault.file;
        const std::string place = TakeMark(text);
        installation.Write(fault.file, text);
        last = fault.file;
        EXPECT_EQ(installation.Findings(), std::string(fault.file) + ":" + place + " " + fault.code + "\n")
            << fault.before << "\n-> " << fault.after;
    }
}

TEST(PlantedFault, ThereAreManyOfAllKinds) {
    std::set<std::string> codes;
    std::set<std::string> files;
    for (const PlantedFault& fault : kPlantedFaults) {
        codes.insert(fault.code);
        files.insert(fault.file);
    }
    EXPECT_GE(std::size(kPlantedFaults), 150u);
    EXPECT_GE(codes.size(), 30u);
    EXPECT_EQ(files.size(), 5u);
}

} // namespace
