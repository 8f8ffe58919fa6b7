// SPDX-License-Identifier: Apache-2.0
#include "batch/CommandLine.h"

#include "base/numbers/Numbers.h"
#include "base/text/AsciiText.h"

#include <algorithm>

namespace tarsil::batch {

namespace {

std::string inQuotes(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

UsageError notANumber(std::string_view text, std::string_view option)
{
    return UsageError(std::string(option) + ": " + inQuotes(text) + " is not a number");
}

/// "--mach M", "--require[=FACTOR]" or "--json".
std::string nameWithValue(const OptionDescription& option)
{
    std::string name(option.name);
    if (option.value.empty())
        return name;
    const std::string value(option.value);
    return option.isValueOptional ? name + "[=" + value + "]" : name + " " + value;
}

std::string usageLine(const CommandDescription& description)
{
    std::string line = "Usage: tarsil-batch " + std::string(description.name);
    constexpr std::size_t widest = 90;
    std::size_t width = line.size();
    const auto append = [&line, &width](const std::string& piece) {
        if (width + piece.size() + 1 > widest) {
            line += "\n        ";
            width = 8;
        }
        line.append(" ").append(piece);
        width += piece.size() + 1;
    };
    for (const OptionDescription& option : description.options) {
        std::string piece = nameWithValue(option);
        if (!option.isRequired)
            piece.insert(0, "[").append("]");
        if (option.mayRepeat)
            piece += "...";
        append(piece);
    }
    append(std::string(description.operands));
    return line + '\n';
}

/// An option and its help, as aligned lines.
std::string optionHelp(const OptionDescription& option, std::size_t width)
{
    std::string text = "  " + nameWithValue(option);
    text.append(width - std::min(width, text.size()), ' ');
    bool isFirst = true;
    for (const std::string_view line : split(option.help, '\n')) {
        if (!isFirst)
            text.append("\n").append(width, ' ');
        text += line;
        isFirst = false;
    }
    return text + '\n';
}

std::size_t columnOfHelp(std::span<const OptionDescription> options)
{
    std::size_t width = 0;
    for (const OptionDescription& option : options)
        width = std::max(width, nameWithValue(option).size());
    return width + 4;
}

} // namespace

CommandLine::CommandLine(const CommandDescription& description,
                         std::span<const std::string> arguments)
    : m_description(description)
{
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--") {
            m_operands.insert(m_operands.end(),
                              arguments.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                              arguments.end());
            break;
        }
        if (argument.size() > 1 && argument.front() == '-')
            i = takeOption(arguments, i);
        else
            m_operands.push_back(argument);
    }
    check();
}

/// Parses the option at `index`. Returns the index of the last argument that belongs to it.
std::size_t CommandLine::takeOption(std::span<const std::string> arguments, std::size_t index)
{
    const std::string& argument = arguments[index];
    const std::size_t equal = argument.find('=');
    const std::string name = argument.substr(0, equal);
    const auto option = std::find_if(m_description.options.begin(), m_description.options.end(),
                                     [&name](const auto& known) { return known.name == name; });
    if (option == m_description.options.end())
        throw UsageError("unknown option " + name);
    if (!option->mayRepeat && has(name))
        throw UsageError(name + " is given twice");
    if (option->value.empty()) {
        if (equal != std::string::npos)
            throw UsageError(name + " does not accept a value");
        m_values.emplace_back(option->name, "");
    } else if (equal != std::string::npos) {
        m_values.emplace_back(option->name, argument.substr(equal + 1));
    } else if (option->isValueOptional) {
        m_values.emplace_back(option->name, "");
    } else {
        if (++index == arguments.size())
            throw UsageError(name + " needs a value");
        m_values.emplace_back(option->name, arguments[index]);
    }
    return index;
}

void CommandLine::check() const
{
    for (const OptionDescription& option : m_description.options) {
        if (option.isRequired && !has(option.name))
            throw UsageError(std::string(option.name) + " is missing");
    }
    if (m_operands.empty())
        throw UsageError("no file is given");
    if (m_operands.size() > m_description.mostOperands)
        throw UsageError("too many files: " + inQuotes(m_operands[m_description.mostOperands]));
}

std::optional<std::string> CommandLine::value(std::string_view option) const
{
    for (const auto& [name, text] : m_values) {
        if (name == option)
            return text;
    }
    return std::nullopt;
}

std::vector<std::string> CommandLine::values(std::string_view option) const
{
    std::vector<std::string> texts;
    for (const auto& [name, text] : m_values) {
        if (name == option)
            texts.push_back(text);
    }
    return texts;
}

std::optional<double> CommandLine::number(std::string_view option) const
{
    const auto text = value(option);
    return text ? std::optional(numberOf(*text, option)) : std::nullopt;
}

bool takesNextArgument(const CommandDescription& description, std::string_view argument)
{
    return std::any_of(
        description.options.begin(), description.options.end(), [argument](const auto& known) {
            return known.name == argument && !known.value.empty() && !known.isValueOptional;
        });
}

double numberOf(std::string_view text, std::string_view option)
{
    double number = 0;
    if (parseDouble(text, number) != NumberStatus::Ok)
        throw notANumber(text, option);
    return number;
}

std::vector<float> singlesOf(std::string_view text, std::size_t count, std::string_view option)
{
    std::vector<float> numbers;
    for (const std::string_view piece : split(text, ',')) {
        if (parseSingle(piece, numbers.emplace_back()) != NumberStatus::Ok)
            throw notANumber(piece, option);
    }
    if (numbers.size() != count)
        throw UsageError(std::string(option) + " needs " + std::to_string(count)
                         + (count == 1 ? " number" : " numbers separated by commas") + ", not "
                         + std::to_string(numbers.size()));
    return numbers;
}

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> pieces;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator)) {
        pieces.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    pieces.push_back(text);
    return pieces;
}

std::string helpText(const CommandDescription& description)
{
    constexpr OptionDescription help {"--help", "", "prints this text"};
    std::string text = usageLine(description);
    text.append("\n").append(description.help).append("\n\n");
    const std::size_t width = std::max(columnOfHelp(description.options), help.name.size() + 4);
    for (const OptionDescription& option : description.options)
        text += optionHelp(option, width);
    return text + optionHelp(help, width);
}

bool hasExtension(std::string_view path, std::span<const std::string_view> extensions)
{
    const auto isAtEnd = [path](std::string_view extension) {
        return path.size() > extension.size()
            && equalIgnoringAsciiCase(path.substr(path.size() - extension.size()), extension);
    };
    return std::any_of(extensions.begin(), extensions.end(), isAtEnd);
}

std::string outputOf(const CommandLine& line, std::span<const std::string_view> extensions)
{
    std::string output = line.value("--output").value_or("");
    if (hasExtension(output, extensions))
        return output;
    std::string wanted;
    for (std::size_t i = 0; i < extensions.size(); ++i) {
        if (i > 0)
            wanted += i + 1 == extensions.size() ? " or " : ", ";
        wanted += extensions[i];
    }
    throw UsageError("--output: " + inQuotes(output) + " does not end in " + wanted);
}

} // namespace tarsil::batch
