// Export macro of kvWin.dll: every public class is exported under its own name.
#pragma once

#if defined(_WIN32)
#  if defined(KVWIN_BUILDING_DLL)
#    define KVWIN_API __declspec(dllexport)
#  else
#    define KVWIN_API __declspec(dllimport)
#  endif
#else
#  define KVWIN_API
#endif
