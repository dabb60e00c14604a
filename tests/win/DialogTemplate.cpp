#include "DialogTemplate.h"

namespace {
// Offsets inside DLGTEMPLATE of the item count.
constexpr std::size_t kItemCountWord = 4;
}  // namespace

DialogTemplate::DialogTemplate(const char* caption, DWORD style, short cx, short cy)
{
    AppendDWord(style | DS_SETFONT);
    AppendDWord(0);  // extended style
    m_words.push_back(0);  // item count
    m_words.push_back(0);  // x
    m_words.push_back(0);  // y
    m_words.push_back(static_cast<WORD>(cx));
    m_words.push_back(static_cast<WORD>(cy));
    m_words.push_back(0);  // no menu
    m_words.push_back(0);  // the dialog class
    AppendString(caption);
    m_words.push_back(8);  // point size
    AppendString("MS Shell Dlg");
}

DialogTemplate& DialogTemplate::Add(const char* className, WORD id, const char* text, DWORD style, short x,
                                    short y, short cx, short cy, DWORD exStyle)
{
    AlignToDWord();
    AppendDWord(style | WS_CHILD | WS_VISIBLE);
    AppendDWord(exStyle);
    for (short value : {x, y, cx, cy})
        m_words.push_back(static_cast<WORD>(value));
    m_words.push_back(id);
    AppendString(className);
    AppendString(text);
    m_words.push_back(0);  // no creation data
    ++m_words[kItemCountWord];
    return *this;
}

void DialogTemplate::AppendDWord(DWORD value)
{
    m_words.push_back(LOWORD(value));
    m_words.push_back(HIWORD(value));
}

void DialogTemplate::AppendString(const char* text)
{
    for (const char* p = text; *p != '\0'; ++p)
        m_words.push_back(static_cast<unsigned char>(*p));
    m_words.push_back(0);
}

void DialogTemplate::AlignToDWord()
{
    if (m_words.size() % 2 != 0)
        m_words.push_back(0);
}
