#include "afxdrawmanager.h"
#include "fx/dc_scope.h"
#include "fx/exceptions.h"
#include "fx/image_list.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

/// A 32-bit picture in memory to draw on.
class Canvas : public testing::Test {
protected:
    void SetUp() override {
        m_before = AfxGdiObjectCount();
        m_dc = std::make_unique<CDC>();
        ASSERT_TRUE(m_dc->CreateCompatibleDC(nullptr));
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = 40;
        info.bmiHeader.biHeight = -30;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, nullptr, nullptr, 0);
        m_bitmapBefore = ::SelectObject(*m_dc, m_bitmap);
    }
    void TearDown() override {
        ::SelectObject(*m_dc, m_bitmapBefore);
        m_dc.reset();
        ::DeleteObject(m_bitmap);
        AfxDeleteTemporaryGdiObjects();
        EXPECT_EQ(AfxGdiObjectCount(), m_before) << "every wrapper gave its handle back";
    }

    std::unique_ptr<CDC> m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_bitmapBefore = nullptr;
    long m_before = 0;
};
constexpr int g_width = 40, g_height = 30;
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// The same picture as the context of a mirrored window.
class MirroredCanvas : public Canvas {
protected:
    /// A blue ground with what `draw` puts there, row by row from the left of the device.
    template <typename Draw>
    std::vector<COLORREF> Pixels(Draw draw) {
        ::SetLayout(*m_dc, 0);
        m_dc->FillSolidRect(CRect(0, 0, g_width, g_height), blue);
        ::SetLayout(*m_dc, LAYOUT_RTL);
        draw(*m_dc);
        return Copy();
    }
    std::vector<COLORREF> Copy() {
        const DWORD layout = ::SetLayout(*m_dc, 0);
        std::vector<COLORREF> pixels;
        for (int y = 0; y < g_height; ++y) {
            for (int x = 0; x < g_width; ++x) {
                pixels.push_back(m_dc->GetPixel(x, y));
            }
        }
        ::SetLayout(*m_dc, layout);
        return pixels;
    }
    /// One letter a pixel, so that a failure shows where.
    static std::string Rows(const std::vector<COLORREF>& pixels) {
        std::string text;
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const COLORREF pixel = pixels[i];
            text += pixel == blue    ? '.'
                    : pixel == red   ? 'r'
                    : pixel == green ? 'g'
                                     : static_cast<char>('A' + pixel % 26);
            if ((i + 1) % g_width == 0) {
                text += '\n';
            }
        }
        return text;
    }
    /// Places that change sides, text that keeps its direction, a picture, the first and the last column.
    static void DrawSample(CDC& dc) {
        dc.FillSolidRect(CRect(3, 3, 8, 8), red);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(green);
        dc.TextOut(9, 4, CString(L"F1"));
        CBrush brush(green);
        dc.FillRect(CRect(0, 20, 1, 22), &brush);
        dc.FillRect(CRect(38, 20, 40, 22), &brush);
        CDrawingManager(dc).FillGradient(CRect(5, 22, 21, 28), red, green, FALSE);
    }
};

/// A frame while something is dragged: its pixels are turned round, and back again by drawing it once more.
class DragFrame : public MirroredCanvas {
protected:
    static constexpr RECT kFrame{6, 5, 20, 17};
    static constexpr SIZE kWidth{2, 3};

    void SetUp() override {
        MirroredCanvas::SetUp();
        m_dc->FillSolidRect(CRect(0, 0, g_width, g_height), blue);
    }
    /// What is drawn in yellow on blue, of a white brush. In logical units of the context as it is.
    void ExpectBand(const CRect& outer, SIZE width) {
        CRect inner(outer);
        inner.DeflateRect(width);
        for (int y = outer.top - 1; y <= outer.bottom; ++y) {
            for (int x = outer.left - 1; x <= outer.right; ++x) {
                const CPoint point(x, y);
                const bool isOn = outer.PtInRect(point) && !inner.PtInRect(point);
                ASSERT_EQ(m_dc->GetPixel(point), isOn ? RGB(255, 255, 0) : blue) << x << ' ' << y;
            }
        }
    }
    void ExpectNothing() {
        m_dc->SetViewportOrg(0, 0);
        ::SetLayout(*m_dc, 0);
        for (int y = 0; y < g_height; ++y) {
            for (int x = 0; x < g_width; ++x) {
                ASSERT_EQ(m_dc->GetPixel(x, y), blue) << x << ' ' << y;
            }
        }
    }

    CBrush m_white{RGB(255, 255, 255)};
};

