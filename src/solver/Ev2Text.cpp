#include "solver/Ev2Text.h"

#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace tarsil::solver {

namespace {

constexpr std::size_t mostCounted = std::numeric_limits<std::int16_t>::max();
constexpr int significantDigits = 9;

void requireCountable(std::size_t count, std::string_view what)
{
    if (count > mostCounted)
        throw RunTimeError(ErrorNumber::Overflow, "solver",
                           std::to_string(count) + " " + std::string(what)
                               + " are more than an evolution file can count");
}

void requireCountable(const std::vector<ImportedMode>& modes)
{
    requireCountable(modes.size(), "modes");
    for (const ImportedMode& mode : modes) {
        requireCountable(mode.points.size(), "points");
        if (mode.id < 0 || static_cast<std::size_t>(mode.id) > mostCounted)
            throw RunTimeError(ErrorNumber::Overflow, "solver",
                               "POINT " + std::to_string(mode.id)
                                   + " is no number that a mode can have");
    }
}

class Ev2Writer
{
public:
    void line(std::string_view text) { m_text.append(text).push_back('\n'); }

    void keyValue(std::string_view key, std::string value)
    {
        std::replace_if(
            value.begin(), value.end(), [](char c) { return c == '\n' || c == '\r' || c == '\0'; },
            ' ');
        m_text.append(key).append("=").append(encodeText(value)).push_back('\n');
    }

    void list(std::string_view key, const std::vector<std::string>& texts)
    {
        for (std::size_t i = 0; i < texts.size(); ++i)
            keyValue(std::string(key) + "(" + std::to_string(i + 1) + ")", texts[i]);
    }

    void field(double value)
    {
        char digits[32];
        if (!std::isnan(value)) {
            const auto end = std::to_chars(std::begin(digits), std::end(digits), value,
                                           std::chars_format::general, significantDigits);
            m_text.append(digits, end.ptr);
        }
        m_text.push_back('|');
    }

    void field(std::size_t number) { m_text.append(std::to_string(number)).push_back('|'); }

    std::string& text() { return m_text; }

private:
    std::string m_text;
};

void writeProcessing(Ev2Writer& writer, const Ev2Header& header)
{
    writer.line("[PROCESSING DATA INFO]");
    writer.keyValue("Program_version", header.programVersion);
    writer.keyValue("EV2_version", "2");
    writer.keyValue("Running_date", header.runningDate);
    for (const auto& [key, value] : header.furtherKeys)
        writer.keyValue(key, value);
    writer.line("");
}

void writeModel(Ev2Writer& writer, const Ev2Header& header, const std::vector<ImportedMode>& modes)
{
    const std::string modeCount = std::to_string(modes.size());
    writer.line("[MODEL DATA INFO]");
    writer.keyValue("Nastran_version", header.solverVersion);
    writer.keyValue("Flutter_method", header.flutterMethod);
    writer.keyValue("Airplane", header.airplane);
    writer.keyValue("Script", header.script);
    writer.keyValue("Mass_config", header.massConfiguration);
    if (header.mach) {
        Ev2Writer number;
        number.field(*header.mach);
        writer.keyValue("Mach_number", number.text().substr(0, number.text().size() - 1));
    }
    writer.keyValue("Struct_modes", modeCount);
    writer.keyValue("Aeroel_modes", modeCount);
    writer.keyValue("No_of_speeds",
                    std::to_string(modes.empty() ? 0 : modes.front().points.size()));
    writer.keyValue("Analysis_type", header.analysisType);
    writer.keyValue("No_of_modif", std::to_string(header.modifications.size()));
    writer.list("Modif", header.modifications);
    writer.list("Legend", header.legends);
    writer.line("");
}

void writeRow(Ev2Writer& writer, const ImportedMode& mode, std::size_t index)
{
    const ImportedPoint& point = mode.points[index];
    writer.field(static_cast<std::size_t>(mode.id));
    writer.field(index + 1);
    for (const double value : {point.im, point.re, point.k, point.keas, point.damping,
                               point.frequency, point.mach, point.sigma})
        writer.field(value);
    writer.line("");
}

} // namespace

std::string ev2Text(const Ev2Header& header, const std::vector<ImportedMode>& modes)
{
    requireCountable(modes);
    constexpr std::string_view headings =
        "Mode|Point|Im(p)|Re(p)|k|Speed|Damping g|Frequency|Mach|Density ratio|";
    constexpr std::string_view units = "-|-|rad/s|rad/s|-|KEAS|-|Hz|-|-|";
    Ev2Writer writer;
    writeProcessing(writer, header);
    writeModel(writer, header, modes);
    writer.line("[RESULT DATA SUMMARY]");
    writer.line(std::string(headings.size(), '-'));
    writer.line(headings);
    writer.line(units);
    writer.line(std::string(headings.size(), '-'));
    for (const ImportedMode& mode : modes) {
        for (std::size_t i = 0; i < mode.points.size(); ++i)
            writeRow(writer, mode, i);
    }
    return std::move(writer.text());
}

} // namespace tarsil::solver
