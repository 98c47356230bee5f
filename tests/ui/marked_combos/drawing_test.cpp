// Where the marks and texts of faces and rows are drawn.
#include "combos/mark_geometry.h"
#include "tests/support/translation_tables.h"
#include "tests/ui/marked_combos/combo_picture.h"

#include <afxvisualmanageroffice2007.h>

namespace {

constexpr COLORREF orange = RGB(0xFF, 0x80, 0x20);
constexpr std::uint32_t black = 0;

class ComboDrawing : public RibbonCombos {
protected:
    /// The combo's rectangle, drawn now.
    static ComboPicture Face(CMFCRibbonComboBox& combo) {
        return ComboPicture(combo.GetRect().Size(), [&](CDC& dc) { DrawFace(combo, dc); });
    }
    /// A rectangle of the combo's parent in the picture of its face.
    static CRect InFace(const CMFCRibbonComboBox& combo, CRect rect) {
        rect.OffsetRect(-combo.GetRect().TopLeft());
        return rect;
    }
    /// The open list of the combo, drawn now.
    static ComboPicture List() {
        CRect client;
        Rows()->GetClientRect(&client);
        return ComboPicture(client.Size(), [](CDC& dc) { DrawRows(*Rows(), dc); });
    }
    void SetScale(double scale) {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(scale));
        m_host.LayOut();
    }
};

bool Contains(const CRect& outer, const CRect& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

std::string Text(const CRect& rect) {
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) + " " +
           std::to_string(rect.bottom);
}

TEST_F(ComboDrawing, ACheckChangesNothingButTheBoxOnTheFace) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SelectItem(1);
    const ComboPicture without = Face(combo);
    combo.SetItemCheck(1, true);
    const CRect changed = Face(combo).DifferenceTo(without);
    const CRect edit = InFace(combo, combo.GetEditRect());
    const int top = (edit.top + edit.bottom) / 2 - 7;
    const CRect box(edit.left + 2, top, edit.left + 17, top + 15);
    EXPECT_FALSE(changed.IsRectEmpty());
    EXPECT_TRUE(Contains(box, changed)) << Text(changed) << " in " << Text(box);
    combo.SetItemCheck(1, false);
    EXPECT_TRUE(Face(combo).DifferenceTo(without).IsRectEmpty()) << "no entry is drawn as no check";
    combo.SetItemCheck(0, true);
    EXPECT_TRUE(Face(combo).DifferenceTo(without).IsRectEmpty()) << "another item's check";
}

TEST_F(ComboDrawing, AFaceWithoutASelectionShowsAnUncheckedBoxAndNoText) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SetItemCheck(0, true);
    const ComboPicture without = Face(combo);
    combo.SelectItem(1);
    const CRect changed = Face(combo).DifferenceTo(without);
    const CRect edit = InFace(combo, combo.GetEditRect());
    EXPECT_GE(changed.left, edit.left + 2 + 15 + 3) << "the text alone";
    EXPECT_LE(changed.right, edit.right);
}

TEST_F(ComboDrawing, ADisabledFaceIsDrawnInAnotherWay) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SelectItem(1);
    combo.SetItemCheck(1, true);
    const ComboPicture enabled = Face(combo);
    combo.SetDisabled(TRUE);
    const CRect changed = Face(combo).DifferenceTo(enabled);
    const CRect edit = InFace(combo, combo.GetEditRect());
    EXPECT_LT(changed.left, edit.left + 17) << "the box";
    EXPECT_GT(changed.right, edit.left + 20) << "the text";
}

TEST_F(ComboDrawing, ACheckInARowChangesNothingButItsBox) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    Open(combo);
    Rows()->SetHotRow(-1);
    const ComboPicture without = List();
    combo.SetItemCheck(1, true);
    const CRect changed = List().DifferenceTo(without);
    const CRect row = Rows()->GetRowRect(1);
    const int top = (row.top + row.bottom) / 2 - 7;
    EXPECT_FALSE(changed.IsRectEmpty());
    EXPECT_TRUE(Contains(CRect(2, top, 17, top + 15), changed)) << Text(changed) << " in row " << Text(row);
}