TEST_F(DragFrame, ItIsABandInsideTheRectangle) {
    m_dc->DrawDragRect(&kFrame, kWidth, nullptr, kWidth, &m_white);
    ExpectBand(kFrame, kWidth);
    m_dc->DrawDragRect(&kFrame, kWidth, nullptr, kWidth, &m_white);
    ExpectNothing();
}

TEST_F(DragFrame, InAScrolledContextItIsWhereOtherDrawingIs) {
    m_dc->SetViewportOrg(9, 7);
    m_dc->DrawDragRect(&kFrame, kWidth, nullptr, kWidth, &m_white);
    ExpectBand(kFrame, kWidth);
}

TEST_F(DragFrame, InAMirroredContextItIsWhereOtherDrawingIs) {
    const auto filled = Pixels([](CDC& dc) { dc.FillSolidRect(&kFrame, red); });
    const auto framed = Pixels([this](CDC& dc) { dc.DrawDragRect(&kFrame, {20, 20}, nullptr, {}, &m_white); });
    for (std::size_t at = 0; at < filled.size(); ++at) {
        ASSERT_EQ(framed[at] != blue, filled[at] == red) << at % g_width << ' ' << at / g_width;
    }
}

TEST_F(DragFrame, MovingItLeavesNothingWhereItWas) {
    for (const int origin : {0, 5}) {
        m_dc->SetViewportOrg(origin, origin);
        const CRect next(9, 7, 23, 20);
        m_dc->DrawDragRect(&kFrame, kWidth, nullptr, kWidth, &m_white);
        m_dc->DrawDragRect(&next, {1, 1}, &kFrame, kWidth, &m_white);
        ExpectBand(next, {1, 1});
        CBrush other(RGB(255, 255, 255));
        m_dc->DrawDragRect(&kFrame, kWidth, &next, {1, 1}, &m_white, &other);
        ExpectBand(kFrame, kWidth);
        m_dc->DrawDragRect(&kFrame, kWidth, nullptr, kWidth, &m_white);
    }
    ExpectNothing();
}

TEST_F(DragFrame, TheClipRegionOfTheContextStays) {
    m_dc->IntersectClipRect(CRect(0, 0, 10, g_height));
    m_dc->DrawDragRect(&kFrame, kWidth, nullptr, kWidth, &m_white);
    CRect clip;
    m_dc->GetClipBox(clip);
    EXPECT_EQ(clip, CRect(0, 0, 10, g_height));
    m_dc->SelectClipRgn(nullptr);
    EXPECT_EQ(m_dc->GetPixel(7, 6), RGB(255, 255, 0));
    EXPECT_EQ(m_dc->GetPixel(12, 6), blue);
}

TEST_F(Canvas, OwnedObjectsAreCountedAndDeleted) {
    const long before = AfxGdiObjectCount();
    HGDIOBJ handle = nullptr;
    {
        CPen pen(PS_SOLID, 1, red);
        CBrush brush(blue);
        handle = pen;
        EXPECT_EQ(AfxGdiObjectCount(), before + 2);
        EXPECT_EQ(CPen::FromHandle(pen), &pen);
        EXPECT_EQ(CGdiObject::FromHandlePermanent(handle), &pen);
    }
    EXPECT_EQ(AfxGdiObjectCount(), before);
    EXPECT_EQ(::GetObjectType(handle), 0u);
}

TEST_F(Canvas, TemporariesOwnNothingAndEndAtIdle) {
    const HBRUSH handle = ::CreateSolidBrush(green);
    CGdiObject* const object = CGdiObject::FromHandle(handle);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_EQ(CBrush::FromHandle(handle), object);
    EXPECT_EQ(CGdiObject::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(CGdiObject::FromHandle(nullptr), nullptr);
    AfxDeleteTemporaryGdiObjects();
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    ::DeleteObject(handle);
}

TEST_F(Canvas, DetachedHandlesLiveOn) {
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, L"Arial"));
    const HGDIOBJ handle = font.Detach();
    EXPECT_EQ(font.GetSafeHandle(), nullptr);
    EXPECT_FALSE(font.DeleteObject());
    EXPECT_TRUE(::DeleteObject(handle));
}

TEST_F(Canvas, SelectObjectAnswersTheObjectBefore) {
    CPen first(PS_SOLID, 1, red);
    CPen second(PS_SOLID, 1, green);
    CPen* const stock = m_dc->SelectObject(&first);
    ASSERT_NE(stock, nullptr);
    EXPECT_EQ(m_dc->SelectObject(&second), &first);
    EXPECT_EQ(m_dc->GetCurrentPen(), &second);
    EXPECT_EQ(m_dc->SelectObject(stock), &second);
}

