// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarsil::batch {

/// An invalid command line: the program prints the reason, points to --help, and ends with status
/// 2.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// An option of a command, for the parser and the help text.
struct OptionDescription
{
    std::string_view name; ///< with the two dashes
    std::string_view
        value; ///< name of the value in the help text; empty for an option without a value
    std::string_view help; ///< lines separated by "\n"
    bool isRequired = false;
    bool mayRepeat = false;
    bool isValueOptional = false; ///< a value is only accepted as "--name=value"
};

/// The options and operands that a command accepts.
struct CommandDescription
{
    std::string_view name;
    std::string_view operands; ///< as shown in the usage line, e.g. "FILE..."
    std::size_t mostOperands; ///< the minimum is one
    std::string_view summary; ///< one line, for the list of commands
    std::string_view help; ///< lines about what the command does
    std::span<const OptionDescription> options;
};

/// The parsed options and operands of a command. Options may be at any position, as "--name value"
/// or "--name=value"; the value is the whole next argument, whatever it begins with. After "--"
/// everything is an operand. Raises UsageError for anything that the description does not allow.
class CommandLine
{
public:
    CommandLine(const CommandDescription& description, std::span<const std::string> arguments);

    bool has(std::string_view option) const { return value(option).has_value(); }
    std::optional<std::string> value(std::string_view option) const;
    std::vector<std::string> values(std::string_view option) const;
    const std::vector<std::string>& operands() const { return m_operands; }

    /// The value as a number; empty when the option is missing.
    std::optional<double> number(std::string_view option) const;

private:
    std::size_t takeOption(std::span<const std::string> arguments, std::size_t index);
    void check() const;

    const CommandDescription& m_description;
    std::vector<std::pair<std::string_view, std::string>> m_values;
    std::vector<std::string> m_operands;
};

/// Whether the argument is an option whose value is the next argument.
bool takesNextArgument(const CommandDescription& description, std::string_view argument);

/// Parses a number; UsageError, with the option's name, for other text.
double numberOf(std::string_view text, std::string_view option);

/// Parses singles separated by commas; UsageError unless there are `count`.
std::vector<float> singlesOf(std::string_view text, std::size_t count, std::string_view option);

/// Splits a text at its separators.
std::vector<std::string_view> split(std::string_view text, char separator);

/// The text of --help for a command.
std::string helpText(const CommandDescription& description);

/// Whether the path ends in one of the extensions, in any case.
bool hasExtension(std::string_view path, std::span<const std::string_view> extensions);

/// The value of --output; UsageError when it has none of these extensions.
std::string outputOf(const CommandLine& line, std::span<const std::string_view> extensions);

} // namespace tarsil::batch
