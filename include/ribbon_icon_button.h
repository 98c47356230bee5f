#pragma once

#include "barwright_api.h"

#include <afxribbonbutton.h>

#include <string>

class CMFCToolBarImages;

/// A ribbon button whose pictures are icon files, read at every paint and released afterwards. It has up to two files,
/// large (32 x 32) and small (16 x 16), each with an alternate that the skin style "0" selects: the path with every
/// "modle" replaced by "modle_0". Its text is a translation key (section "Common"), looked up
/// whenever the button is measured, placed or drawn.
///
/// A path that names no icon is skipped, as is a file with a picture of more than 1,024 pixels a side, and a path below
/// the installation directory that leads out of it (..); without the large icon the button draws from its image
/// indexes. Sizes are pixels at 96 DPI, drawn at the ribbon's image scale.
class BARWRIGHT_API CMFCRibbonUNIcoButton : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonUNIcoButton)

public:
    /// Without any path, like the next two: such a button draws no picture.
    CMFCRibbonUNIcoButton() : CMFCRibbonButton(0, L"") {}
    CMFCRibbonUNIcoButton(UINT id, LPCTSTR text, int smallImageIndex = -1, int largeImageIndex = -1,
                          BOOL alwaysShowDescription = FALSE);
    /// The icons stay the caller's unless `autoDestroyIcon` is set.
    CMFCRibbonUNIcoButton(UINT id, LPCTSTR text, HICON largeIcon, BOOL alwaysShowDescription = FALSE,
                          HICON smallIcon = nullptr, BOOL autoDestroyIcon = FALSE, BOOL alphaBlendIcon = FALSE);
    /// `keepLargePath`: the large alternate is the large path itself. Tries each file once; one that was tried before
    /// and has not changed since is not read again.
    CMFCRibbonUNIcoButton(UINT id, LPCTSTR text, const CString& largeIconPath, BOOL alwaysShowDescription = FALSE,
                          const CString& smallIconPath = CString(), BOOL autoDestroyIcon = FALSE,
                          BOOL alphaBlendIcon = FALSE, BOOL keepLargePath = FALSE);

    // The same three with a std::wstring as the text.
    CMFCRibbonUNIcoButton(UINT id, const std::wstring& text, int smallImageIndex = -1, int largeImageIndex = -1,
                          BOOL alwaysShowDescription = FALSE)
        : CMFCRibbonUNIcoButton(id, text.c_str(), smallImageIndex, largeImageIndex, alwaysShowDescription) {}
    CMFCRibbonUNIcoButton(UINT id, const std::wstring& text, HICON largeIcon, BOOL alwaysShowDescription = FALSE,
                          HICON smallIcon = nullptr, BOOL autoDestroyIcon = FALSE, BOOL alphaBlendIcon = FALSE)
        : CMFCRibbonUNIcoButton(id, text.c_str(), largeIcon, alwaysShowDescription, smallIcon, autoDestroyIcon,
                                alphaBlendIcon) {}
    CMFCRibbonUNIcoButton(UINT id, const std::wstring& text, const CString& largeIconPath,
                          BOOL alwaysShowDescription = FALSE, const CString& smallIconPath = CString(),
                          BOOL autoDestroyIcon = FALSE, BOOL alphaBlendIcon = FALSE, BOOL keepLargePath = FALSE)
        : CMFCRibbonUNIcoButton(id, text.c_str(), largeIconPath, alwaysShowDescription, smallIconPath, autoDestroyIcon,
                                alphaBlendIcon, keepLargePath) {}

    /// The style of all icon-file buttons of the process: "0" selects the alternate files, any other text the primary
    /// ones. Shows at each button's next draw; the host asks for it.
    static void SetSkinStyle(CString style);

    /// The primary path, never the alternate.
    CString GetIconPath(BOOL large) const { return large ? m_largeIconPath : m_smallIconPath; }

    // CMFCRibbonButton. A button that was copied for another bar takes size and picture from the one that it was copied
    // from, while that one is an icon-file button.
    CSize GetImageSize(RibbonImageType type) const override;
    /// The translation of the text: what is measured and drawn.
    CString GetShownText() const override;
    void DrawImage(CDC* dc, RibbonImageType type, CRect rect) override;
    void OnDraw(CDC* dc) override;
    void OnAfterChangeRect(CDC* dc) override;
    /// While it draws for a copy, that one's state.
    BOOL IsDisabled() const override;
    /// Copies the primary paths unless this button destroys its icons itself; the alternates are not copied, so a copy
    /// without an original draws no picture.
    void CopyFrom(const CMFCRibbonBaseElement& src) override;

