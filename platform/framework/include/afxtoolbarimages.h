#pragma once

#include <map>
#include <memory>
#include <vector>

#include <afxwin.h>

class CMFCToolBarImages;

/// What PrepareDrawImage sets up and EndDrawImage puts back. Opaque to hosts.
class FRAMEWORK_API CAfxDrawState {
public:
    CAfxDrawState() = default;
    ~CAfxDrawState();
    CAfxDrawState(const CAfxDrawState&) = delete;
    CAfxDrawState& operator=(const CAfxDrawState&) = delete;

private:
    friend class CMFCToolBarImages;
    CMFCToolBarImages* m_pImages = NULL;
    CSize m_sizeDestBefore = CSize(0, 0);
    BOOL m_bFadeBefore = FALSE;
};

/// A row of equally sized images for toolbars, menus and the ribbon. Images with alpha are kept as 32-bit premultiplied
/// bitmaps; others have a transparent colour. The list owns its bitmaps. Sizes are pixels of the bitmap, "Dest" sizes
/// the ones on the screen.
class FRAMEWORK_API CMFCToolBarImages : public CObject {
    DECLARE_DYNAMIC(CMFCToolBarImages)

public:
    enum ImageAlignHorz { ImageAlignHorzLeft, ImageAlignHorzCenter, ImageAlignHorzRight, ImageAlignHorzStretch };
    enum ImageAlignVert { ImageAlignVertTop, ImageAlignVertCenter, ImageAlignVertBottom, ImageAlignVertStretch };

    CMFCToolBarImages();
    CMFCToolBarImages(const CMFCToolBarImages&) = delete;
    CMFCToolBarImages& operator=(const CMFCToolBarImages&) = delete;
    ~CMFCToolBarImages() override;

    // Filling. Functions that add return the index of the new image, -1 on failure.
    /// The icon stays the caller's. Its alpha is kept, whatever bAlphaBlend says: a cut-out edge is never the better
    /// one.
    int AddIcon(HICON hIcon, BOOL bAlphaBlend = FALSE);
    int AddImage(HBITMAP hbmp, BOOL bSetBitPerPixel = FALSE);
    int AddImage(const CMFCToolBarImages& imageList, int nIndex);
    /// Gives the image a second picture, in a larger size of its own: it is drawn where the image is shown larger than
    /// GetImageSize, and follows it in whatever is done to the list. The icon stays the caller's. FALSE: there is no
    /// such image, the size is not larger than the list's, or the icon has no picture.
    BOOL SetLargerIcon(int nIndex, HICON hIcon, SIZE sizeIcon);
    /// A bitmap resource, or one of type "PNG". bAdd appends instead of replacing.
    BOOL Load(UINT uiResID, HINSTANCE hinstRes = NULL, BOOL bAdd = FALSE);
    /// A BMP or PNG file; a file larger than nMaxFileSize bytes (0: any) is refused.
    BOOL Load(LPCTSTR lpszBmpFileName, DWORD nMaxFileSize = 819200);
    BOOL LoadStr(LPCTSTR lpszResourceName, HINSTANCE hinstRes = NULL, BOOL bAdd = FALSE);
    /// The images of the list, at its size, instead of those that were there. FALSE when it has none.
    BOOL CreateFromImageList(const CImageList& imageList);
    BOOL CopyTo(CMFCToolBarImages& imageList);
    BOOL DeleteImage(int iImage);
    void Clear();

    // Properties
    void SetImageSize(SIZE sizeImage, BOOL bUpdateCount = FALSE);
    SIZE GetImageSize(BOOL bDest = FALSE) const;
    void SetSingleImage();
    int GetCount() const { return m_iCount; }
    BOOL IsValid() const { return m_hbmImageWell != NULL; }
    BOOL IsReadOnly() const { return m_bReadOnly; }
    BOOL IsUserImagesList() const { return m_bUserImagesList; }
    int GetBitsPerPixel() const { return m_nBitsPerPixel; }
    /// Exactly the images side by side; the list's own, valid until it changes.
    HBITMAP GetImageWell() const;
    /// NULL: lighter images are made while they are drawn.
    HBITMAP GetImageWellLight() const { return NULL; }
    COLORREF SetTransparentColor(COLORREF clrTransparent);
    COLORREF GetTransparentColor() const { return m_clrTransparent; }
    CRect GetLastImageRect() const { return m_rectLastDraw; }
    /// Offset of the first image loaded from this resource, -1 when it was not loaded.
    int GetResourceOffset(UINT uiResId) const;
    /// A new icon, destroyed by the caller. NULL when there is no such image.
    HICON ExtractIcon(int nIndex);
    /// A new monochrome bitmap, deleted by the caller: 1 where the image is clear. NULL when there is no such image.
    HBITMAP GetMask(int iImage);

