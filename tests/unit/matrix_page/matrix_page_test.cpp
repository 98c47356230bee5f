#include "matrix_page.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

MatrixPicture Picture(const wchar_t* tab, const wchar_t* file) {
    return {tab, L"silver", L"en", 150, 640, 300, file, {}, false};
}

std::size_t Count(const std::string& text, const std::string& piece) {
    std::size_t count = 0;
    for (std::size_t at = text.find(piece); at != text.npos; at = text.find(piece, at + 1)) {
        ++count;
    }
    return count;
}

TEST(MatrixPage, ShowsEachPictureUnderItsTabWithItsCombination) {
    const std::string page =
        MatrixPage(L"a & b", std::vector{Picture(L"Map", L"p/1.png"), Picture(L"<Tools>", L"p/2.png"),
                                         Picture(L"Map", L"p/3.png")});
    EXPECT_EQ(Count(page, "<section"), 2u);
    EXPECT_EQ(Count(page, "<figure>"), 3u);
    EXPECT_NE(page.find("<title>a &amp; b</title>"), page.npos);
    EXPECT_NE(page.find("&lt;Tools&gt;"), page.npos);
    EXPECT_NE(page.find("en, silver, 150 %, 640 × 300"), page.npos);
    EXPECT_LT(page.find("p/3.png"), page.find("p/2.png"));
    EXPECT_NE(page.find("3 pictures."), page.npos);
}

TEST(MatrixPage, NeedsNothingButThePictures) {
    const std::string page = MatrixPage(L"x", std::vector{Picture(L"Map", L"p/1.png")});
    for (const char* const outside : {"http", "<link", "<script", "@import", "url("}) {
        EXPECT_EQ(page.find(outside), page.npos) << outside;
    }
    EXPECT_NE(page.find("width=device-width"), page.npos);
}

TEST(MatrixPage, MarksWhatHasChangedBesideWhatItWas) {
    std::vector<MatrixPicture> pictures = {Picture(L"Map", L"p/1.png"), Picture(L"Map", L"p/2.png"),
                                           Picture(L"Map", L"p/3.png")};
    pictures[0].before = L"b/1.png";
    pictures[1].before = L"b/2.png";
    pictures[1].isChanged = true;
    pictures[2].isChanged = true; // the other has none
    const std::string page = MatrixPage(L"x", pictures);
    EXPECT_NE(page.find("3 pictures, 2 changed."), page.npos);
    EXPECT_EQ(Count(page, "<figure class=\"changed\">"), 2u);
    EXPECT_EQ(page.find("b/1.png"), page.npos);
    EXPECT_NE(page.find("b/2.png"), page.npos);
    EXPECT_EQ(Count(page, "class=\"difference\""), 1u);
}

TEST(MatrixPage, ShowsATabThatIsGoneAsItWas) {
    const MatrixPicture pictures[] = {{L"Map", L"silver", L"en", 100, 640, 300, L"pictures/1.png", {}, true},
                                      {L"Old", L"silver", L"en", 100, 640, 300, {}, L"before/2.png", true}};
    const std::string page = MatrixPage(L"x", pictures);
    EXPECT_NE(page.find("<h2>Old</h2>"), page.npos);
    EXPECT_NE(page.find("<b>gone</b>"), page.npos);
    EXPECT_NE(page.find("<b>new</b>"), page.npos);
    EXPECT_NE(page.find("<img loading=\"lazy\" src=\"before/2.png\""), page.npos);
    EXPECT_EQ(page.find("src=\"\""), page.npos);
    EXPECT_NE(page.find("<p>1 pictures, 2 changed."), page.npos);
}

TEST(MatrixPage, WritesAddressesOfFilesInAnyLanguage) {
    const std::string page = MatrixPage(L"x", std::vector{Picture(L"Map", L"p/a b-中.png")});
    EXPECT_NE(page.find("src=\"p/a%20b-%E4%B8%AD.png\""), page.npos);
}

} // namespace
