#include "followed_files.h"

#include "configuration_files.h"

#include "varnhold/file_op.h"
#include "varnhold/language.h"
#include "varnhold/strings.h"

#include <afxcontrolbars.h>

#include <cstdio>

namespace {

std::wstring InstallationDirectory() {
    std::wstring directory;
    FileOp::GetAppPath(directory);
    return directory;
}

void PrintLine(std::FILE* stream, const std::wstring& line) {
    std::fprintf(stream, "%s\n", wstring2String(line).c_str());
    std::fflush(stream);
}

} // namespace

FollowedFiles::FollowedFiles(Host host) : m_host(std::move(host)) {
    m_watch.Start(InstallationDirectory(), [this](const ConfigurationChange& change) { Take(change); });
}

void FollowedFiles::Begin() {
    m_hasBegun = true;
    if (!m_waiting.files.empty()) {
        Show(std::vector<std::wstring>(m_waiting.files)); // what has been shown waits no more
    } else {
        AreAllWhole();
    }
}

void FollowedFiles::Take(const ConfigurationChange& change) {
    m_waiting.files.insert(m_waiting.files.end(), change.files.begin(), change.files.end());
    if (m_hasBegun) {
        Show(change.files);
    }
}

/// Says which are not.
bool FollowedFiles::AreAllWhole() const {
    const std::vector<std::wstring> broken = FindBrokenFiles(CMultiLanguageMgr::GetLanguage());
    for (const std::wstring& line : broken) {
        PrintLine(stderr, line);
    }
    m_host.showProblem(broken.empty() ? std::wstring() : broken.front());
    return broken.empty();
}

/// `files`: what is told.
void FollowedFiles::Show(const std::vector<std::wstring>& files) {
    const bool isBuilt = AreAllWhole() && m_host.rebuild(m_waiting);
    if (isBuilt) {
        m_waiting.files.clear();
    }
    std::wstring line = isBuilt ? L"demo: built anew:" : L"demo: as before:";
    for (const std::wstring& file : files) {
        line += L" " + file;
    }
    PrintLine(stdout, line);
}
