#pragma once

#include "src/skin_images.h"
#include "tovasque/visual_manager_office2007_2.h"

#include <fx/skin_table.h>

#include <optional>

namespace tovasque {

/// The table that a manager draws from: its getters' colours and its pictures. Both are asked for when something is
/// drawn, since a manager's constructor runs before the getters of the class derived from it are there.
class SkinTable {
public:
    /// The manager owns this object.
    explicit SkinTable(CMFCVisualManagerOffice20072& manager) : m_manager(manager) {}

    const visual::Skin& Get();
    /// Getters or pictures have changed.
    void Clear();

private:
    CMFCVisualManagerOffice20072& m_manager;
    std::optional<SkinPictures> m_pictures;
    std::optional<visual::Skin> m_skin;
};

} // namespace tovasque
