// Where a dialog stands whose template says nothing of its place.
#include "frame_fixture.h"

namespace {

/// A dialog of the test's template in another place or with other styles, closed as soon as it runs.
class PlacedDialog : public CDialog {
public:
    explicit PlacedDialog(CWnd* owner, short x = 0, short y = 0, DWORD style = 0) {
        m_template.head.style = (style & WS_CHILD ? 0 : WS_POPUP | WS_CAPTION) | style;
        m_template.head.x = x;
        m_template.head.y = y;
        m_template.head.cx = 80;
        m_template.head.cy = 40;
        Create(owner);
    }
    CRect Place() const {
        CRect place;
        GetWindowRect(&place);
        return place;
    }

private:
    void Create(CWnd* owner) { CreateIndirect(&m_template.head, owner, nullptr); }

    struct {
        DLGTEMPLATE head{};
        WORD menu = 0;
        WORD windowClass = 0;
        WORD title = 0;
    } m_template;
};

class MovedDialog : public CDialog {
public:
    explicit MovedDialog(CWnd* owner) { Create(IDD_TEST_DIALOG, owner); }
    BOOL OnInitDialog() override {
        SetWindowPos(nullptr, 17, 19, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        return CDialog::OnInitDialog();
    }
};

class DialogPlace : public ::testing::Test {
protected:
    DialogPlace() {
        m_owner.Create(nullptr, L"Owner", WS_OVERLAPPEDWINDOW, CRect(200, 150, 700, 550));
        m_owner.ShowWindow(SW_SHOWNOACTIVATE);
    }
    static CPoint CentreOf(const CWnd& window) {
        CRect place;
        window.GetWindowRect(&place);
        return place.CenterPoint();
    }
    static void ExpectNear(CPoint actual, CPoint expected) {
        EXPECT_NEAR(actual.x, expected.x, 1);
        EXPECT_NEAR(actual.y, expected.y, 1);
    }

    Owned<CFrameWnd> m_owner;
};

TEST_F(DialogPlace, DialogWithoutAPlaceIsCentredOnItsOwner) {
    const PlacedDialog dialog(&m_owner);
    ASSERT_NE(dialog.m_hWnd, nullptr);
    ExpectNear(CentreOf(dialog), CentreOf(m_owner));
}

TEST_F(DialogPlace, DialogOfTheExtendedTemplateIsCentredToo) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_TEST_DIALOG, &m_owner));
    ExpectNear(CentreOf(dialog), CentreOf(m_owner));
}

TEST_F(DialogPlace, PlaceOfTheTemplateIsKept) {
    const PlacedDialog dialog(&m_owner, 10, 10);
    const CPoint centre = CentreOf(dialog);
    EXPECT_GT(CentreOf(m_owner).x - centre.x, 50);
}

TEST_F(DialogPlace, AbsolutePlaceIsKept) {
    const PlacedDialog dialog(&m_owner, 0, 0, DS_ABSALIGN);
    EXPECT_EQ(dialog.Place().TopLeft(), CPoint(0, 0));
}

TEST_F(DialogPlace, DialogThatMovedItselfStaysThere) {
    const MovedDialog dialog(&m_owner);
    CRect place;
    dialog.GetWindowRect(&place);
    EXPECT_EQ(place.TopLeft(), CPoint(17, 19));
}

TEST_F(DialogPlace, ChildDialogStaysWhereItsParentHasIt) {
    const PlacedDialog dialog(&m_owner, 0, 0, WS_CHILD);
    EXPECT_EQ(PlaceInParent(dialog).TopLeft(), CPoint(0, 0));
}

} // namespace
