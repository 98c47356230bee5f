#pragma once

#include "atltypes.h"

class CDC;
class CMFCRibbonButton;

namespace tooltip {

/// What a tooltip shows of the ribbon element that it is for. The documented signature hands it the element's class,
/// which lies in a room above this one; the ribbon says once how its elements are asked.
class ElementPicture {
public:
    /// Pixels, scaled; nothing when the element shows no image.
    virtual CSize SizeOf(const CMFCRibbonButton& element) const = 0;
    virtual void Draw(CMFCRibbonButton& element, CDC& dc, const CRect& place) const = 0;
    /// The top of the bar (screen) that the tooltip must not cover; `otherwise` when the element lies in none.
    virtual int TopOfBar(const CMFCRibbonButton& element, int otherwise) const = 0;

protected:
    ~ElementPicture() = default;
};

/// Not owned; lives as long as the library.
void SetElementPicture(const ElementPicture& picture);
/// Null only where the ribbon is not part of the library.
const ElementPicture* GetElementPicture();

} // namespace tooltip
