#pragma once

#include "afxdialogex.h"

#include <memory>

namespace toolbar {
class ImageEditor;
}

/// Lets the user change a small image pixel by pixel: a pen, a filling, a straight line, a rectangle, an ellipse and
/// the picking of a colour, with a palette and a view in the image's own size. Modal:
///
///     CMFCImageEditorDialog editor(&bitmap, this);
///     const bool isChanged = editor.DoModal() == IDOK;
///
/// Bitmaps with alpha keep it: what is drawn is opaque, and the eraser makes pixels clear. In others the eraser puts
/// the grey (192, 192, 192) that toolbars take for clear.
class FRAMEWORK_API CMFCImageEditorDialog : public CDialogEx {
public:
    /// The bitmap stays the caller's and is written to by OK alone. nBitsPixel -1: as many as it has; no more than 4:
    /// the palette offers sixteen colours only.
    explicit CMFCImageEditorDialog(CBitmap* pBitmap, CWnd* pParent = NULL, int nBitsPixel = -1);
    ~CMFCImageEditorDialog() override;

    BOOL OnInitDialog() override;

protected:
    void OnOK() override;
    afx_msg void OnTool(UINT nID);
    afx_msg void OnUndo();
    DECLARE_MESSAGE_MAP()

private:
    CBitmap* m_pBitmap;
    std::unique_ptr<toolbar::ImageEditor> m_editor;
};
