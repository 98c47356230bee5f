#include <afxcontrolbars.h>

#include "matrix.h"

#include "matrix_page.h"
#include "preview_frame.h"
#include "pseudo_language.h"

#include "screenshot.h"

#include "varnhold/file_op.h"
#include "varnhold/language.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr wchar_t kPseudo[] = L"pseudo";
constexpr wchar_t kMirrored[] = L"mirrored";

std::vector<std::wstring> InstalledLanguages(const std::wstring& directory) {
    const ScopedAppPath path(directory);
    return CMultiLanguageMgr::Languages();
}

/// Of the combinations, whatever was not asked for.
BarviewOptions WithDefaults(BarviewOptions options) {
    if (options.skins.empty()) {
        options.skins = {L"black", L"silver"};
    }
    if (options.languages.empty()) {
        options.languages = InstalledLanguages(options.directory);
        options.languages.insert(options.languages.end(), {kPseudo, kMirrored});
    }
    if (options.scales.empty()) {
        options.scales = {100, 150};
    }
    if (options.sizes.empty()) {
        options.sizes = {{1280, 300}, {640, 300}};
    }
    return options;
}

bool AreSame(const fs::path& a, const fs::path& b) {
    const auto read = [](const fs::path& path) {
        std::ifstream stream(path, std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(stream), {}};
    };
    return read(a) == read(b);
}

/// One combination after the other, of one installation directory.
class MatrixRun {
public:
    /// `folder`: within `out`, for the pictures.
    MatrixRun(const BarviewOptions& options, fs::path out, std::wstring folder, const TabShower& show)
        : m_options(options), m_out(std::move(out)), m_folder(std::move(folder)), m_show(show) {}

    bool Run() {
        std::error_code error;
        fs::create_directories(m_out / m_folder, error);
        for (const std::wstring& language : m_options.languages) {
            const std::optional<BarviewOptions> inLanguage = SpeakIn(language);
            for (const std::wstring& skin : m_options.skins) {
                for (const int scale : m_options.scales) {
                    for (const auto& [width, height] : m_options.sizes) {
                        if (!inLanguage ||
                            !Show(*inLanguage, {{}, skin, language, scale, width, height, {}, {}, false})) {
                            return false;
                        }
                    }
                }
            }
        }
        return m_isWritten;
    }

    std::vector<MatrixPicture> m_pictures;

private:
    /// Nothing when the made-up language cannot be written.
    std::optional<BarviewOptions> SpeakIn(const std::wstring& language) {
        const std::vector<std::wstring> installed = InstalledLanguages(m_options.directory);
        const std::wstring first = installed.empty() ? std::wstring() : installed.front();
        BarviewOptions options = m_options;
        options.language = language;
        if (language == kMirrored) {
            options.isMirrored = true;
            options.language = first;
        } else if (language == kPseudo) {
            m_pseudo = std::make_unique<PseudoInstallation>(m_options.directory, first);
            options.directory = m_pseudo->Directory();
            options.language = kPseudoLanguage;
        }
        return options.directory.empty() ? std::nullopt : std::optional(options);
    }

    bool Show(BarviewOptions options, const MatrixPicture& combination) {
        options.skin = combination.skin;
        options.scalePercent = combination.scale;
        options.width = combination.width;
        options.height = combination.height;
        return m_show(options, [&](const std::wstring& tab, int place, HWND window) {
            MatrixPicture picture = combination;
            // The tab is named as in the first language, so that its pictures stand together.
            const auto found = m_names.try_emplace(place, tab).first;
            picture.tab = found->second;
            picture.file = m_folder + L"/" + std::to_wstring(place + 1) + L"-" + combination.language + L"-" +
                           combination.skin + L"-" + std::to_wstring(combination.scale) + L"-" +
                           std::to_wstring(combination.width) + L"x" + std::to_wstring(combination.height) + L".png";
            if (!WriteScreenshot(window, (m_out / picture.file).wstring())) {
                Complain(L"not written: " + (m_out / picture.file).wstring());
                m_isWritten = false;
            }
            m_pictures.push_back(std::move(picture));
        });
    }

    const BarviewOptions& m_options;
    const fs::path m_out;
    const std::wstring m_folder;
    const TabShower& m_show;
    std::unique_ptr<PseudoInstallation> m_pseudo;
    std::map<int, std::wstring> m_names;
    bool m_isWritten = true;
};

bool AreOfOnePlace(const MatrixPicture& a, const MatrixPicture& b) {
    return a.tab == b.tab && a.skin == b.skin && a.language == b.language && a.scale == b.scale && a.width == b.width &&
           a.height == b.height;
}

/// Marks the pictures that the other configuration does not have, or has otherwise, and adds those that it alone has.
void Compare(std::vector<MatrixPicture>& pictures, const std::vector<MatrixPicture>& others, const fs::path& out) {
    for (MatrixPicture& picture : pictures) {
        const auto other =
            std::ranges::find_if(others, [&picture](const MatrixPicture& one) { return AreOfOnePlace(one, picture); });
        picture.before = other == others.end() ? std::wstring() : other->file;
        picture.isChanged = picture.before.empty() || !AreSame(out / picture.file, out / picture.before);
    }
    for (const MatrixPicture& other : others) {
        if (std::ranges::none_of(pictures, [&other](const MatrixPicture& one) { return AreOfOnePlace(one, other); })) {
            MatrixPicture gone = other;
            gone.before = std::exchange(gone.file, {});
            gone.isChanged = true;
            pictures.push_back(std::move(gone));
        }
    }
}

} // namespace

bool WriteMatrix(const BarviewOptions& given, const TabShower& show) {
    BarviewOptions options = WithDefaults(given);
    const std::wstring title = given.directory;
    const fs::path out = fs::absolute(options.matrix);
    options.directory = (fs::absolute(options.directory) / "").wstring();
    MatrixRun run(options, out, L"pictures", show);
    bool isWritten = run.Run();
    if (!options.against.empty()) {
        BarviewOptions other = options;
        other.ribbonFiles.clear();
        other.menuFiles.clear();
        other.toolBarFiles.clear();
        TakeDirectory((fs::absolute(options.against) / "").wstring(), other);
        MatrixRun before(other, out, L"before", show);
        isWritten = before.Run() && isWritten;
        Compare(run.m_pictures, before.m_pictures, out);
    }
    std::ofstream page(out / "index.html", std::ios::binary);
    page << MatrixPage(title, run.m_pictures);
    if (!page.flush().good()) {
        Complain(L"not written: " + (out / "index.html").wstring());
        return false;
    }
    return isWritten;
}
