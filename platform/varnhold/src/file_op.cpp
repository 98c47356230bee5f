#include "varnhold/file_op.h"

#include "src/file_system.h"

#include <mutex>
#include <utility>

namespace {

struct AppPath {
    std::mutex mutex;
    FileOp::AppPathProvider provider; // empty: the folder of the program
};

AppPath& GetState() {
    static AppPath state;
    return state;
}

FileOp::AppPathProvider MakeProvider(std::wstring path) {
    if (path.empty()) {
        return {};
    }
    if (path.back() != L'/' && path.back() != varnhold::kSeparator) {
        path += varnhold::kSeparator;
    }
    return [path = std::move(path)](std::wstring& answer) {
        answer = path;
        return true;
    };
}

} // namespace

bool FileOp::GetAppPath(std::wstring& path) {
    AppPathProvider provider;
    {
        const std::lock_guard<std::mutex> lock(GetState().mutex);
        provider = GetState().provider;
    }
    return provider ? provider(path) : varnhold::GetProgramFolder(path);
}

void FileOp::SetAppPath(const std::wstring& path) { SetAppPathProvider(MakeProvider(path)); }

FileOp::AppPathProvider FileOp::SetAppPathProvider(const AppPathProvider& provider) {
    const std::lock_guard<std::mutex> lock(GetState().mutex);
    return std::exchange(GetState().provider, provider);
}

bool FileOp::FileExist(const std::wstring& path) {
    return path.find(L'\0') == std::wstring::npos && varnhold::IsFile(varnhold::ToNativePath(path));
}

ScopedAppPath::ScopedAppPath(const std::wstring& path) : m_earlier(FileOp::SetAppPathProvider(MakeProvider(path))) {}

ScopedAppPath::ScopedAppPath(const wchar_t* path) : ScopedAppPath(std::wstring(path ? path : L"")) {}

ScopedAppPath::ScopedAppPath(const FileOp::AppPathProvider& provider)
    : m_earlier(FileOp::SetAppPathProvider(provider)) {}

ScopedAppPath::~ScopedAppPath() { FileOp::SetAppPathProvider(m_earlier); }
