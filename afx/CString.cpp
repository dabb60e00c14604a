// CString: storage (inline for short texts, heap beyond), MFC's clamping rules
// for out-of-range positions, and printf-style formatting.
#include "afx/CString.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

int LengthOf(const char* psz) noexcept
{
    return psz ? static_cast<int>(std::strlen(psz)) : 0;
}

int SignOf(int difference) noexcept
{
    return (difference > 0) - (difference < 0);
}

int Clamp(long long value, int low, int high) noexcept
{
    return static_cast<int>(std::min<long long>(std::max<long long>(value, low), high));
}

bool IsBlank(unsigned char ch, const void*) { return std::isspace(ch) != 0; }
bool IsChar(unsigned char ch, const void* arg) { return ch == *static_cast<const unsigned char*>(arg); }
bool IsOneOf(unsigned char ch, const void* arg)
{
    return ch != 0 && std::strchr(static_cast<const char*>(arg), ch) != nullptr;
}

}  // namespace

CString::CString() noexcept : m_pchData(m_inline), m_nLength(0), m_nCapacity(kInlineCapacity)
{
    m_inline[0] = '\0';
}

CString::CString(const char* psz) : CString() { Assign(psz, LengthOf(psz)); }

CString::CString(const char* pch, int nLength) : CString()
{
    Assign(pch, pch ? std::max(nLength, 0) : 0);
}

CString::CString(char ch, int nRepeat) : CString()
{
    nRepeat = std::max(nRepeat, 0);
    Reserve(nRepeat);
    std::memset(m_pchData, ch, static_cast<size_t>(nRepeat));
    SetLength(nRepeat);
}

CString::CString(const CString& other) : CString() { Assign(other.m_pchData, other.m_nLength); }

CString::CString(CString&& other) noexcept : CString()
{
    if (other.IsInline()) {
        std::memcpy(m_inline, other.m_inline, static_cast<size_t>(other.m_nLength) + 1);
        m_nLength = other.m_nLength;
    } else {
        m_pchData = other.m_pchData;
        m_nLength = other.m_nLength;
        m_nCapacity = other.m_nCapacity;
        other.m_pchData = other.m_inline;
        other.m_nCapacity = kInlineCapacity;
    }
    other.SetLength(0);
}

CString::~CString()
{
    if (!IsInline())
        std::free(m_pchData);
}

CString& CString::operator=(const CString& other)
{
    if (this != &other)
        Assign(other.m_pchData, other.m_nLength);
    return *this;
}

CString& CString::operator=(CString&& other) noexcept
{
    if (this != &other) {
        this->~CString();
        new (this) CString(std::move(other));
    }
    return *this;
}

CString& CString::operator=(const char* psz)
{
    // psz may point into this string; Assign copies with memmove semantics.
    Assign(psz, LengthOf(psz));
    return *this;
}

CString& CString::operator=(char ch)
{
    Assign(&ch, 1);
    return *this;
}

CString& CString::operator+=(const CString& s)
{
    Append(s.m_pchData, s.m_nLength);
    return *this;
}

CString& CString::operator+=(const char* psz)
{
    Append(psz, LengthOf(psz));
    return *this;
}

CString& CString::operator+=(char ch)
{
    Append(&ch, 1);
    return *this;
}

void CString::Empty() noexcept { SetLength(0); }

CString CString::Mid(int nFirst) const
{
    return Mid(nFirst, m_nLength - std::max(nFirst, 0));
}

CString CString::Mid(int nFirst, int nCount) const
{
    nFirst = Clamp(nFirst, 0, m_nLength);
    nCount = Clamp(nCount, 0, m_nLength - nFirst);
    return CString(m_pchData + nFirst, nCount);
}

CString CString::Left(int nCount) const
{
    return CString(m_pchData, Clamp(nCount, 0, m_nLength));
}

CString CString::Right(int nCount) const
{
    nCount = Clamp(nCount, 0, m_nLength);
    return CString(m_pchData + m_nLength - nCount, nCount);
}

CString CString::SpanIncluding(const char* pszCharSet) const
{
    return Left(static_cast<int>(std::strspn(m_pchData, pszCharSet ? pszCharSet : "")));
}

CString CString::SpanExcluding(const char* pszCharSet) const
{
    return Left(static_cast<int>(std::strcspn(m_pchData, pszCharSet ? pszCharSet : "")));
}

int CString::Find(char ch, int nStart) const noexcept
{
    if (nStart < 0 || nStart >= m_nLength)
        return -1;
    const void* hit = std::memchr(m_pchData + nStart, ch, static_cast<size_t>(m_nLength - nStart));
    return hit ? static_cast<int>(static_cast<const char*>(hit) - m_pchData) : -1;
}

int CString::Find(const char* pszSub, int nStart) const noexcept
{
    if (!pszSub || nStart < 0 || nStart > m_nLength)
        return -1;
    const char* hit = std::strstr(m_pchData + nStart, pszSub);
    return hit ? static_cast<int>(hit - m_pchData) : -1;
}

