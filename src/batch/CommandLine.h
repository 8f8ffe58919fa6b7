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

/// A command line that means nothing: the program says what is wrong, points to --help, and ends
/// with status 2.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// One option of a command, as the parser and the help text need it.
struct OptionDescription
{
    std::string_view name; ///< with the two dashes
    std::string_view value; ///< what the help text calls the value; empty for an option without one
    std::string_view help; ///< lines separated by "\n"
    bool isRequired = false;
    bool mayRepeat = false;
    bool isValueOptional = false; ///< the value, if any, is given as "--name=value" only
};

/// What a command takes from its command line.
struct CommandDescription
{
    std::string_view name;
    std::string_view operands; ///< as the usage line shows them, e.g. "FILE..."
    std::size_t mostOperands; ///< at least one is always needed
    std::string_view summary; ///< one line, for the list of commands
    std::string_view help; ///< what the command does, in lines
    std::span<const OptionDescription> options;
};

/// The options and operands of one command. An option may be at any position, as "--name value" or
/// "--name=value"; the value is the whole next argument, whatever it begins with. After "--"
/// everything is an operand. Raises UsageError for what the description does not know.
class CommandLine
{
public:
    CommandLine(const CommandDescription& description, std::span<const std::string> arguments);

    bool has(std::string_view option) const { return value(option).has_value(); }
    std::optional<std::string> value(std::string_view option) const;
    std::vector<std::string> values(std::string_view option) const;
    const std::vector<std::string>& operands() const { return m_operands; }

    /// The value as a number; no value when the option is missing.
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

/// A number written on the command line; UsageError, naming the option, for other text.
double numberOf(std::string_view text, std::string_view option);

/// Several singles separated by commas; UsageError unless there are `count`.
std::vector<float> singlesOf(std::string_view text, std::size_t count, std::string_view option);

/// The pieces of a text between its separators.
std::vector<std::string_view> split(std::string_view text, char separator);

/// The text that --help shows for a command.
std::string helpText(const CommandDescription& description);

/// Whether the text ends in one of the extensions, in any case.
bool hasExtension(std::string_view path, std::span<const std::string_view> extensions);

/// The value of --output; UsageError when its extension is none of these.
std::string outputOf(const CommandLine& line, std::span<const std::string_view> extensions);

} // namespace tarsil::batch