TEST_F(ComboDrawing, ASwatchIsFilledWithItsColourAndFramedInBlack) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemClr(1, orange, false);
    combo.SelectItem(1);
    const ComboPicture face = Face(combo);
    const CRect edit = InFace(combo, combo.GetEditRect());
    const marks::SwatchRow place =
        marks::PlaceSwatchRow({edit.left, edit.top, edit.right, edit.bottom}, MarkSizes::Current().icon);
    for (int y = place.swatch.top; y < place.swatch.bottom; ++y) {
        for (int x = place.swatch.left; x < place.swatch.right; ++x) {
            const bool isFrame = x == place.swatch.left || x == place.swatch.right - 1 || y == place.swatch.top ||
                                 y == place.swatch.bottom - 1;
            ASSERT_EQ(face.At(x, y), isFrame ? black : ToPixel(orange)) << x << ' ' << y;
        }
    }
    EXPECT_NE(face.At(place.swatch.left - 1, place.swatch.top), black);
    EXPECT_NE(face.At(place.swatch.right, place.swatch.top), black);
    combo.SelectItem(0);
    EXPECT_EQ(
        Face(combo).At((place.swatch.left + place.swatch.right) / 2, (place.swatch.top + place.swatch.bottom) / 2),
        black)
        << "without a record";
}

TEST_F(ComboDrawing, ALightChangesNothingButItsSquareInFaceAndRow) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SelectItem(1);
    const ComboPicture off = Face(combo);
    combo.SetItemLight(1, true, false);
    CRect changed = Face(combo).DifferenceTo(off);
    CRect edit = InFace(combo, combo.GetEditRect());
    EXPECT_FALSE(changed.IsRectEmpty());
    EXPECT_GE(changed.left, edit.left + 19);
    EXPECT_LE(changed.right, edit.left + 32);

    Open(combo);
    Rows()->SetHotRow(-1);
    const ComboPicture listOff = List();
    combo.SetItemLight(2, true, false);
    changed = List().DifferenceTo(listOff);
    const CRect row = Rows()->GetRowRect(2);
    EXPECT_FALSE(changed.IsRectEmpty());
    EXPECT_TRUE(Contains(CRect(19, row.top, 32, row.bottom), changed)) << Text(changed);
}

TEST_F(ComboDrawing, ALightOnlyCombosLightStandsAtItsLeft) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    combo.SelectItem(1);
    const ComboPicture off = Face(combo);
    combo.SetItemLight(1, true, false);
    CRect changed = Face(combo).DifferenceTo(off);
    const CRect edit = InFace(combo, combo.GetEditRect());
    EXPECT_FALSE(changed.IsRectEmpty());
    EXPECT_GE(changed.left, edit.left + 3);
    EXPECT_LE(changed.right, edit.left + 16);
    Open(combo);
    Rows()->SetHotRow(-1);
    const ComboPicture listOff = List();
    combo.SetItemLight(0, true, false);
    changed = List().DifferenceTo(listOff);
    const CRect row = Rows()->GetRowRect(0);
    EXPECT_FALSE(changed.IsRectEmpty());
    EXPECT_TRUE(Contains(CRect(3, row.top, 16, row.bottom), changed)) << Text(changed);
}

TEST_F(ComboDrawing, TheTextBeginsThreePixelsBehindTheMarks) {
    struct Case {
        CMFCRibbonComboBox& combo;
        int textLeft;
    };
    const Case cases[] = {{Add<CMFCRibbonCheckComb>(), 20},
                          {Add<CMFCRibbonMultiCombo>(comboId + 1), 35},
                          {Add<CMFCRibbonVesMultiCombo>(comboId + 2), 19}};
    for (const Case& one : cases) {
        one.combo.AddItem(L"");
        one.combo.AddItem(L"\x2588\x2588"); // full blocks
        one.combo.SelectItem(3);
        const ComboPicture without = Face(one.combo);
        one.combo.SelectItem(4);
        const CRect changed = Face(one.combo).DifferenceTo(without);
        const LONG textLeft = InFace(one.combo, one.combo.GetEditRect()).left + one.textLeft;
        EXPECT_GE(changed.left, textLeft);
        EXPECT_LE(changed.left, textLeft + 2);
    }
}

