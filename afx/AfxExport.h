// Export macro of the framework DLL. On Windows the framework is one DLL per
// process so that its state (handle map, current thread, module chain) is shared
// by kvWin.dll and the application; on the host it is a static library.
#pragma once

#if defined(_WIN32)
#  if defined(AFX_BUILDING_DLL)
#    define AFX_API __declspec(dllexport)
#  else
#    define AFX_API __declspec(dllimport)
#  endif
#else
#  define AFX_API
#endif
