// ButtonsPage: the gallery's buttons: a toolbar-like row of bitmap buttons in
// the four arrangements of image and caption (one disabled, one only looking
// disabled, one with a tool tip), and hover buttons in their image, flat,
// hyperlink and standard looks. A click shows the button's name in the status
// bar.
#pragma once

#include "afx/CBitmap.h"
#include "buttons/kvBmpButton.h"
#include "buttons/kvHoverButton.h"
#include "gallery/GalleryPage.h"

#include <memory>
#include <vector>

class ButtonsPage : public GalleryPage {
public:
    BOOL Create(CWnd* pParent);
    // The tool-tip button holds the focus, so the picture shows its focus rectangle.
    void PrepareForPicture() override;

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnButtonClicked(UINT nID);

    DECLARE_MESSAGE_MAP()

private:
    void CreateBitmapButtons();
    void CreateHoverButtons();
    // The next place in a group's row for a control of the given size.
    CRect NextInRow(CPoint& cursor, CSize size) const;
    CPoint RowStart(UINT nGroupID) const;

    std::vector<std::unique_ptr<kvBmpButton>> m_bitmapButtons;
    std::vector<std::unique_ptr<kvHoverButton>> m_hoverButtons;
    CBitmap m_image;
    CBitmap m_imageMask;
    CBitmap m_grayImage;
    CBitmap m_grayMask;
};
