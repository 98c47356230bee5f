#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "afxribbonkeytip.h"

class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonCategory;
class CMFCRibbonPanel;
struct RibbonBarParts;

/// The levels of a bar's key tips, each above the one that led to it, and what was typed in the topmost: the bar, a
/// category or a panel of it, pop-ups. Letters are assigned here. Owned by the bar's keyboard.
class RibbonKeyTipLevels {
public:
    using Elements = std::vector<CMFCRibbonBaseElement*>;

    enum class Match { None, Beginning, Whole };
    /// Where typed letters lead to. The element is null unless the match is whole.
    struct Typed {
        Match match = Match::None;
        CMFCRibbonBaseElement* element = nullptr;
        bool isMenu = false;
    };

    RibbonKeyTipLevels(CMFCRibbonBar& bar, RibbonBarParts& parts) : m_bar(bar), m_parts(parts) {}

    bool IsEmpty() const { return m_levels.empty(); }
    std::size_t GetCount() const { return m_levels.size(); }
    /// What the level stands for, counted from the topmost (0); null when there is none.
    CObject* GetObject(std::size_t below) const;
    /// The pop-up that the topmost level belongs to; null: the bar.
    CWnd* GetPopup() const;

    /// A level of the bar, a category or a panel; the tips of the level below are hidden.
    void Push(CObject* object);
    /// The elements' rectangles are client pixels of the pop-up.
    void PushPopup(CWnd& popup, CObject* object, const Elements& elements);
    void Pop();
    /// The levels from the pop-up's on are gone. False: it has none.
    bool RemovePopup(const CWnd& popup);
    void Clear();

    /// Shows the tips of the topmost level that still match.
    void Show();
    void Hide();

    /// Appends a capital to what was typed, unless that leads nowhere.
    Typed Type(wchar_t capital);
    bool IsTyping() const { return !m_typed.empty(); }
    void ForgetTyped() { m_typed.clear(); }
    /// A tip of the bar's own level begins with the capital.
    bool LeadsOn(wchar_t capital) const;

    /// The letters of the element's tip: `given`, or what its level's texts give; empty when it is in no level.
    CString KeysOf(const CMFCRibbonBaseElement& element, bool isMenu, const CString& given);
    /// Texts, keys or elements have changed.
    void Forget() { m_known.clear(); }
    void OnElementDestroyed(const CMFCRibbonBaseElement& element);

private:
    using Tips = std::vector<std::unique_ptr<CMFCRibbonKeyTip>>;
    struct Level {
        CObject* object;
        CWnd* popup;                         // null: the bar itself shows the elements
        const CMFCRibbonBaseElement* anchor; // the object goes when this element goes; may be null
        Tips tips;
    };

    Level MakeLevel(CObject* object) const;
    void CollectBar(Tips& tips) const;
    static void CollectCategory(CMFCRibbonCategory& category, Tips& tips);
    static void CollectPanel(CMFCRibbonPanel& panel, Tips& tips);
    static void Append(CMFCRibbonBaseElement& element, Tips& tips);
    static void AppendLaunchButton(CMFCRibbonPanel& panel, Tips& tips);
    static void Assign(Tips& tips, std::size_t first);
    static const CMFCRibbonKeyTip* FindTip(const Tips& tips, const CMFCRibbonBaseElement& element, bool isMenu);
    void Push(Level level);

    CMFCRibbonBar& m_bar;
    RibbonBarParts& m_parts;
    std::vector<Level> m_levels;
    std::wstring m_typed;
    std::map<std::pair<const CMFCRibbonBaseElement*, bool>, CString> m_known;
};
