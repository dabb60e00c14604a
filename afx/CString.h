// CString: the framework's narrow (8-bit) string, with MFC's semantics for every
// operation kvWin uses, out-of-range arguments included (they are clamped the way
// MFC clamps them, never trusted). Texts of up to kInlineCapacity characters live
// inside the object: fields hold short texts and a keystroke should not allocate.
#pragma once

#include "afx/AfxExport.h"
#include "afx/WinTypes.h"

#include <cstdarg>
#include <cstddef>

class AFX_API CString {
public:
    static constexpr int kInlineCapacity = 31;

    CString() noexcept;
    CString(const char* psz);
    CString(const char* pch, int nLength);
    CString(char ch, int nRepeat = 1);
    CString(const CString& other);
    CString(CString&& other) noexcept;
    ~CString();

    CString& operator=(const CString& other);
    CString& operator=(CString&& other) noexcept;
    CString& operator=(const char* psz);
    CString& operator=(char ch);

    CString& operator+=(const CString& s);
    CString& operator+=(const char* psz);
    CString& operator+=(char ch);

    int GetLength() const noexcept { return m_nLength; }
    bool IsEmpty() const noexcept { return m_nLength == 0; }
    void Empty() noexcept;
    const char* GetString() const noexcept { return m_pchData; }
    operator const char*() const noexcept { return m_pchData; }

    // Reads outside 0..length give '\0' (MFC asserts); writes outside are ignored.
    char GetAt(int nIndex) const noexcept
    {
        return (nIndex >= 0 && nIndex < m_nLength) ? m_pchData[nIndex] : '\0';
    }
    char operator[](int nIndex) const noexcept { return GetAt(nIndex); }
    void SetAt(int nIndex, char ch) noexcept
    {
        if (nIndex >= 0 && nIndex < m_nLength)
            m_pchData[nIndex] = ch;
    }

    CString Mid(int nFirst) const;
    CString Mid(int nFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString SpanIncluding(const char* pszCharSet) const;
    CString SpanExcluding(const char* pszCharSet) const;

    int Find(char ch, int nStart = 0) const noexcept;
    int Find(const char* pszSub, int nStart = 0) const noexcept;
    int ReverseFind(char ch) const noexcept;
    int FindOneOf(const char* pszCharSet) const noexcept;

    int Insert(int nIndex, char ch);
    int Insert(int nIndex, const char* psz);
    int Delete(int nIndex, int nCount = 1);
    int Replace(char chOld, char chNew);
    int Replace(const char* pszOld, const char* pszNew);
    int Remove(char ch);

    CString& MakeUpper() noexcept;
    CString& MakeLower() noexcept;
    CString& MakeReverse() noexcept;
    CString& Trim();
    CString& Trim(char chTarget);
    CString& Trim(const char* pszTargets);
    CString& TrimLeft();
    CString& TrimLeft(char chTarget);
    CString& TrimLeft(const char* pszTargets);
    CString& TrimRight();
    CString& TrimRight(char chTarget);
    CString& TrimRight(const char* pszTargets);

    int Compare(const char* psz) const noexcept;
    int CompareNoCase(const char* psz) const noexcept;

    void Format(const char* pszFormat, ...) __attribute__((format(printf, 2, 3)));
    void AppendFormat(const char* pszFormat, ...) __attribute__((format(printf, 2, 3)));
    void FormatV(const char* pszFormat, va_list args);
    void AppendFormatV(const char* pszFormat, va_list args);

    // Direct buffer access, as in MFC: write at most nMinBufLength characters,
    // then ReleaseBuffer (-1 takes the length up to the first '\0').
    char* GetBuffer(int nMinBufLength = 0);
    char* GetBufferSetLength(int nNewLength);
    void ReleaseBuffer(int nNewLength = -1) noexcept;

private:
    int InsertChars(int nIndex, const char* pch, int nCount);
    void Assign(const char* pch, int nLength);
    void Append(const char* pch, int nLength);
    void Reserve(int nCapacity);
    void SetLength(int nLength) noexcept;
    bool IsInline() const noexcept { return m_pchData == m_inline; }
    void TrimLeftWhile(bool (*pred)(unsigned char, const void*), const void* arg);
    void TrimRightWhile(bool (*pred)(unsigned char, const void*), const void* arg);

    char* m_pchData;
    int m_nLength;
    int m_nCapacity;
    char m_inline[kInlineCapacity + 1];
};

AFX_API CString operator+(const CString& a, const CString& b);
AFX_API CString operator+(const CString& a, const char* b);
AFX_API CString operator+(const char* a, const CString& b);
AFX_API CString operator+(const CString& a, char b);
AFX_API CString operator+(char a, const CString& b);

inline bool operator==(const CString& a, const CString& b) noexcept { return a.Compare(b) == 0; }
inline bool operator==(const CString& a, const char* b) noexcept { return a.Compare(b) == 0; }
inline bool operator==(const char* a, const CString& b) noexcept { return b.Compare(a) == 0; }
inline bool operator!=(const CString& a, const CString& b) noexcept { return a.Compare(b) != 0; }
inline bool operator!=(const CString& a, const char* b) noexcept { return a.Compare(b) != 0; }
inline bool operator!=(const char* a, const CString& b) noexcept { return b.Compare(a) != 0; }
inline bool operator<(const CString& a, const CString& b) noexcept { return a.Compare(b) < 0; }