TEST_F(Canvas, ScopesPutBackWhatTheyChanged) {
    CPen pen(PS_SOLID, 1, red);
    const HGDIOBJ before = ::GetCurrentObject(*m_dc, OBJ_PEN);
    {
        const fx::DcSelection selection(*m_dc, pen);
        EXPECT_EQ(::GetCurrentObject(*m_dc, OBJ_PEN), pen.m_hObject);
    }
    EXPECT_EQ(::GetCurrentObject(*m_dc, OBJ_PEN), before);
    m_dc->SetTextColor(blue);
    {
        const fx::DcState state(*m_dc);
        m_dc->SetTextColor(red);
        m_dc->IntersectClipRect(0, 0, 1, 1);
    }
    EXPECT_EQ(m_dc->GetTextColor(), blue);
    CRect box;
    m_dc->GetClipBox(box);
    EXPECT_EQ(box.Width(), 40);
}

TEST_F(Canvas, SolidFillSetsTheBackgroundColour) {
    m_dc->FillSolidRect(CRect(2, 3, 6, 8), green);
    EXPECT_EQ(m_dc->GetPixel(2, 3), green);
    EXPECT_EQ(m_dc->GetPixel(5, 7), green);
    EXPECT_EQ(m_dc->GetPixel(6, 7), RGB(0, 0, 0));
    EXPECT_EQ(m_dc->GetPixel(5, 8), RGB(0, 0, 0));
    EXPECT_EQ(m_dc->GetBkColor(), green);
}

TEST_F(Canvas, Raised3dRectangleHasTwoColours) {
    m_dc->Draw3dRect(CRect(0, 0, 10, 10), red, blue);
    EXPECT_EQ(m_dc->GetPixel(0, 0), red);
    EXPECT_EQ(m_dc->GetPixel(8, 0), red);
    EXPECT_EQ(m_dc->GetPixel(9, 0), blue);
    EXPECT_EQ(m_dc->GetPixel(0, 9), blue);
    EXPECT_EQ(m_dc->GetPixel(5, 5), RGB(0, 0, 0));
}

TEST_F(Canvas, MemoryDcCopiesItsRectangleBack) {
    m_dc->FillSolidRect(CRect(0, 0, 40, 30), blue);
    {
        fx::MemoryDc buffer(*m_dc, CRect(5, 5, 15, 15));
        EXPECT_EQ(buffer->GetPixel(6, 6), blue) << "it starts with what is there";
        buffer->FillSolidRect(CRect(7, 7, 30, 9), red);
        EXPECT_EQ(m_dc->GetPixel(8, 8), blue);
    }
    EXPECT_EQ(m_dc->GetPixel(8, 8), red);
    EXPECT_EQ(m_dc->GetPixel(14, 8), red);
    EXPECT_EQ(m_dc->GetPixel(15, 8), blue) << "outside of the rectangle";
}

TEST_F(MirroredCanvas, EachRectangleThroughTheBufferEqualsTheSameDrawingAtOnce) {
    const std::vector<COLORREF> empty = Pixels([](CDC&) {});
    const std::vector<COLORREF> atOnce = Pixels(DrawSample);
    EXPECT_EQ(atOnce[4 * g_width + g_width - 5], red) << "the place is mirrored";
    EXPECT_EQ(atOnce[21 * g_width + g_width - 1], green) << "the first column";
    EXPECT_EQ(atOnce[21 * g_width], green) << "the last column";
    for (const CRect& rect : {CRect(0, 0, 40, 30), CRect(2, 2, 33, 25), CRect(3, 3, 8, 8), CRect(0, 20, 1, 22),
                              CRect(38, 19, 40, 23), CRect(8, 2, 17, 29)}) {
        const std::vector<COLORREF> buffered = Pixels([&rect](CDC& dc) {
            fx::MemoryDc buffer(dc, rect);
            DrawSample(buffer);
        });
        std::vector<COLORREF> expected = empty;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = g_width - rect.right; x < g_width - rect.left; ++x) {
                expected[y * g_width + x] = atOnce[y * g_width + x];
            }
        }
        EXPECT_EQ(Rows(buffered), Rows(expected))
            << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom;
    }
}

