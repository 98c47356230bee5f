#include "tovasque/ribbon_bar2.h"

IMPLEMENT_DYNAMIC(CMFCRibbonBar2, CMFCRibbonBar)

BEGIN_MESSAGE_MAP(CMFCRibbonBar2, CMFCRibbonBar)
END_MESSAGE_MAP()

CMFCRibbonBar2::CMFCRibbonBar2(int nReplaceFrameCaption) : CMFCRibbonBar(nReplaceFrameCaption ? TRUE : FALSE) {}

CMFCRibbonBar2::~CMFCRibbonBar2() = default;