TEST_F(ComboDrawing, TheTextOfARowBeginsThreePixelsBehindTheMarks) {
    struct Case {
        CMFCRibbonComboBox& combo;
        int textLeft;
    };
    const Case cases[] = {{Add<CMFCRibbonCheckComb>(comboId, 0), 20},
                          {Add<CMFCRibbonMultiCombo>(comboId + 1, 0), 35},
                          {Add<CMFCRibbonVesMultiCombo>(comboId + 2, 0), 19}};
    for (const Case& one : cases) {
        one.combo.AddItem(L"");
        one.combo.AddItem(L"\x2588\x2588"); // full blocks
        Open(one.combo);
        Rows()->SetHotRow(-1);
        const ComboPicture list = List();
        const CRect empty = Rows()->GetRowRect(0);
        const int height = empty.Height();
        // The rows differ by the text alone.
        int first = -1;
        for (int x = 0; x < empty.right && first < 0; ++x) {
            for (int y = 0; y < height && first < 0; ++y) {
                if (list.At(x, y) != list.At(x, y + height)) {
                    first = x;
                }
            }
        }
        EXPECT_GE(first, one.textLeft);
        EXPECT_LE(first, one.textLeft + 2);
        CMFCPopupMenu::CloseAll();
    }
}

TEST_F(ComboDrawing, AScaledCheckBoxIsDrawnInItsSizeOnFaceAndInRow) {
    struct Case {
        double scale;
        int side;
    };
    for (const Case& one : {Case{1.5, 23}, Case{2.0, 30}}) {
        SCOPED_TRACE(one.scale);
        SetScale(one.scale);
        MarkSizes::Current() = MarkSizes();
        const CMFCRibbonCheckComb madeByName; // scales the box
        auto& combo = Add<CMFCRibbonCheckComb>();
        combo.SelectItem(1);
        const auto expectBox = [&](const CRect& changed, const CRect& area) {
            const int top = (area.top + area.bottom) / 2 - one.side / 2;
            const CRect box(area.left + 2, top, area.left + 2 + one.side, top + one.side);
            EXPECT_TRUE(Contains(box, changed)) << Text(changed) << " in " << Text(box);
            EXPECT_GE(changed.Width(), one.side / 2) << "the mark is scaled";
        };
        const ComboPicture without = Face(combo);
        combo.SetItemCheck(1, true);
        expectBox(Face(combo).DifferenceTo(without), InFace(combo, combo.GetEditRect()));

        Open(combo);
        Rows()->SetHotRow(-1);
        const ComboPicture listWithout = List();
        combo.SetItemCheck(2, true);
        expectBox(List().DifferenceTo(listWithout), Rows()->GetRowRect(2));
        CMFCPopupMenu::CloseAll();
    }
}

TEST_F(ComboDrawing, ARowHasNoLineTowardsTheNext) {
    auto& combo = Add<CMFCRibbonCheckComb>(comboId, 0);
    combo.AddItem(L"");
    combo.AddItem(L"");
    Open(combo);
    Rows()->SetHotRow(-1);
    const ComboPicture list = List();
    const CRect row = Rows()->GetRowRect(0);
    for (int y = row.top; y < row.bottom + 1; ++y) {
        EXPECT_EQ(list.At(60, y), 0xFFFFFFu) << y;
    }
}

TEST_F(ComboDrawing, TextsAreTranslatedWhenTheyAreDrawnAndToldAsTheyWereGiven) {
    const TranslatedInstallation installation;
    struct Case {
        CMFCRibbonComboBox& combo;
        int markAt;
        const char* told;
    };
    const Case cases[] = {{Add<CMFCRibbonCheckComb>(comboId, 0), 8, "sent CHECK 'two' 1"},
                          {Add<CMFCRibbonMultiCombo>(comboId + 1, 0), 25, "sent LIGHT 'two' 1"},
                          {Add<CMFCRibbonVesMultiCombo>(comboId + 2, 0), 8, "sent LIGHT-ONLY 'two' 1"}};
    for (const auto& [combo, markAt, told] : cases) {
        for (const wchar_t* const text : {L"two", L"<two>"}) {
            combo.AddItem(text);
        }
        combo.SelectItem(1);
        const ComboPicture wanted = Face(combo);
        combo.SelectItem(0);
        const ComboPicture untranslated = Face(combo);
        EXPECT_FALSE(untranslated.DifferenceTo(wanted).IsRectEmpty());
        ASSERT_TRUE(installation.Translate("two", "Common"));
        EXPECT_TRUE(Face(combo).DifferenceTo(wanted).IsRectEmpty()) << "a language switch needs a repaint only";
        Open(combo);
        Rows()->SetHotRow(-1);
        const ComboPicture list = List();
        const CRect first = Rows()->GetRowRect(0);
        for (int y = first.top; y < first.bottom; ++y) {
            for (int x = 0; x < first.right; ++x) {
                ASSERT_EQ(list.At(x, y), list.At(x, y + first.Height())) << "both rows read alike";
            }
        }
        ClickRow(0, markAt);
        EXPECT_EQ(TakeTold(), Told{told});
        CMFCPopupMenu::CloseAll();
        CMultiLanguageMgr::SetLanguage(L"");
    }
}

