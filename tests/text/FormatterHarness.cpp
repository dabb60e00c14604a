#include "FormatterHarness.h"

#include "afx/WinTypes.h"

FieldState ParseField(const std::string& marked)
{
    FieldState field;
    std::string text;
    int start = -1, end = -1;
    for (char ch : marked) {
        if (ch == '|') {
            start = end = static_cast<int>(text.size());
        } else if (ch == '[') {
            start = static_cast<int>(text.size());
        } else if (ch == ']') {
            end = static_cast<int>(text.size());
        } else {
            text += ch;
        }
    }
    if (start < 0)
        start = end = static_cast<int>(text.size());
    field.text = text.c_str();
    field.sel = kvPackSel(start, end);
    return field;
}

std::string ShowField(const CString& text, unsigned long sel)
{
    const int start = kvSelStart(sel);
    const int end = kvSelEnd(sel);
    std::string shown(text.GetString());
    if (start == end) {
        shown.insert(static_cast<size_t>(start), "|");
    } else {
        shown.insert(static_cast<size_t>(end), "]");
        shown.insert(static_cast<size_t>(start), "[");
    }
    return shown;
}

std::string TypeKeys(const kvEditFormatter& f, const std::string& start, const std::string& keys,
                     bool overtype)
{
    FieldState field = ParseField(start);
    for (char key : keys) {
        if (key == '\x7f')
            f.DoKeyDown(field.text, field.sel, false, VK_DELETE, 1, 0);
        else
            f.DoChar(field.text, field.sel, overtype, static_cast<unsigned char>(key), 1, 0);
    }
    return ShowField(field.text, field.sel);
}
