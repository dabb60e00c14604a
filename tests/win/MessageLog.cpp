#include "MessageLog.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

#include "afx/AfxMsgMap.h"

namespace {

struct NamedMessage {
    UINT message;
    const char* name;
};

const NamedMessage kNames[] = {
    {WM_CREATE, "WM_CREATE"}, {WM_DESTROY, "WM_DESTROY"}, {WM_MOVE, "WM_MOVE"}, {WM_SIZE, "WM_SIZE"},
    {WM_ACTIVATE, "WM_ACTIVATE"}, {WM_SETFOCUS, "WM_SETFOCUS"}, {WM_KILLFOCUS, "WM_KILLFOCUS"},
    {WM_ENABLE, "WM_ENABLE"}, {WM_SETTEXT, "WM_SETTEXT"}, {WM_PAINT, "WM_PAINT"}, {WM_CLOSE, "WM_CLOSE"},
    {WM_SHOWWINDOW, "WM_SHOWWINDOW"}, {WM_NCCREATE, "WM_NCCREATE"}, {WM_NCDESTROY, "WM_NCDESTROY"},
    {WM_GETDLGCODE, "WM_GETDLGCODE"}, {WM_KEYDOWN, "WM_KEYDOWN"}, {WM_KEYUP, "WM_KEYUP"}, {WM_CHAR, "WM_CHAR"},
    {WM_SYSKEYDOWN, "WM_SYSKEYDOWN"}, {WM_SYSCHAR, "WM_SYSCHAR"}, {WM_INITDIALOG, "WM_INITDIALOG"},
    {WM_COMMAND, "WM_COMMAND"}, {WM_NOTIFY, "WM_NOTIFY"}, {WM_TIMER, "WM_TIMER"},
    {WM_LBUTTONDOWN, "WM_LBUTTONDOWN"}, {WM_LBUTTONUP, "WM_LBUTTONUP"}, {WM_CTLCOLOREDIT, "WM_CTLCOLOREDIT"},
    {WM_CTLCOLORSTATIC, "WM_CTLCOLORSTATIC"}, {WM_DRAWITEM, "WM_DRAWITEM"}, {WM_MEASUREITEM, "WM_MEASUREITEM"},
    {WM_HSCROLL, "WM_HSCROLL"}, {WM_VSCROLL, "WM_VSCROLL"}, {WM_NULL, "WM_NULL"},
    {WM_REFLECT_BASE + WM_COMMAND, "reflected WM_COMMAND"}, {WM_REFLECT_BASE + WM_NOTIFY, "reflected WM_NOTIFY"},
    {WM_REFLECT_BASE + WM_CTLCOLOR, "reflected WM_CTLCOLOR"}, {WM_REFLECT_BASE + WM_DRAWITEM, "reflected WM_DRAWITEM"},
    {WM_REFLECT_BASE + WM_HSCROLL, "reflected WM_HSCROLL"},
};

bool Matches(const ExpectedMessage& expected, const LoggedMessage& actual)
{
    return actual.who == expected.who && actual.message == expected.message
           && (!(expected.flags & kWParam) || actual.wParam == expected.wParam)
           && (!(expected.flags & kLParam) || actual.lParam == expected.lParam);
}

std::string Describe(const std::string& who, UINT message, WPARAM wParam, LPARAM lParam)
{
    char params[64];
    std::snprintf(params, sizeof params, "(%#llx, %#llx)", static_cast<unsigned long long>(wParam),
                  static_cast<unsigned long long>(lParam));
    return who + " " + MessageName(message) + params;
}

}  // namespace

std::string MessageName(UINT message)
{
    for (const NamedMessage& named : kNames) {
        if (named.message == message)
            return named.name;
    }
    char hex[16];
    std::snprintf(hex, sizeof hex, "%#06x", message);
    return hex;
}

void CompareSequence(const MessageLog& log, const ExpectedMessage* expected, std::size_t count,
                     const char* context, const char* file, int line)
{
    const std::vector<LoggedMessage>& actual = log.Entries();
    std::size_t e = 0, a = 0;
    bool same = true;
    while (same && e < count) {
        if (a < actual.size() && Matches(expected[e], actual[a])) {
            ++e;
            ++a;
        } else if (expected[e].flags & kOptional) {
            ++e;
        } else {
            same = false;
        }
    }
    if (same && a == actual.size())
        return;
    std::ostringstream report;
    report << context << ": the message sequence differs at expected entry " << e << ", actual entry " << a
           << "\n  expected:";
    for (std::size_t i = 0; i < count; ++i) {
        report << "\n    " << Describe(expected[i].who, expected[i].message, expected[i].wParam, expected[i].lParam)
               << ((expected[i].flags & kOptional) ? " [optional]" : "");
    }
    report << "\n  actual:";
    for (const LoggedMessage& m : actual)
        report << "\n    " << Describe(m.who, m.message, m.wParam, m.lParam);
    ADD_FAILURE_AT(file, line) << report.str();
}
