#pragma once

#include <span>
#include <string>

/// One picture of the matrix. Files are relative to the page.
struct MatrixPicture {
    std::wstring tab;
    std::wstring skin;
    std::wstring language;
    int scale = 100; ///< percent
    int width = 0;   ///< of the window, pixels
    int height = 0;
    std::wstring file; ///< Empty: the tab is gone.
    /// Of the other configuration; empty where there is none.
    std::wstring before;
    bool isChanged = false;
};

/// A page (HTML, UTF-8) that shows the pictures of each tab side by side and needs nothing but them. What has changed
/// is marked, and stands beside what it was and the difference of the two.
std::string MatrixPage(const std::wstring& title, std::span<const MatrixPicture> pictures);
