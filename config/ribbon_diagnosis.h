#pragma once

#include "config/attribute_diagnosis.h"
#include "config/ribbon_record.h"

#include <array>
#include <cstddef>
#include <limits>

/// What the children of a row are.
enum class RibbonRowKind { Categories, QuickAccess, StatusButtons };

/// The keywords of the rows that hold something else than categories.
inline constexpr std::wstring_view kQuickAccessRow = L"QK_Rbbion_QAToolbar";
inline constexpr std::wstring_view kStatusRow = L"StatusEx_btns";

/// Says what is wrong with the elements of a ribbon file, one by one as the reader comes to them. Elements below one
/// that is not built, or not as what it was meant, are passed over: mending that one changes what they are.
class RibbonDiagnosis {
public:
    explicit RibbonDiagnosis(const FileDiagnostics& diagnostics) : m_diagnostics(diagnostics) {}

    /// `info` is what was read from the element. `row` is the kind of the row that it belongs to.
    void Meet(varnhold::XmlCursor& element, const RibbonTexts& info, std::size_t depth, RibbonRowKind row);

private:
    void Check(const MetElement& met, const RibbonTexts& info);
    bool IsStray(varnhold::XmlCursor& element, std::size_t depth);
    bool CheckRow(const MetElement& met);
    bool CheckDepth(const MetElement& met);
    void CheckKeyword(const MetElement& met);
    void CheckCaption(const MetElement& met);
    void CheckKind(const MetElement& met);
    void CheckStatusKind(const MetElement& met);
    void CheckSizes(const MetElement& met, const RibbonTexts& info);
    void CheckInheritance(const MetElement& met);
    void CheckChildren(const MetElement& met);

    static constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();
    /// Which of CMD, PARAM and PICDisPATH a panel or a sub-item before this one has set.
    struct Setters {
        std::array<bool, 3> isSet{};
    };

    const FileDiagnostics& m_diagnostics;
    std::size_t m_silentBelow = kNowhere;
    /// Where elements stand that belong to another depth, as long as their parent lasts: the first was reported.
    std::size_t m_strayDepth = kNowhere;
    Setters m_panels;
    Setters m_subItems;
};
