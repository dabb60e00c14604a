// kvFormatter: the older formatter interface, supplied by applications (kvWin
// implements none). kvEdit calls it by the place of each operation in the list
// below, so the order of the virtual functions is part of the interface.
#pragma once

#include "afx/CString.h"
#include "library/kvWinExport.h"

class KVWIN_API kvFormatter {
public:
    virtual ~kvFormatter() = default;                                          // 0
    virtual bool LegacyWantsUpperCase() const = 0;                             // 1
    virtual void LegacyLengthRefused() = 0;                                    // 2
    virtual void LegacyShowStatus(CString status) = 0;                         // 3
    virtual bool LegacyIsValidText(CString& text, int lastIndex) = 0;          // 4
    virtual bool LegacyKeyDown(CString& text, unsigned long& sel, unsigned int key) = 0;  // 5
    virtual void LegacyReserved6() {}                                          // 6
    virtual bool LegacyPreprocessKey(CString& text, unsigned long& sel, unsigned int key) = 0;  // 7
    virtual unsigned long LegacyExtraStyle() const = 0;                        // 8
    virtual int LegacyMaxLength() const = 0;                                   // 9
    virtual bool LegacyIsAllowedKey(unsigned int key) const = 0;               // 10
    virtual bool LegacyReformatEachKey() const = 0;                            // 11
    virtual bool LegacyDeleteChars(CString& text, int& start, int& end) = 0;   // 12
    virtual bool LegacyBackspace(CString& text, int& start, int& end) = 0;     // 13
    virtual bool LegacySetText(CString& text) = 0;                             // 14
    virtual void LegacyReformat(CString& text, unsigned int key, int& start, int& end) = 0;  // 15
    virtual CString LegacyEmptyText() const = 0;                               // 16
    virtual void LegacyReserved17() {}                                         // 17
    virtual void LegacyReserved18() {}                                         // 18
    virtual void LegacyReserved19() {}                                         // 19
    virtual void LegacyReserved20() {}                                         // 20
    virtual void LegacyReserved21() {}                                         // 21
    virtual void LegacyReserved22() {}                                         // 22
    virtual bool LegacyIsEmpty(const CString& text) const = 0;                 // 23
};
