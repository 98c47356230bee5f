#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

#include "afxcontrolbars.h"
#include "afxglobals.h"
#include "afxribbonbar.h"
#include "fx/window_dc.h"
#include "tests/support/command_list.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

/// Command ids of the tests' ribbon.
namespace commands {
constexpr UINT paste = 1001;
constexpr UINT cut = 1002;
constexpr UINT copy = 1003;
constexpr UINT format = 1004;
constexpr UINT find = 1005;
constexpr UINT bold = 1006;
constexpr UINT italic = 1007;
constexpr UINT size = 1008;
constexpr UINT zoom = 1009;
constexpr UINT options = 1010;
constexpr UINT closesFrame = 1090;
constexpr UINT firstHandled = 1000;
constexpr UINT lastHandled = 6999;
constexpr UINT noHandler = 7001;
} // namespace commands

/// A category class of a host.
class HostCategory : public CMFCRibbonCategory {
    DECLARE_DYNCREATE(HostCategory)

public:
    int value = 0;
};

/// A frame with a ribbon bar; notes what the bar sends. Deletes itself with its window, as frames do.
class RibbonFrame : public CFrameWndEx {
public:
    explicit RibbonFrame(BOOL replaceCaption = FALSE) : bar(replaceCaption) {}

    CMFCRibbonBar bar;
    std::vector<UINT> commands;
    int categoryChanges = 0;
    UINT disabledCommand = 0;
    UINT checkedCommand = 0;
    UINT renamedCommand = 0;
    CString newName;
    std::function<void()> onCommand; // after the command was noted; may end the frame
    std::function<void()> onUpdate;
    int popupsShown = 0;
    int popupsClosed = 0;
    std::function<void()> onPopupClosed; // once; may end the frame
    bool allowsPopups = true;
    bool handlesRecentFiles = false;
    bool customizes = false; // with a dialog of its own
    CMFCRibbonBar* customizedBar = nullptr;

    BOOL OnShowPopupMenu(CMFCPopupMenu* menu) override;
    void OnClosePopupMenu(CMFCPopupMenu* menu) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnRibbonCommand(UINT id);
    afx_msg void OnUpdateRibbonCommand(CCmdUI* update);
    /// Lets the frame be wider than the screen.
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* limits);
    afx_msg LRESULT OnCategoryChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCustomize(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

/// A visible frame, 1000 pixels wide inside, whose ribbon has two categories with all kinds of elements.
class RibbonBarTest : public ::testing::Test {
protected:
    /// A frame that was never active seldom notices when a program beside the test takes the foreground.
    enum class Activation { Active, Inactive };
    explicit RibbonBarTest(Activation activation = Activation::Active);
    ~RibbonBarTest() override;

    CMFCRibbonBar& Bar() { return m_frame->bar; }
    CMFCRibbonBaseElement& Element(UINT id);
    static CPoint Center(const CRect& rect) { return rect.CenterPoint(); }
    CPoint CenterOf(UINT id) { return Center(Element(id).GetRect()); }
    /// Any width, wider than the screen too.
    void SetClientWidth(int width);
    /// Narrows the window until that panel of the active category is a button; throws when it never is.
    CMFCRibbonPanel& Collapse(int panel);
    void FillBar();
    /// The commands that the quick access toolbar starts with, and others that its menu offers.
    void SetQuickAccessDefault(std::initializer_list<UINT> visible, std::initializer_list<UINT> others = {});
    std::vector<UINT> QuickAccessCommands();
    /// A grid of that many small buttons in a category of their own; ids from firstHandled + 1000 on.
    CMFCRibbonCategory* AddManyButtons(int count, int perPanel);
    /// The ids of so many of them.
    static std::vector<UINT> ManyCommands(int count);
    /// That many buttons, the commands of all on the quick access toolbar, in a window of 300 pixels: few have room.
    void FillQuickAccess(int count);
    /// What the bar's window shows, row by row.
    std::vector<COLORREF> ShownPixels();

    RibbonFrame* m_frame = nullptr;
    HWND m_window = nullptr; // of the frame; stays when the frame is gone
    Pointer m_pointer;
    std::vector<HICON> m_icons;

private:
    HICON MakeSquareIcon(int side, COLORREF color);
};
