#pragma once

#include "caption_window.h"
#include "dialog_list.h"

#include <afxcontrolbars.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// What a window of the viewer's own looks like.
struct DialogLook {
    ViewerColors colors = {};
    std::wstring icons; ///< The folder of those that can be seen on the ground, with the closing backslash.
};

/// A window over the frame that is answered or closed before the frame goes on: the system's own controls, with the
/// keys that they have in dialogs, painted in the viewer's skin. Mirrored where its owner is.
class CDialogWindow : public CCaptionWindow {
public:
    /// A control as the record tells of it.
    struct Part {
        std::string name;
        CRect onScreen;
        std::wstring text;
        bool isEnabled = true;
    };
    struct Description {
        std::string name;
        std::vector<Part> parts;
        std::vector<std::pair<std::string, int>> values;
    };
    virtual Description Describe() const = 0;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    explicit CDialogWindow(DialogLook look) : CCaptionWindow(look.colors), m_look(std::move(look)) {}
    ~CDialogWindow() override { DestroyWindow(); }

    /// Hidden, in the middle of the owner; `size` is that of the inside, in pixels. False: there is none.
    bool Make(CWnd& owner, const std::wstring& title, DWORD style, CSize size);
    /// Gives the inside that size, in pixels, in the middle of the owner: for a window that knows what it needs when
    /// its controls are made.
    void FitInside(CSize size);
    /// Shows it and waits: the number that it was ended with by EndModalLoop, IDCANCEL when it was closed. `finish` is
    /// called when it is known and the controls are still there.
    int Run(const std::function<void()>& finish = {});

    /// `icon`: the name of one in the look's folder, or empty. `text`: with "&" before the letter that clicks it, if
    /// there is one.
    bool AddButton(CButton& button, UINT id, const std::wstring& text, const std::wstring& icon = {});
    /// The one that Enter means, where the focus is on no other.
    void SetDefaultButton(UINT id) { m_defaultButton = id; }
    bool AddLabel(CStatic& label, const std::wstring& text);
    /// A button that looks like the link that it is.
    bool AddLink(CButton& link, UINT id, const std::wstring& text);
    bool AddList(CDialogList& list, UINT id);
    /// The width that a button needs for its text and icon, and the height of all.
    CSize ButtonSize(UINT id) const;
    static int RowHeight();
    static Part Describe(const std::string& name, const CWnd& control);

    const DialogLook& Look() const { return m_look; }
    bool IsMirrored() const { return m_isMirrored; }

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnClose();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item);
    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM count);
    afx_msg LRESULT OnGetDefaultButton(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    void DrawButton(const DRAWITEMSTRUCT& item) const;
    void DrawLink(const DRAWITEMSTRUCT& item) const;
    void DrawListItem(const DRAWITEMSTRUCT& item) const;
    void DrawIcon(HDC dc, const std::wstring& name, const CRect& place) const;

    DialogLook m_look;
    CBrush m_ground;
    std::map<UINT, std::wstring> m_icons; ///< Of the buttons, by id.
    std::set<UINT> m_links;               ///< Their ids.
    UINT m_defaultButton = 0;
    bool m_isMirrored = false;
};
