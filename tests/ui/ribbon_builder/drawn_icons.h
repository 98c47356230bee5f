#pragma once

#include "ribbon_icon_button.h"
#include "tests/support/canvas.h"
#include "tests/support/icon_writer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

// 0x00RRGGBB.
constexpr std::uint32_t red = 0xFF0000;
constexpr std::uint32_t green = 0x00FF00;
constexpr std::uint32_t blue = 0x0000FF;
constexpr std::uint32_t yellow = 0xFFFF00;

inline void WriteIcon(const CString& path, int side, std::uint32_t colour) {
    const std::filesystem::path file(path.GetString());
    std::filesystem::create_directories(file.parent_path());
    const std::string bytes = MakeIconFile(side, {colour, colour});
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// A red icon at the path of the button's large picture and a blue one at its alternate.
inline void WriteLargeIcons(const CMFCRibbonUNIcoButton& button) {
    CString path = button.GetIconPath(TRUE);
    WriteIcon(path, 32, red);
    ASSERT_GT(path.Replace(L"modle", L"modle_0"), 0);
    WriteIcon(path, 32, blue);
}

inline std::uint32_t ColourDrawn(CMFCRibbonUNIcoButton& button, CMFCRibbonBaseElement::RibbonImageType type) {
    Canvas canvas;
    const int side = type == CMFCRibbonBaseElement::RibbonImageLarge ? 32 : 16;
    button.DrawImage(canvas.Dc(), type, CRect(0, 0, side, side));
    return canvas.At(4, 4);
}

/// The colour of the large picture while the skin style selects the alternates.
inline std::uint32_t AlternateColour(CMFCRibbonUNIcoButton& button) {
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    const std::uint32_t colour = ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageLarge);
    CMFCRibbonUNIcoButton::SetSkinStyle(CString());
    return colour;
}
