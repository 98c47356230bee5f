#include "config/check/icon_check.h"

#include "commands/resource_paths.h"
#include "config/check/file_kind.h"
#include "config/element_kind.h"
#include "config/suggestion.h"
#include "elements/icon_header.h"

#include <varnhold/letter_case.h>
#include <varnhold/strings.h>

#include <algorithm>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <set>

namespace {

constexpr int kSmall = 16; // pixels at 96 DPI, the folders' names
constexpr int kLarge = 32;

/// A label, slider or separator shows no icon; what has no known TYPE is a button.
bool IsStatusIcon(const MetElement& element) {
    const ElementKind kind = KindOfElement(element.ValueOf(AttributeUse::Type));
    return kind != ElementKind::Label && kind != ElementKind::Slider &&
           !varnhold::EqualsIgnoringCase(element.ValueOf(AttributeUse::Keyword), L"Separator");
}

std::vector<int> SidesOf(const MetElement& element) {
    switch (element.role) {
    case ElementRole::MenuItem:
    case ElementRole::ToolBarButton:
        return {kSmall};
    case ElementRole::StatusButton:
        return IsStatusIcon(element) ? std::vector<int>{kSmall} : std::vector<int>();
    case ElementRole::RibbonElement:
    case ElementRole::SubItem:
        break;
    default:
        return {};
    }
    if (KindOfElement(element.ValueOf(AttributeUse::Type)) != ElementKind::Button) {
        return {};
    }
    // "16px" was reported, and means 16.
    const long size = std::wcstol(std::wstring(element.ValueOf(AttributeUse::Size)).c_str(), nullptr, 10);
    return size == kSmall ? std::vector<int>{kSmall} : std::vector<int>{kSmall, kLarge};
}

std::wstring FolderOf(const std::wstring& path) {
    const std::size_t slash = path.rfind(L'\\');
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash);
}

IconFileReader ReaderOf(std::ifstream& stream) {
    return [&stream](std::uint64_t offset, std::span<std::uint8_t> bytes) -> std::size_t {
        constexpr std::uint64_t farthest = std::uint64_t(1) << 40;
        if (offset > farthest) {
            return 0;
        }
        stream.clear();
        stream.seekg(static_cast<std::streamoff>(offset));
        stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return static_cast<std::size_t>(std::max<std::streamsize>(0, stream.gcount()));
    };
}

IconState StateOf(const std::wstring& path, int side) {
#ifdef _WIN32
    const std::filesystem::path native(path);
#else
    const std::filesystem::path native(wstring2String(path));
#endif
    std::ifstream stream(native, std::ios::binary);
    const auto pictures = ReadIconHeaders(ReaderOf(stream));
    if (!pictures || pictures->empty()) {
        return IconState::NoIcon;
    }
    stream.clear();
    stream.seekg(0, std::ios::end);
    const auto end = static_cast<std::uint64_t>(std::max<std::streamoff>(0, stream.tellg()));
    const bool isCutOff = std::ranges::any_of(*pictures, [end](const IconPicture& picture) {
        return std::uint64_t(picture.offset) + picture.byteCount > end;
    });
    if (isCutOff) {
        return IconState::CutOff;
    }
    if (!MayDecode(pictures)) {
        return IconState::TooLarge;
    }
    const auto wanted = static_cast<std::uint32_t>(side);
    const bool isLargeEnough = std::ranges::any_of(*pictures, [wanted](const IconPicture& picture) {
        return picture.width >= wanted && picture.height >= wanted;
    });
    return isLargeEnough ? IconState::Fine : IconState::TooSmall;
}

class IconCheck {
public:
    IconCheck(const InstallationFiles& files, KeptIcons* kept, DiagnosticsSink& sink)
        : m_files(files), m_kept(kept), m_sink(sink) {}

    void Take(const GatheredElement& gathered) {
        const MetAttribute* const icon = gathered.element.Find(AttributeUse::Icon);
        const std::vector<int> sides = SidesOf(gathered.element);
        if (gathered.element.isPassedOver || !icon || icon->isReported || icon->value.empty() || sides.empty() ||
            !CheckPath(gathered, *icon)) {
            return;
        }
        std::vector<std::wstring> missing;
        for (const int side : sides) {
            const std::wstring path = IconFileBelow({}, icon->value, side);
            if (m_seen.insert(FoldedPath(path)).second) {
                if (const auto found = m_files.Find(path)) {
                    CheckFile(gathered, *icon, path, StateOfFile(path, *found, side), side);
                } else {
                    missing.push_back(path);
                }
            }
        }
        if (!missing.empty()) {
            m_missing.push_back({&gathered, icon, std::move(missing)});
        } else {
            m_folders.insert(icon->value.substr(0, icon->value.rfind(L'\\') + 1));
        }
    }

