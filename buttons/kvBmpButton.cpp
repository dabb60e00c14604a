// kvBmpButton: images from the application's resources, layout (through
// kvBmpButtonLayout), drawing, tool tip, cursors, pseudo-disable mode and the
// button's part in validation, which the pending control carries.
#include "buttons/kvBmpButton.h"

#include "afx/AfxExtension.h"
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CClientDC.h"
#include "afx/CDC.h"
#include "buttons/kvButtonText.h"
#include "buttons/kvDibColorTable.h"
#include "buttons/kvSubString.h"
#include "formatting/kvMessages.h"
#include "formatting/kvParentFont.h"
#include "menus/kvCtrlContextMenu.h"
#include "menus/kvShowContextMenu.h"

#include <uxtheme.h>
#include <vssym32.h>

#include <cstring>
#include <vector>

namespace {

constexpr TCHAR kFieldSeparator = '\n';
constexpr COLORREF kNoTransparent = 0xFFFFFFFF;

// The visual style of one window class, closed when it goes; null without themes.
class ThemeData {
public:
    ThemeData(HWND hWnd, LPCWSTR classList) : m_hTheme(::OpenThemeData(hWnd, classList)) {}
    ~ThemeData()
    {
        if (m_hTheme != nullptr)
            ::CloseThemeData(m_hTheme);
    }
    ThemeData(const ThemeData&) = delete;
    ThemeData& operator=(const ThemeData&) = delete;

    explicit operator bool() const { return m_hTheme != nullptr; }
    HTHEME Handle() const { return m_hTheme; }

private:
    HTHEME m_hTheme;
};

// A copy of a resource's bytes, to rewrite; empty when the resource is missing.
std::vector<BYTE> CopyResource(HINSTANCE hInst, LPCTSTR lpszName, LPCTSTR lpszType)
{
    HRSRC hInfo = ::FindResource(hInst, lpszName, lpszType);
    HGLOBAL hData = hInfo != nullptr ? ::LoadResource(hInst, hInfo) : nullptr;
    const auto* bytes = hData != nullptr ? static_cast<const BYTE*>(::LockResource(hData)) : nullptr;
    if (bytes == nullptr)
        return {};
    return std::vector<BYTE>(bytes, bytes + ::SizeofResource(hInst, hInfo));
}

// The device-independent bitmap a copied resource holds, or null when it is too
// short to hold a header and its colour table.
BITMAPINFOHEADER* DibOf(std::vector<BYTE>& bytes)
{
    auto* dib = reinterpret_cast<BITMAPINFOHEADER*>(bytes.data());
    return kvDibColorTable::Fits(bytes.empty() ? nullptr : dib, bytes.size()) ? dib : nullptr;
}

// The first image of an icon group, from the module that holds the group: the
// icon directory's first entry names it.
std::vector<BYTE> CopyFirstIconImage(LPCTSTR lpszName)
{
    constexpr size_t kDirectoryHeader = 6, kEntryIdOffset = 12, kEntrySize = 14;
    HINSTANCE hInst = AfxFindResourceHandle(lpszName, RT_GROUP_ICON);
    const std::vector<BYTE> group = CopyResource(hInst, lpszName, RT_GROUP_ICON);
    if (group.size() < kDirectoryHeader + kEntrySize)
        return {};
    WORD id = 0;
    std::memcpy(&id, group.data() + kDirectoryHeader + kEntryIdOffset, sizeof id);
    return CopyResource(hInst, MAKEINTRESOURCE(id), RT_ICON);
}

CSize IconSize(HICON hIcon)
{
    ICONINFO info{};
    if (!::GetIconInfo(hIcon, &info))
        return CSize(0, 0);
    BITMAP bm{};
    ::GetObject(info.hbmColor != nullptr ? info.hbmColor : info.hbmMask, sizeof bm, &bm);
    if (info.hbmColor != nullptr)
        ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    // A monochrome icon keeps its image above its mask in one bitmap.
    return CSize(bm.bmWidth, info.hbmColor != nullptr ? bm.bmHeight : bm.bmHeight / 2);
}

// An icon shows what lies beneath it where its mask is set only if its image is
// black there: the face colour would tint the background.
void BlackenTransparentPixels(CDC& image, HBITMAP hMask, CSize size)
{
    constexpr DWORD kDestinationAndNotSource = 0x00220326;
    CDC mask;
    if (!mask.CreateCompatibleDC(&image))
        return;
    CBitmap* pOld = mask.SelectObject(CBitmap::FromHandle(hMask));
    // Monochrome to colour: set bits become the background colour, white.
    image.SetBkColor(RGB(255, 255, 255));
    image.SetTextColor(RGB(0, 0, 0));
    image.BitBlt(0, 0, size.cx, size.cy, &mask, 0, 0, kDestinationAndNotSource);
    mask.SelectObject(pOld);
}

kvBmpButtonLayout::Alignment HorizontalOf(DWORD alignment)
{
    switch (alignment) {
    case BS_LEFT:
        return kvBmpButtonLayout::AlignNear;
    case BS_RIGHT:
        return kvBmpButtonLayout::AlignFar;
    default:
        return kvBmpButtonLayout::AlignCentre;
    }
}

kvBmpButtonLayout::Alignment VerticalOf(DWORD alignment)
{
    switch (alignment) {
    case BS_TOP:
        return kvBmpButtonLayout::AlignNear;
    case BS_BOTTOM:
        return kvBmpButtonLayout::AlignFar;
    default:
        return kvBmpButtonLayout::AlignCentre;
    }
}

bool IsLeadByte(unsigned char byte) { return ::IsDBCSLeadByte(byte) != FALSE; }

}  // namespace