    // Users' own images: lists that were loaded from a file
    /// Writes a BMP file; without a name the one that the images came from. FALSE for images that are not the user's
    /// own, or when the file cannot be written.
    BOOL Save(LPCTSTR lpszBmpFileName = NULL);
    /// Replaces one image; FALSE unless these are the user's own and the bitmap has their size.
    BOOL UpdateImage(int iImage, HBITMAP hbmp);
    BOOL CopyImageToClipboard(int iImage);

    // Drawing
    /// Begin a series of Draw calls; FALSE when there are no images. sizeImageDest 0: natural size (times the scale of
    /// 1).
    BOOL PrepareDrawImage(CAfxDrawState& ds, CSize sizeImageDest = CSize(0, 0), BOOL bFadeInactive = FALSE);
    BOOL Draw(CDC* pDC, int x, int y, int iImageIndex, BOOL bHilite = FALSE, BOOL bDisabled = FALSE,
              BOOL bIndeterminate = FALSE, BOOL bShadow = FALSE, BOOL bInactive = FALSE, BYTE alphaSrc = 255);
    void EndDrawImage(CAfxDrawState& ds);
    /// Needs no PrepareDrawImage. rectSrc empty: the whole image. Stretch draws it over the whole of rect.
    BOOL DrawEx(CDC* pDC, CRect rect, int iImageIndex, ImageAlignHorz horzAlign = ImageAlignHorzLeft,
                ImageAlignVert vertAlign = ImageAlignVertTop, CRect rectSrc = CRect(0, 0, 0, 0), BYTE alphaSrc = 255);
    static void FillDitheredRect(CDC* pDC, const CRect& rect);

    // Changes to the pixels
    BOOL ConvertTo32Bits(COLORREF clrTransparent = (COLORREF)-1);
    BOOL GrayImages(int nGrayImageLuminancePercentage);
    BOOL Mirror();
    BOOL MirrorVert();
    /// Resamples all images by the factor; image size, count and GetScale follow. FALSE when nothing was changed.
    BOOL SmoothResize(double dblImageScale);
    BOOL IsScaled() const { return m_dblScale != 1.0; }
    double GetScale() const { return m_dblScale; }
    void OnSysColorChange();
    /// Moves all colours by the way from the base to the tone: what was clrBase becomes clrTone.
    void AdaptColors(COLORREF clrBase, COLORREF clrTone);
    /// Replaces one colour, or, without a source, black, the two greys and white by the system's button colours. FALSE
    /// for lists with alpha and those that SetMapTo3DColors switched it off for. bUseRGBQUAD changes nothing here.
    BOOL MapTo3dColors(BOOL bUseRGBQUAD = TRUE, COLORREF clrSrc = (COLORREF)-1, COLORREF clrDest = (COLORREF)-1);
    /// Black, dark grey, light grey and white to button text, shadow, face and highlight; others stay. With
    /// bUseRGBQUAD colours are read and given back as 0x00RRGGBB.
    static COLORREF __stdcall MapToSysColor(COLORREF color, BOOL bUseRGBQUAD = TRUE);
    static COLORREF __stdcall MapFromSysColor(COLORREF color, BOOL bUseRGBQUAD = TRUE);

    // Single bitmaps
    /// The pixels of another colour, in the bitmap's co-ordinates; deleted by the caller. NULL when there are none.
    static HRGN __stdcall CreateRegionFromImage(HBITMAP bmp, COLORREF clrTransparent);
    /// Turn each image of a strip, cxImage (cyImage) pixels wide (high), and replace the bitmap by a new one; the old
    /// one is deleted. FALSE, with nothing changed, for a bitmap that does not hold whole images.
    static BOOL MirrorBitmap(HBITMAP& hbmp, int cxImage);
    static BOOL __stdcall MirrorBitmapVert(HBITMAP& hbmp, int cyImage);

