// The library frame: kvWin.dll's resources reach the application through the
// module chain, x_dll_version reads the file's version resource, and a library
// that has joined the application announces itself and stays loaded. The frame
// DLLs kvFrame*.dll are built from the same sources with other resources.
#include "afx/AfxExtension.h"
#include "library/resource.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <cstring>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

using VersionEntry = void (*)(char*, short, char*, short);

std::string ModuleFileName(HMODULE module)
{
    char path[MAX_PATH] = {};
    ::GetModuleFileNameA(module, path, MAX_PATH);
    return path;
}

VersionEntry VersionEntryOf(HMODULE library)
{
    return reinterpret_cast<VersionEntry>(reinterpret_cast<void*>(::GetProcAddress(library, "x_dll_version")));
}

// An imported library joins the application at the first window created after
// the application object exists; make sure there has been one.
void CreateOneWindow()
{
    ::DestroyWindow(::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr));
}

struct ResourceRow {
    const char* name;
    UINT id;
    LPCSTR type;
    UINT imageType;
    int width;  // of a bitmap
};

const ResourceRow kResources[] = {
    {"hand cursor", IDC_KVHAND, RT_GROUP_CURSOR, IMAGE_CURSOR, 0},
    {"focus pattern", IDB_KVFOCUSPATTERN, RT_BITMAP, IMAGE_BITMAP, 8},
    {"calendar glyph", IDB_KVCALENDAR, RT_BITMAP, IMAGE_BITMAP, 12},
};

TEST(Library, ResourcesAreFoundThroughTheModuleChain)
{
    CreateOneWindow();
    for (const ResourceRow& row : kResources) {
        SCOPED_TRACE(row.name);
        HINSTANCE found = AfxFindResourceHandle(MAKEINTRESOURCE(row.id), row.type);
        EXPECT_EQ(found, ::GetModuleHandleA("kvWin.dll"));
        HANDLE image = ::LoadImageA(found, MAKEINTRESOURCE(row.id), row.imageType, 0, 0, 0);
        ASSERT_NE(image, nullptr);
        if (row.imageType == IMAGE_BITMAP) {
            BITMAP info{};
            ::GetObjectA(image, sizeof info, &info);
            EXPECT_EQ(info.bmWidth, row.width);
            ::DeleteObject(image);
        } else {
            ::DestroyCursor(static_cast<HCURSOR>(image));
        }
    }
}

struct VersionRow {
    const char* name;
    const char* library;
    short nameSize;
    short versionSize;
    const char* expectedName;
    const char* expectedVersion;
};

// Buffers the entry must not touch keep this text.
const char kUntouched[] = "untouched";

const VersionRow kVersions[] = {
    {"description and version from the resource", "kvWin.dll", 64, 64, "kvWin Library", "13.1.24"},
    {"texts cut to the buffers", "kvWin.dll", 6, 4, "kvWin", "13."},
    {"one byte holds the terminator only", "kvWin.dll", 1, 1, "", ""},
    {"empty buffers are left alone", "kvWin.dll", 0, 0, kUntouched, kUntouched},
    {"negative sizes are left alone", "kvWin.dll", -1, -8, kUntouched, kUntouched},
    {"no version resource", "kvFrameBare.dll", 64, 64, "kvWin Library", "XX.XX.XX"},
    {"no translation table: US-English table; no version: empty", "kvFrameUntranslated.dll", 64, 64,
     "Frame without translation", ""},
    {"translation table chooses the table", "kvFrameTranslated.dll", 64, 64, "Rahmen mit Uebersetzung",
     "5.6.7.8"},
};

TEST(Library, VersionEntryReadsTheVersionResource)
{
    for (const VersionRow& row : kVersions) {
        SCOPED_TRACE(row.name);
        HMODULE library = ::LoadLibraryA(row.library);
        ASSERT_NE(library, nullptr);
        VersionEntry entry = VersionEntryOf(library);
        ASSERT_NE(entry, nullptr) << "exported under its plain name";
        char name[64], version[64];
        std::strcpy(name, kUntouched);
        std::strcpy(version, kUntouched);
        entry(name, row.nameSize, version, row.versionSize);
        EXPECT_STREQ(name, row.expectedName);
        EXPECT_STREQ(version, row.expectedVersion);
        ::FreeLibrary(library);
    }
}

