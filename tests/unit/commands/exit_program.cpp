// A whole host of barwright.dll: leaves things behind in the library and writes what becomes of them when the process
// ends. One line each, read by process_exit_test.cpp.

#include "library_context.h"
#include "menu_event.h"

#include <boost/make_shared.hpp>

#include <cstring>

namespace {

/// By the system alone: the program's own streams may be closed by the time of the last lines.
void Write(const char* line) {
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_OUTPUT_HANDLE), line, static_cast<DWORD>(std::strlen(line)), &written, nullptr);
}

HIMAGELIST g_images = nullptr;

void WriteWhetherTheImageListLives(const char* when) {
    Write(when);
    Write(CImageList::FromHandlePermanent(g_images) == nullptr && ::ImageList_GetImageCount(g_images) == 0
              ? ": image list gone\n"
              : ": image list there\n");
}

class LastingReactor : public CMenuReactor {
public:
    LastingReactor() = default;
    LastingReactor(const LastingReactor&) = delete;
    LastingReactor& operator=(const LastingReactor&) = delete;
    ~LastingReactor() {
        Write("reactor destroyed\n");
        WriteWhetherTheImageListLives("reactor destroyed");
    }
};

class LastingBitmap : public CBitmap {
public:
    ~LastingBitmap() override { Write("bitmap deleted\n"); }
};

} // namespace

int main() {
    auto* const bitmap = new LastingBitmap; // stays: nobody but the host may delete it
    bitmap->CreateBitmap(1, 1, 1, 1, nullptr);
    g_layCtrlBmp.push_back(bitmap);
    const auto* const ofTheLibrary = reinterpret_cast<const std::vector<CBitmap*>*>(
        ::GetProcAddress(::GetModuleHandleW(L"barwright.dll"), "g_layCtrlBmp"));
    if (ofTheLibrary != nullptr && ofTheLibrary->size() == 1 && ofTheLibrary->front() == bitmap) {
        Write("bitmap seen by the library\n");
    }

    // The dispatcher first, so that it outlives the context.
    CMenuEvtHandleMgr::Ins()->addReactor(boost::make_shared<LastingReactor>());
    CQkMfc::Ins()->m_imageList.Create(16, 16, ILC_COLOR32, 0, 1);
    CBitmap image;
    image.CreateBitmap(16, 16, 1, 32, nullptr);
    CQkMfc::Ins()->m_imageList.Add(&image, RGB(0, 0, 0));
    g_images = CQkMfc::Ins()->m_imageList.GetSafeHandle();
    WriteWhetherTheImageListLives("main ends");
    return 0;
}
