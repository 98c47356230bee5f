#pragma once

#include "dialog_window.h"
#include "message_layout.h"
#include "message_sign.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// A message in the viewer's skin, with the keys, the sound and the answers of the system's message box. While it waits
/// there is no idle work, as there is none with the system's: what it tells of may be half done.
class CMessageWindow : public CDialogWindow {
public:
    explicit CMessageWindow(DialogLook look) : CDialogWindow(std::move(look)) {}

    /// Whether it has the buttons of that style (MB_...).
    static bool HasButtonsOf(UINT style);
    /// Shows the text as it stands and waits. The id of the button that answered; Escape and the caption's button
    /// answer Cancel, or OK where that stands alone, and nothing where there is neither. `style` is the system's:
    /// buttons, icon (none counts as information) and default button. `begin` is called when all is in its place,
    /// before it is seen. 0: the program ends. Nothing: there is no window.
    std::optional<int> Ask(CWnd& owner, const std::wstring& title, const std::wstring& text, UINT style,
                           const std::function<void()>& begin = {});
    Description Describe() const override;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    bool CanClose() const override;
    afx_msg void OnPaint();
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);
    afx_msg void OnClose();
    afx_msg LRESULT OnWithoutIdleWork(WPARAM, LPARAM);
    afx_msg LRESULT OnGetEnterButton(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr std::size_t kMostButtons = 3;

    bool MakeControls(const std::wstring& text, UINT style);
    MessageMeasures Measure() const;
    void PlaceControls(const MessagePlaces& places);
    UINT TextFormat() const;
    void Answer(UINT id);
    /// The one with the focus, or else the default one.
    std::size_t MarkedButton() const;

    UINT m_style = 0;
    MessageKind m_kind = MessageKind::Information;
    CRect m_icon;
    CStatic m_text;
    std::array<CButton, kMostButtons> m_buttons; ///< The first of them, as many as the style has.
};