    /// When all are taken: what is missing may lie beside others.
    void ReportMissing() {
        for (const Missing& one : m_missing) {
            ReportMissing(*one.element, *one.icon, one.paths);
        }
    }

private:
    struct Missing {
        const GatheredElement* element;
        const MetAttribute* icon;
        std::vector<std::wstring> paths;
    };

    IconState StateOfFile(const std::wstring& path, const std::wstring& fullPath, int side) const {
        const auto look = [&] { return StateOf(fullPath, side); };
        return m_kept ? m_kept->Get(FoldedPath(path), m_files.StampOf(path), look) : look();
    }

    void Report(const GatheredElement& gathered, const MetAttribute& icon, std::string_view code, std::wstring text,
                std::wstring fix) const {
        ReportTogether(m_sink, *gathered.file, icon.position, code, std::move(text), std::move(fix));
    }

    /// False: no file need be looked for.
    bool CheckPath(const GatheredElement& gathered, const MetAttribute& icon) const {
        if (icon.value.find(L"://") != std::wstring::npos) {
            Report(gathered, icon, "path-separator", L"this is an address, and an icon is a file of the installation",
                   L"put the file below the installation directory, and write its path from there");
            return false;
        }
        const std::size_t backslash = icon.value.rfind(L'\\');
        const std::size_t name = backslash == std::wstring::npos ? 0 : backslash + 1;
        if (icon.value.find(L'/', name) != std::wstring::npos) {
            std::wstring mended = icon.value;
            std::ranges::replace(mended, L'/', L'\\');
            Report(gathered, icon, "path-separator",
                   L"only a backslash divides the path: the folder of the size is put before " +
                       Quoted(icon.value.substr(name)),
                   L"write " + Quoted(mended));
            return false;
        }
        if (InstallationFiles::LeadsOut(icon.value)) {
            Report(gathered, icon, "path-separator",
                   L"the path leads out of the installation directory, where nothing is looked for",
                   L"put the file below the installation directory");
            return false;
        }
        return true;
    }

    void CheckFile(const GatheredElement& gathered, const MetAttribute& icon, const std::wstring& path, IconState state,
                   int side) const {
        switch (state) {
        case IconState::Fine:
            break;
        case IconState::NoIcon:
            Report(gathered, icon, "icon-format", Quoted(path) + L" is no icon file, or has no picture",
                   L"save it as an icon file (.ico)");
            break;
        case IconState::CutOff:
            Report(gathered, icon, "icon-format", Quoted(path) + L" ends within a picture: it was not written whole",
                   L"copy or save it again");
            break;
        case IconState::TooLarge:
            Report(gathered, icon, "icon-format",
                   Quoted(path) + L" has a picture of more than " + std::to_wstring(kLongestIconSide) +
                       L" pixels a side, and is not loaded",
                   L"take the picture out of the file");
            break;
        case IconState::TooSmall:
            Report(gathered, icon, "icon-size",
                   Quoted(path) + L" has no picture of " + std::to_wstring(side) +
                       L" pixels; a smaller one is enlarged",
                   L"put a picture of that size into the file");
            break;
        }
    }

    void ReportMissing(const GatheredElement& gathered, const MetAttribute& icon,
                       const std::vector<std::wstring>& missing) {
        const std::wstring folder = FolderOf(missing.front());
        // Without the folder all icons in it are missing: that is one fault.
        bool isNew = false;
        for (const std::wstring& path : missing) {
            isNew = TakeMissing(path) || isNew;
        }
        if (!isNew) {
            return;
        }
        std::wstring text;
        for (const std::wstring& path : missing) {
            text += (text.empty() ? L"" : L" and ") + Quoted(path);
        }
        text += missing.size() == 1 ? L" is not there" : L" are not there";
        text += m_files.FilesIn(folder).empty() ? L", nor is anything else in that folder" : L"";
        Report(gathered, icon, "missing-icon", std::move(text), Suggestion(icon.value, missing.front()));
    }