int CString::ReverseFind(char ch) const noexcept
{
    for (int i = m_nLength - 1; i >= 0; --i)
        if (m_pchData[i] == ch)
            return i;
    return -1;
}

int CString::FindOneOf(const char* pszCharSet) const noexcept
{
    if (!pszCharSet)
        return -1;
    const char* hit = std::strpbrk(m_pchData, pszCharSet);
    return hit ? static_cast<int>(hit - m_pchData) : -1;
}

// Like MFC, a character is inserted even when it is '\0'.
int CString::Insert(int nIndex, char ch) { return InsertChars(nIndex, &ch, 1); }

int CString::Insert(int nIndex, const char* psz)
{
    const CString inserted(psz);  // psz may point into this string
    return InsertChars(nIndex, inserted.m_pchData, inserted.m_nLength);
}

int CString::InsertChars(int nIndex, const char* pch, int nCount)
{
    nIndex = Clamp(nIndex, 0, m_nLength);
    const int nOld = m_nLength;
    Reserve(nOld + nCount);
    std::memmove(m_pchData + nIndex + nCount, m_pchData + nIndex, static_cast<size_t>(nOld - nIndex));
    std::memcpy(m_pchData + nIndex, pch, static_cast<size_t>(nCount));
    SetLength(nOld + nCount);
    return m_nLength;
}

int CString::Delete(int nIndex, int nCount)
{
    nIndex = std::max(nIndex, 0);
    nCount = std::max(nCount, 0);
    if (static_cast<long long>(nIndex) + nCount > m_nLength)
        nCount = m_nLength - nIndex;
    if (nCount > 0) {
        std::memmove(m_pchData + nIndex, m_pchData + nIndex + nCount,
                     static_cast<size_t>(m_nLength - nIndex - nCount));
        SetLength(m_nLength - nCount);
    }
    return m_nLength;
}

int CString::Replace(char chOld, char chNew)
{
    int count = 0;
    for (int i = 0; i < m_nLength; ++i) {
        if (m_pchData[i] == chOld) {
            m_pchData[i] = chNew;
            ++count;
        }
    }
    return count;
}

int CString::Replace(const char* pszOld, const char* pszNew)
{
    const int nOld = LengthOf(pszOld);
    if (nOld == 0)
        return 0;
    const CString replacement(pszNew);
    CString result;
    int count = 0;
    int from = 0;
    for (int hit = Find(pszOld, 0); hit >= 0; hit = Find(pszOld, from)) {
        result.Append(m_pchData + from, hit - from);
        result += replacement;
        from = hit + nOld;
        ++count;
    }
    if (count > 0) {
        result.Append(m_pchData + from, m_nLength - from);
        *this = std::move(result);
    }
    return count;
}

int CString::Remove(char ch)
{
    char* out = m_pchData;
    for (int i = 0; i < m_nLength; ++i)
        if (m_pchData[i] != ch)
            *out++ = m_pchData[i];
    const int removed = m_nLength - static_cast<int>(out - m_pchData);
    SetLength(m_nLength - removed);
    return removed;
}

CString& CString::MakeUpper() noexcept
{
    for (int i = 0; i < m_nLength; ++i)
        m_pchData[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(m_pchData[i])));
    return *this;
}

CString& CString::MakeLower() noexcept
{
    for (int i = 0; i < m_nLength; ++i)
        m_pchData[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(m_pchData[i])));
    return *this;
}

CString& CString::MakeReverse() noexcept
{
    std::reverse(m_pchData, m_pchData + m_nLength);
    return *this;
}

void CString::TrimLeftWhile(bool (*pred)(unsigned char, const void*), const void* arg)
{
    int n = 0;
    while (n < m_nLength && pred(static_cast<unsigned char>(m_pchData[n]), arg))
        ++n;
    Delete(0, n);
}

void CString::TrimRightWhile(bool (*pred)(unsigned char, const void*), const void* arg)
{
    int n = m_nLength;
    while (n > 0 && pred(static_cast<unsigned char>(m_pchData[n - 1]), arg))
        --n;
    SetLength(n);
}

CString& CString::Trim() { return TrimRight().TrimLeft(); }
CString& CString::Trim(char chTarget) { return TrimRight(chTarget).TrimLeft(chTarget); }
CString& CString::Trim(const char* pszTargets) { return TrimRight(pszTargets).TrimLeft(pszTargets); }

CString& CString::TrimLeft()
{
    TrimLeftWhile(IsBlank, nullptr);
    return *this;
}

CString& CString::TrimLeft(char chTarget)
{
    TrimLeftWhile(IsChar, &chTarget);
    return *this;
}

CString& CString::TrimLeft(const char* pszTargets)
{
    if (pszTargets)
        TrimLeftWhile(IsOneOf, pszTargets);
    return *this;
}

