// The pictures of loaded buttons.
#include "tests/ui/toolbar_builder/builder_fixture.h"

#include "library_context.h"
#include "tests/support/icon_writer.h"

#include <afxcommandmanager.h>
#include <afxdrawmanager.h>
#include <afxglobals.h>

#include <filesystem>
#include <fstream>

namespace {

void WriteIconAt(const CString& path) {
    const std::filesystem::path file(path.GetString());
    std::filesystem::create_directories(file.parent_path());
    const std::string bytes = MakeIconFile(16, {0xFF0000, 0xFF0000});
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

TEST_F(ToolBarBuilder, AnIconIsTheUsersImageOfItsButton) {
    WriteIconAt(GetIconPathStr(L"pic\\bar.ico", 16));
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='button' KEYWORD='A' PICPATH='pic\\bar.ico'/>"
                     "<i TYPE='button' KEYWORD='B' PICPATH='pic\\none.ico'/></b></g>"));
    const CMFCToolBarButton& with = *First().GetButton(0);
    EXPECT_TRUE(with.m_bUserButton);
    EXPECT_FALSE(with.IsLocked());
    EXPECT_GE(with.GetImage(), 0);
    EXPECT_EQ(First().GetButton(1)->GetImage(), -1) << "still inserted, without an image";
    ASSERT_NE(CMFCToolBar::GetUserImages(), nullptr) << "the library's list stands in for missing user's images";
    EXPECT_EQ(CSize(CMFCToolBar::GetUserImages()->GetImageSize()), CSize(16, 16));
    EXPECT_LT(with.GetImage(), CMFCToolBar::GetUserImages()->GetCount());
}

/// A display of one and a half times the usual size, for one test.
class ScopedScale {
public:
    ScopedScale() { EXPECT_TRUE(afxGlobalData.SetRibbonImageScale(1.5)); }
    ~ScopedScale() { afxGlobalData.SetRibbonImageScale(0); }
    ScopedScale(const ScopedScale&) = delete;
    ScopedScale& operator=(const ScopedScale&) = delete;
};

COLORREF DrawnColor(CMFCToolBarImages& images, int index, int side) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    CBitmap bitmap;
    bitmap.Attach(CDrawingManager::CreateBitmap_32(CSize(side, side), &bits));
    CBitmap* const before = dc.SelectObject(&bitmap);
    images.DrawEx(&dc, CRect(0, 0, side, side), index, CMFCToolBarImages::ImageAlignHorzStretch,
                  CMFCToolBarImages::ImageAlignVertStretch);
    const COLORREF color = dc.GetPixel(side / 2, side / 2);
    dc.SelectObject(before);
    return color;
}

TEST_F(ToolBarBuilder, ALargerDisplayShowsTheFilesPictureThatFitsItNotTheSmallOneEnlarged) {
    const ScopedScale scale;
    const std::filesystem::path file(GetIconPathStr(L"pic\\bar.ico", 16).GetString());
    std::filesystem::create_directories(file.parent_path());
    const std::string bytes = MakeIconFile({{16, {0xFF0000, 0xFF0000}}, {24, {0x0000FF, 0x0000FF}}});
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    constexpr int known = 40803;
    CMenuIdMgr::Ins()->Add(L"B", known, L"", L"", L"", L"", L"");
    GetCmdMgr()->ClearCmdImage(known);
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='button' KEYWORD='A' PICPATH='pic\\bar.ico'/>"
                     "<i TYPE='button' KEYWORD='B' PICPATH='pic\\bar.ico'/></b></g>"));
    CMFCToolBarImages& users = *CMFCToolBar::GetUserImages();
    EXPECT_EQ(CSize(users.GetImageSize()), CSize(16, 16));
    for (const int button : {0, 1}) {
        const int image = First().GetButton(button)->GetImage();
        EXPECT_EQ(DrawnColor(users, image, 16), RGB(255, 0, 0)) << button;
        EXPECT_EQ(DrawnColor(users, image, 24), RGB(0, 0, 255)) << button;
    }
    const int ofCommand = GetCmdMgr()->GetCmdImage(known);
    EXPECT_EQ(DrawnColor(*CMFCToolBar::GetImages(), ofCommand, 16), RGB(255, 0, 0)) << "in menus";
    EXPECT_EQ(DrawnColor(*CMFCToolBar::GetImages(), ofCommand, 24), RGB(0, 0, 255)) << "in menus";
}

