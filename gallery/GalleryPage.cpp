// GalleryPage
#include "gallery/GalleryPage.h"

#include "notebook/kvTabNotebook.h"

BOOL GalleryPage::PreTranslateMessage(MSG* pMsg)
{
    if (m_pNotebook != nullptr && m_pNotebook->PreTranslateMessage(pMsg))
        return TRUE;
    return CDialog::PreTranslateMessage(pMsg);
}
