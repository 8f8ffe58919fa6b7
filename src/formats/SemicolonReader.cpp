#include "formats/SemicolonReader.h"

#include "base/files/TextStream.h"
#include "formats/Ev2Layout.h"
#include "formats/ResultRow.h"
#include "model/EVM.h"

#include <string>

namespace tarsil {

namespace {

constexpr std::string_view tableHeader = "[Result Data Summary]";

/// The number after the last ";" of a line that contains `label`.
void readCount(const TextStream& stream, std::string_view line, std::string_view label,
               std::int16_t& count)
{
    if (line.find(label) == std::string_view::npos)
        return;
    const std::string_view text = line.substr(line.rfind(';') + 1);
    const NumberStatus status = parseInteger16(text, count);
    if (status != NumberStatus::Ok)
        throwNumberError(status, text, "EVM", stream.place() + ", " + std::string(label));
}

/// Reads the counts up to the header of the table; false when there is no table.
bool readUpToTable(TextStream& stream, EVM& evolution)
{
    while (!stream.atEndOfStream()) {
        const std::string_view line = stream.readLine();
        if (line == tableHeader)
            return true;
        readCount(stream, line, "Struct. Modes:;;;", evolution.numberOfStructuralModes);
        readCount(stream, line, "Aeroel. Modes:;;;", evolution.na);
        readCount(stream, line, "No. of Speeds:;;;", evolution.numberOfSpeeds);
    }
    return false;
}

} // namespace

void readSemicolonTable(TextStream& stream, EVM& evolution)
{
    evolution.isNewFormat = true;
    if (!readUpToTable(stream, evolution) || stream.atEndOfStream())
        return;
    stream.readLine(); // the headings
    ResultTable table(stream, evolution, ';');
    while (table.readRow()) {
        const bool factors = table.fieldCount() > ev2layout::mostFieldsWithoutFactors;
        if (factors)
            table.readFactors(ev2layout::narrowStep);
        evolution.hasParticipationFactors = factors;
    }
    table.closeMode();
}

} // namespace tarsil
