// SPDX-License-Identifier: Apache-2.0
#include "formats/FormatTable.h"

#include "base/user/RunTimeError.h"
#include "formats/Ev2Format.h"
#include "formats/EvmFormat.h"

#include <array>

namespace tarsil {

namespace {

constexpr std::array formats = {&evmFormat, &ev2Format};

constexpr bool hasFilterOfItsExtension(const EvolutionFormat& format)
{
    const std::size_t bar = format.filter.find('|');
    return bar != std::string_view::npos && format.filter.substr(bar + 1).starts_with('*')
        && format.filter.substr(bar + 2).starts_with(format.extension)
        && format.filter.size() == bar + format.extension.size() + 3
        && format.filter.ends_with('|');
}

constexpr bool isComplete(const EvolutionFormat& format)
{
    return !format.name.empty() && !format.title.empty() && format.extension.starts_with('.')
        && hasFilterOfItsExtension(format);
}

constexpr bool areComplete()
{
    for (const EvolutionFormat* format : formats) {
        if (!isComplete(*format))
            return false;
    }
    return true;
}

/// Whether each format can be found: no earlier one has its name or matches its files.
constexpr bool areDistinct()
{
    for (std::size_t i = 0; i < formats.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            if (formats[i]->name == formats[k]->name
                || formats[i]->extension.find(formats[k]->extension) != std::string_view::npos)
                return false;
        }
    }
    return true;
}

static_assert(areComplete(), "a format lacks a text, or its filter shows another extension");
static_assert(areDistinct(), "a format is hidden by one before it");

} // namespace

std::span<const EvolutionFormat* const> evolutionFormats()
{
    return formats;
}

const EvolutionFormat* findFormat(std::string_view text)
{
    for (const EvolutionFormat* format : formats) {
        if (text.find(format->extension) != std::string_view::npos)
            return format;
    }
    return nullptr;
}

const EvolutionFormat& formatOf(std::string_view fileName)
{
    if (const EvolutionFormat* const format = findFormat(fileName))
        return *format;
    std::string text = "the name \"" + std::string(fileName) + "\" contains";
    for (const EvolutionFormat* format : formats)
        text.append(format == formats.front() ? " neither \"" : " nor \"")
            .append(format->extension)
            .append("\"");
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "EVM", text);
}

std::string formatExtensions(std::string_view conjunction)
{
    std::string text;
    for (std::size_t i = 0; i < formats.size(); ++i) {
        if (i > 0 && i + 1 == formats.size())
            text.append(" ").append(conjunction).append(" ");
        else if (i > 0)
            text.append(", ");
        text.append(formats[i]->extension);
    }
    return text;
}

} // namespace tarsil
