// x_dll_version, read from the library file's own version resource.
#include "library/x_dll_version.h"

#include "afx/CString.h"
#include "library/kvLibraryModule.h"

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <vector>

namespace {

// The version resource of a file, or nothing when the file has none.
class VersionResource {
public:
    explicit VersionResource(const CString& fileName)
    {
        DWORD handle = 0;
        DWORD size = ::GetFileVersionInfoSizeA(fileName, &handle);
        if (size == 0)
            return;
        m_block.resize(size);
        if (!::GetFileVersionInfoA(fileName, 0, size, m_block.data()))
            m_block.clear();
    }

    bool IsRead() const { return !m_block.empty(); }

    // A value of the string table; a missing value is an empty text.
    CString String(const char* key) const
    {
        void* value = nullptr;
        UINT length = 0;
        if (!Query(StringTablePrefix() + key, &value, &length) || !value)
            return CString();
        // The length counts the terminator, which a damaged resource may lack.
        const char* text = static_cast<const char*>(value);
        return CString(text, static_cast<int>(strnlen(text, length)));
    }

private:
    bool Query(const CString& path, void** value, UINT* length) const
    {
        // VerQueryValueA does not write to the block; its parameter is not const.
        return ::VerQueryValueA(const_cast<char*>(m_block.data()), path, value, length) != 0;
    }

    // The table of the first translation; without a translation table, US English
    // in the Unicode code page.
    CString StringTablePrefix() const
    {
        void* value = nullptr;
        UINT length = 0;
        if (!Query("\\VarFileInfo\\Translation", &value, &length) || !value || length < 2 * sizeof(WORD))
            return "\\StringFileInfo\\040904B0\\";
        const WORD* translation = static_cast<const WORD*>(value);
        CString prefix;
        prefix.Format("\\StringFileInfo\\%04x%04x\\", translation[0], translation[1]);
        return prefix;
    }

    std::vector<char> m_block;
};

void CopyBounded(char* buffer, short size, const CString& text)
{
    if (buffer && size > 0)
        std::snprintf(buffer, static_cast<size_t>(size), "%s", text.GetString());
}

}  // namespace

extern "C" void x_dll_version(char* name, short nameSize, char* version, short versionSize)
{
    CString nameText = "kvWin Library";
    CString versionText = "XX.XX.XX";
    VersionResource resource(kvWin::LibraryFileName());
    if (resource.IsRead()) {
        nameText = resource.String("FileDescription");
        // Without the base library's version record the file version is
        // reported as the resource writes it.
        versionText = resource.String("FileVersion");
    }
    CopyBounded(name, nameSize, nameText);
    CopyBounded(version, versionSize, versionText);
}