CString& CString::TrimRight()
{
    TrimRightWhile(IsBlank, nullptr);
    return *this;
}

CString& CString::TrimRight(char chTarget)
{
    TrimRightWhile(IsChar, &chTarget);
    return *this;
}

CString& CString::TrimRight(const char* pszTargets)
{
    if (pszTargets)
        TrimRightWhile(IsOneOf, pszTargets);
    return *this;
}

// Exactly -1, 0 or 1, as MFC's runtime answers; the C library only promises the sign.
int CString::Compare(const char* psz) const noexcept
{
    return SignOf(std::strcmp(m_pchData, psz ? psz : ""));
}

int CString::CompareNoCase(const char* psz) const noexcept
{
    const unsigned char* a = reinterpret_cast<const unsigned char*>(m_pchData);
    const unsigned char* b = reinterpret_cast<const unsigned char*>(psz ? psz : "");
    for (;; ++a, ++b) {
        const int ca = std::tolower(*a);
        const int cb = std::tolower(*b);
        if (ca != cb || ca == 0)
            return SignOf(ca - cb);
    }
}

void CString::Format(const char* pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

void CString::AppendFormat(const char* pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}

void CString::FormatV(const char* pszFormat, va_list args)
{
    CString formatted;
    formatted.AppendFormatV(pszFormat, args);  // arguments may point into this string
    *this = std::move(formatted);
}

void CString::AppendFormatV(const char* pszFormat, va_list args)
{
    if (!pszFormat)
        return;
    va_list measure;
    va_copy(measure, args);
    const int nExtra = std::vsnprintf(nullptr, 0, pszFormat, measure);
    va_end(measure);
    if (nExtra <= 0)
        return;
    const int nOld = m_nLength;
    Reserve(nOld + nExtra);
    std::vsnprintf(m_pchData + nOld, static_cast<size_t>(nExtra) + 1, pszFormat, args);
    SetLength(nOld + nExtra);
}

char* CString::GetBuffer(int nMinBufLength)
{
    Reserve(std::max(nMinBufLength, m_nLength));
    return m_pchData;
}

char* CString::GetBufferSetLength(int nNewLength)
{
    nNewLength = std::max(nNewLength, 0);
    Reserve(nNewLength);
    SetLength(nNewLength);
    return m_pchData;
}

void CString::ReleaseBuffer(int nNewLength) noexcept
{
    if (nNewLength < 0)
        nNewLength = static_cast<int>(strnlen(m_pchData, static_cast<size_t>(m_nCapacity)));
    SetLength(std::min(nNewLength, m_nCapacity));
}

void CString::Assign(const char* pch, int nLength)
{
    if (nLength > m_nCapacity) {
        CString fresh;
        fresh.Reserve(nLength);
        std::memcpy(fresh.m_pchData, pch, static_cast<size_t>(nLength));
        fresh.SetLength(nLength);
        *this = std::move(fresh);
        return;
    }
    if (nLength > 0)
        std::memmove(m_pchData, pch, static_cast<size_t>(nLength));
    SetLength(nLength);
}

void CString::Append(const char* pch, int nLength)
{
    if (nLength <= 0)
        return;
    if (m_nLength + nLength > m_nCapacity) {
        const CString copy(pch, nLength);  // pch may point into this string
        Reserve(m_nLength + nLength);
        std::memcpy(m_pchData + m_nLength, copy.m_pchData, static_cast<size_t>(nLength));
    } else {
        std::memmove(m_pchData + m_nLength, pch, static_cast<size_t>(nLength));
    }
    SetLength(m_nLength + nLength);
}

void CString::Reserve(int nCapacity)
{
    if (nCapacity <= m_nCapacity)
        return;
    const int nNew = std::max(nCapacity, m_nCapacity + m_nCapacity / 2);
    char* pNew = static_cast<char*>(std::malloc(static_cast<size_t>(nNew) + 1));
    if (!pNew)
        throw std::bad_alloc();
    std::memcpy(pNew, m_pchData, static_cast<size_t>(m_nLength) + 1);
    if (!IsInline())
        std::free(m_pchData);
    m_pchData = pNew;
    m_nCapacity = nNew;
}

void CString::SetLength(int nLength) noexcept
{
    m_nLength = nLength;
    m_pchData[nLength] = '\0';
}

CString operator+(const CString& a, const CString& b)
{
    CString s(a);
    s += b;
    return s;
}

CString operator+(const CString& a, const char* b)
{
    CString s(a);
    s += b;
    return s;
}

CString operator+(const char* a, const CString& b)
{
    CString s(a);
    s += b;
    return s;
}

CString operator+(const CString& a, char b)
{
    CString s(a);
    s += b;
    return s;
}

CString operator+(char a, const CString& b)
{
    CString s(a);
    s += b;
    return s;
}