const CPoint kvBmpButton::m_ptImageOffset(kvBmpButtonLayout::ImageOffset);
const CPoint kvBmpButton::m_ptTextOffset(kvBmpButtonLayout::TextOffset);
const CPoint kvBmpButton::m_ptOuterFocusOffset(kvBmpButtonLayout::OuterFocusOffset);
const CPoint kvBmpButton::m_ptInnerFocusOffset(kvBmpButtonLayout::InnerFocusOffset);
const CPoint kvBmpButton::m_ptDownOffset(kvBmpButtonLayout::DownOffset);
COLORREF kvBmpButton::m_defaultButtonColor = ::GetSysColor(COLOR_BTNFACE);

BEGIN_MESSAGE_MAP(kvBmpButton, CButton)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_KILLFOCUS()
    ON_WM_SETCURSOR()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_CONTEXTMENU()
    ON_MESSAGE(WM_SETTEXT, OnSetText)
    ON_MESSAGE(WM_KV_CHILDKILLFOCUS, OnChildKillFocus)
    ON_MESSAGE(WM_KV_VERIFY, OnVerify)
END_MESSAGE_MAP()

kvBmpButton::kvBmpButton(textPos pos) : m_textPos(pos) {}

kvBmpButton::~kvBmpButton() = default;

// ---- images ----

BOOL kvBmpButton::LoadBitmap(UINT nIDResource, int bSizeToContent, COLORREF crTransparent)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource), bSizeToContent, crTransparent);
}

BOOL kvBmpButton::LoadBitmap(LPCTSTR lpszResourceName, int bSizeToContent, COLORREF crTransparent)
{
    m_imageList.DeleteImageList();
    CBitmap bitmap;
    if (!bitmap.LoadBitmap(lpszResourceName))
        return FALSE;
    GetBitmapPalette(lpszResourceName, m_palette);
    CBitmap gray;
    BuildGrayBitmap(lpszResourceName, crTransparent, &gray);

    BITMAP bm{};
    bitmap.GetBitmap(&bm);
    const UINT mask = crTransparent != kNoTransparent ? ILC_MASK : 0;
    if (!m_imageList.Create(bm.bmWidth, bm.bmHeight, ILC_COLORDDB | mask, 0, 5))
        return FALSE;
    m_imageList.Add(&bitmap, crTransparent);
    m_imageList.Add(&gray, crTransparent);
    AddDerivedImages(nullptr, CSize(bm.bmWidth, bm.bmHeight));
    if (bSizeToContent)
        SizeToContent();
    return TRUE;
}

