// SPDX-License-Identifier: Apache-2.0
#include "base/user/RunTimeError.h"

namespace tarsil {

std::string_view standardText(ErrorNumber number)
{
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
        return "Overflow";
    case ErrorNumber::SubscriptOutOfRange:
        return "Subscript out of range";
    case ErrorNumber::DivisionByZero:
        return "Division by zero";
    case ErrorNumber::TypeMismatch:
        return "Type mismatch";
    case ErrorNumber::FileNotFound:
        return "File not found";
    case ErrorNumber::DeviceInputOutput:
        return "Device I/O error";
    case ErrorNumber::DiskFull:
        return "Disk full";
    case ErrorNumber::InputPastEndOfFile:
        return "Input past end of file";
    case ErrorNumber::PermissionDenied:
        return "Permission denied";
    case ErrorNumber::PathFileAccess:
        return "Path/File access error";
    case ErrorNumber::PathNotFound:
        return "Path not found";
    case ErrorNumber::ObjectVariableNotSet:
        return "Object variable not set";
    case ErrorNumber::SetNotSupportedAtRunTime:
        return "Set not supported at run time";
    case ErrorNumber::SetNotPermitted:
        return "Set not permitted";
    case ErrorNumber::KeyAlreadyAssociated:
        return "This key is already associated with an element of this collection";
    }
    return "Unknown error";
}

RunTimeError::RunTimeError(ErrorNumber number, std::string source, std::string_view details)
    : m_number(number), m_source(std::move(source)), m_description(standardText(number))
{
    if (!details.empty())
        m_description.append(": ").append(details);
}

RunTimeError RunTimeError::at(std::string_view where) const
{
    RunTimeError error = *this;
    error.m_description.append(" (").append(where).append(")");
    return error;
}

} // namespace tarsil
