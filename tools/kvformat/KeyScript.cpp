#include "KeyScript.h"

#include "UsageError.h"

#include "afx/WinTypes.h"

#include <cctype>

namespace {

struct Escape {
    char letter;
    ScriptKey key;
};

const Escape kEscapes[] = {
    {'b', {ScriptKey::Char, VK_BACK}},
    {'\\', {ScriptKey::Char, '\\'}},
    {'d', {ScriptKey::KeyDown, VK_DELETE}},
    {'<', {ScriptKey::KeyDown, VK_LEFT}},
    {'>', {ScriptKey::KeyDown, VK_RIGHT}},
    {'h', {ScriptKey::KeyDown, VK_HOME}},
    {'e', {ScriptKey::KeyDown, VK_END}},
    {'s', {ScriptKey::SelectAll, 0}},
    {'i', {ScriptKey::ToggleOvertype, VK_INSERT}},
};

bool IsHexDigit(char ch) { return std::isxdigit(static_cast<unsigned char>(ch)) != 0; }

}  // namespace

KeyScript::KeyScript(const std::string& written)
{
    for (size_t pos = 0; pos < written.size(); ++pos) {
        if (written[pos] == '\\')
            m_keys.push_back(NamedKey(written, pos));
        else
            m_keys.push_back({ScriptKey::Char, static_cast<unsigned char>(written[pos])});
    }
}

// pos is on the backslash; it is left on the last character of the escape.
ScriptKey KeyScript::NamedKey(const std::string& written, size_t& pos)
{
    const std::string at = " in keys '" + written + "'";
    if (++pos == written.size())
        throw UsageError("a lone backslash ends the keys; write \\\\ for a backslash" + at);
    const char letter = written[pos];
    if (letter == 'x') {
        if (pos + 2 >= written.size() || !IsHexDigit(written[pos + 1]) || !IsHexDigit(written[pos + 2]))
            throw UsageError("\\x needs two hex digits" + at);
        pos += 2;
        return {ScriptKey::Char, static_cast<unsigned int>(std::stoul(written.substr(pos - 1, 2), nullptr, 16))};
    }
    for (const Escape& escape : kEscapes) {
        if (escape.letter == letter)
            return escape.key;
    }
    throw UsageError(std::string("unknown key \\") + letter + at);
}
