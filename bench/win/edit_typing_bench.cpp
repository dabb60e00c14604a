// edit_typing_bench: what a typed character costs in an amount field (kvEdit
// with kvNumEditFormatter) next to the native edit control, timed in one run so
// that both see the same machine. Every field gets the same keys: a valid amount
// typed, then cleared untimed, over and over. The native control is measured
// twice, bare and hosted by the framework as a CEdit, which tells the framework's
// share from the formatter's.
//
// Run by hand (under Wine inside an X display). Exit status 0 when kvEdit costs
// at most three times the bare control in every delivery, 1 when it costs more,
// 2 when nothing could be measured (no window, or a field that did not take the
// keys as typed).
#include "BenchApp.h"

#include "afx/AfxExtension.h"
#include "afx/CEdit.h"
#include "afx/CFrameWnd.h"
#include "afx/CWinApp.h"
#include "formatting/kvEdit.h"
#include "formatting/kvMessages.h"
#include "formatting/kvNumEditFormatter.h"
#include "formatting/kvParentFont.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int kCharsPerRound = 10000;
constexpr int kRounds = 5;
constexpr double kMaxRatio = 3.0;

// A valid amount for nine integer digits and two decimals, and how each field shows it.
const char kWord[] = "1234567.89";
const char kTypedAsAmount[] = "1,234,567.89";
constexpr int kWordLength = sizeof kWord - 1;
static_assert(kCharsPerRound % kWordLength == 0, "every round types whole amounts");
constexpr int kWordsPerRound = kCharsPerRound / kWordLength;

constexpr UINT kBackspace = 8;
constexpr UINT kNativeId = 101;
constexpr UINT kCEditId = 102;
constexpr UINT kKvEditId = 103;
constexpr DWORD kFieldStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL;

enum class Delivery {
    Sent,    // WM_CHAR sent to the field, as the tests type
    Queued,  // WM_KEYDOWN, WM_CHAR and WM_KEYUP posted and pumped, paints included
};

const char* NameOf(Delivery how)
{
    return how == Delivery::Sent ? "WM_CHAR sent" : "keys queued and pumped";
}

// ---- keys ----

void SendChar(HWND hField, UINT ch) { ::SendMessageA(hField, WM_CHAR, ch, 1); }

// A key stroke as the keyboard delivers it, the character included (no
// TranslateMessage: the character is posted with its key).
void PostKeyStroke(HWND hField, char ch)
{
    const UINT vk = LOBYTE(::VkKeyScanA(ch));
    const LPARAM down = 1 | static_cast<LPARAM>(::MapVirtualKeyA(vk, MAPVK_VK_TO_VSC)) << 16;
    const LPARAM up = down | 0xC0000000;
    ::PostMessageA(hField, WM_KEYDOWN, vk, down);
    ::PostMessageA(hField, WM_CHAR, static_cast<unsigned char>(ch), down);
    ::PostMessageA(hField, WM_KEYUP, vk, up);
}

LONGLONG TypeWord(HWND hField, Delivery how)
{
    const LONGLONG start = Ticks();
    for (const char ch : std::string_view(kWord)) {
        if (how == Delivery::Sent) {
            SendChar(hField, static_cast<unsigned char>(ch));
        } else {
            PostKeyStroke(hField, ch);
            PumpQueue();
        }
    }
    return Ticks() - start;
}

// Select all and backspace: the same keys for every field, never timed.
void Clear(HWND hField)
{
    ::SendMessageA(hField, EM_SETSEL, 0, -1);
    SendChar(hField, kBackspace);
    PumpQueue();
}

std::string TextOf(HWND hField)
{
    char text[64] = "";
    ::GetWindowTextA(hField, text, sizeof text);
    return text;
}

// ---- the fields ----

// The contenders' places in Contenders() and in the medians.
enum ContenderIndex : size_t { kNative, kHosted, kAmount };

struct Contender {
    const char* name;
    HWND hField;
    const char* typed;  // the text one typed amount leaves
};

