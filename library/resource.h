// Resource ids of kvWin.dll. The controls find these resources through the
// framework's resource search, so the ids must not collide with an
// application's own.
#pragma once

// Hand pointer shown over hover buttons.
#define IDC_KVHAND 1000
// 8 by 8 monochrome dotted pattern for focus rectangles.
#define IDB_KVFOCUSPATTERN 1001
// 12 by 12 calendar glyph of the calendar field's button, on light gray.
#define IDB_KVCALENDAR 131
