// The recent files in the application menu.
#include <gmock/gmock.h>

#include <afxadv.h>
#include <afxres.h>
#include <afxwinappex.h>

#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Reaches what an application calls in its InitInstance.
class Settings : public CWinApp {
public:
    using CWinApp::LoadStdProfileSettings;
};

void Load(UINT count) {
    (AfxGetApp()->*static_cast<void (CWinApp::*)(UINT)>(&Settings::LoadStdProfileSettings))(count);
}

class RecentFilesMenu : public RibbonPopupTest {
protected:
    RecentFilesMenu() {
        Load(4);
        for (int index = 3; index >= 0; --index) {
            AfxGetApp()->GetRecentFileList()->Remove(index);
        }
        Bar().SetApplicationButton(&m_button, CSize(44, 24));
        m_panel = Bar().AddMainCategory(L"Main", 0, 0);
        m_panel->Add(new CMFCRibbonButton(kLine, L"New"));
        m_panel->AddRecentFilesList(L"Recent maps", 220);
        Bar().RecalcLayout();
        PumpPending();
    }
    ~RecentFilesMenu() override {
        CMFCRibbonPanelMenu::DismissAll();
        Bar().SetApplicationButton(nullptr, CSize(0, 0));
        Load(0);
    }
    CMFCRibbonBaseElement& Row(UINT number) { return *m_panel->FindByID(ID_FILE_MRU_FILE1 + number); }
    std::vector<std::wstring> Shown() {
        std::vector<std::wstring> texts;
        for (UINT id = ID_FILE_MRU_FIRST; id <= ID_FILE_MRU_LAST; ++id) {
            const CMFCRibbonBaseElement* row = m_panel->FindByID(id);
            if (row != nullptr && !row->GetRect().IsRectEmpty()) {
                texts.emplace_back(row->GetText());
            }
        }
        return texts;
    }

    CMFCRibbonApplicationButton m_button;
    CMFCRibbonMainPanel* m_panel = nullptr;
};

TEST_F(RecentFilesMenu, ShowsTheFilesAsTheyAreWhenTheMenuOpens) {
    Click(m_button);
    EXPECT_THAT(Shown(), IsEmpty());
    CMFCRibbonPanelMenu::DismissAll();
    AfxGetApp()->AddToRecentFileList(L"C:\\maps\\alps.map");
    AfxGetApp()->AddToRecentFileList(L"C:\\maps\\coast.map");
    Click(m_button);
    EXPECT_THAT(Shown(), ElementsAre(L"1 C:\\maps\\coast.map", L"2 C:\\maps\\alps.map"));
    EXPECT_STREQ(Row(1).GetToolTipText(), L"C:\\maps\\alps.map");
    EXPECT_EQ(Row(0).GetRect().right, m_panel->GetCommandsFrame().right);
    EXPECT_GE(Row(0).GetRect().Width(), 219);
}

TEST_F(RecentFilesMenu, ARowSendsTheCommandOfItsFile) {
    AfxGetApp()->AddToRecentFileList(L"C:\\maps\\alps.map");
    AfxGetApp()->AddToRecentFileList(L"C:\\maps\\coast.map");
    m_frame->handlesRecentFiles = true;
    Click(m_button);
    Click(Row(1));
    EXPECT_THAT(m_frame->commands, ElementsAre(static_cast<UINT>(ID_FILE_MRU_FILE2)));
    Click(m_button);
    Keys(m_window).Type(L"1");
    EXPECT_THAT(m_frame->commands,
                ElementsAre(static_cast<UINT>(ID_FILE_MRU_FILE2), static_cast<UINT>(ID_FILE_MRU_FILE1)));
}

TEST_F(RecentFilesMenu, AnAmpersandInAFilesNameIsShown) {
    AfxGetApp()->AddToRecentFileList(L"C:\\maps\\R&D.map");
    Click(m_button);
    EXPECT_STREQ(Row(0).GetText(), L"1 C:\\maps\\R&&D.map") << "marked, so that it is drawn as it is";
    EXPECT_EQ(Row(0).GetToolTipText(), L"C:\\maps\\R&D.map");
}

TEST_F(RecentFilesMenu, WithoutAListOfFilesThereIsOnlyTheHeading) {
    Load(0);
    Click(m_button);
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_FALSE(m_panel->GetElement(1)->GetRect().IsRectEmpty());
}

} // namespace