BOOL kvBmpButton::LoadIcon(UINT nIDResource, int bSizeToContent)
{
    return LoadIcon(MAKEINTRESOURCE(nIDResource), bSizeToContent);
}

BOOL kvBmpButton::LoadIcon(LPCTSTR lpszResourceName, int bSizeToContent)
{
    m_imageList.DeleteImageList();
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON);
    // The icon at the size its resource has, not the system's icon size.
    auto hIcon = static_cast<HICON>(::LoadImage(hInst, lpszResourceName, IMAGE_ICON, 0, 0, 0));
    if (hIcon == nullptr)
        return FALSE;
    GetIconPalette(lpszResourceName, m_palette);
    HICON hGray = nullptr;
    BuildGrayIcon(lpszResourceName, &hGray);

    const CSize size = IconSize(hIcon);
    const BOOL created = m_imageList.Create(size.cx, size.cy, ILC_COLORDDB | ILC_MASK, 0, 5);
    if (created) {
        m_imageList.Add(hIcon);
        AddDerivedImages(hGray, size);
    }
    if (hGray != nullptr)
        ::DestroyIcon(hGray);
    ::DestroyIcon(hIcon);
    if (created && bSizeToContent)
        SizeToContent();
    return created;
}

// Index 1 gray (for a bitmap already in the list), index 2 disabled, made from
// the normal image.
void kvBmpButton::AddDerivedImages(HICON hGray, CSize size)
{
    if (hGray != nullptr)
        m_imageList.Add(hGray);
    HICON hNormal = m_imageList.ExtractIcon(m_nNormalImageIndex);
    HICON hDisabled = nullptr;
    if (hNormal != nullptr)
        BuildDisabledImage(hNormal, size, hDisabled);
    if (hDisabled != nullptr) {
        m_imageList.Add(hDisabled);
        ::DestroyIcon(hDisabled);
    }
    if (hNormal != nullptr)
        ::DestroyIcon(hNormal);
}

int kvBmpButton::MakeGray(BITMAPINFOHEADER* pDib, COLORREF crTransparent)
{
    return kvDibColorTable::MakeGray(pDib, crTransparent);
}

int kvBmpButton::BuildGrayBitmap(LPCTSTR lpszResourceName, COLORREF crTransparent, CBitmap* pResult)
{
    std::vector<BYTE> copy = CopyResource(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName,
                                          RT_BITMAP);
    BITMAPINFOHEADER* dib = DibOf(copy);
    if (dib == nullptr || pResult == nullptr || !MakeGray(dib, crTransparent))
        return FALSE;
    CClientDC screen(nullptr);
    HBITMAP hGray = ::CreateDIBitmap(screen, dib, CBM_INIT, kvDibColorTable::Pixels(*dib),
                                     reinterpret_cast<BITMAPINFO*>(dib), DIB_RGB_COLORS);
    return hGray != nullptr && pResult->Attach(hGray);
}

int kvBmpButton::BuildGrayIcon(LPCTSTR lpszResourceName, HICON* phResult)
{
    std::vector<BYTE> copy = CopyFirstIconImage(lpszResourceName);
    BITMAPINFOHEADER* dib = DibOf(copy);
    if (dib == nullptr || phResult == nullptr || !MakeGray(dib, kNoTransparent))
        return FALSE;
    // At the image's own size, and not shared, so that the caller can destroy it.
    constexpr DWORD kIconFormat = 0x30000;
    *phResult = ::CreateIconFromResourceEx(copy.data(), static_cast<DWORD>(copy.size()), TRUE, kIconFormat, 0, 0,
                                           LR_DEFAULTCOLOR);
    return *phResult != nullptr;
}

