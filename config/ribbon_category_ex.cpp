#include "ribbon_category_ex.h"

IMPLEMENT_DYNCREATE(CMFCRibbonCategoryEx, CMFCRibbonCategory)
