#include "gdi/gdi_maps.h"

#include "core/thread_slot.h"

#include <atomic>

namespace {

std::atomic<long> g_objectCount{0};

std::unique_ptr<CGdiObject> MakeTemporaryObject(HGDIOBJ handle, CRuntimeClass* kind) {
    std::unique_ptr<CGdiObject> object(static_cast<CGdiObject*>(kind->CreateObject()));
    if (object != nullptr) {
        object->m_hObject = handle;
    }
    return object;
}
void ReleaseTemporaryObject(CGdiObject& object) { object.m_hObject = nullptr; }

std::unique_ptr<CDC> MakeTemporaryContext(HDC handle, CRuntimeClass*) {
    auto context = std::make_unique<CDC>();
    context->m_hDC = context->m_hAttribDC = handle;
    return context;
}
void ReleaseTemporaryContext(CDC& context) { context.m_hDC = context.m_hAttribDC = nullptr; }

std::unique_ptr<CImageList> MakeTemporaryImageList(HIMAGELIST handle, CRuntimeClass*) {
    auto list = std::make_unique<CImageList>();
    list->m_hImageList = handle;
    return list;
}
void ReleaseTemporaryImageList(CImageList& list) { list.m_hImageList = nullptr; }

GdiMaps* MakeMaps() { return new GdiMaps; }
constinit ThreadSlot<GdiMaps> g_maps(&MakeMaps);

} // namespace

GdiMaps::GdiMaps()
    : objects(&MakeTemporaryObject, &ReleaseTemporaryObject),
      contexts(&MakeTemporaryContext, &ReleaseTemporaryContext),
      imageLists(&MakeTemporaryImageList, &ReleaseTemporaryImageList) {}

GdiMaps& ThreadGdiMaps() { return g_maps.Get(); }

void CountGdiObjectMade() noexcept { ++g_objectCount; }
void CountGdiObjectGone() noexcept { --g_objectCount; }

long AfxGdiObjectCount() noexcept { return g_objectCount.load(); }

void DeleteReleasedGdiObjects() {
    GdiMaps& maps = ThreadGdiMaps();
    const int depth = fx::HandlerDepth();
    maps.contexts.DeleteReleasedTemp(depth);
    maps.objects.DeleteReleasedTemp(depth);
    maps.imageLists.DeleteReleasedTemp(depth);
}

void AfxDeleteTemporaryGdiObjects() {
    GdiMaps& maps = ThreadGdiMaps();
    maps.contexts.DeleteTemp();
    maps.objects.DeleteTemp();
    maps.imageLists.DeleteTemp();
}