TEST_F(MirroredCanvas, TheTickOfACheckBoxIsNotTurned) {
    constexpr UINT checked = DFCS_BUTTONCHECK | DFCS_CHECKED;
    const auto mirrored = Pixels([](CDC& dc) {
        CRect box(3, 3, 19, 19);
        dc.DrawFrameControl(box, DFC_BUTTON, checked);
    });
    const auto plain = Pixels([](CDC& dc) {
        ::SetLayout(dc, 0);
        CRect box(g_width - 19, 3, g_width - 3, 19);
        dc.DrawFrameControl(box, DFC_BUTTON, checked);
    });
    EXPECT_EQ(Rows(mirrored), Rows(plain));
}

// A context may be mirrored and leave pictures unturned; what is filled lies where the other kind has it.
TEST_F(MirroredCanvas, FillsLieInTheSamePlacesWhetherPicturesAreTurnedOrNot) {
    const auto fill = [](CDC& dc) {
        CBrush brush(green);
        dc.FillSolidRect(CRect(3, 3, 8, 8), red);
        dc.FillRect(CRect(9, 3, 20, 8), &brush);
        dc.FrameRect(CRect(22, 3, 30, 9), &brush);
        dc.Draw3dRect(CRect(3, 10, 20, 20), red, green);
    };
    const std::vector<COLORREF> turned = Pixels(fill);
    EXPECT_EQ(turned[4 * g_width + g_width - 1 - 3], red);
    EXPECT_EQ(turned[4 * g_width + g_width - 8], red);
    EXPECT_EQ(turned[4 * g_width + g_width - 9], blue);
    EXPECT_EQ(turned[4 * g_width + g_width - 1 - 9], green);
    EXPECT_EQ(Rows(Pixels([&fill](CDC& dc) {
                  ::SetLayout(dc, LAYOUT_RTL | LAYOUT_BITMAPORIENTATIONPRESERVED);
                  fill(dc);
              })),
              Rows(turned));
}

TEST_F(MirroredCanvas, APictureLiesWhereItsRectangleIsFilled) {
    const CRect place(9, 3, 13, 7);
    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR32, 0, 1));
    CDC source;
    source.CreateCompatibleDC(m_dc.get());
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(m_dc.get(), 4, 4);
    {
        const fx::DcSelection selection(source, bitmap);
        source.FillSolidRect(0, 0, 4, 4, red);
    }
    list.Add(&bitmap, static_cast<CBitmap*>(nullptr));
    for (const DWORD layout : {DWORD{LAYOUT_RTL}, DWORD{LAYOUT_RTL | LAYOUT_BITMAPORIENTATIONPRESERVED}}) {
        const auto draw = [&](bool isPicture) {
            return Rows(Pixels([&](CDC& dc) {
                ::SetLayout(dc, layout);
                if (isPicture) {
                    EXPECT_TRUE(list.Draw(&dc, 0, place.TopLeft(), ILD_NORMAL));
                } else {
                    dc.FillSolidRect(place, red);
                }
            }));
        };
        EXPECT_EQ(draw(true), draw(false)) << layout;
    }
}

TEST_F(MirroredCanvas, ABufferThatNothingIsDrawnToChangesNothing) {
    const std::vector<COLORREF> before = Pixels(DrawSample);
    const std::vector<COLORREF> after = Pixels([](CDC& dc) {
        DrawSample(dc);
        const fx::MemoryDc buffer(dc, CRect(2, 2, 33, 25));
    });
    EXPECT_EQ(after, before);
}

TEST_F(MirroredCanvas, ABufferGoesWhereTheOriginIsMoved) {
    const auto moved = [](auto draw) {
        return [draw](CDC& dc) {
            dc.SetViewportOrg(-5, 3);
            draw(dc);
            dc.SetViewportOrg(0, 0);
        };
    };
    const std::vector<COLORREF> buffered = Pixels(moved([](CDC& dc) {
        fx::MemoryDc buffer(dc, CRect(0, 0, 40, 30));
        DrawSample(buffer);
    }));
    EXPECT_EQ(buffered, Pixels(moved(DrawSample)));
    EXPECT_NE(buffered, Pixels(DrawSample));
}

// What lay below a shadow comes back to the pixel.
TEST_F(MirroredCanvas, WhatAShadowCoversIsKept) {
    const std::vector<COLORREF> before = Pixels(DrawSample);
    std::vector<COLORREF> shaded;
    const std::vector<COLORREF> after = Pixels([&](CDC& dc) {
        DrawSample(dc);
        CBitmap below, beside;
        const CRect box(2, 2, 12, 10);
        CDrawingManager manager(dc);
        EXPECT_TRUE(manager.DrawShadow(box, 3, 100, 60, &below, &beside));
        shaded = Copy();
        EXPECT_TRUE(manager.DrawShadow(box, 3, 100, 100, &below, &beside));
    });
    EXPECT_NE(shaded, before);
    EXPECT_EQ(after, before);
}

