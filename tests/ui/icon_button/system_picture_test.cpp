// Whatever an icon file holds, the picture is the one that the system loads from it.
#include "tests/support/icon_file_bytes.h"
#include "tests/support/png_file.h"
#include "tests/ui/icon_button/icon_fixture.h"

#include <fstream>
#include <functional>
#include <iterator>
#include <ostream>
#include <vector>

namespace {

/// Another colour in every pixel, and every transparency.
std::uint32_t Pixel(int x, int y, int side) {
    const auto shade = [side](int value) { return static_cast<std::uint32_t>(value * 255 / (side - 1)); };
    return shade(x) << 24 | shade(y) << 16 | shade(side - 1 - x) << 8 | shade(side - 1 - y);
}

/// A bitmap of an icon with the mask of a frame around it; palettes of shades of grey. `bits` for each pixel.
std::string BitmapOf(int side, int bits) {
    std::string bytes = BitmapHeader(side, side);
    bytes[14] = static_cast<char>(bits);
    const int colours = bits <= 8 ? 1 << bits : 0;
    for (int colour = 0; colour < colours; ++colour) {
        const auto shade = static_cast<std::uint32_t>(colour * 255 / (colours - 1));
        bytes += LittleEndian(shade << 16 | shade << 8 | shade, 4);
    }
    const auto addRows = [&](int rowBits, const std::function<std::uint32_t(int, int)>& valueOf) {
        for (int y = 0; y < side; ++y) {
            std::string row(static_cast<std::size_t>((side * rowBits + 31) / 32 * 4), '\0');
            for (int x = 0; x < side; ++x) {
                for (int bit = 0; bit < rowBits; ++bit) {
                    const int place = rowBits < 8 ? x * rowBits + rowBits - 1 - bit : x * rowBits + bit;
                    const int inByte = rowBits < 8 ? 7 - place % 8 : place % 8;
                    row[static_cast<std::size_t>(place / 8)] |=
                        static_cast<char>((valueOf(x, y) >> bit & 1u) << inByte);
                }
            }
            bytes += row;
        }
    };
    addRows(bits, [&](int x, int y) {
        return bits <= 8 ? static_cast<std::uint32_t>((x + y) % colours) : Pixel(x, y, side);
    });
    addRows(1, [&](int x, int y) { return x == 0 || y == 0 || x == side - 1 || y == side - 1 ? 1u : 0u; });
    return bytes;
}

/// The same colours as a PNG file.
std::string PngOf(int side) {
    const ScopedGdiplus gdiplus;
    EXPECT_TRUE(gdiplus.IsStarted());
    const TemporaryDirectory directory;
    const std::wstring path = directory.Prefix() + L"picture.png";
    {
        Gdiplus::Bitmap picture(side, side, PixelFormat32bppARGB);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                picture.SetPixel(x, y, Gdiplus::Color(Pixel(x, y, side)));
            }
        }
        EXPECT_EQ(picture.Save(path.c_str(), &kPngEncoder, nullptr), Gdiplus::Ok);
    }
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Reversed(std::string bitmap) {
    // Rows that go downwards have a height below zero.
    const auto height = 0u - static_cast<std::uint32_t>(static_cast<unsigned char>(bitmap[8]));
    return bitmap.replace(8, 4, LittleEndian(height, 4));
}

struct Kind {
    const char* name;
    std::string (*bytes)();
};

std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.name; }

const Kind kKinds[] = {
    {"Bits32", [] { return MakeIconDirectory({BitmapOf(32, 32)}, {32}); }},
    {"Bits24", [] { return MakeIconDirectory({BitmapOf(32, 24)}, {32}); }},
    {"Bits8", [] { return MakeIconDirectory({BitmapOf(32, 8)}, {32}); }},
    {"Bits4", [] { return MakeIconDirectory({BitmapOf(32, 4)}, {32}); }},
    {"Bits1", [] { return MakeIconDirectory({BitmapOf(32, 1)}, {32}); }},
    {"Png", [] { return MakeIconDirectory({PngOf(32)}, {32}); }},
    {"PngBesideBitmaps",
     [] {
         return MakeIconDirectory({BitmapOf(16, 32), PngOf(32), BitmapOf(48, 32)}, {16, 32, 48});
     }},
    {"SeveralSizes",
     [] {
         return MakeIconDirectory({BitmapOf(48, 32), BitmapOf(32, 32), BitmapOf(16, 32)}, {48, 32, 16});
     }},
    {"OneSizeInSeveralDepths",
     [] {
         return MakeIconDirectory({BitmapOf(32, 8), BitmapOf(32, 32)}, {32, 32});
     }},
    {"OnlyAnotherSize", [] { return MakeIconDirectory({BitmapOf(24, 32)}, {24}); }},
    {"DirectoryWithoutSizes", [] { return MakeIconDirectory({BitmapOf(32, 32)}); }},
    {"DirectoryWithOtherSizes",
     [] {
         return MakeIconDirectory({BitmapOf(48, 32), BitmapOf(32, 32)}, {32, 48});
     }},
    {"RowsDownwards", [] { return MakeIconDirectory({Reversed(BitmapOf(32, 32))}, {32}); }},
    {"CutOffInTheColours", [] { return MakeIconDirectory({BitmapOf(32, 32)}, {32}).substr(0, 2000); }},
    {"CutOffInTheMask", [] { return MakeIconDirectory({BitmapOf(32, 32)}, {32}).substr(0, 22 + 40 + 4096 + 30); }},
    {"PngCutOff", [] { return MakeIconDirectory({PngOf(32)}, {32}).substr(0, 22 + 60); }},
    {"PngOfOtherBytes", [] { return MakeIconDirectory({PngHeader(32, 32) + std::string(200, 'x')}, {32}); }},
    {"SoundOneBehindABrokenOne",
     [] {
         return MakeIconDirectory({std::string(40, 0), BitmapOf(32, 32)}, {32, 32});
     }},
};

class SystemPicture : public IconButton, public testing::WithParamInterface<Kind> {
protected:
    void SetUp() override {
        IconButton::SetUp();
        m_path = m_directory.Write("kind.ico", GetParam().bytes()).c_str();
    }
    void ExpectAsTheSystemLoadsIt(int side) {
        const auto own = static_cast<HICON>(::LoadImageW(nullptr, m_path, IMAGE_ICON, side, side, LR_LOADFROMFILE));
        m_canvas.Clear();
        m_expected.Clear();
        ::DrawIconEx(m_expected.Dc()->GetSafeHdc(), 0, 0, own, side, side, 0, nullptr, DI_NORMAL);
        const FileIcon icon(m_path, side, side);
        EXPECT_EQ(icon.Get() != nullptr, own != nullptr);
        ::DrawIconEx(m_canvas.Dc()->GetSafeHdc(), 0, 0, icon.Get(), side, side, 0, nullptr, DI_NORMAL);
        ::DestroyIcon(own);
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                ASSERT_EQ(m_canvas.At(x, y), m_expected.At(x, y)) << x << ", " << y;
            }
        }
    }

    CString m_path;
    Canvas m_expected;
};

TEST_P(SystemPicture, IsDrawn) {
    ExpectAsTheSystemLoadsIt(32);
    ExpectAsTheSystemLoadsIt(16);
    ExpectAsTheSystemLoadsIt(48);
}

INSTANTIATE_TEST_SUITE_P(Of, SystemPicture, testing::ValuesIn(kKinds),
                         [](const auto& info) { return info.param.name; });

} // namespace