private:
    CMFCRibbonUNIcoButton* GetIconButtonOriginal() const;
    void DrawThroughOriginal(CMFCRibbonUNIcoButton& original, CDC* dc, RibbonImageType type, CRect rect);
    void DrawIconFiles(CDC* dc, RibbonImageType type, CRect rect);
    void DrawFromImageIndex(CDC* dc, RibbonImageType type, CRect rect);
    /// The first image of the list, made grey, then drawn `scaled`; nothing for null or an empty list.
    static void DrawDisabledIcon(CDC* dc, CMFCToolBarImages* list, CSize scaled, CPoint corner);
    void DrawEnabledIcon(CDC* dc, HICON icon, CSize scaled, CPoint corner) const;

    static CString s_skinStyle;

    CString m_largeIconPath;
    CString m_smallIconPath;
    CString m_largeAlternatePath;
    CString m_smallAlternatePath;
    BOOL m_destroysIcons = FALSE;
    BOOL m_blendsIcons = FALSE;
    const CMFCRibbonUNIcoButton* m_drawnFor = nullptr; ///< the copy that shows its picture now; not owned
};

/// An icon-file button that can be held at its small form: while it is in small mode it has no large form.
class BARWRIGHT_API CMFCRibbonSmallButton : public CMFCRibbonUNIcoButton {
    DECLARE_DYNCREATE(CMFCRibbonSmallButton)

public:
    /// All four leave small mode off.
    CMFCRibbonSmallButton() = default;
    CMFCRibbonSmallButton(UINT id, LPCTSTR text, int smallImageIndex = -1, int largeImageIndex = -1,
                          BOOL alwaysShowDescription = FALSE);
    CMFCRibbonSmallButton(UINT id, LPCTSTR text, HICON largeIcon, BOOL alwaysShowDescription = FALSE,
                          HICON smallIcon = nullptr, BOOL autoDestroyIcon = FALSE, BOOL alphaBlendIcon = FALSE);
    CMFCRibbonSmallButton(UINT id, LPCTSTR text, const CString& largeIconPath, BOOL alwaysShowDescription = FALSE,
                          const CString& smallIconPath = CString(), BOOL autoDestroyIcon = FALSE,
                          BOOL alphaBlendIcon = FALSE);

    CMFCRibbonSmallButton(UINT id, const std::wstring& text, int smallImageIndex = -1, int largeImageIndex = -1,
                          BOOL alwaysShowDescription = FALSE)
        : CMFCRibbonSmallButton(id, text.c_str(), smallImageIndex, largeImageIndex, alwaysShowDescription) {}
    CMFCRibbonSmallButton(UINT id, const std::wstring& text, HICON largeIcon, BOOL alwaysShowDescription = FALSE,
                          HICON smallIcon = nullptr, BOOL autoDestroyIcon = FALSE, BOOL alphaBlendIcon = FALSE)
        : CMFCRibbonSmallButton(id, text.c_str(), largeIcon, alwaysShowDescription, smallIcon, autoDestroyIcon,
                                alphaBlendIcon) {}
    CMFCRibbonSmallButton(UINT id, const std::wstring& text, const CString& largeIconPath,
                          BOOL alwaysShowDescription = FALSE, const CString& smallIconPath = CString(),
                          BOOL autoDestroyIcon = FALSE, BOOL alphaBlendIcon = FALSE)
        : CMFCRibbonSmallButton(id, text.c_str(), largeIconPath, alwaysShowDescription, smallIconPath, autoDestroyIcon,
                                alphaBlendIcon) {}

    void SetSmallMode() { m_smallMode = TRUE; }
    void SetLargeMode() { m_smallMode = FALSE; }

    BOOL HasLargeMode() const override;
    void CopyFrom(const CMFCRibbonBaseElement& src) override;

private:
    BOOL m_smallMode = FALSE;
};
