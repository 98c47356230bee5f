// Views whose window is a control of the system's.
#include "frame_fixture.h"

#include "afxcview.h"
#include "fx/archive.h"

#include <string>

namespace {

class Note : public CDocument {
    DECLARE_DYNCREATE(Note)
};
IMPLEMENT_DYNCREATE(Note, CDocument)

class FileList : public CListView {
    DECLARE_DYNCREATE(FileList)
public:
    using CListView::RemoveImageList;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override {
        cs.style |= LVS_REPORT;
        return CListView::PreCreateWindow(cs);
    }
};
IMPLEMENT_DYNCREATE(FileList, CListView)

class ControlView : public testing::Test {
protected:
    void SetUp() override { m_note.m_bAutoDelete = FALSE; }
    template <class View>
    View& Make() {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(View);
        context.m_pCurrentDoc = &m_note;
        EXPECT_TRUE(m_frame.Create(nullptr, L"controls", WS_OVERLAPPEDWINDOW, CRect(10, 10, 410, 310), nullptr, nullptr,
                                   0, &context));
        m_frame.InitialUpdateFrame(&m_note, TRUE);
        return *DYNAMIC_DOWNCAST(View, m_frame.GetActiveView());
    }
    bool IsEnabled(UINT id) {
        struct State : CCmdUI {
            void Enable(BOOL bOn) override { isOn = bOn != FALSE; }
            bool isOn = false;
        } state;
        state.m_nID = id;
        return m_frame.OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &state, nullptr) && state.isOn;
    }
    void Do(UINT id) { m_frame.SendMessage(WM_COMMAND, id); }

    Note m_note;
    Owned<CFrameWnd> m_frame;
};

TEST_F(ControlView, AListIsMadeWithTheStyleOfTheDerivedClassAndFillsTheFrame) {
    FileList& view = Make<FileList>();
    CListCtrl& list = view.GetListCtrl();
    EXPECT_EQ(list.m_hWnd, view.m_hWnd);
    EXPECT_EQ(view.GetStyle() & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 80);
    EXPECT_EQ(list.InsertItem(0, L"first"), 0);
    EXPECT_EQ(list.GetItemText(0, 0), L"first");
    EXPECT_EQ(view.GetDocument(), &m_note);
}

TEST_F(ControlView, AListGivesItsImagesBack) {
    FileList& view = Make<FileList>();
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    view.GetListCtrl().SetImageList(&images, LVSIL_STATE);
    view.RemoveImageList(LVSIL_STATE);
    EXPECT_EQ(view.GetListCtrl().GetImageList(LVSIL_STATE), nullptr);
    EXPECT_EQ(images.GetImageCount(), 0) << "the images are still there for their owner";
}

TEST_F(ControlView, ATreeIsATree) {
    CTreeView& view = Make<CTreeView>();
    CTreeCtrl& tree = view.GetTreeCtrl();
    EXPECT_EQ(tree.m_hWnd, view.m_hWnd);
    const HTREEITEM root = tree.InsertItem(L"root");
    tree.InsertItem(L"leaf", root);
    EXPECT_EQ(tree.GetCount(), 2u);
}

TEST_F(ControlView, AnEditMarksTheDocumentWhenTheUserTypesAndNotWhenItIsRead) {
    CEditView& view = Make<CEditView>();
    CMemFile file;
    {
        CArchive out(&file, CArchive::store);
        out << CString(L"kept");
    }
    file.SeekToBegin();
    CArchive in(&file, CArchive::load);
    view.Serialize(in);
    EXPECT_EQ(view.GetBufferLength(), 4u);
    EXPECT_FALSE(m_note.IsModified());
    view.SendMessage(WM_CHAR, L'x');
    EXPECT_TRUE(m_note.IsModified());
    m_note.SetModifiedFlag(FALSE);
}

TEST_F(ControlView, AnEditHasManyLinesAndBarsAndTakesAnyLength) {
    CEditView& view = Make<CEditView>();
    EXPECT_EQ(view.GetStyle() & (ES_MULTILINE | WS_VSCROLL | WS_HSCROLL),
              static_cast<DWORD>(ES_MULTILINE | WS_VSCROLL | WS_HSCROLL));
    EXPECT_GT(view.GetEditCtrl().GetLimitText(), 100000u);
}

TEST_F(ControlView, ARawTextIsNothingButItsCharacters) {
    CEditView& view = Make<CEditView>();
    const std::wstring longText(5000, L'\u00e4');
    view.SetWindowText(longText.c_str());
    CMemFile file;
    {
        CArchive out(&file, CArchive::store);
        view.SerializeRaw(out);
    }
    EXPECT_EQ(file.GetLength(), longText.size() * sizeof(wchar_t));
    view.SetWindowText(L"");
    file.SeekToBegin();
    CArchive in(&file, CArchive::load);
    view.SerializeRaw(in);
    EXPECT_EQ(std::wstring(view.LockBuffer()), longText);
    view.UnlockBuffer();
}

TEST_F(ControlView, TheCommandsOfAnEditFollowTextAndSelection) {
    CEditView& view = Make<CEditView>();
    EXPECT_FALSE(IsEnabled(ID_EDIT_SELECT_ALL));
    EXPECT_FALSE(IsEnabled(ID_EDIT_CUT));
    view.SetWindowText(L"some text");
    EXPECT_TRUE(IsEnabled(ID_EDIT_SELECT_ALL));
    Do(ID_EDIT_SELECT_ALL);
    CString selected;
    view.GetSelectedText(selected);
    EXPECT_EQ(selected, L"some text");
    EXPECT_TRUE(IsEnabled(ID_EDIT_CUT));
    EXPECT_TRUE(IsEnabled(ID_EDIT_CLEAR));
    Do(ID_EDIT_CLEAR);
    EXPECT_EQ(view.GetBufferLength(), 0u);
    EXPECT_TRUE(IsEnabled(ID_EDIT_UNDO));
    Do(ID_EDIT_UNDO);
    EXPECT_EQ(view.GetBufferLength(), 9u);
    m_note.SetModifiedFlag(FALSE);
}

TEST_F(ControlView, TextIsFoundBehindTheSelectionAndBeforeIt) {
    CEditView& view = Make<CEditView>();
    view.SetWindowText(L"one two One two");
    const auto selection = [&view] {
        int start = 0, end = 0;
        view.GetEditCtrl().GetSel(start, end);
        return std::pair(start, end);
    };
    view.GetEditCtrl().SetSel(0, 0);
    EXPECT_TRUE(view.FindText(L"two"));
    EXPECT_EQ(selection(), std::pair(4, 7));
    EXPECT_TRUE(view.FindText(L"two"));
    EXPECT_EQ(selection(), std::pair(12, 15));
    EXPECT_FALSE(view.FindText(L"two"));
    EXPECT_EQ(selection(), std::pair(12, 15)) << "the selection stays";
    EXPECT_TRUE(view.FindText(L"one", FALSE));
    EXPECT_EQ(selection(), std::pair(0, 3)) << "not the one with another case";
    EXPECT_TRUE(view.FindText(L"one", TRUE, FALSE));
    EXPECT_EQ(selection(), std::pair(8, 11));
    EXPECT_FALSE(view.FindText(L""));
}

} // namespace
