// The executable's entry: linked into applications (the afx_winmain library),
// it runs the application object, as the framework's WinMain always has.
#include "afx/CWinApp.h"

int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow)
{
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
}
