#include "checked_installation.h"

#include <gtest/gtest.h>

#include <algorithm>
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

/// Writes an icon for every path that the message of a missing one quotes.
void WriteMissingIcons(const CheckedInstallation& installation) {
    for (const Diagnostic& finding : installation.Check()) {
        if (finding.code != "missing-icon") {
            continue;
        }
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

} // namespace
