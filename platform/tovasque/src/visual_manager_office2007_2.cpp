#include "tovasque/visual_manager_office2007_2.h"

IMPLEMENT_DYNCREATE(CMFCVisualManagerOffice20072, CMFCVisualManagerOffice2007)

CMFCVisualManagerOffice20072::CMFCVisualManagerOffice20072() = default;

CMFCVisualManagerOffice20072::~CMFCVisualManagerOffice20072() = default;