int kvBmpButton::BuildDisabledImage(HICON hIcon, CSize size, HICON& hResult)
{
    CClientDC screen(nullptr);
    CDC memory;
    CBitmap face;
    if (!memory.CreateCompatibleDC(&screen) || !face.CreateCompatibleBitmap(&screen, size.cx, size.cy))
        return FALSE;
    CBitmap* pOld = memory.SelectObject(&face);
    memory.FillSolidRect(0, 0, size.cx, size.cy, m_defaultButtonColor);
    const BOOL drawn = memory.DrawState(CPoint(0, 0), size, hIcon, DSS_DISABLED, static_cast<HBRUSH>(nullptr));
    ICONINFO info{};
    const bool hasParts = ::GetIconInfo(hIcon, &info) != FALSE;
    if (hasParts)
        BlackenTransparentPixels(memory, info.hbmMask, size);
    memory.SelectObject(pOld);

    if (hasParts) {
        if (info.hbmColor != nullptr)
            ::DeleteObject(info.hbmColor);
        info.hbmColor = face;
        hResult = ::CreateIconIndirect(&info);
        ::DeleteObject(info.hbmMask);
    }
    return drawn;
}

int kvBmpButton::GetImagePalette(BITMAPINFOHEADER* pDib, CPalette& palette)
{
    palette.DeleteObject();
    const std::vector<PALETTEENTRY> entries =
        pDib != nullptr ? kvDibColorTable::PaletteEntries(*pDib) : std::vector<PALETTEENTRY>();
    if (entries.empty())
        return FALSE;
    // LOGPALETTE ends in a one-entry array: room for the others follows it.
    std::vector<BYTE> buffer(sizeof(LOGPALETTE) + (entries.size() - 1) * sizeof(PALETTEENTRY));
    auto* logPalette = reinterpret_cast<LOGPALETTE*>(buffer.data());
    logPalette->palVersion = 0x300;
    logPalette->palNumEntries = static_cast<WORD>(entries.size());
    std::memcpy(logPalette->palPalEntry, entries.data(), entries.size() * sizeof(PALETTEENTRY));
    return palette.CreatePalette(logPalette);
}

int kvBmpButton::GetBitmapPalette(LPCTSTR lpszResourceName, CPalette& palette)
{
    std::vector<BYTE> copy = CopyResource(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName,
                                          RT_BITMAP);
    return GetImagePalette(DibOf(copy), palette);
}

int kvBmpButton::GetIconPalette(LPCTSTR lpszResourceName, CPalette& palette)
{
    std::vector<BYTE> copy = CopyFirstIconImage(lpszResourceName);
    return GetImagePalette(DibOf(copy), palette);
}

BOOL kvBmpButton::ResizeBitmap(UINT nIDResource)
{
    CBitmap bitmap;
    if (!bitmap.LoadBitmap(nIDResource))
        return FALSE;
    const CSize size = GetButtonSize();
    bitmap.SetBitmapDimension(size.cx, size.cy);
    return TRUE;
}

// ---- appearance ----

void kvBmpButton::SetHorizontalAlignment(DWORD dwAlignment)
{
    ModifyStyle(BS_CENTER, dwAlignment & BS_CENTER);
    Invalidate();
}

DWORD kvBmpButton::GetHorizontalAlignment() const
{
    const DWORD alignment = GetStyle() & BS_CENTER;
    return alignment == BS_LEFT || alignment == BS_RIGHT ? alignment : BS_CENTER;
}

void kvBmpButton::SetVerticalAlignment(DWORD dwAlignment)
{
    ModifyStyle(BS_VCENTER, dwAlignment & BS_VCENTER);
    Invalidate();
}

