// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace tarsil {

/// The run-time errors; the value is the number shown to the user.
enum class ErrorNumber {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceInputOutput = 57,
    DiskFull = 61,
    InputPastEndOfFile = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectVariableNotSet = 91,
    SetNotSupportedAtRunTime = 382,
    SetNotPermitted = 387,
    KeyAlreadyAssociated = 457
};

/// The standard text of an error number, e.g. "Type mismatch".
std::string_view standardText(ErrorNumber number);

/// The exception of this program: the error number, the class or module that found the error
/// (source), and a text for the user (description): the standard text followed by the details.
class RunTimeError : public std::exception
{
public:
    /// `details` says where and what (file, line, columns or field, text found). May be empty.
    RunTimeError(ErrorNumber number, std::string source, std::string_view details = {});

    /// The same error with `where` appended to its description; for callers that know more.
    RunTimeError at(std::string_view where) const;

    ErrorNumber number() const { return m_number; }
    const std::string& source() const { return m_source; }
    const std::string& description() const { return m_description; }
    const char* what() const noexcept override { return m_description.c_str(); }

private:
    ErrorNumber m_number;
    std::string m_source;
    std::string m_description;
};

} // namespace tarsil
