// Readers for option values shared by the families. Each names the option in
// the UsageError it throws, so that the message says what to fix.
#pragma once

#include <initializer_list>
#include <string>

// A whole number from 0 to max, decimal.
unsigned int ReadCount(const std::string& option, const std::string& value, unsigned int max);
// A 32-bit bit set, decimal or hexadecimal with "0x".
unsigned long ReadBits(const std::string& option, const std::string& value);
// A finite decimal number.
double ReadNumber(const std::string& option, const std::string& value);
// The index of value among choices.
int ReadChoice(const std::string& option, const std::string& value, std::initializer_list<const char*> choices);