    // Looks
    void SetAlwaysLight(BOOL bAlwaysLight = TRUE) { m_bAlwaysLight = bAlwaysLight; }
    BOOL GetAlwaysLight() const { return m_bAlwaysLight; }
    void SetLightPercentage(int nValue);
    int GetLightPercentage() const { return m_nLightPercentage; }
    void SetMapTo3DColors(BOOL bMapTo3DColors) { m_bMapTo3DColors = bMapTo3DColors; }
    BOOL GetMapTo3DColors() const { return m_bMapTo3DColors; }
    void SetPreMultiplyAutoCheck(BOOL bAuto = TRUE) { m_bAutoCheckPremlt = bAuto; }
    BOOL IsPreMultiplyAutoCheck() const { return m_bAutoCheckPremlt; }
    static void SetDisabledImageAlpha(BYTE nValue) { m_nDisabledImageAlpha = nValue; }
    static BYTE GetDisabledImageAlpha() { return m_nDisabledImageAlpha; }
    static void __stdcall SetFadedImageAlpha(BYTE nValue) { m_nFadedImageAlpha = nValue; }
    static BYTE __stdcall GetFadedImageAlpha() { return m_nFadedImageAlpha; }
    static BOOL Is32BitTransparencySupported() { return TRUE; }
    static void __stdcall EnableRTL(BOOL bIsRTL = TRUE);
    static BOOL IsRTL() { return m_bIsRTL; }

    static BOOL m_bDisableTrueColorAlpha;

protected:
    /// Multiplies the colours of a 32-bit bitmap by their alpha; with bAutoCheckPremlt only when they are not yet.
    static BOOL __stdcall PreMultiplyAlpha(HBITMAP hbmp, BOOL bAutoCheckPremlt);
    BOOL PreMultiplyAlpha(HBITMAP hbmp);

private:
    /// Joins a strip of images, a top-down 32-bit bitmap that the list takes over; FALSE (and deleted) when it cannot.
    BOOL Append(HBITMAP hbmp, BOOL bHasAlpha);
    void SetWell(HBITMAP hbmp, int nSpare = 0);
    /// Takes the room for further images away.
    void TrimWell();
    void UpdateCount();
    CRect GetSourceRect(int nIndex) const;
    /// The image's second picture, a list of it alone, for where the image is drawn in that size; null: the image's own
    /// one is as good.
    const CMFCToolBarImages* LargerFor(int nIndex, SIZE sizeDrawn) const;
    BOOL BlendImage(CDC* pDC, const CRect& rectDest, int iImageIndex, const CRect& rectSrc, UINT nLook, BYTE alphaSrc);

    HBITMAP m_hbmImageWell = NULL;
    CSize m_sizeImage = CSize(16, 15);
    CSize m_sizeImageDest = CSize(0, 0);
    CRect m_rectLastDraw = CRect(0, 0, 0, 0);
    CString m_strFile;
    CMap<UINT, UINT, int, int> m_mapOffsets;
    int m_nSpare = 0; ///< columns of pixels at the right end of the bitmap that no image has
    int m_iCount = 0;
    int m_nBitsPerPixel = 0;
    int m_nLightPercentage = -1;
    std::map<int, std::unique_ptr<CMFCToolBarImages>> m_larger; ///< second pictures by the index of their image
    std::vector<COLORREF> m_mappedColors; ///< the system's colours that MapTo3dColors has put in; empty: none
    double m_dblScale = 1.0;
    COLORREF m_clrTransparent = RGB(192, 192, 192);
    BOOL m_bFadeInactive = FALSE;
    BOOL m_bAlwaysLight = FALSE;
    BOOL m_bMapTo3DColors = TRUE;
    BOOL m_bAutoCheckPremlt = TRUE;
    BOOL m_bReadOnly = FALSE;
    BOOL m_bUserImagesList = FALSE;

    static BYTE m_nDisabledImageAlpha;
    static BYTE m_nFadedImageAlpha;
    static BOOL m_bIsRTL;
};
