// drop_list_bench: what a typed character costs in a drop edit list of 10,000
// items next to the native combo box (CBS_DROPDOWN) with the same items, whose
// application completes the same text itself through CB_FINDSTRING on
// CBN_EDITUPDATE; and what opening each one's list costs. Both are timed in
// one run, so that they see the same machine.
//
// Run by hand (under Wine inside an X display). Exit status 0 when the drop
// edit list costs at most 1.5 times the combo box per character, 1 when it
// costs more, 2 when nothing could be measured (no window, or a field that did
// not complete the word as typed).
#include "BenchApp.h"

#include "afx/CComboBox.h"
#include "afx/CFrameWnd.h"
#include "afx/CWinApp.h"
#include "dropdown/kvDropEditList.h"
#include "formatting/kvMessages.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int kItems = 10000;
constexpr int kWordsPerRound = 200;
constexpr int kOpensPerRound = 20;
constexpr int kRounds = 5;
constexpr double kMaxRatio = 1.5;

// Typed in lower case; both fields show it in the item's spelling.
const char kWord[] = "item 09876";
const char kCompleted[] = "Item 09876";
constexpr int kWordLength = sizeof kWord - 1;

constexpr UINT kBackspace = 8;
constexpr UINT kComboId = 101;
constexpr UINT kListId = 102;

std::string TextOf(HWND hWnd)
{
    char text[64] = "";
    ::GetWindowTextA(hWnd, text, sizeof text);
    return text;
}

// The two fields side by side; the frame completes the combo box's text as an
// application would, and answers the library's status message (overtype off).
class BenchFrame : public CFrameWnd {
public:
    BOOL Create()
    {
        return CFrameWnd::Create(nullptr, "drop edit list benchmark", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                 CRect(40, 40, 360, 400));
    }
    HWND ComboEdit() const { return ::GetWindow(m_combo.m_hWnd, GW_CHILD); }

    CComboBox m_combo;
    kvDropEditList m_list;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg LRESULT OnStatusMessage(WPARAM, LPARAM) { return 0; }
    afx_msg void OnComboEditUpdate();

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BenchFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_MESSAGE(WM_KV_STATUS, OnStatusMessage)
    ON_CONTROL(CBN_EDITUPDATE, kComboId, OnComboEditUpdate)
END_MESSAGE_MAP()

int BenchFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER;
    if (!m_combo.Create(style | CBS_DROPDOWN | CBS_AUTOHSCROLL, CRect(10, 10, 150, 200), this, kComboId) ||
        !m_list.Create(style, CRect(160, 10, 300, 200), this, kListId, 0))
        return -1;
    char item[16];
    for (int i = 0; i < kItems; ++i) {
        std::snprintf(item, sizeof item, "Item %05d", i);
        m_combo.AddString(item);
        m_list.AddString(item);
    }
    return 0;
}

// The first item beginning with the typed text, its tail selected.
void BenchFrame::OnComboEditUpdate()
{
    CString text;
    m_combo.GetWindowText(text);
    const DWORD sel = m_combo.GetEditSel();
    if (HIWORD(sel) != text.GetLength())
        return;
    const int item = m_combo.FindString(-1, text);
    if (item < 0)
        return;
    CString completed;
    m_combo.GetLBText(item, completed);
    m_combo.SetWindowText(completed);
    m_combo.SetEditSel(text.GetLength(), -1);
}

struct Contender {
    const char* name;
    HWND hTyped;  // the window the characters go to
    HWND hText;   // the window whose text is the field's
};

void Clear(HWND hTyped)
{
    ::SendMessageA(hTyped, EM_SETSEL, 0, -1);
    ::SendMessageA(hTyped, WM_CHAR, kBackspace, 1);
    PumpQueue();
}

// ns per character; 0 when the word did not complete as typed.
double MeasureTyping(const Contender& contender)
{
    ::SetFocus(contender.hTyped);
    LONGLONG ticks = 0;
    for (int word = 0; word < kWordsPerRound; ++word) {
        Clear(contender.hTyped);
        const LONGLONG start = Ticks();
        for (const char ch : std::string_view(kWord)) {
            ::SendMessageA(contender.hTyped, WM_CHAR, static_cast<unsigned char>(ch), 1);
            PumpQueue();
        }
        ticks += Ticks() - start;
        if (word == 0 && TextOf(contender.hText) != kCompleted)
            return 0;
    }
    return NanosecondsOf(ticks) / (kWordsPerRound * kWordLength);
}

// Microseconds to open the list, painted; closing is not timed.
template <typename Open, typename Close>
double MeasureOpening(Open open, Close close)
{
    LONGLONG ticks = 0;
    for (int i = 0; i < kOpensPerRound; ++i) {
        const LONGLONG start = Ticks();
        open();
        PumpQueue();
        ticks += Ticks() - start;
        close();
        PumpQueue();
    }
    return NanosecondsOf(ticks) / kOpensPerRound / 1000;
}

int RunBenchmark(BenchFrame& frame)
{
    const Contender combo{"CBS_DROPDOWN", frame.ComboEdit(), frame.m_combo.m_hWnd};
    const Contender list{"kvDropEditList", frame.m_list.m_hWnd, frame.m_list.m_hWnd};
    std::vector<double> typing[2], opening[2];
    for (int round = 0; round < kRounds; ++round) {
        // Alternating, so that neither always runs first.
        for (const int index : {round % 2, 1 - round % 2}) {
            if (index == 0) {
                typing[0].push_back(MeasureTyping(combo));
                opening[0].push_back(MeasureOpening([&] { frame.m_combo.ShowDropDown(TRUE); },
                                                    [&] { frame.m_combo.ShowDropDown(FALSE); }));
            } else {
                typing[1].push_back(MeasureTyping(list));
                opening[1].push_back(MeasureOpening([&] { frame.m_list.ShowPopup(true); },
                                                    [&] { frame.m_list.ShowPopup(false); }));
            }
        }
    }
    const double comboChar = Median(typing[0]), listChar = Median(typing[1]);
    const double comboOpen = Median(opening[0]), listOpen = Median(opening[1]);
    std::printf("%d items \"Item 00000\" to \"Item 09999\"; \"%s\" typed (WM_CHAR sent, queue pumped),\n", kItems,
                kWord);
    std::printf("completing to \"%s\"; %d words a round, %d rounds; medians.\n\n", kCompleted, kWordsPerRound,
                kRounds);
    if (comboChar <= 0 || listChar <= 0) {
        std::printf("A field did not complete the word as typed.\n");
        return 2;
    }
    std::printf("%-28s %16s %16s %8s\n", "", combo.name, list.name, "ratio");
    std::printf("%-28s %16.0f %16.0f %8.2f\n", "ns per typed character", comboChar, listChar, listChar / comboChar);
    std::printf("%-28s %16.1f %16.1f %8.2f\n", "us to open the list", comboOpen, listOpen, listOpen / comboOpen);
    return listChar / comboChar <= kMaxRatio ? 0 : 1;
}

}  // namespace

BenchApp<BenchFrame> theApp("drop edit list benchmark", RunBenchmark);
