// What a tooltip shows of an element of the ribbon.
#include "popups/tooltip_element.h"

#include "afxribbonbar.h"
#include "afxribbonbutton.h"

namespace {

class RibbonPicture final : public tooltip::ElementPicture {
public:
    CSize SizeOf(const CMFCRibbonButton& element) const override { return element.GetImageSize(TypeOf(element)); }

    void Draw(CMFCRibbonButton& element, CDC& dc, const CRect& place) const override {
        element.DrawImage(&dc, TypeOf(element), place);
    }

    int TopOfBar(const CMFCRibbonButton& element, int otherwise) const override {
        const CMFCRibbonBar* const bar = element.GetTopLevelRibbonBar();
        if (bar == nullptr || bar->GetSafeHwnd() == nullptr) {
            return otherwise;
        }
        CRect area;
        bar->GetWindowRect(area);
        return static_cast<int>(area.top);
    }

private:
    static CMFCRibbonBaseElement::RibbonImageType TypeOf(const CMFCRibbonButton& element) {
        return element.IsLargeImage() ? CMFCRibbonBaseElement::RibbonImageLarge
                                      : CMFCRibbonBaseElement::RibbonImageSmall;
    }
};

const RibbonPicture g_picture;
// As the library is loaded, before there is a tooltip.
[[maybe_unused]] const bool g_isPictureSet = (tooltip::SetElementPicture(g_picture), true);

} // namespace