DWORD kvBmpButton::GetVerticalAlignment() const
{
    const DWORD alignment = GetStyle() & BS_VCENTER;
    return alignment == BS_TOP || alignment == BS_BOTTOM ? alignment : BS_VCENTER;
}

void kvBmpButton::SetTextColor(COLORREF crText)
{
    m_crText = crText;
    if (m_hWnd != nullptr)
        Invalidate();
}

void kvBmpButton::SetTextFont(CFont* pFont)
{
    m_textFont.DeleteObject();
    LOGFONT logFont{};
    if (pFont != nullptr && pFont->GetLogFont(&logFont))
        m_textFont.CreateFontIndirect(&logFont);
    if (m_hWnd != nullptr)
        Invalidate();
}

CFont* kvBmpButton::GetTextFont() const
{
    if (m_textFont.GetSafeHandle() != nullptr)
        return const_cast<CFont*>(&m_textFont);
    if (CFont* pFont = GetFont())
        return pFont;
    const CWnd* pParent = GetParent();
    if (CFont* pFont = pParent != nullptr ? pParent->GetFont() : nullptr)
        return pFont;
    return CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
}

CString kvBmpButton::GetText() const
{
    CString text;
    GetWindowText(text);
    return GetSubString(text, 1, kFieldSeparator);
}

CString kvBmpButton::GetToolTipText() const
{
    CString text;
    GetWindowText(text);
    return GetSubString(text, 2, kFieldSeparator);
}

void kvBmpButton::SetText(LPCTSTR lpszText) { SetWindowTextFields(lpszText, GetToolTipText()); }

void kvBmpButton::SetToolTipText(LPCTSTR lpszText)
{
    SetWindowTextFields(GetText(), lpszText);
    if (!GetToolTip() && !GetToolTipText().IsEmpty())
        SetToolTip(TRUE);
}

void kvBmpButton::SetWindowTextFields(const CString& caption, const CString& toolTip)
{
    SetWindowText(toolTip.IsEmpty() ? caption : caption + kFieldSeparator + toolTip);
}

void kvBmpButton::SetToolTip(int bOn)
{
    if (!bOn) {
        if (GetToolTip())
            m_toolTip.DestroyWindow();
        return;
    }
    if (m_hWnd == nullptr || GetToolTip() || !m_toolTip.Create(this))
        return;
    const CString text = GetToolTipText();
    m_toolTip.AddTool(this, text);
    m_toolTip.Activate(TRUE);
}

int kvBmpButton::GetToolTip() const { return m_toolTip.m_hWnd != nullptr && ::IsWindow(m_toolTip.m_hWnd); }

void kvBmpButton::SetTextLeftOffset(long nLeft)
{
    m_nTextLeftOffset = nLeft;
    if (m_hWnd != nullptr)
        Invalidate();
}

// ---- sizes ----

CSize kvBmpButton::GetButtonSize() const
{
    CRect rect;
    GetClientRect(&rect);
    return rect.Size();
}

CSize kvBmpButton::GetImageSize() const
{
    IMAGEINFO info{};
    if (m_imageList.GetSafeHandle() == nullptr || m_imageList.GetImageCount() == 0 ||
        !m_imageList.GetImageInfo(m_nNormalImageIndex, &info))
        return CSize(0, 0);
    return CRect(info.rcImage).Size();
}

CSize kvBmpButton::GetTextSize() const
{
    const CString caption = GetText();
    if (caption.IsEmpty())
        return CSize(0, 0);
    CClientDC dc(const_cast<kvBmpButton*>(this));
    CFont* pOldFont = dc.SelectObject(GetTextFont());
    CRect rect(0, 0, 0, 0);
    dc.DrawText(caption, rect, DT_CALCRECT | DT_SINGLELINE);
    dc.SelectObject(pOldFont);
    return rect.Size();
}

CSize kvBmpButton::GetFitButtonSize() const { return kvBmpButtonLayout::FitSize(GetImageSize(), GetTextSize()); }

