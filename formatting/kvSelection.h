// Packed selection: start in the low 16 bits, exclusive end in the high 16 bits,
// exactly as an edit control reports it.
#pragma once

inline int kvSelStart(unsigned long sel) noexcept { return static_cast<int>(sel & 0xFFFF); }
inline int kvSelEnd(unsigned long sel) noexcept { return static_cast<int>((sel >> 16) & 0xFFFF); }
inline unsigned long kvPackSel(int start, int end) noexcept
{
    return (static_cast<unsigned long>(start) & 0xFFFF) | ((static_cast<unsigned long>(end) & 0xFFFF) << 16);
}
