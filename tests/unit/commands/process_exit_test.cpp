// What the library lets go of when its process ends, seen in a program of its own.

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace {

struct Outcome {
    std::string output;
    DWORD exitCode = STILL_ACTIVE;
};

std::wstring ProgramBesideThisOne(const wchar_t* name) {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring file = path;
    return file.substr(0, file.rfind(L'\\') + 1) + name;
}

std::string ReadToTheEnd(HANDLE pipe) {
    std::string text;
    char bytes[256];
    for (DWORD count = 0; ::ReadFile(pipe, bytes, sizeof(bytes), &count, nullptr) && count > 0;) {
        text.append(bytes, count);
    }
    return text;
}

Outcome RunProgram(const wchar_t* name) {
    SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    ::CreatePipe(&readEnd, &writeEnd, &inherited, 0);
    ::SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = writeEnd;
    PROCESS_INFORMATION process = {};
    std::wstring program = ProgramBesideThisOne(name);
    Outcome run;
    const bool started =
        ::CreateProcessW(nullptr, program.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process) != 0;
    ::CloseHandle(writeEnd);
    EXPECT_TRUE(started);
    if (started) {
        run.output = ReadToTheEnd(readEnd);
        ::WaitForSingleObject(process.hProcess, INFINITE);
        ::GetExitCodeProcess(process.hProcess, &run.exitCode);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
    }
    ::CloseHandle(readEnd);
    return run;
}

TEST(ProcessExit, EndsReactorsAndContextAndLeavesTheHostsBitmaps) {
    const Outcome run = RunProgram(L"commands_exit_program.exe");
    EXPECT_EQ(run.output, "bitmap seen by the library\n"
                          "main ends: image list there\n"
                          "reactor destroyed\n"
                          "reactor destroyed: image list gone\n");
    EXPECT_EQ(run.exitCode, 0u);
}

} // namespace
