#include "fx/gdi_objects.h"

#include "fx/dump_context.h"
#include "gdi/gdi_maps.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

namespace {

CRuntimeClass* KindOf(HGDIOBJ handle) {
    switch (::GetObjectType(handle)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return RUNTIME_CLASS(CPen);
    case OBJ_BRUSH:
        return RUNTIME_CLASS(CBrush);
    case OBJ_FONT:
        return RUNTIME_CLASS(CFont);
    case OBJ_BITMAP:
        return RUNTIME_CLASS(CBitmap);
    case OBJ_PAL:
        return RUNTIME_CLASS(CPalette);
    case OBJ_REGION:
        return RUNTIME_CLASS(CRgn);
    default:
        return RUNTIME_CLASS(CGdiObject);
    }
}

} // namespace

CGdiObject::~CGdiObject() { CGdiObject::DeleteObject(); }

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject, CRuntimeClass* kind) {
    return ThreadGdiMaps().objects.FromHandle(hObject, kind, fx::HandlerDepth());
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    return hObject == nullptr ? nullptr : FromHandle(hObject, KindOf(hObject));
}

CGdiObject* PASCAL CGdiObject::FromHandlePermanent(HGDIOBJ hObject) {
    return ThreadGdiMaps().objects.LookupPermanent(hObject);
}

void PASCAL CGdiObject::DeleteTempMap() { ThreadGdiMaps().objects.DeleteTemp(); }

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    ASSERT(m_hObject == nullptr);
    if (hObject == nullptr) {
        return FALSE;
    }
    m_hObject = hObject;
    ThreadGdiMaps().objects.SetPermanent(hObject, this);
    CountGdiObjectMade();
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ handle = m_hObject;
    if (handle != nullptr) {
        ThreadGdiMaps().objects.RemovePermanent(handle, this);
        CountGdiObjectGone();
        m_hObject = nullptr;
    }
    return handle;
}

BOOL CGdiObject::DeleteObject() { return m_hObject != nullptr && ::DeleteObject(Detach()); }

void CGdiObject::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << L"m_hObject = " << static_cast<const void*>(m_hObject) << L"\n";
}

void CGdiObject::AssertValid() const {
    CObject::AssertValid();
    ASSERT(m_hObject == nullptr || ::GetObjectType(m_hObject) != 0);
}
