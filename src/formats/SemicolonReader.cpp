// SPDX-License-Identifier: Apache-2.0
#include "formats/SemicolonReader.h"

#include "base/files/TextStream.h"
#include "base/user/RunTimeError.h"
#include "formats/ResultReadingSink.h"
#include "formats/ResultRows.h"
#include "model/EVM.h"

#include <string>
#include <string_view>

namespace tarsil {

namespace {

constexpr std::string_view tableHeader = "[Result Data Summary]";
constexpr char separator = ';';
constexpr std::size_t factorStep = 2; ///< a factor in every second field

struct CountLabel
{
    std::string_view label;
    std::int16_t EVM::*count;
};

/// A line that contains a label has its count after the last ";".
constexpr CountLabel countLabels[] = {{"Struct. Modes:;;;", &EVM::numberOfStructuralModes},
                                      {"Aeroel. Modes:;;;", &EVM::na},
                                      {"No. of Speeds:;;;", &EVM::numberOfSpeeds}};

class SemicolonReader
{
public:
    SemicolonReader(TextStream& stream, EVM& evolution)
        : m_stream(stream), m_evolution(evolution), m_sink(stream, evolution),
          m_rows(m_sink, separator)
    { }

    void read();

private:
    bool readUpToTable();
    void readCounts(std::string_view line);
    void readFactors();

    TextStream& m_stream;
    EVM& m_evolution;
    ResultReadingSink m_sink;
    ResultRows<ResultReadingSink> m_rows;
};

void SemicolonReader::read()
{
    if (!readUpToTable() || m_stream.atEndOfStream())
        return;
    m_stream.readLine(); // the headings
    while (!m_stream.atEndOfStream()) {
        const std::string_view line = m_stream.readLine();
        if (line.empty())
            break;
        m_rows.read(line);
        m_evolution.hasParticipationFactors = m_rows.fieldCount() > resultfield::mostWithoutFactors;
        if (m_evolution.hasParticipationFactors)
            readFactors();
    }
    m_sink.closeMode();
}

/// Reads the counts up to the header of the table. False when there is no table.
bool SemicolonReader::readUpToTable()
{
    while (!m_stream.atEndOfStream()) {
        const std::string_view line = m_stream.readLine();
        if (line == tableHeader)
            return true;
        readCounts(line);
    }
    return false;
}

void SemicolonReader::readCounts(std::string_view line)
{
    for (const auto& [label, count] : countLabels) {
        if (line.find(label) == std::string_view::npos)
            continue;
        const std::string_view text = line.substr(line.rfind(separator) + 1);
        const NumberStatus status = parseInteger16(text, m_evolution.*count);
        if (status != NumberStatus::Ok)
            m_sink.addWrongNumber(status, text, std::string(label));
    }
}

void SemicolonReader::readFactors()
{
    for (std::size_t i = 0; i < ParticipationFactors::capacity; ++i) {
        const std::size_t index = resultfield::firstFactor + i * factorStep;
        if (index >= m_rows.fieldCount())
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "EVM",
                               m_stream.location() + ": no field " + std::to_string(index)
                                   + " (participation factor) among "
                                   + std::to_string(m_rows.fieldCount()));
        m_rows.readFactor(index);
    }
}

} // namespace

void readSemicolonTable(TextStream& stream, EVM& evolution)
{
    evolution.isNewFormat = true;
    SemicolonReader(stream, evolution).read();
}

} // namespace tarsil
