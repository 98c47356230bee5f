#include "checked_installation.h"

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

} // namespace