// Answers the library's status message as an application's main window does
// (overtype off, no messages shown) and hosts the fields side by side.
class BenchFrame : public CFrameWnd {
public:
    BOOL Create();
    std::vector<Contender> Contenders() const;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg LRESULT OnStatusMessage(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    HWND m_hNative = nullptr;
    CEdit m_hosted;
    kvEdit m_amount;
};

BEGIN_MESSAGE_MAP(BenchFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_MESSAGE(WM_KV_STATUS, OnStatusMessage)
END_MESSAGE_MAP()

RECT FieldRect(int row) { return {10, 10 + row * 30, 250, 32 + row * 30}; }

BOOL BenchFrame::Create()
{
    return CFrameWnd::Create(nullptr, "kvEdit typing benchmark", WS_OVERLAPPEDWINDOW, CRect(40, 40, 320, 200));
}

int BenchFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    const RECT native = FieldRect(0);
    m_hNative = ::CreateWindowExA(WS_EX_CLIENTEDGE, "EDIT", "", kFieldStyle, native.left, native.top,
                                  native.right - native.left, native.bottom - native.top, m_hWnd,
                                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kNativeId)),
                                  AfxGetInstanceHandle(), nullptr);
    if (m_hNative == nullptr || !m_hosted.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", kFieldStyle, FieldRect(1), this, kCEditId)
        || !m_amount.Create(kFieldStyle | WS_BORDER, FieldRect(2), this, kKvEditId))
        return -1;
    m_amount.SetFormatter(new kvNumEditFormatter(9, 2, kvNumEditFormatter::Separators | kvNumEditFormatter::PadDecimals));
    // kvEdit took this font itself; the native fields draw with the same.
    kvSetParentFont(CWnd::FromHandle(m_hNative), this);
    kvSetParentFont(&m_hosted, this);
    return 0;
}

LRESULT BenchFrame::OnStatusMessage(WPARAM, LPARAM) { return 0; }

std::vector<Contender> BenchFrame::Contenders() const
{
    return {{"EDIT", m_hNative, kWord},
            {"CEdit", m_hosted.GetSafeHwnd(), kWord},
            {"kvEdit", m_amount.GetSafeHwnd(), kTypedAsAmount}};
}

// ---- measuring ----

// The median nanoseconds per character of each contender, in its order.
using Medians = std::vector<double>;

struct WrongText {
    std::string field, text;
};

// One round of one field: ns per character; throws WrongText when the field
// did not take the keys as typed.
double MeasureRound(const Contender& contender, Delivery how)
{
    ::SetFocus(contender.hField);
    PumpQueue();
    LONGLONG ticks = 0;
    for (int word = 0; word < kWordsPerRound; ++word) {
        Clear(contender.hField);
        ticks += TypeWord(contender.hField, how);
        if (word == 0 && TextOf(contender.hField) != contender.typed)
            throw WrongText{contender.name, TextOf(contender.hField)};
    }
    return NanosecondsOf(ticks) / kCharsPerRound;
}

// Rounds alternate the order of the fields so that none always runs first.
Medians Measure(const std::vector<Contender>& contenders, Delivery how)
{
    std::vector<std::vector<double>> samples(contenders.size());
    for (int round = 0; round < kRounds; ++round) {
        for (size_t i = 0; i < contenders.size(); ++i) {
            const size_t index = round % 2 == 0 ? i : contenders.size() - 1 - i;
            samples[index].push_back(MeasureRound(contenders[index], how));
        }
    }
    Medians medians;
    for (const auto& fieldSamples : samples)
        medians.push_back(Median(fieldSamples));
    return medians;
}

// ---- counting messages ----

std::map<UINT, int>* g_pSentCounts = nullptr;

LRESULT CALLBACK CountSent(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && g_pSentCounts != nullptr)
        ++(*g_pSentCounts)[reinterpret_cast<const CWPSTRUCT*>(lParam)->message];
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

// The messages one typed amount sends, by message, the WM_CHARs included.
std::map<UINT, int> CountSentMessages(HWND hField)
{
    std::map<UINT, int> counts;
    ::SetFocus(hField);
    Clear(hField);
    const HHOOK hHook = ::SetWindowsHookExA(WH_CALLWNDPROC, &CountSent, nullptr, ::GetCurrentThreadId());
    g_pSentCounts = &counts;
    TypeWord(hField, Delivery::Sent);
    g_pSentCounts = nullptr;
    ::UnhookWindowsHookEx(hHook);
    return counts;
}