TEST_F(ComboDrawing, SectionsOtherThanCommonDoNotCount) {
    const TranslatedInstallation installation;
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    combo.SelectItem(0);
    const ComboPicture before = Face(combo);
    ASSERT_TRUE(installation.Translate("one", "RibbonBarCfg"));
    EXPECT_TRUE(Face(combo).DifferenceTo(before).IsRectEmpty());
}

TEST_F(ComboDrawing, AScaledMultiCombosMarksAreAsLargeAsTheScaledIcon) {
    struct Case {
        double scale;
        int side;
    };
    for (const Case& one : {Case{1.5, 24}, Case{2.0, 32}}) {
        SetScale(one.scale);
        auto& combo = Add<CMFCRibbonMultiCombo>();
        combo.SetItemClr(1, orange, false);
        combo.SelectItem(1);
        const ComboPicture face = Face(combo);
        const CRect edit = InFace(combo, combo.GetEditRect());
        ASSERT_GE(edit.Height(), one.side);
        const int middle = (edit.top + edit.bottom) / 2;
        EXPECT_EQ(face.At(edit.left + 3, middle), black);
        EXPECT_EQ(face.At(edit.left + 4, middle), ToPixel(orange));
        EXPECT_EQ(face.At(edit.left + 1 + one.side, middle), ToPixel(orange));
        EXPECT_EQ(face.At(edit.left + 2 + one.side, middle), black);
        EXPECT_NE(face.At(edit.left + 3 + one.side, middle), black);
        combo.SetItemLight(1, true, false);
        const CRect changed = Face(combo).DifferenceTo(face);
        EXPECT_GE(changed.left, edit.left + one.side + 6);
        EXPECT_LE(changed.right, edit.left + 2 * one.side + 6);
        EXPECT_GT(changed.Width(), one.side * 2 / 3) << "the light is scaled";
        ClickFace(combo, one.side + 10);
        EXPECT_EQ(TakeTold(), Told{"sent LIGHT 'two' 0"});
        ClickFace(combo, one.side);
        EXPECT_EQ(TakeTold(), Told{"posted COLOUR #1 " + std::to_string(orange)});
    }
}

TEST_F(ComboDrawing, AMirroredWindowShowsTheMarksAtTheRight) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemClr(1, orange, false);
    combo.SelectItem(1);
    const ComboPicture plain = Face(combo);
    const int width = combo.GetRect().Width();
    const ComboPicture mirrored(combo.GetRect().Size(), [&](CDC& dc) {
        dc.SetLayout(LAYOUT_RTL);
        DrawFace(combo, dc);
    });
    const CRect edit = InFace(combo, combo.GetEditRect());
    const int middle = (edit.top + edit.bottom) / 2;
    for (const int x : {3, 4, 9, 14, 15}) {
        EXPECT_EQ(mirrored.At(width - 1 - (edit.left + x), middle), plain.At(edit.left + x, middle)) << x;
    }
}

TEST_F(ComboDrawing, AListBelowAMirroredBarEndsAtTheEditAreasVisibleEdge) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    m_host.Bar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    m_host.LayOut();
    combo.DropDownList();
    ASSERT_NE(Rows(), nullptr);
    CRect list;
    CMFCPopupMenu::GetActiveMenu()->GetWindowRect(&list);
    CRect edit = combo.GetEditRect();
    m_host.Bar().ClientToScreen(&edit);
    edit.NormalizeRect();
    EXPECT_EQ(list.right, edit.right);
    EXPECT_EQ(list.top, edit.bottom);
}

TEST_F(ComboDrawing, OutrageousItemsAreDrawnInOneLine) {
    auto& combo = Add<CMFCRibbonMultiCombo>(comboId, 0);
    const CString longText(L'W', 100000);
    for (const wchar_t* const text : {longText.GetString(), L"two\r\nlines", L"two  lines"}) {
        combo.AddItem(text);
    }
    combo.SelectItem(0);
    Face(combo);
    combo.SelectItem(1);
    const ComboPicture broken = Face(combo);
    combo.SelectItem(2);
    EXPECT_TRUE(Face(combo).DifferenceTo(broken).IsRectEmpty()) << "line ends are blanks";
    Open(combo);
    List();
    CRect rect;
    Rows()->GetWindowRect(&rect);
    EXPECT_LE(rect.Width(), ::GetSystemMetrics(SM_CXSCREEN));
}