TEST_F(Canvas, MemoryDcAnswersTheTargetForAnEmptyRectangle) {
    fx::MemoryDc buffer(*m_dc, CRect(5, 5, 5, 15));
    EXPECT_EQ(&buffer.GetDC(), m_dc.get());
}

TEST_F(Canvas, BlendAndTransparency) {
    CDC source;
    source.CreateCompatibleDC(m_dc.get());
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(m_dc.get(), 4, 4);
    {
        const fx::DcSelection selection(source, bitmap);
        source.FillSolidRect(0, 0, 4, 4, red);
        source.FillSolidRect(0, 0, 1, 4, green);
        m_dc->FillSolidRect(CRect(0, 0, 40, 30), blue);
        EXPECT_TRUE(m_dc->TransparentBlt(0, 0, 4, 4, &source, 0, 0, 4, 4, green));
        EXPECT_EQ(m_dc->GetPixel(0, 0), blue);
        EXPECT_EQ(m_dc->GetPixel(1, 0), red);
        EXPECT_TRUE(m_dc->AlphaBlend(10, 0, 4, 4, &source, 0, 0, 4, 4, BLENDFUNCTION{AC_SRC_OVER, 0, 128, 0}));
        const COLORREF mixed = m_dc->GetPixel(12, 2);
        EXPECT_NEAR(GetRValue(mixed), 128, 2);
        EXPECT_NEAR(GetBValue(mixed), 127, 2);
    }
}

TEST_F(Canvas, ImageListsAddDrawAndRoundTrip) {
    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR32 | ILC_MASK, 0, 2));
    const HICON icon = ::CreateIcon(nullptr, 4, 4, 1, 1, reinterpret_cast<const BYTE*>("\0\0\0\0\0\0\0\0"),
                                    reinterpret_cast<const BYTE*>("\xF0\0\xF0\0\xF0\0\xF0\0"));
    EXPECT_EQ(list.Add(icon), 0);
    EXPECT_TRUE(::DestroyIcon(icon)) << "the icon stays the caller's";
    EXPECT_EQ(list.Add(HICON(nullptr)), -1);
    EXPECT_EQ(CImageList::FromHandle(list), &list);
    m_dc->FillSolidRect(CRect(0, 0, 40, 30), green);
    EXPECT_TRUE(list.Draw(m_dc.get(), 0, CPoint(10, 10), ILD_NORMAL));
    EXPECT_EQ(m_dc->GetPixel(11, 11), RGB(255, 255, 255));
    EXPECT_EQ(m_dc->GetPixel(9, 11), green);

    CMemFile file;
    {
        CArchive ar(&file, CArchive::store);
        ASSERT_TRUE(list.Write(&ar));
    }
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    CImageList copy;
    ASSERT_TRUE(copy.Read(&ar));
    EXPECT_EQ(copy.GetImageCount(), 1);
    ar.Close();
}

TEST_F(Canvas, RegionsCombine) {
    CRgn outer;
    CRgn inner;
    outer.CreateRectRgn(0, 0, 10, 10);
    inner.CreateRectRgn(2, 2, 8, 8);
    EXPECT_EQ(outer.CombineRgn(&outer, &inner, RGN_DIFF), COMPLEXREGION);
    EXPECT_FALSE(outer.PtInRegion(5, 5));
    EXPECT_TRUE(outer.PtInRegion(1, 1));
}

TEST_F(Canvas, TextIsMeasuredWithItsWholeLength) {
    const CString text(L"measured");
    EXPECT_GT(m_dc->GetTextExtent(text).cx, m_dc->GetTextExtent(text, 4).cx);
    CRect rect;
    EXPECT_GT(m_dc->DrawText(text, rect, DT_CALCRECT | DT_SINGLELINE), 0);
    EXPECT_EQ(rect.Width(), m_dc->GetTextExtent(text).cx);
}

TEST(GdiObjects, EachThreadHasItsOwnMap) {
    CPen pen(PS_SOLID, 1, red);
    struct Result {
        HGDIOBJ handle;
        CGdiObject* permanent;
    } result{pen, &pen};
    const HANDLE thread = ::CreateThread(
        nullptr, 0,
        [](void* data) -> DWORD {
            auto* const seen = static_cast<Result*>(data);
            seen->permanent = CGdiObject::FromHandlePermanent(seen->handle);
            return 0;
        },
        &result, 0, nullptr);
    ::WaitForSingleObject(thread, INFINITE);
    ::CloseHandle(thread);
    EXPECT_EQ(result.permanent, nullptr);
}

} // namespace