int TotalOf(const std::map<UINT, int>& counts)
{
    int total = 0;
    for (const auto& entry : counts)
        total += entry.second;
    return total;
}

std::string MessageName(UINT message)
{
    static const std::map<UINT, const char*> kNames = {
        {WM_CHAR, "WM_CHAR"},
        {WM_SETTEXT, "WM_SETTEXT"},
        {WM_GETTEXT, "WM_GETTEXT"},
        {WM_GETTEXTLENGTH, "WM_GETTEXTLENGTH"},
        {WM_COMMAND, "WM_COMMAND"},
        {WM_KV_STATUS, "WM_KV_STATUS"},
        {EM_GETSEL, "EM_GETSEL"},
        {EM_SETSEL, "EM_SETSEL"},
        {EM_SETMODIFY, "EM_SETMODIFY"},
        {EM_SCROLLCARET, "EM_SCROLLCARET"},
    };
    const auto found = kNames.find(message);
    if (found != kNames.end())
        return found->second;
    char hex[16];
    std::snprintf(hex, sizeof hex, "0x%04X", message);
    return hex;
}

// ---- the report ----

void PrintHeader(const std::vector<Contender>& contenders)
{
    std::printf("Typing into an amount field (9 integers, 2 decimals, separators, padded decimals):\n");
    std::printf("\"%s\" typed, then cleared untimed; %d characters per field and round, %d rounds,\n", kWord,
                kCharsPerRound, kRounds);
    std::printf("median ns per character. EDIT is the bare native control, CEdit the same hosted by\n");
    std::printf("the framework, kvEdit the formatted field.\n\n");
    std::printf("%-24s", "delivery");
    for (const Contender& contender : contenders)
        std::printf(" %12s", contender.name);
    std::printf(" %12s %12s\n", "kvEdit/EDIT", "kvEdit/CEdit");
}

// The row of one delivery; returns kvEdit's ratio to the bare control.
double PrintRow(Delivery how, const Medians& medians)
{
    std::printf("%-24s", NameOf(how));
    for (const double ns : medians)
        std::printf(" %12.0f", ns);
    const double ratio = medians[kAmount] / medians[kNative];
    std::printf(" %11.2fx %11.2fx\n", ratio, medians[kAmount] / medians[kHosted]);
    return ratio;
}

void PrintMessageCounts(const std::vector<Contender>& contenders)
{
    std::printf("\nmessages sent per character (WM_CHAR sent):");
    std::vector<std::map<UINT, int>> counts;
    for (const Contender& contender : contenders) {
        counts.push_back(CountSentMessages(contender.hField));
        std::printf(" %s %.1f", contender.name, static_cast<double>(TotalOf(counts.back())) / kWordLength);
    }
    std::printf("\nkvEdit's, by message:");
    for (const auto& [message, count] : counts[kAmount])
        std::printf(" %s %.1f", MessageName(message).c_str(), static_cast<double>(count) / kWordLength);
    std::printf("\n");
}

// The benchmark's exit status.
int RunBenchmark(BenchFrame& frame)
{
    const std::vector<Contender> contenders = frame.Contenders();
    PrintHeader(contenders);
    double worst = 0;
    try {
        for (const Delivery how : {Delivery::Sent, Delivery::Queued}) {
            worst = std::max(worst, PrintRow(how, Measure(contenders, how)));
            std::fflush(stdout);
        }
    } catch (const WrongText& wrong) {
        std::printf("\n%s shows \"%s\" after typing \"%s\": nothing measured.\n", wrong.field.c_str(),
                    wrong.text.c_str(), kWord);
        return 2;
    }
    PrintMessageCounts(contenders);
    const bool withinTarget = worst <= kMaxRatio;
    std::printf("\nverdict: kvEdit costs up to %.2fx the native control per character (target at most %.0fx): %s\n",
                worst, kMaxRatio, withinTarget ? "PASS" : "FAIL");
    return withinTarget ? 0 : 1;
}

}  // namespace

BenchApp<BenchFrame> theApp("kvEdit typing benchmark", RunBenchmark);
