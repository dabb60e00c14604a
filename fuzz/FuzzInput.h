// FuzzInput: the fuzzer's bytes read as choices. Once they run out every read
// gives 0, so a target never has to check lengths.
#pragma once

#include "afx/CString.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

    bool Exhausted() const { return m_pos >= m_size; }

    std::uint8_t Byte() { return Exhausted() ? 0 : m_data[m_pos++]; }
    // 0 .. n-1 for n from 1 to 256.
    unsigned int Below(unsigned int n) { return Byte() % n; }
    bool Flag() { return Byte() & 1; }

    // Eight raw bytes: every double, NaN and infinities included.
    double Double()
    {
        std::uint8_t bytes[sizeof(double)] = {};
        for (std::uint8_t& byte : bytes)
            byte = Byte();
        double value;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }

    // A length byte (below maxLength), then that many bytes; a NUL ends the
    // text early, as it would end a window's text.
    CString Text(unsigned int maxLength)
    {
        CString text;
        for (unsigned int length = Below(maxLength); length > 0; --length) {
            const char ch = static_cast<char>(Byte());
            if (ch == '\0')
                break;
            text += ch;
        }
        return text;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_pos = 0;
};
