// kvWin: every public class of this platform.
#pragma once

#include "afx/CPoint.h"
#include "afx/CRect.h"
#include "afx/CSize.h"
#include "afx/CString.h"

#include "formatting/kvEditFormatter.h"
#include "formatting/kvEditFormatterError.h"
#include "formatting/kvFormatter.h"
#include "formatting/kvMessages.h"
#include "formatting/kvStatus.h"
#include "formatting/kvStrEditFormatter.h"
#include "formatting/kvWinAMCtrlValidateInfo.h"
