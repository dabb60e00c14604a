// UsageError: a command line that kvformat cannot run. Reported on stderr with
// exit status 2; values that fail validation are not usage errors.
#pragma once

#include <stdexcept>
#include <string>

class UsageError : public std::runtime_error {
public:
    explicit UsageError(const std::string& message) : std::runtime_error(message) {}
};
