#pragma once

#include <cerrno>
#include <stdexcept>
#include <string>
#include <system_error>

/// Why a conversion isn't done; what() is one line for the user, without a line end.
class ConvertError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;

    /// The subject, and what errno says.
    static ConvertError fromErrno(const std::string &subject)
    {
        return ConvertError(subject + ": " + std::generic_category().message(errno));
    }
};
