// GalleryPage: a page of the gallery's notebook, a child dialog shown over the
// notebook while its tab is current.
#pragma once

#include "afx/CDialog.h"

class kvTabNotebook;

class GalleryPage : public CDialog {
public:
    // The notebook that shows the page: it sees the page's keys first, so that
    // Ctrl+Tab changes pages wherever the focus is. Null outside a notebook.
    void SetNotebook(kvTabNotebook* pNotebook) { m_pNotebook = pNotebook; }
    bool IsInNotebook() const { return m_pNotebook != nullptr; }

    // Whether the notebook may leave the page. A page holding an invalid field
    // keeps it: the field has the focus again and its message is shown.
    virtual bool CanLeave() { return true; }
    // Puts the page in the state its picture shows.
    virtual void PrepareForPicture() {}
    // Pictures of the page with a popup open, after its own picture: how many,
    // and the step that opens the n-th, which returns its name ("calendar"
    // makes "<page>-calendar"). The next page shown closes the popup.
    virtual int PopupPictureCount() const { return 0; }
    virtual const char* PreparePopupPicture(int) { return nullptr; }

    BOOL PreTranslateMessage(MSG* pMsg) override;

private:
    kvTabNotebook* m_pNotebook = nullptr;
};