void kvBmpButton::SizeToContent()
{
    if (m_hWnd == nullptr)
        return;
    const CSize size = GetFitButtonSize();
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

kvBmpButtonLayout kvBmpButton::DistributeSpace(UINT nState, const CRect& rect) const
{
    return kvBmpButtonLayout::Distribute(rect, GetTextSize(), GetImageSize(), m_textPos,
                                         HorizontalOf(GetHorizontalAlignment()), VerticalOf(GetVerticalAlignment()),
                                         (nState & ODS_SELECTED) != 0);
}

// ---- drawing ----

void kvBmpButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    UINT state = lpDrawItemStruct->itemState;
    // A pseudo-disabled button draws disabled.
    state = IsWindowEnabled() ? state & ~ODS_DISABLED : state | ODS_DISABLED;
    const kvBmpButtonLayout layout = DistributeSpace(state, lpDrawItemStruct->rcItem);
    CPalette* pOldPalette = SelectPalette(pDC);
    DrawButton(pDC, layout.face, state);
    DrawImage(pDC, layout.image, state);
    DrawText(pDC, layout.caption, state);
    if (state & ODS_FOCUS)
        DrawFocusRectangle(pDC, layout.face, state);
    RestorePalette(pDC, pOldPalette);
}

BOOL kvBmpButton::DrawWithoutBorders() const { return FALSE; }

CPalette* kvBmpButton::SelectPalette(CDC* pDC)
{
    if (m_palette.GetSafeHandle() == nullptr)
        return nullptr;
    CPalette* pOld = pDC->SelectPalette(&m_palette, FALSE);
    pDC->RealizePalette();
    return pOld;
}

void kvBmpButton::RestorePalette(CDC* pDC, CPalette* pOldPalette)
{
    if (pOldPalette != nullptr)
        pDC->SelectPalette(pOldPalette, TRUE);
}

void kvBmpButton::DrawButton(CDC* pDC, const CRect& rcFace, UINT nState)
{
    const bool selected = (nState & ODS_SELECTED) != 0;
    const bool disabled = (nState & ODS_DISABLED) != 0;
    if (DrawWithoutBorders()) {
        pDC->FillSolidRect(rcFace, m_defaultButtonColor);
        return;
    }
    CRect face = rcFace;
    ThemeData theme(m_hWnd, L"Button");
    if (theme) {
        const int state = selected ? PBS_PRESSED : disabled ? PBS_DISABLED : PBS_NORMAL;
        if (::IsThemeBackgroundPartiallyTransparent(theme.Handle(), BP_PUSHBUTTON, state))
            ::DrawThemeParentBackground(m_hWnd, *pDC, &face);
        ::DrawThemeBackground(theme.Handle(), *pDC, BP_PUSHBUTTON, state, &face, nullptr);
        return;
    }
    const UINT look = selected ? DFCS_PUSHED : disabled ? DFCS_INACTIVE : 0;
    pDC->DrawFrameControl(face, DFC_BUTTON, DFCS_BUTTONPUSH | look);
}

void kvBmpButton::DrawImage(CDC* pDC, const CRect& rcImage, UINT nState)
{
    if (m_imageList.GetSafeHandle() == nullptr)
        return;
    int index = (nState & ODS_DISABLED) ? m_nDisabledImageIndex : m_nNormalImageIndex;
    if (m_imageList.GetImageCount() <= index)
        index = m_nNormalImageIndex;
    m_imageList.Draw(pDC, index, rcImage.TopLeft(), ILD_NORMAL);
}

