#include "pseudo_language.h"
#include "tests/support/temporary_directory.h"

#include <varnhold/language_files.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

TEST(PseudoText, IsLongerMarkedAndInBrackets) {
    EXPECT_EQ(PseudoText(L"Save all"), L"[Šâvé âll~~~]");
    EXPECT_EQ(PseudoText(L""), L"");
    EXPECT_EQ(PseudoText(L"打开"), L"[打开~]");
}

TEST(PseudoText, LeavesMarksAndPlaceholdersAlone) {
    EXPECT_EQ(PseudoText(L"&Save"), L"[&Sâvé~~]");
    EXPECT_EQ(PseudoText(L"{name} of %s"), L"[{name} öf %s~~~~]");
}

TEST(PseudoInstallation, HasTheFilesAndATableOfTheMadeUpLanguageAsLongAsItLives) {
    const TemporaryDirectory directory;
    directory.Write("cfg/ribbon.xml", "<ribbon/>");
    directory.Write("lang/en/a.xlf",
                    "<xliff version=\"2.0\" srcLang=\"en\"><file id=\"S\"><unit id=\"u\" name=\"a &amp; b\">"
                    "<segment><source>Go &lt;on&gt;</source></segment></unit></file></xliff>");
    for (const char* const file : {"own/icons/16/a.ico", "help/open.swf", "bars.xml", "program.EXE"}) {
        directory.Write(file, "x");
    }
    std::wstring made;
    {
        const PseudoInstallation pseudo(directory.Prefix(), L"en");
        made = pseudo.Directory();
        ASSERT_FALSE(made.empty());
        EXPECT_TRUE(fs::exists(fs::path(made) / "cfg" / "ribbon.xml"));
        for (const char* const file : {"own/icons/16/a.ico", "help/open.swf", "bars.xml"}) {
            EXPECT_TRUE(fs::exists(fs::path(made) / file)) << file;
        }
        EXPECT_FALSE(fs::exists(fs::path(made) / "program.EXE"));
        EXPECT_FALSE(fs::exists(fs::path(made) / "lang" / "en"));
        struct Texts : varnhold::TranslationFileVisitor {
            void VisitUnit(const varnhold::TranslationUnit& unit, const varnhold::TextPlace&) override {
                found = unit.key;
                text = unit.text;
            }
            void VisitProblem(varnhold::TranslationProblem, varnhold::TextPosition, const std::wstring&) override {}
            std::string found;
            std::wstring text;
        } texts;
        ASSERT_TRUE(varnhold::ReadTranslationFile((fs::path(made) / "lang" / kPseudoLanguage / "all.xlf").wstring(),
                                                  kPseudoLanguage, texts));
        EXPECT_EQ(texts.found, "a & b");
        EXPECT_EQ(texts.text, L"[Gö <öñ>~~~]");
    }
    EXPECT_FALSE(fs::exists(fs::path(made)));
    EXPECT_TRUE(fs::exists(directory.Path() / "bars.xml")); // only its other name has gone
}

} // namespace