TEST_F(ToolBarBuilder, ARegisteredCommandWithoutAnImageGetsTheSharedOne) {
    WriteIconAt(GetIconPathStr(L"pic\\bar.ico", 16));
    constexpr int with = 40801;
    constexpr int without = 40802;
    CMenuIdMgr::Ins()->Add(L"A", with, L"", L"", L"", L"", L"");
    CMenuIdMgr::Ins()->Add(L"B", without, L"", L"", L"", L"", L"");
    GetCmdMgr()->SetCmdImage(without, 3, FALSE);
    GetCmdMgr()->ClearCmdImage(with);
    const int before = CMFCToolBar::GetImages()->GetCount();
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='qkLayerCheckCtrl' KEYWORD='A' PICPATH='pic\\bar.ico'/>"
                     "<i TYPE='button' KEYWORD='B' PICPATH='pic\\bar.ico'/></b></g>"));
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(with), before);
    EXPECT_EQ(CMFCToolBar::GetImages()->GetCount(), before + 1);
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(without), 3) << "it has one";
}

TEST_F(ToolBarBuilder, EveryButtonHasAnImageOfItsOwnAlsoOneThatIsNotInserted) {
    WriteIconAt(GetIconPathStr(L"pic\\bar.ico", 16));
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='button' KEYWORD='A' PICPATH='pic\\bar.ico'/>"
                     "<i TYPE='slider' KEYWORD='B' PICPATH='pic\\bar.ico'/>"
                     "<i TYPE='separate' PICPATH='pic\\bar.ico'/>"
                     "<i TYPE='qkLayerMultiCtrl' KEYWORD='C' PICPATH='pic\\bar.ico'/></b></g>"));
    const int first = First().GetButton(0)->GetImage();
    EXPECT_EQ(First().GetCount(), 3);
    EXPECT_EQ(First().GetButton(2)->GetImage(), first + 2) << "the unknown type's lies between";
}

TEST_F(ToolBarBuilder, IconsOfASecondFileStandBehindThoseOfTheFirst) {
    WriteIconAt(GetIconPathStr(L"pic\\bar.ico", 16));
    const std::string group = "<g KEYWORD='G'><b><i TYPE='button' KEYWORD='A' PICPATH='pic\\bar.ico'/></b></g>";
    ASSERT_TRUE(Load(group));
    ASSERT_TRUE(Load(group));
    const CMFCToolBar& second = *creater.GetAllToolBar().back();
    EXPECT_EQ(second.GetButton(0)->GetImage(), First().GetButton(0)->GetImage() + 1);
    EXPECT_EQ(CMFCToolBar::GetUserImages()->GetCount(), second.GetButton(0)->GetImage() + 1);
}

TEST_F(ToolBarBuilder, UsersImagesOfTheHostStay) {
    WriteIconAt(GetIconPathStr(L"pic\\bar.ico", 16));
    CMFCToolBar::SetSizes(CSize(23, 22), CSize(16, 16));
    CMFCToolBarImages own;
    own.SetImageSize(CSize(16, 16));
    ASSERT_TRUE(CMFCToolBar::SetUserImages(&own));
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='button' KEYWORD='A' PICPATH='pic\\bar.ico'/></b></g>"));
    EXPECT_EQ(CMFCToolBar::GetUserImages(), &own);
    CMFCToolBar::SetUserImages(nullptr);
}

} // namespace