void kvBmpButton::DrawText(CDC* pDC, const CRect& rcText, UINT nState)
{
    const CString caption = GetText();
    if (caption.IsEmpty())
        return;
    CRect rect = rcText;
    if (m_nTextLeftOffset != 0)
        rect.left = m_nTextLeftOffset;
    const COLORREF oldColor = pDC->SetTextColor(m_crText);
    CFont* pOldFont = pDC->SelectObject(GetTextFont());
    const int oldMode = pDC->SetBkMode(TRANSPARENT);
    if (!(nState & ODS_DISABLED)) {
        pDC->DrawText(caption, rect, DT_SINGLELINE);
    } else if (!pDC->DrawState(rect.TopLeft(), rect.Size(), caption, DSS_DISABLED, TRUE, 0,
                               static_cast<HBRUSH>(nullptr))) {
        CBrush gray(::GetSysColor(COLOR_GRAYTEXT));
        const CString shown = RemoveAmpersand(caption);
        pDC->GrayString(&gray, nullptr, reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(shown)), shown.GetLength(),
                        rect.left, rect.top, rect.Width(), rect.Height());
    }
    pDC->SetBkMode(oldMode);
    pDC->SelectObject(pOldFont);
    pDC->SetTextColor(oldColor);
}

void kvBmpButton::DrawFocusRectangle(CDC* pDC, const CRect& rcFace, UINT nState)
{
    CRect rect = rcFace;
    rect.InflateRect(m_ptInnerFocusOffset.x, m_ptInnerFocusOffset.y);
    if (nState & ODS_SELECTED)
        rect.OffsetRect(m_ptDownOffset);
    pDC->DrawFocusRect(rect);
}

// ---- cursors ----

BOOL kvBmpButton::SetDefaultCursor(UINT nIDCursor)
{
    return LoadCursorResource(nIDCursor, m_nDefaultCursor, m_hDefaultCursor);
}

BOOL kvBmpButton::SetDisabledCursor(UINT nIDCursor)
{
    return LoadCursorResource(nIDCursor, m_nDisabledCursor, m_hDisabledCursor);
}

// Resource cursors are shared: nothing to destroy when they are replaced.
BOOL kvBmpButton::LoadCursorResource(UINT nIDCursor, UINT& nID, HCURSOR& hCursor)
{
    HCURSOR hLoaded = nullptr;
    if (nIDCursor != 0) {
        LPCTSTR name = MAKEINTRESOURCE(nIDCursor);
        hLoaded = ::LoadCursor(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
        if (hLoaded == nullptr)
            return FALSE;
    }
    nID = nIDCursor;
    hCursor = hLoaded;
    return TRUE;
}

BOOL kvBmpButton::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    HCURSOR hCursor = IsWindowEnabled() ? m_hDefaultCursor : m_hDisabledCursor;
    if (hCursor == nullptr)
        return CButton::OnSetCursor(pWnd, nHitTest, message);
    ::SetCursor(hCursor);
    return TRUE;
}

// ---- pseudo-disable mode ----

BOOL kvBmpButton::SetPseudoDisableMode(int bOn)
{
    if ((bOn != FALSE) == m_bPseudoDisableMode)
        return TRUE;
    if (bOn) {
        const BOOL enabled = IsWindowEnabled();
        m_bPseudoDisableMode = true;
        m_bHadTabStop = (GetStyle() & WS_TABSTOP) != 0;
        CWnd::EnableWindow(TRUE);
        EnableWindow(enabled);
    } else {
        m_bPseudoDisableMode = false;
        if (m_bHadTabStop)
            ModifyStyle(0, WS_TABSTOP);
        CWnd::EnableWindow(m_bPseudoEnabled);
    }
    return TRUE;
}

BOOL kvBmpButton::EnableWindow(BOOL bEnable)
{
    if (!m_bPseudoDisableMode)
        return CWnd::EnableWindow(bEnable);
    const BOOL previous = m_bPseudoEnabled;
    m_bPseudoEnabled = bEnable != FALSE;
    if (m_bHadTabStop)
        ModifyStyle(bEnable ? 0 : WS_TABSTOP, bEnable ? WS_TABSTOP : 0);
    if (previous != static_cast<BOOL>(m_bPseudoEnabled))
        Invalidate();
    return previous;
}