// Listens to OutputDebugString as a debug monitor does when no debugger is
// attached: through the shared buffer and its two events.
class DebugOutputMonitor {
public:
    DebugOutputMonitor()
        : m_bufferReady(::CreateEventA(nullptr, FALSE, TRUE, "DBWIN_BUFFER_READY")),
          m_dataReady(::CreateEventA(nullptr, FALSE, FALSE, "DBWIN_DATA_READY")),
          m_mapping(::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, kBufferSize,
                                         "DBWIN_BUFFER")),
          m_buffer(m_mapping ? static_cast<const Buffer*>(::MapViewOfFile(m_mapping, FILE_MAP_READ, 0, 0, 0))
                             : nullptr)
    {
        // A thread that starts while a library loads waits for the loader, and
        // the library's message would wait for it: have it running first.
        if (IsListening()) {
            m_thread = std::thread([this] { Listen(); });
            while (!m_running)
                ::Sleep(1);
        }
    }

    ~DebugOutputMonitor()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
        if (m_buffer)
            ::UnmapViewOfFile(m_buffer);
        for (HANDLE handle : {m_mapping, m_dataReady, m_bufferReady})
            if (handle)
                ::CloseHandle(handle);
    }

    bool IsListening() const { return m_bufferReady && m_dataReady && m_buffer; }

    // What arrived, once something has (or a second has passed).
    std::vector<std::string> Messages()
    {
        for (int waited = 0; waited < 1000 && Received().empty(); waited += 10)
            ::Sleep(10);
        return Received();
    }

private:
    static constexpr DWORD kBufferSize = 4096;
    struct Buffer {
        DWORD processId;
        char text[kBufferSize - sizeof(DWORD)];
    };

    std::vector<std::string> Received()
    {
        std::lock_guard<std::mutex> lock(m_guard);
        return m_messages;
    }

    void Listen()
    {
        m_running = true;
        while (!m_stop) {
            if (::WaitForSingleObject(m_dataReady, 20) != WAIT_OBJECT_0)
                continue;
            if (m_buffer->processId == ::GetCurrentProcessId()) {
                std::lock_guard<std::mutex> lock(m_guard);
                m_messages.emplace_back(m_buffer->text, strnlen(m_buffer->text, sizeof m_buffer->text));
            }
            ::SetEvent(m_bufferReady);
        }
    }

    HANDLE m_bufferReady;
    HANDLE m_dataReady;
    HANDLE m_mapping;
    const Buffer* m_buffer;
    std::atomic<bool> m_running{false};
    std::atomic<bool> m_stop{false};
    std::mutex m_guard;
    std::vector<std::string> m_messages;
    std::thread m_thread;
};

// kvFrameLoaded.dll is loaded by this test only, so its attach happens here.
// Loaded by a running application it joins at once: freed before any window
// is created, it stays.
TEST(Library, LoadedLibraryAnnouncesItselfAndStaysLoaded)
{
    DebugOutputMonitor monitor;
    ASSERT_TRUE(monitor.IsListening());
    ASSERT_EQ(::GetModuleHandleA("kvFrameLoaded.dll"), nullptr) << "loaded before this test";

    HMODULE library = ::LoadLibraryA("kvFrameLoaded.dll");
    ASSERT_NE(library, nullptr);
    const std::string attach = ModuleFileName(library) + " 13.1.24 process attach.\n";
    ::FreeLibrary(library);

    EXPECT_EQ(::GetModuleHandleA("kvFrameLoaded.dll"), library) << "its own second load keeps it";
    EXPECT_EQ(monitor.Messages(), std::vector<std::string>{attach});
}

}  // namespace
