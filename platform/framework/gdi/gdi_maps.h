#pragma once

#include "core/handler_depth.h"
#include "fx/handle_map.h"
#include "fx/image_list.h"

/// The calling thread's maps from GDI handles to wrappers.
struct GdiMaps {
    GdiMaps();
    CHandleMap<CGdiObject, HGDIOBJ> objects;
    CHandleMap<CDC, HDC> contexts;
    CHandleMap<CImageList, HIMAGELIST> imageLists;
};
GdiMaps& ThreadGdiMaps();
/// At idle: the temporary objects that no running handler holds.
void DeleteReleasedGdiObjects();

// Owned handles are counted over all threads.
void CountGdiObjectMade() noexcept;
void CountGdiObjectGone() noexcept;