BOOL kvBmpButton::IsWindowEnabled() const
{
    return m_bPseudoDisableMode ? static_cast<BOOL>(m_bPseudoEnabled) : CWnd::IsWindowEnabled();
}

// A pseudo-disabled button sees its input but never clicks: the parts of a
// click or key press go on only while it is enabled, so none half-happens.
void kvBmpButton::PassOnWhenEnabled()
{
    if (IsWindowEnabled())
        Default();
}

void kvBmpButton::OnMouseMove(UINT, CPoint)
{
    if (!IsWindowEnabled())
        return;
    Default();
    if (GetToolTip())
        m_toolTip.Activate(TRUE);
}

void kvBmpButton::OnLButtonDown(UINT, CPoint) { PassOnWhenEnabled(); }

void kvBmpButton::OnLButtonUp(UINT, CPoint) { PassOnWhenEnabled(); }

void kvBmpButton::OnLButtonDblClk(UINT, CPoint) { PassOnWhenEnabled(); }

void kvBmpButton::OnKeyDown(UINT, UINT, UINT) { PassOnWhenEnabled(); }

void kvBmpButton::OnKeyUp(UINT, UINT, UINT) { PassOnWhenEnabled(); }

BOOL kvBmpButton::PreTranslateMessage(MSG* pMsg)
{
    if (GetToolTip())
        m_toolTip.RelayEvent(pMsg);
    return CButton::PreTranslateMessage(pMsg);
}

// ---- window ----

BOOL kvBmpButton::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style = (cs.style & ~BS_TYPEMASK) | BS_OWNERDRAW;
    return CButton::PreCreateWindow(cs);
}

// A button of a dialog template is drawn by this class too.
void kvBmpButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    ModifyStyle(BS_TYPEMASK, BS_OWNERDRAW);
}

void kvBmpButton::RegrabBackground()
{
    const bool hadFocus = ::GetFocus() == m_hWnd;
    ShowWindow(SW_HIDE);
    ShowWindow(SW_SHOWNA);
    if (hadFocus)
        SetFocus();
}

BOOL kvBmpButton::DestroyWindow()
{
    m_PendingCtrl.Clear();
    SetToolTip(FALSE);
    return CButton::DestroyWindow();
}

void kvBmpButton::OnSysColorChange()
{
    CButton::OnSysColorChange();
    m_defaultButtonColor = ::GetSysColor(COLOR_BTNFACE);
    Invalidate();
}

// The caption and the tool-tip text change together.
LRESULT kvBmpButton::OnSetText(WPARAM, LPARAM)
{
    const LRESULT result = Default();
    if (GetToolTip())
        m_toolTip.UpdateTipText(GetToolTipText(), this);
    Invalidate();
    return result;
}

CString kvBmpButton::GetSubString(LPCTSTR lpszText, int n, TCHAR chSeparator)
{
    return kvSubString(lpszText, n, chSeparator, IsLeadByte);
}

CString kvBmpButton::RemoveAmpersand(LPCTSTR lpszText) { return kvRemoveAmpersand(lpszText); }

// ---- validation ----

CWnd* kvBmpButton::GetPendingCtrl() const { return m_PendingCtrl.Get(); }

bool kvBmpButton::ValidatePendingCtrl() { return m_PendingCtrl.Validate(this); }

LRESULT kvBmpButton::OnChildKillFocus(WPARAM wParam, LPARAM) { return m_PendingCtrl.OnChildKillFocus(wParam); }

void kvBmpButton::OnKillFocus(CWnd* pNewWnd)
{
    PassOnWhenEnabled();
    m_PendingCtrl.OnKillFocus(this, pNewWnd);
}

LRESULT kvBmpButton::OnVerify(WPARAM wParam, LPARAM) { return m_PendingCtrl.OnVerify(wParam); }

void kvBmpButton::OnContextMenu(CWnd*, CPoint point) { kvShowContextMenu<kvCtrlContextMenu>(this, point); }
