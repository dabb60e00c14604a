// KeyScript: the keys of --type, written as text. Every byte stands for itself
// except the backslash, which introduces a named key:
//   \b backspace   \d Delete     \i Insert (toggles overtype)
//   \< caret left  \> caret right  \h Home  \e End  \s select all
//   \\ a backslash   \xHH the byte HH (two hex digits)
#pragma once

#include <string>
#include <vector>

struct ScriptKey {
    enum Kind { Char, KeyDown, SelectAll, ToggleOvertype };
    Kind kind;
    unsigned int code;  // the character, or the virtual key of KeyDown
};

class KeyScript {
public:
    // Throws UsageError for an unknown or unfinished escape.
    explicit KeyScript(const std::string& written);

    const std::vector<ScriptKey>& Keys() const { return m_keys; }

private:
    static ScriptKey NamedKey(const std::string& written, size_t& pos);

    std::vector<ScriptKey> m_keys;
};