// ---- for people to look at

struct Look {
    const wchar_t* name;
    CMFCVisualManagerOffice2007::Style style;
    double scale;
};

class ComboGallery : public ComboDrawing, public testing::WithParamInterface<Look> {
protected:
    ~ComboGallery() override { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager)); }
    template <class Combo>
    void Prepare(Combo& combo) {
        for (const wchar_t* const text : {L"Coastlines", L"Depth contours", L"Shipping lanes",
                                          L"Weather, every six hours", L"\x6D77\x56FE", L"A & B"}) {
            combo.AddItem(text);
        }
        combo.SelectItem(1);
        m_host.LayOut();
    }
    void DrawColumn(ComboPicture& sheet, CMFCRibbonComboBox& combo, int column) {
        const int step = afxGlobalData.ScalePixels(30);
        const int left = afxGlobalData.ScalePixels(10 + 250 * column);
        int top = step / 3;
        const auto face = [&] {
            sheet.Draw(CPoint(left, top), [&](CDC& dc) { DrawFace(combo, dc); });
            top += step;
        };
        face();
        combo.SetHighlighted(TRUE);
        face();
        combo.SetHighlighted(FALSE);
        combo.SetDisabled(TRUE);
        face();
        combo.SetDisabled(FALSE);
        sheet.Draw(CPoint(left, top), [&](CDC& dc) {
            dc.SetLayout(LAYOUT_RTL);
            dc.OffsetViewportOrg(0, 0);
            const CPoint former = dc.SetViewportOrg(sheet.Size().cx - left - combo.GetRect().Width(), top);
            DrawFace(combo, dc);
            dc.SetViewportOrg(former);
        });
        top += step;
        combo.DropDownList();
        ASSERT_NE(Rows(), nullptr);
        Rows()->SetHotRow(2);
        sheet.Draw(CPoint(left, top), [](CDC& dc) { DrawRows(*Rows(), dc); });
        CMFCPopupMenu::CloseAll();
        PumpPending();
    }
};

TEST_P(ComboGallery, FacesAndListsCanBeRead) {
    CMFCVisualManagerOffice2007::SetStyle(GetParam().style);
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    SetScale(GetParam().scale);
    auto& check = Add<CMFCRibbonCheckComb>(comboId, 0);
    Prepare(check);
    auto& multi = Add<CMFCRibbonMultiCombo>(comboId + 1, 0);
    Prepare(multi);
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 2, 0);
    Prepare(light);
    const COLORREF colors[] = {RGB(30, 90, 200),  RGB(220, 60, 40),   RGB(60, 160, 70),
                               RGB(250, 200, 40), RGB(255, 255, 255), RGB(120, 60, 160)};
    for (int i = 0; i < 6; ++i) {
        check.SetItemCheck(i, i % 2 == 1);
        multi.SetItemInfo(i, colors[i], i % 3 != 0, false);
        light.SetItemLight(i, i % 2 == 1, false);
    }
    ComboPicture sheet(CSize(afxGlobalData.ScalePixels(780), afxGlobalData.ScalePixels(260)));
    DrawColumn(sheet, check, 0);
    DrawColumn(sheet, multi, 1);
    DrawColumn(sheet, light, 2);
    sheet.Save(std::wstring(L"combos-") + GetParam().name + L".png");
    int swatches = 0;
    for (int y = 0; y < sheet.Size().cy; ++y) {
        for (int x = 0; x < sheet.Size().cx; ++x) {
            swatches += sheet.At(x, y) == ToPixel(colors[1]) ? 1 : 0;
        }
    }
    EXPECT_GE(swatches, 5 * 9 * 9) << "four faces and a row show the second colour";
}

INSTANTIATE_TEST_SUITE_P(Looks, ComboGallery,
                         testing::Values(Look{L"black-100", CMFCVisualManagerOffice2007::Office2007_ObsidianBlack, 1.0},
                                         Look{L"black-150", CMFCVisualManagerOffice2007::Office2007_ObsidianBlack, 1.5},
                                         Look{L"silver-100", CMFCVisualManagerOffice2007::Office2007_Silver, 1.0},
                                         Look{L"silver-200", CMFCVisualManagerOffice2007::Office2007_Silver, 2.0}),
                         [](const auto& info) {
                             std::wstring name = info.param.name;
                             std::erase(name, L'-');
                             return std::string(name.begin(), name.end());
                         });

} // namespace