    /// False where the icon's folder has no file at all, or the one around it no folder, and that was taken before.
    bool TakeMissing(const std::wstring& path) {
        const std::wstring folder = FolderOf(path);
        const std::wstring around = FolderOf(folder);
        const bool isAlone = m_files.FoldersIn(around).empty();
        return !m_files.FilesIn(folder).empty() ||
               m_missingFolders.insert(FoldedPath(isAlone ? around : folder)).second;
    }

    bool IsThere(const std::wstring& path) const { return m_files.Find(IconFileBelow({}, path, kSmall)).has_value(); }

    /// The file beside a missing icon that has its name and another format's extension.
    std::wstring OtherFormatOf(const std::wstring& missing) const {
        const std::size_t slash = missing.rfind(L'\\');
        const std::wstring_view name = std::wstring_view(missing).substr(slash + 1);
        if (!EndsWith(name, L".ico")) {
            return {};
        }
        const std::wstring_view stem = name.substr(0, name.rfind(L'.') + 1);
        for (const std::wstring& file : m_files.FilesIn(missing.substr(0, slash))) {
            if (varnhold::EqualsIgnoringCase(std::wstring_view(file).substr(0, file.rfind(L'.') + 1), stem)) {
                return file;
            }
        }
        return {};
    }

    /// How the path should be written: a file of nearly that name beside the one that is missing, or what people write
    /// in its place.
    std::wstring Suggestion(const std::wstring& written, const std::wstring& missing) const {
        const std::size_t slash = missing.rfind(L'\\');
        const std::wstring folder = missing.substr(0, slash);
        const std::wstring meant = ClosestWord(missing.substr(slash + 1), m_files.FilesIn(folder));
        const std::size_t name = written.rfind(L'\\') + 1; // npos + 1 is 0
        if (const std::wstring picture = OtherFormatOf(missing); !picture.empty()) {
            return Quoted(picture) + L" is no icon: save it as an icon file (.ico)";
        }
        for (const int side : {kSmall, kLarge}) {
            if (m_files.Find(IconFileBelow({}, written, side))) {
                return L"it is there for the other size alone: put the file of this size into folder " +
                       Quoted(folder.substr(folder.rfind(L'\\') + 1));
            }
        }
        if (!meant.empty()) {
            return DidYouMean(written.substr(0, name) + meant);
        }
        const std::size_t first = written.find_first_not_of(L' ');
        const std::wstring trimmed =
            first == std::wstring::npos ? written : written.substr(first, written.find_last_not_of(L' ') + 1 - first);
        std::vector<std::wstring> others = {trimmed, written + L".ico", WithoutSizeFolder(written)};
        for (const std::wstring& known : m_folders) {
            others.push_back(known + written.substr(name));
        }
        const auto found =
            std::ranges::find_if(others, [this](const std::wstring& path) { return !path.empty() && IsThere(path); });
        return found == others.end() ? std::wstring() : DidYouMean(*found);
    }

    /// The size's folder is put in by the program.
    static std::wstring WithoutSizeFolder(std::wstring path) {
        for (const std::wstring_view folder : {L"\\16\\", L"\\32\\"}) {
            if (const std::size_t at = path.rfind(folder); at != std::wstring::npos) {
                return path.erase(at, folder.size() - 1);
            }
        }
        return {};
    }

    const InstallationFiles& m_files;
    KeptIcons* m_kept;
    DiagnosticsSink& m_sink;
    /// Paths that an element named before.
    std::set<std::wstring> m_seen;
    /// Of the icons that were found, with the closing backslash.
    std::set<std::wstring> m_folders;
    std::set<std::wstring> m_missingFolders;
    std::vector<Missing> m_missing;
};

} // namespace

void CheckIcons(std::span<const GatheredElement> elements, const InstallationFiles& files, KeptIcons* kept,
                DiagnosticsSink& sink) {
    IconCheck check(files, kept, sink);
    for (const GatheredElement& gathered : elements) {
        check.Take(gathered);
    }
    check.ReportMissing();
}

bool CanLoadIcon(const InstallationFiles& files, const std::wstring& picPath, int side) {
    const auto found = files.Find(IconFileBelow({}, picPath, side));
    const IconState state = found ? StateOf(*found, side) : IconState::NoIcon;
    return state == IconState::Fine || state == IconState::TooSmall;
}
